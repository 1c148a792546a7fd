// The launcher bar. Its load and unload run the start-up and shut-down
// sequences of the core through its host; its menu items, shortcuts and icons
// run the commands, which reach it through its routines.
#pragma once

#include "app.h"
#include "commands.h"
#include "handles.h"
#include "icon_strip.h"
#include "layout.h"
#include "lifecycle.h"
#include "menu_bar.h"
#include "palette_window.h"
#include "program_list.h"
#include "window_base.h"

namespace orvane::ui {

class Skin;

// The class names a second copy looks for.
inline constexpr wchar_t kApplicationWindowClass[] = L"Orvane.Application";
inline constexpr wchar_t kMainWindowClass[] = L"Orvane.Main";
// The bar's own background, set at design time.
inline constexpr COLORREF kMainBackColor = RGB(240, 240, 240);

class MainWindow : public WindowBase {
public:
    // The bar paints with the skin, applies it, and hands it to every window it opens.
    MainWindow(App &app, Skin &skin);
    // The bar goes before the members its messages use.
    ~MainWindow() override;

    // Creates and loads the window; false when this copy handed over or failed.
    bool open();
    // The menu bar's shortcuts, for the message loop.
    HACCEL accelerators() const {
        return menuBar_.accelerators();
    }

private:
    // The bar as the start-up and shut-down sequences see it.
    class Host final : public MainWindowHost {
    public:
        explicit Host(MainWindow &window) : window_(window) {
        }

        bool earlierInstanceRunning() override;
        std::wstring programTitle() override;
        void setProgramTitle(const std::wstring &title) override;
        WindowRef findApplicationWindow(const std::wstring &title) override;
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
        void applySkin(const std::wstring &skinFile) override;
        void buildMenuBar() override;
        void takeOpeningSize() override;

    private:
        MainWindow &window_;
    };

    // The bar as its commands see it: the windows it opens over itself and its layout.
    class Routines final : public MainWindowRoutines {
    public:
        explicit Routines(MainWindow &window) : window_(window) {
        }

        std::wstring inputBox(const std::wstring &prompt, const std::wstring &preset) override;
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

    private:
        MainWindow &window_;
    };

    LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void unload();
    void keepApplicationWindowBelow();
    void setPixelRect(int left, int top, int width, int height, UINT flags);
    RECT pixelRect();
    // Moves and sizes the window in one step, so the resize handler sees only the result.
    void setTwipsRect(const TwipsRect &rect, UINT flags);
    BarState barState();
    // The resize handler: the expanded width follows the user, the strip follows the window.
    void resized();
    void setMenuColours();

    // The bar's place and size in twips: each setter moves one edge or size.
    void setTop(std::int32_t twips);
    void setLeft(std::int32_t twips);
    void setWidth(std::int32_t twips);
    void setHeight(std::int32_t twips);
    TwipsRect geometry();
    TwipsRect workArea();

    // The layout of the bar and its strip.
    void takeOpeningSize();
    void changeIconSize(int step);
    void useScreenWidth();
    void toggleIconStrip();
    void toggleTopBottom();

    // The skin, the menu bar and its font.
    void applySkin(const std::wstring &skinFile);
    void buildMenuBar();

    App &app_;
    Skin &skin_;
    // The user's own programs, shared by the windows that show and edit them.
    CustomProgramTable customPrograms_;
    MenuBar menuBar_;
    Host host_{*this};
    Routines routines_{*this};
    MainCommands commands_{app_, routines_};
    IconStrip strip_{skin_, [this](int index) {
                         commands_.runIcon(index);
                     }};
    // Brought up by Ctrl+Alt+Space while the bar holds that key.
    PaletteWindow palette_{app_, skin_, commands_, *this};
    PaletteHotKey paletteHotKey_;
    MainWindowState state_;
    bool layoutDone_ = true; // false while "&Icons" rearranges the window
    UniqueModule shell32_;
    UniqueHandle instanceMutex_;
    UniqueWindow applicationWindow_;
    UniqueBrush background_;
    bool unloaded_ = false;
};

} // namespace orvane::ui
