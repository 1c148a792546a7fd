#include "web_list_file.h"

#include <limits>

#include "conversions.h"

namespace orvane {

namespace {

// A check mark on an address that holds the separator marker does not count.
bool CheckCounts(const WebRow &row) {
    return row.checked && row.address.find(kSeparatorMarker) == std::wstring::npos;
}

} // namespace

WebListContent ParseWebList(std::wstring_view text) {
    WebListContent content;
    enum class Field {
        Name,
        Address,
        Check
    } field = Field::Name;
    bool groups = false;
    for (std::wstring_view line : SplitAtCarriageReturns(text, std::numeric_limits<std::size_t>::max())) {
        if (line.starts_with(L';'))
            continue;
        if (line.starts_with(L"***")) {
            groups = true;
            continue;
        }
        if (groups) {
            content.groups.push_back(TrimBlanks(line)); // empty ones too: the writer drops them
            continue;
        }
        switch (field) {
        case Field::Name:
            content.rows.push_back({L"K_" + std::to_wstring(content.rows.size() + 1), std::wstring(line), L""});
            field = Field::Address;
            break;
        case Field::Address:
            content.rows.back().address = line;
            field = Field::Check;
            break;
        case Field::Check:
            content.rows.back().checked = TrimBlanks(line) == L"1";
            content.rows.back().checked = CheckCounts(content.rows.back());
            field = Field::Name;
            break;
        }
    }
    return content;
}

std::optional<std::wstring> FormatWebList(const WebListContent &content) {
    if (content.rows.size() > kMostSavedRows)
        return std::nullopt;
    std::wstring text;
    for (const WebRow &row : content.rows) {
        if (row.name == kDeletionMark)
            continue;
        text += row.name + L"\r\n" + row.address + L"\r\n" + (CheckCounts(row) ? L"1\r\n" : L"0\r\n");
    }
    text += L"***\r\n";
    for (const std::wstring &group : content.groups) {
        const std::wstring trimmed = TrimBlanks(group);
        if (trimmed.empty() || group == kDeletionMark)
            continue;
        // Flush left, a group starting ";" or "***" would read back as a comment or
        // as the groups' marker and be lost: one blank keeps it, and reading trims it.
        const bool guarded = trimmed.starts_with(L';') || trimmed.starts_with(L"***");
        text += (guarded ? L" " : L"") + trimmed + L"\r\n";
    }
    return text + L"\r\n";
}

} // namespace orvane
