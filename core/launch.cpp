#include "launch.h"

#include "app.h"
#include "conversions.h"
#include "helpers.h"
#include "paths.h"
#include "reports.h"
#include "winlist.h"

namespace orvane {

namespace {

// The drive scan: every drive's "Drive_" folder from C up to, as the suite
// always did, the six characters that follow Z.
constexpr int kFirstScannedDrive = 'C';
constexpr int kLastScannedDrive = 'Z' + 6;

// The code of a start is kept only when it fits the 16-bit result.
void KeepLaunchResult(App &app, long long code) {
    if (auto value = RoundToInt16(static_cast<double>(code)))
        app.LastLaunchResult = *value;
}

void StartCommandLine(App &app, const std::wstring &commandLine) {
    if (auto task = app.shell.startCommandLine(commandLine, kShowNormal))
        KeepLaunchResult(app, *task);
}

std::optional<std::wstring> ScanDriveFolders(Files &files, const std::wstring &path) {
    for (int code = kFirstScannedDrive; code <= kLastScannedDrive; ++code) {
        std::wstring candidate = AsDriveFolderPath(static_cast<wchar_t>(code), path);
        if (files.fileExists(candidate))
            return candidate;
    }
    return std::nullopt;
}

std::optional<std::wstring> LocateSuiteProgram(App &app, const std::wstring &program) {
    if (app.files.fileExists(program))
        return program;
    if (std::wstring inSuite = kSuiteFallbackFolder + BackslashFileName(program); app.files.fileExists(inSuite))
        return inSuite;
    if (auto found = ScanDriveFolders(app.files, program))
        return found;
    if (!app.ProgramFolder.empty()) {
        if (std::wstring ownDrive = AsDriveFolderPath(app.ProgramFolder[0], program); app.files.fileExists(ownDrive))
            return ownDrive;
    }
    if (std::wstring beside = app.ProgramFolder + BackslashFileName(program); app.files.fileExists(beside))
        return beside;
    return std::nullopt;
}

// The tool's window title: its file name without a final ".exe" (exact case).
std::wstring ProgramBaseName(const std::wstring &program) {
    std::wstring name = BackslashFileName(program).substr(1);
    if (name.size() >= 4 && name.compare(name.size() - 4, 4, L".exe") == 0)
        name.resize(name.size() - 4);
    return name;
}

} // namespace

bool ExecuteProcess(Shell &shell, const std::wstring &file, WindowRef owner, int style, const std::wstring &parameters,
                    bool elevate) {
    // A request that names no file has nothing to start; the shell would open a folder instead.
    if (TrimBlanks(file).empty())
        return false;
    ShellExecuteRequest request;
    request.owner = owner;
    request.verb = elevate ? L"runas" : L"Open";
    request.file = file;
    request.parameters = parameters;
    request.directory = ParentFolder(file);
    request.showCode = style;
    return shell.shellExecute(request);
}

void LaunchSuiteProgram(App &app, std::wstring &program, std::wstring &document) {
    if (Contains(document, L"\"") && document.size() >= 2)
        document = document.substr(1, document.size() - 2);

    const auto located = LocateSuiteProgram(app, program);
    if (!located) {
        ReportFileNotFound(app, program);
        return;
    }
    program = *located;

    RefreshWindowList(app);
    if (const WindowRef running = FindListedWindow(app.windowList, ProgramBaseName(program)); running != 0) {
        app.prompts.showMessage(L"Program running already", kProgramTitle, MessageIcon::None, MessageButtons::Ok);
        KeepLaunchResult(app, app.desktop.bringToForeground(running) ? 1 : 0);
        return;
    }

    if (document.size() >= 2 && !Contains(document, L"\\")) {
        const std::wstring folder = app.files.currentFolder();
        document = folder + (folder.size() == 3 ? L"" : L"\\") + document;
    }
    if (TrimBlanks(document).empty()) {
        StartCommandLine(app, program);
        return;
    }
    if (!app.files.fileExists(document) && Contains(document, L":") && !Contains(document, L"\\Drive_")) {
        if (auto found = ScanDriveFolders(app.files, document))
            document = *found;
    }
    if (Contains(document, L" "))
        document = L"\"" + document + L"\"";
    StartCommandLine(app, TrimBlanks(program) + L" " + document);
}

std::wstring CommandWithArgument(const std::wstring &program, const std::wstring &argument) {
    if (argument.empty())
        return program;
    if (!Contains(argument, L" "))
        return program + L" " + argument;
    return program + L" \"" + argument + L"\"";
}

void LoadCustomBrowser(App &app, const std::wstring &target) {
    app.LaunchPath = app.settings.CustomBrowser;
    if (!app.files.fileExists(app.LaunchPath)) {
        ReportFileNotFound(app, app.LaunchPath, L"Custom Browser");
        return;
    }
    app.desktop.processPendingEvents();
    StartCommandLine(app, CommandWithArgument(app.LaunchPath, target));
}

void LaunchWithArgument(App &app, const std::wstring &program, const std::wstring &argument) {
    app.desktop.processPendingEvents();
    StartCommandLine(app, CommandWithArgument(program, argument));
}

void ExploreFolder(App &app, WindowRef owner) {
    const std::wstring folder = app.files.currentFolder();
    KeepLaunchResult(app, app.shell.shellVerb(owner, L"explore", folder, folder, kShowNormal));
}

} // namespace orvane
