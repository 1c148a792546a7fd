// The main window's start-up (load) and shut-down (unload) sequences. The
// window itself is reached through MainWindowHost, so the sequences run the
// same against the real window and a test's stand-in.
#pragma once

#include <cstdint>
#include <string>

#include "desktop.h"

namespace orvane {

class App;

// A window's place and size, or the screen's work area, in twips.
struct TwipsRect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;

    bool operator==(const TwipsRect &) const = default;
};

inline constexpr wchar_t kRedundantInstanceTitle[] = L"Redundant instance";
inline constexpr wchar_t kListFileFilter[] = L"List files (*.lst)|*.lst|All files (*.*)|*.*";

class MainWindowHost {
public:
    virtual ~MainWindowHost() = default;

    // Single instance. The program's title is the caption of its application
    // window, the window a second copy looks for.
    virtual bool earlierInstanceRunning() = 0;
    virtual std::wstring programTitle() = 0;
    virtual void setProgramTitle(const std::wstring &title) = 0;
    virtual WindowRef findApplicationWindow(const std::wstring &title) = 0;
    virtual void endProcessNow() = 0;

    virtual void initCommonControls() = 0;
    virtual WindowRef handle() = 0;

    // Geometry in twips. Each setter moves one edge or size; read back what the
    // window really took.
    virtual void setTop(std::int32_t twips) = 0;
    virtual void setLeft(std::int32_t twips) = 0;
    virtual void setWidth(std::int32_t twips) = 0;
    virtual void setHeight(std::int32_t twips) = 0;
    virtual TwipsRect geometry() = 0;
    virtual TwipsRect workArea() = 0;
    virtual std::int32_t backColor() = 0;

    // Where the icon strip, the skin and the menu bar plug in.
    virtual void layIconStrip() = 0;
    virtual void applySkin(const std::wstring &skinFile) = 0;
    virtual void buildMenuBar() = 0;
    // The last step: the strip's size when ExpandedLayout is 1, otherwise the
    // menu bar's alone, whatever MainWidth and MainHeight said.
    virtual void takeOpeningSize() = 0;
};

// What the main window keeps of start-up for its own use.
struct MainWindowState {
    bool systemIsVersion6OrLater = false;
    bool atTop = false;
    TwipsRect workArea;
};

enum class LoadOutcome {
    Running,
    HandedOver
};

// The load sequence. HandedOver: an earlier copy was brought forward and this
// one has been told to end; nothing else happened.
LoadOutcome LoadMainWindow(App &app, MainWindowHost &host, MainWindowState &state);

// Brings the earlier copy's window forward, then ends this process.
void HandOverToEarlierInstance(Desktop &desktop, MainWindowHost &host, WindowRef earlierWindow);

// The unload sequence: records the window's geometry and colour and writes the settings.
void UnloadMainWindow(App &app, MainWindowHost &host);

} // namespace orvane
