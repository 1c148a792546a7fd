#include "main_window.h"

#include "dialogs.h"
#include "dpi.h"
#include "skin.h"

namespace orvane::ui {

namespace {

// Posted when the bar was minimised under the wallpaper: it comes back.
constexpr UINT kRestoreUnderWallpaper = WM_APP + 1;

TwipsRect ToTwips(const RECT &r, UINT dpi) {
    return {PixelsToTwips(r.left, dpi), PixelsToTwips(r.top, dpi), PixelsToTwips(r.right - r.left, dpi),
            PixelsToTwips(r.bottom - r.top, dpi)};
}

RECT PixelWorkArea() {
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

} // namespace

MainWindow::MainWindow(App &app, Skin &skin) : app_(app), skin_(skin), background_(CreateSolidBrush(kMainBackColor)) {
}

MainWindow::~MainWindow() {
    if (hwnd())
        DestroyWindow(hwnd());
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
    host_.initCommonControls();
    if (!create(WS_EX_APPWINDOW, kMainWindowClass, kProgramTitle, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                applicationWindow_.get()) ||
        !strip_.create(hwnd()))
        return false;
    skin_.join(hwnd()); // the first of the program's windows

    if (LoadMainWindow(app_, host_, state_) == LoadOutcome::HandedOver)
        return false;
    // Held before the bar shows, so the key works as soon as the bar can be seen; another program may hold it: then
    // the About box says so.
    paletteHotKey_ = RegisterPaletteHotKey(hwnd());
    ShowWindow(hwnd(), SW_SHOWNORMAL);
    UpdateWindow(hwnd());
    return true;
}

void MainWindow::unload() {
    if (std::exchange(unloaded_, true))
        return;
    UnloadMainWindow(app_, host_);
    paletteHotKey_.reset();
    shell32_.reset();
}

LRESULT MainWindow::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CLOSE:
        // Closing the bar under the wallpaper would close it too: the password decides, and the bar stays.
        if (HWND wallpaper = OpenWallpaper()) {
            PostMessageW(wallpaper, WM_CLOSE, 0, 0);
            return 0;
        }
        unload();
        DestroyWindow(hwnd());
        return 0;
    case WM_ENDSESSION:
        if (wParam)
            unload(); // the session ends: keep the settings
        return 0;
    case WM_DESTROY:
        skin_.leave(hwnd());
        PostQuitMessage(0);
        return 0;
    case WM_ERASEBKGND:
        skin_.paintBackground(hwnd(), reinterpret_cast<HDC>(wParam));
        return TRUE;
    case WM_SIZE:
        // The bar owns the wallpaper, and a minimised owner takes the cover along: not while it shows.
        if (wParam == SIZE_MINIMIZED && OpenWallpaper())
            PostMessageW(hwnd(), kRestoreUnderWallpaper, 0, 0);
        resized();
        break;
    case kRestoreUnderWallpaper:
        ShowWindow(hwnd(), SW_SHOWNOACTIVATE);
        return 0;
    case WM_SETFOCUS:
        // The strip is the bar's one control: the keyboard goes there.
        if (IsWindowVisible(strip_.hwnd()))
            SetFocus(strip_.hwnd());
        return 0;
    case kSkinChanged:
        setMenuColours();
        return 0;
    case WM_WINDOWPOSCHANGED:
        if (!(reinterpret_cast<const WINDOWPOS *>(lParam)->flags & SWP_NOZORDER))
            keepApplicationWindowBelow();
        break;
    case WM_DPICHANGED: {
        const RECT *suggested = reinterpret_cast<const RECT *>(lParam);
        setPixelRect(suggested->left, suggested->top, suggested->right - suggested->left,
                     suggested->bottom - suggested->top, 0);
        menuBar_.dpiChanged(hwnd());
        resized();
        return 0;
    }
    case WM_COMMAND:
        // A menu item or its shortcut: the command is found by the item's caption.
        if (lParam == 0) {
            commands_.dispatch(menuBar_.caption(hwnd(), LOWORD(wParam)));
            return 0;
        }
        break;
    case WM_HOTKEY:
        if (wParam == kPaletteHotKeyId)
            palette_.summon();
        return 0;
    case WM_MENUCHAR:
        if (!(HIWORD(wParam) & MF_SYSMENU))
            return menuBar_.menuChar(LOWORD(wParam), reinterpret_cast<HMENU>(lParam));
        break;
    case WM_MEASUREITEM:
        if (menuBar_.measure(*reinterpret_cast<MEASUREITEMSTRUCT *>(lParam)))
            return TRUE;
        break;
    case WM_DRAWITEM:
        if (menuBar_.draw(*reinterpret_cast<const DRAWITEMSTRUCT *>(lParam)))
            return TRUE;
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

void MainWindow::setTwipsRect(const TwipsRect &r, UINT flags) {
    const UINT dpi = WindowDpi(hwnd());
    setPixelRect(TwipsToPixels(r.left, dpi), TwipsToPixels(r.top, dpi), TwipsToPixels(r.width, dpi),
                 TwipsToPixels(r.height, dpi), flags);
}

BarState MainWindow::barState() {
    return {geometry(), app_.settings.ExpandedLayout != 0, state_.atTop};
}

void MainWindow::resized() {
    if (!strip_.hwnd() || IsIconic(hwnd()))
        return;
    Settings &s = app_.settings;
    const TwipsRect window = geometry();
    if (layoutDone_ && IsWindowVisible(strip_.hwnd()) && s.ExpandedLayout == 1)
        s.ExpandedWidth = window.width;
    // The layout measures from the window's outer edges, where its caption and
    // menu bar lie inside the top margin; here the system draws them outside
    // the client area, so the strip keeps its margins by sitting midway in it.
    const UINT dpi = WindowDpi(hwnd());
    POINT origin{};
    ClientToScreen(hwnd(), &origin);
    RECT client{};
    GetClientRect(hwnd(), &client);
    const int dx = origin.x - pixelRect().left;
    const StripLayout layout = LayStrip(window.width, window.height);
    const int left = TwipsToPixels(layout.strip.left, dpi) - dx;
    const int height = std::max(0, TwipsToPixels(layout.strip.height, dpi));
    const int top = std::max(0, static_cast<int>(client.bottom - height) / 2);
    const RECT strip{left, top, left + TwipsToPixels(layout.strip.width, dpi), top + height};
    std::array<int, kIconCount> iconLeft{};
    for (int i = 0; i < kIconCount; ++i)
        iconLeft[static_cast<std::size_t>(i)] =
            static_cast<int>(layout.iconLeft[static_cast<std::size_t>(i)] * dpi / kTwipsPerInch) - dx - left;
    strip_.place(strip, iconLeft, TwipsToPixels(s.IconSize, dpi));
}

void MainWindow::setMenuColours() {
    menuBar_.setColours(hwnd(), skin_.menuColours());
}

RECT MainWindow::pixelRect() {
    RECT r{};
    GetWindowRect(hwnd(), &r);
    return r;
}

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
        r = placement.rcNormalPosition; // work-area coordinates
        const RECT area = PixelWorkArea();
        OffsetRect(&r, area.left, area.top);
    }
    return ToTwips(r, WindowDpi(hwnd()));
}

TwipsRect MainWindow::workArea() {
    return ToTwips(PixelWorkArea(), WindowDpi(hwnd()));
}

// Every open window takes the skin; the menu bar takes its colours when told.
void MainWindow::applySkin(const std::wstring &skinFile) {
    skin_.load(skinFile);
    skin_.applyToAll();
}

void MainWindow::buildMenuBar() {
    const Settings &s = app_.settings;
    menuBar_.setFont(s.ListFontName, s.ListFontSize, s.ListFontBold != 0);
    menuBar_.setColours(hwnd(), skin_.menuColours());
    menuBar_.build(hwnd()); // in those colours
}

void MainWindow::takeOpeningSize() {
    const Settings &s = app_.settings;
    const bool shown = s.ExpandedLayout == 1;
    ShowWindow(strip_.hwnd(), shown ? SW_SHOWNA : SW_HIDE);
    const TwipsRect size = OpeningSize(shown, s.IconSize, s.ExpandedWidth);
    setTwipsRect(size, SWP_NOMOVE);
}

void MainWindow::useScreenWidth() {
    const BarState bar = UseScreenWidth(barState(), workArea());
    setTwipsRect(bar.window, 0);
}

void MainWindow::changeIconSize(int step) {
    Settings &s = app_.settings;
    s.IconSize = SteppedIconSize(s.IconSize, step);
    setHeight(ExpandedHeight(s.IconSize));
    resized();
}

void MainWindow::toggleIconStrip() {
    layoutDone_ = false;
    const BarState bar = ToggleIcons(barState(), app_.settings.IconSize, app_.settings.ExpandedWidth);
    app_.settings.ExpandedLayout = bar.stripShown ? 1 : 0;
    ShowWindow(strip_.hwnd(), bar.stripShown ? SW_SHOWNA : SW_HIDE);
    setTwipsRect(bar.window, 0);
    layoutDone_ = true;
    resized();
}

void MainWindow::toggleTopBottom() {
    const BarState bar = ToggleTopBottom(barState(), workArea());
    setTop(bar.window.top);
    state_.atTop = bar.atTop;
}

} // namespace orvane::ui
