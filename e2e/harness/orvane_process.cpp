#include "orvane_process.h"

#include <cstdio>

#include "win_support.h"

namespace orvane::e2e {

using namespace testsupport;

ProgramFolder::ProgramFolder(const std::wstring& name)
    : path_(FreshFolder(WindowsPath(EnvironmentValue(L"ORVANE_TEST_ROOT")), name)) {
    CopyInto(WindowsPath(EnvironmentValue(L"ORVANE_EXE")), path_);
}

OrvaneProcess::OrvaneProcess(const ProgramFolder& folder) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION info{};
    std::wstring commandLine = L"\"" + folder.exe() + L"\"";
    if (CreateProcessW(folder.exe().c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                       folder.path().c_str(), &startup, &info)) {
        CloseHandle(info.hThread);
        process_ = info.hProcess;
        id_ = info.dwProcessId;
    }
}

OrvaneProcess::~OrvaneProcess() {
    if (!process_) return;
    if (WaitForSingleObject(process_, 0) == WAIT_TIMEOUT) TerminateProcess(process_, 99);
    CloseHandle(process_);
}

HWND OrvaneProcess::waitForMainWindow(std::chrono::milliseconds timeout) const {
    HWND window = nullptr;
    WaitFor([&] { return (window = FindProcessWindow(id_, kMainWindowClass)) != nullptr || waitForExit(0ms); },
            timeout);
    if (!window) {  // say why, for the test's log
        const auto exitCode = waitForExit(0ms);
        const HWND box = dialog();
        std::fprintf(stderr, "no bar from process %lu: %s%s\n", id_,
                     exitCode ? ("it ended with code " + std::to_string(*exitCode)).c_str() : "it still runs",
                     box ? (", showing: " + Utf8(MessageBoxText(box))).c_str() : "");
    }
    return window;
}

HWND OrvaneProcess::dialog() const { return FindProcessWindow(id_, kDialogClass); }

HWND OrvaneProcess::waitForDialog(std::chrono::milliseconds timeout) const {
    HWND window = nullptr;
    WaitFor([&] { return (window = dialog()) != nullptr; }, timeout);
    return window;
}

bool OrvaneProcess::hasMainWindow() const { return FindProcessWindow(id_, kMainWindowClass) != nullptr; }

void OrvaneProcess::close() const {
    if (HWND main = FindProcessWindow(id_, kMainWindowClass)) PostMessageW(main, WM_CLOSE, 0, 0);
}

std::optional<DWORD> OrvaneProcess::waitForExit(std::chrono::milliseconds timeout) const {
    if (!process_ || WaitForSingleObject(process_, static_cast<DWORD>(timeout.count())) != WAIT_OBJECT_0)
        return std::nullopt;
    DWORD code = 0;
    GetExitCodeProcess(process_, &code);
    return code;
}

std::wstring MessageBoxText(HWND box) {
    constexpr int kMessageTextId = 0xFFFF;
    wchar_t text[4096] = {};
    GetDlgItemTextW(box, kMessageTextId, text, 4096);
    return text;
}

void PressButton(HWND dialog, int buttonId) { PostMessageW(GetDlgItem(dialog, buttonId), BM_CLICK, 0, 0); }

RECT WindowRectangle(HWND window) {
    RECT r{};
    GetWindowRect(window, &r);
    return r;
}

int ScreenDpi() {
    HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dpi;
}

}  // namespace orvane::e2e
