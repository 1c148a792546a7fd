// Start-up cost of orvane.exe, its icon strip shown and its default skin
// applied, next to an empty window program (minwin.exe),
// both started alternately from one staged folder so that they share the same
// conditions: the time until the window is painted and waits for input, and
// the peak working set. It reports figures, not a verdict: missing a goal
// still ends with code 0.
//
//   startup_bench [--runs N] [path\to\orvane.exe]     (or ORVANE_EXE)
//   ORVANE_BENCH_ROOT: where the folder is staged; beside this program if unset.
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cwchar>
#include <optional>
#include <string>
#include <vector>

#include "bench_support.h"
#include "win_support.h"
#include "table_row.h"

namespace ts = orvane::testsupport;
using namespace orvane::bench;
using Clock = std::chrono::steady_clock;

namespace {

constexpr int kMinimumRuns = 5;
constexpr double kRatioGoal = 1.3;
constexpr DWORD kStartTimeoutMs = 30000;

struct Program {
    const char *label;
    std::wstring path;
    const wchar_t *windowClass;
    const wchar_t *windowTitle;
};

struct Sample {
    double milliseconds;
    double mebibytes;
};

void Fail(const Program &program, const char *what) {
    std::printf("error: %s %s (Windows error %lu)\n", program.label, what, GetLastError());
}

// One start: clock from CreateProcess until the program idles with its own
// visible window; the working set is read just before the window is closed.
std::optional<Sample> StartOnce(const Program &program, const std::wstring &folder) {
    Child child;
    const auto started = Clock::now();
    if (!child.start(program.path, folder)) {
        Fail(program, "could not be started");
        return std::nullopt;
    }
    if (WaitForInputIdle(child.info.hProcess, kStartTimeoutMs) != 0) {
        Fail(program, "never waited for input");
        return std::nullopt;
    }
    auto painted = Clock::now();

    // Idle alone could be a message box; only the program's own window counts,
    // and should it come later, the clock runs until it is there.
    const DWORD id = child.info.dwProcessId;
    HWND window = ts::FindProcessWindow(id, program.windowClass, program.windowTitle);
    if (!window) {
        ts::WaitFor(
            [&] {
                window = ts::FindProcessWindow(id, program.windowClass, program.windowTitle);
                return window != nullptr;
            },
            std::chrono::milliseconds(kStartTimeoutMs));
        painted = Clock::now();
    }
    if (!window) {
        Fail(program, "showed no window of its own");
        return std::nullopt;
    }

    const auto peak = PeakWorkingSetMiB(child.info.hProcess);
    if (!peak) {
        Fail(program, "gave no memory figures");
        return std::nullopt;
    }

    PostMessageW(window, WM_CLOSE, 0, 0);
    DWORD exitCode = 1;
    if (WaitForSingleObject(child.info.hProcess, kExitTimeoutMs) != WAIT_OBJECT_0 ||
        !GetExitCodeProcess(child.info.hProcess, &exitCode) || exitCode != 0) {
        Fail(program, "did not end cleanly on WM_CLOSE");
        return std::nullopt;
    }
    return Sample{std::chrono::duration<double, std::milli>(painted - started).count(), *peak};
}

} // namespace

int wmain(int argc, wchar_t **argv) {
    const auto arguments = ParseArguments(argc, argv, "startup_bench", 7, kMinimumRuns);
    if (!arguments)
        return 2;
    const int runs = arguments->runs;
    const std::wstring &orvanePath = arguments->orvane;

    std::wstring root = ts::EnvironmentPath(L"ORVANE_BENCH_ROOT");
    if (root.empty())
        root = ts::ExeFolder();
    const std::wstring folder = ts::FreshFolder(root, L"startup bench");
    ts::CopyInto(ts::WindowsPath(orvanePath), folder, L"orvane.exe");
    // The default skin beside it, where start-up looks when the settings name none.
    const std::wstring built = ts::WindowsPath(orvanePath);
    ts::CopyInto(built.substr(0, built.find_last_of(L"\\/") + 1) + L"Skin_Alba.bmp", folder);
    for (const wchar_t *baseline : {L"minwin.exe", L"minwin_dlls.exe"})
        ts::CopyInto(ts::ExeFolder() + L"\\" + baseline, folder);
    const std::wstring settingsPath = folder + L"\\Orvane.ini";
    const std::string settings = StripSettings();

    const Program orvane{"orvane.exe", folder + L"\\orvane.exe", L"Orvane.Main", L"Orvane"};
    const Program empty{"minwin.exe", folder + L"\\minwin.exe", L"Orvane.Bench.Empty", L"Empty"};
    const Program sameDlls{"minwin_dlls.exe", folder + L"\\minwin_dlls.exe", L"Orvane.Bench.Empty", L"Empty"};
    const Program *programs[] = {&orvane, &empty, &sameDlls};
    for (const Program *program : programs) {
        if (GetFileAttributesW(program->path.c_str()) == INVALID_FILE_ATTRIBUTES) {
            Fail(*program, "could not be copied into the bench folder");
            return 1;
        }
    }

    // Each start writes the same settings first: orvane.exe saves its own on
    // close, and every run should begin from the same file.
    std::vector<Sample> samples[3];
    for (int run = 0; run <= runs; ++run) {
        Sample taken[3];
        for (int which = 0; which < 3; ++which) {
            ts::WriteBytes(settingsPath, settings);
            const auto sample = StartOnce(*programs[which], folder);
            if (!sample)
                return 1;
            taken[which] = *sample;
        }
        if (run == 0)
            continue; // the warm-up start fills the caches for all
        for (int which = 0; which < 3; ++which)
            samples[which].push_back(taken[which]);
        std::printf("run %d: orvane.exe %7.1f ms %6.1f MiB | minwin.exe %7.1f ms %6.1f MiB | minwin_dlls.exe %7.1f ms "
                    "%6.1f MiB\n",
                    run, taken[0].milliseconds, taken[0].mebibytes, taken[1].milliseconds, taken[1].mebibytes,
                    taken[2].milliseconds, taken[2].mebibytes);
    }

    double time[3], memory[3];
    for (int which = 0; which < 3; ++which) {
        std::vector<double> times, sets;
        for (const Sample &s : samples[which]) {
            times.push_back(s.milliseconds);
            sets.push_back(s.mebibytes);
        }
        time[which] = Median(times);
        memory[which] = Median(sets);
    }
    const double timeRatio = time[0] / time[1];
    const double memoryRatio = memory[0] / memory[1];

    std::printf("medians of %d alternating runs each, after one warm-up start of each\n", runs);
    std::printf("orvane.exe: start to first paint %.1f ms, peak working set %.1f MiB\n", time[0], memory[0]);
    std::printf("minwin.exe (empty window): start to first paint %.1f ms, peak working set %.1f MiB\n", time[1],
                memory[1]);
    std::printf("minwin_dlls.exe (the same, with orvane.exe's system libraries): %.1f ms, %.1f MiB\n", time[2],
                memory[2]);
    orvane::bench::TableRow("start to first paint, against an empty window", timeRatio, kRatioGoal);
    orvane::bench::TableRow("peak working set at start, against an empty window", memoryRatio, kRatioGoal);
    // What the system libraries alone cost, and what is left for orvane.exe's own work.
    orvane::bench::TableRow("the same, an empty window with orvane.exe's system libraries against the bare one",
                            time[2] / time[1]);
    orvane::bench::TableRow("the same, orvane.exe against that empty window with its libraries", time[0] / time[2]);
    orvane::bench::TableRow("peak working set, orvane.exe against the empty window with its libraries",
                            memory[0] / memory[2]);
    std::fflush(stdout);

    ts::RemoveTree(folder);
    return 0;
}
