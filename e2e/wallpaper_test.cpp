// The wallpaper window driven as a user would: opened from the bar's menu,
// its picture read back from the screen, and the ways out through the return password.
#include <gtest/gtest.h>

#include "program_test.h"
#include <psapi.h>
#include "picture_size.h"
#include "resource.h"
#include "wallpaper.h"

namespace orvane::e2e {
namespace {

using namespace testsupport;

class Wallpaper : public ProgramTest {
protected:
    // The bar on a picture, built or written here, with the wallpaper window open.
    HWND open(const std::wstring &picture, const std::string &password = "", const std::string &stretch = "0") {
        const std::wstring built = EnvironmentPath(L"ORVANE_PICTURES") + L"\\" + picture;
        if (GetFileAttributesW(built.c_str()) != INVALID_FILE_ATTRIBUTES)
            CopyInto(built, folder.path());
        return ProgramTest::open({{30, path(picture)}, {31, stretch}, {32, password}}, L"Wa&llpaper", L"Wallpaper");
    }
    static RECT Client(HWND window) {
        RECT r{};
        if (GetClientRect(window, &r))
            MapWindowPoints(window, nullptr, reinterpret_cast<POINT *>(&r), 2);
        return r;
    }
};

TEST_F(Wallpaper, APngFillsTheScreenWithWhiteBandsAndTheWaysOutAskForThePassword) {
    HWND window = open(L"Test_Bands.png", "abc");
    ASSERT_NE(window, nullptr);
    const RECT client = Client(window);
    const PixelRect drawn = FitKeepingAspect({1600, 400}, {client.right - client.left, client.bottom - client.top});
    const LONG middle = (client.left + client.right) / 2, top = client.top + drawn.top;
    for (const auto &[y, colour] :
         {std::pair(top - 2, RGB(255, 255, 255)), std::pair(top + 2, RGB(200, 0, 0)),
          std::pair(top + drawn.height - 3, RGB(200, 0, 0)), std::pair(top + drawn.height + 1, RGB(255, 255, 255))})
        EXPECT_TRUE(Becomes(colour, ScreenColour, POINT{middle, y})) << "at " << y;

    HWND bar = orvane->waitForMainWindow();
    // A way round the password, if any: a message posted, a show command or a move off the screen, to the wallpaper or
    // to the bar (the cover's owner). Then a way out, which asks once what went before is done.
    enum class Out {
        Escape,
        Click,
        CloseBar
    };
    struct Way {
        HWND target = nullptr;
        UINT message = 0;
        WPARAM wParam = 0;
        int show = -1;
        bool moveOff = false;
        Out out = Out::Escape;
    };
    const Way ways[] = {
        {},
        {.out = Out::Click},
        {.out = Out::CloseBar},                                          // the bar's close goes through it too
        {.target = window, .message = WM_ENDSESSION, .wParam = TRUE},    // the session does not end
        {.target = window, .message = WM_SYSCOMMAND, .wParam = SC_MOVE}, // else Esc ends the move
        {.target = window, .message = WM_SYSCOMMAND, .wParam = SC_MINIMIZE},
        {.target = window, .show = SW_MINIMIZE},
        {.target = window, .show = SW_HIDE},
        {.target = window, .moveOff = true},
        {.target = bar, .show = SW_MINIMIZE},
    };
    for (const Way &way : ways) {
        if (way.message)
            PostMessageW(way.target, way.message, way.wParam, 0);
        if (way.show >= 0)
            ShowWindow(way.target, way.show);
        if (way.moveOff)
            MoveWindow(way.target, -500, 100, 400, 300, TRUE);
        if (way.out == Out::Escape)
            PressKeys(window, {VK_ESCAPE});
        if (way.out == Out::Click)
            ClickAt({middle, top + 10});
        if (way.out == Out::CloseBar)
            PostMessageW(bar, WM_CLOSE, 0, 0);
        ASSERT_TRUE(AnswerPassword(orvane->id(), L"ABC"));
        ASSERT_TRUE(AnswerMessage(orvane->id(), L"Wrong password!\r\n\r\n\"ABC\""));
        for (const POINT corner :
             {POINT{0, 0}, POINT{GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1}})
            EXPECT_EQ(GetAncestor(WindowFromPoint(corner), GA_ROOT), window) << "over the whole screen";
        EXPECT_TRUE(IsWindow(bar) && !IsIconic(bar)) << "runs on";
    }
    PressKeys(window, {VK_CONTROL, VK_SHIFT, 'M'}); // the clock, over the wallpaper
    HWND clock = WaitForDialogTitled(orvane->id(), L"Clock");
    ASSERT_NE(clock, nullptr);
    RECT c{};
    GetWindowRect(clock, &c);
    EXPECT_EQ(GetAncestor(WindowFromPoint({(c.left + c.right) / 2, (c.top + c.bottom) / 2}), GA_ROOT), clock);
    PressKeys(clock, {VK_SPACE});
    ASSERT_TRUE(Gone(clock));
    PressKeys(window, {VK_MENU, VK_F4});
    ASSERT_TRUE(AnswerPassword(orvane->id(), L"  abc  "));
    EXPECT_TRUE(Gone(window));
}

TEST_F(Wallpaper, ASmallBitmapIsShownAtItsSizeThenStretched) {
    HWND window = open(L"Wallpaper_Small.bmp");
    ASSERT_NE(window, nullptr);
    const POINT corner{Client(window).left + 5, Client(window).top + 5};
    EXPECT_TRUE(Becomes(RGB(255, 255, 255), ScreenColour, corner));
    PressKeys(window, {VK_CONTROL, VK_SHIFT, 'Y'}); // "&Stretch"
    EXPECT_TRUE(Becomes(RGB(250, 220, 120), ScreenColour, corner));
}

TEST_F(Wallpaper, ALargeBitmapTurnedToItsNaturalSizeGetsScrollBarsThatTheKeysMove) {
    HWND window = open(L"Test_Large.bmp", "", "1"); // 2000 x 1500 in squares of 100, two colours
    ASSERT_NE(window, nullptr);
    const LONG bars = WS_HSCROLL | WS_VSCROLL;
    EXPECT_TRUE(Becomes(bars, [&] {
        return GetWindowLongW(window, GWL_STYLE) & bars;
    }));
    const POINT at{Client(window).left + 50, Client(window).top + 50};
    const COLORREF first = RGB(0x20, 0x40, 0xc0), second = RGB(0xf0, 0xc0, 0x20);
    // 40 pixels a key: three take the next square down, then the next one right.
    for (const auto &[key, colour] : {std::pair(0, first), std::pair(VK_DOWN, second), std::pair(VK_RIGHT, first)}) {
        for (int i = 0; key && i < 3; ++i)
            PressKeys(window, {static_cast<WORD>(key)});
        EXPECT_TRUE(Becomes(colour, ScreenColour, at)) << key;
    }
}

TEST_F(Wallpaper, BadPicturesAreReportedOnceAndLeaveAWindowThatWithoutAPasswordAnyAnswerCloses) {
    WriteBytes(file(L"Notes.png"), "not a picture\r\n");
    for (const std::wstring name : {L"Test_Huge.png", L"Notes.png", L"Gone.jpg"}) {
        SCOPED_TRACE(Utf8(name));
        const bool missing = name == L"Gone.jpg"; // the rest are the imaging library's to report
        HWND window = open(name);
        ASSERT_NE(window, nullptr);
        ASSERT_TRUE(AnswerMessage(orvane->id(),
                                  missing
                                      ? L"Cannot locate the following program/file:\r\n\r\n" + file(name) + L"\r\n\r\n"
                                      : PictureErrorText(file(name)),
                                  IDOK, missing ? L"Orvane" : kImagingTitle));
        EXPECT_EQ(WaitForDialogTitled(orvane->id(), missing ? L"Orvane" : kImagingTitle, 1s), nullptr) << "once";
        PROCESS_MEMORY_COUNTERS memory{};
        GetProcessMemoryInfo(orvane->handle(), &memory, sizeof memory);
        EXPECT_LT(memory.PeakWorkingSetSize, 200u << 20);
        PressKeys(window, {VK_ESCAPE});
        ASSERT_TRUE(AnswerPassword(orvane->id(), L"x"));
        EXPECT_TRUE(Gone(window));
        orvane->close();
        ASSERT_EQ(orvane->waitForExit(), 0u);
    }
}

} // namespace
} // namespace orvane::e2e
