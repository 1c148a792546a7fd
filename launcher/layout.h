// The bar's geometry, in twips. The bar is measured as its window stands on
// the screen: the caption and the menu bar take the top 520 twips, the strip
// of icons lies under them with 640 twips below, and every size follows from
// the icons' size.
#pragma once

#include <array>
#include <cstdint>

#include "lifecycle.h"

namespace orvane {

inline constexpr int kIconCount = 26;
inline constexpr std::int32_t kStripTop = 520;
inline constexpr std::int32_t kBelowStrip = 640;
inline constexpr std::int32_t kStripMargin = 120;   // left and right of the strip
inline constexpr std::int32_t kFirstIconLeft = 200; // from the window's left edge
inline constexpr std::int32_t kMenuOnlyWidth = 16060;
inline constexpr std::int32_t kMenuOnlyHeight = 1020;

// "&Increase image size" (step 1) and "&Decrease image size" (step 2) move
// through the multiples of 40 from 200 to 720; any other step, and any size
// off that list, keeps the size.
std::int16_t SteppedIconSize(std::int16_t iconSize, int step);

// The window's height with the strip shown.
constexpr std::int32_t ExpandedHeight(std::int16_t iconSize) {
    return iconSize + kStripTop + kBelowStrip;
}

// The strip and its icons in a window of the given size.
struct StripLayout {
    TwipsRect strip;
    std::array<double, kIconCount> iconLeft; // from the window's left edge, not rounded
};
StripLayout LayStrip(std::int32_t windowWidth, std::int32_t windowHeight);

// What "&Icons", "Top/&bottom" and "Use screen &width" make of the window.
struct BarState {
    TwipsRect window;
    bool stripShown = false; // ExpandedLayout is 1
    bool atTop = false;

    bool operator==(const BarState &) const = default;
};
BarState ToggleIcons(BarState bar, std::int16_t iconSize, std::int32_t expandedWidth);
BarState ToggleTopBottom(BarState bar, const TwipsRect &workArea);
BarState UseScreenWidth(BarState bar, const TwipsRect &workArea);

// The size the bar opens at: the strip's when it is shown, otherwise the menu bar's alone.
TwipsRect OpeningSize(bool stripShown, std::int16_t iconSize, std::int32_t expandedWidth);

} // namespace orvane
