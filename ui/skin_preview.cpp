#include "skin_preview.h"

#include <algorithm>
#include <iterator>

namespace orvane::ui {

namespace {

void Write(HDC dc, const wchar_t *text, RECT area, Colour colour, UINT format = DT_CENTER) {
    SetTextColor(dc, colour);
    DrawTextW(dc, text, -1, &area, format | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

int TextWidth(HDC dc, const wchar_t *text) {
    SIZE size{};
    GetTextExtentPoint32W(dc, text, lstrlenW(text), &size);
    return size.cx;
}

// The bar with its middle item open, as the skin's colours would paint them.
void DrawMenuSample(HDC dc, const RECT &inside, const MenuColours &menu, int pad, int row) {
    const RECT bar{inside.left, inside.top, inside.right, inside.top + row};
    FillColour(dc, bar, menu.barBack);
    RECT open{};
    int x = bar.left + pad / 2;
    const wchar_t *captions[] = {L"File", L"Edit", L"Varia"};
    for (const wchar_t *caption : captions) {
        const RECT item{x, bar.top, x + TextWidth(dc, caption) + 2 * pad, bar.bottom};
        const bool highlighted = caption == captions[1];
        if (highlighted) {
            PaintHighlight(dc, item, menu);
            open = item;
        }
        Write(dc, caption, item, highlighted ? menu.highlightText : menu.text);
        x = item.right;
    }
    const wchar_t *entries[] = {L"Notes", L"Outliner"};
    int width = 0;
    for (const wchar_t *entry : entries)
        width = std::max(width, TextWidth(dc, entry));
    const RECT box{open.left, bar.bottom, open.left + width + 4 * pad, bar.bottom + 2 * row + pad};
    FillColour(dc, box, menu.menuBack);
    FrameColour(dc, box, menu.separator);
    for (int i = 0; i < static_cast<int>(std::size(entries)); ++i) {
        const int top = box.top + i * (row + pad);
        Write(dc, entries[i], {box.left + 2 * pad, top, box.right, top + row}, menu.text, DT_LEFT);
    }
    FillColour(dc, {box.left + pad / 2, box.top + row + pad / 2, box.right - pad / 2, box.top + row + pad / 2 + 1},
               menu.separator);
}

} // namespace

void DrawSkinPreview(const DRAWITEMSTRUCT &item, const Skin &skin, HFONT font) {
    HDC dc = item.hDC;
    const HGDIOBJ oldFont = SelectObject(dc, font);
    SetBkMode(dc, TRANSPARENT);
    RECT inside = item.rcItem;
    if (skin.colours())
        skin.paintBackground(item.hwndItem, dc);
    DrawEdge(dc, &inside, EDGE_SUNKEN, BF_RECT | BF_ADJUST);
    if (!skin.colours()) {
        FillRect(dc, &inside, GetSysColorBrush(COLOR_3DFACE));
        Write(dc, L"No preview", inside, GetSysColor(COLOR_GRAYTEXT));
    } else {
        // Sizes from the font, so the sample scales with the DPI as the real menu does.
        TEXTMETRICW metrics{};
        GetTextMetricsW(dc, &metrics);
        const int pad = metrics.tmAveCharWidth, row = metrics.tmHeight + pad;
        DrawMenuSample(dc, inside, skin.menuColours(), pad, row);
        const RECT line{inside.left + pad, inside.bottom - row - pad, inside.right, inside.bottom - pad};
        Write(dc, L"Text on this skin", line, skin.colours()->fore, DT_LEFT);
    }
    SelectObject(dc, oldFont);
}

} // namespace orvane::ui
