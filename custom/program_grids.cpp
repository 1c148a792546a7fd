#include "program_grids.h"

#include <array>

#include "app.h"
#include "commands.h"
#include "conversions.h"
#include "launch.h"
#include "paths.h"
#include "reports.h"

namespace orvane {

GridRows SplitForGrids(const CustomProgramTable &table) {
    int named = 0;
    for (std::size_t entry = 0; entry < kCustomEntries; ++entry)
        named += table.DisplayNames[entry].empty() ? 0 : 1;
    const int first = *RoundToInt16(named / 2.0);
    return {first, first - (named & 1)};
}

std::vector<std::size_t> GridEntries(const CustomProgramTable &table, int grid) {
    const GridRows rows = SplitForGrids(table);
    const int start = grid == 1 ? 0 : rows.first;
    const int count = std::max(0, grid == 1 ? rows.first : rows.second);
    std::vector<std::size_t> entries;
    for (int row = 0; row < count; ++row)
        entries.push_back(static_cast<std::size_t>(start + row));
    return entries;
}

void StartInFolder(App &app, const std::wstring &program, const std::wstring &folder) {
    const std::wstring previous = app.files.currentFolder();
    if (!program.empty() && app.files.fileExists(program)) {
        app.files.setCurrentFolder(folder);
        LaunchWithArgument(app, program, L"");
    } else {
        ReportFileNotFound(app, program);
    }
    app.files.setCurrentFolder(previous);
}

void LaunchEntry(App &app, const CustomProgramTable &table, std::size_t entry) {
    if (entry >= kCustomEntries || table.isEmpty(entry))
        return;
    StartInFolder(app, TrimBlanks(table.ProgramPaths[entry]), TrimBlanks(table.StartupFolders[entry]));
}

namespace {

constexpr auto kGridMenu = std::to_array<MenuRow>({
    {L"", L"keyClose", L"&Close", L"k6", {}},
    {L"", L"keyInfo", L"&Info", L"k42", {}},
    {L"", L"keyEdit", L"&Edit list", L"k73", {}},
    {L"", L"keyLoad", L"&Load program", L"k26", {}},
});

constexpr auto kGridMenuCommands = std::to_array<GridMenuCommand>(
    {GridMenuCommand::Close, GridMenuCommand::Info, GridMenuCommand::EditList, GridMenuCommand::LoadProgram});

using A = GridButtonAction;
constexpr GridButton Main(std::wstring_view caption, Command command) {
    return {caption, A::MainCommand, {caption, command}};
}
constexpr GridButton RunTool(std::wstring_view caption, Tool tool) {
    return {caption, A::MainCommand, {caption, Command::SuiteTool, tool}};
}

// Access letters are unique within the window.
constexpr auto kButtons = std::to_array<GridButton>({
    Main(L"&Word", Command::Word),
    Main(L"E&xcel", Command::Excel),
    Main(L"&PowerPoint", Command::PowerPoint),
    RunTool(L"D&iary", Tool::Diary),
    RunTool(L"&To-do list", Tool::ToDo),
    Main(L"Web&mail", Command::OpenWebmail),
    Main(L"We&b list", Command::WebList),
    Main(L"&Addresses", Command::LoadAddresses),
    {L"Dead&lines", A::Deadlines},
    {L"&Clock", A::Clock},
    Main(L"&Desktop", Command::ToggleDesktop),
    {L"Grid &1", A::FirstGrid},
    {L"Grid &2", A::SecondGrid},
    {L"&Exit", A::Exit},
});

} // namespace

std::span<const MenuRow> GridMenuRows() {
    return kGridMenu;
}

const GridMenuCommand *FindGridMenuCommand(std::wstring_view caption) {
    return CommandOfCaption<GridMenuCommand>(kGridMenu, kGridMenuCommands, caption);
}

std::span<const GridButton> GridButtons() {
    return kButtons;
}

void LoadDeadlinesWithArgument(App &app) {
    const std::wstring &document = app.settings.DeadlinesFile;
    if (document.empty() || !app.files.fileExists(document)) {
        ReportFileNotFound(app, document);
        return;
    }
    std::wstring tool = BuiltInPath(DeadlinesTool(document));
    LaunchWithArgument(app, ResolveSuitePath(app, tool), document);
}

} // namespace orvane
