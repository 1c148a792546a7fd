// A window's menu bar and keyboard shortcuts, or a popup menu, built from menu
// rows (the main window's by default). Every item is owner-drawn, in the
// skin's colours and the chosen font, but keeps its caption string, so the
// dispatch, screen readers and tests read the real caption.
#pragma once

#include <windows.h>

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "appearance.h"
#include "handles.h"
#include "menu.h"

namespace orvane::ui {

class Skin;

// Command identifiers of the menu items: this plus the row's index.
inline constexpr UINT kFirstMenuCommand = 1000;
// Icon resources: this plus the number of the icon key ("k47" is 1047).
inline constexpr int kFirstMenuIcon = 1000;

// The number of a menu icon key ("k47" is 47); 0 for none.
int MenuIconNumber(std::wstring_view key);
// That menu icon at this size in pixels; null when the resources lack it.
UniqueIcon LoadMenuIcon(int number, int pixels);

class MenuBar {
public:
    explicit MenuBar(std::span<const MenuRow> rows = MainMenuRows()) : rows_(rows) {
    }

    // Builds the bar, gives it to the window and makes the shortcut table.
    void build(HWND window);
    // The same for a dialog laid out without a bar: the window grows by the bar's height.
    void buildGrowing(HWND window);
    // Fonts, icons and item sizes follow the window's new DPI.
    void dpiChanged(HWND window);
    // The bar and its menus take these colours at once.
    void setColours(HWND window, const MenuColours &colours);
    // The font of the items, in points; an empty name is the system's menu font.
    // Takes effect when the bar is next built.
    void setFont(const std::wstring &name, int points, bool bold);

    // Shows the rows as a popup menu at this point of the screen; the picked
    // item's caption, or nothing. The owner passes on the drawing messages.
    std::wstring popup(HWND owner, POINT at);

    HACCEL accelerators() const {
        return accelerators_.get();
    }
    // The clicked item's caption, without the shortcut text after its tab.
    std::wstring caption(HWND window, UINT command) const;

    // The item of an open menu whose access letter was typed: owner-drawn
    // items are not matched by the system itself. A WM_MENUCHAR result.
    LRESULT menuChar(wchar_t letter, HMENU menu) const;

    bool measure(MEASUREITEMSTRUCT &item) const;
    bool draw(const DRAWITEMSTRUCT &item) const;
    // A dialog's messages for its menu: drawing, access letters, the colours
    // of the dialog's skin when it changed. True when the message was the menu's.
    bool dialogMessage(HWND dialog, const Skin &skin, UINT message, WPARAM wParam, LPARAM lParam);

private:
    void forgetSizedResources(HWND window);
    HFONT font() const;
    HICON icon(int key) const;
    void drawBarItem(const DRAWITEMSTRUCT &item, const std::wstring &caption) const;
    int scaled(int pixelsAt96) const {
        return MulDiv(pixelsAt96, static_cast<int>(dpi_), 96);
    }

    bool onBar(const MenuRow &row) const {
        return !popup_ && row.parentKey.empty();
    }

    std::span<const MenuRow> rows_;
    bool popup_ = false; // while a popup is shown, every row is an item of it
    UniqueAccelerators accelerators_;
    mutable UniqueFont font_;
    std::wstring fontName_;
    int fontPoints_ = 0;
    bool fontBold_ = false;
    MenuColours colours_ = MenuColoursFor(std::nullopt);
    UniqueBrush barBrush_, menuBrush_;
    mutable std::array<UniqueIcon, 74> icons_; // by the icon key's number
    UINT dpi_ = 96;
};

} // namespace orvane::ui
