#include "office.h"

#include "app.h"
#include "launch.h"
#include "reports.h"

namespace orvane {

const OfficeProgram &OfficeProgramOf(Office which) {
    for (const OfficeProgram &program : kOfficePrograms)
        if (program.which == which)
            return program;
    return kOfficePrograms.front();
}

std::wstring LocateOfficeProgram(App &app, const std::wstring &fileName) {
    for (const OfficeProgram &program : kOfficePrograms) {
        const std::wstring &location = app.settings.*program.userLocation;
        if (fileName == program.fileName && !location.empty() && app.files.fileExists(location))
            return location;
    }
    // ProgramFilesFolder ends in a backslash, so the path holds two in a row;
    // the system reads them as one.
    const std::wstring base = app.ProgramFilesFolder + L"\\Microsoft Office\\";
    for (const wchar_t *version : {L"OFFICE16\\", L"OFFICE12\\", L"OFFICE11\\"}) {
        if (const std::wstring path = base + version + fileName; app.files.fileExists(path))
            return path;
    }
    return base + L"Office\\" + fileName;
}

void LoadOfficeProgram(App &app, Office which, const std::wstring &document) {
    // The main window and the other windows keep the located path in a value
    // of their own; both are kept here, as one routine serves them all.
    app.LaunchPath = app.OfficeProgramPath = LocateOfficeProgram(app, OfficeProgramOf(which).fileName);
    if (!app.files.fileExists(app.OfficeProgramPath)) {
        ReportFileNotFound(app, app.OfficeProgramPath);
        return;
    }
    LaunchWithArgument(app, app.OfficeProgramPath, document);
}

} // namespace orvane
