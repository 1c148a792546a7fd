// Every window of orvane.exe, each opened and closed as a user would, for tests and tools that go through them all,
// and the program folder in which every one of them opens.
#pragma once

#include <windows.h>

#include <array>
#include <string>
#include <vector>

#include "orvane_process.h"

namespace orvane::e2e {

struct ProgramWindow {
    const wchar_t *name;
    // Opens it from the bar, through the windows it is reached from; the window once it shows, else null.
    HWND (*open)(const OrvaneProcess &orvane, HWND bar);
    // Closes it the user's way, then the windows open() went through; true once all of them have gone.
    bool (*close)(const OrvaneProcess &orvane, HWND window);
};

// The bar's dialogs, the skin chooser, the clock, the custom programs window with its editor and their dialogs, the
// web list, the wallpaper and the palette. The shell's folder dialog is the system's, not the program's, and is left
// out.
extern const std::vector<ProgramWindow> kProgramWindows;

// Picks the window's menu item with this caption; the dialog with this title it opens, once it shows, else null.
HWND FromMenu(const OrvaneProcess &orvane, HWND window, const wchar_t *caption, const std::wstring &title);
// Picks an item of the window's popup menu (Shift+F10) by its access letter, from the keyboard; the dialog with this
// title it opens, once it shows, else null.
HWND FromPopupMenu(const OrvaneProcess &orvane, HWND window, WORD letter, const std::wstring &title);
// Presses Ctrl+Alt+Space in the window, as a user brings up the palette over any program; the palette of the
// process (of any for 0) once it shows, else null.
HWND SummonPalette(DWORD processId, HWND window);
// Types this into the wallpaper's box asking for the return password (of the process, of any for 0) and presses OK;
// true once the box has gone.
bool AnswerPassword(DWORD processId, const std::wstring &typed);

// Writes the settings file, a custom programs list, a web list and a wallpaper into the folder, so that every window
// of the table opens without a message.
void PrepareForEveryWindow(const ProgramFolder &folder);

// One line of a custom programs list.
struct CustomEntry {
    std::string name, program, folder;
};
// The 192 lines of a custom programs list file: 64 names, 64 programs, 64 folders.
std::string CustomListFile(const std::vector<CustomEntry> &entries);
// A web list file: three lines per row (name, address, check), "***", the groups, a final empty line.
std::string WebListFile(const std::vector<std::array<std::string, 3>> &rows, const std::string &groups = "");

} // namespace orvane::e2e
