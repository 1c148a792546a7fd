// What soak.exe and handle_count.dll, loaded into orvane.exe, share to count
// the program's GDI and USER objects from inside it.
#pragma once

#include <windows.h>

namespace orvane::bench {

inline constexpr wchar_t kCountMessage[] = L"Orvane.Soak.CountHandles";
inline constexpr wchar_t kCountsName[] = L"Local\\Orvane.Soak.Counts";
inline constexpr wchar_t kCountedName[] = L"Local\\Orvane.Soak.Counted";

// Live objects of the process, as its own calls see them; -1 for a kind that cannot be counted.
struct HandleCounts {
    long gdi = 0, menus = 0, icons = 0, accelerators = 0;
};

} // namespace orvane::bench
