// The baseline of the launch benchmark: a window that, on WM_APP, asks the
// shell to start the program named on its command line, as plainly as it can
// be done (ShellExecuteExW, verb "Open", the program's folder as working folder).
#include <windows.h>
#include <shellapi.h>

#include <string>

namespace {

std::wstring g_program;

LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_APP) {
        const std::wstring folder = g_program.substr(0, g_program.rfind(L'\\'));
        SHELLEXECUTEINFOW request{};
        request.cbSize = sizeof request;
        request.hwnd = window;
        request.lpVerb = L"Open";
        request.lpFile = g_program.c_str();
        request.lpDirectory = folder.c_str();
        request.nShow = SW_SHOWNORMAL;
        ShellExecuteExW(&request);
        return 0;
    }
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return DefWindowProcW(window, message, wParam, lParam);
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
    int count = 0;
    wchar_t **arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    if (count < 2)
        return 2;
    g_program = arguments[1];
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = WindowProc;
    windowClass.hInstance = instance;
    windowClass.lpszClassName = L"Orvane.Bench.BareLaunch";
    RegisterClassW(&windowClass);
    HWND window = CreateWindowW(windowClass.lpszClassName, L"Bare launch", WS_OVERLAPPEDWINDOW, 0, 0, 300, 100, nullptr,
                                nullptr, instance, nullptr);
    ShowWindow(window, SW_SHOWNORMAL);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
    return 0;
}
