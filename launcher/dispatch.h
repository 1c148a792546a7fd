// Which command a menu caption stands for. A click is matched by the clicked
// item's caption, exactly and in exact case, against the rows in order; the
// first equal caption wins. Captions in no row do nothing.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "catalogue.h"

namespace orvane {

enum class Command : std::uint8_t {
    SuiteTool,
    WindowsExplorer,
    Exit,
    Word,
    PowerPoint,
    Excel,
    Access,
    Publisher,
    ProgramLocations,
    LoadDeadlines,
    GetDeadlines,
    LoadAddresses,
    GetAddresses,
    About,
    CustomBrowser,
    GetCustomBrowser,
    WebmailUrl,
    YourProgram,
    ToggleDesktop,
    ScreenWidth,
    IncreaseImageSize,
    DecreaseImageSize,
    ChangeSkin,
    MenuFont,
    CustomPrograms,
    Wallpaper,
    WebList,
    TopBottom,
    Icons,
    OpenWebmail, // the stored address, without asking: the strip's alone
};

struct DispatchRow {
    std::wstring_view caption;
    Command command;
    Tool tool = Tool::Count; // the tool a SuiteTool row starts
};

std::span<const DispatchRow> DispatchRows();

// An icon of the strip: the command of a menu caption (its tooltip, without
// the "&"), and its picture, a menu icon key.
struct StripIcon {
    DispatchRow row;
    std::wstring_view iconKey;
};

// The strip's 26 icons, left to right.
std::span<const StripIcon> StripIcons();

// The first row whose caption equals the given one; nothing when none does.
const DispatchRow *FindDispatchRow(std::wstring_view caption, std::span<const DispatchRow> rows = DispatchRows());

} // namespace orvane
