// The wallpaper window's rules: its menu, the choice between a stretched
// picture and one at natural size, and the return password that every way
// of closing it asks for.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "menu.h"
#include "picture_size.h"

namespace orvane {

class App;

enum class WallpaperCommand {
    None,
    Time,
    Stretch,
    Exit
};
std::span<const MenuRow> WallpaperMenuRows();
const WallpaperCommand *FindWallpaperCommand(std::wstring_view caption);

inline constexpr wchar_t kPasswordPrompt[] = L"Enter password to return to program.";
// The imaging library's own title for its one message.
inline constexpr wchar_t kImagingTitle[] = L"GDI+ Module";
// "Error loading picture " and the path.
std::wstring PictureErrorText(const std::wstring &path);

// The image to show, or nothing once a missing or unnamed file is reported.
std::optional<std::wstring> WallpaperImage(App &app);

// A picture smaller than the window both ways is shown at its natural size,
// any other stretched; WallpaperStretch = 1 turns that choice round.
bool StartsStretched(PixelSize image, PixelSize window, int wallpaperStretch);

// Whether the typed text lets the user return; when it does not, says
// "Wrong password!" with the typed text. No password set lets anything through.
bool ReturnAllowed(App &app, const std::wstring &typed);

} // namespace orvane
