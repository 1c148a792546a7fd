// The desktop's application windows (the ones a task bar would show), used to
// find a suite tool that already runs.
#pragma once

#include <string>
#include <vector>

#include "desktop.h"

namespace orvane {

class App;

struct WindowListEntry {
    std::wstring title;
    WindowRef handle = 0;
};

// In the platform's enumeration order, top of the Z order first.
using WindowList = std::vector<WindowListEntry>;

// Whether a top-level window belongs in the list: not this program's main
// window, visible, without parent, and either unowned and not a tool window or
// owned and marked as an application window; and titled.
bool IsListedWindow(const TopLevelWindow &window, WindowRef mainWindow);

void RefreshWindowList(App &app);

// The first entry titled exactly so; 0 when there is none.
WindowRef FindListedWindow(const WindowList &list, const std::wstring &title);

} // namespace orvane
