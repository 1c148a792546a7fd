#include <gtest/gtest.h>

#include <tuple>

#include "app.h"
#include "fake_system.h"
#include "wallpaper.h"

namespace orvane {
namespace {

TEST(PictureSize, FittingKeepsProportionsAndRoundsHalfToEven) {
    // Bands above and below (a PNG filling the screen: e2e), left and right; 3.33 high and 0.83 down; 2.5 and 0.5 to even.
    const struct { PixelSize image, target; PixelRect drawn; } cases[] = {
        {{900, 1600}, {1280, 1024}, {352, 0, 576, 1024}}, {{3, 1}, {10, 5}, {0, 1, 10, 3}}, {{2, 1}, {5, 3}, {0, 0, 5, 2}}};
    for (const auto& c : cases) EXPECT_EQ(FitKeepingAspect(c.image, c.target), c.drawn) << c.image.width << "x" << c.image.height;
    EXPECT_EQ(RequestedSize({-1, 600}, {1600, 900}), (PixelSize{1600, 900})) << "none asked for: the picture's own";
}

TEST(PictureSize, PngHeadersAndNamesAreKnownBeforeDecoding) {
    const std::string png("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR\0\0\x3e\x80\0\0\x3e\x80\x08\x02", 26);
    EXPECT_EQ(PngSize(png), (PixelSize{16000, 16000}));
    EXPECT_TRUE(TooLargeToDecode(*PngSize(png)));
    EXPECT_FALSE(TooLargeToDecode({7680, 4320}));
    for (const std::string& head : {png.substr(0, 23), std::string(png).replace(1, 3, "GIF"), std::string()})
        EXPECT_EQ(PngSize(head), std::nullopt);
    for (const wchar_t* name : {L"C:\\B.PNG", L"x.Png"}) EXPECT_TRUE(IsPngPath(name)) << name;
    for (const wchar_t* name : {L"a.jpg", L"png", L"a.png ", L""}) EXPECT_FALSE(IsPngPath(name)) << name;
}

TEST(PictureSize, StretchedChoiceAndScrollBars) {
    // A small picture at its size, or stretched (e2e); as wide as the window counts as large.
    const struct { PixelSize image; int setting; bool stretched; } choices[] = {
        {{1600, 1200}, 0, true}, {{1600, 1200}, 1, false}, {{1280, 480}, 0, true}, {{640, 480}, 2, false}};
    for (const auto& c : choices)
        EXPECT_EQ(StartsStretched(c.image, {1280, 1024}, c.setting), c.stretched) << c.image.width << " " << c.setting;

    // The bar across leaves too little height for the picture; a large one with bars both ways: e2e.
    const struct { PixelSize image; ScrollLayout layout; } layouts[] = {
        {{1600, 1010}, {true, true, {1263, 1007}}}, {{1270, 1010}, {false, false, {1280, 1024}}}};
    for (const auto& c : layouts) EXPECT_EQ(LayoutAtNaturalSize(c.image, {1280, 1024}, 17, 17), c.layout) << c.image.width;
    EXPECT_EQ(std::tuple(PictureOrigin(640, 1280, 99), PictureOrigin(1600, 1263, 9999), PictureOrigin(1600, 1263, -5)),
              std::tuple(320, -337, 0));
}

TEST(Wallpaper, ThePasswordTypedIsTrimmedSoAStoredBlankNeverMatches) {
    const struct { const wchar_t *stored, *typed; bool allowed; } cases[] = {  // no password, and a wrong case: e2e
        {L"abc", L"  abc  ", true}, {L"abc", L"ab c", false}, {L" abc", L" abc", false}};
    for (const auto& c : cases) {
        testing::FakeSystem sys;
        App app{sys};
        app.settings.ReturnPassword = c.stored;
        EXPECT_EQ(ReturnAllowed(app, c.typed), c.allowed) << c.stored << "|" << c.typed;
        EXPECT_EQ(sys.messages.size() == 1 ? sys.messages[0].text : L"",
                  c.allowed ? L"" : L"Wrong password!\r\n\r\n\"" + std::wstring(c.typed) + L"\"");
    }
}

}  // namespace
}  // namespace orvane
