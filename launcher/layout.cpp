#include "layout.h"

namespace orvane {

namespace {

constexpr std::int16_t kSmallest = 200, kLargest = 720, kStep = 40;

bool OnTheList(std::int16_t size) {
    return size >= kSmallest && size <= kLargest && size % kStep == 0;
}

} // namespace

std::int16_t SteppedIconSize(std::int16_t size, int step) {
    // The ends are uneven on purpose: anything below 201 grows to 240, anything above 680 shrinks to 680.
    if (step == 1) {
        if (size < 201)
            return 240;
        return OnTheList(size) && size < kLargest ? static_cast<std::int16_t>(size + kStep) : size;
    }
    if (step == 2) {
        if (size > 680)
            return 680;
        return OnTheList(size) && size > kSmallest ? static_cast<std::int16_t>(size - kStep) : size;
    }
    return size;
}

StripLayout LayStrip(std::int32_t windowWidth, std::int32_t windowHeight) {
    StripLayout layout{
        {kStripMargin, kStripTop, windowWidth - 2 * kStripMargin, windowHeight - kStripTop - kBelowStrip}, {}};
    const double pitch = (windowWidth - kFirstIconLeft) / double(kIconCount);
    for (int i = 0; i < kIconCount; ++i)
        layout.iconLeft[static_cast<std::size_t>(i)] = kFirstIconLeft + i * pitch;
    return layout;
}

BarState ToggleIcons(BarState bar, std::int16_t iconSize, std::int32_t expandedWidth) {
    bar.stripShown = !bar.stripShown;
    bar.window.top = 0;
    bar.window.height = bar.stripShown ? ExpandedHeight(iconSize) : kMenuOnlyHeight;
    bar.window.width = bar.stripShown ? expandedWidth : kMenuOnlyWidth;
    return bar;
}

BarState ToggleTopBottom(BarState bar, const TwipsRect &workArea) {
    bar.window.top = bar.atTop ? workArea.height - bar.window.height : workArea.top;
    bar.atTop = !bar.atTop;
    return bar;
}

BarState UseScreenWidth(BarState bar, const TwipsRect &workArea) {
    bar.window.left = workArea.left;
    bar.window.width = workArea.width;
    return bar;
}

TwipsRect OpeningSize(bool stripShown, std::int16_t iconSize, std::int32_t expandedWidth) {
    return stripShown ? TwipsRect{0, 0, expandedWidth, ExpandedHeight(iconSize)}
                      : TwipsRect{0, 0, kMenuOnlyWidth, kMenuOnlyHeight};
}

} // namespace orvane
