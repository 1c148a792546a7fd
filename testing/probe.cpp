// probe.exe: records its exact command line and working folder in probe.log beside itself, a line per start, UTF-8.
// With a file "probe.window" beside it, it also shows a window titled with its name (no ".exe") until it is closed.
#include <windows.h>

#include "win_support.h"

using namespace orvane::testsupport;

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
    wchar_t folder[MAX_PATH * 4] = {}, path[MAX_PATH * 4] = {};
    GetCurrentDirectoryW(MAX_PATH * 4, folder);
    const std::string record = Utf8(GetCommandLineW()) + "\t" + Utf8(folder) + "\n";
    // Appended in one write, so the log stays whole when probes overlap; retried while another holds it.
    HANDLE log = INVALID_HANDLE_VALUE;
    for (int attempt = 0;
         attempt < 100 && (log = CreateFileW((ExeFolder() + L"\\probe.log").c_str(), FILE_APPEND_DATA, FILE_SHARE_READ,
                                             nullptr, OPEN_ALWAYS, 0, nullptr)) == INVALID_HANDLE_VALUE;
         ++attempt)
        Sleep(10);
    DWORD written = 0;
    WriteFile(log, record.data(), DWORD(record.size()), &written, nullptr);
    CloseHandle(log);
    if (GetFileAttributesW((ExeFolder() + L"\\probe.window").c_str()) == INVALID_FILE_ATTRIBUTES)
        return 0;

    std::wstring title(path, GetModuleFileNameW(nullptr, path, MAX_PATH * 4));
    title = title.substr(title.find_last_of(L'\\') + 1);
    title.resize(title.rfind(L'.'));
    // A plain static window: closing it destroys it, which ends the loop.
    HWND window = CreateWindowW(L"STATIC", title.c_str(), WS_OVERLAPPEDWINDOW, 300, 300, 300, 150, 0, 0, instance, 0);
    ShowWindow(window, SW_SHOWNORMAL);
    SetTimer(window, 1, 60000, [](HWND w, UINT, UINT_PTR, DWORD) {
        DestroyWindow(w);
    }); // never outlive a test run
    MSG message;
    while (IsWindow(window) && GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
    return 0;
}
