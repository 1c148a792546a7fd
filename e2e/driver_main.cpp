// driver.exe: steps of the end-to-end harness for scripts, e.g. the demo run.
//   driver.exe wait-bar    waits until a bar is shown
//   driver.exe open-menu   opens the bar's first menu from the keyboard
//   driver.exe pick CAPTION  picks the bar's menu item with this caption, as a click does
//   driver.exe rect TITLE  prints a dialog's place on the screen as WxH+X+Y, once it is shown ("Name*" for a prefix)
//   driver.exe palette TEXT brings up the palette with Ctrl+Alt+Space, types the text (letters, blanks) and prints
//                          its place as rect does
//   driver.exe leave TITLE closes a dialog that asks for the return password, none being set
//   driver.exe close-bar   closes the bar as its close box does and waits until it has gone (the scripts then wait
//                          for the program to end)
#include <cstdio>
#include <string>

#include "program_windows.h"
#include "win_support.h"

using namespace orvane;
using testsupport::FindProcessWindow;
constexpr std::chrono::seconds kLong(30);

namespace {

// The window's place on the screen as WxH+X+Y; 1 when there is no such window.
int PrintRect(HWND window) {
    RECT r{};
    if (!window || !GetWindowRect(window, &r))
        return 1;
    std::printf("%ldx%ld+%ld+%ld\n", r.right - r.left, r.bottom - r.top, r.left, r.top);
    return 0;
}

} // namespace

int wmain(int argc, wchar_t **argv) {
    const std::wstring step = argc > 1 ? argv[1] : L"";
    if (step == L"rect" && argc > 2)
        return PrintRect(e2e::WaitForDialogTitled(0, argv[2], kLong));
    if (step == L"leave" && argc > 2) {
        HWND window = FindProcessWindow(0, e2e::kDialogClass, argv[2]);
        if (window)
            PostMessageW(window, WM_CLOSE, 0, 0);
        return window && e2e::AnswerPassword(0, L"") && e2e::Gone(window, kLong) ? 0 : 1;
    }
    if (step != L"wait-bar" && step != L"open-menu" && step != L"close-bar" && !(step == L"pick" && argc > 2) &&
        !(step == L"palette" && argc > 2)) {
        std::fprintf(stderr, "usage: driver.exe wait-bar | open-menu | pick CAPTION | rect TITLE | palette TEXT | "
                             "leave TITLE | close-bar\n");
        return 2;
    }
    HWND bar =
        FindProcessWindow(0, e2e::kMainWindowClass, nullptr, step == L"close-bar" ? std::chrono::seconds(0) : kLong);
    if (!bar)
        return 1;
    if (step == L"open-menu")
        e2e::PressKeys(bar, {VK_MENU, 'F'});
    if (step == L"pick")
        return e2e::PickMenuItem(bar, argv[2]) ? 0 : 1;
    if (step == L"palette") {
        HWND palette = e2e::SummonPalette(0, bar);
        for (const wchar_t *letter = argv[2]; palette && *letter; ++letter)
            e2e::PressKeys(palette, {static_cast<WORD>(towupper(*letter))});
        return PrintRect(palette);
    }
    if (step != L"close-bar")
        return 0;
    // Closes the bar after closing a menu left open.
    PostMessageW(bar, WM_CANCELMODE, 0, 0);
    PostMessageW(bar, WM_CLOSE, 0, 0);
    return e2e::Gone(bar, kLong) ? 0 : 1;
}
