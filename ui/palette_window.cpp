// The palette window: its field and owner-data list, the targets read at each
// summon, the keys, the icons fetched for the rows on screen, and the runs.
#include "palette_window.h"

#include <shellapi.h>

#include <algorithm>
#include <array>
#include <cstdlib>

#include "app.h"
#include "dpi.h"
#include "helpers.h"
#include "menu.h"
#include "menu_bar.h"
#include "modal_dialog.h"
#include "program_grids.h"
#include "skin.h"

namespace orvane::ui {

namespace {

constexpr wchar_t kPaletteClass[] = L"Orvane.Palette";
constexpr int kFieldId = 1;
constexpr int kListId = 2;
// Sizes in pixels at 96 DPI.
constexpr int kWidth = 520;
constexpr int kMargin = 8;
constexpr int kListHeight = 264;
constexpr int kIconPixels = 16;
// The list's columns: the name takes the room the others leave.
struct Column {
    const wchar_t *title;
    int width;
};
constexpr std::array<Column, 3> kColumns{{{L"Name", 0}, {L"Kind", 84}, {L"Shortcut", 110}}};
// As the Kind column names each target kind, in the order of TargetKind.
constexpr std::array<std::wstring_view, 5> kKindNames{L"Command", L"Program", L"Website", L"Group", L"Shortcut"};
// A command only the icon strip has: its name can be a menu item's too (the webmail icon's is).
constexpr std::wstring_view kStripKindName = L"Icon";
// Websites and groups show the custom browser's icon.
constexpr std::wstring_view kGlobeKey = L"k40";

} // namespace

PaletteHotKey RegisterPaletteHotKey(HWND bar) {
    const bool held = RegisterHotKey(bar, kPaletteHotKeyId, MOD_CONTROL | MOD_ALT | MOD_NOREPEAT, VK_SPACE);
    return PaletteHotKey(held ? bar : nullptr);
}

PaletteWindow::~PaletteWindow() {
    if (hwnd())
        DestroyWindow(hwnd()); // while the key handler it holds is still here
}

void PaletteWindow::summon() {
    const HWND bar = bar_.hwnd();
    if (!IsWindowEnabled(bar)) {
        // One of the program's modal windows is open: it comes forward instead.
        SetForegroundWindow(GetLastActivePopup(bar));
        return;
    }
    if (!hwnd() && !createWindow())
        return;
    if (!IsWindowVisible(hwnd()))
        previous_ = GetForegroundWindow();
    collectTargets();
    if (GetWindowTextLengthW(field_) > 0)
        SetWindowTextW(field_, L""); // ranks anew
    else
        rank();
    layout(false);
    ShowWindow(hwnd(), SW_SHOW);
    SetForegroundWindow(hwnd());
    SetFocus(field_);
}

bool PaletteWindow::createWindow() {
    WNDCLASSEXW paletteClass{};
    paletteClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    paletteClass.lpszClassName = kPaletteClass;
    registerClass(paletteClass);
    if (!create(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, kPaletteClass, L"Orvane palette",
                WS_POPUP | WS_BORDER | WS_CLIPCHILDREN, nullptr))
        return false;
    const HINSTANCE instance = GetModuleHandleW(nullptr);
    field_ = CreateWindowExW(WS_EX_CLIENTEDGE, L"Edit", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL, 0, 0,
                             0, 0, hwnd(), reinterpret_cast<HMENU>(kFieldId), instance, nullptr);
    SendMessageW(field_, EM_SETCUEBANNER, TRUE, reinterpret_cast<LPARAM>(L"Type a command, program or website"));
    fieldKeys_.attach(field_);
    list_ = ListView(CreateWindowExW(WS_EX_CLIENTEDGE, WC_LISTVIEWW, L"Targets",
                                     WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL |
                                         LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS | LVS_NOCOLUMNHEADER,
                                     0, 0, 0, 0, hwnd(), reinterpret_cast<HMENU>(kListId), instance, nullptr));
    // The columns keep their names for screen readers; a header on show would cost a quarter of the palette's paint.
    // No double buffer: its bitmap costs more memory than the whole list; a re-rank repaints without erasing.
    list_.setExtendedStyle(LVS_EX_FULLROWSELECT);
    for (std::size_t column = 0; column < kColumns.size(); ++column)
        list_.insertColumn(static_cast<int>(column), kColumns[column].title, 0);
    skin_.join(hwnd());
    fitDpi();
    return true;
}

void PaletteWindow::collectTargets() {
    customPrograms_ = QuietCustomList(app_);
    webList_ = QuietWebList(app_);
    if (startMenuFolders_.empty())
        startMenuFolders_ = StartMenuFolders(app_.shell);
    shortcuts_ = StartMenuShortcuts(app_.files, startMenuFolders_);
    targets_ = BuildTargets({MainMenuRows(), StripIcons(), &customPrograms_, &webList_, shortcuts_});
}

// The targets the field's text matches, best first, the first one selected.
void PaletteWindow::rank() {
    order_ = RankTargets(targets_, WindowText(field_), history_);
    list_.setItemCount(static_cast<int>(order_.size()));
    list_.selectOnly(order_.empty() ? -1 : 0);
    InvalidateRect(list_, nullptr, FALSE);
}

void PaletteWindow::fitDpi() {
    const UINT dpi = WindowDpi(hwnd());
    LOGFONTW face = NonClientMetricsForDpi(dpi).lfMessageFont;
    font_.reset(CreateFontIndirectW(&face));
    for (HWND control : {field_, static_cast<HWND>(list_)})
        SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font_.get()), TRUE);
    // The icons are fetched again at the new size as their rows show.
    const int icon = ScaledForWindow(kIconPixels, hwnd());
    UniqueImageList images(ImageList_Create(icon, icon, ILC_COLOR32 | ILC_MASK, 16, 16));
    list_.setImageList(images.get(), LVSIL_SMALL);
    images_ = std::move(images);
    menuImages_.clear();
    shellImages_.clear();
    layout(true);
}

// Centred on the primary monitor's work area, in its upper third. A summon moves
// nothing unless the work area changed, so the window is not laid out for nothing.
void PaletteWindow::layout(bool fresh) {
    const UINT dpi = WindowDpi(hwnd());
    LOGFONTW face{};
    GetObjectW(font_.get(), sizeof face, &face);
    const int margin = ScaledForWindow(kMargin, hwnd());
    const int fieldHeight = std::abs(face.lfHeight) + ScaledForWindow(12, hwnd());
    const int listHeight = ScaledForWindow(kListHeight, hwnd());
    RECT frame{0, 0, ScaledForWindow(kWidth, hwnd()), 3 * margin + fieldHeight + listHeight};
    AdjustWindowRectEx(&frame, WS_POPUP | WS_BORDER, FALSE, WS_EX_TOPMOST | WS_EX_TOOLWINDOW);
    const int width = frame.right - frame.left;
    const int height = frame.bottom - frame.top;
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    const int left = area.left + (area.right - area.left - width) / 2;
    const int top = std::max(area.top, area.top + (area.bottom - area.top) / 3 - height / 2);
    RECT now{};
    GetWindowRect(hwnd(), &now);
    if (!fresh && now.left == left && now.top == top && now.right - now.left == width && now.bottom - now.top == height)
        return;
    SetWindowPos(hwnd(), HWND_TOPMOST, left, top, width, height, SWP_NOACTIVATE);
    RECT client{};
    GetClientRect(hwnd(), &client);
    const int inner = client.right - 2 * margin;
    MoveWindow(field_, margin, margin, inner, fieldHeight, TRUE);
    MoveWindow(list_, margin, 2 * margin + fieldHeight, inner, listHeight, TRUE);
    int rest = inner - 2 * SystemMetricForDpi(SM_CXEDGE, dpi) - SystemMetricForDpi(SM_CXVSCROLL, dpi);
    for (const Column &column : kColumns)
        rest -= ScaledForWindow(column.width, hwnd());
    for (std::size_t column = 0; column < kColumns.size(); ++column) {
        const int width = kColumns[column].width;
        list_.setColumnWidth(static_cast<int>(column), width ? ScaledForWindow(width, hwnd()) : std::max(0, rest));
    }
}

// Hidden until the next summon; Esc gives the keyboard back to the window that had it.
void PaletteWindow::hide(bool backToPrevious) {
    if (!IsWindowVisible(hwnd()))
        return;
    ShowWindow(hwnd(), SW_HIDE);
    if (backToPrevious && IsWindow(previous_))
        SetForegroundWindow(previous_);
}

void PaletteWindow::move(int rows) {
    if (order_.empty())
        return;
    const int last = static_cast<int>(order_.size()) - 1;
    list_.selectOnly(std::clamp(list_.selectedRow() + rows, 0, last));
}

// The palette hides first, then the target runs through the routine of its own place in the program.
void PaletteWindow::run(int row) {
    if (row < 0 || row >= static_cast<int>(order_.size()))
        return;
    const Target target = targets_[order_[static_cast<std::size_t>(row)]];
    hide(false);
    history_.ran(target);
    switch (target.kind) {
    case TargetKind::Command:
        // Its own row: the strip's webmail icon shares its caption with the item that asks for the address.
        if (target.command)
            commands_.run(*target.command);
        break;
    case TargetKind::CustomProgram:
        LaunchEntry(app_, customPrograms_, target.index);
        break;
    case TargetKind::Website:
    case TargetKind::WebGroup:
        OpenWebTarget(app_, webList_, target);
        break;
    case TargetKind::Shortcut:
        app_.shell.shellVerb(ToRef(bar_.hwnd()), L"open", target.path, ParentFolder(target.path), SW_SHOWNORMAL);
        break;
    }
}

// The list's keys, used in the field, where the typing goes on.
bool PaletteWindow::fieldKey(WPARAM key) {
    const int page = std::max(1, list_.rowsPerPage() - 1);
    switch (key) {
    case VK_UP:
        move(-1);
        return true;
    case VK_DOWN:
        move(1);
        return true;
    case VK_PRIOR:
        move(-page);
        return true;
    case VK_NEXT:
        move(page);
        return true;
    case VK_RETURN:
        run(list_.selectedRow());
        return true;
    case VK_ESCAPE:
        hide(true);
        return true;
    case VK_TAB:
        SetFocus(list_);
        return true;
    }
    return false;
}

LRESULT PaletteWindow::onNotify(NMHDR &header) {
    switch (header.code) {
    case LVN_GETDISPINFOW:
        giveItem(reinterpret_cast<NMLVDISPINFOW &>(header).item);
        return 0;
    case LVN_KEYDOWN: {
        const WORD key = reinterpret_cast<NMLVKEYDOWN &>(header).wVKey;
        if (key == VK_TAB)
            SetFocus(field_);
        if (key == VK_ESCAPE)
            hide(true);
        return 0;
    }
    case NM_RETURN:
        run(list_.selectedRow());
        return 0;
    case NM_DBLCLK:
        run(reinterpret_cast<NMITEMACTIVATE &>(header).iItem);
        return 0;
    case LVN_ODFINDITEMW:
        return -1; // typing goes to the field
    case NM_CUSTOMDRAW:
        return customDraw(reinterpret_cast<NMLVCUSTOMDRAW &>(header));
    }
    return 0;
}

void PaletteWindow::giveItem(LVITEMW &item) {
    if (item.iItem < 0 || item.iItem >= static_cast<int>(order_.size()))
        return;
    const Target &target = targets_[order_[static_cast<std::size_t>(item.iItem)]];
    if ((item.mask & LVIF_TEXT) && item.cchTextMax > 0) {
        const std::wstring_view kind =
            target.stripOnly ? kStripKindName : kKindNames[static_cast<std::size_t>(target.kind)];
        const std::wstring_view texts[] = {target.name, kind, target.shortcut};
        const std::wstring text(texts[std::clamp(item.iSubItem, 0, 2)]);
        lstrcpynW(item.pszText, text.c_str(), item.cchTextMax);
    }
    if (item.mask & LVIF_IMAGE)
        item.iImage = imageOf(target);
}

// Asked only for the rows on screen: each icon is fetched once and kept, by its key or its file.
int PaletteWindow::imageOf(const Target &target) {
    if (target.kind == TargetKind::CustomProgram || target.kind == TargetKind::Shortcut) {
        const auto [known, added] = shellImages_.try_emplace(target.path, I_IMAGENONE);
        if (added) {
            EnterComApartment(); // the shell asks the file's own icon handler
            SHFILEINFOW info{};
            if (SHGetFileInfoW(target.path.c_str(), 0, &info, sizeof info, SHGFI_ICON | SHGFI_SMALLICON))
                known->second = addIcon(UniqueIcon(info.hIcon).get());
        }
        return known->second;
    }
    const int number = MenuIconNumber(target.kind == TargetKind::Command ? target.iconKey : kGlobeKey);
    const auto [known, added] = menuImages_.try_emplace(number, I_IMAGENONE);
    if (added && number > 0)
        known->second = addIcon(LoadMenuIcon(number, ScaledForWindow(kIconPixels, hwnd())).get());
    return known->second;
}

int PaletteWindow::addIcon(HICON icon) {
    const int index = icon ? ImageList_AddIcon(images_.get(), icon) : -1;
    return index >= 0 ? index : I_IMAGENONE;
}

// The selected row in the skin's highlight, as the menus mark the item Enter would run.
LRESULT PaletteWindow::customDraw(NMLVCUSTOMDRAW &draw) const {
    if (draw.nmcd.dwDrawStage == CDDS_PREPAINT)
        return CDRF_NOTIFYITEMDRAW;
    if (draw.nmcd.dwDrawStage != CDDS_ITEMPREPAINT || static_cast<int>(draw.nmcd.dwItemSpec) != list_.selectedRow())
        return CDRF_DODEFAULT;
    const MenuColours colours = skin_.menuColours();
    draw.nmcd.uItemState &= ~CDIS_SELECTED;
    draw.clrText = colours.highlightText;
    draw.clrTextBk = colours.highlight;
    return CDRF_NEWFONT;
}

LRESULT PaletteWindow::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
        if (LOWORD(wParam) == kFieldId && HIWORD(wParam) == EN_CHANGE)
            rank();
        return 0;
    case WM_NOTIFY:
        if (reinterpret_cast<NMHDR *>(lParam)->idFrom == kListId)
            return onNotify(*reinterpret_cast<NMHDR *>(lParam));
        break;
    case WM_ACTIVATE:
        if (LOWORD(wParam) == WA_INACTIVE)
            hide(false);
        else
            SetFocus(field_);
        return 0;
    case WM_CLOSE:
        hide(true);
        return 0;
    case WM_ERASEBKGND:
        skin_.paintBackground(hwnd(), reinterpret_cast<HDC>(wParam));
        return TRUE;
    case WM_DPICHANGED:
        fitDpi();
        return 0;
    case WM_DESTROY:
        skin_.leave(hwnd());
        break;
    }
    return WindowBase::handleMessage(message, wParam, lParam);
}

} // namespace orvane::ui
