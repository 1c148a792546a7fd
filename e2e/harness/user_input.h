// A user's hands on orvane.exe from another process: its menus, the keyboard,
// and the controls of its dialogs.
#pragma once

#include <windows.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace orvane::e2e {

// What the harness and menu_hook.dll, loaded into orvane.exe, share to read a
// menu inside the program that owns it.
inline constexpr wchar_t kReadMenuMessage[] = L"Orvane.Test.ReadMenu";
inline constexpr wchar_t kMenuDumpName[] = L"Local\\Orvane.Test.MenuDump";
inline constexpr wchar_t kMenuDoneName[] = L"Local\\Orvane.Test.MenuDone";
inline constexpr std::size_t kMenuDumpChars = 1 << 16;

struct MenuItem {
    int depth = 0;         // 0 for the bar's own items
    UINT id = 0;           // 0 for an item that opens a menu
    UINT type = 0;         // MFT_ flags
    std::wstring text;     // caption, then a tab and the shortcut when it has one
};

// The window's menu as the program holds it, read inside the program.
std::vector<MenuItem> ReadMenu(HWND window);
// Picks the item with this caption (the text before its tab), as a click does.
bool PickMenuItem(HWND window, const std::wstring& caption);

// Brings the window forward, then presses the keys in order and releases them in reverse.
void PressKeys(HWND window, std::initializer_list<WORD> keys);

// The first visible dialog of the process with this title.
HWND WaitForDialogTitled(DWORD processId, const std::wstring& title);
std::wstring ControlText(HWND dialog, int id);
void SetControlText(HWND dialog, int id, const std::wstring& text);
// Types a file name into a file-open dialog and presses its Open button.
bool AnswerFileDialog(HWND dialog, const std::wstring& fileName);

}  // namespace orvane::e2e
