// What soak.exe and handle_count.dll, loaded into orvane.exe, share to count
// the program's GDI and USER objects from inside it.
#pragma once

#include <windows.h>

#include "hook_channel.h"

namespace orvane::bench {

// Live objects of the process, as its own calls see them; -1 for a kind that cannot be counted.
struct HandleCounts {
    long gdi = 0, menus = 0, icons = 0, accelerators = 0;
};

inline constexpr testsupport::HookChannelNames kCountChannel{L"Orvane.Soak.CountHandles", L"Local\\Orvane.Soak.Counts",
                                                             L"Local\\Orvane.Soak.Counted", sizeof(HandleCounts)};

} // namespace orvane::bench
