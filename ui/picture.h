// Pictures for the wallpaper, as bitmaps the caller owns: PNG through the
// imaging library (GDI+), drawn onto a background of a requested size; other
// images through the standard picture loader at their natural size.
#pragma once

#include <windows.h>

#include <string>

#include "handles.h"
#include "picture_size.h"

namespace orvane {
class App;
}

namespace orvane::ui {

// The imaging library, started and shut down around every load.
ULONG_PTR StartImaging();
void StopImaging(ULONG_PTR token);

// The image drawn onto a width x height bitmap of the background colour, with
// its proportions kept and centred when asked; -1 for either side means the
// image's own size, given back. Nothing, once "Error loading picture" has been
// said, when the file cannot be read as an image or is too large to decode.
UniqueBitmap LoadScaledPicture(App &app, const std::wstring &path, int &width, int &height, COLORREF background,
                               bool keepAspect);

// The standard loader's picture (BMP, JPEG, GIF, ICO, WMF) at its natural size
// on white; nothing, quietly, when it cannot read it.
UniqueBitmap LoadStandardPicture(App &app, const std::wstring &path, PixelSize &natural);

} // namespace orvane::ui
