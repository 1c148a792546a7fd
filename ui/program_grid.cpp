#include "program_grid.h"

#include <shellapi.h>

#include "conversions.h"
#include "dpi.h"
#include "skin.h"

namespace orvane::ui {

namespace {

constexpr int kRowHeight = 48;
constexpr int kIconColumn = 56;
constexpr int kUnknownIcon = -2;
// The pointer's colours: every name cell once the pointer has been over the grids, and the cell under it.
constexpr COLORREF kNameBack = 0x9D9493, kNameText = 0xFFFFFF;
constexpr COLORREF kEnteredBack = 0xF7FFFF, kEnteredText = 0x000000;

HIMAGELIST SystemImageList(const std::wstring &path, int &index) {
    EnterComApartment(); // the shell asks the file's own icon handler
    SHFILEINFOW info{};
    const auto list =
        reinterpret_cast<HIMAGELIST>(SHGetFileInfoW(path.c_str(), 0, &info, sizeof info, SHGFI_SYSICONINDEX));
    index = list ? info.iIcon : -1;
    return list; // the system's own: never destroyed here
}

} // namespace

void ProgramGrid::create(HWND parent, int id, GridPointer &pointer, const Skin &skin) {
    pointer_ = &pointer;
    skin_ = &skin;
    list_ = ListView(CreateWindowExW(
        WS_EX_CLIENTEDGE, WC_LISTVIEWW, L"",
        WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_NOCOLUMNHEADER | LVS_SINGLESEL | LVS_SHOWSELALWAYS, 0, 0,
        0, 0, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr));
    list_.setExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
    // Screen readers name the columns, though no header shows them.
    const wchar_t *captions[] = {L"Icon", L"Program"};
    for (int column = 0; column < 2; ++column)
        list_.insertColumn(column, captions[column], scaled(kIconColumn));
    // An empty image list of the row's height gives every row that height.
    rowHeight_.reset(ImageList_Create(1, scaled(kRowHeight), ILC_COLOR32, 0, 0));
    list_.setImageList(rowHeight_.get(), LVSIL_SMALL);
    SetWindowSubclass(list_, &ProgramGrid::Subclass, 1, reinterpret_cast<DWORD_PTR>(this));
}

int ProgramGrid::scaled(int pixels) const {
    return ScaledForWindow(pixels, list_);
}

void ProgramGrid::fill(const CustomProgramTable &table, const std::vector<std::size_t> &entries) {
    entries_ = entries;
    names_.clear();
    programs_.clear();
    icons_.assign(entries.size(), kUnknownIcon);
    list_.deleteAllItems();
    for (std::size_t row = 0; row < entries.size(); ++row) {
        names_.push_back(table.DisplayNames[entries[row]]);
        programs_.push_back(TrimBlanks(table.ProgramPaths[entries[row]]));
        // The name in both columns: a screen reader reads the first.
        list_.insertItem(static_cast<int>(row), names_.back().data());
        list_.setItemText(static_cast<int>(row), 1, names_.back().data());
    }
}

void ProgramGrid::place(const RECT &area) {
    MoveWindow(list_, area.left, area.top, area.right - area.left, area.bottom - area.top, TRUE);
    RECT client{};
    GetClientRect(list_, &client);
    list_.setColumnWidth(0, scaled(kIconColumn));
    list_.setColumnWidth(1, std::max(0, static_cast<int>(client.right) - scaled(kIconColumn)));
}

int ProgramGrid::currentRow() const {
    return list_.currentRow();
}

void ProgramGrid::setCurrentRow(int row) {
    if (row < 0 || row >= rowCount())
        return;
    list_.setItemState(-1, 0, LVIS_SELECTED | LVIS_FOCUSED);
    list_.setItemState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    list_.ensureVisible(row);
}

void ProgramGrid::ensureCurrentRow() {
    if (currentRow() < 0)
        setCurrentRow(0);
}

int ProgramGrid::iconOf(int row) {
    int &icon = icons_[static_cast<std::size_t>(row)];
    if (icon == kUnknownIcon) {
        icon = -1;
        if (!TrimBlanks(names_[static_cast<std::size_t>(row)]).empty())
            if (HIMAGELIST images = SystemImageList(programs_[static_cast<std::size_t>(row)], icon))
                images_ = images;
    }
    return icon;
}

LRESULT ProgramGrid::customDraw(NMLVCUSTOMDRAW &draw) {
    switch (draw.nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
        return CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT:
        drawRow(draw.nmcd.hdc, static_cast<int>(draw.nmcd.dwItemSpec), draw.nmcd.uItemState);
        return CDRF_SKIPDEFAULT;
    }
    return CDRF_DODEFAULT;
}

void ProgramGrid::drawRow(HDC dc, int row, UINT state) {
    if (row < 0 || row >= rowCount())
        return;
    RECT whole{};
    list_.rowRect(row, whole);
    const RECT name = list_.cellRect(row, 1);
    const RECT icon{whole.left, whole.top, name.left, whole.bottom};
    const bool iconEntered = hot_.x == row && hot_.y == 0, nameEntered = hot_.x == row && hot_.y == 1;

    FillColour(dc, icon, iconEntered ? kEnteredBack : GetSysColor(COLOR_WINDOW));
    if (const int index = iconOf(row); index >= 0 && images_) {
        int width = 0, height = 0;
        ImageList_GetIconSize(images_, &width, &height);
        ImageList_Draw(images_, index, dc, (icon.left + icon.right - width) / 2, (icon.top + icon.bottom - height) / 2,
                       ILD_TRANSPARENT);
    }

    // The current row is marked as the menus mark the item a click would run.
    const MenuColours colours = skin_->menuColours();
    COLORREF text = pointer_->seen ? kNameText : GetSysColor(COLOR_WINDOWTEXT);
    if (nameEntered) {
        FillColour(dc, name, kEnteredBack);
        text = kEnteredText;
    } else if (state & CDIS_SELECTED) {
        PaintHighlight(dc, name, colours);
        text = colours.highlightText;
    } else {
        FillColour(dc, name, pointer_->seen ? kNameBack : GetSysColor(COLOR_WINDOW));
    }
    if ((state & CDIS_SELECTED) && nameEntered)
        FrameColour(dc, name, colours.frame);
    RECT label = name;
    label.left += scaled(6);
    label.right -= scaled(4);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, text);
    const std::wstring &caption = names_[static_cast<std::size_t>(row)];
    DrawTextW(dc, caption.c_str(), static_cast<int>(caption.size()), &label,
              DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
    if ((state & CDIS_FOCUS) && GetFocus() == list_) {
        RECT focus = name;
        InflateRect(&focus, -scaled(2), -scaled(2));
        DrawFocusRect(dc, &focus);
    }
}

void ProgramGrid::pointerAt(POINT point) {
    LVHITTESTINFO hit{};
    const POINT cell = list_.hitTest(point, hit) >= 0 ? POINT{hit.iItem, hit.iSubItem} : POINT{-1, -1};
    if (cell.x == hot_.x && cell.y == hot_.y)
        return;
    hot_ = cell;
    if (cell.x >= 0 && !pointer_->seen) {
        // From now on every name cell of both grids takes the pointer's colours.
        pointer_->seen = true;
        RedrawWindow(GetParent(list_), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    }
    InvalidateRect(list_, nullptr, FALSE);
}

LRESULT CALLBACK ProgramGrid::Subclass(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                       DWORD_PTR data) {
    auto *self = reinterpret_cast<ProgramGrid *>(data);
    switch (message) {
    case WM_MOUSEMOVE: {
        TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, window, 0};
        TrackMouseEvent(&track);
        self->pointerAt({static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))});
        break;
    }
    case WM_MOUSELEAVE:
        self->pointerAt({-1, -1});
        break;
    case WM_SETCURSOR:
        if (LOWORD(lParam) == HTCLIENT && self->hot_.x >= 0 && self->pointer_->hand) {
            SetCursor(self->pointer_->hand);
            return TRUE;
        }
        break;
    case WM_NCDESTROY:
        RemoveWindowSubclass(window, &ProgramGrid::Subclass, 1);
        break;
    }
    return DefSubclassProc(window, message, wParam, lParam);
}

} // namespace orvane::ui
