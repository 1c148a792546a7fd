// Building and reading settings files in tests, line by line.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace orvane::e2e {

// The 39 lines of a settings file, each ending in CR LF: text lines empty,
// number lines "0", but the given lines (1-based).
inline std::string SettingsText(const std::map<int, std::string>& changed = {}) {
    constexpr char kTextLines[] = "..tttt.......tttttttt......ttt.ttttt...";
    std::string text;
    for (int line = 1; line <= 39; ++line)
        text += (changed.count(line) ? changed.at(line) : kTextLines[line - 1] == 't' ? "" : "0") + std::string("\r\n");
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

}  // namespace orvane::e2e
