// The strip of 26 icons under the menu bar. A click, or Enter or Space on the
// icon the arrow keys reached, runs the icon's command; hovering shows its
// name in a tooltip.
#pragma once

#include <windows.h>

#include <array>
#include <functional>

#include "handles.h"
#include "layout.h"
#include "window_base.h"

namespace orvane::ui {

class Skin;

inline constexpr wchar_t kIconStripClass[] = L"Orvane.IconStrip";

class IconStrip : public WindowBase {
public:
    // The strip paints with the bar's skin: its tiles behind, its highlight on the icon a click would run.
    IconStrip(const Skin &skin, std::function<void(int)> run) : skin_(skin), run_(std::move(run)) {
    }

    // A hidden child of the bar.
    bool create(HWND parent);
    // The strip's place in the bar's client area, and its icons' left edges
    // and size, in pixels; the icons are drawn at that size.
    void place(const RECT &strip, const std::array<int, kIconCount> &iconLeft, int iconSize);

private:
    LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void paint(HDC dc);
    RECT iconRect(int index) const;
    int iconAt(POINT point) const;
    void setHot(int index);
    void focus(int index);
    void showTooltips(bool shown);
    void loadIcons();

    const Skin &skin_;
    std::function<void(int)> run_;
    std::array<int, kIconCount> iconLeft_{};
    // The 26 pictures side by side at the icons' size, alpha premultiplied.
    UniqueBitmap sheet_;
    UniqueDC sheetDc_;
    int iconSize_ = 0, loadedSize_ = -1;
    int hot_ = -1;     // under the mouse
    int focused_ = 0;  // reached with the keyboard
    int pressed_ = -1; // the mouse went down on it
    bool keyboardCues_ = false;
    UniqueWindow tooltip_;
};

} // namespace orvane::ui
