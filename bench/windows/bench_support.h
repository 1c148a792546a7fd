// What the Wine benchmarks share: owning a started program, medians and
// timings, a modal window timed to its first paint, and a settings file that
// makes orvane.exe start without a message.
#pragma once

#include <windows.h>
#include <commctrl.h>
#include <psapi.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cwchar>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "win_support.h"

namespace orvane::bench {

inline constexpr DWORD kExitTimeoutMs = 10000;

// The handles of one started program. A run that fails half-way must not
// leave its process behind: orvane.exe runs once at a time only.
class Child {
public:
    Child() = default;
    Child(const Child &) = delete;
    Child &operator=(const Child &) = delete;
    ~Child() {
        if (info.hThread)
            CloseHandle(info.hThread);
        if (!info.hProcess)
            return;
        if (WaitForSingleObject(info.hProcess, 0) == WAIT_TIMEOUT) {
            TerminateProcess(info.hProcess, 1);
            WaitForSingleObject(info.hProcess, kExitTimeoutMs);
        }
        CloseHandle(info.hProcess);
    }

    // Starts the program in the folder; false when it could not be started.
    bool start(const std::wstring &program, const std::wstring &folder, const std::wstring &arguments = L"") {
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
    for (int line = 0; line < 39; ++line)
        text += "0\r\n";
    return text;
}

// The same, with the icon strip shown (lines 38 and 39) at icons of 480
// twips (line 13): the bar as most users see it.
inline std::string StripSettings() {
    std::string text = NeutralSettings(); // "0\r\n" on every line
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
inline std::optional<Arguments> ParseArguments(int argc, wchar_t **argv, const char *name, int runs, int fewest) {
    Arguments given{runs, testsupport::EnvironmentPath(L"ORVANE_EXE")};
    for (int i = 1; i < argc; ++i) {
        if (std::wstring(argv[i]) == L"--runs" && i + 1 < argc)
            given.runs = static_cast<int>(std::wcstol(argv[++i], nullptr, 10));
        else
            given.orvane = argv[i];
    }
    if (!given.orvane.empty() && given.runs >= fewest)
        return given;
    std::printf("usage: %s [--runs N] [orvane.exe]   (N >= %d, default %d; or set ORVANE_EXE)\n", name, fewest, runs);
    return std::nullopt;
}

// "--runs N" of a benchmark that takes nothing else: N, at least the fewest; the default without it.
inline int RunsGiven(int argc, wchar_t **argv, int runs, int fewest) {
    if (argc == 3 && std::wstring(argv[1]) == L"--runs")
        return std::max(fewest, _wtoi(argv[2]));
    return runs;
}

inline double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

// The process's peak working set in MiB; nothing when the system gives no figures.
inline std::optional<double> PeakWorkingSetMiB(HANDLE process) {
    PROCESS_MEMORY_COUNTERS memory{};
    memory.cb = sizeof memory;
    if (!GetProcessMemoryInfo(process, &memory, sizeof memory))
        return std::nullopt;
    return static_cast<double>(memory.PeakWorkingSetSize) / (1024.0 * 1024.0);
}

using Clock = std::chrono::steady_clock;

inline double MillisecondsSince(Clock::time_point started) {
    return std::chrono::duration<double, std::milli>(Clock::now() - started).count();
}

// The milliseconds one call of the step takes.
template <typename Step> double MillisecondsOf(Step &&step) {
    const auto started = Clock::now();
    step();
    return MillisecondsSince(started);
}

inline double MedianOf(int runs, const std::function<double()> &run) {
    std::vector<double> times;
    for (int i = 0; i < runs; ++i)
        times.push_back(run());
    return Median(times);
}

// The command identifier of the first menu row with this caption, numbered
// from `first` as the menu bar numbers its items; 0 when no row has it.
template <typename Rows> unsigned MenuCommandOf(const Rows &rows, std::wstring_view caption, unsigned first) {
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (rows[i].caption == caption)
            return first + static_cast<unsigned>(i);
    return 0;
}

// Times a modal dialog from its opening to its first idle moment at which
// ready(dialog) holds, when it has painted everything and waits for the user,
// then closes it. The dialog's owner is the one told of that moment.
class FirstIdle {
public:
    explicit FirstIdle(HWND owner) : owner_(owner) {
        SetWindowSubclass(owner_, &FirstIdle::watch, 1, reinterpret_cast<DWORD_PTR>(this));
    }
    ~FirstIdle() {
        RemoveWindowSubclass(owner_, &FirstIdle::watch, 1);
    }
    FirstIdle(const FirstIdle &) = delete;
    FirstIdle &operator=(const FirstIdle &) = delete;

    // `open` returns when the dialog has closed again.
    double time(std::function<bool(HWND)> ready, const std::function<void()> &open) {
        ready_ = std::move(ready);
        milliseconds_ = 0;
        started_ = Clock::now();
        open();
        return milliseconds_;
    }

private:
    static LRESULT CALLBACK watch(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR data) {
        auto &self = *reinterpret_cast<FirstIdle *>(data);
        if (message == WM_ENTERIDLE && wParam == MSGF_DIALOGBOX && self.milliseconds_ == 0) {
            HWND dialog = reinterpret_cast<HWND>(lParam);
            if (self.ready_(dialog)) {
                self.milliseconds_ = MillisecondsSince(self.started_);
                PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
            }
        }
        return DefSubclassProc(window, message, wParam, lParam);
    }

    HWND owner_;
    std::function<bool(HWND)> ready_;
    Clock::time_point started_;
    double milliseconds_ = 0;
};

} // namespace orvane::bench
