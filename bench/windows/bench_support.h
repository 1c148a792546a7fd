// What the Wine benchmarks share: owning a started program, medians, and a
// settings file that makes orvane.exe start without a message.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cwchar>
#include <optional>
#include <string>
#include <vector>

#include "win_support.h"

namespace orvane::bench {

inline constexpr DWORD kExitTimeoutMs = 10000;

// The handles of one started program. A run that fails half-way must not
// leave its process behind: orvane.exe runs once at a time only.
class Child {
public:
    Child() = default;
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child() {
        if (info.hThread) CloseHandle(info.hThread);
        if (!info.hProcess) return;
        if (WaitForSingleObject(info.hProcess, 0) == WAIT_TIMEOUT) {
            TerminateProcess(info.hProcess, 1);
            WaitForSingleObject(info.hProcess, kExitTimeoutMs);
        }
        CloseHandle(info.hProcess);
    }

    // Starts the program in the folder; false when it could not be started.
    bool start(const std::wstring& program, const std::wstring& folder, const std::wstring& arguments = L"") {
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        std::wstring commandLine = L"\"" + program + L"\"" + (arguments.empty() ? L"" : L" " + arguments);
        return CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(),
                              &startup, &info) != 0;
    }

    PROCESS_INFORMATION info{};
};

// A zero on every line: a valid settings file that names no other file, so
// start-up shows no message.
inline std::string NeutralSettings() {
    std::string text;
    for (int line = 0; line < 39; ++line) text += "0\r\n";
    return text;
}

// The same, with the icon strip shown (lines 38 and 39) at icons of 480
// twips (line 13): the bar as most users see it.
inline std::string StripSettings() {
    std::string text = NeutralSettings();  // "0\r\n" on every line
    text.replace(38 * 3, 1, "19200");
    text.replace(37 * 3, 1, "1");
    text.replace(12 * 3, 1, "480");
    return text;
}

// "[--runs N] [path\\to\\orvane.exe]", orvane.exe from ORVANE_EXE when not
// given. Nothing, after the usage line, when the arguments do not do.
struct Arguments {
    int runs;
    std::wstring orvane;
};
inline std::optional<Arguments> ParseArguments(int argc, wchar_t** argv, const char* name, int runs, int fewest) {
    Arguments given{runs, testsupport::EnvironmentPath(L"ORVANE_EXE")};
    for (int i = 1; i < argc; ++i) {
        if (std::wstring(argv[i]) == L"--runs" && i + 1 < argc) given.runs = static_cast<int>(std::wcstol(argv[++i], nullptr, 10));
        else given.orvane = argv[i];
    }
    if (!given.orvane.empty() && given.runs >= fewest) return given;
    std::printf("usage: %s [--runs N] [orvane.exe]   (N >= %d, default %d; or set ORVANE_EXE)\n", name, fewest, runs);
    return std::nullopt;
}

inline double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

}  // namespace orvane::bench
