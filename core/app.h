// The process-wide values every part of the program shares, and the system
// they reach the world through.
#pragma once

#include <cstdint>
#include <string>

#include "settings.h"
#include "system.h"
#include "winlist.h"

namespace orvane {

inline constexpr wchar_t kProgramTitle[] = L"Orvane";
inline constexpr wchar_t kSettingsFileName[] = L"\\Orvane.ini";

class App {
public:
    explicit App(System &system) : files(system), shell(system), desktop(system), prompts(system), locale(system) {
    }

    Files &files;
    Shell &shell;
    Desktop &desktop;
    Prompts &prompts;
    Locale &locale;
    Settings settings;

    // Filled by start-up.
    std::wstring ProgramFolder; // without trailing backslash
    std::wstring SettingsFilePath;
    bool SettingsFileKept = false; // too large to be read: not written over at exit either
    std::wstring ListFileFilter;
    std::int16_t OsVersionCode = 0;
    std::int16_t OsMinorVersion = 0;
    std::wstring OsVersionName;
    std::wstring ProgramFilesFolder; // with trailing backslash
    std::wstring DocumentsFolder;    // with trailing backslash
    WindowRef MainWindowRef = 0;

    // Launch state.
    std::wstring LaunchPath;
    std::int16_t LastLaunchResult = 0;
    std::wstring CurrentProgramPath;
    std::wstring OfficeProgramPath;

    // Application windows seen at the last running check.
    WindowList windowList;
};

} // namespace orvane
