// Start-up, single instance and shut-down of orvane.exe, as a user sees them.
#include <gtest/gtest.h>

#include "orvane_process.h"
#include "settings_text.h"
#include "win_support.h"

namespace orvane::e2e {
namespace {

using namespace testsupport;

constexpr int kBarWidthTwips = 16060;
constexpr int kBarHeightTwips = 1020;
constexpr char kDesignBackColor[] = "15790320";  // RGB(240, 240, 240)

int Twips(int pixels) { return MulDiv(pixels, 1440, ScreenDpi()); }

// Closes the bar and returns the settings file it wrote.
std::string CloseAndRead(const OrvaneProcess& orvane, const ProgramFolder& folder) {
    orvane.close();
    EXPECT_EQ(orvane.waitForExit(), 0u);
    return ReadBytes(folder.settingsFile());
}

TEST(StartUp, FirstStartNamesTheMissingFileThenOpensTheSingleStripBar) {
    ProgramFolder folder(L"first start");
    OrvaneProcess orvane(folder);
    ASSERT_TRUE(orvane.started());

    HWND box = orvane.waitForDialog();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(TextOf(box), L"Orvane");
    EXPECT_EQ(MessageBoxText(box),
              L"Cannot locate the following program/file:\r\n\r\n" + folder.settingsFile() + L"\r\n\r\n");
    EXPECT_FALSE(orvane.hasMainWindow()) << "the message comes before the bar";
    PressButton(box, IDOK);

    HWND bar = orvane.waitForMainWindow();
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(TextOf(bar), L"Orvane");
    EXPECT_EQ(orvane.dialog(), nullptr) << "one message only";
    const RECT r = WindowRectangle(bar);
    const int dpi = ScreenDpi();
    EXPECT_EQ(r.left, 0);
    EXPECT_EQ(r.top, 0);
    EXPECT_EQ(r.right - r.left, MulDiv(kBarWidthTwips, dpi, 1440));
    EXPECT_EQ(r.bottom - r.top, MulDiv(kBarHeightTwips, dpi, 1440));

    const std::string written = CloseAndRead(orvane, folder);
    const auto expected = SettingsLines({{10, std::to_string(Twips(r.right - r.left))},
                                         {11, std::to_string(Twips(r.bottom - r.top))},
                                         {12, kDesignBackColor},
                                         {19, Utf8(folder.path()) + "\\Skin_Alba.bmp"}});
    EXPECT_EQ(written, CrLfLines(expected));
    EXPECT_EQ(SplitCrLf(written).size(), 39u);
}

TEST(StartUp, SecondCopyBringsTheFirstForwardAndLeavesTheSettingsAlone) {
    ProgramFolder folder(L"second copy");
    const std::string settings = CrLfLines(SettingsLines({{1, "1500"}, {2, "750"}, {10, "9000"}, {11, "3000"}}));
    ASSERT_TRUE(WriteBytes(folder.settingsFile(), settings));

    OrvaneProcess first(folder);
    HWND bar = first.waitForMainWindow();
    ASSERT_NE(bar, nullptr);
    PostMessageW(bar, WM_SYSCOMMAND, SC_MINIMIZE, 0);
    ASSERT_TRUE(WaitFor([&] { return IsIconic(bar) != FALSE; }, 5s));

    OrvaneProcess second(folder);
    ASSERT_TRUE(second.started());
    bool secondShowedABar = false;
    WaitFor([&] {
        secondShowedABar |= second.hasMainWindow() || second.dialog() != nullptr;
        return second.waitForExit(0ms).has_value();
    }, 15s);
    EXPECT_EQ(second.waitForExit(0ms), 0u);
    EXPECT_FALSE(secondShowedABar);
    EXPECT_TRUE(WaitFor([&] { return !IsIconic(bar); }, 5s)) << "restored";
    EXPECT_TRUE(WaitFor([&] { return GetForegroundWindow() == bar; }, 5s)) << "brought forward";
    EXPECT_EQ(ReadBytes(folder.settingsFile()), settings);

    const RECT r = WindowRectangle(bar);
    EXPECT_EQ(r.left, MulDiv(750, ScreenDpi(), 1440));
    EXPECT_EQ(r.top, MulDiv(1500, ScreenDpi(), 1440));
    const auto lines = SplitCrLf(CloseAndRead(first, folder));
    ASSERT_EQ(lines.size(), 39u);
    EXPECT_EQ(lines[0], std::to_string(Twips(r.top)));
    EXPECT_EQ(lines[1], std::to_string(Twips(r.left)));
}

TEST(StartUp, UnusualSettingsSurviveAStartAndAClose) {
    ProgramFolder folder(L"unusual settings");
    auto lines = SettingsLines({
        {1, "  1500"},                  // leading blanks before a number
        {3, "  C:\\two blanks.vrt  "},  // and around text, kept
        {13, "12.5"},                   // halves go to the even neighbour
        {26, "13.5"},
        {22, "&H10"},    // hexadecimal
        {23, "&HFFFF"},  // a 16-bit pattern
        {31, "40000"},   // beyond 16 bits: the value stays as it was
        {38, "0"},
        {39, "&H7FFFFFFF"},
    });
    for (int extra = 40; extra <= 60; ++extra) lines.push_back("line " + std::to_string(extra));
    std::string content = CrLfLines(lines);
    content.resize(content.size() - 2);  // no final line end
    ASSERT_TRUE(WriteBytes(folder.settingsFile(), content));

    OrvaneProcess orvane(folder);
    HWND bar = orvane.waitForMainWindow();
    ASSERT_NE(bar, nullptr);
    const RECT r = WindowRectangle(bar);
    const auto written = SplitCrLf(CloseAndRead(orvane, folder));

    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    const auto expected = SettingsLines({
        {1, std::to_string(Twips(r.top))},
        {3, "  C:\\two blanks.vrt  "},
        {10, std::to_string(Twips(r.right - r.left))},
        {11, std::to_string(Twips(r.bottom - r.top))},
        {12, kDesignBackColor},
        {13, "12"},
        {26, "14"},
        {22, "16"},
        {23, "-1"},
        {19, Utf8(folder.path()) + "\\Skin_Alba.bmp"},
        {39, std::to_string(Twips(area.right - area.left))},  // clamped to the work area
    });
    EXPECT_EQ(written, expected);
    EXPECT_EQ(Twips(r.top), 1500);
}

TEST(StartUp, ShortFileWithoutAFinalLineEndKeepsItsLastValue) {
    ProgramFolder folder(L"short settings");
    ASSERT_TRUE(WriteBytes(folder.settingsFile(), "0\r\n0\r\nC:\\Deadlines.vrt\r\nhttps://mail.example.org"));
    OrvaneProcess orvane(folder);
    ASSERT_NE(orvane.waitForMainWindow(), nullptr);
    const auto written = SplitCrLf(CloseAndRead(orvane, folder));
    ASSERT_EQ(written.size(), 39u);
    EXPECT_EQ(written[2], "C:\\Deadlines.vrt");
    EXPECT_EQ(written[3], "https://mail.example.org");
}

TEST(StartUp, TheSettingsFileIsWrittenInTheAnsiCodePage) {
    if (GetACP() != 1252) GTEST_SKIP() << "code page " << GetACP();
    // "für" fits the code page; "Łódź" does not, and its foreign letters become "?".
    ProgramFolder folder(L"f\u00fcr \u0141\u00f3d\u017a");
    ASSERT_TRUE(WriteBytes(folder.settingsFile(), CrLfLines(SettingsLines())));
    OrvaneProcess orvane(folder);
    ASSERT_NE(orvane.waitForMainWindow(), nullptr);
    const auto written = SplitCrLf(CloseAndRead(orvane, folder));
    ASSERT_EQ(written.size(), 39u);
    const std::string root = Utf8(folder.path().substr(0, folder.path().find_last_of(L'\\')));
    EXPECT_EQ(written[18], root + "\\f\xFCr ?\xF3" "d?\\Skin_Alba.bmp");
}

// The screen's DPI as programs started from now on see it; put back when done.
class ScreenDpiSetting {
public:
    explicit ScreenDpiSetting(DWORD dpi) {
        RegSetKeyValueW(HKEY_CURRENT_USER, kKey, L"LogPixels", REG_DWORD, &dpi, sizeof dpi);
    }
    ~ScreenDpiSetting() { RegDeleteKeyValueW(HKEY_CURRENT_USER, kKey, L"LogPixels"); }

private:
    static constexpr wchar_t kKey[] = L"Control Panel\\Desktop";
};

TEST(StartUp, TheBarKeepsItsSizeInTwipsOnAHighDpiScreen) {
    constexpr int kDpi = 144;
    ProgramFolder folder(L"high dpi");
    ASSERT_TRUE(WriteBytes(folder.settingsFile(), CrLfLines(SettingsLines({{1, "1500"}, {2, "3000"}}))));
    ScreenDpiSetting highDpi(kDpi);
    OrvaneProcess orvane(folder);
    HWND bar = orvane.waitForMainWindow();
    ASSERT_NE(bar, nullptr);
    const RECT r = WindowRectangle(bar);
    EXPECT_EQ(r.top, 150);
    EXPECT_EQ(r.left, 300);
    EXPECT_EQ(r.bottom - r.top, MulDiv(kBarHeightTwips, kDpi, 1440));
    const auto written = SplitCrLf(CloseAndRead(orvane, folder));
    ASSERT_EQ(written.size(), 39u);
    EXPECT_EQ(written[0], "1500");
    EXPECT_EQ(written[1], "3000");
    EXPECT_EQ(written[9], std::to_string(MulDiv(r.right - r.left, 1440, kDpi)));
    EXPECT_EQ(written[10], std::to_string(kBarHeightTwips));
}

}  // namespace
}  // namespace orvane::e2e
