#include <gtest/gtest.h>

#include <tuple>

#include "app.h"
#include "fake_system.h"
#include "wallpaper.h"

namespace orvane {
namespace {

TEST(PictureSize, FittingKeepsProportionsAndRoundsHalfToEven) {
    // Bands left and right (above and below: e2e Wallpaper); 3.33 high and 0.83 down; 2.5 and 0.5 to even.
    const std::tuple<PixelSize, PixelSize, PixelRect> cases[] = {{{900, 1600}, {1280, 1024}, {352, 0, 576, 1024}},
                                                                 {{3, 1}, {10, 5}, {0, 1, 10, 3}},
                                                                 {{2, 1}, {5, 3}, {0, 0, 5, 2}}};
    for (const auto &[image, target, drawn] : cases)
        EXPECT_EQ(FitKeepingAspect(image, target), drawn) << image.width << "x" << image.height;
}

TEST(PictureSize, PngHeadersAndNamesAreKnownBeforeDecoding) {
    const std::string png("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR\0\0\x3e\x80\0\0\x3e\x80\x08\x02", 26);
    EXPECT_FALSE(TooLargeToDecode({7680, 4320})); // the sizes headers give: the fuzz target, e2e BadPictures
    for (const std::string &head : {png.substr(0, 23), std::string(png).replace(1, 3, "GIF"), std::string()})
        EXPECT_EQ(PngSize(head), std::nullopt);
    const std::pair<const wchar_t *, bool> names[] = {{L"C:\\B.PNG", true}, {L"x.Png", true},   {L"a.jpg", false},
                                                      {L"png", false},      {L"a.png ", false}, {L"", false}};
    for (const auto &[name, isPng] : names)
        EXPECT_EQ(IsPngPath(name), isPng) << name;
}

TEST(PictureSize, StretchedChoiceAndScrollBars) {
    // A small picture at its size, or stretched (e2e); as wide as the window counts as large.
    const std::tuple<PixelSize, int, bool> choices[] = {
        {{1600, 1200}, 0, true}, {{1600, 1200}, 1, false}, {{1280, 480}, 0, true}, {{640, 480}, 2, false}};
    for (const auto &[image, setting, stretched] : choices)
        EXPECT_EQ(StartsStretched(image, {1280, 1024}, setting), stretched) << image.width << " " << setting;

    // Bars both ways would fit too, but none are needed; where a bar is needed, and scrolled pictures: the fuzz target.
    EXPECT_EQ(LayoutAtNaturalSize({1270, 1010}, {1280, 1024}, 17, 17), (ScrollLayout{false, false, {1280, 1024}}));
    EXPECT_EQ(PictureOrigin(640, 1280, 99), 320);
}

TEST(Wallpaper, ThePasswordTypedIsTrimmedSoAStoredBlankNeverMatches) {
    testing::FakeSystem sys; // no password, a wrong case and blanks typed round it: the e2e Wallpaper tests
    App app{sys};
    app.settings.ReturnPassword = L"abc";
    EXPECT_FALSE(ReturnAllowed(app, L"ab c")) << "only the ends are trimmed";
    app.settings.ReturnPassword = L" abc";
    EXPECT_FALSE(ReturnAllowed(app, L" abc"));
    EXPECT_EQ(sys.messages.at(1).text, L"Wrong password!\r\n\r\n\" abc\"") << "the text as typed";
}

} // namespace
} // namespace orvane
