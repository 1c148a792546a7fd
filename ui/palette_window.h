// The palette: a small topmost window that Ctrl+Alt+Space brings up over any
// program, with a field and a list of everything the bar can start, ranked
// as the user types. Enter runs the selected target as its own place in the
// program runs it; Esc or clicking elsewhere hides the palette.
#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <vector>

#include "commands.h"
#include "controls.h"
#include "handles.h"
#include "palette.h"
#include "program_list.h"
#include "web_list_file.h"
#include "window_base.h"

namespace orvane::ui {

class Skin;

// The palette's hot key, held by the bar's window.
inline constexpr int kPaletteHotKeyId = 1;
using PaletteHotKey = UniqueHotKey<kPaletteHotKeyId>;
// Ctrl+Alt+Space on this window; empty when another program holds it.
PaletteHotKey RegisterPaletteHotKey(HWND bar);

class PaletteWindow : public WindowBase {
public:
    // Commands run through the bar's dispatch; shortcuts open with the bar as their owner.
    PaletteWindow(App &app, Skin &skin, MainCommands &commands, const WindowBase &bar)
        : app_(app), skin_(skin), commands_(commands), bar_(bar) {
    }
    ~PaletteWindow() override;

    // The hot key: the palette with fresh targets, or the bar's open modal window brought forward.
    void summon();

private:
    LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool createWindow();
    void collectTargets();
    void rank();
    // The font, the icons and the layout at the window's DPI.
    void fitDpi();
    void layout(bool fresh);
    void hide(bool backToPrevious);
    void move(int rows);
    void run(int row);
    bool fieldKey(WPARAM key);
    LRESULT onNotify(NMHDR &header);
    void giveItem(LVITEMW &item);
    int imageOf(const Target &target);
    int addIcon(HICON icon);
    LRESULT customDraw(NMLVCUSTOMDRAW &draw) const;

    App &app_;
    Skin &skin_;
    MainCommands &commands_;
    const WindowBase &bar_;
    HWND field_ = nullptr;
    ListView list_;
    HWND previous_ = nullptr; // the window in front before the palette came up
    FieldKeys fieldKeys_{{}, false, [this](HWND, WPARAM key) {
                             return fieldKey(key);
                         }};

    // What this summon lists, read fresh each time.
    CustomProgramTable customPrograms_;
    WebListContent webList_;
    std::vector<std::wstring> startMenuFolders_; // asked of the shell once
    std::vector<std::wstring> shortcuts_;
    std::vector<Target> targets_;
    std::vector<std::size_t> order_; // the targets shown, by their index, best first
    RunHistory history_;

    UniqueFont font_;
    UniqueImageList images_;
    std::map<int, int> menuImages_;           // by menu icon number
    std::map<std::wstring, int> shellImages_; // by file path
};

} // namespace orvane::ui
