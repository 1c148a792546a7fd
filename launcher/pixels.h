// Square 32-bit images as icons hold them: one 0xAARRGGBB value per pixel,
// rows top to bottom, colour not multiplied by alpha.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace orvane {

// The image made smaller by averaging the area each new pixel covers.
// Colours are weighted by their alpha, so transparent pixels lend no colour
// to the edges. A newSize not below size returns the image as it is.
std::vector<std::uint32_t> ScaleDown(std::span<const std::uint32_t> image, int size, int newSize);

} // namespace orvane
