// The menu bar and its commands, used as a user would: menus, shortcuts and
// dialogs of a running orvane.exe, with probe.exe standing in for the programs it starts.
#include <gtest/gtest.h>

#include <map>
#include <memory>

#include "dpi.h"
#include "layout.h"
#include "menu.h"
#include "orvane_process.h"
#include "resource.h"
#include "win_support.h"

namespace orvane::e2e {
namespace {

using namespace testsupport;

class Commands : public ::testing::Test {
protected:
    // A program folder with the given settings and the probe under the given names.
    HWND start(const std::map<int, std::string>& settings, std::initializer_list<const wchar_t*> probes = {}) {
        CreateDirectoryW((folder.path() + L"\\My Office").c_str(), nullptr);
        for (const wchar_t* name : probes) CopyInto(EnvironmentPath(L"ORVANE_PROBE"), folder.path(), name);
        WriteBytes(folder.settingsFile(), SettingsText(settings));
        orvane = std::make_unique<OrvaneProcess>(folder);
        return orvane->waitForMainWindow();
    }
    std::vector<std::string> closeAndReadSettings() {
        orvane->close();
        EXPECT_EQ(orvane->waitForExit(), 0u);
        return SplitCrLf(ReadBytes(folder.settingsFile()));
    }
    std::string path(const std::wstring& name) { return Utf8(folder.path() + L"\\" + name); }
    static RECT Rect(HWND window) { RECT r{}; GetWindowRect(window, &r); return r; }

    ProgramFolder folder{Wide(::testing::UnitTest::GetInstance()->current_test_info()->name())};
    std::unique_ptr<OrvaneProcess> orvane;
};

TEST_F(Commands, TheMenuShowsTheTableAndAProgramNotFoundIsReportedAndKept) {
    HWND bar = start({}); ASSERT_NE(bar, nullptr);
    std::vector<std::wstring> expected, shown;
    for (const MenuRow& row : MainMenuRows()) {  // every item draws itself, in the skin's colours
        const std::wstring shortcut = ShortcutText(row.shortcut);
        expected.push_back(std::wstring(row.parentKey.empty() ? L"bar drawn " : L"item drawn ") +
                           (row.isSeparator() ? L"-" : std::wstring(row.caption)) + (shortcut.empty() ? L"" : L"\t" + shortcut));
    }
    for (const MenuItem& item : ReadMenu(bar))
        shown.push_back(std::wstring(item.depth ? L"item " : L"bar ") + (item.type & MFT_OWNERDRAW ? L"drawn " : L"") +
                        (item.type & MFT_SEPARATOR ? L"-" : item.text));
    EXPECT_EQ(shown, expected);

    PressKeys(bar, {VK_F9});  // "Load your program"
    HWND dialog = WaitForDialogTitled(orvane->id(), L"Load your program"); ASSERT_NE(dialog, nullptr);
    SetControlText(dialog, IDC_PROGRAM, folder.path() + L"\\missing.exe");
    PressButton(dialog, IDOK);
    ASSERT_TRUE(AnswerMessage(orvane->id(), L"Cannot find this program:\r\n\r\n" + folder.path() + L"\\missing.exe"));
    EXPECT_TRUE(IsWindowVisible(dialog)) << "stays open";
    PressKeys(dialog, {VK_ESCAPE});
    ASSERT_TRUE(WaitFor([&] { return !IsWindow(dialog); }, 5s));
    EXPECT_EQ(closeAndReadSettings().at(28), path(L"missing.exe"));
}

TEST_F(Commands, ASuiteToolBesideTheProgramStartsInItsFolderFromItsAccessLetter) {
    HWND bar = start({}, {L"TS_Files.exe"}); ASSERT_NE(bar, nullptr);
    PressKeys(bar, {VK_MENU, 'F'});  // the File menu, then its item's access letter
    Sleep(300);
    PressKeys(bar, {'F'});
    const auto started = ReadProbeLog(folder.path() + L"\\probe.log", 1);
    ASSERT_EQ(started.size(), 1u);
    EXPECT_EQ(std::pair(started[0].commandLine, started[0].folder),
              std::pair("\"" + path(L"TS_Files.exe") + "\"", Utf8(folder.path())));
}

TEST_F(Commands, WordStartsExcelIsReportedMissingAndWebmailOpensTheAddressGivenAndKeepsIt) {
    HWND bar = start({{4, "https://old.example.org"}, {18, path(L"My Office\\WINWORD.EXE")}, {21, path(L"browser.exe")}},
                     {L"My Office\\WINWORD.EXE", L"browser.exe"});
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(PickMenuItem(bar, L"&Word"));  // its path has a blank and is not quoted
    EXPECT_EQ(ReadProbeLog(folder.path() + L"\\My Office\\probe.log", 1).at(0).commandLine,
              path(L"My Office\\WINWORD.EXE"));
    ASSERT_TRUE(PickMenuItem(bar, L"E&xcel"));
    ASSERT_TRUE(AnswerMessage(
        orvane->id(), L"Cannot locate the following program/file:\r\n\r\nC:\\Program Files\\\\Microsoft Office\\Office\\EXCEL.EXE\r\n\r\n"));

    ASSERT_TRUE(PickMenuItem(bar, L"Web interface U&RL"));
    HWND box = WaitForDialogTitled(orvane->id(), L"Orvane"); ASSERT_NE(box, nullptr);
    EXPECT_EQ(std::pair(ControlText(box, IDC_PROMPT), ControlText(box, IDC_BOX_TEXT)),
              std::pair(std::wstring(L"Enter URL for webmail interface"), std::wstring(L"https://old.example.org")));
    SetControlText(box, IDC_BOX_TEXT, L"https://mail.example.org/inbox");
    PressButton(box, IDOK);
    EXPECT_EQ(ReadProbeLog(folder.path() + L"\\probe.log", 1).at(0).commandLine,
              "\"" + path(L"browser.exe") + "\" https://mail.example.org/inbox");
    EXPECT_EQ(closeAndReadSettings().at(3), "https://mail.example.org/inbox");
}

TEST_F(Commands, ADocumentPastMaxPathGoesToItsTool) {
    const std::wstring deep = folder.path() + L"\\" + std::wstring(120, L'd') + L"\\" + std::wstring(120, L'e');
    HWND bar = start({{3, Utf8(deep) + "\\deadlines.txt"}}, {L"TS_ScratchPad.exe"}); ASSERT_NE(bar, nullptr);
    CreateDirectoryW((L"\\\\?\\" + deep.substr(0, deep.rfind(L'\\'))).c_str(), nullptr);
    CreateDirectoryW((L"\\\\?\\" + deep).c_str(), nullptr);
    ASSERT_TRUE(WriteBytes(L"\\\\?\\" + deep + L"\\deadlines.txt", "x"));
    ASSERT_TRUE(PickMenuItem(bar, L"Load &Deadlines file"));
    EXPECT_EQ(ReadProbeLog(folder.path() + L"\\probe.log", 1).at(0).commandLine,
              "\"" + path(L"TS_ScratchPad.exe") + "\" " + Utf8(deep) + "\\deadlines.txt");
}

TEST_F(Commands, FileDialogsFillOrKeepSettingsAndAltQEndsTheProgram) {
    HWND bar = start({{3, "C:\\Old\\Deadlines.vrt"}}, {L"browser.exe"}); ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(PickMenuItem(bar, L"Get c&ustom browser"));
    HWND dialog = WaitForDialogTitled(orvane->id(), L"Get custom browser");
    ASSERT_TRUE(AnswerFileDialog(dialog, folder.path() + L"\\browser.exe"));
    ASSERT_TRUE(WaitFor([&] { return !IsWindow(dialog); }, 10s));
    ASSERT_TRUE(PickMenuItem(bar, L"&Get Deadlines file"));
    ASSERT_NE(dialog = WaitForDialogTitled(orvane->id(), L"Specify Deadlines file"), nullptr);
    PressButton(dialog, IDCANCEL);
    ASSERT_TRUE(WaitFor([&] { return !IsWindow(dialog); }, 10s));
    PressKeys(bar, {VK_MENU, 'Q'});
    ASSERT_EQ(orvane->waitForExit(), 0u) << "Alt+Q";
    const auto settings = SplitCrLf(ReadBytes(folder.settingsFile()));
    EXPECT_EQ(std::pair(settings.at(2), settings.at(20)), std::pair(std::string("C:\\Old\\Deadlines.vrt"), path(L"browser.exe")));
}

TEST_F(Commands, LayoutCommandsReshapeTheBarInTwipsAndWithinTheWorkArea) {
    HWND bar = start({{13, "200"}, {38, "1"}, {39, "15000"}}); ASSERT_NE(bar, nullptr);
    const int dpi = static_cast<int>(orvane::ui::WindowDpi(bar));
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    const auto pick = [&](const wchar_t* caption) {
        const RECT before = Rect(bar);
        EXPECT_TRUE(PickMenuItem(bar, caption)) << caption;
        WaitFor([&] { const RECT now = Rect(bar); return !EqualRect(&now, &before); }, 5s);
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

TEST_F(Commands, AClickOnAnIconRunsItsCommandAndABadSkinGivesWayToTheDefault) {
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
    EXPECT_EQ(ReadProbeLog(folder.path() + L"\\probe.log", 1).at(0).commandLine, path(L"WINWORD.EXE"));
    EXPECT_EQ(closeAndReadSettings().at(18), path(L"Skin_Alba.bmp"));
}

TEST_F(Commands, ADarkSkinChosenInTheChooserColoursTheMenuBarAndIsKept) {
    HWND bar = start({{20, Utf8(folder.path())}}); ASSERT_NE(bar, nullptr);
    // The first item of the menu bar, just above the client area, left of its caption.
    POINT item{GetSystemMetrics(SM_CXEDGE), -GetSystemMetrics(SM_CYMENU) / 2};
    ClientToScreen(bar, &item);
    const auto light = [&] { const COLORREF c = ScreenColour(item); return GetRValue(c) + GetGValue(c) + GetBValue(c) >= 384; };
    EXPECT_TRUE(WaitFor(light, 5s)) << "the default skin is light";
    ASSERT_TRUE(PickMenuItem(bar, L"Change &skin"));
    HWND chooser = WaitForDialogTitled(orvane->id(), L"Change skin"); ASSERT_NE(chooser, nullptr);
    EXPECT_EQ(ControlText(chooser, IDC_SKIN_FOLDER), folder.path());
    for (WORD key : {VK_END, VK_RETURN}) PressKeys(chooser, {key});  // Skin_Slate.bmp, last of the four
    EXPECT_TRUE(WaitFor([&] { return !light(); }, 5s)) << "the menu bar takes the dark skin's colours";
    PressKeys(chooser, {VK_ESCAPE});
    ASSERT_TRUE(WaitFor([&] { return !IsWindow(chooser); }, 5s));
    EXPECT_EQ(closeAndReadSettings().at(18), path(L"Skin_Slate.bmp"));
}

}  // namespace
}  // namespace orvane::e2e
