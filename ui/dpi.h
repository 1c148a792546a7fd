// Twips (1/1440 inch) at the window boundary, converted with the window's own DPI.
#pragma once

#include <windows.h>

namespace orvane::ui {

inline constexpr int kTwipsPerInch = 1440;

UINT WindowDpi(HWND window);
// A size given in pixels at 96 DPI, in the window's own DPI.
inline int ScaledForWindow(int pixelsAt96, HWND window) {
    return MulDiv(pixelsAt96, static_cast<int>(WindowDpi(window)), 96);
}
inline int TwipsToPixels(int twips, UINT dpi) { return MulDiv(twips, static_cast<int>(dpi), kTwipsPerInch); }
inline int PixelsToTwips(int pixels, UINT dpi) { return MulDiv(pixels, kTwipsPerInch, static_cast<int>(dpi)); }

}  // namespace orvane::ui
