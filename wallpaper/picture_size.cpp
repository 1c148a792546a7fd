#include "picture_size.h"

#include <algorithm>
#include <cwctype>

#include "conversions.h"

namespace orvane {

namespace {

int Rounded(double value) {
    return RoundToInt32(value).value_or(0);
}

std::uint32_t BigEndian(std::string_view bytes) {
    std::uint32_t value = 0;
    for (unsigned char byte : bytes)
        value = value << 8 | byte;
    return value;
}

} // namespace

PixelRect FitKeepingAspect(PixelSize image, PixelSize target) {
    if (image.width <= 0 || image.height <= 0 || target.height <= 0)
        return {0, 0, target.width, target.height};
    const double r = static_cast<double>(image.width) / image.height;
    const double t = static_cast<double>(target.width) / target.height;
    const int width = t < r ? target.width : Rounded(target.height * r);
    const int height = t < r ? Rounded(target.width / r) : target.height;
    return {Rounded((target.width - width) / 2.0), Rounded((target.height - height) / 2.0), width, height};
}

PixelSize RequestedSize(PixelSize requested, PixelSize image) {
    return requested.width == -1 || requested.height == -1 ? image : requested;
}

bool IsPngPath(std::wstring_view path) {
    if (path.size() < 4)
        return false;
    std::wstring tail(path.substr(path.size() - 4));
    for (wchar_t &c : tail)
        c = static_cast<wchar_t>(std::towupper(c));
    return tail == L".PNG";
}

std::optional<PixelSize> PngSize(std::string_view head) {
    constexpr std::string_view kSignature("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR", 16);
    if (head.size() < 24 || head.substr(0, 16) != kSignature)
        return std::nullopt;
    const std::uint32_t width = BigEndian(head.substr(16, 4)), height = BigEndian(head.substr(20, 4));
    if (width == 0 || height == 0 || width > 0x7fffffff || height > 0x7fffffff)
        return std::nullopt;
    return PixelSize{static_cast<int>(width), static_cast<int>(height)};
}

bool TooLargeToDecode(PixelSize image) {
    return static_cast<std::int64_t>(image.width) * image.height > kMostPicturePixels;
}

ScrollLayout LayoutAtNaturalSize(PixelSize image, PixelSize client, int barWidth, int barHeight) {
    ScrollLayout layout{false, false, client};
    // A bar shown in one direction can make the other too small: three rounds settle it.
    for (int round = 0; round < 3; ++round) {
        layout.horizontal = image.width > layout.view.width;
        layout.vertical = image.height > layout.view.height;
        layout.view = {client.width - (layout.vertical ? barWidth : 0),
                       client.height - (layout.horizontal ? barHeight : 0)};
    }
    return layout;
}

int ClampOffset(int offset, int image, int view) {
    return std::clamp(offset, 0, std::max(0, image - view));
}

int PictureOrigin(int image, int view, int offset) {
    return image <= view ? (view - image) / 2 : -ClampOffset(offset, image, view);
}

} // namespace orvane
