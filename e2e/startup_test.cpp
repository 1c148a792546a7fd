// What only a running orvane.exe shows of start-up, single instance and
// shut-down: the message before the bar, the bar's place and size in twips at
// any DPI, the earlier copy taking over, garbage, huge or locked settings; and
// what the file carries: its manifest and icon (its version shows in the About box).
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <tuple>
#include <type_traits>

#include "dpi.h"
#include "program_test.h"
#include "resource.h"
#include "version.h"

namespace orvane::e2e {
namespace {

using namespace testsupport;

constexpr int kBarWidthTwips = 16060, kBarHeightTwips = 1020;

int ScreenDpi() {
    return static_cast<int>(orvane::ui::WindowDpi(nullptr));
}
LONG Pixels(int twips, int dpi = ScreenDpi()) {
    return MulDiv(twips, dpi, 1440);
}
std::string Twips(int pixels, int dpi) {
    return std::to_string(MulDiv(pixels, 1440, dpi));
}

// The settings file the bar writes on closing: its place and size from its rectangle, the design colour
// RGB(240, 240, 240), the default skin, and the given lines.
std::string BarFile(const ProgramFolder &folder, const RECT &r, std::map<int, std::string> lines = {},
                    int dpi = ScreenDpi()) {
    lines.insert({{1, Twips(r.top, dpi)},
                  {2, Twips(r.left, dpi)},
                  {10, Twips(r.right - r.left, dpi)},
                  {11, Twips(r.bottom - r.top, dpi)},
                  {12, "15790320"},
                  {19, Utf8(folder.path()) + "\\Skin_Alba.bmp"}});
    return SettingsText(lines);
}

// Closes the bar as its close box does: its rectangle, and the settings file
// as it is after the program ended by itself. Nothing when either went wrong.
struct Closed {
    RECT bar;
    std::string written;
};
std::optional<Closed> Close(const OrvaneProcess &orvane, HWND bar, const ProgramFolder &folder) {
    RECT r{};
    if (!bar || !GetWindowRect(bar, &r))
        return std::nullopt;
    orvane.close();
    return orvane.waitForExit() == 0u ? std::optional(Closed{r, ReadBytes(folder.settingsFile())}) : std::nullopt;
}

// Starts the bar, which must come up without any message, and closes it.
std::optional<Closed> StartQuietlyAndClose(const ProgramFolder &folder) {
    OrvaneProcess orvane(folder);
    const HWND bar = orvane.waitForMainWindow();
    return orvane.waitForDialog(0ms) ? std::nullopt : Close(orvane, bar, folder);
}

std::string Garbage(std::size_t size) {
    std::string bytes(size, '\0');
    std::generate(bytes.begin(), bytes.end(), std::minstd_rand(12345));
    return bytes;
}

TEST(StartUp, FirstStartNamesTheMissingFileThenOpensTheSingleStripBar) {
    ProgramFolder folder(L"first start");
    OrvaneProcess orvane(folder);
    HWND box = orvane.waitForDialog();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(TextOf(box) + L"|" + MessageBoxText(box),
              L"Orvane|Cannot locate the following program/file:\r\n\r\n" + folder.settingsFile() + L"\r\n\r\n");
    EXPECT_EQ(orvane.waitForMainWindow(0ms), nullptr) << "the message comes before the bar";
    PressButton(box, IDOK);

    HWND bar = orvane.waitForMainWindow();
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(TextOf(bar), L"Orvane");
    EXPECT_EQ(orvane.waitForDialog(0ms), nullptr) << "one message only";
    HWND about = FromMenu(orvane, bar, L"&About this program", L"About Orvane");
    ASSERT_NE(about, nullptr);
    EXPECT_EQ(ControlText(about, IDC_ABOUT_VERSION), L"Version " ORVANE_VERSION_TEXT);
    ASSERT_TRUE(EscapeFrom(about));
    const auto closed = Close(orvane, bar, folder);
    ASSERT_TRUE(closed);
    const RECT &r = closed->bar;
    EXPECT_EQ(std::tuple(r.left, r.top, r.right - r.left, r.bottom - r.top),
              std::tuple(0L, 0L, Pixels(kBarWidthTwips), Pixels(kBarHeightTwips)));
    EXPECT_EQ(closed->written, BarFile(folder, r));
}

TEST(StartUp, SecondCopyBringsTheFirstForwardAndLeavesTheSettingsAlone) {
    ProgramFolder folder(L"second copy");
    const std::string settings = SettingsText({{1, "1500"}, {2, "750"}, {10, "9000"}, {11, "3000"}});
    ASSERT_TRUE(WriteBytes(folder.settingsFile(), settings));
    OrvaneProcess first(folder);
    HWND bar = first.waitForMainWindow();
    ASSERT_TRUE(bar && PostMessageW(bar, WM_SYSCOMMAND, SC_MINIMIZE, 0));
    ASSERT_TRUE(Becomes(TRUE, IsIconic, bar));

    OrvaneProcess second(folder);
    bool secondShowedAWindow = false;
    WaitFor(
        [&] {
            secondShowedAWindow |= second.waitForMainWindow(0ms) || second.waitForDialog(0ms);
            return second.waitForExit(0ms).has_value();
        },
        15s);
    EXPECT_EQ(std::pair(second.waitForExit(0ms), secondShowedAWindow), std::pair(std::optional<DWORD>(0u), false));
    EXPECT_TRUE(Becomes(FALSE, IsIconic, bar)) << "restored";
    EXPECT_TRUE(Becomes(bar, GetForegroundWindow)) << "in front";
    EXPECT_EQ(ReadBytes(folder.settingsFile()), settings);
    const auto closed = Close(first, bar, folder);
    ASSERT_TRUE(closed); // where it was put, and the file written from there
    EXPECT_EQ(std::tuple(closed->bar.left, closed->bar.top), std::tuple(Pixels(750), Pixels(1500)));
    EXPECT_EQ(closed->written, BarFile(folder, closed->bar));
}

TEST(StartUp, TheBarKeepsItsSizeInTwipsOnAHighDpiScreenAndItsWidthWithinTheWorkArea) {
    constexpr DWORD kDpi = 144;
    ProgramFolder folder(L"high dpi");
    ASSERT_TRUE(WriteBytes(folder.settingsFile(), SettingsText({{1, "1500"}, {2, "3000"}, {39, "&H7FFFFFFF"}})));
    // The screen's DPI as programs started from now on see it.
    RegSetKeyValueW(HKEY_CURRENT_USER, L"Control Panel\\Desktop", L"LogPixels", REG_DWORD, &kDpi, sizeof kDpi);
    const auto closed = StartQuietlyAndClose(folder);
    RegDeleteKeyValueW(HKEY_CURRENT_USER, L"Control Panel\\Desktop", L"LogPixels");
    ASSERT_TRUE(closed);
    const RECT r = closed->bar;
    EXPECT_EQ(std::tuple(r.left, r.top, r.bottom - r.top), std::tuple(300L, 150L, Pixels(kBarHeightTwips, kDpi)));
    RECT area{};
    EXPECT_TRUE(SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0));
    EXPECT_EQ(
        closed->written,
        BarFile(folder, r, {{1, "1500"}, {2, "3000"}, {11, "1020"}, {39, Twips(area.right - area.left, kDpi)}}, kDpi));
}

TEST(BadSettings, GarbageIsRewrittenCleanTenMegabytesAreReadUpToLine39AndALockedFileIsNeitherReadNorOverwritten) {
    // The garbage's folder also has a name the code page lacks.
    ProgramFolder garbage(L"garbage settings \u0141\u00f3d\u017a"), huge(L"huge settings"), locked(L"locked settings");
    const std::string longLine(1 << 20, 'x');
    std::string content = SettingsText({{4, longLine}, {7, "11"}});
    while (content.size() < (10u << 20))
        content += Garbage(1 << 16) + "\r\n";
    const std::string kept = SettingsText({{1, "1500"}, {7, "11"}});
    ASSERT_TRUE(WriteBytes(garbage.settingsFile(), Garbage(64 * 1024)) && WriteBytes(huge.settingsFile(), content) &&
                WriteBytes(locked.settingsFile(), kept));
    auto closed = StartQuietlyAndClose(garbage);
    ASSERT_TRUE(closed);
    EXPECT_TRUE(SplitCrLf(closed->written).size() == 39u && closed->written.ends_with("\r\n"));
    ASSERT_TRUE(closed = StartQuietlyAndClose(huge));
    EXPECT_EQ(closed->written, BarFile(huge, closed->bar, {{4, longLine}, {7, "11"}}));

    HANDLE lock =
        CreateFileW(locked.settingsFile().c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    closed = StartQuietlyAndClose(locked);
    CloseHandle(lock);
    ASSERT_TRUE(closed) << "no message on reading nor on writing the locked file";
    EXPECT_EQ(closed->bar.top, 0) << "nothing was read";
    EXPECT_EQ(ReadBytes(locked.settingsFile()), kept);
}

TEST(Executable, ManifestAsksForModernControlsDpiAndLongPathsAndTheFileCarriesAnIcon) {
    const std::unique_ptr<std::remove_pointer_t<HMODULE>, decltype(&FreeLibrary)> module(
        LoadLibraryExW(EnvironmentPath(L"ORVANE_EXE").c_str(), nullptr,
                       LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE),
        FreeLibrary);
    ASSERT_NE(module, nullptr);
    const auto resource = [&](const wchar_t *type, int id) {
        HRSRC found = FindResourceW(module.get(), MAKEINTRESOURCEW(id), type);
        const auto *bytes =
            found ? static_cast<const char *>(LockResource(LoadResource(module.get(), found))) : nullptr;
        return bytes ? std::string(bytes, SizeofResource(module.get(), found)) : std::string();
    };
    const std::string manifest = resource(RT_MANIFEST, 1);
    for (const char *expected :
         {"Microsoft.Windows.Common-Controls", "version=\"6.0.0.0\"", "PerMonitorV2", "<longPathAware",
          "{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}", "{35138b9a-5d96-4fbd-8e2d-a2440225f93a}", "asInvoker"})
        EXPECT_NE(manifest.find(expected), std::string::npos) << expected;
    EXPECT_FALSE(resource(RT_GROUP_ICON, 1).empty());
}

} // namespace
} // namespace orvane::e2e
