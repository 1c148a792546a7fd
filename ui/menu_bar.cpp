#include "menu_bar.h"

#include <map>
#include <vector>

#include "dpi.h"
#include "skin.h"

namespace orvane::ui {

namespace {

std::wstring ItemText(const MenuRow &row) {
    const std::wstring shortcut = ShortcutText(row.shortcut);
    return std::wstring(row.caption) + (shortcut.empty() ? L"" : L"\t" + shortcut);
}

BYTE AcceleratorFlags(Shortcut shortcut) {
    return static_cast<BYTE>(FVIRTKEY | (shortcut.modifiers & kShift ? FSHIFT : 0) |
                             (shortcut.modifiers & kCtrl ? FCONTROL : 0) | (shortcut.modifiers & kAlt ? FALT : 0));
}

// The system's menu font at the window's DPI, or the chosen one.
HFONT MenuFont(UINT dpi, const std::wstring &name, int points, bool bold) {
    LOGFONTW font = NonClientMetricsForDpi(dpi).lfMenuFont;
    if (!name.empty() && name.size() < LF_FACESIZE) {
        wcscpy_s(font.lfFaceName, name.c_str());
        if (points > 0)
            font.lfHeight = -MulDiv(points, static_cast<int>(dpi), 72);
        font.lfWeight = bold ? FW_BOLD : FW_NORMAL;
    }
    return CreateFontIndirectW(&font);
}

// The item as the system keeps it: its caption, its row in data, drawn by us.
MENUITEMINFOW ItemInfo(const MenuRow &row, std::size_t index, const std::wstring &text) {
    MENUITEMINFOW item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_FTYPE | MIIM_ID | MIIM_DATA | (row.isSeparator() ? 0 : MIIM_STRING);
    item.fType = MFT_OWNERDRAW | (row.isSeparator() ? MFT_SEPARATOR : 0);
    item.wID = kFirstMenuCommand + static_cast<UINT>(index);
    item.dwItemData = index;
    item.dwTypeData = const_cast<wchar_t *>(text.c_str());
    return item;
}

// An item's caption, without the shortcut text after its tab.
std::wstring CaptionOf(HMENU menu, UINT command) {
    wchar_t text[256] = {};
    const int length = GetMenuStringW(menu, command, text, 256, MF_BYCOMMAND);
    const std::wstring caption(text, length > 0 ? static_cast<std::size_t>(length) : 0);
    return caption.substr(0, caption.find(L'\t'));
}

} // namespace

void MenuBar::build(HWND window) {
    HMENU bar = CreateMenu();
    std::map<std::wstring_view, HMENU> menus;
    std::vector<ACCEL> shortcuts;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const MenuRow &row = rows_[i];
        const UINT command = kFirstMenuCommand + static_cast<UINT>(i);
        const std::wstring text = ItemText(row);
        MENUITEMINFOW item = ItemInfo(row, i, text);
        if (row.parentKey.empty() && HasItems(rows_, row.key)) {
            item.fMask |= MIIM_SUBMENU;
            item.hSubMenu = menus[row.key] = CreatePopupMenu();
        }
        HMENU menu = row.parentKey.empty() ? bar : menus[row.parentKey];
        InsertMenuItemW(menu, GetMenuItemCount(menu), TRUE, &item);
        if (row.shortcut.key)
            shortcuts.push_back({AcceleratorFlags(row.shortcut), row.shortcut.key, static_cast<WORD>(command)});
    }
    accelerators_.reset(
        shortcuts.empty() ? nullptr : CreateAcceleratorTableW(shortcuts.data(), static_cast<int>(shortcuts.size())));
    forgetSizedResources(window);
    HMENU previous = GetMenu(window);
    SetMenu(window, bar); // the window owns it from now on
    if (previous)
        DestroyMenu(previous);
    setColours(window, colours_);
}

void MenuBar::buildGrowing(HWND window) {
    RECT before{}, after{}, outer{};
    GetClientRect(window, &before);
    build(window);
    GetClientRect(window, &after);
    GetWindowRect(window, &outer);
    SetWindowPos(window, nullptr, 0, 0, outer.right - outer.left,
                 outer.bottom - outer.top + (before.bottom - after.bottom), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

std::wstring MenuBar::popup(HWND owner, POINT at) {
    forgetSizedResources(owner);
    UniqueMenu menu(CreatePopupMenu());
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const std::wstring text = ItemText(rows_[i]);
        const MENUITEMINFOW item = ItemInfo(rows_[i], i, text);
        InsertMenuItemW(menu.get(), static_cast<UINT>(i), TRUE, &item);
    }
    MENUINFO info{};
    info.cbSize = sizeof info;
    info.fMask = MIM_BACKGROUND;
    info.hbrBack = menuBrush_ ? menuBrush_.get() : nullptr;
    SetMenuInfo(menu.get(), &info);
    popup_ = true;
    const UINT picked =
        static_cast<UINT>(TrackPopupMenuEx(menu.get(), TPM_RETURNCMD | TPM_RIGHTBUTTON, at.x, at.y, owner, nullptr));
    popup_ = false;
    return picked ? CaptionOf(menu.get(), picked) : std::wstring();
}

void MenuBar::setColours(HWND window, const MenuColours &colours) {
    colours_ = colours;
    barBrush_.reset(CreateSolidBrush(colours.barBack));
    menuBrush_.reset(CreateSolidBrush(colours.menuBack));
    HMENU bar = GetMenu(window);
    if (!bar)
        return;
    MENUINFO info{};
    info.cbSize = sizeof info;
    info.fMask = MIM_BACKGROUND | MIM_APPLYTOSUBMENUS;
    info.hbrBack = menuBrush_.get();
    SetMenuInfo(bar, &info);
    info.fMask = MIM_BACKGROUND;
    info.hbrBack = barBrush_.get();
    SetMenuInfo(bar, &info);
    if (IsWindowVisible(window))
        DrawMenuBar(window); // a hidden bar is drawn when shown
}

void MenuBar::setFont(const std::wstring &name, int points, bool bold) {
    fontName_ = name;
    fontPoints_ = points;
    fontBold_ = bold;
    font_.reset();
}

HFONT MenuBar::font() const {
    if (!font_)
        font_.reset(MenuFont(dpi_, fontName_, fontPoints_, fontBold_)); // a start that draws no item makes no font
    return font_.get();
}

void MenuBar::dpiChanged(HWND window) {
    // Owner-drawn items keep the size they were measured at; a fresh bar is measured anew.
    if (GetMenu(window))
        build(window);
}

void MenuBar::forgetSizedResources(HWND window) {
    dpi_ = WindowDpi(window);
    font_.reset(); // made at the new DPI when an item is first measured
    for (UniqueIcon &icon : icons_)
        icon.reset(); // loaded at the new size when first drawn
}

// Loaded when first drawn: a start-up pays for no icon. A key the resources
// lack leaves its item without one.
HICON MenuBar::icon(int key) const {
    if (key <= 0 || key >= static_cast<int>(icons_.size()))
        return nullptr;
    UniqueIcon &icon = icons_[static_cast<std::size_t>(key)];
    if (!icon)
        icon = LoadMenuIcon(key, scaled(16));
    return icon.get();
}

int MenuIconNumber(std::wstring_view key) {
    return key.size() > 1 ? _wtoi(std::wstring(key.substr(1)).c_str()) : 0;
}

UniqueIcon LoadMenuIcon(int number, int pixels) {
    return UniqueIcon(
        static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(kFirstMenuIcon + number), IMAGE_ICON,
                                      pixels, pixels, LR_DEFAULTCOLOR)));
}

std::wstring MenuBar::caption(HWND window, UINT command) const {
    return CaptionOf(GetMenu(window), command);
}

bool MenuBar::dialogMessage(HWND dialog, const Skin &skin, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_MEASUREITEM:
        return measure(*reinterpret_cast<MEASUREITEMSTRUCT *>(lParam));
    case WM_DRAWITEM:
        return draw(*reinterpret_cast<const DRAWITEMSTRUCT *>(lParam));
    case WM_MENUCHAR:
        SetWindowLongPtrW(dialog, DWLP_MSGRESULT, menuChar(LOWORD(wParam), reinterpret_cast<HMENU>(lParam)));
        return true;
    case kSkinChanged:
        setColours(dialog, skin.menuColours());
        return true;
    }
    return false;
}

LRESULT MenuBar::menuChar(wchar_t letter, HMENU menu) const {
    const auto upper = [](wchar_t c) {
        return reinterpret_cast<ULONG_PTR>(CharUpperW(reinterpret_cast<wchar_t *>(c)));
    };
    for (int position = 0, count = GetMenuItemCount(menu); position < count; ++position) {
        wchar_t text[256] = {};
        GetMenuStringW(menu, static_cast<UINT>(position), text, 256, MF_BYPOSITION);
        if (const wchar_t access = AccessLetter(text); access && upper(access) == upper(letter))
            return MAKELRESULT(position, MNC_EXECUTE);
    }
    return MAKELRESULT(0, MNC_IGNORE);
}

bool MenuBar::measure(MEASUREITEMSTRUCT &item) const {
    if (item.CtlType != ODT_MENU || item.itemData >= rows_.size())
        return false;
    const MenuRow &row = rows_[item.itemData];
    const bool onBar = this->onBar(row);
    if (row.isSeparator()) {
        item.itemWidth = 0;
        item.itemHeight = scaled(7);
        return true;
    }
    HDC dc = GetDC(nullptr);
    HGDIOBJ previous = SelectObject(dc, font());
    RECT caption{}, shortcut{};
    const std::wstring captionText(row.caption), shortcutText = ShortcutText(row.shortcut);
    DrawTextW(dc, captionText.c_str(), -1, &caption, DT_SINGLELINE | DT_CALCRECT);
    DrawTextW(dc, shortcutText.c_str(), -1, &shortcut, DT_SINGLELINE | DT_CALCRECT | DT_NOPREFIX);
    SelectObject(dc, previous);
    ReleaseDC(nullptr, dc);
    if (onBar) {
        // The system lays out the bar's items side by side; each is its caption with a margin.
        item.itemWidth = static_cast<UINT>(caption.right + scaled(4));
        item.itemHeight = static_cast<UINT>(caption.bottom + scaled(4));
        return true;
    }
    // Icon column, caption, a gap, the shortcut, a margin.
    item.itemWidth = static_cast<UINT>(scaled(28) + caption.right + scaled(24) + shortcut.right + scaled(8));
    item.itemHeight = static_cast<UINT>(std::max<int>(scaled(22), caption.bottom + scaled(6)));
    return true;
}

bool MenuBar::draw(const DRAWITEMSTRUCT &item) const {
    if (item.CtlType != ODT_MENU || item.itemData >= rows_.size())
        return false;
    const MenuRow &row = rows_[item.itemData];
    HDC dc = item.hDC;
    RECT r = item.rcItem;
    if (onBar(row)) {
        drawBarItem(item, std::wstring(row.caption));
        return true;
    }
    const bool selected = (item.itemState & ODS_SELECTED) && !row.isSeparator();
    selected ? PaintHighlight(dc, r, colours_) : FillColour(dc, r, colours_.menuBack);
    if (row.isSeparator()) {
        FillColour(dc, {r.left + scaled(28), (r.top + r.bottom) / 2, r.right - scaled(4), (r.top + r.bottom) / 2 + 1},
                   colours_.separator);
        return true;
    }
    const int iconSize = scaled(16);
    if (HICON icon = this->icon(MenuIconNumber(row.iconKey)))
        DrawIconEx(dc, r.left + scaled(4), (r.top + r.bottom - iconSize) / 2, icon, iconSize, iconSize, 0, nullptr,
                   DI_NORMAL);
    HGDIOBJ previous = SelectObject(dc, font());
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, (item.itemState & ODS_DISABLED) ? GetSysColor(COLOR_GRAYTEXT)
                     : selected                      ? colours_.highlightText
                                                     : colours_.text);
    RECT text{r.left + scaled(28), r.top, r.right - scaled(8), r.bottom};
    // The access letter is underlined once the keyboard is in use.
    const UINT prefix = (item.itemState & ODS_NOACCEL) ? DT_HIDEPREFIX : 0;
    DrawTextW(dc, std::wstring(row.caption).c_str(), -1, &text, DT_SINGLELINE | DT_VCENTER | DT_LEFT | prefix);
    DrawTextW(dc, ShortcutText(row.shortcut).c_str(), -1, &text, DT_SINGLELINE | DT_VCENTER | DT_RIGHT | DT_NOPREFIX);
    SelectObject(dc, previous);
    return true;
}

void MenuBar::drawBarItem(const DRAWITEMSTRUCT &item, const std::wstring &caption) const {
    HDC dc = item.hDC;
    RECT r = item.rcItem;
    const bool lit = item.itemState & (ODS_SELECTED | ODS_HOTLIGHT);
    lit ? PaintHighlight(dc, r, colours_) : FillColour(dc, r, colours_.barBack);
    HGDIOBJ previous = SelectObject(dc, font());
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, lit ? colours_.highlightText : colours_.text);
    const UINT prefix = (item.itemState & ODS_NOACCEL) ? DT_HIDEPREFIX : 0;
    DrawTextW(dc, caption.c_str(), -1, &r, DT_SINGLELINE | DT_VCENTER | DT_CENTER | prefix);
    SelectObject(dc, previous);
}

} // namespace orvane::ui
