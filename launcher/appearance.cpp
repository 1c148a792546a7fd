#include "appearance.h"

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

int Red(Colour c) {
    return static_cast<int>(c & 0xFF);
}
int Green(Colour c) {
    return static_cast<int>((c >> 8) & 0xFF);
}
int Blue(Colour c) {
    return static_cast<int>((c >> 16) & 0xFF);
}
Colour Rgb(int red, int green, int blue) {
    return static_cast<Colour>(red) | static_cast<Colour>(green) << 8 | static_cast<Colour>(blue) << 16;
}

// Relative luminance of the sRGB colour, 0 for black to 1 for white.
double Luminance(Colour c) {
    const auto linear = [](int channel) {
        const double v = channel / 255.0;
        return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(Red(c)) + 0.7152 * linear(Green(c)) + 0.0722 * linear(Blue(c));
}

// Halfway between two colours.
Colour Mix(Colour a, Colour b) {
    return Rgb((Red(a) + Red(b)) / 2, (Green(a) + Green(b)) / 2, (Blue(a) + Blue(b)) / 2);
}

} // namespace

SkinColours SkinColoursOf(std::span<const std::uint32_t> pixels) {
    if (pixels.empty())
        return {};
    std::uint64_t red = 0, green = 0, blue = 0;
    for (const std::uint32_t pixel : pixels) {
        red += (pixel >> 16) & 0xFF;
        green += (pixel >> 8) & 0xFF;
        blue += pixel & 0xFF;
    }
    const std::uint64_t n = pixels.size();
    const Colour back = Rgb(static_cast<int>((red + n / 2) / n), static_cast<int>((green + n / 2) / n),
                            static_cast<int>((blue + n / 2) / n));
    // Contrast ratios against white and black (WCAG): the larger one wins.
    const double l = Luminance(back);
    return {back, (1.05 / (l + 0.05) > (l + 0.05) / 0.05) ? kWhite : kBlack};
}

MenuColours MenuColoursFor(const std::optional<SkinColours> &skin) {
    if (!skin)
        return {0xF6F6F6, kWhite, kBlack, 0xD1ADAD, kBlack, 0x800000, 0xD1ADAD};
    const Colour back = skin->back, fore = skin->fore;
    MenuColours colours{back, back, fore, 0, fore, fore, Mix(back, fore)};
    if ((Red(back) + Green(back) + Blue(back)) / 3 <= 127) {
        // A dark skin: a darker highlight under white text.
        colours.highlight =
            Rgb(std::max(Red(back) - 128, 0), std::max(Green(back) - 128, 0), std::max(Blue(back) - 128, 0));
        colours.highlightText = colours.frame = colours.separator = kWhite;
    } else {
        // A light skin: the highlight moves away from the text colour, so the text stands out more on it.
        colours.highlight = Mix(back, fore == kBlack ? kWhite : kBlack);
    }
    return colours;
}

} // namespace orvane
