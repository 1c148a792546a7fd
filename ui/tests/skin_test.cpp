// Skins on real bitmaps.
#include <gtest/gtest.h>

#include "skin.h"

namespace orvane::ui {
namespace {

TEST(SkinColours, AreTheAverageOfEveryRow) {
    const std::uint32_t pixels[] = {0xFFFFFF, 0xFFFFFF, 0, 0};  // a white row and a black one
    const UniqueBitmap bitmap(CreateBitmap(2, 2, 1, 32, pixels));
    EXPECT_EQ(ColoursOfBitmap(bitmap.get())->back, 0x808080u);
}

}  // namespace
}  // namespace orvane::ui
