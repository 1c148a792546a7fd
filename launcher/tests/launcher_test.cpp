#include <gtest/gtest.h>

#include <fstream>

#include "app.h"
#include "appearance.h"
#include "clock.h"
#include "commands.h"
#include "fake_system.h"
#include "layout.h"
#include "menu.h"
#include "pixels.h"

namespace orvane {
namespace {

// The menu's rows are data; what is tested is how captions and shortcuts are read and written.
TEST(MainMenu, ShortcutsAreWrittenAsWindowsMenusWriteThemAndCaptionsLoseTheirAccessMarks) {
    using namespace keys;
    const std::pair<Shortcut, const wchar_t *> shortcuts[] = {
        {CtrlShift(Key('M')), L"Ctrl+Shift+M"}, {CtrlAlt(F(12)), L"Ctrl+Alt+F12"}, {Alt(F(1)), L"Alt+F1"},
        {Shift(kInsert), L"Shift+Insert"},      {Plain(kDelete), L"Delete"},       {None, L""},
    };
    for (const auto &[shortcut, text] : shortcuts)
        EXPECT_EQ(ShortcutText(shortcut), text) << text;
    for (const auto &[caption, letter] :
         {std::pair{L"Top/&bottom", L'b'}, {L"A && &B", L'B'}, {L"||", L'\0'}, {L"a&", L'\0'}})
        EXPECT_EQ(AccessLetter(caption), letter) << caption;
    EXPECT_EQ(WithoutAccessMarks(L"&Work&desk") + WithoutAccessMarks(L"A && &B&"), L"WorkdeskA & B") << "tooltips";
}

TEST(Dispatch, EveryItemReachesACommandButTheDoNothingOnes) {
    const auto rows = MainMenuRows();
    for (const MenuRow &row : rows) {
        if (row.isSeparator() || HasItems(rows, row.key))
            continue;
        const bool doesNothing = row.caption == L"||" || row.caption == L"&Wallpaper";
        EXPECT_EQ(FindDispatchRow(row.caption) == nullptr, doesNothing) << std::wstring(row.caption);
    }
    EXPECT_EQ(FindDispatchRow(L"&word"), nullptr) << "exact case";
    EXPECT_EQ(FindDispatchRow(L"&Word\tCtrl+Shift+W"), nullptr) << "the caption alone";
    EXPECT_EQ(FindDispatchRow(L"&Running programs")->tool, Tool::RunningPrograms);
    const DispatchRow twice[] = {{L"&A", Command::About}, {L"&A", Command::Exit}};
    EXPECT_EQ(FindDispatchRow(L"&A", twice)->command, Command::About) << "the first equal caption wins";
}

// A menu command by its caption, or "icon <n>" for a click on icon n of the strip; what it did, as Bar::outcome says;
// the setting given a value and the file made to exist first (the value's own file unless another is named).
struct Given {
    std::wstring caption, outcome;
    std::wstring Settings::*setting = nullptr;
    const wchar_t *value = L"", *present = value;
};

// The bar's commands on a machine of their own, with the main window's routines recorded by name.
struct Bar : MainWindowRoutines {
    Bar() {
        app.ProgramFolder = L"C:\\P";
        app.ProgramFilesFolder = L"C:\\Program Files\\";
        app.MainWindowRef = 7;
    }
    // What one command, or a click on an icon, did: its message, shell request, start, routine or system call.
    std::wstring outcome(const Given &setup) {
        if (setup.setting)
            app.settings.*setup.setting = setup.value;
        if (*setup.present)
            sys.addFile(setup.present);
        const bool icon = setup.caption.starts_with(L"icon ");
        icon ? commands.runIcon(std::stoi(setup.caption.substr(5))) : void(commands.dispatch(setup.caption));
        if (!sys.messages.empty())
            return sys.messages.back().text;
        if (!sys.shellRequests.empty()) {
            const auto &r = sys.shellRequests.back();
            return r.verb + L" " + r.file + L" [" + r.parameters + L"] in " + r.directory + L" " +
                   std::to_wstring(app.LastLaunchResult);
        }
        if (!sys.started.empty())
            return L"start " + sys.started.back().commandLine;
        if (!calls.empty())
            return calls.back();
        return sys.journal.empty() ? L"nothing" : sys.journal.back();
    }

    std::wstring inputBox(const std::wstring &, const std::wstring &preset) override {
        calls.push_back(L"input " + preset);
        return typed;
    }
    // Each of the other routines only records that it ran, by the name given.
    ORVANE_RECORDS(calls, showAbout, L"about")
    ORVANE_RECORDS(calls, showProgramLocations, L"locations")
    ORVANE_RECORDS(calls, showYourProgram, L"your program")
    ORVANE_RECORDS(calls, toggleDesktop, L"desktop")
    ORVANE_RECORDS(calls, exitProgram, L"exit")
    ORVANE_RECORDS(calls, useScreenWidth, L"width")
    ORVANE_RECORDS(calls, toggleIconStrip, L"icons")
    ORVANE_RECORDS(calls, chooseSkin, L"skin")
    ORVANE_RECORDS(calls, toggleTopBottom, L"top/bottom")
    ORVANE_RECORDS(calls, chooseMenuFont, L"font")
    ORVANE_RECORDS(calls, showCustomPrograms, L"custom programs")
    ORVANE_RECORDS(calls, showWebList, L"web list")
    ORVANE_RECORDS(calls, showWallpaper, L"wallpaper")
    void changeIconSize(int step) override {
        calls.push_back(L"size " + std::to_wstring(step));
    }

    testing::FakeSystem sys;
    App app{sys};
    std::wstring typed;
    std::vector<std::wstring> calls;
    MainCommands commands{app, *this};
};

// Suite tools beside the program, Office programs and documents in their tool: also the e2e Commands tests. The input
// box is cancelled.
TEST(Commands, StartWhatTheirCaptionsSayAndIconsRunTheirCommandsUnderTheWaitCursorAndWebmailWithoutAsking) {
    using S = Settings;
    const std::wstring missing = L"Cannot locate the following program/file:\r\n\r\n";
    const Given cases[] = {
        {L"&File manager", L"Open C:\\P\\TS_Files.exe [] in C:\\P -1", nullptr, L"", L"C:\\P\\TS_Files.exe"},
        {L"Load &Deadlines file", L"Open C:\\P\\TS_Outliner.exe [G:\\a.VRT] in C:\\P -1", &S::DeadlinesFile,
         L"G:\\a.VRT"},
        {L"Load Addr&esses file", L"Open C:\\P\\TS_Grid.exe [D:\\Drive_G\\a.vrt] in C:\\P -1", &S::AddressesFile,
         L"G:\\a.vrt", L"D:\\Drive_G\\a.vrt"},
        {L"Load Addr&esses file", missing + L"( Filename empty! )\r\n\r\n"},
        {L"&Custom browser", L"Open C:\\W\\b.exe [] in C:\\W -1", &S::CustomBrowser, L"C:\\W\\b.exe"},
        {L"&Custom browser", missing + L"\"C:\\W\\b.exe\"\r\n\r\n", &S::CustomBrowser, L"\"C:\\W\\b.exe\"",
         L"C:\\W\\b.exe"},
        {L"Web interface U&RL", L"input https://old.example.org", &S::WebmailUrl, L"https://old.example.org"},
        {L"&Windows Explorer", L"verb explore C:\\Work in C:\\Work owner 7 show 1"},
        {L"&Wallpaper", L"nothing"},
        {L"icon 9", L"start C:\\W\\b.exe https://mail.example.org", &S::CustomBrowser, L"C:\\W\\b.exe"},
        {L"icon 0", L"Open C:\\P\\TellmarkSet.exe [] in C:\\P -1"},
        {L"icon 6", L"desktop"},
        {L"icon 26", L"events"},
    };
    for (const Given &c : cases) {
        Bar bar;
        bar.app.settings.WebmailUrl = L"https://mail.example.org";
        EXPECT_EQ(bar.outcome(c), c.outcome) << c.caption;
        const auto &journal = bar.sys.journal;
        const bool icon = c.caption.starts_with(L"icon ");
        EXPECT_TRUE(!icon || journal.front() + journal.end()[-2] + journal.back() == L"waitcursorevents") << c.caption;
    }
    // Each icon's picture carries the large sizes the strip draws at.
    std::ifstream table(ORVANE_MENU_ICONS_TABLE);
    std::set<std::string> large;
    for (std::string key, name, flag; table >> key >> name && std::getline(table, flag);)
        if (flag.find("large") == 0 || flag.find(" large") != std::string::npos)
            large.insert(key);
    for (const StripIcon &icon : StripIcons())
        EXPECT_TRUE(large.count(std::string(icon.iconKey.begin(), icon.iconKey.end())))
            << std::wstring(icon.row.caption);
}

// The prompt and the browser opened: the e2e OfficeProgramsAndWebmail test; a cancelled question: the table above.
TEST(Commands, WebmailTypedWithoutABrowserIsKeptAndItsStartFailsQuietly) {
    Bar bar;
    bar.typed = L"https://mail.example.org/?a b";
    EXPECT_EQ(bar.outcome({L"Web interface U&RL", L""}), L"input ") << "nothing shown or started after the question";
    EXPECT_EQ(std::pair(bar.app.settings.WebmailUrl, bar.app.LastLaunchResult), std::pair(bar.typed, std::int16_t(0)));
}

TEST(Layout, SizesStepUnevenlyAndTheBarsShapesComeBack) {
    const std::array<int, 3> steps[] = {{0, 240, 0},     {200, 240, 200},   {240, 280, 200}, {680, 720, 640},
                                        {720, 720, 680}, {1000, 1000, 680}, {250, 250, 250}, {-40, 240, -40}};
    for (const auto &[size, larger, smaller] : steps) {
        const auto s = static_cast<std::int16_t>(size);
        EXPECT_EQ(std::tuple(SteppedIconSize(s, 1), SteppedIconSize(s, 2), SteppedIconSize(s, 0)),
                  std::tuple(larger, smaller, size))
            << size;
    }
    const StripLayout strip = LayStrip(16061, 1640);
    EXPECT_EQ(strip.strip, (TwipsRect{120, 520, 15821, 480}));
    EXPECT_DOUBLE_EQ(strip.iconLeft[25], 200 + 25 * 15861 / 26.0) << "the pitch is not rounded";
    // "&Icons" puts the bar at the top of the screen; each toggle given twice, the expanded height and the screen
    // width: the e2e LayoutCommands test; the opening size: the e2e StartUp tests.
    const BarState start{{300, 700, 20000, 1640}, true, true};
    EXPECT_EQ(ToggleIcons(start, 480, 18000), (BarState{{300, 0, 16060, 1020}, false, true}));
    EXPECT_EQ(ToggleTopBottom(start, {0, 300, 19200, 11000}), (BarState{{300, 9360, 20000, 1640}, true, false}));
}

TEST(Appearance, SkinColoursMenuColoursAndIconScaling) {
    const std::uint32_t redAndBlue[] = {0xFF0000, 0x0000FF};
    EXPECT_EQ(SkinColoursOf(redAndBlue), (SkinColours{0x800080, kWhite}));
    EXPECT_EQ(SkinColoursOf({}), (SkinColours{kWhite, kBlack}));
    EXPECT_EQ(MenuColoursFor(std::nullopt),
              (MenuColours{0xF6F6F6, kWhite, kBlack, 0xD1ADAD, kBlack, 0x800000, 0xD1ADAD}));
    // Dark skins: 128 off each component of the highlight, and white on it.
    EXPECT_EQ(MenuColoursFor(SkinColours{0x143264, kWhite}),
              (MenuColours{0x143264, 0x143264, kWhite, 0, kWhite, kWhite, kWhite}));
    EXPECT_EQ(MenuColoursFor(SkinColours{0x283CC8, kBlack}).highlight, 0x000048u);
    EXPECT_EQ(MenuColoursFor(SkinColours{0xE6E6E6, kBlack}),
              (MenuColours{0xE6E6E6, 0xE6E6E6, kBlack, 0xF2F2F2, kBlack, kBlack, 0x737373}));
    // Icons made smaller: transparent pixels lend no colour.
    const std::uint32_t icon[] = {0xFFFF0000, 0x0000FF00, 0xFFFF0000, 0xFF0000FF};
    EXPECT_EQ(ScaleDown(icon, 2, 1), (std::vector<std::uint32_t>{0xBFAA0055}));
}

TEST(Clock, LabelsHaveTwoDigitsEach) {
    for (const auto &[h, m, s, text] :
         {std::tuple{9, 5, 3, L"09:05 [ 03 ]"}, {0, 0, 0, L"00:00 [ 00 ]"}, {23, 59, 59, L"23:59 [ 59 ]"}})
        EXPECT_EQ(ClockTimeText(h, m) + L" " + ClockSecondsText(s), text);
}

} // namespace
} // namespace orvane
