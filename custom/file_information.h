// The entry dialog's path rule and the file information the information
// dialog shows and copies.
#pragma once

#include <cstdint>
#include <string>

namespace orvane {

class App;
class Prompts;

// Takes " (x86)" out of the path, or puts it in after the 16th character
// (where "C:\Program Files" ends), whatever the path's start.
std::wstring ToggleX86(const std::wstring &path);

// The digits in groups of three ("###,###,###"); nothing for zero.
std::wstring GroupedDigits(std::uint64_t number, const std::wstring &separator);

struct FileInformation {
    std::wstring fileName; // "C:\" for a drive
    std::wstring folder;
    std::wstring size;
    std::wstring altered;
    std::wstring time; // when the information was taken
    std::wstring date;
    bool exists = false;
};

FileInformation InformationOf(App &app, const std::wstring &path);

// The eight lines the information dialog copies, each ending in CR LF.
std::wstring InformationText(const FileInformation &info);

// Puts the text on the clipboard, beeps and says where to find it.
void CopyInformation(Prompts &prompts, const FileInformation &info);

} // namespace orvane
