#include "hook_channel.h"

#include <algorithm>
#include <cstring>

#include "win_support.h"

namespace orvane::testsupport {

HookChannel::HookChannel(HWND window, const wchar_t *dll, const char *hook, const HookChannelNames &names)
    : window_(window), names_(names), library_(LoadLibraryW((ExeFolder() + L"\\" + dll).c_str())),
      memory_(CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, static_cast<DWORD>(names.bytes),
                                 names.answer)),
      answered_(CreateEventW(nullptr, TRUE, FALSE, names.answered)) {
    if (memory_)
        view_.reset(MapViewOfFile(memory_.get(), FILE_MAP_READ, 0, 0, 0));
    const auto procedure = reinterpret_cast<HOOKPROC>(reinterpret_cast<void *>(GetProcAddress(library_.get(), hook)));
    if (procedure && answered_)
        hook_.reset(
            SetWindowsHookExW(WH_GETMESSAGE, procedure, library_.get(), GetWindowThreadProcessId(window, nullptr)));
}

const void *HookChannel::ask(DWORD timeoutMs) const {
    if (!*this)
        return nullptr;
    ResetEvent(answered_.get());
    PostMessageW(window_, RegisterWindowMessageW(names_.question), 0, 0);
    return WaitForSingleObject(answered_.get(), timeoutMs) == WAIT_OBJECT_0 ? view_.get() : nullptr;
}

bool TakeQuestion(int code, WPARAM wParam, LPARAM lParam, const HookChannelNames &names) {
    auto *message = reinterpret_cast<MSG *>(lParam);
    if (code != HC_ACTION || wParam != PM_REMOVE || message->message != RegisterWindowMessageW(names.question))
        return false;
    message->message = WM_NULL;
    return true;
}

void Answer(const HookChannelNames &names, const void *bytes, std::size_t size) {
    const ui::UniqueHandle memory(OpenFileMappingW(FILE_MAP_WRITE, FALSE, names.answer));
    const ui::UniqueView view(memory ? MapViewOfFile(memory.get(), FILE_MAP_WRITE, 0, 0, 0) : nullptr);
    if (view)
        std::memcpy(view.get(), bytes, std::min(size, names.bytes));
    if (const ui::UniqueHandle answered{OpenEventW(EVENT_MODIFY_STATE, FALSE, names.answered)})
        SetEvent(answered.get());
}

} // namespace orvane::testsupport
