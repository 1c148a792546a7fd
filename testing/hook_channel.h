// One question answered from inside another program. The asking side hooks
// the program's thread with a DLL and posts a registered message to one of its
// windows; the DLL, on that message, writes its answer into named shared
// memory and sets a named event. The harness reads menus this way
// (menu_hook.dll), the soak counts the program's objects (handle_count.dll).
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>

#include "handles.h"

namespace orvane::testsupport {

// What both sides name alike.
struct HookChannelNames {
    const wchar_t *question; // the registered window message
    const wchar_t *answer;   // the shared memory that holds the answer
    const wchar_t *answered; // the event set once it is written
    std::size_t bytes;       // the largest answer
};

// The asking side: the DLL's hook on the window's thread, the memory and the event, as long as it lives.
class HookChannel {
public:
    // The DLL is looked for beside the running program; hook names its exported hook procedure.
    HookChannel(HWND window, const wchar_t *dll, const char *hook, const HookChannelNames &names);
    explicit operator bool() const {
        return hook_ && view_;
    }
    // Asks and waits for the answer: its bytes, or nullptr when none came in time.
    const void *ask(DWORD timeoutMs) const;

private:
    HWND window_;
    HookChannelNames names_;
    ui::UniqueModule library_;
    ui::UniqueHandle memory_;
    ui::UniqueHandle answered_;
    ui::UniqueView view_;
    ui::UniqueHook hook_;
};

// The answering side, in the DLL's hook procedure: true when this call carries the question, which it then takes
// out of the queue.
bool TakeQuestion(int code, WPARAM wParam, LPARAM lParam, const HookChannelNames &names);
// Writes the answer, cut to the memory's size, and says it is there.
void Answer(const HookChannelNames &names, const void *bytes, std::size_t size);

} // namespace orvane::testsupport
