// The dialogs of the main window. Each is modal over its owner, so only one
// of each is ever open, and each paints with the skin it is given.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>

namespace orvane {
class App;
class MainCommands;
struct CustomProgramTable;
struct FileInformation;
} // namespace orvane

namespace orvane::ui {

class Skin;

// The program's icon, name, version and what it is, and whether another program holds the palette's hot key.
void ShowAboutDialog(App &app, Skin &skin, HWND owner, bool paletteKeyTaken);
// Today's date and the running time; the first click or key closes it.
void ShowClockWindow(Skin &skin, HWND owner);
// The shared input box: the text typed, or empty when cancelled.
std::wstring ShowInputBox(App &app, Skin &skin, HWND owner, const std::wstring &prompt, const std::wstring &preset);
// Where the Office programs are, the wallpaper, the return password and the web list.
void ShowProgramLocations(App &app, Skin &skin, HWND owner);
// The user's own program, chosen, typed and started.
void ShowYourProgram(App &app, Skin &skin, HWND owner);

struct FontChoice {
    std::wstring name;
    int points = 0;
    bool bold = false;
};
// The system's font dialog preset with the current font; nothing when cancelled.
std::optional<FontChoice> ChooseFontFor(HWND owner, const FontChoice &current);

// What the skin chooser asks of the main window.
struct SkinChooserActions {
    std::function<void()> applySkin;         // applies app.settings.SkinFile to every open window
    std::function<void()> adjustMenuColours; // the menu bar takes the current skin's colours
};
// The table's programs in two grids, started by Enter or a double click.
void ShowCustomPrograms(App &app, Skin &skin, CustomProgramTable &table, MainCommands &commands, HWND owner);
// Edits the table in place; what is not saved is read back from the file by the caller.
void ShowCustomListEditor(App &app, Skin &skin, CustomProgramTable &table, HWND owner);
// The program and startup folder of an entry, as chosen; nothing when cancelled.
struct EntryChoice {
    std::wstring program, folder;
};
std::optional<EntryChoice> ShowEntryDialog(App &app, Skin &skin, HWND owner, const CustomProgramTable &table,
                                           int entry);
// Facts about a file, to copy, inspect or explore.
void ShowFileInformation(App &app, Skin &skin, HWND owner, const std::wstring &path);
// The same with facts gathered by the caller.
void ShowFileInformation(App &app, Skin &skin, HWND owner, const std::wstring &path, const FileInformation &info);
// The websites of WebListFile, opened in the chosen browser.
void ShowWebList(App &app, Skin &skin, MainCommands &commands, HWND owner);

// The wallpaper over the screen, left only with the return password.
void ShowWallpaper(App &app, Skin &skin, HWND owner);
// The wallpaper window while it is open, else null.
HWND OpenWallpaper();

// The shell's folder dialog, starting at the given folder; nothing when cancelled.
std::optional<std::wstring> BrowseForFolder(HWND owner, const std::wstring &title, const std::wstring &start);

// "Change skin": the skins of SkinFolder with a preview.
void ShowSkinChooser(App &app, Skin &skin, HWND owner, const SkinChooserActions &actions);

} // namespace orvane::ui
