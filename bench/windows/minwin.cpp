// The smallest real window program: the baseline orvane.exe's start-up is
// compared with. It registers a class, shows one window, and ends on close.
// Built a second time as minwin_dlls.exe, it first loads what orvane.exe's
// start needs of the system (shell32, the common controls 6 through the same
// manifest), to tell that cost from orvane.exe's own work.
#include <windows.h>
#include <commctrl.h>
#include <shlobj.h>

namespace {

constexpr wchar_t kClassName[] = L"Orvane.Bench.Empty";

LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY) {
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
#ifdef ORVANE_SAME_DLLS
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES};
    InitCommonControlsEx(&controls);
    wchar_t folder[MAX_PATH];
    SHGetFolderPathW(nullptr, CSIDL_PROGRAM_FILES, nullptr, 0, folder);
#endif
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = WindowProc;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    windowClass.lpszClassName = kClassName;
    if (!RegisterClassExW(&windowClass))
        return 1;

    const HWND window = CreateWindowExW(0, kClassName, L"Empty", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, CW_USEDEFAULT, 400,
                                        120, nullptr, nullptr, instance, nullptr);
    if (!window)
        return 1;
    ShowWindow(window, SW_SHOWNORMAL); // as orvane.exe shows its bar
    UpdateWindow(window);

    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}
