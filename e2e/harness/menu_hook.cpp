// menu_hook.dll: a menu can only be read inside the process that owns it, so the harness hooks the program's thread
// with this DLL. Asked, it answers with the window's menu, one item a line ("depth<TAB>id<TAB>type<TAB>text").
#include "orvane_process.h"

#include <algorithm>
#include <string>

namespace {

void Walk(HMENU menu, int depth, std::wstring &out) {
    for (int i = 0, count = GetMenuItemCount(menu); i < count; ++i) {
        wchar_t text[512] = {};
        MENUITEMINFOW item{};
        item.cbSize = sizeof item;
        item.fMask = MIIM_FTYPE | MIIM_ID | MIIM_STRING | MIIM_SUBMENU;
        item.dwTypeData = text;
        item.cch = 511;
        if (!GetMenuItemInfoW(menu, static_cast<UINT>(i), TRUE, &item))
            continue;
        out += std::to_wstring(depth) + L"\t" + std::to_wstring(item.hSubMenu ? 0u : item.wID) + L"\t" +
               std::to_wstring(item.fType) + L"\t" + text + L"\n";
        if (item.hSubMenu)
            Walk(item.hSubMenu, depth + 1, out);
    }
}

} // namespace

extern "C" __declspec(dllexport) LRESULT CALLBACK ReadMenuHook(int code, WPARAM wParam, LPARAM lParam) {
    using orvane::e2e::kMenuChannel;
    if (orvane::testsupport::TakeQuestion(code, wParam, lParam, kMenuChannel)) {
        std::wstring dump;
        Walk(GetMenu(reinterpret_cast<MSG *>(lParam)->hwnd), 0, dump);
        dump.resize(std::min(dump.size(), kMenuChannel.bytes / sizeof(wchar_t) - 1));
        orvane::testsupport::Answer(kMenuChannel, dump.c_str(), (dump.size() + 1) * sizeof(wchar_t));
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}
