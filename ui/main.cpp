// Orvane, the launcher bar of the Tellmark Set.
#include <windows.h>

#include "app.h"
#include "helpers.h"
#include "main_window.h"
#include "skin.h"
#include "win32_system.h"

namespace {

std::wstring ExecutablePath() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size())
            return path.substr(0, length);
        path.resize(path.size() * 2);
    }
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    orvane::ui::Win32System system;
    orvane::App app(system);
    app.ProgramFolder = orvane::ParentFolder(ExecutablePath());

    // The program's one skin, applied to the bar and every window it opens.
    orvane::ui::Skin skin;
    orvane::ui::MainWindow mainWindow(app, skin);
    if (!mainWindow.open())
        return 0;
    system.setMessageOwner(mainWindow.hwnd());

    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (TranslateAcceleratorW(mainWindow.hwnd(), mainWindow.accelerators(), &message))
            continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}
