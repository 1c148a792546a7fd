// The wallpaper's picture: fitting an 8K PNG onto the screen as the window
// does (GDI+ started, decoded, scaled bicubically onto a white screen-sized
// bitmap, shut down), beside GDI+ decoding the same file alone. And, in a
// fresh process that shows the real wallpaper window on it, the peak working
// set beside the size of the decoded bitmap.
//
//   wallpaper_bench [--runs N]
#include <windows.h>
#include <objidl.h>
#include <gdiplus.h>

#include <cstdio>
#include <string>
#include <vector>

#include "app.h"
#include "bench_support.h"
#include "dialogs.h"
#include "main_window.h"
#include "menu.h"
#include "menu_bar.h"
#include "picture.h"
#include "skin.h"
#include "win32_system.h"
#include "win_support.h"
#include "table_row.h"

namespace ts = orvane::testsupport;
namespace gp = Gdiplus::DllExports;
using namespace orvane::bench;

namespace {

constexpr double kFittingGoal = 1.5;
constexpr int kWidth = 7680, kHeight = 4320;

// A photograph-like 8K picture: smooth gradients with fine noise, so that it
// compresses as photographs do rather than as a flat colour.
bool Write8kPng(const std::wstring &path) {
    const int stride = kWidth * 3;
    std::vector<BYTE> pixels(static_cast<std::size_t>(stride) * kHeight);
    unsigned noise = 12345;
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x) {
            noise = noise * 1103515245 + 12345;
            BYTE *p = &pixels[static_cast<std::size_t>(y) * stride + x * 3];
            p[0] = static_cast<BYTE>(120 + 100 * y / kHeight + (noise >> 28));
            p[1] = static_cast<BYTE>(60 + 120 * x / kWidth + (noise >> 29));
            p[2] = static_cast<BYTE>(40 + (x ^ y) % 64 + (noise >> 30));
        }
    Gdiplus::GpBitmap *bitmap = nullptr;
    // The PNG encoder's class identifier.
    const CLSID png = {0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
    const bool written = gp::GdipCreateBitmapFromScan0(kWidth, kHeight, stride, PixelFormat24bppRGB, pixels.data(),
                                                       &bitmap) == Gdiplus::Ok &&
                         gp::GdipSaveImageToFile(bitmap, path.c_str(), &png, nullptr) == Gdiplus::Ok;
    if (bitmap)
        gp::GdipDisposeImage(bitmap);
    return written;
}

// GDI+ decoding the file and nothing else: every pixel read once.
void DecodeAlone(const std::wstring &path) {
    const ULONG_PTR token = orvane::ui::StartImaging();
    Gdiplus::GpBitmap *bitmap = nullptr;
    if (gp::GdipCreateBitmapFromFile(path.c_str(), &bitmap) == Gdiplus::Ok) {
        Gdiplus::BitmapData data{};
        const Gdiplus::GpRect all(0, 0, kWidth, kHeight);
        if (gp::GdipBitmapLockBits(bitmap, &all, Gdiplus::ImageLockModeRead, PixelFormat32bppARGB, &data) ==
            Gdiplus::Ok)
            gp::GdipBitmapUnlockBits(bitmap, &data);
        gp::GdipDisposeImage(bitmap);
    }
    orvane::ui::StopImaging(token);
}

// The peak working set of this process, in MiB.
double PeakMiB() {
    return PeakWorkingSetMiB(GetCurrentProcess()).value_or(0);
}

// In a fresh process: the real bar and its wallpaper window on the picture;
// the peak working set once the window has painted and waits for the user.
int ShowAndMeasure(const std::wstring &picture) {
    orvane::ui::Win32System system;
    orvane::App app(system);
    app.ProgramFolder = ts::ExeFolder(); // a neutral settings file, written by the parent
    orvane::ui::Skin skin;
    orvane::ui::MainWindow bar(app, skin);
    const UINT command = MenuCommandOf(orvane::MainMenuRows(), L"Wa&llpaper", orvane::ui::kFirstMenuCommand);
    if (!bar.open() || command == 0)
        return 1;
    app.settings.WallpaperFile = picture;
    const double before = PeakMiB();
    double showing = 0;
    FirstIdle firstIdle(bar.hwnd());
    firstIdle.time(
        [&](HWND dialog) {
            showing = PeakMiB();
            EndDialog(dialog, 0); // leaves without the password: this is the bench, not a user
            return false;
        },
        [&] {
            SendMessageW(bar.hwnd(), WM_COMMAND, command, 0);
        });
    const double decoded = kWidth * 4.0 * kHeight / 1048576;
    std::printf("peak working set showing the 8K wallpaper: %.0f MiB (%.0f MiB before opening it); the decoded "
                "bitmap alone: %.0f MiB\n",
                showing, before, decoded);
    orvane::bench::TableRow("peak working set showing an 8K wallpaper, against its decoded bitmap", showing / decoded);
    DestroyWindow(bar.hwnd());
    return showing > 0 ? 0 : 1;
}

} // namespace

int wmain(int argc, wchar_t **argv) {
    if (argc == 3 && std::wstring(argv[1]) == L"--show")
        return ShowAndMeasure(argv[2]);
    const int runs = RunsGiven(argc, argv, 5, 1);
    const std::wstring folder = ts::FreshFolder(ts::ExeFolder(), L"wallpaper bench"), picture = folder + L"\\8K.png";
    const ULONG_PTR token = orvane::ui::StartImaging();
    const bool written = Write8kPng(picture);
    orvane::ui::StopImaging(token);
    if (!written) {
        std::printf("error: the 8K picture could not be written\n");
        return 1;
    }

    orvane::ui::Win32System system;
    orvane::App app(system);
    const int screenWidth = GetSystemMetrics(SM_CXSCREEN), screenHeight = GetSystemMetrics(SM_CYSCREEN);
    const auto fit = [&] {
        const ULONG_PTR started = orvane::ui::StartImaging();
        int width = screenWidth, height = screenHeight;
        const auto bitmap = orvane::ui::LoadScaledPicture(app, picture, width, height, RGB(255, 255, 255), true);
        orvane::ui::StopImaging(started);
        if (!bitmap)
            std::printf("error: the 8K picture did not load\n");
    };
    fit(); // GDI+ and its codecs loaded once, outside the measured runs
    std::vector<double> fitTimes, decodeTimes;
    for (int run = 0; run < runs; ++run) {
        fitTimes.push_back(MillisecondsOf(fit));
        decodeTimes.push_back(MillisecondsOf([&] {
            DecodeAlone(picture);
        }));
        std::printf("run %d: fitted onto %dx%d %7.1f ms | decoded alone %7.1f ms\n", run + 1, screenWidth, screenHeight,
                    fitTimes.back(), decodeTimes.back());
    }
    const double ratio = Median(fitTimes) / Median(decodeTimes);
    std::printf("fitting an 8K PNG: %.1f ms, decoding it alone: %.1f ms; medians of %d alternating runs\n",
                Median(fitTimes), Median(decodeTimes), runs);
    orvane::bench::TableRow("fitting an 8K PNG onto the screen, against decoding it alone", ratio, kFittingGoal);
    std::fflush(stdout);

    // A copy of this program beside its own settings file, so that the bar starts without a message.
    Child child;
    const std::wstring self = folder + L"\\wallpaper_bench.exe";
    ts::WriteBytes(folder + L"\\Orvane.ini", NeutralSettings());
    CopyFileW((ts::ExeFolder() + L"\\wallpaper_bench.exe").c_str(), self.c_str(), FALSE);
    if (!child.start(self, folder, L"--show \"" + picture + L"\"") ||
        WaitForSingleObject(child.info.hProcess, 60000) != WAIT_OBJECT_0)
        std::printf("error: the wallpaper window was not measured\n");
    ts::RemoveTree(folder);
    return 0;
}
