// The colours a skin gives the program: the skin's own back and fore colours,
// read from its bitmap, and the menu bar's colours made from them.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace orvane {

// Colours are 0x00BBGGRR.
using Colour = std::uint32_t;

inline constexpr Colour kWhite = 0xFFFFFF;
inline constexpr Colour kBlack = 0x000000;

struct SkinColours {
    Colour back = kWhite; // the bitmap's average colour
    Colour fore = kBlack; // black or white, whichever stands out more on the back colour

    bool operator==(const SkinColours &) const = default;
};

// The pixels as a 32-bit bitmap holds them in memory (0x00RRGGBB); an empty
// bitmap reads as white.
SkinColours SkinColoursOf(std::span<const std::uint32_t> pixels);

struct MenuColours {
    Colour barBack;  // the menu bar
    Colour menuBack; // the open menus
    Colour text;
    Colour highlight; // the item under the mouse or the keyboard
    Colour highlightText;
    Colour frame; // around the highlighted item
    Colour separator;

    bool operator==(const MenuColours &) const = default;
};

// The menu's colours for a skin, or the fixed light scheme without one.
MenuColours MenuColoursFor(const std::optional<SkinColours> &skin);

} // namespace orvane
