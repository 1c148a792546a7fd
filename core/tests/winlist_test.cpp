#include "winlist.h"

#include <gtest/gtest.h>

#include "app.h"
#include "fake_system.h"

namespace orvane {
namespace {

constexpr std::uint32_t kToolWindow = 0x80;
constexpr std::uint32_t kAppWindow = 0x40000;

TopLevelWindow Window(WindowRef handle, const std::wstring& title) { return {handle, true, false, false, 0, title}; }

TEST(WindowList, KeepsOnlyTheWindowsATaskBarWouldShow) {
    testing::FakeSystem sys;
    App app{sys};
    app.MainWindowRef = 1;

    auto hidden = Window(3, L"Hidden");
    hidden.visible = false;
    auto child = Window(4, L"Child");
    child.hasParent = true;
    auto owned = Window(5, L"Owned");
    owned.hasOwner = true;
    auto ownedApp = Window(6, L"Owned app");
    ownedApp.hasOwner = true;
    ownedApp.exStyle = kAppWindow;
    auto tool = Window(7, L"Tool");
    tool.exStyle = kToolWindow;
    auto toolApp = Window(8, L"Tool app");
    toolApp.exStyle = kToolWindow | kAppWindow;
    auto ownedToolApp = Window(9, L"Owned tool app");
    ownedToolApp.hasOwner = true;
    ownedToolApp.exStyle = kToolWindow | kAppWindow;

    sys.windows = {Window(2, L"Editor"), Window(1, L"Orvane"), hidden, child, owned, ownedApp, tool,
                   toolApp, ownedToolApp, Window(10, L""), Window(11, L"Editor")};
    app.windowList = {{L"stale", 99}};
    RefreshWindowList(app);

    const WindowList expected = {{L"Editor", 2}, {L"Owned app", 6}, {L"Owned tool app", 9}, {L"Editor", 11}};
    ASSERT_EQ(app.windowList.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(app.windowList[i].title, expected[i].title);
        EXPECT_EQ(app.windowList[i].handle, expected[i].handle);
    }
    EXPECT_EQ(FindListedWindow(app.windowList, L"Editor"), 2u);
    EXPECT_EQ(FindListedWindow(app.windowList, L"editor"), 0u);
}

}  // namespace
}  // namespace orvane
