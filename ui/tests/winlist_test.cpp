// The window-list filter against real windows of every kind.
#include <gtest/gtest.h>

#include <algorithm>

#include "app.h"
#include "handles.h"
#include "win32_system.h"
#include "winlist.h"

namespace orvane::ui {
namespace {

HWND Make(const wchar_t* title, DWORD style, DWORD exStyle = 0, HWND parent = nullptr) {
    return CreateWindowExW(exStyle, L"STATIC", title, style, 10, 10, 120, 60, parent, nullptr, nullptr, nullptr);
}

TEST(RealWindowList, OnlyTheWindowsATaskBarShowsComeOut) {
    constexpr DWORD kShown = WS_OVERLAPPEDWINDOW | WS_VISIBLE;
    UniqueWindow bar(Make(L"Orvane", kShown));
    UniqueWindow plain(Make(L"Listed plain", kShown));
    UniqueWindow ownedApp(Make(L"Listed owned app window", kShown, WS_EX_APPWINDOW, plain.get()));
    UniqueWindow hidden(Make(L"Hidden", WS_OVERLAPPEDWINDOW));
    UniqueWindow child(Make(L"Child", WS_CHILD | WS_VISIBLE, 0, plain.get()));
    UniqueWindow owned(Make(L"Owned", kShown, 0, plain.get()));
    UniqueWindow ownedPopupApp(Make(L"Owned popup app window", WS_POPUP | WS_VISIBLE, WS_EX_APPWINDOW, plain.get()));
    UniqueWindow tool(Make(L"Tool", kShown, WS_EX_TOOLWINDOW));
    UniqueWindow untitled(Make(L"", kShown));
    for (HWND w : {bar.get(), plain.get(), ownedApp.get(), hidden.get(), child.get(), owned.get(),
                   ownedPopupApp.get(), tool.get(), untitled.get()})
        ASSERT_NE(w, nullptr);
    SetWindowPos(plain.get(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);

    Win32System sys;
    App app(sys);
    app.MainWindowRef = ToRef(bar.get());
    RefreshWindowList(app);

    std::vector<std::wstring> ours;
    const DWORD me = GetCurrentProcessId();
    for (const WindowListEntry& entry : app.windowList) {
        DWORD process = 0;
        GetWindowThreadProcessId(ToHwnd(entry.handle), &process);
        if (process == me) ours.push_back(entry.title);
    }
    std::sort(ours.begin(), ours.end());
    // An owned popup reports its owner as parent, so it stays out too.
    EXPECT_EQ(ours, (std::vector<std::wstring>{L"Listed owned app window", L"Listed plain"}));
    EXPECT_EQ(FindListedWindow(app.windowList, L"Listed plain"), ToRef(plain.get()));
    EXPECT_EQ(FindListedWindow(app.windowList, L"Orvane"), 0u) << "the bar itself never enters";
}

TEST(RealWindowList, EntriesFollowTheZOrderTopFirst) {
    constexpr DWORD kShown = WS_OVERLAPPEDWINDOW | WS_VISIBLE;
    UniqueWindow lower(Make(L"Z lower", kShown));
    UniqueWindow upper(Make(L"Z upper", kShown));
    SetWindowPos(upper.get(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    SetWindowPos(lower.get(), upper.get(), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    Win32System sys;
    App app(sys);
    RefreshWindowList(app);
    auto position = [&](const wchar_t* title) {
        return std::find_if(app.windowList.begin(), app.windowList.end(),
                            [&](const WindowListEntry& e) { return e.title == title; }) -
               app.windowList.begin();
    };
    EXPECT_LT(position(L"Z upper"), position(L"Z lower"));
    EXPECT_LT(position(L"Z lower"), static_cast<long>(app.windowList.size()));
}

}  // namespace
}  // namespace orvane::ui
