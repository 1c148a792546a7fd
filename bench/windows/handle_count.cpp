// handle_count.dll: Wine 8's GetGuiResources is a stub that answers 0, so
// soak.exe hooks orvane.exe's thread with this DLL, which counts the objects
// by asking about every handle value. Wine takes a handle's index alone
// (upper word 0) for the live object at that index:
// GDI objects are indexed 0 to 0xFFFF, USER objects (menus, icons and
// cursors, accelerator tables) from 0x20 in steps of 2. None of the calls
// below creates an object. On Windows, where indexes alone are not taken,
// GetGuiResources gives the counts instead.
#include "handle_count.h"

namespace {

using orvane::bench::HandleCounts;

HandleCounts Count() {
    using IconSize = BOOL(WINAPI *)(HICON, UINT, LONG *, LONG *);
    static const auto iconSize = reinterpret_cast<IconSize>(
        reinterpret_cast<void *>(GetProcAddress(GetModuleHandleW(L"win32u.dll"), "NtUserGetIconSize")));
    HandleCounts counts;
    const auto handle = [](unsigned index) {
        return reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(index));
    };
    for (unsigned index = 0; index < 0x10000; ++index)
        counts.gdi += GetObjectType(handle(index)) != 0;
    for (unsigned index = 0x20; index < 0x10000; index += 2) {
        LONG width = 0, height = 0;
        counts.menus += IsMenu(static_cast<HMENU>(handle(index)));
        counts.icons += iconSize && iconSize(static_cast<HICON>(handle(index)), 0, &width, &height);
        counts.accelerators += CopyAcceleratorTableW(static_cast<HACCEL>(handle(index)), nullptr, 0) > 0;
    }
    if (!iconSize)
        counts.icons = -1;
    return counts;
}

} // namespace

extern "C" __declspec(dllexport) LRESULT CALLBACK CountHandlesHook(int code, WPARAM wParam, LPARAM lParam) {
    if (orvane::testsupport::TakeQuestion(code, wParam, lParam, orvane::bench::kCountChannel)) {
        const HandleCounts counts = Count();
        orvane::testsupport::Answer(orvane::bench::kCountChannel, &counts, sizeof counts);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}
