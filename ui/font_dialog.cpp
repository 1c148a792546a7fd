// The system's font dialog, for the menu font.
#include <windows.h>
#include <commdlg.h>

#include <cmath>

#include "dialogs.h"
#include "dpi.h"
#include "handles.h"

namespace orvane::ui {

namespace {

// Screen fonts, effects, and only fonts that exist.
constexpr DWORD kFontDialogFlags = 65793;

} // namespace

std::optional<FontChoice> ChooseFontFor(HWND owner, const FontChoice &current) {
    LOGFONTW font{};
    const HDC screen = GetDC(nullptr);
    font.lfHeight = -MulDiv(current.points > 0 ? current.points : 9, GetDeviceCaps(screen, LOGPIXELSY), 72);
    ReleaseDC(nullptr, screen);
    font.lfWeight = current.bold ? FW_BOLD : FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    if (current.name.size() < LF_FACESIZE)
        wcscpy_s(font.lfFaceName, current.name.c_str());
    CHOOSEFONTW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    dialog.lpLogFont = &font;
    dialog.Flags = kFontDialogFlags | CF_INITTOLOGFONTSTRUCT;
    // Bound at first use, as the file dialog is: most sessions never open it.
    using ChooseFontFn = BOOL(WINAPI *)(CHOOSEFONTW *);
    static const UniqueModule library(LoadLibraryW(L"comdlg32.dll"));
    static const auto chooseFont =
        reinterpret_cast<ChooseFontFn>(reinterpret_cast<void *>(GetProcAddress(library.get(), "ChooseFontW")));
    if (!chooseFont || !chooseFont(&dialog))
        return std::nullopt; // cancelled
    return FontChoice{font.lfFaceName, static_cast<int>(std::lround(dialog.iPointSize / 10.0)),
                      font.lfWeight >= FW_BOLD};
}

} // namespace orvane::ui
