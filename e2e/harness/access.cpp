// A keyboard or screen-reader user's view of a window, read from outside it.
#include "orvane_process.h"

#include <commctrl.h>

#include <algorithm>
#include <cwctype>
#include <map>

#include "win_support.h"

namespace orvane::e2e {

using namespace testsupport;

namespace {

std::wstring ClassOf(HWND window) {
    wchar_t name[64] = {};
    return {name, std::size_t(GetClassNameW(window, name, 64))};
}

// The visible controls inside the window, at any depth.
std::vector<HWND> VisibleControls(HWND window) {
    std::vector<HWND> controls;
    EnumChildWindows(
        window,
        [](HWND control, LPARAM found) {
            if (IsWindowVisible(control))
                reinterpret_cast<std::vector<HWND> *>(found)->push_back(control);
            return TRUE;
        },
        LPARAM(&controls));
    return controls;
}

// The letter after a single "&", upper-cased; 0 when there is none.
wchar_t AccessKey(const std::wstring &text) {
    for (std::size_t at = 0; (at = text.find(L'&', at)) != std::wstring::npos && at + 1 < text.size(); at += 2)
        if (text[at + 1] != L'&')
            return static_cast<wchar_t>(std::towupper(text[at + 1]));
    return 0;
}

} // namespace

std::vector<std::wstring> AccessKeyClashes(HWND window) {
    // The menu bar's items share the Alt keys with the controls; each menu's items have their own.
    std::map<int, std::vector<std::wstring>> menus; // by the index of the item that opens it, -1 the bar
    std::vector<int> openers{-1};
    const std::vector<MenuItem> items = GetMenu(window) ? ReadMenu(window) : std::vector<MenuItem>{};
    for (std::size_t i = 0; i < items.size(); ++i) {
        openers.resize(static_cast<std::size_t>(items[i].depth) + 1);
        menus[openers.back()].push_back(items[i].text.substr(0, items[i].text.find(L'\t')));
        openers.push_back(static_cast<int>(i));
    }
    for (HWND control : VisibleControls(window))
        if (ClassOf(control) != L"Edit" && ClassOf(control) != WC_LISTVIEWW)
            menus[-1].push_back(TextOf(control));
    std::vector<std::wstring> clashes; // texts that carry one key among several, as "K: text, text"
    for (const auto &[opener, texts] : menus) {
        std::map<wchar_t, std::pair<int, std::wstring>> carriers; // how many, and their texts
        for (const std::wstring &text : texts)
            if (const wchar_t key = AccessKey(text)) {
                ++carriers[key].first;
                carriers[key].second += L" " + text;
            }
        for (const auto &[key, carrying] : carriers)
            if (carrying.first > 1)
                clashes.push_back(std::wstring{key, L':'} + carrying.second);
    }
    return clashes;
}

std::vector<std::wstring> UnnamedControls(HWND window) {
    std::vector<std::wstring> unnamed;
    for (HWND control : VisibleControls(window)) {
        const std::wstring type = ClassOf(control);
        const bool frame = (GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
        if (((type == L"Button" && !frame) || type == L"Orvane.IconStrip") && TextOf(control).empty())
            unnamed.push_back(type + L" " + std::to_wstring(GetDlgCtrlID(control)));
        if (type == WC_LISTVIEWW)
            for (const std::wstring &title : ListViewColumns(control))
                if (title.empty())
                    unnamed.push_back(L"column of list " + std::to_wstring(GetDlgCtrlID(control)));
    }
    return unnamed;
}

HWND FocusOf(HWND window) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info) ? info.hwndFocus : nullptr;
}

std::vector<FocusStop> TabCycle(HWND window) {
    const auto stop = [&](HWND control) {
        FocusStop at{control, {}, IsWindowVisible(control) != FALSE};
        GetWindowRect(control, &at.place);
        RECT shown = at.place;
        for (HWND parent = GetParent(control); parent && at.seen; parent = GetParent(parent)) {
            RECT view{};
            GetClientRect(parent, &view);
            MapWindowPoints(parent, nullptr, reinterpret_cast<POINT *>(&view), 2);
            at.seen = IntersectRect(&shown, &shown, &view) != FALSE;
            if (parent == window)
                break;
        }
        return at;
    };
    std::vector<FocusStop> visited{stop(FocusOf(window))};
    while (visited.size() < 300 && IsWindow(window)) {
        PressKeys(window, {VK_TAB});
        // One stop alone keeps the focus where it is.
        if (!WaitFor(
                [&] {
                    return FocusOf(window) != visited.back().control;
                },
                1s))
            break;
        const HWND now = FocusOf(window);
        if (std::ranges::find(visited, now, &FocusStop::control) != visited.end())
            break;
        FocusStop at;
        WaitFor(
            [&] {
                return (at = stop(now)).seen;
            },
            1s); // a panel scrolls its new focus into view
        visited.push_back(at);
    }
    return visited;
}

} // namespace orvane::e2e
