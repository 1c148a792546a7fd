// The main window's commands: what a menu item, a shortcut or (later) an icon
// of the strip does once its caption has been looked up.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "dispatch.h"

namespace orvane {

class App;

// What the commands need of the main window.
class MainWindowRoutines {
public:
    virtual ~MainWindowRoutines() = default;

    // The shared input box: the text typed, or empty when cancelled.
    virtual std::wstring inputBox(const std::wstring &prompt, const std::wstring &preset) = 0;
    virtual void showAbout() = 0;
    virtual void showProgramLocations() = 0;
    virtual void showYourProgram() = 0;
    virtual void toggleDesktop() = 0;
    virtual void exitProgram() = 0;

    // Layout, appearance and the windows of the later subsystems.
    virtual void useScreenWidth() = 0;
    virtual void changeIconSize(int step) = 0; // 1 larger, 2 smaller
    virtual void toggleIconStrip() = 0;
    virtual void toggleTopBottom() = 0;
    virtual void chooseSkin() = 0;
    virtual void chooseMenuFont() = 0;
    virtual void showCustomPrograms() = 0;
    virtual void showWebList() = 0;
    virtual void showWallpaper() = 0;
};

// The tool for a deadlines document: outlines (".vrt" in any case) open in the
// outliner, anything else in the scratch pad.
Tool DeadlinesTool(const std::wstring &document);

class MainCommands {
public:
    MainCommands(App &app, MainWindowRoutines &window) : app_(app), window_(window) {
    }

    // Runs the command of the first row with this caption; false when none has it.
    bool dispatch(std::wstring_view caption);
    void run(const DispatchRow &row);
    // A click on icon `index` of the strip, under the wait cursor.
    void runIcon(int index);

    // Starts a suite tool: resolved to where the suite is, then asked of the
    // shell with the main window as owner. Nothing is checked or reported here.
    void launchSuiteTool(Tool tool, const std::wstring &parameters);

    // Passed to every start; true starts programs with the verb "runas".
    bool runAs = false;

private:
    bool executeForMainWindow(const std::wstring &file, const std::wstring &parameters);
    // The document a setting names, resolved; reported and nothing when it is missing.
    std::optional<std::wstring> locateDocument(const std::wstring &storedName);
    void loadDeadlines();
    void loadAddresses();
    void loadCustomBrowser();
    void openWebmail();
    void exploreCurrentFolder();

    App &app_;
    MainWindowRoutines &window_;
};

} // namespace orvane
