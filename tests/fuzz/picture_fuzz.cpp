// The wallpaper's arithmetic with sizes as the window meets them: a decoded
// picture of any size the decoder accepts, a window of up to 65535 pixels a
// side, scroll bars of up to 255 and any scroll position.
#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <climits>

#include "fuzz.h"
#include "picture_size.h"

using namespace orvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    FuzzedDataProvider in(data, size);
    if (const auto png = PngSize(in.ConsumeBytesAsString(24)))
        FUZZ_CHECK(png->width > 0 && png->height > 0);
    const PixelSize image{in.ConsumeIntegralInRange(1, INT_MAX), in.ConsumeIntegralInRange(1, INT_MAX)};
    // The header of a PNG of that size tells the size back.
    std::string head("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR", 16);
    for (int side : {image.width, image.height})
        for (int shift = 24; shift >= 0; shift -= 8)
            head += static_cast<char>(side >> shift & 0xFF);
    FUZZ_CHECK(PngSize(head) == image);
    if (TooLargeToDecode(image))
        return 0; // refused before it is drawn

    const auto side = [&] {
        return in.ConsumeIntegralInRange(0, 65535);
    };
    const PixelSize window{side(), side()};
    const bool ownSize = in.ConsumeBool(); // -1 asks for the picture's own size
    const PixelSize target = RequestedSize(ownSize ? PixelSize{-1, side()} : window, image);
    FUZZ_CHECK(target == (ownSize ? image : window));
    const PixelRect drawn = FitKeepingAspect(image, target);
    FUZZ_CHECK(drawn.left >= 0 && drawn.top >= 0 && drawn.width >= 0 && drawn.height >= 0);
    FUZZ_CHECK(drawn.left + drawn.width <= target.width && drawn.top + drawn.height <= target.height);
    FUZZ_CHECK(target.height == 0 || drawn.width == target.width || drawn.height == target.height);

    const int barWidth = in.ConsumeIntegralInRange(0, 255), barHeight = in.ConsumeIntegralInRange(0, 255);
    const ScrollLayout layout = LayoutAtNaturalSize(image, window, barWidth, barHeight);
    // Settled: a bar shows exactly where the picture exceeds the room the bars leave.
    FUZZ_CHECK(layout.horizontal == (image.width > layout.view.width));
    FUZZ_CHECK(layout.vertical == (image.height > layout.view.height));
    FUZZ_CHECK(layout.view == (PixelSize{window.width - (layout.vertical ? barWidth : 0),
                                         window.height - (layout.horizontal ? barHeight : 0)}));

    for (const auto &[picture, view] :
         {std::pair(image.width, layout.view.width), std::pair(image.height, layout.view.height)}) {
        const int offset = in.ConsumeIntegral<int>();
        const int kept = ClampOffset(offset, picture, view);
        FUZZ_CHECK(kept >= 0 && kept <= std::max(0, picture - view) &&
                   (kept == offset || offset < 0 || offset > picture - view));
        // Smaller, the picture is centred; larger, it covers the whole view.
        const int origin = PictureOrigin(picture, view, offset);
        if (picture <= view)
            FUZZ_CHECK(origin >= 0 && origin + picture <= view && view - picture - 2 * origin <= 1);
        else
            FUZZ_CHECK(origin == -kept && origin + picture >= view);
    }
    return 0;
}
