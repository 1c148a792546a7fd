#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "app.h"
#include "commands.h"
#include "fake_system.h"
#include "menu.h"
#include "recording_routines.h"

namespace orvane {
namespace {

// A row as the design lists it: "[key caption]" opens a menu or is a bar
// command, "-" is a separator, "@role" stands for a suite tool's key and
// caption ("@role'" for its second caption), followed by icon and shortcut.
std::wstring Describe(const MenuRow& row) {
    if (row.isSeparator()) return L"-";
    if (row.parentKey.empty()) {
        for (const SuiteTool& tool : kSuiteTools)
            if (tool.key == row.key && (tool.caption == row.caption || tool.otherCaption == row.caption))
                return L"[@" + std::wstring(tool.role) + (tool.caption == row.caption ? L"]" : L"']");
        return L"[" + std::wstring(row.key) + L" " + std::wstring(row.caption) + L"]";
    }
    std::wstring text = std::wstring(row.key) + L" " + std::wstring(row.caption);
    for (const SuiteTool& tool : kSuiteTools)
        if (tool.key == row.key && tool.caption == row.caption) text = L"@" + std::wstring(tool.role);
    text += L" " + std::wstring(row.iconKey);
    if (const auto shortcut = ShortcutText(row.shortcut); !shortcut.empty()) text += L" " + shortcut;
    return text;
}

TEST(MainMenu, RowsFollowTheDesignInOrder) {
    const std::vector<std::wstring> expected = {
        L"[keyFile &File]", L"@file manager k47 Ctrl+Shift+M", L"@file inspection k1 Ctrl+Shift+Y",
        L"@file box k51 Ctrl+L", L"@file copier k28 Ctrl+Shift+L", L"keyWEx &Windows Explorer k37 Ctrl+Shift+F9",
        L"@Unicode file explorer k71 Ctrl+Alt+U", L"@start-up manager k42 Alt+S", L"-", L"@file finder k2 F4",
        L"@text finder k3 Ctrl+F", L"@fast file search k50 Ctrl+Q", L"@disk-drive utility k4 Ctrl+Shift+D",
        L"@clipboard viewer k5 Shift+F2", L"-", L"keyExit E&xit k6 Alt+Q",
        L"[keyEdit &Edit]", L"@document editor k7 F5", L"@notes editor k8 Ctrl+N", L"@Unicode editor k71 Ctrl+U",
        L"@tabbed notes k34 Ctrl+T", L"@tabbed text editor k9 Ctrl+B", L"@text databases k52 Ctrl+D",
        L"@general text utility k10 F6", L"@scratch-pad editor k11 Ctrl+J", L"@short-text utility k43 Ctrl+Shift+Q",
        L"@e-mail manager k49 Ctrl+Shift+E", L"@outliner k12 Ctrl+Shift+F9", L"@PDF viewer k13 Ctrl+Shift+F8",
        L"[keyOffice &Office]", L"keyWord &Word k14 Ctrl+Shift+W", L"keyPPnt &PowerPoint k15 Ctrl+Shift+P",
        L"keyExcel E&xcel k16 Ctrl+Shift+X", L"keyAcc &Access k17 Ctrl+Shift+A",
        L"keyPub P&ublisher k18 Ctrl+Shift+U", L"keyLoc &Location of programs k19 F3",
        L"[keyUtil &Utilities]", L"-", L"@internet file editor k22 F2", L"@file transfer k23 Ctrl+F2",
        L"@zip tool k24 Ctrl+Shift+F2", L"-", L"@to-do tool k41 Ctrl+Alt+F1",
        L"keyLDead Load &Deadlines file k25 Ctrl+Alt+F2", L"keyGDead &Get Deadlines file k26",
        L"keyLAdd Load Addr&esses file k27 Ctrl+Alt+F3", L"keyGAdd Get Addresses &file k26", L"@diary k39 Ctrl+Alt+F4",
        L"keyWeb Web interface U&RL k30 Ctrl+Alt+F5", L"keyBrowser &Custom browser k40 Alt+B",
        L"keyGetBrowser Get c&ustom browser k28", L"keyWebList Open &web list k60 Ctrl+W", L"-",
        L"keyYourProgram Load your program k45 F9",
        L"[keyGraph &Graphics]", L"@image editor k53 Ctrl+Shift+F8", L"@image viewer k54 Ctrl+Alt+F8",
        L"@image thumbnails k55", L"@drawing utility k56 Ctrl+Shift+U", L"@workflow tool k57",
        L"@screen magnifier k50", L"keyWall &Wallpaper k58 F7", L"@slide show k59 Shift+F7",
        L"[keyMisc &Varia]", L"keyAbout &About this program k29", L"keyWidth Use screen &width k31 Ctrl+Alt+W",
        L"keyIncr &Increase image size k32 F12", L"keyDecr &Decrease image size k33 Shift+F12",
        L"keySkin Change &skin k25 Ctrl+Shift+F12", L"keyWall Wa&llpaper k42 Alt+F10", L"keyFont Set me&nu font k34",
        L"@clock k35 Shift+F11", L"@calculator k38 Ctrl+Shift+F11", L"-",
        L"keyCustProgr C&ustom programs k42 Alt+F10", L"keyDesktop &Goto desktop k48 Ctrl+Alt+D",
        L"[keyvertBars ||]", L"[keyIcons &Icons]", L"[keyUpDown Top/&bottom]", L"[@desktop tool]",
        L"[@personal file tool]", L"[@file box']", L"[@suite main program]", L"[@running programs]",
        L"[keyDesk Des&ktop]",
    };
    std::vector<std::wstring> actual;
    for (const MenuRow& row : MainMenuRows()) actual.push_back(Describe(row));
    EXPECT_EQ(actual, expected);
    EXPECT_EQ(SuiteToolOf(Tool::Clock).caption, L"Sho&w clock");
    EXPECT_EQ(SuiteToolOf(Tool::TellmarkSet).caption, L"&Tellmark Set");
    EXPECT_EQ(std::count(SuiteToolOf(Tool::Workdesk).caption.begin(), SuiteToolOf(Tool::Workdesk).caption.end(), L'&'), 2);
}

TEST(Dispatch, EveryItemReachesACommandButTheDoNothingOnes) {
    const auto rows = MainMenuRows();
    for (const MenuRow& row : rows) {
        if (row.isSeparator() || HasItems(rows, row.key)) continue;
        const bool doesNothing = row.caption == L"||" || row.caption == L"&Wallpaper";
        EXPECT_EQ(FindDispatchRow(row.caption) == nullptr, doesNothing) << std::wstring(row.caption);
    }
    EXPECT_EQ(FindDispatchRow(L"&word"), nullptr) << "exact case";
    EXPECT_EQ(FindDispatchRow(L"&Word\tCtrl+Shift+W"), nullptr) << "the caption alone";
    EXPECT_EQ(FindDispatchRow(L"File &box")->tool, Tool::FileBox);
    EXPECT_EQ(FindDispatchRow(L"File bo&x")->tool, Tool::FileBox);
    EXPECT_EQ(FindDispatchRow(L"&Running programs")->tool, Tool::RunningPrograms);
    const DispatchRow twice[] = {{L"&A", Command::About}, {L"&A", Command::Exit}};
    EXPECT_EQ(FindDispatchRow(L"&A", twice)->command, Command::About) << "the first equal caption wins";
}

struct CommandCase {
    const wchar_t* caption;
    std::function<void(App&, testing::FakeSystem&)> setUp;
    std::wstring outcome;
};

TEST(Commands, StartWhatTheirCaptionsSay) {
    const auto file = [](const wchar_t* path) { return [=](App&, testing::FakeSystem& sys) { sys.addFile(path); }; };
    const auto none = [](App&, testing::FakeSystem&) {};
    const CommandCase cases[] = {
        {L"&File manager", file(L"C:\\Orvane\\TS_Files.exe"), L"Open C:\\Orvane\\TS_Files.exe [] in C:\\Orvane -1"},
        {L"File bo&x", file(L"C:\\TellmarkSet\\TS_FileBox.exe"), L"Open C:\\TellmarkSet\\TS_FileBox.exe [] in C:\\TellmarkSet -1"},
        {L"Sho&w clock", [](App&, testing::FakeSystem& sys) { sys.shellAccepts = false; },
         L"Open C:\\Orvane\\TS_Clock.exe [] in C:\\Orvane 0"},
        {L"&Word", [](App& app, testing::FakeSystem& sys) { sys.addFile(app.settings.WordPath = L"C:\\My Office\\WINWORD.EXE"); },
         L"start C:\\My Office\\WINWORD.EXE"},
        {L"E&xcel", none, L"Cannot locate the following program/file:\r\n\r\nC:\\Program Files\\\\Microsoft Office\\Office\\EXCEL.EXE\r\n\r\n"},
        {L"Load &Deadlines file", [](App& app, testing::FakeSystem& sys) { sys.addFile(app.settings.DeadlinesFile = L"G:\\Plan.VRT"); },
         L"Open C:\\Orvane\\TS_Outliner.exe [G:\\Plan.VRT] in C:\\Orvane -1"},
        {L"Load &Deadlines file", [](App& app, testing::FakeSystem& sys) { sys.addFile(app.settings.DeadlinesFile = L"C:\\My Files\\plan.vrt.txt"); },
         L"Open C:\\Orvane\\TS_ScratchPad.exe [C:\\My Files\\plan.vrt.txt] in C:\\Orvane -1"},
        {L"Load Addr&esses file", [](App& app, testing::FakeSystem& sys) { app.settings.AddressesFile = L"G:\\Addresses.vrt"; sys.addFile(L"D:\\Drive_G\\Addresses.vrt"); },
         L"Open C:\\Orvane\\TS_Grid.exe [D:\\Drive_G\\Addresses.vrt] in C:\\Orvane -1"},
        {L"Load Addr&esses file", none, L"Cannot locate the following program/file:\r\n\r\n( Filename empty! )\r\n\r\n"},
        {L"&Custom browser", [](App& app, testing::FakeSystem& sys) { sys.addFile(app.settings.CustomBrowser = L"C:\\Web\\b.exe"); },
         L"Open C:\\Web\\b.exe [] in C:\\Web -1"},
        {L"&Custom browser", [](App& app, testing::FakeSystem& sys) { sys.addFile(L"C:\\Web\\b.exe"); app.settings.CustomBrowser = L"\"C:\\Web\\b.exe\""; },
         L"Cannot locate the following program/file:\r\n\r\n\"C:\\Web\\b.exe\"\r\n\r\n"},
        {L"&Windows Explorer", none, L"verb explore C:\\Work in C:\\Work owner 7 show 1"},
        {L"Des&ktop", none, L"desktop"},
        {L"Wa&llpaper", none, L"wallpaper"},
        {L"&Decrease image size", none, L"size 2"},
        {L"&Wallpaper", none, L"nothing"},
        {L"||", none, L"nothing"},
    };
    for (const CommandCase& c : cases) {
        testing::FakeSystem sys;
        App app{sys};
        app.ProgramFolder = L"C:\\Orvane";
        app.ProgramFilesFolder = L"C:\\Program Files\\";
        app.MainWindowRef = 7;
        testing::RecordingRoutines window;
        MainCommands commands(app, window);
        c.setUp(app, sys);
        commands.dispatch(c.caption);
        std::wstring outcome = L"nothing";
        if (!sys.messages.empty()) outcome = sys.messages[0].text;
        else if (!sys.shellRequests.empty()) {
            const auto& r = sys.shellRequests[0];
            outcome = r.verb + L" " + r.file + L" [" + r.parameters + L"] in " + r.directory + L" " +
                      std::to_wstring(app.LastLaunchResult);
        } else if (!sys.started.empty()) outcome = L"start " + sys.started[0].commandLine;
        else if (!window.calls.empty()) outcome = window.calls[0];
        else if (!sys.journal.empty()) outcome = sys.journal.back();
        EXPECT_EQ(outcome, c.outcome) << c.caption;
    }
}

TEST(Commands, WebmailAsksThenOpensTheCustomBrowserAndRunAsElevates) {
    testing::FakeSystem sys;
    App app{sys};
    testing::RecordingRoutines window;
    MainCommands commands(app, window);
    app.settings.WebmailUrl = L"https://old.example.org";
    commands.dispatch(L"Web interface U&RL");  // cancelled: nothing changes
    EXPECT_EQ(window.prompt, L"Enter URL for webmail interface");
    EXPECT_EQ(window.calls, std::vector<std::wstring>{L"input https://old.example.org"});
    window.typed = L"https://mail.example.org/?a b";
    commands.dispatch(L"Web interface U&RL");  // no browser set: stored, then the start fails quietly
    EXPECT_EQ(app.settings.WebmailUrl, window.typed);
    EXPECT_TRUE(sys.shellRequests.empty());
    EXPECT_EQ(app.LastLaunchResult, 0);
    app.settings.CustomBrowser = L"C:\\Web\\b.exe";
    commands.runAs = true;
    commands.dispatch(L"Web interface U&RL");
    ASSERT_EQ(sys.shellRequests.size(), 1u);
    EXPECT_EQ(sys.shellRequests[0].verb, L"runas");
    EXPECT_EQ(sys.shellRequests[0].parameters, L"https://mail.example.org/?a b");
    EXPECT_TRUE(sys.messages.empty());
}

}  // namespace
}  // namespace orvane
