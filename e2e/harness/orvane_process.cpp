#include "orvane_process.h"

#include <cstdio>

#include "win_support.h"

namespace orvane::e2e {

using namespace testsupport;

ProgramFolder::ProgramFolder(const std::wstring& name)
    : path_(FreshFolder(EnvironmentPath(L"ORVANE_TEST_ROOT"), name)) {
    CopyInto(EnvironmentPath(L"ORVANE_EXE"), path_);
}

OrvaneProcess::OrvaneProcess(const ProgramFolder& folder) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION info{};
    const std::wstring exe = folder.path() + L"\\orvane.exe";
    std::wstring commandLine = L"\"" + exe + L"\"";
    if (CreateProcessW(exe.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, folder.path().c_str(),
                       &startup, &info)) {
        CloseHandle(info.hThread);
        process_ = info.hProcess;
        id_ = info.dwProcessId;
    }
}

OrvaneProcess::~OrvaneProcess() {
    if (process_ && WaitForSingleObject(process_, 0) == WAIT_TIMEOUT) TerminateProcess(process_, 99);
    if (process_) CloseHandle(process_);
}

HWND OrvaneProcess::waitForMainWindow(std::chrono::milliseconds timeout) const {
    HWND bar = nullptr;
    WaitFor([&] { return (bar = FindProcessWindow(id_, kMainWindowClass)) || waitForExit(0ms); }, timeout);
    if (!bar && timeout > 0ms)  // say why, for the test's log
        std::fprintf(stderr, "no bar from process %lu: it %s; message: \"%s\"\n", id_,
                     waitForExit(0ms) ? "has ended" : "still runs", Utf8(MessageBoxText(waitForDialog(0ms))).c_str());
    return bar;
}

HWND OrvaneProcess::waitForDialog(std::chrono::milliseconds timeout) const {
    HWND box = nullptr;
    WaitFor([&] { return (box = FindProcessWindow(id_, kDialogClass)) != nullptr; }, timeout);
    return box;
}

void OrvaneProcess::close() const {
    if (HWND bar = waitForMainWindow(0ms)) PostMessageW(bar, WM_CLOSE, 0, 0);
}

std::optional<DWORD> OrvaneProcess::waitForExit(std::chrono::milliseconds timeout) const {
    DWORD code = 0;
    const bool ended = process_ && WaitForSingleObject(process_, static_cast<DWORD>(timeout.count())) == WAIT_OBJECT_0;
    return ended && GetExitCodeProcess(process_, &code) ? std::optional(code) : std::nullopt;
}

std::wstring MessageBoxText(HWND box) {
    constexpr int kMessageTextId = 0xFFFF;
    wchar_t text[4096] = {};
    GetDlgItemTextW(box, kMessageTextId, text, 4096);
    return text;
}

void PressButton(HWND dialog, int buttonId) { PostMessageW(GetDlgItem(dialog, buttonId), BM_CLICK, 0, 0); }

}  // namespace orvane::e2e
