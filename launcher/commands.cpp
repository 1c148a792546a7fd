#include "commands.h"

#include <cwctype>

#include "app.h"
#include "launch.h"
#include "locations.h"
#include "office.h"
#include "paths.h"
#include "reports.h"

namespace orvane {

bool MainCommands::dispatch(std::wstring_view caption) {
    const DispatchRow *row = FindDispatchRow(caption);
    if (row)
        run(*row);
    return row != nullptr;
}

void MainCommands::run(const DispatchRow &row) {
    switch (row.command) {
    case Command::SuiteTool:
        launchSuiteTool(row.tool, L"");
        break;
    case Command::WindowsExplorer:
        exploreCurrentFolder();
        break;
    case Command::Exit:
        window_.exitProgram();
        break;
    case Command::Word:
        LoadOfficeProgram(app_, Office::Word, L"");
        break;
    case Command::PowerPoint:
        LoadOfficeProgram(app_, Office::PowerPoint, L"");
        break;
    case Command::Excel:
        LoadOfficeProgram(app_, Office::Excel, L"");
        break;
    case Command::Access:
        LoadOfficeProgram(app_, Office::Access, L"");
        break;
    case Command::Publisher:
        LoadOfficeProgram(app_, Office::Publisher, L"");
        break;
    case Command::ProgramLocations:
        window_.showProgramLocations();
        break;
    case Command::LoadDeadlines:
        loadDeadlines();
        break;
    case Command::GetDeadlines:
        ChooseIntoSetting(app_, Choice::Deadlines);
        break;
    case Command::LoadAddresses:
        loadAddresses();
        break;
    case Command::GetAddresses:
        ChooseIntoSetting(app_, Choice::Addresses);
        break;
    case Command::About:
        window_.showAbout();
        break;
    case Command::CustomBrowser:
        loadCustomBrowser();
        break;
    case Command::GetCustomBrowser:
        ChooseIntoSetting(app_, Choice::CustomBrowser);
        break;
    case Command::WebmailUrl:
        openWebmail();
        break;
    case Command::YourProgram:
        window_.showYourProgram();
        break;
    case Command::ToggleDesktop:
        window_.toggleDesktop();
        break;
    case Command::ScreenWidth:
        window_.useScreenWidth();
        break;
    case Command::IncreaseImageSize:
        window_.changeIconSize(1);
        break;
    case Command::DecreaseImageSize:
        window_.changeIconSize(2);
        break;
    case Command::ChangeSkin:
        window_.chooseSkin();
        break;
    case Command::MenuFont:
        window_.chooseMenuFont();
        break;
    case Command::CustomPrograms:
        window_.showCustomPrograms();
        break;
    case Command::Wallpaper:
        window_.showWallpaper();
        break;
    case Command::WebList:
        window_.showWebList();
        break;
    case Command::TopBottom:
        window_.toggleTopBottom();
        break;
    case Command::Icons:
        window_.toggleIconStrip();
        break;
    case Command::OpenWebmail:
        LoadCustomBrowser(app_, app_.settings.WebmailUrl);
        break;
    }
}

void MainCommands::runIcon(int index) {
    const auto icons = StripIcons();
    app_.desktop.showWaitCursor();
    if (index >= 0 && index < static_cast<int>(icons.size()))
        run(icons[static_cast<std::size_t>(index)].row);
    app_.desktop.restoreCursor();
    app_.desktop.processPendingEvents();
}

bool MainCommands::executeForMainWindow(const std::wstring &file, const std::wstring &parameters) {
    const bool started = ExecuteProcess(app_.shell, file, app_.MainWindowRef, kShowNormal, parameters, runAs);
    app_.LastLaunchResult = started ? -1 : 0;
    return started;
}

void MainCommands::launchSuiteTool(Tool tool, const std::wstring &parameters) {
    std::wstring path = BuiltInPath(tool);
    app_.CurrentProgramPath = ResolveSuitePath(app_, path);
    executeForMainWindow(app_.CurrentProgramPath, parameters);
}

std::optional<std::wstring> MainCommands::locateDocument(const std::wstring &storedName) {
    const std::wstring document = ResolveDocumentPath(app_.files, storedName);
    if (document.empty() || !app_.files.fileExists(document)) {
        ReportFileNotFound(app_, document);
        return std::nullopt;
    }
    return document;
}

Tool DeadlinesTool(const std::wstring &document) {
    std::wstring ending = document.size() >= 4 ? document.substr(document.size() - 4) : document;
    for (wchar_t &c : ending)
        c = static_cast<wchar_t>(std::towlower(c));
    return ending == L".vrt" ? Tool::Outliner : Tool::ScratchPad;
}

// The document is passed as it is: the tool gets it unquoted, blanks and all.
void MainCommands::loadDeadlines() {
    if (const auto document = locateDocument(app_.settings.DeadlinesFile))
        launchSuiteTool(DeadlinesTool(*document), *document);
}

void MainCommands::loadAddresses() {
    if (const auto document = locateDocument(app_.settings.AddressesFile))
        launchSuiteTool(Tool::AddressGrid, *document);
}

void MainCommands::loadCustomBrowser() {
    const std::wstring &browser = app_.settings.CustomBrowser;
    if (browser.empty() || !app_.files.fileExists(browser)) {
        ReportFileNotFound(app_, browser);
        return;
    }
    executeForMainWindow(browser, L"");
}

// The address opens in the custom browser, not the system's default one.
void MainCommands::openWebmail() {
    const std::wstring answer = window_.inputBox(L"Enter URL for webmail interface", app_.settings.WebmailUrl);
    if (answer.empty())
        return;
    app_.settings.WebmailUrl = answer;
    executeForMainWindow(app_.settings.CustomBrowser, answer);
}

void MainCommands::exploreCurrentFolder() {
    const std::wstring folder = app_.files.currentFolder();
    app_.shell.shellVerb(app_.MainWindowRef, L"explore", folder, folder, kShowNormal);
}

} // namespace orvane
