// What the custom programs window shows and does, apart from its controls:
// which entries its two grids hold, starting an entry, its popup menu and the
// buttons around the grids.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "dispatch.h"
#include "menu.h"
#include "program_list.h"

namespace orvane {

class App;

// The rows of the two grids. Half the n named entries, rounded half to even,
// go to the first grid; the second gets as many less one when n is odd. So
// for n = 1, 5, 9 … the last entries are not shown, and for n = 1 the second
// count is -1 (no rows). The n entries are the first n slots, named or not.
struct GridRows {
    int first = 0;
    int second = 0;
};
GridRows SplitForGrids(const CustomProgramTable &table);

// The table entries grid 1 or 2 shows, row by row.
std::vector<std::size_t> GridEntries(const CustomProgramTable &table, int grid);

// Starts a program in its startup folder (an empty or missing folder leaves
// the current one), then returns to the folder it came from. A missing
// program is reported and nothing starts.
void StartInFolder(App &app, const std::wstring &program, const std::wstring &folder);

// The launch of a row: nothing for an entry without a name.
void LaunchEntry(App &app, const CustomProgramTable &table, std::size_t entry);

// The grids' popup menu, matched by caption in this order.
enum class GridMenuCommand {
    Close,
    Info,
    EditList,
    LoadProgram
};
std::span<const MenuRow> GridMenuRows();
const GridMenuCommand *FindGridMenuCommand(std::wstring_view caption);

// The buttons around the grids. Most run a command of the main window's
// table; the rest are the window's own.
enum class GridButtonAction {
    MainCommand,
    Deadlines,
    Clock,
    FirstGrid,
    SecondGrid,
    Exit
};
struct GridButton {
    std::wstring_view caption;
    GridButtonAction action;
    DispatchRow row{}; // for MainCommand
};
std::span<const GridButton> GridButtons();

// The deadlines file in its tool, the file quoted when it holds a blank. An
// empty or missing file is reported.
void LoadDeadlinesWithArgument(App &app);

} // namespace orvane
