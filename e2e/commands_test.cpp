// The menu bar and its commands, used as a user would: menus, shortcuts and
// dialogs of a running orvane.exe, with probe.exe standing in for the programs it starts.
#include <gtest/gtest.h>

#include <map>

#include "dpi.h"
#include "layout.h"
#include "menu.h"
#include "program_test.h"
#include "resource.h"

namespace orvane::e2e {
namespace {

using namespace testsupport;

class Commands : public ProgramTest {
protected:
    // The bar on these settings, skins chosen from its folder, which holds a folder "My Office" and the named probes.
    HWND start(std::map<int, std::string> settings, std::initializer_list<const wchar_t *> probes = {}) {
        CreateDirectoryW(file(L"My Office").c_str(), nullptr);
        for (const wchar_t *name : probes)
            CopyInto(EnvironmentPath(L"ORVANE_PROBE"), folder.path(), name);
        settings.emplace(20, Utf8(folder.path()));
        return ProgramTest::start(settings);
    }
    static RECT Rect(HWND window) {
        RECT r{};
        GetWindowRect(window, &r);
        return r;
    }
};

TEST_F(Commands, TheMenuShowsTheTableAndAProgramNotFoundIsReportedAndKept) {
    HWND bar = start({});
    ASSERT_NE(bar, nullptr);
    std::vector<std::wstring> expected, shown;
    for (const MenuRow &row : MainMenuRows()) { // every item draws itself, in the skin's colours
        const std::wstring shortcut = ShortcutText(row.shortcut);
        expected.push_back(std::wstring(row.parentKey.empty() ? L"bar drawn " : L"item drawn ") +
                           (row.isSeparator() ? L"-" : std::wstring(row.caption)) +
                           (shortcut.empty() ? L"" : L"\t" + shortcut));
    }
    for (const MenuItem &item : ReadMenu(bar))
        shown.push_back(std::wstring(item.depth ? L"item " : L"bar ") + (item.type & MFT_OWNERDRAW ? L"drawn " : L"") +
                        (item.type & MFT_SEPARATOR ? L"-" : item.text));
    EXPECT_EQ(shown, expected);

    PressKeys(bar, {VK_F9}); // "Load your program"
    HWND dialog = WaitForDialogTitled(orvane->id(), L"Load your program");
    ASSERT_NE(dialog, nullptr);
    SetControlText(dialog, IDC_PROGRAM, file(L"missing.exe"));
    PressButton(dialog, IDOK);
    ASSERT_TRUE(AnswerMessage(orvane->id(), L"Cannot find this program:\r\n\r\n" + file(L"missing.exe")));
    EXPECT_TRUE(IsWindowVisible(dialog)) << "stays open";
    ASSERT_TRUE(EscapeFrom(dialog));
    EXPECT_EQ(closeAndReadSettings().at(28), path(L"missing.exe"));
}

TEST_F(Commands, SuiteToolsBesideTheProgramStartInItsFolderFromAnAccessLetterAndWithADocumentPastMaxPath) {
    const std::wstring deep = folder.path() + L"\\" + std::wstring(120, L'd') + L"\\" + std::wstring(120, L'e');
    HWND bar = start({{3, Utf8(deep) + "\\deadlines.txt"}}, {L"TS_Files.exe", L"TS_ScratchPad.exe"});
    ASSERT_NE(bar, nullptr);
    CreateDirectoryW((L"\\\\?\\" + deep.substr(0, deep.rfind(L'\\'))).c_str(), nullptr);
    CreateDirectoryW((L"\\\\?\\" + deep).c_str(), nullptr);
    ASSERT_TRUE(WriteBytes(L"\\\\?\\" + deep + L"\\deadlines.txt", "x"));
    PressKeys(bar, {VK_MENU, 'F'}); // the File menu, then its item's access letter
    Sleep(300);
    PressKeys(bar, {'F'});
    const ProbeRecord started = ReadProbeLog(file(L"probe.log"), 1).at(0);
    EXPECT_EQ(std::pair(started.commandLine, started.folder),
              std::pair("\"" + path(L"TS_Files.exe") + "\"", Utf8(folder.path())));
    ASSERT_TRUE(PickMenuItem(bar, L"Load &Deadlines file"));
    EXPECT_EQ(ReadProbeLog(file(L"probe.log"), 2).at(1).commandLine,
              "\"" + path(L"TS_ScratchPad.exe") + "\" " + Utf8(deep) + "\\deadlines.txt");
}

TEST_F(Commands, WordStartsExcelIsReportedMissingAndWebmailOpensTheAddressGivenAndKeepsIt) {
    HWND bar =
        start({{4, "https://old.example.org"}, {18, path(L"My Office\\WINWORD.EXE")}, {21, path(L"browser.exe")}},
              {L"My Office\\WINWORD.EXE", L"browser.exe"});
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(PickMenuItem(bar, L"&Word")); // its path has a blank and is not quoted
    EXPECT_EQ(ReadProbeLog(file(L"My Office\\probe.log"), 1).at(0).commandLine, path(L"My Office\\WINWORD.EXE"));
    ASSERT_TRUE(PickMenuItem(bar, L"E&xcel"));
    ASSERT_TRUE(AnswerMessage(orvane->id(), L"Cannot locate the following program/file:\r\n\r\nC:\\Program "
                                            L"Files\\\\Microsoft Office\\Office\\EXCEL.EXE\r\n\r\n"));

    HWND box = FromMenu(*orvane, bar, L"Web interface U&RL", L"Orvane");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(std::pair(ControlText(box, IDC_PROMPT), ControlText(box, IDC_BOX_TEXT)),
              std::pair(std::wstring(L"Enter URL for webmail interface"), std::wstring(L"https://old.example.org")));
    SetControlText(box, IDC_BOX_TEXT, L"https://mail.example.org/inbox");
    PressButton(box, IDOK);
    EXPECT_EQ(ReadProbeLog(file(L"probe.log"), 1).at(0).commandLine,
              "\"" + path(L"browser.exe") + "\" https://mail.example.org/inbox");
    EXPECT_EQ(closeAndReadSettings().at(3), "https://mail.example.org/inbox");
}

TEST_F(Commands, FileDialogsFillOrKeepSettingsAndAltQEndsTheProgram) {
    HWND bar = start({{3, "C:\\Old\\Deadlines.vrt"}}, {L"browser.exe"});
    ASSERT_NE(bar, nullptr);
    HWND dialog = FromMenu(*orvane, bar, L"Get c&ustom browser", L"Get custom browser");
    ASSERT_TRUE(AnswerFileDialog(dialog, file(L"browser.exe")));
    ASSERT_TRUE(Gone(dialog, 10s));
    ASSERT_NE(dialog = FromMenu(*orvane, bar, L"&Get Deadlines file", L"Specify Deadlines file"), nullptr);
    PressButton(dialog, IDCANCEL);
    ASSERT_TRUE(Gone(dialog, 10s));
    PressKeys(bar, {VK_MENU, 'Q'});
    ASSERT_EQ(orvane->waitForExit(), 0u) << "Alt+Q";
    const auto settings = SplitCrLf(ReadBytes(folder.settingsFile()));
    EXPECT_EQ(std::pair(settings.at(2), settings.at(20)),
              std::pair(std::string("C:\\Old\\Deadlines.vrt"), path(L"browser.exe")));
}

TEST_F(Commands, LayoutCommandsReshapeTheBarInTwipsAndWithinTheWorkArea) {
    HWND bar = start({{13, "200"}, {38, "1"}, {39, "15000"}});
    ASSERT_NE(bar, nullptr);
    const int dpi = static_cast<int>(orvane::ui::WindowDpi(bar));
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    const auto pick = [&](const wchar_t *caption) {
        const RECT before = Rect(bar);
        EXPECT_TRUE(PickMenuItem(bar, caption)) << caption;
        WaitFor(
            [&] {
                const RECT now = Rect(bar);
                return !EqualRect(&now, &before);
            },
            5s);
        return Rect(bar);
    };
    const RECT start = pick(L"&Increase image size");
    EXPECT_NEAR(start.bottom - start.top, MulDiv(1400, dpi, 1440), 1);
    EXPECT_EQ(pick(L"&Icons").bottom - start.top, MulDiv(1020, dpi, 1440)) << "the menu bar alone";
    pick(L"&Icons");
    EXPECT_NEAR(pick(L"Top/&bottom").bottom, work.bottom, 1);
    pick(L"Top/&bottom");
    const RECT wide = pick(L"Use screen &width");
    EXPECT_EQ(std::pair(wide.left, wide.right), std::pair(work.left, work.right));
    const auto settings = closeAndReadSettings();
    EXPECT_EQ(settings.at(12), "240");
    EXPECT_NEAR(std::stoi(settings.at(38)), MulDiv(work.right - work.left, 1440, dpi), 15) << "the width followed";
}

TEST_F(Commands, AClickOnAnIconRunsItsCommandAndABadSkinGivesWayToTheDefaultUntilADarkOneIsChosenAndKept) {
    HWND bar = start({{13, "480"}, {18, path(L"WINWORD.EXE")}, {19, path(L"Skin_Gone.bmp")}, {38, "1"}, {39, "19200"}},
                     {L"WINWORD.EXE"});
    ASSERT_NE(bar, nullptr);
    HWND strip = FindWindowExW(bar, nullptr, L"Orvane.IconStrip", nullptr);
    ASSERT_TRUE(strip && IsWindowVisible(strip));
    // Word's icon, where the layout puts it: from the window's left edge, midway down the strip.
    const int dpi = static_cast<int>(orvane::ui::WindowDpi(bar));
    const RECT window = Rect(bar), band = Rect(strip);
    const double left = LayStrip(MulDiv(window.right - window.left, 1440, dpi), 0).iconLeft[10];
    ClickAt({window.left + static_cast<int>(left * dpi / 1440) + MulDiv(240, dpi, 1440), (band.top + band.bottom) / 2});
    EXPECT_EQ(ReadProbeLog(file(L"probe.log"), 1).at(0).commandLine, path(L"WINWORD.EXE"));

    // The first item of the menu bar, just above the client area, left of its caption.
    POINT item{GetSystemMetrics(SM_CXEDGE), -GetSystemMetrics(SM_CYMENU) / 2};
    ClientToScreen(bar, &item);
    const auto light = [&] {
        const COLORREF c = ScreenColour(item);
        return GetRValue(c) + GetGValue(c) + GetBValue(c) >= 384;
    };
    EXPECT_TRUE(Becomes(true, light)) << "the default skin is light";
    HWND chooser = FromMenu(*orvane, bar, L"Change &skin", L"Change skin");
    ASSERT_NE(chooser, nullptr);
    EXPECT_EQ(ControlText(chooser, IDC_SKIN_FOLDER), folder.path());
    EXPECT_EQ(SendMessageW(GetDlgItem(chooser, IDC_SKIN_FILES), LB_GETCURSEL, 0, 0), 0) << "Skin_Alba.bmp in use";
    for (WORD key : {VK_END, VK_RETURN})
        PressKeys(chooser, {key}); // Skin_Slate.bmp, last of the four
    EXPECT_TRUE(Becomes(false, light)) << "the menu bar takes the dark skin's colours";
    ASSERT_TRUE(EscapeFrom(chooser));
    EXPECT_EQ(closeAndReadSettings().at(18), path(L"Skin_Slate.bmp"));
}

} // namespace
} // namespace orvane::e2e
