// The custom programs window: opened from the real bar's menu on a list of 64
// programs with their shell icons, to the moment it has painted everything
// and waits for the user, beside the same window on an empty list. Also the
// list file read and written on its own.
//
//   custom_bench [--runs N]      programs from Wine's system folder
#include <windows.h>
#include <commctrl.h>

#include <cstdio>
#include <string>
#include <vector>

#include "bench_bar.h"
#include "bench_support.h"
#include "menu.h"
#include "menu_bar.h"
#include "program_list.h"
#include "resource.h"
#include "win_support.h"
#include "table_row.h"

namespace ts = orvane::testsupport;
using namespace orvane::bench;

namespace {

// 64 different programs, so every icon is a different one.
std::string ListOfPrograms() {
    std::vector<std::string> names, programs;
    WIN32_FIND_DATAA found;
    HANDLE search = FindFirstFileA("C:\\windows\\system32\\*.exe", &found);
    for (BOOL more = search != INVALID_HANDLE_VALUE; more && programs.size() < 64;
         more = FindNextFileA(search, &found)) {
        names.push_back(found.cFileName);
        programs.push_back(std::string("C:\\windows\\system32\\") + found.cFileName);
    }
    if (search != INVALID_HANDLE_VALUE)
        FindClose(search);
    std::string text;
    for (const auto *column : {&names, &programs, &programs})
        for (std::size_t i = 0; i < 64; ++i)
            text += (i < column->size() ? (*column)[i] : std::string()) + "\r\n";
    return text;
}

} // namespace

int wmain(int argc, wchar_t **argv) {
    const int runs = RunsGiven(argc, argv, 11, 3);
    const std::wstring folder = ts::FreshFolder(ts::ExeFolder(), L"custom bench");
    const std::wstring full = folder + L"\\Full.lst", empty = folder + L"\\Empty.lst";
    ts::WriteBytes(full, ListOfPrograms());
    std::string emptyList;
    for (int line = 0; line < 192; ++line)
        emptyList += "\r\n";
    ts::WriteBytes(empty, emptyList);

    BenchBar bench(folder);
    if (!bench.opened)
        return 1;
    orvane::App &app = bench.app;
    orvane::ui::MainWindow &bar = bench.bar;
    const UINT command = MenuCommandOf(orvane::MainMenuRows(), L"C&ustom programs", orvane::ui::kFirstMenuCommand);

    FirstIdle firstIdle(bar.hwnd());
    const auto open = [&](const std::wstring &list, int expectedRows) {
        app.settings.CustomListFile = list;
        // The window is done when its grids hold all the rows.
        const auto filled = [expectedRows](HWND dialog) {
            return ListView_GetItemCount(GetDlgItem(dialog, IDC_GRID1)) +
                       ListView_GetItemCount(GetDlgItem(dialog, IDC_GRID2)) ==
                   expectedRows;
        };
        // Returns when the window has closed.
        return firstIdle.time(filled, [&] {
            SendMessageW(bar.hwnd(), WM_COMMAND, command, 0);
        });
    };
    open(empty, 0); // the window's classes and controls, made once per process
    const double cold = open(full, 64);
    std::vector<double> withIcons, without;
    for (int run = 0; run < runs; ++run) {
        withIcons.push_back(open(full, 64));
        without.push_back(open(empty, 0));
    }
    const double icons = Median(withIcons), none = Median(without);
    std::printf("custom programs window to its first full paint: 64 programs %.1f ms (first time, icons not yet known: "
                "%.1f ms), empty list %.1f ms; medians of %d runs\n",
                icons, cold, none, runs);
    orvane::bench::TableRow("custom programs window, 64 programs with icons against an empty list", icons / none, 3);
    orvane::bench::TableRow("the same, the first time (icons not yet known)", cold / none, 3);

    orvane::CustomProgramTable table;
    app.settings.CustomListFile = full;
    const double load = MedianOf(runs, [&] {
        return MillisecondsOf([&] {
            orvane::LoadCustomList(app, table);
        });
    });
    app.settings.CustomListFile = folder + L"\\Saved.lst";
    const double save = MedianOf(runs, [&] {
        return MillisecondsOf([&] {
            orvane::SaveCustomList(app, table);
        });
    });
    std::printf("a 192-line list: loaded in %.2f ms, saved in %.2f ms (medians of %d runs)\n", load, save, runs);
    orvane::bench::TableRow("loading a 192-line custom list (ms)", load);
    orvane::bench::TableRow("saving a 192-line custom list (ms)", save);
    DestroyWindow(bar.hwnd());
    ts::RemoveTree(folder);
    return 0;
}
