// frmMain: the launcher bar. Its load and unload run the start-up and
// shut-down sequences of the core through the MainWindowHost interface.
#pragma once

#include "app.h"
#include "commands.h"
#include "handles.h"
#include "icon_strip.h"
#include "layout.h"
#include "lifecycle.h"
#include "menu_bar.h"
#include "program_list.h"
#include "window_base.h"

namespace orvane::ui {

class Skin;

// The class names a second copy looks for.
inline constexpr wchar_t kApplicationWindowClass[] = L"Orvane.Application";
inline constexpr wchar_t kMainWindowClass[] = L"Orvane.Main";
// The bar's own background, set at design time.
inline constexpr COLORREF kMainBackColor = RGB(240, 240, 240);

class MainWindow : public WindowBase, public MainWindowHost, public MainWindowRoutines {
public:
    // The bar paints with the skin, applies it, and hands it to every window it opens.
    MainWindow(App& app, Skin& skin);
    // The bar goes before the members its messages use.
    ~MainWindow() override;

    // Creates and loads the window; false when this copy handed over or failed.
    bool open();
    // The menu bar's shortcuts, for the message loop.
    HACCEL accelerators() const { return menuBar_.accelerators(); }

private:
    LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void unload();
    void keepApplicationWindowBelow();
    void setPixelRect(int left, int top, int width, int height, UINT flags);
    RECT pixelRect();
    // Moves and sizes the window in one step, so the resize handler sees only the result.
    void setTwipsRect(const TwipsRect& rect, UINT flags);
    BarState barState();
    // The resize handler: the expanded width follows the user, the strip follows the window.
    void resized();
    void setMenuColours();

    // MainWindowHost
    bool earlierInstanceRunning() override;
    std::wstring programTitle() override;
    void setProgramTitle(const std::wstring& title) override;
    WindowRef findApplicationWindow(const std::wstring& title) override;
    void endProcessNow() override;
    void initCommonControls() override;
    WindowRef handle() override;
    void setTop(std::int32_t twips) override;
    void setLeft(std::int32_t twips) override;
    void setWidth(std::int32_t twips) override;
    void setHeight(std::int32_t twips) override;
    TwipsRect geometry() override;
    TwipsRect workArea() override;
    std::int32_t backColor() override;
    void layIconStrip() override;
    void applySkin(const std::wstring& skinFile) override;
    void buildMenuBar() override;
    void takeOpeningSize() override;

    // MainWindowRoutines
    std::wstring inputBox(const std::wstring& prompt, const std::wstring& preset) override;
    void showAbout() override;
    void showProgramLocations() override;
    void showYourProgram() override;
    void toggleDesktop() override;
    void exitProgram() override;
    void useScreenWidth() override;
    void changeIconSize(int step) override;
    void toggleIconStrip() override;
    void toggleTopBottom() override;
    void chooseSkin() override;
    void chooseMenuFont() override;
    void showCustomPrograms() override;
    void showWebList() override;
    void showWallpaper() override;

    App& app_;
    Skin& skin_;
    // The user's own programs, shared by the windows that show and edit them.
    CustomProgramTable customPrograms_;
    MenuBar menuBar_;
    MainCommands commands_{app_, *this};
    IconStrip strip_{skin_, [this](int index) { commands_.runIcon(index); }};
    MainWindowState state_;
    bool layoutDone_ = true;  // false while "&Icons" rearranges the window
    UniqueModule shell32_;
    UniqueHandle instanceMutex_;
    UniqueWindow applicationWindow_;
    UniqueBrush background_;
    bool unloaded_ = false;
};

}  // namespace orvane::ui
