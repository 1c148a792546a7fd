// A skin shown before it is applied: its tiles, a piece of the menu bar in
// the colours it would give, and a line of text in its fore colour.
#pragma once

#include <windows.h>

#include "skin.h"

namespace orvane::ui {

// Draws into an owner-drawn control; a skin without a bitmap says there is no preview.
void DrawSkinPreview(const DRAWITEMSTRUCT &item, const Skin &skin, HFONT font);

} // namespace orvane::ui
