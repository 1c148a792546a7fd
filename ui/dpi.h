// Twips (1/1440 inch) at the window boundary, converted with the window's own DPI.
#pragma once

#include <windows.h>

namespace orvane::ui {

inline constexpr int kTwipsPerInch = 1440;

UINT WindowDpi(HWND window);
// A system metric (a scroll bar's width, say) at the given DPI.
int SystemMetricForDpi(int index, UINT dpi);
// The non-client metrics at the given DPI; only the menu font is scaled on
// systems without per-monitor metrics.
NONCLIENTMETRICSW NonClientMetricsForDpi(UINT dpi);
// Sent to child windows after their parent's DPI changed (Windows 10 1703 and
// later); older headers and systems do not know it.
inline constexpr UINT kDpiChangedAfterParent = 0x02E3;
// A size given in pixels at 96 DPI, in the window's own DPI.
inline int ScaledForWindow(int pixelsAt96, HWND window) {
    return MulDiv(pixelsAt96, static_cast<int>(WindowDpi(window)), 96);
}
inline int TwipsToPixels(int twips, UINT dpi) {
    return MulDiv(twips, static_cast<int>(dpi), kTwipsPerInch);
}
inline int PixelsToTwips(int pixels, UINT dpi) {
    return MulDiv(pixels, kTwipsPerInch, static_cast<int>(dpi));
}

} // namespace orvane::ui
