// The palette's portable half: everything the bar can start as one list of
// targets, the ranking of those targets against what the user typed, and the
// runs remembered since the bar started.
#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "dispatch.h"
#include "menu.h"
#include "program_list.h"
#include "web_list_file.h"

namespace orvane {

class App;
class Files;
class Shell;

// In the order their targets rank when all else is equal.
enum class TargetKind : std::uint8_t {
    Command,       // a main menu item or an icon of the strip with a command
    CustomProgram, // an entry of the custom program list
    Website,       // a row of the web list
    WebGroup,      // a group of the web list
    Shortcut       // a shortcut or program of the Start menu
};

struct Target {
    TargetKind kind = TargetKind::Command;
    std::wstring name{};         // as the list shows it: a caption without "&", a display name, a file name
    std::wstring folded{};       // the name folded to lower case once, so a keystroke only compares
    std::wstring shortcut{};     // a command's shortcut text ("Ctrl+S"); empty otherwise
    std::wstring_view iconKey{}; // a command's menu icon key; empty otherwise
    // The command a Command target runs (MainCommands::run): the strip's webmail
    // icon shares its caption with the menu item that asks for the address, so
    // only this reaches its own command. Null for the other kinds.
    const DispatchRow *command = nullptr;
    bool stripOnly = false; // a command only an icon of the strip has, shown as the strip's own
    std::wstring path{};    // a custom program's or shortcut's file, for its icon and its start
    std::size_t index = 0;  // the custom entry, the web row or the web group it stands for
};

// What the targets are built from, read fresh at each summon.
struct TargetSources {
    std::span<const MenuRow> menu;
    std::span<const StripIcon> strip;
    const CustomProgramTable *customPrograms = nullptr;
    const WebListContent *webList = nullptr;
    std::span<const std::wstring> shortcuts; // full paths
};

// Commands in menu order (then the strip's commands no menu item has), custom
// programs, websites, groups, then shortcuts, each in list order.
std::vector<Target> BuildTargets(const TargetSources &sources);

// The user's and all users' Start menu Programs folders, each once. Asking the
// shell for them is slow next to the rest of a summon, and they do not move.
std::vector<std::wstring> StartMenuFolders(Shell &shell);
// The files of those folders, subfolders included, that are ".lnk", ".url" or
// ".exe" (any case), each folder's sorted case-insensitively.
std::vector<std::wstring> StartMenuShortcuts(Files &files, std::span<const std::wstring> folders);

// A custom list or web list read quietly for the palette: a file that is
// missing, unreadable or too large gives an empty list and no message.
CustomProgramTable QuietCustomList(App &app);
WebListContent QuietWebList(App &app);

// Lower case for matching: ASCII, Latin-1 and the other European alphabets' capitals.
wchar_t FoldCase(wchar_t c);
std::wstring FoldCase(std::wstring_view text);

// The targets run since the bar started, most recent last.
class RunHistory {
public:
    void ran(const Target &target);
    // 0 for never run; a higher number for a more recent run.
    std::size_t recency(const Target &target) const;

private:
    struct Run {
        TargetKind kind;
        std::wstring name, path;
        const DispatchRow *command; // tells the strip's webmail from the menu item of the same name
        bool of(const Target &target) const;
    };
    std::vector<Run> runs_;  // oldest first, each once
    std::bitset<256> heard_; // the runs' quick signatures: most targets are told apart without a comparison
};

// The indices of the targets the typed text matches, best first: a name that
// starts with the text, then a word of the name that starts with it, then the
// text anywhere, then its letters in order. Ties go to the more recently run,
// then to the order of the targets. An empty text lists the last ten targets
// run, most recent first, then all the others in their order.
std::vector<std::size_t> RankTargets(std::span<const Target> targets, std::wstring_view typed,
                                     const RunHistory &history);

// Opens a website or group of the web list exactly as the web list window does
// for its row or group: the chosen browser with that address, or the group's
// addresses, asking first where the window would ask.
void OpenWebTarget(App &app, const WebListContent &content, const Target &target);

} // namespace orvane
