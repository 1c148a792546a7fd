// The clock window, opened in this process and driven from a second thread.
#include <gtest/gtest.h>

#include <functional>
#include <thread>

#include "clock.h"
#include "dialogs.h"
#include "resource.h"
#include "win_support.h"

namespace orvane::ui {
namespace {

using namespace std::chrono_literals;
using namespace testsupport;

void Press(WORD key) {
    const auto scan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    INPUT inputs[2] = {{.type = INPUT_KEYBOARD, .ki = {key, scan, 0, 0, 0}},
                       {.type = INPUT_KEYBOARD, .ki = {key, scan, KEYEVENTF_KEYUP, 0, 0}}};
    SendInput(2, inputs, sizeof(INPUT));
}

void ClickOn(HWND dialog, int id) {  // the centre of a label, or of the window
    RECT place{};
    GetWindowRect(id ? GetDlgItem(dialog, id) : dialog, &place);
    SetCursorPos((place.left + place.right) / 2, id ? (place.top + place.bottom) / 2 : place.bottom - 4);
    INPUT inputs[2] = {{.type = INPUT_MOUSE, .mi = {0, 0, 0, MOUSEEVENTF_LEFTDOWN, 0, 0}},
                       {.type = INPUT_MOUSE, .mi = {0, 0, 0, MOUSEEVENTF_LEFTUP, 0, 0}}};
    SendInput(2, inputs, sizeof(INPUT));
}

TEST(ClockWindow, ShowsDateAndTimeAndAnyKeyOrClickClosesIt) {
    const std::pair<const char*, std::function<void(HWND)>> closers[] = {
        {"A", [](HWND) { Press('A'); }},          {"7", [](HWND) { Press('7'); }},
        {"F5", [](HWND) { Press(VK_F5); }},       {"Esc", [](HWND) { Press(VK_ESCAPE); }},
        {"Enter", [](HWND) { Press(VK_RETURN); }}, {"Tab", [](HWND) { Press(VK_TAB); }},
        {"Down", [](HWND) { Press(VK_DOWN); }},   {"Space", [](HWND) { Press(VK_SPACE); }},
        {"click on the time", [](HWND d) { ClickOn(d, IDC_CLOCK_TIME); }},
        {"click on the window", [](HWND d) { ClickOn(d, 0); }},
    };
    for (const auto& [name, close] : closers) {
        SYSTEMTIME before{}, after{};
        std::wstring date, time, seconds;
        bool closed = false;
        std::thread driver([&] {
            HWND dialog = nullptr;
            WaitFor([&] { return (dialog = FindWindowW(L"#32770", L"Clock")) && IsWindowVisible(dialog); }, 10s);
            GetLocalTime(&before);
            date = TextOf(GetDlgItem(dialog, IDC_CLOCK_DATE));
            time = TextOf(GetDlgItem(dialog, IDC_CLOCK_TIME));
            seconds = TextOf(GetDlgItem(dialog, IDC_CLOCK_SECONDS));
            GetLocalTime(&after);
            SetForegroundWindow(dialog);
            WaitFor([&] { return GetForegroundWindow() == dialog; }, 2s);
            close(dialog);
            closed = WaitFor([&] { return !IsWindow(dialog); }, 3s);
            if (!closed) PostMessageW(dialog, WM_CLOSE, 0, 0);  // so the test goes on
        });
        ShowClockWindow(nullptr);
        driver.join();
        EXPECT_TRUE(closed) << name;
        wchar_t today[128] = {};
        GetDateFormatW(LOCALE_USER_DEFAULT, 0, &before, kClockDatePicture, today, 128);
        EXPECT_EQ(date, today);
        EXPECT_TRUE(time == ClockTimeText(before.wHour, before.wMinute) || time == ClockTimeText(after.wHour, after.wMinute))
            << Utf8(time);
        EXPECT_TRUE(seconds.size() == 6 && seconds == ClockSecondsText(_wtoi(seconds.c_str() + 2))) << Utf8(seconds);
    }
}

}  // namespace
}  // namespace orvane::ui
