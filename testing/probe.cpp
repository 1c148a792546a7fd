// probe.exe: records how it was started (its exact command line and working
// folder) in probe.log beside itself, one record per start, UTF-8. When a file
// "probe.window" lies beside it, it also shows a window titled with its own
// name (without ".exe") until it is closed, so a test can find it running.
#include <windows.h>

#include "win_support.h"

using namespace orvane::testsupport;

namespace {

void Record() {
    wchar_t folder[MAX_PATH * 4] = {};
    GetCurrentDirectoryW(MAX_PATH * 4, folder);
    const std::string record = "CMDLINE=" + Utf8(GetCommandLineW()) + "\nCWD=" + Utf8(folder) + "\nEND\n";
    // Opened for appending each time, so the log stays whole when probes overlap.
    HANDLE log = INVALID_HANDLE_VALUE;
    for (int attempt = 0; attempt < 100 && log == INVALID_HANDLE_VALUE; ++attempt) {
        log = CreateFileW((ExeFolder() + L"\\probe.log").c_str(), FILE_APPEND_DATA, FILE_SHARE_READ, nullptr,
                          OPEN_ALWAYS, 0, nullptr);
        if (log == INVALID_HANDLE_VALUE) Sleep(10);
    }
    DWORD written = 0;
    WriteFile(log, record.data(), static_cast<DWORD>(record.size()), &written, nullptr);
    CloseHandle(log);
}

std::wstring OwnName() {
    wchar_t path[MAX_PATH * 4];
    std::wstring name(path, GetModuleFileNameW(nullptr, path, MAX_PATH * 4));
    name = name.substr(name.find_last_of(L'\\') + 1);
    return name.substr(0, name.rfind(L'.'));
}

void ShowWindowUntilClosed() {
    WNDCLASSW wc{};
    wc.lpfnWndProc = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
        if (message == WM_DESTROY) PostQuitMessage(0);
        return DefWindowProcW(window, message, wParam, lParam);
    };
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.lpszClassName = L"Orvane.Probe";
    RegisterClassW(&wc);
    const std::wstring title = OwnName();
    HWND window = CreateWindowW(L"Orvane.Probe", title.c_str(), WS_OVERLAPPEDWINDOW, 300, 300, 300, 150, nullptr,
                                nullptr, wc.hInstance, nullptr);
    ShowWindow(window, SW_SHOWNORMAL);
    SetTimer(window, 1, 60000, [](HWND w, UINT, UINT_PTR, DWORD) { DestroyWindow(w); });  // never outlive a test run
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    Record();
    if (FileExists(ExeFolder() + L"\\probe.window")) ShowWindowUntilClosed();
    return 0;
}
