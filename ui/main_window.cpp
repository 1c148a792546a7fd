#include "main_window.h"

#include <commctrl.h>
#include <shldisp.h>

#include "dialogs.h"
#include "dpi.h"

namespace orvane::ui {

namespace {

constexpr wchar_t kInstanceMutexName[] = L"Local\\Orvane.Instance";

TwipsRect ToTwips(const RECT& r, UINT dpi) {
    return {PixelsToTwips(r.left, dpi), PixelsToTwips(r.top, dpi), PixelsToTwips(r.right - r.left, dpi),
            PixelsToTwips(r.bottom - r.top, dpi)};
}

RECT PixelWorkArea() {
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

}  // namespace

MainWindow::MainWindow(App& app) : app_(app), background_(CreateSolidBrush(kMainBackColor)) {}

MainWindow::~MainWindow() {
    if (hwnd()) DestroyWindow(hwnd());
}

bool MainWindow::open() {
    const HINSTANCE instance = GetModuleHandleW(nullptr);
    WNDCLASSEXW applicationClass{};
    applicationClass.cbSize = sizeof applicationClass;
    applicationClass.lpfnWndProc = DefWindowProcW;
    applicationClass.hInstance = instance;
    applicationClass.lpszClassName = kApplicationWindowClass;
    RegisterClassExW(&applicationClass);
    // The hidden application window carries the program's title and owns the
    // bar, which it keeps just above it in the Z order.
    applicationWindow_.reset(CreateWindowExW(0, kApplicationWindowClass, kProgramTitle, WS_POPUP, 0, 0, 0, 0, nullptr,
                                             nullptr, instance, nullptr));

    WNDCLASSEXW mainClass{};
    mainClass.hIcon = LoadIconW(instance, MAKEINTRESOURCEW(1));
    mainClass.hIconSm = mainClass.hIcon;
    mainClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    mainClass.hbrBackground = background_.get();
    mainClass.lpszClassName = kMainWindowClass;
    registerClass(mainClass);

    // Creation: the shell library and the common controls.
    shell32_.reset(LoadLibraryW(L"shell32.dll"));
    initCommonControls();
    if (!create(WS_EX_APPWINDOW, kMainWindowClass, kProgramTitle, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                applicationWindow_.get()))
        return false;

    if (LoadMainWindow(app_, *this, state_) == LoadOutcome::HandedOver) return false;
    ShowWindow(hwnd(), SW_SHOWNORMAL);
    UpdateWindow(hwnd());
    return true;
}

void MainWindow::unload() {
    if (std::exchange(unloaded_, true)) return;
    UnloadMainWindow(app_, *this);
    shell32_.reset();
}

LRESULT MainWindow::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CLOSE:
        unload();
        DestroyWindow(hwnd());
        return 0;
    case WM_ENDSESSION:
        if (wParam) unload();  // the session ends: keep the settings
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    case WM_WINDOWPOSCHANGED:
        if (!(reinterpret_cast<const WINDOWPOS*>(lParam)->flags & SWP_NOZORDER)) keepApplicationWindowBelow();
        break;
    case WM_DPICHANGED: {
        const RECT* suggested = reinterpret_cast<const RECT*>(lParam);
        setPixelRect(suggested->left, suggested->top, suggested->right - suggested->left,
                     suggested->bottom - suggested->top, 0);
        menuBar_.dpiChanged(hwnd());
        return 0;
    }
    case WM_COMMAND:
        // A menu item or its shortcut: the command is found by the item's caption.
        if (lParam == 0) {
            commands_.dispatch(menuBar_.caption(hwnd(), LOWORD(wParam)));
            return 0;
        }
        break;
    case WM_MENUCHAR:
        if (HIWORD(wParam) == MF_POPUP) return menuBar_.menuChar(LOWORD(wParam), reinterpret_cast<HMENU>(lParam));
        break;
    case WM_MEASUREITEM:
        if (menuBar_.measure(*reinterpret_cast<MEASUREITEMSTRUCT*>(lParam))) return TRUE;
        break;
    case WM_DRAWITEM:
        if (menuBar_.draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam))) return TRUE;
        break;
    }
    return WindowBase::handleMessage(message, wParam, lParam);
}

void MainWindow::keepApplicationWindowBelow() {
    SetWindowPos(applicationWindow_.get(), hwnd(), 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

void MainWindow::setPixelRect(int left, int top, int width, int height, UINT flags) {
    SetWindowPos(hwnd(), nullptr, left, top, width, height, flags | SWP_NOZORDER | SWP_NOACTIVATE);
}

RECT MainWindow::pixelRect() {
    RECT r{};
    GetWindowRect(hwnd(), &r);
    return r;
}

bool MainWindow::earlierInstanceRunning() {
    instanceMutex_.reset(CreateMutexW(nullptr, FALSE, kInstanceMutexName));
    return GetLastError() == ERROR_ALREADY_EXISTS;
}

std::wstring MainWindow::programTitle() {
    wchar_t title[256];
    return std::wstring(title, static_cast<std::size_t>(GetWindowTextW(applicationWindow_.get(), title, 256)));
}

void MainWindow::setProgramTitle(const std::wstring& title) { SetWindowTextW(applicationWindow_.get(), title.c_str()); }

WindowRef MainWindow::findApplicationWindow(const std::wstring& title) {
    return ToRef(FindWindowW(kApplicationWindowClass, title.c_str()));
}

void MainWindow::endProcessNow() { ExitProcess(0); }

void MainWindow::initCommonControls() {
    const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES};
    InitCommonControlsEx(&controls);
}

WindowRef MainWindow::handle() { return ToRef(hwnd()); }

void MainWindow::setTop(std::int32_t twips) {
    const RECT r = pixelRect();
    setPixelRect(r.left, TwipsToPixels(twips, WindowDpi(hwnd())), 0, 0, SWP_NOSIZE);
}

void MainWindow::setLeft(std::int32_t twips) {
    const RECT r = pixelRect();
    setPixelRect(TwipsToPixels(twips, WindowDpi(hwnd())), r.top, 0, 0, SWP_NOSIZE);
}

void MainWindow::setWidth(std::int32_t twips) {
    const RECT r = pixelRect();
    setPixelRect(0, 0, TwipsToPixels(twips, WindowDpi(hwnd())), r.bottom - r.top, SWP_NOMOVE);
}

void MainWindow::setHeight(std::int32_t twips) {
    const RECT r = pixelRect();
    setPixelRect(0, 0, r.right - r.left, TwipsToPixels(twips, WindowDpi(hwnd())), SWP_NOMOVE);
}

TwipsRect MainWindow::geometry() {
    RECT r = pixelRect();
    if (IsIconic(hwnd())) {
        // A minimised bar records where it will come back, not the icon's place.
        WINDOWPLACEMENT placement{};
        placement.length = sizeof placement;
        GetWindowPlacement(hwnd(), &placement);
        r = placement.rcNormalPosition;  // work-area coordinates
        const RECT area = PixelWorkArea();
        OffsetRect(&r, area.left, area.top);
    }
    return ToTwips(r, WindowDpi(hwnd()));
}

TwipsRect MainWindow::workArea() { return ToTwips(PixelWorkArea(), WindowDpi(hwnd())); }

std::int32_t MainWindow::backColor() { return static_cast<std::int32_t>(kMainBackColor); }

// The icon strip and the skin come with their own modules; the bar opens
// without them until then.
void MainWindow::layIconStrip() {}
void MainWindow::applySkin(const std::wstring&) {}
void MainWindow::buildMenuBar() { menuBar_.build(hwnd()); }

std::wstring MainWindow::inputBox(const std::wstring& prompt, const std::wstring& preset) {
    return ShowInputBox(app_, hwnd(), prompt, preset);
}
void MainWindow::showAbout() { ShowAboutDialog(app_, hwnd()); }
void MainWindow::showProgramLocations() { ShowProgramLocations(app_, hwnd()); }
void MainWindow::showYourProgram() { ShowYourProgram(app_, hwnd()); }

// The shell's own desktop toggle; a system without it simply does nothing.
void MainWindow::toggleDesktop() {
    EnterComApartment();
    IShellDispatch4* created = nullptr;
    if (FAILED(CoCreateInstance(CLSID_Shell, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, IID_IShellDispatch4,
                                reinterpret_cast<void**>(&created))))
        return;
    ComPointer<IShellDispatch4>(created)->ToggleDesktop();
}

// Exit closes the bar as its close box does, so the settings are written.
void MainWindow::exitProgram() { PostMessageW(hwnd(), WM_CLOSE, 0, 0); }

void MainWindow::useScreenWidth() {}        // comes with the icon strip's layout
void MainWindow::changeIconSize(int) {}     // comes with the icon strip's layout
void MainWindow::toggleIconStrip() {}       // comes with the icon strip
void MainWindow::toggleTopBottom() {}       // comes with the icon strip's layout
void MainWindow::chooseSkin() {}            // the skin chooser comes with the skins
void MainWindow::chooseMenuFont() {}        // the menu font comes with the skins
void MainWindow::showCustomPrograms() {}    // the custom programs window comes later
void MainWindow::showWebList() {}           // the web list window comes later
void MainWindow::showWallpaper() {}         // the wallpaper window comes later

}  // namespace orvane::ui
