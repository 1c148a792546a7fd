#include "program_list.h"

#include "app.h"
#include "conversions.h"
#include "helpers.h"
#include "paths.h"
#include "reports.h"

namespace orvane {

namespace {

CustomProgramTable::Column &Section(CustomProgramTable &table, std::size_t index) {
    return index == 0 ? table.DisplayNames : index == 1 ? table.ProgramPaths : table.StartupFolders;
}

} // namespace

bool CustomProgramTable::isEmpty(std::size_t entry) const {
    return TrimBlanks(DisplayNames[entry]).empty();
}

bool LoadCustomList(App &app, CustomProgramTable &table) {
    const std::wstring given = app.settings.CustomListFile;
    if (!given.empty() && !app.files.fileExists(given)) {
        if (std::wstring found = ResolveDocumentPath(app.files, given); app.files.fileExists(found))
            app.settings.CustomListFile = found;
    }
    const std::wstring &path = app.settings.CustomListFile;
    if (path.empty() || !app.files.fileExists(path)) {
        ReportFileNotFound(app, given);
        return false;
    }
    const WholeFile file = ReadWholeFile(app.files, path);
    if (file.tooLarge) {
        ReportFileTooLarge(app.prompts, path, file.tooLarge);
        return false;
    }
    // A file that exists but cannot be opened (locked, no rights) gives an
    // empty table and no message, as the old reader did.
    table = file.bytes ? ParseCustomList(app.files, app.locale, *file.bytes) : CustomProgramTable{};
    return true;
}

CustomProgramTable ParseCustomList(Files &files, Locale &locale, std::string_view bytes) {
    CustomProgramTable table;
    std::size_t number = 0;
    for (std::string_view raw : SplitAtCarriageReturns(bytes, 3 * kCustomEntries)) {
        std::wstring line = locale.fromAnsi(std::string(raw));
        if (ContainsIgnoringCase(line, L".exe") && !files.fileExists(line))
            SwapProgramFilesFolder(line);
        Section(table, number / kCustomEntries)[number % kCustomEntries] = std::move(line);
        ++number;
    }
    return table;
}

std::wstring FormatCustomList(CustomProgramTable &table) {
    std::wstring text;
    for (std::size_t section = 0; section < 3; ++section) {
        for (std::size_t entry = 0; entry < kCustomEntries; ++entry) {
            std::wstring &value = Section(table, section)[entry];
            if (section > 0 && table.isEmpty(entry))
                value.clear();
            text += value + L"\r\n";
        }
    }
    return text;
}

// The whole content is made before the old file goes, as the settings are.
void SaveCustomList(App &app, CustomProgramTable &table) {
    const std::string bytes = app.locale.toAnsi(FormatCustomList(table));
    DeleteFileIfPresent(app.files, app.settings.CustomListFile);
    app.files.writeFile(app.settings.CustomListFile, bytes);
}

} // namespace orvane
