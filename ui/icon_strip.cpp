#include "icon_strip.h"

#include <commctrl.h>
#include <windowsx.h>

#include <vector>

#include "dispatch.h"
#include "dpi.h"
#include "menu.h"
#include "menu_bar.h"
#include "pixels.h"
#include "skin.h"

namespace orvane::ui {

namespace {

// The sizes the icon resources hold.
constexpr int kStoredSizes[] = {16, 20, 24, 32, 48, 64, 96};
constexpr int kHotMargin = 3; // the highlight around an icon, in pixels at 96 DPI

std::vector<std::uint32_t> IconPixels(HICON icon, int size) {
    ICONINFO info{};
    if (!icon || !GetIconInfo(icon, &info))
        return {};
    UniqueBitmap colour(info.hbmColor), mask(info.hbmMask);
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(size) * size);
    BITMAPINFO format{};
    format.bmiHeader = {sizeof format.bmiHeader, size, -size, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    HDC dc = GetDC(nullptr);
    const int rows =
        colour ? GetDIBits(dc, colour.get(), 0, static_cast<UINT>(size), pixels.data(), &format, DIB_RGB_COLORS) : 0;
    ReleaseDC(nullptr, dc);
    if (rows != size)
        return {};
    return pixels;
}

// The image of that size in the icon resource, read where it lies: a 32-bit
// bitmap image needs no icon made of it. Others (the PNG ones) go through the system.
std::vector<std::uint32_t> StoredPixels(int resourceId, int size) {
    const HMODULE module = GetModuleHandleW(nullptr);
    const HRSRC group = FindResourceW(module, MAKEINTRESOURCEW(resourceId), RT_GROUP_ICON);
    const auto directory = group ? static_cast<BYTE *>(LockResource(LoadResource(module, group))) : nullptr;
    const int id = directory ? LookupIconIdFromDirectoryEx(directory, TRUE, size, size, LR_DEFAULTCOLOR) : 0;
    const HRSRC entry = id ? FindResourceW(module, MAKEINTRESOURCEW(id), RT_ICON) : nullptr;
    const auto header =
        entry ? static_cast<const BITMAPINFOHEADER *>(LockResource(LoadResource(module, entry))) : nullptr;
    if (header && SizeofResource(module, entry) >= sizeof *header + 4u * size * size &&
        header->biSize == sizeof *header && header->biBitCount == 32 && header->biWidth == size &&
        header->biHeight == 2 * size) {
        const auto rows = reinterpret_cast<const std::uint32_t *>(header + 1); // bottom row first
        std::vector<std::uint32_t> pixels;
        for (int y = size - 1; y >= 0; --y)
            pixels.insert(pixels.end(), rows + y * size, rows + (y + 1) * size);
        return pixels;
    }
    const UniqueIcon icon(
        static_cast<HICON>(LoadImageW(module, MAKEINTRESOURCEW(resourceId), IMAGE_ICON, size, size, 0)));
    return IconPixels(icon.get(), size);
}

// An icon resource at any size: the nearest larger image it holds, averaged
// down, so it stays sharp at every DPI.
std::vector<std::uint32_t> PixelsAtSize(int resourceId, int size) {
    for (const int stored : kStoredSizes)
        if (stored >= size)
            return ScaleDown(StoredPixels(resourceId, stored), stored, size);
    return StoredPixels(resourceId, size); // larger than any: the system stretches the largest
}

} // namespace

bool IconStrip::create(HWND parent) {
    WNDCLASSEXW wc{};
    wc.style = CS_DBLCLKS;
    wc.hCursor = LoadCursorW(nullptr, IDC_HAND);
    wc.lpszClassName = kIconStripClass;
    registerClass(wc);
    if (!WindowBase::create(0, kIconStripClass, L"", WS_CHILD | WS_TABSTOP | WS_CLIPSIBLINGS, parent))
        return false;
    SetWindowLongPtrW(hwnd(), GWLP_ID, 1);
    focus(0);
    return true;
}

// The strip is one window, so a screen reader hears the icon the keyboard
// reached as the window's name: its tooltip text.
void IconStrip::focus(int index) {
    focused_ = index;
    SetWindowTextW(hwnd(), WithoutAccessMarks(StripIcons()[static_cast<std::size_t>(index)].row.caption).c_str());
    NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, hwnd(), OBJID_CLIENT, CHILDID_SELF);
    InvalidateRect(hwnd(), nullptr, TRUE);
}

// Made while the mouse is over the strip and gone when it leaves: an idle
// tooltip window would stand above the bar in the Z order, where a second
// copy's hand-over walks.
void IconStrip::showTooltips(bool shown) {
    if (!shown || tooltip_) {
        if (!shown)
            tooltip_.reset();
        return;
    }
    TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, hwnd(), 0};
    TrackMouseEvent(&track);
    tooltip_.reset(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0,
                                   0, 0, 0, hwnd(), nullptr, GetModuleHandleW(nullptr), nullptr));
    const auto icons = StripIcons();
    for (int i = 0; i < kIconCount; ++i) {
        const std::wstring tip = WithoutAccessMarks(icons[static_cast<std::size_t>(i)].row.caption);
        TTTOOLINFOW tool{};
        tool.cbSize = sizeof tool;
        tool.uFlags = TTF_SUBCLASS;
        tool.hwnd = hwnd();
        tool.uId = static_cast<UINT_PTR>(i);
        tool.rect = iconRect(i);
        tool.lpszText = const_cast<wchar_t *>(tip.c_str()); // copied by the tooltip
        SendMessageW(tooltip_.get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    }
}

void IconStrip::place(const RECT &strip, const std::array<int, kIconCount> &iconLeft, int iconSize) {
    iconLeft_ = iconLeft;
    iconSize_ = iconSize;
    SetWindowPos(hwnd(), nullptr, strip.left, strip.top, strip.right - strip.left, strip.bottom - strip.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    showTooltips(false); // made anew, with the new places, when the mouse comes back
    InvalidateRect(hwnd(), nullptr, TRUE);
}

void IconStrip::loadIcons() {
    if (loadedSize_ == iconSize_)
        return;
    loadedSize_ = iconSize_;
    sheetDc_.reset();
    sheet_.reset();
    const int size = iconSize_;
    if (size <= 0)
        return;
    BITMAPINFO format{};
    format.bmiHeader = {sizeof format.bmiHeader, size * kIconCount, -size, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void *bits = nullptr;
    sheet_.reset(CreateDIBSection(nullptr, &format, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!sheet_)
        return;
    const auto sheet = static_cast<std::uint32_t *>(bits);
    const auto icons = StripIcons();
    for (int i = 0; i < kIconCount; ++i) {
        const std::wstring_view key = icons[static_cast<std::size_t>(i)].iconKey;
        const auto pixels = PixelsAtSize(kFirstMenuIcon + MenuIconNumber(key), size);
        if (pixels.size() != static_cast<std::size_t>(size) * size)
            continue;
        for (int y = 0; y < size; ++y)
            for (int x = 0; x < size; ++x) {
                // Premultiplied, as blending asks.
                const std::uint32_t p = pixels[static_cast<std::size_t>(y) * size + x], alpha = p >> 24;
                const auto channel = [&](int shift) {
                    return ((p >> shift & 0xFF) * alpha + 127) / 255 << shift;
                };
                sheet[static_cast<std::size_t>(y) * size * kIconCount + i * size + x] =
                    alpha << 24 | channel(16) | channel(8) | channel(0);
            }
    }
    sheetDc_.reset(CreateCompatibleDC(nullptr));
    SelectObject(sheetDc_.get(), sheet_.get());
}

RECT IconStrip::iconRect(int index) const {
    RECT client{};
    GetClientRect(hwnd(), &client);
    const int left = iconLeft_[static_cast<std::size_t>(index)];
    const int top = std::max(0, static_cast<int>(client.bottom - iconSize_) / 2);
    return {left, top, left + iconSize_, top + iconSize_};
}

int IconStrip::iconAt(POINT point) const {
    for (int i = 0; i < kIconCount; ++i) {
        const RECT r = iconRect(i);
        if (PtInRect(&r, point))
            return i;
    }
    return -1;
}

void IconStrip::setHot(int index) {
    if (hot_ == index)
        return;
    hot_ = index;
    InvalidateRect(hwnd(), nullptr, TRUE);
}

void IconStrip::paint(HDC dc) {
    loadIcons();
    const MenuColours colours = skin_.menuColours();
    const int margin = ScaledForWindow(kHotMargin, hwnd());
    const bool showFocus = GetFocus() == hwnd() && keyboardCues_;
    for (int i = 0; i < kIconCount; ++i) {
        RECT r = iconRect(i);
        if (i == hot_ || (showFocus && i == focused_)) {
            // The menu's highlight: the same look for "this is what a click would run".
            RECT cell = r;
            InflateRect(&cell, margin, margin);
            PaintHighlight(dc, cell, colours);
        }
        if (sheetDc_) {
            const BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
            GdiAlphaBlend(dc, r.left, r.top, iconSize_, iconSize_, sheetDc_.get(), i * iconSize_, 0, iconSize_,
                          iconSize_, blend);
        }
    }
}

LRESULT IconStrip::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_ERASEBKGND: {
        // The skin's tiles run on from the bar behind the strip.
        RECT place{};
        GetWindowRect(hwnd(), &place);
        MapWindowPoints(nullptr, GetParent(hwnd()), reinterpret_cast<POINT *>(&place), 1);
        SetBrushOrgEx(reinterpret_cast<HDC>(wParam), -place.left, -place.top, nullptr);
        skin_.paintBackground(hwnd(), reinterpret_cast<HDC>(wParam));
        return TRUE;
    }
    case WM_PAINT: {
        PAINTSTRUCT ps;
        HDC dc = BeginPaint(hwnd(), &ps);
        paint(dc);
        EndPaint(hwnd(), &ps);
        return 0;
    }
    case kSkinChanged:
        InvalidateRect(hwnd(), nullptr, TRUE);
        return 0;
    case kDpiChangedAfterParent:
        loadedSize_ = -1;
        return 0;
    case WM_MOUSEMOVE:
        showTooltips(true);
        setHot(iconAt({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}));
        return 0;
    case WM_MOUSELEAVE:
        showTooltips(false);
        hot_ = -1;
        InvalidateRect(hwnd(), nullptr, TRUE);
        return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        pressed_ = iconAt({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
        keyboardCues_ = false;
        if (pressed_ >= 0)
            SetCapture(hwnd());
        return 0;
    case WM_LBUTTONUP: {
        // A click runs when the button comes up on the icon it went down on.
        const int pressed = std::exchange(pressed_, -1);
        ReleaseCapture();
        if (pressed >= 0 && pressed == iconAt({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)})) {
            focus(pressed);
            run_(pressed);
        }
        return 0;
    }
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS;
    case WM_KEYDOWN: {
        keyboardCues_ = true;
        int next = focused_;
        switch (wParam) {
        case VK_LEFT:
            next = std::max(0, focused_ - 1);
            break;
        case VK_RIGHT:
            next = std::min(kIconCount - 1, focused_ + 1);
            break;
        case VK_HOME:
            next = 0;
            break;
        case VK_END:
            next = kIconCount - 1;
            break;
        case VK_RETURN:
        case VK_SPACE:
            run_(focused_);
            return 0;
        default:
            return 0;
        }
        focus(next);
        return 0;
    }
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        InvalidateRect(hwnd(), nullptr, TRUE);
        return 0;
    }
    return WindowBase::handleMessage(message, wParam, lParam);
}

} // namespace orvane::ui
