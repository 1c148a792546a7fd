// Small file, path and system helpers shared by the core.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "files.h"

namespace orvane {

class App;

// The file dialogs change the current folder; this puts it back when it goes.
class FolderKeeper {
public:
    explicit FolderKeeper(Files &files) : files_(files), folder_(files.currentFolder()) {
    }
    FolderKeeper(const FolderKeeper &) = delete;
    FolderKeeper &operator=(const FolderKeeper &) = delete;
    ~FolderKeeper() {
        files_.setCurrentFolder(folder_);
    }

private:
    Files &files_;
    std::wstring folder_;
};

// The most the program reads of a settings or list file, far beyond any real one.
inline constexpr std::uint64_t kMostFileBytes = std::uint64_t{64} << 20;

// A file read whole or not at all, never cut short.
struct WholeFile {
    std::optional<std::string> bytes; // nothing when the file cannot be read or is too large
    std::uint64_t tooLarge = 0;       // the size of a file larger than kMostFileBytes
};
// A file over kMostFileBytes is refused without being read.
WholeFile ReadWholeFile(Files &files, const std::wstring &path);

// Deletes the file when the path is not empty and the file exists; errors ignored.
void DeleteFileIfPresent(Files &files, const std::wstring &path);

// Adds a backslash unless the path, trimmed of blanks, ends in "\" or "/".
// Trailing blanks go, leading blanks stay; an empty path becomes "\".
void EnsureTrailingBackslash(std::wstring &path);

// Everything before the last backslash; empty when there is none.
std::wstring ParentFolder(const std::wstring &path);

// The part before the first NUL character, or the whole string.
std::wstring CutAtNul(const std::wstring &text);

// The file name with a leading backslash: the part of the path from its last
// backslash on ("\name.exe"), or a backslash and the path when it has none.
std::wstring BackslashFileName(const std::wstring &path);

// The old runtime's Left(s, n) and Mid(s, n) (1-based, forgiving of short strings).
std::wstring LeftOf(const std::wstring &text, std::size_t count);
std::wstring MidFrom(const std::wstring &text, std::size_t position);

bool Contains(const std::wstring &text, const std::wstring &part);

// The program's own label for a system version: "Win 7 + later", "Vista",
// "Win XP", "Win 2000", or nothing.
std::wstring OsVersionName(int major, int minor);

// Sets OsVersionCode, OsMinorVersion and, when the version has a label, OsVersionName.
void DetectOsVersion(App &app);

// Sets ProgramFilesFolder and DocumentsFolder, each with a trailing backslash.
void FindSystemFolders(App &app);

} // namespace orvane
