#include "file_information.h"

#include "app.h"
#include "helpers.h"

namespace orvane {

namespace {

constexpr wchar_t kX86[] = L" (x86)";
constexpr std::size_t kProgramFilesLength = 16; // "C:\Program Files"

// The old runtime's text of a moment: the short date, and the long time unless it is midnight.
std::wstring GeneralDateText(Locale &locale, const DateTime &moment) {
    const bool midnight = moment.hour == 0 && moment.minute == 0 && moment.second == 0;
    return locale.dateText(moment, L"") + (midnight ? L"" : L" " + locale.timeText(moment, L""));
}

} // namespace

std::wstring ToggleX86(const std::wstring &path) {
    std::wstring toggled = path;
    if (const auto at = toggled.find(kX86); at != std::wstring::npos)
        return toggled.erase(at, std::size(kX86) - 1);
    return toggled.insert(std::min(kProgramFilesLength, toggled.size()), kX86);
}

std::wstring GroupedDigits(std::uint64_t number, const std::wstring &separator) {
    if (number == 0)
        return {};
    const std::wstring digits = std::to_wstring(number);
    std::wstring grouped;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0)
            grouped += separator;
        grouped += digits[i];
    }
    return grouped;
}

FileInformation InformationOf(App &app, const std::wstring &path) {
    FileInformation info;
    info.fileName = BackslashFileName(path).substr(1);
    if (info.fileName.size() == 2)
        info.fileName += L'\\';
    if (const auto facts = app.files.fileExists(path) ? app.files.fileFacts(path) : std::nullopt) {
        info.altered = GeneralDateText(app.locale, facts->lastChange);
        info.size = GroupedDigits(facts->size, app.locale.thousandsSeparator());
    } else {
        info.altered = L"(not yet saved / not present on disk)";
    }
    info.folder = ParentFolder(path);
    const DateTime now = app.locale.now();
    info.time = app.locale.timeText(now, L"HH:mm:ss");
    info.date = app.locale.dateText(now, L"dddd, MMM d yyyy");
    std::wstring folder = info.folder;
    EnsureTrailingBackslash(folder);
    info.exists = app.files.fileExists(folder + info.fileName);
    return info;
}

std::wstring InformationText(const FileInformation &info) {
    return L"File: " + info.fileName + L"\r\nPath: " + info.folder + L"\r\n\r\nSize: " + info.size + L"\r\nAltered: " +
           info.altered + L"\r\n\r\nTime: " + info.time + L"\r\nDate: " + info.date + L"\r\n";
}

void CopyInformation(Prompts &prompts, const FileInformation &info) {
    prompts.setClipboardText(InformationText(info));
    prompts.beep();
    prompts.showMessage(L"You can retrieve this text by pressing Ctrl-V or using the \"Paste\" option.", kProgramTitle,
                        MessageIcon::Information, MessageButtons::Ok);
}

} // namespace orvane
