#include <gtest/gtest.h>

#include <tuple>

#include "app.h"
#include "fake_system.h"
#include "wallpaper.h"

namespace orvane {
namespace {

TEST(PictureSize, FittingKeepsProportionsAndRoundsHalfToEven) {
    const struct {
        PixelSize image, target;
        PixelRect drawn;
    } cases[] = {
        {{1600, 900}, {1280, 1024}, {0, 152, 1280, 720}},  // bands above and below
        {{900, 1600}, {1280, 1024}, {352, 0, 576, 1024}},  // bands left and right
        {{640, 512}, {1280, 1024}, {0, 0, 1280, 1024}},    // the same proportions: no bands
        {{3, 1}, {10, 5}, {0, 1, 10, 3}},                  // 3.33 high, 0.83 down
        {{2, 1}, {5, 3}, {0, 0, 5, 2}},                    // 2.5 high rounds to 2, 0.5 down to 0
    };
    for (const auto& c : cases) EXPECT_EQ(FitKeepingAspect(c.image, c.target), c.drawn) << c.image.width << "x" << c.image.height;
    EXPECT_EQ(RequestedSize({-1, 600}, {1600, 900}), (PixelSize{1600, 900}));
    EXPECT_EQ(RequestedSize({800, 600}, {1600, 900}), (PixelSize{800, 600}));
}

TEST(PictureSize, PngHeadersAndNamesAreKnownBeforeDecoding) {
    const std::string png("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR\0\0\x3e\x80\0\0\x3e\x80\x08\x02", 26);
    EXPECT_EQ(PngSize(png), (PixelSize{16000, 16000}));
    EXPECT_TRUE(TooLargeToDecode(*PngSize(png)));
    EXPECT_FALSE(TooLargeToDecode({7680, 4320}));
    for (const std::string& head : {png.substr(0, 23), std::string(png).replace(1, 3, "GIF"), std::string()})
        EXPECT_EQ(PngSize(head), std::nullopt);
    for (const wchar_t* name : {L"a.png", L"C:\\B.PNG", L"x.Png"}) EXPECT_TRUE(IsPngPath(name)) << name;
    for (const wchar_t* name : {L"a.jpg", L"png", L"a.png ", L""}) EXPECT_FALSE(IsPngPath(name)) << name;
}

TEST(PictureSize, StretchedChoiceAndScrollBars) {
    const struct {
        PixelSize image;
        int setting;
        bool stretched;
    } choices[] = {
        {{640, 480}, 0, false}, {{640, 480}, 1, true}, {{1600, 1200}, 0, true}, {{1600, 1200}, 1, false},
        {{1280, 480}, 0, true},  // as wide as the window: stretched
        {{640, 480}, 2, false},
    };
    for (const auto& c : choices)
        EXPECT_EQ(StartsStretched(c.image, {1280, 1024}, c.setting), c.stretched) << c.image.width << " " << c.setting;

    const struct {
        PixelSize image;
        ScrollLayout layout;
    } layouts[] = {
        {{1600, 1200}, {true, true, {1263, 1007}}},
        {{640, 480}, {false, false, {1280, 1024}}},
        {{1600, 1010}, {true, true, {1263, 1007}}},  // the bar across leaves too little height
        {{1270, 1010}, {false, false, {1280, 1024}}},
    };
    for (const auto& c : layouts) EXPECT_EQ(LayoutAtNaturalSize(c.image, {1280, 1024}, 17, 17), c.layout) << c.image.width;
    EXPECT_EQ(std::tuple(PictureOrigin(640, 1280, 99), PictureOrigin(1600, 1263, 9999), PictureOrigin(1600, 1263, -5)),
              std::tuple(320, -337, 0));
}

TEST(Wallpaper, ThePasswordIsTypedTrimmedAndCaseSensitive) {
    const struct {
        const wchar_t* stored;
        const wchar_t* typed;
        bool allowed;
    } cases[] = {
        {L"", L"", true},        {L"", L"anything", true}, {L"abc", L"  abc  ", true}, {L"abc", L"ABC", false},
        {L"abc", L"", false},    {L"abc", L"ab c", false}, {L" abc", L" abc", false},  {L"abc ", L"abc ", false},
    };
    for (const auto& c : cases) {
        testing::FakeSystem sys;
        App app{sys};
        app.settings.ReturnPassword = c.stored;
        EXPECT_EQ(ReturnAllowed(app, c.typed), c.allowed) << c.stored << "|" << c.typed;
        EXPECT_EQ(sys.messages.size(), c.allowed ? 0u : 1u);
        const std::wstring said = sys.messages.empty() ? L"" : sys.messages[0].text;
        EXPECT_EQ(said, c.allowed ? L"" : L"Wrong password!\r\n\r\n\"" + std::wstring(c.typed) + L"\"");
    }
}

}  // namespace
}  // namespace orvane
