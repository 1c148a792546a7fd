// Building and reading settings files in tests, line by line.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace orvane::e2e {

// Each line followed by CR LF.
inline std::string CrLfLines(const std::vector<std::string>& lines) {
    std::string text;
    for (const auto& line : lines) text += line + "\r\n";
    return text;
}

// The lines of a file whose every line ends in CR LF; a tail without CR LF is
// returned as a last line so a test sees it.
inline std::vector<std::string> SplitCrLf(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t at = 0;
    for (std::size_t end; (end = text.find("\r\n", at)) != std::string::npos; at = end + 2)
        lines.push_back(text.substr(at, end - at));
    if (at < text.size()) lines.push_back(text.substr(at));
    return lines;
}

// The 39 lines of a settings file: text lines empty, number lines "0", then
// the given lines (1-based) replaced.
inline std::vector<std::string> SettingsLines(const std::map<int, std::string>& changed = {}) {
    static const std::vector<int> textLines = {3, 4, 5, 6, 14, 15, 16, 17, 18, 19, 20, 21, 28, 29, 30, 32, 33, 34, 35, 36};
    std::vector<std::string> lines(39, "0");
    for (int line : textLines) lines[line - 1] = "";
    for (const auto& [line, value] : changed) lines[line - 1] = value;
    return lines;
}

}  // namespace orvane::e2e
