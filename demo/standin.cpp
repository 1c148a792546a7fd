// standin.exe: the demo's stand-in for every program the bar starts. Run
// normally, it shows a window titled with its own file name and the command
// line it got. "standin.exe --install <folder> [name ...]" copies it into the
// folder under the name of every tool of the suite's catalogue, and under
// each extra name given.
#include <windows.h>
#include <shellapi.h>

#include <string>

#include "catalogue.h"

namespace {

constexpr wchar_t kClass[] = L"Orvane.StandIn";

std::wstring OwnPath() {
    wchar_t path[MAX_PATH * 4];
    return std::wstring(path, GetModuleFileNameW(nullptr, path, MAX_PATH * 4));
}

int Install(int count, wchar_t **names) {
    const std::wstring folder = names[0], self = OwnPath();
    CreateDirectoryW(folder.c_str(), nullptr);
    bool copied = true;
    for (const orvane::SuiteTool &tool : orvane::kSuiteTools)
        copied &= CopyFileW(self.c_str(), (folder + L"\\" + std::wstring(tool.program) + L".exe").c_str(), FALSE) != 0;
    for (int i = 1; i < count; ++i)
        copied &= CopyFileW(self.c_str(), (folder + L"\\" + names[i]).c_str(), FALSE) != 0;
    return copied ? 0 : 1;
}

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_PAINT) {
        PAINTSTRUCT paint;
        HDC dc = BeginPaint(window, &paint);
        RECT area;
        GetClientRect(window, &area);
        InflateRect(&area, -8, -8);
        SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
        DrawTextW(dc, (L"Started as:\n" + std::wstring(GetCommandLineW())).c_str(), -1, &area,
                  DT_WORDBREAK | DT_NOPREFIX);
        EndPaint(window, &paint);
        return 0;
    }
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return DefWindowProcW(window, message, wParam, lParam);
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int show) {
    int count = 0;
    wchar_t **arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    if (count >= 3 && std::wstring(arguments[1]) == L"--install")
        return Install(count - 2, arguments + 2);

    WNDCLASSW wc{};
    wc.lpfnWndProc = Procedure;
    wc.hInstance = instance;
    wc.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    wc.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    wc.lpszClassName = kClass;
    RegisterClassW(&wc);
    // Each copy a little below and right of the ones already open.
    int open = 0;
    for (HWND w = FindWindowW(kClass, nullptr); w; w = FindWindowExW(nullptr, w, kClass, nullptr))
        ++open;
    const std::wstring path = OwnPath(), name = path.substr(path.rfind(L'\\') + 1);
    HWND window = CreateWindowW(kClass, name.c_str(), WS_OVERLAPPEDWINDOW, 160 + 30 * (open % 10),
                                140 + 30 * (open % 10), 520, 160, nullptr, nullptr, instance, nullptr);
    ShowWindow(window, show);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
    return 0;
}
