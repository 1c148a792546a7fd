// The old runtime's conversions that the file formats depend on: its lenient
// numeric prefix, rounding half to even with overflow detection, number text,
// and trimming of blanks (the space character only; tabs are kept).
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// Value of the longest numeric prefix after leading white space: a decimal
// number with optional sign, fraction and exponent (E or D), or "&H" followed
// by hexadecimal digits (four digits or fewer read as a 16-bit pattern, up to
// eight as a 32-bit one, unless a trailing "&" marks a 32-bit literal). Text
// without a numeric prefix is 0. Nothing when the number overflows.
std::optional<double> NumericPrefix(std::wstring_view text);

// Round to the nearest integer, halves to the even neighbour; nothing when the
// result does not fit the type.
std::optional<std::int16_t> RoundToInt16(double value);
std::optional<std::int32_t> RoundToInt32(double value);

// The decimal text of a number without a leading blank: "0", "1440", "-1".
std::wstring NumberText(long long value);

std::wstring TrimBlanks(std::wstring_view text);
std::wstring TrimLeadingBlanks(std::wstring_view text);
std::wstring TrimTrailingBlanks(std::wstring_view text);

// Splits text into lines at CR LF, CR or LF; a final line without a line
// end counts, an empty tail after the last line end does not. Stops after
// maxLines lines.
std::vector<std::wstring_view> SplitLines(std::wstring_view text, std::size_t maxLines);

// The lines of a list file as the old runtime read them: a line ends at CR LF
// or a lone CR, while a lone LF stays inside its line. Counted as SplitLines.
std::vector<std::string_view> SplitAtCarriageReturns(std::string_view text, std::size_t maxLines);
std::vector<std::wstring_view> SplitAtCarriageReturns(std::wstring_view text, std::size_t maxLines);

// Whether the text contains the part, ignoring the case of ASCII letters.
bool ContainsIgnoringCase(std::wstring_view text, std::wstring_view part);

} // namespace orvane
