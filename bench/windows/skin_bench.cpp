// The time to apply a skin to the bar: the real main window, opened on a
// staged folder, takes two skins in turn, each time repainted to the screen.
// Beside it, the same bar repainted without a change of skin, so the figure
// reads as a ratio on any machine.
//
//   skin_bench [--runs N]      skins from ORVANE_SKINS (a folder of Skin_*.bmp)
#include <windows.h>

#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "bench_bar.h"
#include "bench_support.h"
#include "win_support.h"
#include "table_row.h"

namespace ts = orvane::testsupport;
using namespace orvane::bench;
using Clock = std::chrono::steady_clock;

namespace {

// Lets every pending message run, the paints included.
void Settle() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&message);
}

template <typename Step> double Milliseconds(Step step) {
    const auto started = Clock::now();
    step();
    Settle();
    return std::chrono::duration<double, std::milli>(Clock::now() - started).count();
}

} // namespace

int wmain(int argc, wchar_t **argv) {
    const int runs = RunsGiven(argc, argv, 21, 3);
    const std::wstring skins = ts::EnvironmentPath(L"ORVANE_SKINS");
    const std::wstring folder = ts::FreshFolder(ts::ExeFolder(), L"skin bench");
    const std::wstring light = skins + L"\\Skin_Alba.bmp", dark = skins + L"\\Skin_Slate.bmp";
    if (GetFileAttributesW(light.c_str()) == INVALID_FILE_ATTRIBUTES ||
        GetFileAttributesW(dark.c_str()) == INVALID_FILE_ATTRIBUTES) {
        std::printf("error: ORVANE_SKINS names no folder with Skin_Alba.bmp and Skin_Slate.bmp\n");
        return 1;
    }

    BenchBar bench(folder);
    if (!bench.opened)
        return 1;
    orvane::ui::MainWindow &bar = bench.bar;
    Settle();

    std::vector<double> apply, repaint;
    for (int run = 0; run < runs; ++run) {
        // What the bar does with a chosen skin: read it, then every open window takes it.
        apply.push_back(Milliseconds([&] {
            bench.skin.load(run % 2 ? light : dark);
            bench.skin.applyToAll();
        }));
        repaint.push_back(Milliseconds([&] {
            RedrawWindow(bar.hwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
        }));
    }
    const double applied = Median(apply), repainted = Median(repaint);
    std::printf("medians of %d runs: applying a skin to the bar %.2f ms, repainting the bar alone %.2f ms\n", runs,
                applied, repainted);
    orvane::bench::TableRow("applying a skin to the bar, against a plain repaint", applied / repainted);
    DestroyWindow(bar.hwnd());
    Settle();
    ts::RemoveTree(folder);
    return 0;
}
