#include "reports.h"

#include "app.h"
#include "conversions.h"
#include "helpers.h"

namespace orvane {

void ReportFileNotFound(App &app, const std::wstring &path, const std::optional<std::wstring> &title) {
    const std::wstring shown = path.empty() ? L"( Filename empty! )" : path;
    app.prompts.showMessage(L"Cannot locate the following program/file:\r\n\r\n" + shown + L"\r\n\r\n",
                            title.value_or(kProgramTitle), MessageIcon::Critical, MessageButtons::Ok);
    app.desktop.restoreCursor();
}

void ReportFileError(App &app, const std::wstring &path, const std::optional<std::wstring> &operation) {
    const std::wstring shown = TrimBlanks(path).empty() ? L"( no name specified or name is empty ! )" : path;
    const std::wstring verb = operation ? L"delete" : L"save";
    const std::wstring description = app.files.lastErrorDescription();
    const std::wstring reason = description.empty() ? L"(unknown)" : L"\"" + description + L"\"";
    app.prompts.beep();
    app.prompts.showMessage(L"Cannot " + verb + L" this file :\r\n\r\n" + shown +
                                L"\r\n\r\nThe error was probably triggered for the following reason : \r\n\r\n" +
                                reason + L"\r\n",
                            kProgramTitle, MessageIcon::Critical, MessageButtons::Ok);
}

std::wstring FileTooLargeText(const std::wstring &path, std::uint64_t size) {
    return L"Cannot load this file :\r\n\r\n" + path + L"\r\n\r\nIt holds " + std::to_wstring(size) +
           L" bytes, more than the " + std::to_wstring(kMostFileBytes) +
           L" the program reads. Nothing of it was loaded, and the file is left as it is.\r\n";
}

void ReportFileTooLarge(Prompts &prompts, const std::wstring &path, std::uint64_t size) {
    prompts.showMessage(FileTooLargeText(path, size), kProgramTitle, MessageIcon::Critical, MessageButtons::Ok);
}

} // namespace orvane
