// The web list file: three lines per website (name, address, check mark),
// then "***" and one line per group of websites opened together.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// The name of a separator row: nine full stops, three blanks between each two.
inline constexpr std::wstring_view kSeparatorMarker = L".   .   .   .   .   .   .   .   .";
// The name and address of a row, or the text of a group, marked for deletion:
// it stays in the list until the next save leaves it out.
inline constexpr std::wstring_view kDeletionMark = L"---";
// The most rows the file's writer could count; a longer list cannot be saved.
inline constexpr std::size_t kMostSavedRows = 32767;

struct WebRow {
    std::wstring key; // "K_" and the row count when the row was added; never shown or saved
    std::wstring name, address;
    bool checked = false;
    bool selected = false;

    bool isSeparator() const {
        return name.starts_with(kSeparatorMarker);
    }
    bool operator==(const WebRow &) const = default;
};

struct WebListContent {
    std::vector<WebRow> rows;
    std::vector<std::wstring> groups;
    bool operator==(const WebListContent &) const = default;
};

// The file's text as read: lines end at CR or CR LF (a lone LF stays in its
// line), ";" lines are comments, "***" starts the groups. Keys are numbered anew.
WebListContent ParseWebList(std::wstring_view text);

// The file's text: each line ends in CR LF, the whole in one more. Rows named
// "---", empty groups and groups marked "---" are left out; groups are trimmed,
// and one starting ";" or "***" keeps one leading blank so that it reads back.
// Nothing when the list has more rows than a file can hold.
std::optional<std::wstring> FormatWebList(const WebListContent &content);

} // namespace orvane
