#include "settings.h"

#include "app.h"
#include "conversions.h"
#include "helpers.h"
#include "reports.h"

namespace orvane {

namespace {

using S = Settings;
constexpr bool kTrim = true;

template <typename Int> void AssignNumber(Int &target, const std::wstring &text) {
    const auto number = NumericPrefix(text);
    if (!number)
        return;
    std::optional<Int> rounded;
    if constexpr (sizeof(Int) == 2)
        rounded = RoundToInt16(*number);
    else
        rounded = RoundToInt32(*number);
    if (rounded)
        target = *rounded;
}

} // namespace

// File order. Lines 1, 2, 10, 11, 12 and 13 drop leading blanks before the
// number is read; the other number lines rely on the conversion skipping them.
const std::array<SettingsLine, kSettingsLineCount> kSettingsLines = {{
    {&S::MainTop, kTrim},   {&S::MainLeft, kTrim},  {&S::DeadlinesFile},     {&S::WebmailUrl},
    {&S::AddressesFile},    {&S::ListFontName},     {&S::ListFontSize},      {&S::ListFontBold},
    {&S::ReservedLine9},    {&S::MainWidth, kTrim}, {&S::MainHeight, kTrim}, {&S::MainBackColor, kTrim},
    {&S::IconSize, kTrim},  {&S::AccessPath},       {&S::PublisherPath},     {&S::ExcelPath},
    {&S::PowerPointPath},   {&S::WordPath},         {&S::SkinFile},          {&S::SkinFolder},
    {&S::CustomBrowser},    {&S::CustomTop},        {&S::CustomLeft},        {&S::CustomHeight},
    {&S::CustomWidth},      {&S::CustomGrid1Row},   {&S::CustomGrid2Row},    {&S::CustomListFile},
    {&S::YourProgram},      {&S::WallpaperFile},    {&S::WallpaperStretch},  {&S::ReturnPassword},
    {&S::WebListFile},      {&S::WebBrowser1},      {&S::WebBrowser2},       {&S::WebBrowser3},
    {&S::WebBrowserChoice}, {&S::ExpandedLayout},   {&S::ExpandedWidth},
}};

void ApplySettingsLines(Settings &settings, const std::wstring &text) {
    const auto lines = SplitLines(text, kSettingsLineCount);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const SettingsLine &entry = kSettingsLines[i];
        const std::wstring line = entry.trimLeading ? TrimLeadingBlanks(lines[i]) : std::wstring(lines[i]);
        std::visit(
            [&](auto member) {
                auto &target = settings.*member;
                if constexpr (std::is_same_v<std::decay_t<decltype(target)>, std::wstring>)
                    target = line;
                else
                    AssignNumber(target, line);
            },
            entry.value);
    }
}

std::wstring FormatSettings(const Settings &settings) {
    std::wstring text;
    for (const SettingsLine &entry : kSettingsLines) {
        std::visit(
            [&](auto member) {
                const auto &value = settings.*member;
                if constexpr (std::is_same_v<std::decay_t<decltype(value)>, std::wstring>)
                    text += value;
                else
                    text += NumberText(value);
            },
            entry.value);
        text += L"\r\n";
    }
    return text;
}

void LoadSettings(App &app) {
    if (app.SettingsFilePath.empty() || !app.files.fileExists(app.SettingsFilePath)) {
        ReportFileNotFound(app, app.SettingsFilePath);
        return;
    }
    // A file that exists but cannot be read (locked, say) is passed over
    // silently: every value keeps its initial state. So is one too large to be
    // read whole, which is then kept as it is rather than replaced at exit.
    const WholeFile file = ReadWholeFile(app.files, app.SettingsFilePath);
    app.SettingsFileKept = file.tooLarge != 0;
    if (file.bytes)
        ApplySettingsLines(app.settings, app.locale.fromAnsi(*file.bytes));
}

void SaveSettings(App &app) {
    if (app.SettingsFileKept)
        return;
    DeleteFileIfPresent(app.files, app.SettingsFilePath);
    // The old runtime flagged only error number -1 here; every other failure
    // to create the file goes unreported, and the program still ends.
    constexpr FileError kReportedOpenError = -1;
    if (app.files.writeFile(app.SettingsFilePath, app.locale.toAnsi(FormatSettings(app.settings))) ==
        kReportedOpenError)
        ReportFileError(app, app.SettingsFilePath);
}

} // namespace orvane
