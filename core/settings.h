// The 39 user settings and the positional file "Orvane.ini" that holds them.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <variant>

namespace orvane {

class App;

// Every value starts as 0 or empty: a missing line leaves it so.
struct Settings {
    std::int32_t MainTop = 0;
    std::int32_t MainLeft = 0;
    std::wstring DeadlinesFile;
    std::wstring WebmailUrl;
    std::wstring AddressesFile;
    std::wstring ListFontName;
    std::int16_t ListFontSize = 0;
    std::int16_t ListFontBold = 0;
    std::int16_t ReservedLine9 = 0;
    std::int32_t MainWidth = 0;
    std::int32_t MainHeight = 0;
    std::int32_t MainBackColor = 0;
    std::int16_t IconSize = 0;
    std::wstring AccessPath;
    std::wstring PublisherPath;
    std::wstring ExcelPath;
    std::wstring PowerPointPath;
    std::wstring WordPath;
    std::wstring SkinFile;
    std::wstring SkinFolder;
    std::wstring CustomBrowser;
    std::int32_t CustomTop = 0;
    std::int32_t CustomLeft = 0;
    std::int32_t CustomHeight = 0;
    std::int32_t CustomWidth = 0;
    std::int16_t CustomGrid1Row = 0;
    std::int16_t CustomGrid2Row = 0;
    std::wstring CustomListFile;
    std::wstring YourProgram;
    std::wstring WallpaperFile;
    std::int16_t WallpaperStretch = 0;
    std::wstring ReturnPassword;
    std::wstring WebListFile;
    std::wstring WebBrowser1;
    std::wstring WebBrowser2;
    std::wstring WebBrowser3;
    std::int16_t WebBrowserChoice = 0;
    std::int16_t ExpandedLayout = 0;
    std::int32_t ExpandedWidth = 0;

    bool operator==(const Settings &) const = default;
};

// One line of the file: which value it holds and whether leading blanks are
// removed before the number is read.
struct SettingsLine {
    std::variant<std::wstring Settings::*, std::int16_t Settings::*, std::int32_t Settings::*> value;
    bool trimLeading = false;
};

inline constexpr std::size_t kSettingsLineCount = 39;
extern const std::array<SettingsLine, kSettingsLineCount> kSettingsLines;

// Takes the lines of a settings file in file order. Lines past the 39th are
// ignored; missing lines leave their values as they are; a number that does
// not fit its type leaves its value as it is.
void ApplySettingsLines(Settings &settings, const std::wstring &text);

// The whole file: 39 lines, each ending in CR LF.
std::wstring FormatSettings(const Settings &settings);

// Reads SettingsFilePath into app.settings, reporting a missing file. A file
// too large to read whole leaves the initial values, quietly.
void LoadSettings(App &app);
// Writes app.settings to SettingsFilePath as a fresh file, unless the file was too large to read.
void SaveSettings(App &app);

} // namespace orvane
