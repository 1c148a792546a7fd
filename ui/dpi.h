// Twips (1/1440 inch) at the window boundary, converted with the window's own DPI.
#pragma once

#include <windows.h>

namespace orvane::ui {

inline constexpr int kTwipsPerInch = 1440;

UINT WindowDpi(HWND window);
inline int TwipsToPixels(int twips, UINT dpi) { return MulDiv(twips, static_cast<int>(dpi), kTwipsPerInch); }
inline int PixelsToTwips(int pixels, UINT dpi) { return MulDiv(pixels, kTwipsPerInch, static_cast<int>(dpi)); }

}  // namespace orvane::ui
