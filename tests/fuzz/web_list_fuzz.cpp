// The web list as read from disk: saved and read back, it keeps every row not
// marked "---" (name, address, counted check mark) and every group with text,
// and saving that gives the same file.
#include <tuple>
#include <vector>

#include "fuzz.h"
#include "web_list_file.h"

using namespace orvane;

// What a save keeps of the content: its rows and its groups.
static auto Kept(const WebListContent &content) {
    std::vector<std::tuple<std::wstring, std::wstring, bool>> rows;
    std::vector<std::wstring> groups;
    for (const WebRow &row : content.rows)
        if (row.name != kDeletionMark)
            rows.emplace_back(row.name, row.address, row.checked);
    for (const std::wstring &group : content.groups)
        if (!group.empty() && group != kDeletionMark)
            groups.push_back(group);
    return std::pair(rows, groups);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const WebListContent read = ParseWebList(fuzz::AnsiText(data, size));
    const auto text = FormatWebList(read);
    FUZZ_CHECK(text.has_value() == (read.rows.size() <= kMostSavedRows));
    if (!text)
        return 0;
    const WebListContent back = ParseWebList(*text);
    FUZZ_CHECK(Kept(back) == Kept(read) && back.rows.size() == Kept(read).first.size());
    for (std::size_t row = 0; row < back.rows.size(); ++row)
        FUZZ_CHECK(back.rows[row].key == L"K_" + std::to_wstring(row + 1) && !back.rows[row].selected);
    FUZZ_CHECK(FormatWebList(back) == text);
    return 0;
}
