// menu_hook.dll: a menu can only be read inside the process that owns it, so the harness hooks the program's thread
// with this DLL. On the registered message it writes the window's menu, one item a line
// ("depth<TAB>id<TAB>type<TAB>text"), into shared memory and signals that it is done.
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
    static const UINT request = RegisterWindowMessageW(orvane::e2e::kReadMenuMessage);
    auto *message = reinterpret_cast<MSG *>(lParam);
    if (code == HC_ACTION && wParam == PM_REMOVE && message->message == request) {
        std::wstring dump;
        Walk(GetMenu(message->hwnd), 0, dump);
        dump.resize(std::min(dump.size(), orvane::e2e::kMenuDumpChars - 1));
        HANDLE map = OpenFileMappingW(FILE_MAP_WRITE, FALSE, orvane::e2e::kMenuDumpName);
        if (auto *view = map ? static_cast<wchar_t *>(MapViewOfFile(map, FILE_MAP_WRITE, 0, 0, 0)) : nullptr) {
            std::copy(dump.c_str(), dump.c_str() + dump.size() + 1, view);
            UnmapViewOfFile(view);
        }
        if (map)
            CloseHandle(map);
        if (HANDLE done = OpenEventW(EVENT_MODIFY_STATE, FALSE, orvane::e2e::kMenuDoneName)) {
            SetEvent(done);
            CloseHandle(done);
        }
        message->message = WM_NULL;
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}
