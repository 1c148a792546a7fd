// The clock and the skin chooser, opened in this process and used from a second thread as a user would.
#include <gtest/gtest.h>

#include <thread>

#include "app.h"
#include "clock.h"
#include "dialogs.h"
#include "orvane_process.h"
#include "resource.h"
#include "skin.h"
#include "win32_system.h"
#include "win_support.h"

namespace orvane::ui {
namespace {

using namespace std::chrono_literals;
using namespace testsupport;
using e2e::Gone;

TEST(ClockWindow, ShowsDateAndTimeAndAnyKeyOrClickClosesIt) {
    // Keys the dialog manager would keep for itself, and clicks (0: the window below its frames).
    const std::pair<WORD, int> closers[] = {{'A', 0},    {VK_F5, 0},   {VK_ESCAPE, 0},      {VK_RETURN, 0},
                                            {VK_TAB, 0}, {VK_DOWN, 0}, {0, IDC_CLOCK_TIME}, {0, 0}};
    Skin skin; // none loaded: the system's colours
    for (const auto &[key, label] : closers) {
        SYSTEMTIME before{}, after{};
        std::wstring date, time, seconds; // as shown
        bool closed = false;
        std::thread driver([&] {
            HWND dialog = FindProcessWindow(GetCurrentProcessId(), L"#32770", L"Clock", 10s);
            GetLocalTime(&before);
            date = TextOf(GetDlgItem(dialog, IDC_CLOCK_DATE));
            time = TextOf(GetDlgItem(dialog, IDC_CLOCK_TIME));
            seconds = TextOf(GetDlgItem(dialog, IDC_CLOCK_SECONDS));
            GetLocalTime(&after);
            // Keys are posted to the focus, the key catcher, so they pass the dialog manager as typed keys do.
            RECT place{};
            GetWindowRect(label ? GetDlgItem(dialog, label) : dialog, &place);
            key ? void(PostMessageW(GetDlgItem(dialog, IDC_CLOCK_KEYS), WM_KEYDOWN, key, 1))
                : e2e::ClickAt(
                      {(place.left + place.right) / 2, label ? (place.top + place.bottom) / 2 : place.bottom - 4});
            if (!(closed = Gone(dialog, 3s)))
                PostMessageW(dialog, WM_CLOSE, 0, 0); // so the test goes on
        });
        ShowClockWindow(skin, nullptr);
        driver.join();
        EXPECT_TRUE(closed) << key << " " << label;
        wchar_t today[128] = {};
        EXPECT_TRUE(GetDateFormatW(LOCALE_USER_DEFAULT, 0, &before, kClockDatePicture, today, 128) && date == today)
            << Utf8(date);
        EXPECT_TRUE(time == ClockTimeText(before.wHour, before.wMinute) ||
                    time == ClockTimeText(after.wHour, after.wMinute));
        EXPECT_TRUE(seconds.size() == 6 && seconds == ClockSecondsText(_wtoi(seconds.c_str() + 2))) << Utf8(seconds);
    }
}

TEST(SkinChooser, OffersTheFolderSkinsSelectsTheOneInUseAndAppliesOnlyAUsableChoice) {
    const std::wstring folder = FreshFolder(EnvironmentPath(L"ORVANE_TEST_ROOT"), L"skin chooser") + L"\\";
    CopyInto(EnvironmentPath(L"ORVANE_SKINS") + L"\\Skin_Slate.bmp", folder);
    for (const wchar_t *name : {L"Skin_Alba.bmp", L"Skin_Bad.bmp", L"Alba.bmp"})
        WriteBytes(folder + name, "");
    CreateDirectoryW((folder + L"Skin_Folder.bmp").c_str(), nullptr);
    Win32System sys;
    App app(sys);
    Skin skin;
    app.settings.SkinFile = L"C:\\elsewhere\\skin_slate.BMP";
    app.settings.SkinFolder = folder;
    std::vector<std::wstring> applied;
    int adjusted = 0;

    std::thread user([&] {
        HWND dialog = FindProcessWindow(GetCurrentProcessId(), L"#32770", L"Change skin", 10s);
        HWND files = GetDlgItem(dialog, IDC_SKIN_FILES);
        EXPECT_EQ(SendMessageW(files, LB_GETCOUNT, 0, 0), 3);
        EXPECT_EQ(SendMessageW(files, LB_GETCURSEL, 0, 0), 2) << "after Skin_Alba and Skin_Bad";
        EXPECT_TRUE(WaitFor(
            [&] {
                return e2e::FocusOf(dialog) == files;
            },
            10s));
        DeleteFileW((folder + L"Skin_Alba.bmp").c_str()); // listed, then gone: not applied
        for (WORD key : {VK_UP, VK_RETURN, VK_UP, VK_RETURN})
            PostMessageW(files, WM_KEYDOWN, key, 0);
        PostMessageW(GetDlgItem(dialog, IDC_ADJUST_SKIN), BM_CLICK, 0, 0);
        PostMessageW(files, WM_KEYDOWN, VK_ESCAPE, 0);
        if (!Gone(dialog, 10s)) {
            ADD_FAILURE() << "Esc leaves it open";
            EndDialog(dialog, 0);
        }
    });
    ShowSkinChooser(app, skin, nullptr,
                    {[&] {
                         applied.push_back(app.settings.SkinFile);
                     },
                     [&] {
                         ++adjusted;
                     }});
    user.join();
    EXPECT_EQ(applied, std::vector<std::wstring>{folder + L"Skin_Bad.bmp"}) << "no bitmap, but it passes the skin test";
    EXPECT_EQ(std::pair(app.settings.SkinFile, adjusted), std::pair(folder + L"Skin_Alba.bmp", 1));
}

} // namespace
} // namespace orvane::ui
