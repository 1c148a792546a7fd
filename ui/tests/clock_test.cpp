// The clock window, opened in this process and driven from a second thread.
#include <gtest/gtest.h>

#include <thread>

#include "clock.h"
#include "dialogs.h"
#include "orvane_process.h"
#include "resource.h"
#include "skin.h"
#include "win_support.h"

namespace orvane::ui {
namespace {

using namespace std::chrono_literals;
using namespace testsupport;

TEST(ClockWindow, ShowsDateAndTimeAndAnyKeyOrClickClosesIt) {
    // Keys the dialog manager would keep for itself, and clicks (0: the window below its frames).
    const std::pair<WORD, int> closers[] = {{'A', 0}, {VK_F5, 0}, {VK_ESCAPE, 0}, {VK_RETURN, 0}, {VK_TAB, 0},
                                            {VK_DOWN, 0}, {0, IDC_CLOCK_TIME}, {0, 0}};
    Skin skin;  // none loaded: the system's colours
    for (const auto& [key, label] : closers) {
        SYSTEMTIME before{}, after{};
        std::wstring date, time, seconds;  // as shown
        bool closed = false;
        std::thread driver([&] {
            HWND dialog = nullptr;
            WaitFor([&] { return (dialog = FindWindowW(L"#32770", L"Clock")) && IsWindowVisible(dialog); }, 10s);
            GetLocalTime(&before);
            date = TextOf(GetDlgItem(dialog, IDC_CLOCK_DATE)), time = TextOf(GetDlgItem(dialog, IDC_CLOCK_TIME));
            seconds = TextOf(GetDlgItem(dialog, IDC_CLOCK_SECONDS));
            GetLocalTime(&after);
            // Keys are posted to the focus, the key catcher, so they pass the dialog manager as typed keys do.
            RECT place{};
            GetWindowRect(label ? GetDlgItem(dialog, label) : dialog, &place);
            key ? void(PostMessageW(GetDlgItem(dialog, IDC_CLOCK_KEYS), WM_KEYDOWN, key, 1)) : e2e::ClickAt({(place.left + place.right) / 2, label ? (place.top + place.bottom) / 2 : place.bottom - 4});
            if (!(closed = WaitFor([&] { return !IsWindow(dialog); }, 3s))) PostMessageW(dialog, WM_CLOSE, 0, 0);  // so the test goes on
        });
        ShowClockWindow(skin, nullptr);
        driver.join();
        EXPECT_TRUE(closed) << key << " " << label;
        wchar_t today[128] = {};
        EXPECT_TRUE(GetDateFormatW(LOCALE_USER_DEFAULT, 0, &before, kClockDatePicture, today, 128) && date == today) << Utf8(date);
        EXPECT_TRUE(time == ClockTimeText(before.wHour, before.wMinute) || time == ClockTimeText(after.wHour, after.wMinute));
        EXPECT_TRUE(seconds.size() == 6 && seconds == ClockSecondsText(_wtoi(seconds.c_str() + 2))) << Utf8(seconds);
    }
}

}  // namespace
}  // namespace orvane::ui
