// The wallpaper window: the wallpaper over the whole primary monitor, topmost, with
// its one-menu bar. Every way of leaving it asks for the return password.
#include <windows.h>

#include "app.h"
#include "dialogs.h"
#include "dpi.h"
#include "menu_bar.h"
#include "modal_dialog.h"
#include "picture.h"
#include "resource.h"
#include "skin.h"
#include "wallpaper.h"

namespace orvane::ui {

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr int kLinePixels = 40; // one arrow key or wheel notch's worth, at 96 DPI
// Posted at the start: the picture, and any message about it, come once the window is up.
constexpr UINT kShowPicture = WM_APP + 1;
// Posted when the cover was minimised after all: it covers the screen again.
constexpr UINT kCoverAgain = WM_APP + 2;

// The keys that move a picture shown at its natural size: the scroll bar and what it would be sent.
struct ScrollKey {
    WORD key;
    int bar, code;
};
constexpr ScrollKey kScrollKeys[] = {
    {VK_UP, SB_VERT, SB_LINEUP},      {VK_DOWN, SB_VERT, SB_LINEDOWN}, {VK_LEFT, SB_HORZ, SB_LINEUP},
    {VK_RIGHT, SB_HORZ, SB_LINEDOWN}, {VK_PRIOR, SB_VERT, SB_PAGEUP},  {VK_NEXT, SB_VERT, SB_PAGEDOWN},
    {VK_HOME, SB_VERT, SB_TOP},       {VK_END, SB_VERT, SB_BOTTOM},
};

HWND openWallpaper = nullptr;

class WallpaperWindow : public ModalDialog {
public:
    WallpaperWindow(App &app, Skin &skin) : ModalDialog(skin), app_(app) {
    }

private:
    void onInit() override {
        openWallpaper = hwnd();
        cover();
        menu_.setColours(hwnd(), skin().menuColours());
        // The bar first, so that the picture is fitted to the room it is shown in.
        menu_.build(hwnd());
        PostMessageW(hwnd(), kShowPicture, 0, 0);
    }

    // The primary monitor, all of it, with no frame: other monitors are left as they are.
    void cover() {
        // The template's caption gives the window its title but must not be drawn.
        SetWindowLongPtrW(hwnd(), GWL_STYLE,
                          GetWindowLongPtrW(hwnd(), GWL_STYLE) & ~(WS_CAPTION | WS_THICKFRAME | DS_MODALFRAME));
        SetWindowLongPtrW(hwnd(), GWL_EXSTYLE,
                          GetWindowLongPtrW(hwnd(), GWL_EXSTYLE) &
                              ~(WS_EX_DLGMODALFRAME | WS_EX_WINDOWEDGE | WS_EX_CLIENTEDGE));
        SetWindowPos(hwnd(), HWND_TOPMOST, 0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN),
                     SWP_FRAMECHANGED);
    }

    // Until the password lets the user out, nothing moves, sizes or hides the cover.
    void pin(WINDOWPOS &position) const {
        if (leaving_ || IsIconic(hwnd()))
            return;
        position.x = position.y = 0;
        position.cx = GetSystemMetrics(SM_CXSCREEN);
        position.cy = GetSystemMetrics(SM_CYSCREEN);
        position.flags &= ~SWP_HIDEWINDOW;
    }

    void leave() {
        leaving_ = true;
        end(IDCANCEL);
    }

    PixelSize clientSize() const {
        RECT client{};
        GetClientRect(hwnd(), &client);
        return {client.right, client.bottom};
    }

    void showPicture(const std::wstring &path) {
        offset_.x = offset_.y = 0;
        picture_.reset();
        ShowScrollBar(hwnd(), SB_BOTH, FALSE);
        PixelSize size = clientSize();
        if (IsPngPath(path)) {
            const ULONG_PTR token = StartImaging();
            picture_ = LoadScaledPicture(app_, path, size.width, size.height, kWhite, true);
            StopImaging(token);
        } else {
            picture_ = LoadStandardPicture(app_, path, size);
        }
        image_ = picture_ ? size : PixelSize{};
        stretched_ = StartsStretched(image_, clientSize(), app_.settings.WallpaperStretch);
        layout();
    }

    // Stretched, the picture fills the window; at natural size, a scroll bar for each direction it exceeds.
    void layout() {
        ShowScrollBar(hwnd(), SB_BOTH, FALSE);
        const UINT dpi = WindowDpi(hwnd());
        bars_ = stretched_ || !picture_
                    ? ScrollLayout{false, false, clientSize()}
                    : LayoutAtNaturalSize(image_, clientSize(), SystemMetricForDpi(SM_CXVSCROLL, dpi),
                                          SystemMetricForDpi(SM_CYHSCROLL, dpi));
        setBar(SB_HORZ, bars_.horizontal, image_.width, bars_.view.width, offset_.x);
        setBar(SB_VERT, bars_.vertical, image_.height, bars_.view.height, offset_.y);
        InvalidateRect(hwnd(), nullptr, FALSE);
    }

    void setBar(int bar, bool shown, int image, int view, int &offset) {
        offset = shown ? ClampOffset(offset, image, view) : 0;
        if (!shown)
            return;
        ShowScrollBar(hwnd(), bar, TRUE);
        SCROLLINFO info{sizeof info, SIF_ALL, 0, image - 1, static_cast<UINT>(view), offset, 0};
        SetScrollInfo(hwnd(), bar, &info, TRUE);
    }

    void toggleStretch() {
        stretched_ = !stretched_;
        offset_.x = offset_.y = 0;
        layout();
    }

    void scroll(int bar, int code) {
        const bool across = bar == SB_HORZ;
        if (!(across ? bars_.horizontal : bars_.vertical))
            return;
        int &offset = across ? offset_.x : offset_.y;
        const int image = across ? image_.width : image_.height, view = across ? bars_.view.width : bars_.view.height;
        const int line = ScaledForWindow(kLinePixels, hwnd());
        SCROLLINFO info{sizeof info, SIF_TRACKPOS, 0, 0, 0, 0, 0};
        switch (code) {
        case SB_LINEUP:
            offset -= line;
            break;
        case SB_LINEDOWN:
            offset += line;
            break;
        case SB_PAGEUP:
            offset -= view;
            break;
        case SB_PAGEDOWN:
            offset += view;
            break;
        case SB_TOP:
            offset = 0;
            break;
        case SB_BOTTOM:
            offset = image;
            break;
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION:
            GetScrollInfo(hwnd(), bar, &info);
            offset = info.nTrackPos;
            break;
        default:
            return;
        }
        offset = ClampOffset(offset, image, view);
        SetScrollPos(hwnd(), bar, offset, TRUE);
        InvalidateRect(hwnd(), nullptr, FALSE);
    }

    void wheel(int bar, int delta) {
        for (int notch = 0; notch < std::abs(delta) / WHEEL_DELTA * 3; ++notch)
            scroll(bar, delta > 0 ? SB_LINEUP : SB_LINEDOWN);
    }

    void paint() {
        PAINTSTRUCT paint{};
        HDC dc = BeginPaint(hwnd(), &paint);
        RECT client{};
        GetClientRect(hwnd(), &client);
        if (picture_) {
            UniqueDC source(CreateCompatibleDC(dc));
            const HGDIOBJ old = SelectObject(source.get(), picture_.get());
            RECT drawn = client;
            if (stretched_) {
                SetStretchBltMode(dc, HALFTONE);
                SetBrushOrgEx(dc, 0, 0, nullptr);
                StretchBlt(dc, 0, 0, client.right, client.bottom, source.get(), 0, 0, image_.width, image_.height,
                           SRCCOPY);
            } else {
                drawn.left = PictureOrigin(image_.width, client.right, offset_.x);
                drawn.top = PictureOrigin(image_.height, client.bottom, offset_.y);
                drawn.right = drawn.left + image_.width;
                drawn.bottom = drawn.top + image_.height;
                BitBlt(dc, drawn.left, drawn.top, image_.width, image_.height, source.get(), 0, 0, SRCCOPY);
            }
            SelectObject(source.get(), old);
            ExcludeClipRect(dc, drawn.left, drawn.top, drawn.right, drawn.bottom);
        }
        FillRect(dc, &client, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
        EndPaint(hwnd(), &paint);
    }

    // Every way out comes here: the box asks each time, also with no password set.
    void tryToLeave() {
        if (asking_)
            return;
        asking_ = true;
        const std::wstring typed = ShowInputBox(app_, skin(), hwnd(), kPasswordPrompt, L"");
        asking_ = false;
        if (ReturnAllowed(app_, typed))
            leave();
    }

    void onCommand(int id, int) override {
        if (id == IDCANCEL)
            return tryToLeave(); // Esc
        if (id < static_cast<int>(kFirstMenuCommand))
            return;
        const WallpaperCommand *command = FindWallpaperCommand(menu_.caption(hwnd(), static_cast<UINT>(id)));
        switch (command ? *command : WallpaperCommand::None) {
        case WallpaperCommand::Time:
            ShowClockWindow(skin(), hwnd());
            break;
        case WallpaperCommand::Stretch:
            toggleStretch();
            break;
        case WallpaperCommand::Exit:
            tryToLeave();
            break;
        case WallpaperCommand::None:
            break;
        }
    }

    bool translate(MSG &message) override {
        if (message.message == WM_KEYDOWN)
            for (const ScrollKey &key : kScrollKeys)
                if (message.wParam == key.key) {
                    scroll(key.bar, key.code);
                    return true;
                }
        return menu_.accelerators() && TranslateAcceleratorW(hwnd(), menu_.accelerators(), &message);
    }

    INT_PTR onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (menu_.dialogMessage(hwnd(), skin(), message, wParam, lParam))
            return TRUE;
        switch (message) {
        case WM_CLOSE: // Alt+F4, the system menu, or another program
        case WM_LBUTTONDOWN:
            tryToLeave();
            return TRUE;
        case WM_ERASEBKGND:
            SetWindowLongPtrW(hwnd(), DWLP_MSGRESULT, TRUE);
            return TRUE; // painted whole
        case WM_PAINT:
            paint();
            return TRUE;
        case WM_HSCROLL:
        case WM_VSCROLL:
            scroll(message == WM_HSCROLL ? SB_HORZ : SB_VERT, LOWORD(wParam));
            return TRUE;
        case WM_MOUSEWHEEL:
            wheel(GET_KEYSTATE_WPARAM(wParam) & MK_SHIFT ? SB_HORZ : SB_VERT, GET_WHEEL_DELTA_WPARAM(wParam));
            return TRUE;
        case WM_MOUSEHWHEEL:
            wheel(SB_HORZ, -GET_WHEEL_DELTA_WPARAM(wParam));
            return TRUE;
        case WM_DISPLAYCHANGE:
            cover();
            [[fallthrough]];
        case kShowPicture:
            ShowWindow(hwnd(), SW_SHOW); // the dialog manager would show it only once idle
            if (const auto path = WallpaperImage(app_))
                showPicture(*path);
            return TRUE;
        // When Windows ends the session the wallpaper goes without a question. Windows says it is
        // shutting down, or sends its question first; a message another program posts is no such end.
        case WM_QUERYENDSESSION:
            sessionEnding_ = InSendMessage();
            return FALSE;
        case WM_ENDSESSION:
            if (wParam && (sessionEnding_ || GetSystemMetrics(SM_SHUTTINGDOWN)))
                leave();
            sessionEnding_ = false;
            return TRUE;
        case WM_SYSCOMMAND:
            switch (wParam & 0xFFF0) {
            case SC_MOVE:
            case SC_SIZE:
            case SC_MINIMIZE:
            case SC_MAXIMIZE:
                return TRUE; // the cover stays as it is
            }
            return FALSE;
        case WM_WINDOWPOSCHANGING:
            pin(*reinterpret_cast<WINDOWPOS *>(lParam));
            return FALSE;
        case WM_SIZE:
            if (wParam == SIZE_MINIMIZED && !leaving_)
                PostMessageW(hwnd(), kCoverAgain, 0, 0);
            return FALSE;
        case kCoverAgain:
            ShowWindow(hwnd(), SW_RESTORE);
            cover();
            return TRUE;
        case WM_DESTROY:
            openWallpaper = nullptr;
            return FALSE;
        }
        return FALSE;
    }

    App &app_;
    MenuBar menu_{WallpaperMenuRows()};
    UniqueBitmap picture_;
    PixelSize image_;
    struct {
        int x = 0, y = 0;
    } offset_; // the scroll position, at natural size
    bool stretched_ = false, asking_ = false, leaving_ = false, sessionEnding_ = false;
    ScrollLayout bars_;
};

} // namespace

void ShowWallpaper(App &app, Skin &skin, HWND owner) {
    WallpaperWindow(app, skin).show(owner, IDD_WALLPAPER);
}

HWND OpenWallpaper() {
    return openWallpaper;
}

} // namespace orvane::ui
