#include "wallpaper.h"

#include <array>

#include "app.h"
#include "conversions.h"
#include "reports.h"

namespace orvane {

namespace {

using namespace keys;
using C = WallpaperCommand;

constexpr wchar_t kFile[] = L"keyFile";
constexpr auto kMenu = std::to_array<MenuRow>({
    {L"", kFile, L"&File", L"", None},
    {kFile, L"keyTime", L"&Time/date", L"k1", CtrlShift(Key('M'))},
    {kFile, L"keyStretch", L"&Stretch", L"k2", CtrlShift(Key('Y'))},
    {kFile, L"", L"", L"", None},
    {kFile, L"keyExit", L"E&xit", L"k3", Ctrl(Key('L'))},
});
constexpr auto kCommands = std::to_array<C>({C::None, C::Time, C::Stretch, C::None, C::Exit});
static_assert(kMenu.size() == kCommands.size());

} // namespace

std::span<const MenuRow> WallpaperMenuRows() {
    return kMenu;
}

const WallpaperCommand *FindWallpaperCommand(std::wstring_view caption) {
    return CommandOfCaption<C>(kMenu, kCommands, caption);
}

std::wstring PictureErrorText(const std::wstring &path) {
    return L"Error loading picture " + path;
}

std::optional<std::wstring> WallpaperImage(App &app) {
    const std::wstring &path = app.settings.WallpaperFile;
    if (!path.empty() && app.files.fileExists(path))
        return path;
    ReportFileNotFound(app, path);
    return std::nullopt;
}

bool StartsStretched(PixelSize image, PixelSize window, int wallpaperStretch) {
    const bool smaller = window.height > image.height && window.width > image.width;
    return smaller == (wallpaperStretch == 1);
}

bool ReturnAllowed(App &app, const std::wstring &typed) {
    const std::wstring &password = app.settings.ReturnPassword;
    if (password.empty() || (!typed.empty() && TrimBlanks(typed) == password))
        return true;
    app.prompts.showMessage(L"Wrong password!\r\n\r\n\"" + typed + L"\"", kProgramTitle, MessageIcon::Critical,
                            MessageButtons::Ok);
    return false;
}

} // namespace orvane
