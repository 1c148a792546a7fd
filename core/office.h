// Where the five Microsoft Office programs are, and starting them: the
// location the user set wins when its file exists; otherwise a short list of
// standard installation folders is tried.
#pragma once

#include <array>
#include <string>

#include "settings.h"

namespace orvane {

class App;

enum class Office {
    Word,
    PowerPoint,
    Excel,
    Access,
    Publisher
};

struct OfficeProgram {
    Office which;
    const wchar_t *fileName; // compared in exact case
    std::wstring Settings::*userLocation;
};

// In the order the user locations are tried.
inline constexpr std::array<OfficeProgram, 5> kOfficePrograms = {{
    {Office::Word, L"WINWORD.EXE", &Settings::WordPath},
    {Office::Publisher, L"MSPUB.EXE", &Settings::PublisherPath},
    {Office::Access, L"MSACCESS.EXE", &Settings::AccessPath},
    {Office::Excel, L"EXCEL.EXE", &Settings::ExcelPath},
    {Office::PowerPoint, L"POWERPNT.EXE", &Settings::PowerPointPath},
}};

const OfficeProgram &OfficeProgramOf(Office which);

// A full path for one of the five program file names; it need not exist.
std::wstring LocateOfficeProgram(App &app, const std::wstring &fileName);

// Starts the program, with the document when one is given (quoted when it
// holds a blank; the program path never is). A program that cannot be found
// is reported and nothing starts.
void LoadOfficeProgram(App &app, Office which, const std::wstring &document);

} // namespace orvane
