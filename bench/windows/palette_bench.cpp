// The palette on the demo's custom list and web list: the hot key to the
// palette painted with its targets ranked, beside showing an empty window
// made beforehand; and the peak working set after ten summons beside the
// peak before the first.
//
//   palette_bench [--runs N]     run from the source folder (the demo's lists are read from demo\); 41 runs by
//                                default: a summon takes milliseconds, so many cost little and steady the median
#include <windows.h>

#include <cstdio>
#include <string>
#include <vector>

#include "bench_bar.h"
#include "bench_support.h"
#include "palette_window.h"
#include "table_row.h"
#include "win_support.h"

namespace ts = orvane::testsupport;
using namespace orvane::bench;

namespace {

constexpr wchar_t kEmptyClass[] = L"Orvane.Bench.EmptyPopup";

// Every message of this thread, paints included, until none is left.
void RunUntilIdle() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

// The baseline: a topmost popup of the palette's size, made once, hidden between showings.
HWND EmptyPopup() {
    WNDCLASSEXW popupClass{};
    popupClass.cbSize = sizeof popupClass;
    popupClass.lpfnWndProc = DefWindowProcW;
    popupClass.hInstance = GetModuleHandleW(nullptr);
    popupClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    popupClass.lpszClassName = kEmptyClass;
    RegisterClassExW(&popupClass);
    return CreateWindowExW(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, kEmptyClass, L"Empty", WS_POPUP | WS_BORDER, 380, 200, 520,
                           320, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
}

} // namespace

int wmain(int argc, wchar_t **argv) {
    const int runs = RunsGiven(argc, argv, 41, 3);
    const std::wstring folder = ts::FreshFolder(ts::ExeFolder(), L"palette bench");
    for (const wchar_t *list : {L"Programs.lst", L"Websites.lst"})
        CopyFileW((std::wstring(L"demo\\") + list).c_str(), (folder + L"\\" + list).c_str(), FALSE);

    BenchBar bench(folder);
    if (!bench.opened)
        return 1;
    bench.app.settings.CustomListFile = folder + L"\\Programs.lst";
    bench.app.settings.WebListFile = folder + L"\\Websites.lst";
    const HWND bar = bench.bar.hwnd();
    RunUntilIdle();

    HWND palette = nullptr;
    const auto summon = [&] {
        return MillisecondsOf([&] {
            SendMessageW(bar, WM_HOTKEY, orvane::ui::kPaletteHotKeyId, MAKELPARAM(MOD_CONTROL | MOD_ALT, VK_SPACE));
            RunUntilIdle();
        });
    };
    const auto dismiss = [&] {
        palette = FindWindowW(L"Orvane.Palette", nullptr);
        SendMessageW(palette, WM_CLOSE, 0, 0); // hides it, as Esc does
        RunUntilIdle();
    };
    const double before = PeakWorkingSetMiB(GetCurrentProcess()).value_or(0);
    for (int i = 0; i < 10; ++i) {
        summon();
        dismiss();
    }
    const double after = PeakWorkingSetMiB(GetCurrentProcess()).value_or(0);

    const HWND empty = EmptyPopup();
    std::vector<double> palettes, empties;
    for (int run = 0; run < runs; ++run) {
        palettes.push_back(summon());
        dismiss();
        empties.push_back(MillisecondsOf([&] {
            ShowWindow(empty, SW_SHOW);
            SetForegroundWindow(empty);
            RunUntilIdle();
        }));
        ShowWindow(empty, SW_HIDE);
        RunUntilIdle();
    }
    const double shown = Median(palettes), baseline = Median(empties);
    std::printf("the hot key to the painted palette (demo lists, %d rows): %.1f ms; an empty window made beforehand "
                "shown: %.1f ms; medians of %d runs\n",
                ListView_GetItemCount(GetDlgItem(palette, 2)), shown, baseline, runs);
    std::printf("peak working set: %.1f MiB before the first summon, %.1f MiB after ten\n", before, after);
    TableRow("the palette from its hot key to its paint (demo lists), against showing an empty window",
             shown / baseline, 2);
    TableRow("peak working set after ten summons of the palette, against before the first", after / before, 1.1);
    DestroyWindow(empty);
    DestroyWindow(bar);
    ts::RemoveTree(folder);
    return 0;
}
