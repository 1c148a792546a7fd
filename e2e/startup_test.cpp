// Start-up, single instance and shut-down of orvane.exe as a user sees them,
// on settings files good and bad (garbage, huge, locked, non-ANSI). How each
// line is read is the unit tests' business; here the real program reads and
// writes real files, places a real window and finds its earlier copy.
#include <gtest/gtest.h>

#include "orvane_process.h"
#include "settings_text.h"
#include "win_support.h"

namespace orvane::e2e {
namespace {

using namespace testsupport;

constexpr int kBarWidthTwips = 16060;
constexpr int kBarHeightTwips = 1020;

int Twips(int pixels, int dpi = ScreenDpi()) { return MulDiv(pixels, 1440, dpi); }

// The settings file the bar writes on closing: its place and size taken from
// its rectangle, the design colour RGB(240, 240, 240), the default skin, and
// the given lines.
std::string BarFile(const ProgramFolder& folder, const RECT& r, std::map<int, std::string> lines = {},
                    int dpi = ScreenDpi()) {
    lines.insert({{1, std::to_string(Twips(r.top, dpi))},
                  {2, std::to_string(Twips(r.left, dpi))},
                  {10, std::to_string(Twips(r.right - r.left, dpi))},
                  {11, std::to_string(Twips(r.bottom - r.top, dpi))},
                  {12, "15790320"},
                  {19, Utf8(folder.path()) + "\\Skin_Alba.bmp"}});
    return CrLfLines(SettingsLines(lines));
}

// Starts the bar, which must come up without any message, and closes it as
// its close box does: the bar's rectangle, and the settings file as it is
// after the program ended by itself. Nothing when either went wrong.
struct Closed {
    RECT bar;
    std::string written;
};
std::optional<Closed> StartQuietlyAndClose(const ProgramFolder& folder) {
    OrvaneProcess orvane(folder);
    const HWND bar = orvane.waitForMainWindow();
    if (!bar || orvane.dialog()) return std::nullopt;
    const RECT r = WindowRectangle(bar);
    orvane.close();
    if (orvane.waitForExit() != 0u) return std::nullopt;
    return Closed{r, ReadBytes(folder.settingsFile())};
}

std::string Garbage(std::size_t size) {
    std::string bytes(size, '\0');
    unsigned state = 12345;
    for (char& c : bytes) c = static_cast<char>((state = state * 1103515245u + 12345u) >> 16);
    return bytes;
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
    EXPECT_EQ(r.left, 0);
    EXPECT_EQ(r.top, 0);
    EXPECT_EQ(r.right - r.left, MulDiv(kBarWidthTwips, ScreenDpi(), 1440));
    EXPECT_EQ(r.bottom - r.top, MulDiv(kBarHeightTwips, ScreenDpi(), 1440));

    orvane.close();
    EXPECT_EQ(orvane.waitForExit(), 0u);
    EXPECT_EQ(ReadBytes(folder.settingsFile()), BarFile(folder, r));
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
    first.close();
    EXPECT_EQ(first.waitForExit(), 0u);
    EXPECT_EQ(ReadBytes(folder.settingsFile()), BarFile(folder, r));
}

TEST(StartUp, BlanksAroundValuesAndAWidthBeyondTheWorkArea) {
    ProgramFolder folder(L"unusual settings");
    std::string content = CrLfLines(SettingsLines({
        {1, "  1500"},                  // leading blanks before a number
        {3, "  C:\\two blanks.vrt  "},  // and around text, kept
        {39, "&H7FFFFFFF"},             // clamped to the work area
    }));
    content.resize(content.size() - 2);  // no final line end
    ASSERT_TRUE(WriteBytes(folder.settingsFile(), content));
    const auto closed = StartQuietlyAndClose(folder);
    ASSERT_TRUE(closed);
    EXPECT_EQ(Twips(closed->bar.top), 1500);
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    EXPECT_EQ(closed->written, BarFile(folder, closed->bar, {{3, "  C:\\two blanks.vrt  "},
                                                             {39, std::to_string(Twips(area.right - area.left))}}));
}

TEST(StartUp, TheSettingsFileIsWrittenInTheAnsiCodePage) {
    if (GetACP() != 1252) GTEST_SKIP() << "code page " << GetACP();
    // "für" fits the code page; "Łódź" does not, and its foreign letters become "?".
    ProgramFolder folder(L"f\u00fcr \u0141\u00f3d\u017a");
    ASSERT_TRUE(WriteBytes(folder.settingsFile(), CrLfLines(SettingsLines())));
    const auto closed = StartQuietlyAndClose(folder);
    ASSERT_TRUE(closed);
    const std::string root = Utf8(folder.path().substr(0, folder.path().find_last_of(L'\\')));
    EXPECT_EQ(closed->written, BarFile(folder, closed->bar, {{19, root + "\\f\xFCr ?\xF3" "d?\\Skin_Alba.bmp"}}));
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
    const auto closed = StartQuietlyAndClose(folder);
    ASSERT_TRUE(closed);
    const RECT& r = closed->bar;
    EXPECT_EQ(r.top, 150);
    EXPECT_EQ(r.left, 300);
    EXPECT_EQ(r.bottom - r.top, MulDiv(kBarHeightTwips, kDpi, 1440));
    EXPECT_EQ(closed->written, BarFile(folder, r, {{1, "1500"}, {2, "3000"}, {11, "1020"}}, kDpi));
}

TEST(BadSettings, BinaryGarbageIsReadAsWhatItSaysAndRewrittenClean) {
    ProgramFolder folder(L"garbage settings");
    ASSERT_TRUE(WriteBytes(folder.settingsFile(), Garbage(64 * 1024)));
    const auto closed = StartQuietlyAndClose(folder);
    ASSERT_TRUE(closed);
    EXPECT_EQ(SplitCrLf(closed->written).size(), 39u);
    EXPECT_EQ(closed->written.substr(closed->written.size() - 2), "\r\n");
}

TEST(BadSettings, TenMegabytesWithAMegabyteLineAreReadUpToLine39) {
    ProgramFolder folder(L"huge settings");
    const std::string longLine(1 << 20, 'x');
    std::string content = CrLfLines(SettingsLines({{4, longLine}, {7, "11"}}));
    while (content.size() < (10u << 20)) content += Garbage(1 << 16) + "\r\n";
    ASSERT_TRUE(WriteBytes(folder.settingsFile(), content));
    const auto closed = StartQuietlyAndClose(folder);
    ASSERT_TRUE(closed);
    EXPECT_EQ(closed->written, BarFile(folder, closed->bar, {{4, longLine}, {7, "11"}}));
}

TEST(BadSettings, LockedFileIsNeitherReadNorOverwritten) {
    ProgramFolder folder(L"locked settings");
    const std::string content = CrLfLines(SettingsLines({{1, "1500"}, {7, "11"}}));
    ASSERT_TRUE(WriteBytes(folder.settingsFile(), content));
    HANDLE lock = CreateFileW(folder.settingsFile().c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                              0, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    const auto closed = StartQuietlyAndClose(folder);
    CloseHandle(lock);
    ASSERT_TRUE(closed) << "no message on reading nor on writing";
    EXPECT_EQ(closed->bar.top, 0) << "nothing was read";
    EXPECT_EQ(ReadBytes(folder.settingsFile()), content);
}

}  // namespace
}  // namespace orvane::e2e
