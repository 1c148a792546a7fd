// A menu command of orvane.exe that starts a suite tool, next to a bare
// ShellExecuteExW of the same program from a tiny window program: the time
// from the command's message to the moment the started program runs. Both
// programs run side by side and are asked alternately. It reports figures,
// not a verdict.
//
//   launch_bench [--runs N] [path\to\orvane.exe]     (or ORVANE_EXE)
#include <windows.h>

#include <chrono>
#include <cstdio>
#include <cwchar>

#include "bench_support.h"
#include "catalogue.h"
#include "menu.h"
#include "menu_bar.h"
#include "win_support.h"
#include "table_row.h"

namespace ts = orvane::testsupport;
using namespace orvane;
using namespace orvane::bench;
using Clock = std::chrono::steady_clock;

namespace {

constexpr double kRatioGoal = 1.2;

// The command identifier of the menu item that starts the tool.
UINT CommandOf(Tool tool) {
    const auto rows = MainMenuRows();
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (!rows[i].parentKey.empty() && rows[i].caption == SuiteToolOf(tool).caption)
            return ui::kFirstMenuCommand + static_cast<UINT>(i);
    return 0;
}

// Milliseconds from posting the message until the started program has signalled.
double TimeOneStart(HWND window, UINT message, WPARAM wParam, HANDLE started) {
    ResetEvent(started);
    const auto asked = Clock::now();
    PostMessageW(window, message, wParam, 0);
    if (WaitForSingleObject(started, 10000) != WAIT_OBJECT_0)
        return -1;
    return std::chrono::duration<double, std::milli>(Clock::now() - asked).count();
}

HWND WaitForWindow(DWORD processId, const wchar_t *windowClass) {
    HWND window = nullptr;
    ts::WaitFor(
        [&] {
            return (window = ts::FindProcessWindow(processId, windowClass)) != nullptr;
        },
        std::chrono::seconds(30));
    return window;
}

} // namespace

int wmain(int argc, wchar_t **argv) {
    const auto arguments = ParseArguments(argc, argv, "launch_bench", 31, 3);
    if (!arguments)
        return 2;
    const int runs = arguments->runs;
    const std::wstring &orvanePath = arguments->orvane;

    const std::wstring folder = ts::FreshFolder(ts::ExeFolder(), L"launch bench");
    const std::wstring tool = std::wstring(SuiteToolOf(Tool::FileManager).program) + L".exe";
    ts::CopyInto(ts::WindowsPath(orvanePath), folder, L"orvane.exe");
    ts::CopyInto(ts::ExeFolder() + L"\\bare_launch.exe", folder);
    ts::CopyInto(ts::ExeFolder() + L"\\started.exe", folder,
                 tool); // beside orvane.exe, where the path rules look first
    ts::WriteBytes(folder + L"\\Orvane.ini", NeutralSettings());

    HANDLE started = CreateEventW(nullptr, TRUE, FALSE, L"Local\\Orvane.Bench.Started");
    Child orvane, bare;
    if (!orvane.start(folder + L"\\orvane.exe", folder) ||
        !bare.start(folder + L"\\bare_launch.exe", folder, L"\"" + folder + L"\\" + tool + L"\"")) {
        std::printf("error: the programs could not be started (Windows error %lu)\n", GetLastError());
        return 1;
    }
    HWND bar = WaitForWindow(orvane.info.dwProcessId, L"Orvane.Main");
    HWND baseline = WaitForWindow(bare.info.dwProcessId, L"Orvane.Bench.BareLaunch");
    const UINT command = CommandOf(Tool::FileManager);
    if (!bar || !baseline || !command) {
        std::printf("error: no bar, no baseline window or no menu item\n");
        return 1;
    }

    std::vector<double> times[2];
    for (int run = 0; run <= runs; ++run) {
        const double menu = TimeOneStart(bar, WM_COMMAND, command, started);
        const double plain = TimeOneStart(baseline, WM_APP, 0, started);
        if (menu < 0 || plain < 0) {
            std::printf("error: a started program never signalled\n");
            return 1;
        }
        if (run == 0)
            continue; // the warm-up fills the caches for both
        times[0].push_back(menu);
        times[1].push_back(plain);
        std::printf("run %d: menu command %6.1f ms | bare ShellExecuteExW %6.1f ms\n", run, menu, plain);
    }
    const double ratio = Median(times[0]) / Median(times[1]);
    std::printf("medians of %d alternating runs, after one warm-up of each\n", runs);
    std::printf("menu command to started program: %.1f ms; bare ShellExecuteExW: %.1f ms\n", Median(times[0]),
                Median(times[1]));
    orvane::bench::TableRow("a menu command to the started program, against a bare ShellExecuteExW", ratio, kRatioGoal);
    std::fflush(stdout);
    PostMessageW(bar, WM_CLOSE, 0, 0);
    PostMessageW(baseline, WM_CLOSE, 0, 0);
    WaitForSingleObject(orvane.info.hProcess, kExitTimeoutMs);
    CloseHandle(started);
    return 0;
}
