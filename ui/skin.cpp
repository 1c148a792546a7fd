#include "skin.h"

#include <algorithm>

namespace orvane::ui {

namespace {

// Enough pixels for a faithful average of any bitmap, however large.
constexpr int kSamplesPerSide = 256;

} // namespace

std::optional<SkinColours> ColoursOfBitmap(HBITMAP bitmap) {
    BITMAP info{};
    if (!GetObjectW(bitmap, sizeof info, &info) || info.bmWidth <= 0 || info.bmHeight <= 0)
        return std::nullopt;
    const int width = info.bmWidth, height = info.bmHeight;
    const int rowStep = std::max(1, height / kSamplesPerSide), columnStep = std::max(1, width / kSamplesPerSide);
    // The format describes the whole bitmap, so the start line counts in it: with
    // a height of one, Wine hands back other lines than the one asked for.
    BITMAPINFO format{};
    format.bmiHeader = {sizeof format.bmiHeader, width, height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    std::vector<std::uint32_t> row(static_cast<std::size_t>(width)), samples;
    HDC dc = GetDC(nullptr);
    for (int y = 0; y < height; y += rowStep) {
        if (!GetDIBits(dc, bitmap, static_cast<UINT>(y), 1, row.data(), &format, DIB_RGB_COLORS))
            continue;
        for (int x = 0; x < width; x += columnStep)
            samples.push_back(row[static_cast<std::size_t>(x)]);
    }
    ReleaseDC(nullptr, dc);
    if (samples.empty())
        return std::nullopt;
    return SkinColoursOf(samples);
}

void FillColour(HDC dc, const RECT &area, Colour colour) {
    SetDCBrushColor(dc, colour);
    FillRect(dc, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void FrameColour(HDC dc, const RECT &area, Colour colour) {
    SetDCBrushColor(dc, colour);
    FrameRect(dc, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void PaintHighlight(HDC dc, const RECT &area, const MenuColours &colours) {
    FillColour(dc, area, colours.highlight);
    FrameColour(dc, area, colours.frame);
}

bool Skin::load(const std::wstring &path) {
    UniqueBitmap bitmap(static_cast<HBITMAP>(
        LoadImageW(nullptr, path.c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION)));
    if (!bitmap)
        return false;
    const auto colours = ColoursOfBitmap(bitmap.get());
    UniqueBrush brush(CreatePatternBrush(bitmap.get()));
    if (!colours || !brush)
        return false;
    bitmap_ = std::move(bitmap);
    brush_ = std::move(brush);
    colours_ = colours;
    return true;
}

void Skin::join(HWND window) {
    if (std::find(windows_.begin(), windows_.end(), window) == windows_.end())
        windows_.push_back(window);
}

void Skin::leave(HWND window) {
    std::erase(windows_, window);
}

void Skin::applyToAll() const {
    // A window may close while it repaints: walk a copy.
    for (HWND window : std::vector<HWND>(windows_)) {
        SendMessageW(window, kSkinChanged, 0, 0);
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_FRAME);
    }
}

void Skin::paintBackground(HWND window, HDC dc) const {
    RECT client{};
    GetClientRect(window, &client);
    FillRect(dc, &client, brush_ ? brush_.get() : GetSysColorBrush(COLOR_3DFACE));
}

HBRUSH Skin::controlColour(UINT message, HDC dc, HWND control) const {
    if (!brush_)
        return nullptr;
    if (message == WM_CTLCOLORDLG)
        return brush_.get();
    wchar_t className[16] = {};
    GetClassNameW(control, className, 16);
    // Edit boxes, read-only ones included, keep the system's colours.
    if (message != WM_CTLCOLORSTATIC || lstrcmpiW(className, L"Edit") == 0)
        return nullptr;
    // The tiles continue behind the label as they run in its parent.
    RECT place{};
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT *>(&place), 2);
    SetBrushOrgEx(dc, -place.left, -place.top, nullptr);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, colours_->fore);
    return brush_.get();
}

} // namespace orvane::ui
