#include "program_windows.h"

#include <cstdio>

#include "resource.h"
#include "wallpaper.h"
#include "win_support.h"

namespace orvane::e2e {

using namespace testsupport;

namespace {

constexpr wchar_t kPopupMenuClass[] = L"#32768";

// An item of the custom programs window's popup menu, from the bar.
HWND FromCustomPopup(const OrvaneProcess &orvane, HWND bar, WORD letter, const wchar_t *title) {
    HWND custom = FromMenu(orvane, bar, L"C&ustom programs", L"Custom programs");
    return custom ? FromPopupMenu(orvane, custom, letter, title) : nullptr;
}

HWND ListEditor(const OrvaneProcess &orvane, HWND bar) {
    return FromCustomPopup(orvane, bar, 'E', L"Custom programs ( *");
}

// Opens the window titled so from the bar's menu item with this caption.
#define FROM_MENU(caption, title)                                                                                      \
    [](const OrvaneProcess &o, HWND bar) {                                                                             \
        return FromMenu(o, bar, caption, title);                                                                       \
    }

// Esc in the window, then in each window it was opened from, down to the bar.
bool EscapeToBar(const OrvaneProcess &orvane, HWND window) {
    while (window) {
        HWND owner = GetWindow(window, GW_OWNER);
        if (!EscapeFrom(window)) {
            std::fprintf(stderr, "still open: %s\n", Utf8(TextOf(window)).c_str());
            return false;
        }
        window = owner == orvane.waitForMainWindow(0ms) ? nullptr : owner;
    }
    return true;
}

// Esc asks for the return password; none being set, an empty answer lets the user out.
bool LeaveWallpaper(const OrvaneProcess &orvane, HWND window) {
    PressKeys(window, {VK_ESCAPE});
    return AnswerPassword(orvane.id(), L"") && Gone(window);
}

} // namespace

HWND FromMenu(const OrvaneProcess &orvane, HWND window, const wchar_t *caption, const std::wstring &title) {
    return window && PickMenuItem(window, caption) ? WaitForDialogTitled(orvane.id(), title) : nullptr;
}

HWND FromPopupMenu(const OrvaneProcess &orvane, HWND window, WORD letter, const std::wstring &title) {
    PressKeys(window, {VK_SHIFT, VK_F10});
    if (!FindProcessWindow(orvane.id(), kPopupMenuClass, nullptr, 5s))
        return nullptr;
    // The letter again while the menu stays open: one typed as it appears can miss it.
    for (int press = 0; press < 3 && FindProcessWindow(orvane.id(), kPopupMenuClass); ++press) {
        PressKeys(window, {letter});
        if (HWND dialog = WaitForDialogTitled(orvane.id(), title, 2s))
            return dialog;
    }
    return WaitForDialogTitled(orvane.id(), title);
}

// clang-format off
const std::vector<ProgramWindow> kProgramWindows = {
    {L"about", FROM_MENU(L"&About this program", L"About Orvane"), EscapeToBar},
    {L"locations", FROM_MENU(L"&Location of programs", L"Location of programs"), EscapeToBar},
    {L"your program", FROM_MENU(L"Load your program", L"Load your program"), EscapeToBar},
    {L"menu font", FROM_MENU(L"Set me&nu font", L"Font"), EscapeToBar},
    {L"input box", [](const OrvaneProcess& o, HWND bar) {
        HWND box = FromMenu(o, bar, L"Web interface U&RL", L"Orvane");
        return box && GetDlgItem(box, IDC_BOX_TEXT) ? box : nullptr; }, EscapeToBar},  // not a message box
    {L"skin chooser", FROM_MENU(L"Change &skin", L"Change skin"), EscapeToBar},
    // The bar's clock item starts the suite's clock program; this window is the custom programs' one.
    {L"clock", [](const OrvaneProcess& o, HWND bar) {
        HWND custom = FromMenu(o, bar, L"C&ustom programs", L"Custom programs");
        if (custom) PressButton(custom, GetDlgCtrlID(FindWindowExW(custom, nullptr, L"Button", L"&Clock")));
        return custom ? WaitForDialogTitled(o.id(), L"Clock") : nullptr; }, EscapeToBar},
    {L"custom programs", FROM_MENU(L"C&ustom programs", L"Custom programs"), EscapeToBar},
    {L"list editor", ListEditor, EscapeToBar},
    {L"entry", [](const OrvaneProcess& o, HWND bar) {
        HWND editor = ListEditor(o, bar);
        if (editor) PressButton(editor, IDC_GET_PROGRAM);
        return editor ? WaitForDialogTitled(o.id(), L"Program and startup folder") : nullptr; }, EscapeToBar},
    {L"file information", [](const OrvaneProcess& o, HWND bar) { return FromCustomPopup(o, bar, 'I', L"File information"); },
     EscapeToBar},
    {L"web list", FROM_MENU(L"Open &web list", L"Website list*"), EscapeToBar},
    {L"wallpaper", FROM_MENU(L"Wa&llpaper", L"Wallpaper"), LeaveWallpaper},
    {L"palette", [](const OrvaneProcess& o, HWND bar) { return SummonPalette(o.id(), bar); },
     [](const OrvaneProcess&, HWND palette) {  // hidden, kept for the next summon
        PressKeys(palette, {VK_ESCAPE});
        return WaitFor([&] { return !IsWindowVisible(palette); }, 5s); }},
};
// clang-format on

HWND SummonPalette(DWORD processId, HWND window) {
    PressKeys(window, {VK_CONTROL, VK_MENU, VK_SPACE});
    return FindProcessWindow(processId, L"Orvane.Palette", nullptr, 5s); // only a shown one is found
}

bool AnswerPassword(DWORD processId, const std::wstring &typed) {
    HWND box = WaitForDialogTitled(processId, L"Orvane");
    if (!box || ControlText(box, IDC_PROMPT) != kPasswordPrompt)
        return false;
    SetControlText(box, IDC_BOX_TEXT, typed);
    PressButton(box, IDOK);
    return Gone(box);
}

void PrepareForEveryWindow(const ProgramFolder &folder) {
    const std::wstring at = folder.path() + L"\\";
    WriteBytes(at + L"Programs.lst",
               CustomListFile({{"Notes", "C:\\windows\\notepad.exe", "C:\\windows"}, {"Probe", "C:\\probe.exe", ""}}));
    WriteBytes(at + L"Sites.lst", WebListFile({{"Alpha", "http://a", "1"}, {"Beta", "http://b", "0"}}));
    CopyInto(EnvironmentPath(L"ORVANE_PICTURES") + L"\\Wallpaper_Wide.png", folder.path());
    WriteBytes(folder.settingsFile(), SettingsText({{13, "480"},
                                                    {20, Utf8(folder.path())},
                                                    {38, "1"},
                                                    {39, "19200"},
                                                    {28, Utf8(at + L"Programs.lst")},
                                                    {30, Utf8(at + L"Wallpaper_Wide.png")},
                                                    {33, Utf8(at + L"Sites.lst")}}));
}

std::string CustomListFile(const std::vector<CustomEntry> &entries) {
    std::string text;
    for (std::string CustomEntry::*field : {&CustomEntry::name, &CustomEntry::program, &CustomEntry::folder})
        for (std::size_t i = 0; i < 64; ++i)
            text += (i < entries.size() ? entries[i].*field : "") + "\r\n";
    return text;
}

std::string WebListFile(const std::vector<std::array<std::string, 3>> &rows, const std::string &groups) {
    std::string text;
    for (const auto &row : rows)
        text += row[0] + "\r\n" + row[1] + "\r\n" + row[2] + "\r\n";
    return text + "***\r\n" + groups + "\r\n";
}

} // namespace orvane::e2e
