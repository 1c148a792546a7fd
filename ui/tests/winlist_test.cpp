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

TEST(RealWindowList, OnlyTheWindowsATaskBarShowsComeOutTopOfTheZOrderFirst) {
    constexpr DWORD kShown = WS_OVERLAPPEDWINDOW | WS_VISIBLE;
    UniqueWindow bar(Make(L"Orvane", kShown));
    UniqueWindow plain(Make(L"Listed plain", kShown));
    UniqueWindow lower(Make(L"Listed lower", kShown));
    UniqueWindow ownedApp(Make(L"Listed owned app window", kShown, WS_EX_APPWINDOW, plain.get()));
    UniqueWindow hidden(Make(L"Hidden", WS_OVERLAPPEDWINDOW));
    UniqueWindow child(Make(L"Child", WS_CHILD | WS_VISIBLE, 0, plain.get()));
    UniqueWindow owned(Make(L"Owned", kShown, 0, plain.get()));
    UniqueWindow ownedPopupApp(Make(L"Owned popup app window", WS_POPUP | WS_VISIBLE, WS_EX_APPWINDOW, plain.get()));
    UniqueWindow tool(Make(L"Tool", kShown, WS_EX_TOOLWINDOW));
    UniqueWindow untitled(Make(L"", kShown));
    for (HWND w : {bar.get(), plain.get(), lower.get(), ownedApp.get(), hidden.get(), child.get(), owned.get(),
                   ownedPopupApp.get(), tool.get(), untitled.get()})
        ASSERT_NE(w, nullptr);
    SetWindowPos(plain.get(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    SetWindowPos(lower.get(), plain.get(), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);

    Win32System sys;
    App app(sys);
    app.MainWindowRef = ToRef(bar.get());
    RefreshWindowList(app);

    std::vector<std::wstring> ours;  // in list order
    const DWORD me = GetCurrentProcessId();
    for (const WindowListEntry& entry : app.windowList) {
        DWORD process = 0;
        GetWindowThreadProcessId(ToHwnd(entry.handle), &process);
        if (process == me) ours.push_back(entry.title);
    }
    const auto at = [&](const wchar_t* title) { return std::find(ours.begin(), ours.end(), title) - ours.begin(); };
    EXPECT_LT(at(L"Listed plain"), at(L"Listed lower"));
    std::sort(ours.begin(), ours.end());
    // An owned popup reports its owner as parent, so it stays out too.
    EXPECT_EQ(ours, (std::vector<std::wstring>{L"Listed lower", L"Listed owned app window", L"Listed plain"}));
    EXPECT_EQ(FindListedWindow(app.windowList, L"Listed plain"), ToRef(plain.get()));
    EXPECT_EQ(FindListedWindow(app.windowList, L"Orvane"), 0u) << "the bar itself never enters";
}

}  // namespace
}  // namespace orvane::ui
