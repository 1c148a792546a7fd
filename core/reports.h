// The two standard messages about files.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace orvane {

class App;
class Prompts;

// "Cannot locate the following program/file:" with the path; the caption is
// the title when given, otherwise the program's title.
void ReportFileNotFound(App &app, const std::wstring &path, const std::optional<std::wstring> &title = std::nullopt);

// "Cannot save this file :" with the path and the system's reason; passing any
// operation means a deletion failed ("Cannot delete this file :").
void ReportFileError(App &app, const std::wstring &path, const std::optional<std::wstring> &operation = std::nullopt);

// "Cannot load this file :" with the path and its size: nothing of it was read.
std::wstring FileTooLargeText(const std::wstring &path, std::uint64_t size);
void ReportFileTooLarge(Prompts &prompts, const std::wstring &path, std::uint64_t size);

} // namespace orvane
