// The web list window: opened from the real bar's menu on a list of 30,000
// websites, to the moment it has painted and waits for the user, beside the
// same window on 300. The list view is virtual, so the long list should cost
// little more than reading its file. Also saving lists of 300, 3,000 and
// 30,000 rows, to show how the writer grows.
//
//   weblist_bench [--runs N]
#include <windows.h>
#include <commctrl.h>

#include <cstdio>
#include <string>
#include <vector>

#include "app.h"
#include "bench_support.h"
#include "helpers.h"
#include "main_window.h"
#include "menu.h"
#include "menu_bar.h"
#include "resource.h"
#include "skin.h"
#include "web_list.h"
#include "web_list_file.h"
#include "win32_system.h"
#include "win_support.h"
#include "table_row.h"

namespace ts = orvane::testsupport;
using namespace orvane::bench;

namespace {

constexpr double kOpeningGoal = 3.0;
constexpr int kShort = 300, kMiddle = 3000, kLong = 30000;

// Websites as a user keeps them: every 7th checked, a separator every 25 rows,
// and the same few groups however long the list grows.
orvane::WebListContent ListOf(int count) {
    orvane::WebListContent list;
    for (int i = 1; i <= count; ++i) {
        const std::wstring n = std::to_wstring(i);
        if (i % 25 == 0)
            list.rows.push_back({L"", std::wstring(orvane::kSeparatorMarker), L""});
        else
            list.rows.push_back({L"", L"Website " + n, L"https://www.site-" + n + L".example.org/", i % 7 == 1});
    }
    for (int group = 0; group < 8; ++group)
        list.groups.push_back(L"https://www.site-" + std::to_wstring(group * 3 + 1) + L".example.org/ " +
                              L"https://www.site-" + std::to_wstring(group * 3 + 2) + L".example.org/");
    return list;
}

// What the window's save does once its dialog has named the file.
void Save(orvane::App &app, const orvane::WebListContent &list, const std::wstring &path) {
    const auto text = orvane::FormatWebList(list);
    orvane::DeleteFileIfPresent(app.files, path);
    if (!text || app.files.writeFile(path, app.locale.toAnsi(*text)) != 0)
        std::printf("error: %ls not written\n", path.c_str());
}

} // namespace

int wmain(int argc, wchar_t **argv) {
    const int runs = RunsGiven(argc, argv, 5, 1);
    const std::wstring folder = ts::FreshFolder(ts::ExeFolder(), L"weblist bench");
    ts::WriteBytes(folder + L"\\Orvane.ini", StripSettings());

    orvane::ui::Win32System system;
    orvane::App app(system);
    app.ProgramFolder = folder;
    const auto listFile = [&](int rows) {
        return folder + L"\\" + std::to_wstring(rows) + L".lst";
    };
    const std::vector<int> sizes = {kShort, kMiddle, kLong};
    std::vector<orvane::WebListContent> lists;
    for (int size : sizes) {
        lists.push_back(ListOf(size));
        Save(app, lists.back(), listFile(size));
    }

    orvane::ui::Skin skin;
    orvane::ui::MainWindow bar(app, skin);
    const UINT command = MenuCommandOf(orvane::MainMenuRows(), L"Open &web list", orvane::ui::kFirstMenuCommand);
    if (!bar.open() || command == 0)
        return 1;
    FirstIdle firstIdle(bar.hwnd());
    const auto open = [&](int rows) {
        app.settings.WebListFile = listFile(rows);
        const auto shown = [rows](HWND dialog) {
            return ListView_GetItemCount(GetDlgItem(dialog, IDC_WEB_ROWS)) == rows;
        };
        // Returns when the window has closed.
        return firstIdle.time(shown, [&] {
            SendMessageW(bar.hwnd(), WM_COMMAND, command, 0);
        });
    };
    open(kShort); // the window's classes and controls, made once per process
    std::vector<double> longTimes, shortTimes;
    for (int run = 0; run < runs; ++run) {
        longTimes.push_back(open(kLong));
        shortTimes.push_back(open(kShort));
        std::printf("run %d: %d rows %6.1f ms | %d rows %6.1f ms\n", run + 1, kLong, longTimes.back(), kShort,
                    shortTimes.back());
    }
    const double longOpening = Median(longTimes), shortOpening = Median(shortTimes);
    std::printf("web list window to its first paint: %d rows %.1f ms, %d rows %.1f ms; "
                "medians of %d alternating runs\n",
                kLong, longOpening, kShort, shortOpening, runs);
    orvane::bench::TableRow("web list window on 30,000 rows, against 300 rows", longOpening / shortOpening,
                            kOpeningGoal);
    // The part of the opening that grows with the list: the file read into the model.
    const auto load = [&](int rows) {
        app.settings.WebListFile = listFile(rows);
        return MedianOf(runs, [&] {
            orvane::WebList list(app);
            return MillisecondsOf([&] {
                list.load();
            });
        });
    };
    std::printf("of which reading the file into the model (WebList::load): %d rows %.1f ms, %d rows %.1f ms\n", kLong,
                load(kLong), kShort, load(kShort));

    std::vector<std::vector<double>> saves(sizes.size());
    const std::wstring saved = folder + L"\\Saved.lst";
    for (int run = 0; run < runs; ++run)
        for (std::size_t i = 0; i < sizes.size(); ++i)
            saves[i].push_back(MillisecondsOf([&] {
                Save(app, lists[i], saved);
            }));
    std::vector<double> save;
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        save.push_back(Median(saves[i]));
        std::printf("saving %5d rows (FormatWebList, old file deleted, toAnsi, writeFile): %7.2f ms, %.2f us a row\n",
                    sizes[i], save[i], save[i] * 1000 / sizes[i]);
    }
    std::printf("medians of %d runs; 100 and 10 times the rows would be linear\n", runs);
    orvane::bench::TableRow("saving 30,000 web list rows, against 300", save[2] / save[0]);
    orvane::bench::TableRow("saving 3,000 web list rows, against 300", save[1] / save[0]);
    DestroyWindow(bar.hwnd());
    ts::RemoveTree(folder);
    return 0;
}
