// The other programs' windows, the cursor and the message pump.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "window_ref.h"

namespace orvane {

// What the window-list filter needs to know of one top-level window.
struct TopLevelWindow {
    WindowRef handle = 0;
    bool visible = false;
    bool hasParent = false;
    bool hasOwner = false;
    std::uint32_t exStyle = 0;
    std::wstring title; // at most 255 characters, as the platform returned it
};

class Desktop {
public:
    virtual ~Desktop() = default;

    // Top-level windows in the platform's enumeration order (top of the Z order first).
    virtual std::vector<TopLevelWindow> topLevelWindows() = 0;
    virtual bool bringToForeground(WindowRef window) = 0;
    // The window just above in the Z order; 0 at the top.
    virtual WindowRef windowAbove(WindowRef window) = 0;
    virtual void restoreIfMinimised(WindowRef window) = 0;

    virtual void showWaitCursor() = 0;
    virtual void restoreCursor() = 0;
    virtual void processPendingEvents() = 0;
};

} // namespace orvane
