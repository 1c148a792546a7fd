// The skin chooser on a real folder, used from a second thread as a user would with the keyboard.
#include <gtest/gtest.h>

#include <thread>

#include "app.h"
#include "dialogs.h"
#include "orvane_process.h"
#include "resource.h"
#include "skin.h"
#include "win32_system.h"
#include "win_support.h"

namespace orvane::ui {
namespace {

using namespace testsupport;
using namespace std::chrono_literals;

TEST(SkinChooser, OffersTheFolderSkinsSelectsTheOneInUseAndAppliesOnlyAUsableChoice) {
    const std::wstring folder = FreshFolder(EnvironmentPath(L"ORVANE_TEST_ROOT"), L"skin chooser") + L"\\";
    CopyInto(EnvironmentPath(L"ORVANE_SKINS") + L"\\Skin_Slate.bmp", folder);
    for (const wchar_t* name : {L"Skin_Alba.bmp", L"Skin_Bad.bmp", L"Alba.bmp"}) WriteBytes(folder + name, "");
    CreateDirectoryW((folder + L"Skin_Folder.bmp").c_str(), nullptr);
    Win32System sys;
    App app(sys);
    Skin skin;
    app.settings.SkinFile = L"C:\\elsewhere\\skin_slate.BMP", app.settings.SkinFolder = folder;
    std::vector<std::wstring> applied;
    int adjusted = 0;

    std::thread user([&] {
        HWND dialog = nullptr;
        WaitFor([&] { return (dialog = FindProcessWindow(GetCurrentProcessId(), L"#32770", L"Change skin")); }, 10s);
        HWND files = GetDlgItem(dialog, IDC_SKIN_FILES);
        EXPECT_EQ(SendMessageW(files, LB_GETCOUNT, 0, 0), 3);
        EXPECT_EQ(SendMessageW(files, LB_GETCURSEL, 0, 0), 2) << "after Skin_Alba and Skin_Bad";
        EXPECT_TRUE(WaitFor([&] { return e2e::FocusOf(dialog) == files; }, 10s));
        DeleteFileW((folder + L"Skin_Alba.bmp").c_str());  // listed, then gone: not applied
        for (WORD key : {VK_UP, VK_RETURN, VK_UP, VK_RETURN, VK_ESCAPE}) {
            if (key == VK_ESCAPE) PostMessageW(GetDlgItem(dialog, IDC_ADJUST_SKIN), BM_CLICK, 0, 0);
            PostMessageW(files, WM_KEYDOWN, key, 0);
        }
        if (!WaitFor([&] { return !IsWindow(dialog); }, 10s)) ADD_FAILURE() << "Esc leaves it open", EndDialog(dialog, 0);
    });
    ShowSkinChooser(app, skin, nullptr, {[&] { applied.push_back(app.settings.SkinFile); }, [&] { ++adjusted; }});
    user.join();
    EXPECT_EQ(applied, std::vector<std::wstring>{folder + L"Skin_Bad.bmp"}) << "no bitmap, but it passes the skin test";
    EXPECT_EQ(std::pair(app.settings.SkinFile, adjusted), std::pair(folder + L"Skin_Alba.bmp", 1));
}

}  // namespace
}  // namespace orvane::ui
