#include "dpi.h"

#include "handles.h"

namespace orvane::ui {

// The per-monitor DPI functions exist from Windows 10 1607 on and are looked
// up, not imported, so the program still starts on Windows 7. Without them
// the system has one DPI, and the plain functions answer for it.
namespace {

UINT SystemDpi() {
    HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dpi > 0 ? static_cast<UINT>(dpi) : 96;
}

} // namespace

UINT WindowDpi(HWND window) {
    static const auto getDpiForWindow = BoundAtFirstUse<UINT(WINAPI *)(HWND)>(L"user32.dll", "GetDpiForWindow");
    if (getDpiForWindow && window) {
        if (const UINT dpi = getDpiForWindow(window))
            return dpi;
    }
    return SystemDpi();
}

int SystemMetricForDpi(int index, UINT dpi) {
    static const auto forDpi = BoundAtFirstUse<int(WINAPI *)(int, UINT)>(L"user32.dll", "GetSystemMetricsForDpi");
    if (forDpi)
        return forDpi(index, dpi);
    return MulDiv(GetSystemMetrics(index), static_cast<int>(dpi), static_cast<int>(SystemDpi()));
}

NONCLIENTMETRICSW NonClientMetricsForDpi(UINT dpi) {
    using ForDpi = BOOL(WINAPI *)(UINT, UINT, PVOID, UINT, UINT);
    static const auto forDpi = BoundAtFirstUse<ForDpi>(L"user32.dll", "SystemParametersInfoForDpi");
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    if (forDpi && forDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dpi))
        return metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    metrics.lfMenuFont.lfHeight =
        MulDiv(metrics.lfMenuFont.lfHeight, static_cast<int>(dpi), static_cast<int>(SystemDpi()));
    return metrics;
}

} // namespace orvane::ui
