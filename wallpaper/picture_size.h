// The arithmetic of showing a wallpaper: fitting an image into a window with
// its proportions kept, the stretched or scrolled layout, and what a PNG
// file's header says about its size before anything is decoded.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace orvane {

struct PixelSize {
    int width = 0, height = 0;
    bool operator==(const PixelSize &) const = default;
};

struct PixelRect {
    int left = 0, top = 0, width = 0, height = 0;
    bool operator==(const PixelRect &) const = default;
};

// Where an image is drawn in the target so that it keeps its proportions and
// is centred: one side fills the target, the other leaves equal bands.
// Sizes and offsets round half to even.
PixelRect FitKeepingAspect(PixelSize image, PixelSize target);

// A requested size with -1 for either side means the image's own size.
PixelSize RequestedSize(PixelSize requested, PixelSize image);

// The imaging library takes names ending in ".png" in any case; the standard
// picture loader takes the rest.
bool IsPngPath(std::wstring_view path);

// Width and height from the first 24 bytes of a PNG file; nothing when the
// bytes are not a PNG signature followed by its header chunk.
std::optional<PixelSize> PngSize(std::string_view head);

// A decoded picture of more pixels than this would cost more than a quarter
// of a gigabyte; such a picture is refused rather than decoded. An 8K image
// (7680 x 4320) is well inside.
inline constexpr std::int64_t kMostPicturePixels = std::int64_t{64} << 20;
bool TooLargeToDecode(PixelSize image);

// The picture at its natural size: a scroll bar for each direction in which
// it is larger than the window. A bar takes room from the other direction,
// which may then need its own bar too.
struct ScrollLayout {
    bool horizontal = false, vertical = false;
    PixelSize view; // the window's inside, less the bars shown
    bool operator==(const ScrollLayout &) const = default;
};
ScrollLayout LayoutAtNaturalSize(PixelSize image, PixelSize client, int barWidth, int barHeight);

// The scroll position kept inside 0 .. image - view.
int ClampOffset(int offset, int image, int view);
// Where the picture's edge lies in the view: centred when it is smaller, moved
// by the scroll position when it is larger.
int PictureOrigin(int image, int view, int offset);

} // namespace orvane
