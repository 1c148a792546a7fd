// The wallpaper window driven as a user would: opened from the bar's menu,
// its picture read back from the screen, and the ways out through the return password.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <tuple>

#include "orvane_process.h"
#include <psapi.h>
#include "picture_size.h"
#include "resource.h"
#include "wallpaper.h"
#include "win_support.h"

namespace orvane::e2e {
namespace {

using namespace testsupport;

class Wallpaper : public ::testing::Test {
protected:
    // The bar on a picture, built or written here, with the wallpaper window open.
    HWND open(const std::wstring& picture, const std::string& password = "", const std::string& stretch = "0") {
        const std::wstring built = EnvironmentPath(L"ORVANE_PICTURES") + L"\\" + picture;
        if (GetFileAttributesW(built.c_str()) != INVALID_FILE_ATTRIBUTES) CopyInto(built, folder.path());
        WriteBytes(folder.settingsFile(), SettingsText({{30, Utf8(path(picture))}, {31, stretch}, {32, password}}));
        orvane = std::make_unique<OrvaneProcess>(folder);
        HWND bar = orvane->waitForMainWindow();
        return bar && PickMenuItem(bar, L"Wa&llpaper") ? WaitForDialogTitled(orvane->id(), L"Wallpaper") : nullptr;
    }
    std::wstring path(const std::wstring& name) const { return folder.path() + L"\\" + name; }
    // Answers the password box; true once the box has gone.
    bool answer(const std::wstring& typed) {
        HWND box = WaitForDialogTitled(orvane->id(), L"Orvane");
        if (!box || ControlText(box, IDC_PROMPT) != kPasswordPrompt) return false;
        SetControlText(box, IDC_BOX_TEXT, typed);
        PressButton(box, IDOK);
        return WaitFor([&] { return !IsWindow(box); }, 5s);
    }
    bool closes(HWND window) { return WaitFor([&] { return !IsWindow(window); }, 5s); }
    static RECT Client(HWND window) {
        RECT r{};
        if (GetClientRect(window, &r)) MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&r), 2);
        return r;
    }

    ProgramFolder folder{Wide(::testing::UnitTest::GetInstance()->current_test_info()->name())};
    std::unique_ptr<OrvaneProcess> orvane;
};

TEST_F(Wallpaper, APngFillsTheScreenWithWhiteBandsAndTheWaysOutAskForThePassword) {
    HWND window = open(L"Test_Bands.png", "abc"); ASSERT_NE(window, nullptr);
    const RECT client = Client(window);
    const PixelRect drawn = FitKeepingAspect({1600, 400}, {client.right - client.left, client.bottom - client.top});
    const LONG middle = (client.left + client.right) / 2, top = client.top + drawn.top;
    for (const auto& [y, colour] : {std::pair(top - 2, RGB(255, 255, 255)), std::pair(top + 2, RGB(200, 0, 0)),
                                    std::pair(top + drawn.height - 3, RGB(200, 0, 0)),
                                    std::pair(top + drawn.height + 1, RGB(255, 255, 255))})
        EXPECT_TRUE(WaitFor([&] { return ScreenColour({middle, y}) == colour; }, 5s)) << "at " << y;

    HWND bar = orvane->waitForMainWindow();
    const std::function<void()> none = [] {}, escape = [&] { PressKeys(window, {VK_ESCAPE}); };
    // A way round the password, if any, then a way out, which asks once what went before is done.
    const std::pair<std::function<void()>, std::function<void()>> ways[] = {
        {none, escape},
        {none, [&] { ClickAt({middle, top + 10}); }},
        {none, [&] { PostMessageW(bar, WM_CLOSE, 0, 0); }},  // the bar's close goes through it too
        {[&] { PostMessageW(window, WM_ENDSESSION, TRUE, 0); }, escape},  // the session does not end
        {[&] { PostMessageW(window, WM_SYSCOMMAND, SC_MOVE, 0); }, escape},  // else Esc ends the move
        {[&] { PostMessageW(window, WM_SYSCOMMAND, SC_MINIMIZE, 0); }, escape},
        {[&] { ShowWindow(window, SW_MINIMIZE); }, escape},
        {[&] { ShowWindow(window, SW_HIDE); }, escape},
        {[&] { MoveWindow(window, -500, 100, 400, 300, TRUE); }, escape},
        {[&] { ShowWindow(bar, SW_MINIMIZE); }, escape},  // the cover's owner
    };
    for (const auto& [wayRound, wayOut] : ways) {
        wayRound();
        wayOut();
        ASSERT_TRUE(answer(L"ABC"));
        ASSERT_TRUE(AnswerMessage(orvane->id(), L"Wrong password!\r\n\r\n\"ABC\""));
        for (const POINT corner : {POINT{0, 0}, POINT{GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1}})
            EXPECT_EQ(GetAncestor(WindowFromPoint(corner), GA_ROOT), window) << "over the whole screen";
        EXPECT_TRUE(IsWindow(bar) && !IsIconic(bar)) << "runs on";
    }
    PressKeys(window, {VK_CONTROL, VK_SHIFT, 'M'});  // the clock, over the wallpaper
    HWND clock = WaitForDialogTitled(orvane->id(), L"Clock"); ASSERT_NE(clock, nullptr);
    RECT c{};
    GetWindowRect(clock, &c);
    EXPECT_EQ(GetAncestor(WindowFromPoint({(c.left + c.right) / 2, (c.top + c.bottom) / 2}), GA_ROOT), clock);
    PressKeys(clock, {VK_SPACE});
    ASSERT_TRUE(closes(clock));
    PressKeys(window, {VK_MENU, VK_F4});
    ASSERT_TRUE(answer(L"  abc  "));
    EXPECT_TRUE(closes(window));
}

TEST_F(Wallpaper, ASmallBitmapIsShownAtItsSizeThenStretchedAndWithoutAPasswordAnyAnswerCloses) {
    HWND window = open(L"Wallpaper_Small.bmp"); ASSERT_NE(window, nullptr);
    const POINT corner{Client(window).left + 5, Client(window).top + 5};
    EXPECT_TRUE(WaitFor([&] { return ScreenColour(corner) == RGB(255, 255, 255); }, 5s));
    PressKeys(window, {VK_CONTROL, VK_SHIFT, 'Y'});  // "&Stretch"
    EXPECT_TRUE(WaitFor([&] { return ScreenColour(corner) == RGB(250, 220, 120); }, 5s));
    PostMessageW(window, WM_CLOSE, 0, 0);
    ASSERT_TRUE(answer(L""));
    EXPECT_TRUE(closes(window));
}

TEST_F(Wallpaper, ALargeBitmapTurnedToItsNaturalSizeGetsScrollBarsThatTheKeysMove) {
    HWND window = open(L"Test_Large.bmp", "", "1");  // 2000 x 1500 in squares of 100, two colours
    ASSERT_NE(window, nullptr);
    const LONG bars = WS_HSCROLL | WS_VSCROLL;
    EXPECT_TRUE(WaitFor([&] { return (GetWindowLongW(window, GWL_STYLE) & bars) == bars; }, 5s));
    const POINT at{Client(window).left + 50, Client(window).top + 50};
    const COLORREF first = RGB(0x20, 0x40, 0xc0), second = RGB(0xf0, 0xc0, 0x20);
    // 40 pixels a key: three take the next square down, then the next one right.
    for (const auto& [key, colour] : {std::pair(0, first), std::pair(VK_DOWN, second), std::pair(VK_RIGHT, first)}) {
        for (int i = 0; key && i < 3; ++i) PressKeys(window, {static_cast<WORD>(key)});
        EXPECT_TRUE(WaitFor([&] { return ScreenColour(at) == colour; }, 5s)) << key;
    }
}

TEST_F(Wallpaper, BadPicturesAreReportedOnceAndLeaveAWindowThatClosesAsUsual) {
    WriteBytes(path(L"Notes.png"), "not a picture\r\n");
    for (const std::wstring file : {L"Test_Huge.png", L"Notes.png", L"Gone.jpg"}) {
        SCOPED_TRACE(Utf8(file));
        const bool missing = file == L"Gone.jpg";  // the rest are the imaging library's to report
        HWND window = open(file); ASSERT_NE(window, nullptr);
        ASSERT_TRUE(AnswerMessage(orvane->id(),
                                  missing ? L"Cannot locate the following program/file:\r\n\r\n" + path(file) + L"\r\n\r\n"
                                          : PictureErrorText(path(file)),
                                  IDOK, missing ? L"Orvane" : kImagingTitle));
        EXPECT_EQ(WaitForDialogTitled(orvane->id(), missing ? L"Orvane" : kImagingTitle, 1s), nullptr) << "once";
        PROCESS_MEMORY_COUNTERS memory{};
        GetProcessMemoryInfo(orvane->handle(), &memory, sizeof memory);
        EXPECT_LT(memory.PeakWorkingSetSize, 200u << 20);
        PressKeys(window, {VK_ESCAPE});
        ASSERT_TRUE(answer(L"x"));
        EXPECT_TRUE(closes(window));
        orvane->close();
        ASSERT_EQ(orvane->waitForExit(), 0u);
    }
}

}  // namespace
}  // namespace orvane::e2e
