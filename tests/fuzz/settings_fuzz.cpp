// The settings file as read from disk: whatever it holds, writing it gives 39
// CR LF lines, and those lines read back write the same again.
#include <algorithm>

#include "fuzz.h"
#include "settings.h"

using namespace orvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Settings read;
    ApplySettingsLines(read, fuzz::AnsiText(data, size));
    const std::wstring text = FormatSettings(read);
    // Every CR and every LF belongs to one of the CR LF pairs, which do not overlap.
    std::ptrdiff_t lines = 0;
    for (auto at = text.find(L"\r\n"); at != std::wstring::npos; at = text.find(L"\r\n", at + 2))
        ++lines;
    FUZZ_CHECK(lines == std::ptrdiff_t(kSettingsLineCount) && std::ranges::count(text, L'\r') == lines &&
               std::ranges::count(text, L'\n') == lines && text.ends_with(L"\r\n"));
    Settings again;
    ApplySettingsLines(again, text);
    FUZZ_CHECK(again == read && FormatSettings(again) == text);
    return 0;
}
