#include "dpi.h"

namespace orvane::ui {

UINT WindowDpi(HWND window) {
    // GetDpiForWindow exists from Windows 10 1607 on; older systems have one DPI.
    using GetDpiForWindowFn = UINT(WINAPI*)(HWND);
    static const auto getDpiForWindow = reinterpret_cast<GetDpiForWindowFn>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "GetDpiForWindow")));
    if (getDpiForWindow && window) {
        if (const UINT dpi = getDpiForWindow(window)) return dpi;
    }
    HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dpi > 0 ? static_cast<UINT>(dpi) : 96;
}

}  // namespace orvane::ui
