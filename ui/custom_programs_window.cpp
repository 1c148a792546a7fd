// The custom programs window: the user's own programs in two grids, started
// by Enter or a double click, with a popup menu and a set of buttons around
// them.
#include <windows.h>
#include <commctrl.h>

#include <array>

#include "app.h"
#include "commands.h"
#include "dialogs.h"
#include "dpi.h"
#include "menu_bar.h"
#include "modal_dialog.h"
#include "program_grid.h"
#include "program_grids.h"
#include "resource.h"
#include "skin.h"

namespace orvane::ui {

namespace {

// Posted when the window is shown or activated: the list is read on the first.
constexpr UINT kActivated = WM_APP + 1;

class CustomProgramsWindow : public ModalDialog {
public:
    CustomProgramsWindow(App &app, Skin &skin, CustomProgramTable &table, MainCommands &commands)
        : ModalDialog(skin), app_(app), table_(table), commands_(commands) {
    }

private:
    ProgramGrid &grid(int number) {
        return grids_[static_cast<std::size_t>(number - 1)];
    }
    int scaled(int pixels) const {
        return ScaledForWindow(pixels, hwnd());
    }

    void onInit() override {
        app_.CurrentProgramPath.clear();
        placeFromSettings();
        // An icon file taken as a pointer points with its centre.
        hand_.reset(static_cast<HICON>(LoadImageW(nullptr, (app_.ProgramFolder + L"\\HandOpen.ico").c_str(), IMAGE_ICON,
                                                  scaled(32), scaled(32), LR_LOADFROMFILE)));
        pointer_.hand = hand_ ? hand_.get() : LoadCursorW(nullptr, IDC_HAND);
        grid(1).create(hwnd(), IDC_GRID1, pointer_, skin());
        grid(2).create(hwnd(), IDC_GRID2, pointer_, skin());
        const auto font = static_cast<WPARAM>(SendMessageW(hwnd(), WM_GETFONT, 0, 0));
        for (std::size_t i = 0; i < GridButtons().size(); ++i) {
            const std::wstring caption(GridButtons()[i].caption);
            HWND button = CreateWindowExW(
                0, L"BUTTON", caption.c_str(), WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON, 0, 0, 0, 0, hwnd(),
                reinterpret_cast<HMENU>(IDC_FIRST_GRID_BUTTON + i), GetModuleHandleW(nullptr), nullptr);
            SendMessageW(button, WM_SETFONT, font, FALSE);
        }
        layout();
        PostMessageW(hwnd(), kActivated, 0, 0);
    }

    // Where the window was left, when that is still on a screen.
    void placeFromSettings() {
        const Settings &s = app_.settings;
        if (s.CustomWidth <= 0 || s.CustomHeight <= 0)
            return;
        const UINT dpi = WindowDpi(hwnd());
        const RECT r{TwipsToPixels(s.CustomLeft, dpi), TwipsToPixels(s.CustomTop, dpi),
                     TwipsToPixels(s.CustomLeft + s.CustomWidth, dpi),
                     TwipsToPixels(s.CustomTop + s.CustomHeight, dpi)};
        const bool onScreen = MonitorFromRect(&r, MONITOR_DEFAULTTONULL) != nullptr;
        SetWindowPos(hwnd(), nullptr, r.left, r.top, r.right - r.left, r.bottom - r.top,
                     SWP_NOZORDER | SWP_NOACTIVATE | (onScreen ? 0 : SWP_NOMOVE));
    }

    // The grids side by side above the buttons, which wrap into as many rows as they need.
    void layout() {
        if (!grid(1).hwnd())
            return;
        RECT client{};
        GetClientRect(hwnd(), &client);
        const int margin = scaled(8), gap = scaled(4), width = scaled(92), height = scaled(26);
        const int count = static_cast<int>(GridButtons().size());
        const int perRow = std::max(1, static_cast<int>(client.right - 2 * margin + gap) / (width + gap));
        const int rows = (count + perRow - 1) / perRow;
        const int gridsBottom = client.bottom - margin - rows * (height + gap);
        for (int i = 0; i < count; ++i)
            MoveWindow(GetDlgItem(hwnd(), IDC_FIRST_GRID_BUTTON + i), margin + (i % perRow) * (width + gap),
                       gridsBottom + gap + (i / perRow) * (height + gap), width, height, TRUE);
        const int half = (client.right - 2 * margin - gap) / 2;
        grid(1).place({margin, margin, margin + half, gridsBottom});
        grid(2).place({margin + half + gap, margin, client.right - margin, gridsBottom});
    }

    void fillGrids() {
        const int rows[] = {grid(1).currentRow(), grid(2).currentRow()};
        for (int number : {1, 2})
            grid(number).fill(table_, GridEntries(table_, number));
        for (int number : {1, 2}) {
            const int restored = loaded_ ? rows[number - 1]
                                         : (number == 1 ? app_.settings.CustomGrid1Row : app_.settings.CustomGrid2Row);
            grid(number).setCurrentRow(restored >= 0 && restored < grid(number).rowCount() ? restored : 0);
        }
        app_.desktop.processPendingEvents();
    }

    void activated() {
        if (!loaded_) {
            LoadCustomList(app_, table_);
            fillGrids();
            loaded_ = true;
            layout();
        }
        focusGrid(1);
    }

    void focusGrid(int number) {
        active_ = number;
        grid(number).ensureCurrentRow();
        SetFocus(grid(number).hwnd());
    }

    void launch() {
        const int row = grid(active_).currentRow();
        if (row >= 0)
            LaunchEntry(app_, table_, grid(active_).entryOf(row));
    }

    void editList() {
        ShowCustomListEditor(app_, skin(), table_, hwnd());
        // What was not saved is dropped: the grids show the file again.
        LoadCustomList(app_, table_);
        fillGrids();
    }

    void showPopup(HWND from, LPARAM where) {
        if (from == grid(2).hwnd())
            active_ = 2;
        if (from == grid(1).hwnd())
            active_ = 1;
        POINT at{static_cast<short>(LOWORD(where)), static_cast<short>(HIWORD(where))};
        if (where == -1) { // from the keyboard: at the current row
            RECT row{};
            const ListView list(grid(active_).hwnd());
            if (!list.rowRect(std::max(0, grid(active_).currentRow()), row))
                GetClientRect(list, &row);
            at = {row.left + scaled(16), row.bottom};
            ClientToScreen(list, &at);
        }
        popup_.setColours(hwnd(), skin().menuColours());
        const auto command = FindGridMenuCommand(popup_.popup(hwnd(), at));
        if (!command)
            return;
        switch (*command) {
        case GridMenuCommand::Close:
            close();
            break;
        case GridMenuCommand::Info:
            ShowFileInformation(app_, skin(), hwnd(), app_.settings.CustomListFile);
            break;
        case GridMenuCommand::EditList:
            editList();
            break;
        case GridMenuCommand::LoadProgram:
            launch();
            break;
        }
    }

    // Every way of closing keeps the window's place and its current rows.
    void close() {
        Settings &s = app_.settings;
        WINDOWPLACEMENT placement{};
        placement.length = sizeof placement;
        GetWindowPlacement(hwnd(), &placement);
        RECT r = placement.rcNormalPosition;
        if (!IsIconic(hwnd()) && !IsZoomed(hwnd()))
            GetWindowRect(hwnd(), &r);
        const UINT dpi = WindowDpi(hwnd());
        s.CustomTop = PixelsToTwips(r.top, dpi);
        s.CustomLeft = PixelsToTwips(r.left, dpi);
        s.CustomHeight = PixelsToTwips(r.bottom - r.top, dpi);
        s.CustomWidth = PixelsToTwips(r.right - r.left, dpi);
        s.CustomGrid1Row = static_cast<std::int16_t>(grid(1).currentRow());
        s.CustomGrid2Row = static_cast<std::int16_t>(grid(2).currentRow());
        end(IDCANCEL);
    }

    void onCommand(int id, int code) override {
        if (id == IDOK)
            return launch(); // Enter on a grid
        if (id == IDCANCEL)
            return close();
        const std::size_t index = static_cast<std::size_t>(id - IDC_FIRST_GRID_BUTTON);
        if (id < IDC_FIRST_GRID_BUTTON || index >= GridButtons().size() || code != BN_CLICKED)
            return;
        const GridButton &button = GridButtons()[index];
        switch (button.action) {
        case GridButtonAction::MainCommand:
            commands_.run(button.row);
            break;
        case GridButtonAction::Deadlines:
            LoadDeadlinesWithArgument(app_);
            break;
        case GridButtonAction::Clock:
            ShowClockWindow(skin(), hwnd());
            break;
        case GridButtonAction::FirstGrid:
            focusGrid(1);
            break;
        case GridButtonAction::SecondGrid:
            focusGrid(2);
            break;
        case GridButtonAction::Exit:
            close();
            break;
        }
    }

    INT_PTR notify(const NMHDR &header) {
        const int number = header.idFrom == IDC_GRID1 ? 1 : header.idFrom == IDC_GRID2 ? 2 : 0;
        if (!number)
            return FALSE;
        switch (header.code) {
        case NM_CUSTOMDRAW:
            SetWindowLongPtrW(
                hwnd(), DWLP_MSGRESULT,
                grid(number).customDraw(*reinterpret_cast<NMLVCUSTOMDRAW *>(const_cast<NMHDR *>(&header))));
            return TRUE;
        case NM_SETFOCUS:
        case NM_CLICK:
            active_ = number;
            break;
        case NM_DBLCLK:
            active_ = number;
            launch();
            break;
        case LVN_KEYDOWN: {
            // Right goes to the second grid, Left back to the first.
            const WORD key = reinterpret_cast<const NMLVKEYDOWN &>(header).wVKey;
            if (number == 1 && key == VK_RIGHT)
                focusGrid(2);
            if (number == 2 && key == VK_LEFT)
                focusGrid(1);
            break;
        }
        }
        return FALSE;
    }

    INT_PTR onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (popup_.dialogMessage(hwnd(), skin(), message, wParam, lParam))
            return TRUE;
        switch (message) {
        case kActivated:
            activated();
            return TRUE;
        case WM_ACTIVATE:
            if (LOWORD(wParam) != WA_INACTIVE && loaded_)
                PostMessageW(hwnd(), kActivated, 0, 0);
            return FALSE;
        case WM_SIZE:
        case WM_DPICHANGED:
            layout();
            return FALSE;
        case WM_GETMINMAXINFO:
            reinterpret_cast<MINMAXINFO *>(lParam)->ptMinTrackSize = {scaled(360), scaled(300)};
            return TRUE;
        case WM_NOTIFY:
            return notify(*reinterpret_cast<const NMHDR *>(lParam));
        case WM_CONTEXTMENU:
            showPopup(reinterpret_cast<HWND>(wParam), lParam);
            return TRUE;
        }
        return FALSE;
    }

    App &app_;
    CustomProgramTable &table_;
    MainCommands &commands_;
    std::array<ProgramGrid, 2> grids_;
    GridPointer pointer_;
    UniqueIcon hand_;
    MenuBar popup_{GridMenuRows()};
    int active_ = 1;
    bool loaded_ = false;
};

} // namespace

void ShowCustomPrograms(App &app, Skin &skin, CustomProgramTable &table, MainCommands &commands, HWND owner) {
    CustomProgramsWindow(app, skin, table, commands).show(owner, IDD_CUSTOM_PROGRAMS);
}

} // namespace orvane::ui
