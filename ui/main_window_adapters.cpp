// The bar's host and routines: what the start-up and shut-down sequences and
// the commands ask of the bar, answered by the bar, its application window and
// the windows it opens over itself with its skin.
#include "main_window.h"

#include <commctrl.h>
#include <shldisp.h>

#include "dialogs.h"

namespace orvane::ui {

namespace {

constexpr wchar_t kInstanceMutexName[] = L"Local\\Orvane.Instance";

} // namespace

bool MainWindow::Host::earlierInstanceRunning() {
    window_.instanceMutex_.reset(CreateMutexW(nullptr, FALSE, kInstanceMutexName));
    return GetLastError() == ERROR_ALREADY_EXISTS;
}

std::wstring MainWindow::Host::programTitle() {
    wchar_t title[256];
    return std::wstring(title, static_cast<std::size_t>(GetWindowTextW(window_.applicationWindow_.get(), title, 256)));
}

void MainWindow::Host::setProgramTitle(const std::wstring &title) {
    SetWindowTextW(window_.applicationWindow_.get(), title.c_str());
}

WindowRef MainWindow::Host::findApplicationWindow(const std::wstring &title) {
    return ToRef(FindWindowW(kApplicationWindowClass, title.c_str()));
}

void MainWindow::Host::endProcessNow() {
    ExitProcess(0);
}

void MainWindow::Host::initCommonControls() {
    const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES};
    InitCommonControlsEx(&controls);
}

WindowRef MainWindow::Host::handle() {
    return ToRef(window_.hwnd());
}
void MainWindow::Host::setTop(std::int32_t twips) {
    window_.setTop(twips);
}
void MainWindow::Host::setLeft(std::int32_t twips) {
    window_.setLeft(twips);
}
void MainWindow::Host::setWidth(std::int32_t twips) {
    window_.setWidth(twips);
}
void MainWindow::Host::setHeight(std::int32_t twips) {
    window_.setHeight(twips);
}
TwipsRect MainWindow::Host::geometry() {
    return window_.geometry();
}
TwipsRect MainWindow::Host::workArea() {
    return window_.workArea();
}
std::int32_t MainWindow::Host::backColor() {
    return static_cast<std::int32_t>(kMainBackColor);
}
void MainWindow::Host::layIconStrip() {
    window_.changeIconSize(0);
}
void MainWindow::Host::applySkin(const std::wstring &skinFile) {
    window_.applySkin(skinFile);
}
void MainWindow::Host::buildMenuBar() {
    window_.buildMenuBar();
}
void MainWindow::Host::takeOpeningSize() {
    window_.takeOpeningSize();
}

std::wstring MainWindow::Routines::inputBox(const std::wstring &prompt, const std::wstring &preset) {
    return ShowInputBox(window_.app_, window_.skin_, window_.hwnd(), prompt, preset);
}
void MainWindow::Routines::showAbout() {
    ShowAboutDialog(window_.app_, window_.skin_, window_.hwnd(), !window_.paletteHotKey_);
}
void MainWindow::Routines::showProgramLocations() {
    ShowProgramLocations(window_.app_, window_.skin_, window_.hwnd());
}
void MainWindow::Routines::showYourProgram() {
    ShowYourProgram(window_.app_, window_.skin_, window_.hwnd());
}

// The shell's own desktop toggle; a system without it simply does nothing.
void MainWindow::Routines::toggleDesktop() {
    if (const auto shell = CreateShellObject<IShellDispatch4>(IID_IShellDispatch4))
        shell->ToggleDesktop();
}

// Exit closes the bar as its close box does, so the settings are written.
void MainWindow::Routines::exitProgram() {
    PostMessageW(window_.hwnd(), WM_CLOSE, 0, 0);
}

void MainWindow::Routines::useScreenWidth() {
    window_.useScreenWidth();
}
void MainWindow::Routines::changeIconSize(int step) {
    window_.changeIconSize(step);
}
void MainWindow::Routines::toggleIconStrip() {
    window_.toggleIconStrip();
}
void MainWindow::Routines::toggleTopBottom() {
    window_.toggleTopBottom();
}

void MainWindow::Routines::chooseSkin() {
    MainWindow &w = window_;
    ShowSkinChooser(w.app_, w.skin_, w.hwnd(),
                    {[&w] {
                         w.applySkin(w.app_.settings.SkinFile);
                     },
                     [&w] {
                         w.setMenuColours();
                     }});
}

void MainWindow::Routines::chooseMenuFont() {
    Settings &s = window_.app_.settings;
    const auto chosen = ChooseFontFor(window_.hwnd(), {s.ListFontName, s.ListFontSize, s.ListFontBold != 0});
    if (!chosen)
        return;
    s.ListFontName = chosen->name;
    s.ListFontSize = static_cast<std::int16_t>(chosen->points);
    s.ListFontBold = chosen->bold ? -1 : 0;
    window_.buildMenuBar(); // the items are measured anew in the new font
}

void MainWindow::Routines::showCustomPrograms() {
    ShowCustomPrograms(window_.app_, window_.skin_, window_.customPrograms_, window_.commands_, window_.hwnd());
}

// Also asked for by the custom programs window, which then owns the list.
void MainWindow::Routines::showWebList() {
    HWND active = GetActiveWindow();
    ShowWebList(window_.app_, window_.skin_, window_.commands_, active ? active : window_.hwnd());
}

void MainWindow::Routines::showWallpaper() {
    ShowWallpaper(window_.app_, window_.skin_, window_.hwnd());
}

} // namespace orvane::ui
