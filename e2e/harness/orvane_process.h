// Drives orvane.exe from another process the way a user would: start it in a program folder with a settings file,
// use its menus, keys and dialogs, answer its message boxes, close it, read what it wrote.
#pragma once

#include <windows.h>

#include <chrono>
#include <cstddef>
#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "hook_channel.h"

namespace orvane::e2e {

using namespace std::chrono_literals;

inline constexpr wchar_t kMainWindowClass[] = L"Orvane.Main";
inline constexpr wchar_t kDialogClass[] = L"#32770";

// A fresh program folder holding a copy of orvane.exe and the skins (Skin_*.bmp), or the one ORVANE_PROGRAM_FOLDER
// names.
class ProgramFolder {
public:
    explicit ProgramFolder(const std::wstring &name);
    const std::wstring &path() const {
        return path_;
    }
    std::wstring settingsFile() const {
        return path_ + L"\\Orvane.ini";
    }

private:
    std::wstring path_;
};

// The program started with its folder as the current folder; ended when a failed test left it running.
class OrvaneProcess {
public:
    explicit OrvaneProcess(const ProgramFolder &folder);
    OrvaneProcess(const OrvaneProcess &) = delete;
    OrvaneProcess &operator=(const OrvaneProcess &) = delete;
    ~OrvaneProcess();

    DWORD id() const {
        return id_;
    }
    HANDLE handle() const {
        return process_;
    }
    // Its visible bar or message box; a wait of 0 only looks.
    HWND waitForMainWindow(std::chrono::milliseconds timeout = 15s) const;
    HWND waitForDialog(std::chrono::milliseconds timeout = 15s) const;
    // Asks the bar to close, as its close box does.
    void close() const;
    // The exit code once the process has ended.
    std::optional<DWORD> waitForExit(std::chrono::milliseconds timeout = 15s) const;

private:
    HANDLE process_ = nullptr;
    DWORD id_ = 0;
};

// The text of a message box, as its static text control holds it.
std::wstring MessageBoxText(HWND box);
// Presses a dialog's button, as a click does.
void PressButton(HWND dialog, int buttonId);
// True once the window has gone, within the time.
bool Gone(HWND window, std::chrono::milliseconds timeout = 5s);
// Presses Esc in the window, as a user leaves a dialog; true once it has gone.
bool EscapeFrom(HWND window);
// Checks the text of the program's message box, once it shows, and answers it with a button; true once it has gone.
bool AnswerMessage(DWORD processId, const std::wstring &text, int buttonId = IDOK,
                   const std::wstring &title = L"Orvane");

// The 39 lines of a settings file, each ending in CR LF: text lines empty, number lines "0", but the given (1-based).
inline std::string SettingsText(const std::map<int, std::string> &changed = {}) {
    constexpr char kTextLines[] = "..tttt.......tttttttt......ttt.ttttt...";
    std::string text;
    for (int line = 1; line <= 39; ++line)
        text += (changed.count(line) ? changed.at(line) : kTextLines[line - 1] == 't' ? "" : "0") + std::string("\r\n");
    return text;
}

// The lines of a file that ends each in CR LF; a tail without one comes last, so a test sees it.
inline std::vector<std::string> SplitCrLf(const std::string &text) {
    std::vector<std::string> lines;
    std::size_t at = 0;
    for (std::size_t end; (end = text.find("\r\n", at)) != std::string::npos; at = end + 2)
        lines.push_back(text.substr(at, end - at));
    if (at < text.size())
        lines.push_back(text.substr(at));
    return lines;
}

// A user's hands on the program: its menus, the keyboard, its dialogs' controls. A menu is read inside the program
// that owns it, by menu_hook.dll:
inline constexpr testsupport::HookChannelNames kMenuChannel{L"Orvane.Test.ReadMenu", L"Local\\Orvane.Test.MenuDump",
                                                            L"Local\\Orvane.Test.MenuDone",
                                                            (1 << 16) * sizeof(wchar_t)};

struct MenuItem {
    int depth = 0;     // 0 for the bar's own items
    UINT id = 0;       // 0 for an item that opens a menu
    UINT type = 0;     // MFT_ flags
    std::wstring text; // caption, then a tab and the shortcut when it has one
};

// The window's menu as the program holds it, read inside the program.
std::vector<MenuItem> ReadMenu(HWND window);
// Picks the item with this caption (the text before its tab), as a click does.
bool PickMenuItem(HWND window, const std::wstring &caption);

// Brings the window forward, then presses the keys in order and releases them in reverse.
void PressKeys(HWND window, std::initializer_list<WORD> keys);
// A left click at this point of the screen.
void ClickAt(POINT point);
// The colour on the screen at this point.
COLORREF ScreenColour(POINT point);

// The first visible dialog of the process with this title ("Name*": starting with "Name").
HWND WaitForDialogTitled(DWORD processId, const std::wstring &title, std::chrono::milliseconds timeout = 15s);
std::wstring ControlText(HWND dialog, int id);
void SetControlText(HWND dialog, int id, const std::wstring &text);
// Types a file name into a file-open dialog and presses its Open button.
bool AnswerFileDialog(HWND dialog, const std::wstring &fileName);

// The texts of a list view's rows in this column (0 the items' own, 1 and up their subitems), read inside its process.
std::vector<std::wstring> ListViewTexts(HWND listView, int column);
// The number of its rows, and their check marks.
int ListViewRows(HWND listView);
std::vector<bool> ListViewChecks(HWND listView);
// The text on the clipboard, empty when it holds none.
std::wstring ClipboardText();
// The titles of a list view's columns, as a screen reader names them.
std::vector<std::wstring> ListViewColumns(HWND listView);

// What a keyboard or screen-reader user meets in a window. Access keys (the letter after "&") carried twice among
// the window's visible controls and its menu bar, or among one menu's items: "K: text, text".
std::vector<std::wstring> AccessKeyClashes(HWND window);
// Visible controls a screen reader would announce without a name: buttons and the icon strip without text, list
// view columns without a title.
std::vector<std::wstring> UnnamedControls(HWND window);
// The control with the keyboard focus in the thread of this window.
HWND FocusOf(HWND window);
// A control the focus reached: where it was then, and whether it could be seen there (visible, and not scrolled or
// placed out of its parents' view).
struct FocusStop {
    HWND control = nullptr;
    RECT place{};
    bool seen = false;
};
// The stops the focus makes as Tab is pressed, from the focused control, until it comes back to one already visited.
std::vector<FocusStop> TabCycle(HWND window);

} // namespace orvane::e2e
