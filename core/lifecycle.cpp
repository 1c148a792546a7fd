#include "lifecycle.h"

#include "app.h"
#include "helpers.h"
#include "skin_file.h"

namespace orvane {

namespace {

constexpr int kHandOverRounds = 5;

void PlaceFromSettings(App &app, MainWindowHost &host) {
    Settings &s = app.settings;
    host.setTop(s.MainTop);
    host.setLeft(s.MainLeft);
    host.setWidth(s.MainWidth);
    host.setHeight(s.MainHeight);
    const TwipsRect taken = host.geometry();
    s.MainTop = taken.top;
    s.MainLeft = taken.left;
    s.MainWidth = taken.width;
    s.MainHeight = taken.height;
}

} // namespace

void HandOverToEarlierInstance(Desktop &desktop, MainWindowHost &host, WindowRef earlierWindow) {
    // Each round starts from the window the previous one reached; the earlier
    // copy keeps its main window just above its application window.
    WindowRef window = earlierWindow;
    for (int round = 0; round < kHandOverRounds; ++round) {
        desktop.processPendingEvents();
        window = desktop.windowAbove(window);
        desktop.restoreIfMinimised(window);
        desktop.bringToForeground(window);
        desktop.processPendingEvents();
    }
    host.endProcessNow();
}

LoadOutcome LoadMainWindow(App &app, MainWindowHost &host, MainWindowState &state) {
    if (host.earlierInstanceRunning()) {
        const std::wstring title = host.programTitle();
        host.setProgramTitle(kRedundantInstanceTitle); // so the search cannot find this copy
        if (const WindowRef earlier = host.findApplicationWindow(title); earlier != 0) {
            HandOverToEarlierInstance(app.desktop, host, earlier);
            return LoadOutcome::HandedOver;
        }
        host.setProgramTitle(title);
    }

    app.ListFileFilter = kListFileFilter;
    host.initCommonControls();
    DetectOsVersion(app);
    state.systemIsVersion6OrLater = app.OsVersionCode >= 6;

    app.SettingsFilePath = app.ProgramFolder + kSettingsFileName;
    LoadSettings(app);
    PlaceFromSettings(app, host);

    state.workArea = host.workArea();
    app.MainWindowRef = host.handle();
    if (state.workArea.width < app.settings.ExpandedWidth)
        app.settings.ExpandedWidth = state.workArea.width;

    FindSystemFolders(app);

    host.layIconStrip();
    state.atTop = app.settings.MainTop == state.workArea.top;

    app.settings.SkinFile = StartupSkin(app.files, app.settings.SkinFile, app.ProgramFolder);
    host.applySkin(app.settings.SkinFile);

    host.buildMenuBar();
    host.takeOpeningSize();
    return LoadOutcome::Running;
}

void UnloadMainWindow(App &app, MainWindowHost &host) {
    const TwipsRect now = host.geometry();
    app.settings.MainTop = now.top;
    app.settings.MainLeft = now.left;
    app.settings.MainWidth = now.width;
    app.settings.MainHeight = now.height;
    app.settings.MainBackColor = host.backColor();
    SaveSettings(app);
}

} // namespace orvane
