// The user's own programs: 64 entries, each a display name, a program path and
// a startup folder, kept in a list file of 192 lines (the names, then the
// paths, then the folders). One table serves the whole program.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace orvane {

class App;
class Files;
class Locale;

inline constexpr std::size_t kCustomEntries = 64;

struct CustomProgramTable {
    // One slot more than the entries: a spare that no file fills and nothing shows.
    using Column = std::array<std::wstring, kCustomEntries + 1>;
    Column DisplayNames, ProgramPaths, StartupFolders;

    // The name is the entry's key: blanks alone leave it empty.
    bool isEmpty(std::size_t entry) const;
    bool operator==(const CustomProgramTable &) const = default;
};

// Reads the file CustomListFile names, after the suite's path rules have had
// a chance to find it. A missing file, or one too large to read whole, is
// reported and the table is kept;
// otherwise the table is read anew (empty when the file cannot be opened) and
// the result is true. Program Files paths that are missing are swapped for
// their (x86) twin, and back.
bool LoadCustomList(App &app, CustomProgramTable &table);

// The table a list file's bytes hold, with the same swap of Program Files paths.
CustomProgramTable ParseCustomList(Files &files, Locale &locale, std::string_view bytes);

// The file's content: always 192 lines ending in CR LF. The path and folder of
// an empty entry are cleared, in the table as well.
std::wstring FormatCustomList(CustomProgramTable &table);

// Writes the table to CustomListFile as a fresh file. Failures go unreported.
void SaveCustomList(App &app, CustomProgramTable &table);

} // namespace orvane
