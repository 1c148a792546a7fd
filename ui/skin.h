// The skin: one bitmap that paints the client background of every window of
// the program, and the colours read from it. The system keeps drawing the
// window frames, so they scale, snap and stay accessible as usual. The
// program makes one at start and hands it to the windows that paint with it.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "appearance.h"
#include "handles.h"

namespace orvane::ui {

// Sent to every open window of the program after the skin has changed.
inline constexpr UINT kSkinChanged = WM_APP + 0x100;

class Skin {
public:
    // Reads the bitmap; false, with the skin as it was, when it cannot be read.
    bool load(const std::wstring &path);
    // The skin's colours; nothing while no skin is loaded.
    const std::optional<SkinColours> &colours() const {
        return colours_;
    }
    MenuColours menuColours() const {
        return MenuColoursFor(colours_);
    }
    // The bitmap, for a preview; null while none is loaded.
    HBITMAP bitmap() const {
        return bitmap_.get();
    }

    // The open windows, in the order they opened.
    void join(HWND window);
    void leave(HWND window);
    // Repaints every open window, in that order, and sends each kSkinChanged.
    void applyToAll() const;

    // Fills the window's client area (for WM_ERASEBKGND).
    void paintBackground(HWND window, HDC dc) const;
    // A dialog's answer to WM_CTLCOLORDLG and WM_CTLCOLORSTATIC: the skin
    // behind labels, in the skin's fore colour; null leaves it to the system.
    HBRUSH controlColour(UINT message, HDC dc, HWND control) const;

private:
    UniqueBitmap bitmap_;
    UniqueBrush brush_;
    std::optional<SkinColours> colours_;
    std::vector<HWND> windows_;
};

// Plain colour on a rectangle, and its outline, without making a brush.
void FillColour(HDC dc, const RECT &area, Colour colour);
void FrameColour(HDC dc, const RECT &area, Colour colour);
// The look of the item a click or Enter would run: the highlight inside its frame.
void PaintHighlight(HDC dc, const RECT &area, const MenuColours &colours);

// A bitmap file's colours as the skin reads them: for tests and benchmarks.
std::optional<SkinColours> ColoursOfBitmap(HBITMAP bitmap);

} // namespace orvane::ui
