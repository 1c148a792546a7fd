// The custom programs window: opened from the real bar's menu on a list of 64
// programs with their shell icons, to the moment it has painted everything
// and waits for the user, beside the same window on an empty list. Also the
// list file read and written on its own.
//
//   custom_bench [--runs N]      programs from Wine's system folder
#include <windows.h>
#include <commctrl.h>

#include <chrono>
#include <functional>
#include <cstdio>
#include <string>
#include <vector>

#include "app.h"
#include "bench_support.h"
#include "main_window.h"
#include "menu.h"
#include "menu_bar.h"
#include "program_list.h"
#include "resource.h"
#include "win32_system.h"
#include "win_support.h"

namespace ts = orvane::testsupport;
using namespace orvane::bench;
using Clock = std::chrono::steady_clock;

namespace {

struct Opening {
    Clock::time_point started;
    double milliseconds = 0;
    std::size_t rows = 0;  // the window is done when its grids hold these
};

// The window's first idle moment with its grids filled: everything is painted.
LRESULT CALLBACK WatchIdle(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR data) {
    auto& opening = *reinterpret_cast<Opening*>(data);
    if (message == WM_ENTERIDLE && wParam == MSGF_DIALOGBOX && opening.milliseconds == 0) {
        HWND dialog = reinterpret_cast<HWND>(lParam);
        const auto rows = static_cast<std::size_t>(ListView_GetItemCount(GetDlgItem(dialog, IDC_GRID1)) +
                                                   ListView_GetItemCount(GetDlgItem(dialog, IDC_GRID2)));
        if (rows == opening.rows) {
            opening.milliseconds = std::chrono::duration<double, std::milli>(Clock::now() - opening.started).count();
            PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        }
    }
    return DefSubclassProc(window, message, wParam, lParam);
}

// 64 different programs, so every icon is a different one.
std::string ListOfPrograms() {
    std::vector<std::string> names, programs;
    WIN32_FIND_DATAA found;
    HANDLE search = FindFirstFileA("C:\\windows\\system32\\*.exe", &found);
    for (BOOL more = search != INVALID_HANDLE_VALUE; more && programs.size() < 64; more = FindNextFileA(search, &found)) {
        names.push_back(found.cFileName);
        programs.push_back(std::string("C:\\windows\\system32\\") + found.cFileName);
    }
    if (search != INVALID_HANDLE_VALUE) FindClose(search);
    std::string text;
    for (const auto* column : {&names, &programs, &programs})
        for (std::size_t i = 0; i < 64; ++i) text += (i < column->size() ? (*column)[i] : std::string()) + "\r\n";
    return text;
}

double MedianOf(int runs, const std::function<double()>& run) {
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) times.push_back(run());
    return Median(times);
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    int runs = 11;
    if (argc == 3 && std::wstring(argv[1]) == L"--runs") runs = std::max(3, _wtoi(argv[2]));
    const std::wstring folder = ts::FreshFolder(ts::ExeFolder(), L"custom bench");
    const std::wstring full = folder + L"\\Full.lst", empty = folder + L"\\Empty.lst";
    ts::WriteBytes(full, ListOfPrograms());
    std::string emptyList;
    for (int line = 0; line < 192; ++line) emptyList += "\r\n";
    ts::WriteBytes(empty, emptyList);
    ts::WriteBytes(folder + L"\\Orvane.ini", StripSettings());

    orvane::ui::Win32System system;
    orvane::App app(system);
    app.ProgramFolder = folder;
    orvane::ui::MainWindow bar(app);
    if (!bar.open()) return 1;
    UINT command = 0;
    const auto rows = orvane::MainMenuRows();
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (rows[i].caption == L"C&ustom programs") command = orvane::ui::kFirstMenuCommand + static_cast<UINT>(i);

    Opening opening;
    SetWindowSubclass(bar.hwnd(), WatchIdle, 1, reinterpret_cast<DWORD_PTR>(&opening));
    const auto open = [&](const std::wstring& list, std::size_t expectedRows) {
        app.settings.CustomListFile = list;
        opening = {Clock::now(), 0, expectedRows};
        SendMessageW(bar.hwnd(), WM_COMMAND, command, 0);  // returns when the window has closed
        return opening.milliseconds;
    };
    open(empty, 0);  // the window's classes and controls, made once per process
    const double cold = open(full, 64);
    std::vector<double> withIcons, without;
    for (int run = 0; run < runs; ++run) {
        withIcons.push_back(open(full, 64));
        without.push_back(open(empty, 0));
    }
    const double icons = Median(withIcons), none = Median(without);
    std::printf("custom programs window to its first full paint: 64 programs %.1f ms (first time, icons not yet known: "
                "%.1f ms), empty list %.1f ms; medians of %d runs\n", icons, cold, none, runs);
    std::printf("64 programs / empty list: %.2f (first time %.2f)\n", icons / none, cold / none);

    orvane::CustomProgramTable table;
    app.settings.CustomListFile = full;
    const auto timed = [](const auto& step) {
        const auto started = Clock::now();
        step();
        return std::chrono::duration<double, std::milli>(Clock::now() - started).count();
    };
    const double load = MedianOf(runs, [&] { return timed([&] { orvane::LoadCustomList(app, table); }); });
    app.settings.CustomListFile = folder + L"\\Saved.lst";
    const double save = MedianOf(runs, [&] { return timed([&] { orvane::SaveCustomList(app, table); }); });
    std::printf("a 192-line list: loaded in %.2f ms, saved in %.2f ms (medians of %d runs)\n", load, save, runs);
    DestroyWindow(bar.hwnd());
    ts::RemoveTree(folder);
    return 0;
}
