#include "winlist.h"

#include "app.h"

namespace orvane {

namespace {
constexpr std::uint32_t kToolWindowStyle = 0x80;
constexpr std::uint32_t kAppWindowStyle = 0x40000;
} // namespace

bool IsListedWindow(const TopLevelWindow &window, WindowRef mainWindow) {
    if (window.handle == mainWindow || !window.visible || window.hasParent)
        return false;
    const bool taskBarStyle =
        window.hasOwner ? (window.exStyle & kAppWindowStyle) != 0 : (window.exStyle & kToolWindowStyle) == 0;
    return taskBarStyle && !window.title.empty();
}

void RefreshWindowList(App &app) {
    app.windowList.clear();
    for (TopLevelWindow &window : app.desktop.topLevelWindows())
        if (IsListedWindow(window, app.MainWindowRef))
            app.windowList.push_back({std::move(window.title), window.handle});
}

WindowRef FindListedWindow(const WindowList &list, const std::wstring &title) {
    for (const WindowListEntry &entry : list)
        if (entry.title == title)
            return entry.handle;
    return 0;
}

} // namespace orvane
