// The settings file as read from disk: whatever it holds, writing it gives 39
// CR LF lines, and those lines read back write the same again.
#include "fuzz.h"
#include "settings.h"

using namespace orvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Settings read;
    ApplySettingsLines(read, fuzz::AnsiText(data, size));
    const std::wstring text = FormatSettings(read);
    std::size_t lines = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == L'\n') FUZZ_CHECK(at > 0 && text[at - 1] == L'\r');
        if (text[at] != L'\r') continue;
        FUZZ_CHECK(at + 1 < text.size() && text[at + 1] == L'\n');
        ++lines;
    }
    FUZZ_CHECK(lines == kSettingsLineCount && text.ends_with(L"\r\n"));
    Settings again;
    ApplySettingsLines(again, text);
    FUZZ_CHECK(again == read);
    FUZZ_CHECK(FormatSettings(again) == text);
    return 0;
}
