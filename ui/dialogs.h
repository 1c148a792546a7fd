// The dialogs of the main window. Each is modal over its owner, so only one
// of each is ever open.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace orvane {
class App;
}

namespace orvane::ui {

void ShowAboutDialog(App& app, HWND owner);
// frmShowTimer: today's date and the running time; the first click or key closes it.
void ShowClockWindow(HWND owner);
// The shared input box: the text typed, or empty when cancelled.
std::wstring ShowInputBox(App& app, HWND owner, const std::wstring& prompt, const std::wstring& preset);
void ShowProgramLocations(App& app, HWND owner);
void ShowYourProgram(App& app, HWND owner);

struct FontChoice {
    std::wstring name;
    int points = 0;
    bool bold = false;
};
// The system's font dialog preset with the current font; nothing when cancelled.
std::optional<FontChoice> ChooseFontFor(HWND owner, const FontChoice& current);

}  // namespace orvane::ui
