#include "conversions.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace orvane {

namespace {

bool IsDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

int HexDigit(wchar_t c) {
    if (IsDigit(c))
        return c - L'0';
    if (c >= L'a' && c <= L'f')
        return c - L'a' + 10;
    if (c >= L'A' && c <= L'F')
        return c - L'A' + 10;
    return -1;
}

std::optional<double> HexPrefix(std::wstring_view digits) {
    std::uint64_t value = 0;
    std::size_t i = 0;
    for (; i < digits.size() && HexDigit(digits[i]) >= 0; ++i) {
        value = value * 16 + static_cast<std::uint64_t>(HexDigit(digits[i]));
        if (value > 0xFFFFFFFFull)
            return std::nullopt;
    }
    const bool longLiteral = i < digits.size() && digits[i] == L'&';
    if (!longLiteral && value <= 0xFFFF)
        return static_cast<double>(static_cast<std::int16_t>(value));
    return static_cast<double>(static_cast<std::int32_t>(static_cast<std::uint32_t>(value)));
}

std::optional<double> RoundTo(double value, double low, double high) {
    if (std::isnan(value))
        return std::nullopt;
    const double rounded = std::nearbyint(value); // the default mode rounds halves to even
    if (rounded < low || rounded > high)
        return std::nullopt;
    return rounded;
}

} // namespace

std::optional<double> NumericPrefix(std::wstring_view text) {
    std::size_t i = 0;
    while (i < text.size() && (text[i] == L' ' || text[i] == L'\t' || text[i] == L'\n'))
        ++i;
    text.remove_prefix(i);
    if (text.size() >= 2 && text[0] == L'&' && (text[1] == L'H' || text[1] == L'h'))
        return HexPrefix(text.substr(2));

    std::string number; // plain ASCII copy of the prefix for strtod
    std::size_t p = 0;
    if (p < text.size() && (text[p] == L'+' || text[p] == L'-'))
        number += static_cast<char>(text[p++]);
    std::size_t mantissaDigits = 0;
    for (; p < text.size() && IsDigit(text[p]); ++p, ++mantissaDigits)
        number += static_cast<char>(text[p]);
    if (p < text.size() && text[p] == L'.') {
        number += '.';
        for (++p; p < text.size() && IsDigit(text[p]); ++p, ++mantissaDigits)
            number += static_cast<char>(text[p]);
    }
    if (mantissaDigits == 0)
        return 0.0;
    if (p < text.size() && (text[p] == L'E' || text[p] == L'e' || text[p] == L'D' || text[p] == L'd')) {
        std::size_t q = p + 1;
        std::string exponent = "e";
        if (q < text.size() && (text[q] == L'+' || text[q] == L'-'))
            exponent += static_cast<char>(text[q++]);
        if (q < text.size() && IsDigit(text[q])) {
            for (; q < text.size() && IsDigit(text[q]); ++q)
                exponent += static_cast<char>(text[q]);
            number += exponent;
        }
    }
    const double value = std::strtod(number.c_str(), nullptr);
    if (std::isinf(value))
        return std::nullopt;
    return value;
}

std::optional<std::int16_t> RoundToInt16(double value) {
    if (auto r = RoundTo(value, -32768.0, 32767.0))
        return static_cast<std::int16_t>(*r);
    return std::nullopt;
}

std::optional<std::int32_t> RoundToInt32(double value) {
    if (auto r = RoundTo(value, -2147483648.0, 2147483647.0))
        return static_cast<std::int32_t>(*r);
    return std::nullopt;
}

std::wstring NumberText(long long value) {
    return std::to_wstring(value);
}

std::wstring TrimLeadingBlanks(std::wstring_view text) {
    const auto first = text.find_first_not_of(L' ');
    return first == std::wstring_view::npos ? std::wstring() : std::wstring(text.substr(first));
}

std::wstring TrimTrailingBlanks(std::wstring_view text) {
    const auto last = text.find_last_not_of(L' ');
    return last == std::wstring_view::npos ? std::wstring() : std::wstring(text.substr(0, last + 1));
}

std::wstring TrimBlanks(std::wstring_view text) {
    return TrimTrailingBlanks(TrimLeadingBlanks(text));
}

std::vector<std::wstring_view> SplitLines(std::wstring_view text, std::size_t maxLines) {
    std::vector<std::wstring_view> lines;
    std::size_t start = 0;
    while (start < text.size() && lines.size() < maxLines) {
        const auto end = text.find_first_of(L"\r\n", start);
        if (end == std::wstring_view::npos) {
            lines.push_back(text.substr(start));
            break;
        }
        lines.push_back(text.substr(start, end - start));
        start = end + ((text[end] == L'\r' && end + 1 < text.size() && text[end + 1] == L'\n') ? 2 : 1);
    }
    return lines;
}

namespace {

template <typename Char>
std::vector<std::basic_string_view<Char>> SplitAtCr(std::basic_string_view<Char> text, std::size_t maxLines) {
    std::vector<std::basic_string_view<Char>> lines;
    std::size_t start = 0;
    while (start < text.size() && lines.size() < maxLines) {
        const auto end = text.find(Char('\r'), start);
        lines.push_back(text.substr(start, end == text.npos ? end : end - start));
        if (end == text.npos)
            break;
        start = end + (end + 1 < text.size() && text[end + 1] == Char('\n') ? 2 : 1);
    }
    return lines;
}

} // namespace

std::vector<std::string_view> SplitAtCarriageReturns(std::string_view text, std::size_t maxLines) {
    return SplitAtCr(text, maxLines);
}

std::vector<std::wstring_view> SplitAtCarriageReturns(std::wstring_view text, std::size_t maxLines) {
    return SplitAtCr(text, maxLines);
}

bool ContainsIgnoringCase(std::wstring_view text, std::wstring_view part) {
    const auto lower = [](wchar_t c) {
        return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c + 32) : c;
    };
    return std::search(text.begin(), text.end(), part.begin(), part.end(), [&](wchar_t a, wchar_t b) {
               return lower(a) == lower(b);
           }) != text.end();
}

} // namespace orvane
