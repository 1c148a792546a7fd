#include "fake_system.h"

#include <algorithm>
#include <iterator>

namespace orvane::testing {

namespace {

// 0x80..0x9F of Windows-1252; the five unassigned bytes map to the C1
// controls of the same value, as the system's converter does.
constexpr char16_t kHigh[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

}  // namespace

std::wstring DecodeWindows1252(const std::string& bytes) {
    std::wstring text;
    for (unsigned char c : bytes) text += (c >= 0x80 && c < 0xA0) ? wchar_t(kHigh[c - 0x80]) : wchar_t(c);
    return text;
}

std::string EncodeWindows1252(const std::wstring& text) {
    std::string bytes;
    for (wchar_t c : text) {
        const auto high = std::find(std::begin(kHigh), std::end(kHigh), c);
        // '?' is what the system writes for a character the code page lacks.
        const bool latin1 = c < 0x80 || (c >= 0xA0 && c <= 0xFF);
        bytes += latin1 ? char(c) : high != std::end(kHigh) ? char(0x80 + (high - kHigh)) : '?';
    }
    return bytes;
}

}  // namespace orvane::testing
