// Settings the user sets through a file-open dialog, and the rules of the two
// settings dialogs: the program locations and the user's own program.
#pragma once

#include <array>
#include <string>

#include "settings.h"

namespace orvane {

class App;

enum class Choice {
    Word,
    Excel,
    PowerPoint,
    Publisher,
    Access,
    Wallpaper,
    WebList,
    YourProgram,
    Deadlines,
    Addresses,
    CustomBrowser
};

struct FileChoice {
    Choice which;
    const wchar_t *title;
    const wchar_t *filter;
    std::wstring Settings::*setting;
};

inline constexpr wchar_t kProgramsFilter[] = L"Programs (*.exe)|*.exe;All files (*.*)|*.*";
inline constexpr wchar_t kAllFilesFilter[] = L"All files (*.*)|*.*";

inline constexpr std::array<FileChoice, 11> kFileChoices = {{
    {Choice::Word, L"Locate MS Word", kProgramsFilter, &Settings::WordPath},
    {Choice::Excel, L"Locate MS Excel", kProgramsFilter, &Settings::ExcelPath},
    {Choice::PowerPoint, L"Locate MS PowerPoint", kProgramsFilter, &Settings::PowerPointPath},
    {Choice::Publisher, L"Locate MS Publisher", kProgramsFilter, &Settings::PublisherPath},
    {Choice::Access, L"Locate MS Access", kProgramsFilter, &Settings::AccessPath},
    {Choice::Wallpaper, L"Get wallpaper file", L"Image files (*.jpg, etc.)|*.jpg;*.png;*.bmp|All files (*.*)|*.*",
     &Settings::WallpaperFile},
    {Choice::WebList, L"Get web list", L"List files (*.lst)|*.lst|All files (*.*)|*.*", &Settings::WebListFile},
    {Choice::YourProgram, L"Locate your program", L"Programs (*.exe)|*.exe", &Settings::YourProgram},
    {Choice::Deadlines, L"Specify Deadlines file", kAllFilesFilter, &Settings::DeadlinesFile},
    {Choice::Addresses, L"Specify Addresses file", kAllFilesFilter, &Settings::AddressesFile},
    {Choice::CustomBrowser, L"Get custom browser", L"Program files (*.exe)|*.exe", &Settings::CustomBrowser},
}};

// Shows the file dialog, preset to the setting's current value; a chosen file
// becomes the setting. False when cancelled: the setting keeps its value.
bool ChooseIntoSetting(App &app, Choice which);

// One folder for all five Office programs, taken from WordPath when it names
// an existing file. Otherwise says so, changes nothing and returns false.
bool SameForAll(App &app);

// Starts YourProgram when it names an existing file and returns true (the
// dialog closes); otherwise says so and returns false (the dialog stays).
bool StartYourProgram(App &app);

} // namespace orvane
