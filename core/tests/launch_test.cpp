#include "launch.h"

#include <gtest/gtest.h>

#include "app.h"
#include "fake_system.h"
#include "winlist.h"

namespace orvane {
namespace {

using Lines = std::vector<std::wstring>;
constexpr std::uint32_t kTool = 0x80;    // WS_EX_TOOLWINDOW
constexpr std::uint32_t kApp = 0x40000;  // WS_EX_APPWINDOW
const std::wstring kNotFound = L"Cannot locate the following program/file:\r\n\r\n";

class Launching : public ::testing::Test {
protected:
    Launching() {
        app.ProgramFolder = L"E:\\Apps\\Orvane";
        app.MainWindowRef = 1;
    }
    // Starts the tool with the document (kept for a look afterwards); the program path as located.
    std::wstring launch(std::wstring program, std::wstring doc = L"") {
        LaunchSuiteProgram(app, program, document = doc);
        return program;
    }
    testing::FakeSystem sys;
    App app{sys};
    std::wstring document;
};

TEST_F(Launching, ShellRequestsNameTheFilesFolderAndExploreTheCurrentFolder) {
    EXPECT_TRUE(ExecuteProcess(app, L"C:\\Tools\\a.exe", 77, 1, L"-x", false));
    sys.shellAccepts = false;
    EXPECT_FALSE(ExecuteProcess(app, L"a.exe", 0, 3, L"", true));
    EXPECT_FALSE(ExecuteProcess(app, L" ", 0, 1, L"", false)) << "no file, no request";
    using Request = std::tuple<WindowRef, std::wstring, std::wstring, std::wstring, std::wstring, int>;
    std::vector<Request> requests;
    for (const auto& r : sys.shellRequests)
        requests.emplace_back(r.owner, r.verb, r.file, r.parameters, r.directory, r.showCode);
    EXPECT_EQ(requests, (std::vector<Request>{{77, L"Open", L"C:\\Tools\\a.exe", L"-x", L"C:\\Tools", 1},
                                              {0, L"runas", L"a.exe", L"", L"", 3}}));
    sys.current = L"C:\\Some Folder";
    ExploreFolder(app, 12);
    EXPECT_EQ(sys.journal.back(), L"verb explore C:\\Some Folder in C:\\Some Folder owner 12 show 1");
    EXPECT_EQ(app.LastLaunchResult, 42);
}

TEST_F(Launching, SuiteProgramDocumentBecomesAPathQuotedWhenItHasABlank) {
    const std::wstring program = L" C:\\Suite\\Tool.exe ";  // trimmed in a command with a document only
    sys.addFile(program);
    sys.addFile(L"F:\\Drive_G\\Docs\\a.vrt");
    sys.addFile(L"C:\\Drive_C\\Drive_G\\b.vrt");  // never looked for: a document in a drive folder is not scanned
    const std::tuple<const wchar_t*, const wchar_t*, const wchar_t*> cases[] = {  // current folder, document, command
        {L"C:\\Work", L"notes.txt", L"C:\\Suite\\Tool.exe C:\\Work\\notes.txt"},
        {L"D:\\", L"my notes.txt", L"C:\\Suite\\Tool.exe \"D:\\my notes.txt\""},
        // The program alone, as given; blanks made a path before the blank test; a one-letter document left alone.
        {L"C:\\Work", L" ", L" C:\\Suite\\Tool.exe "}, {L"C:\\Work", L"x", L"C:\\Suite\\Tool.exe x"},
        {L"C:\\Work", L"   ", L"C:\\Suite\\Tool.exe \"C:\\Work\\   \""},
        {L"C:\\Work", L"G:\\Docs\\a.vrt", L"C:\\Suite\\Tool.exe F:\\Drive_G\\Docs\\a.vrt"},
        {L"C:\\Work", L"C:\\Drive_G\\b.vrt", L"C:\\Suite\\Tool.exe C:\\Drive_G\\b.vrt"},
        {L"C:\\Work", L"\"C:\\My Docs\\a.vrt\"", L"C:\\Suite\\Tool.exe \"C:\\My Docs\\a.vrt\""},
    };
    for (const auto& [current, doc, command] : cases) {
        sys.current = current;
        launch(program, doc);
        EXPECT_EQ(sys.started.back().commandLine, command) << doc;
    }
    EXPECT_EQ(sys.started.back().showCode, 1);
    EXPECT_EQ(document, L"\"C:\\My Docs\\a.vrt\"") << "unquoted, then quoted again for its blank";
    EXPECT_EQ(app.LastLaunchResult, 100);
    EXPECT_TRUE(sys.messages.empty());
    sys.journal.clear();
    for (const auto task : {std::optional<long long>(), std::optional<long long>(70000)}) {  // 70000 needs 17 bits
        sys.nextTask = task;
        launch(program);
    }
    EXPECT_EQ(app.LastLaunchResult, 100) << "a refused start or an oversized task keeps the previous result";
    EXPECT_EQ(sys.journal, (Lines{L"start " + program, L"start " + program}));
}

TEST_F(Launching, SuiteProgramSearchOrder) {
    app.ProgramFolder = L"b:\\Orvane";  // a drive the scan does not reach
    // Each file added wins over the ones before it; the scan runs from C to the six characters after Z.
    const std::wstring stored = L"G:\\T\\Tool.exe";
    launch(stored, L"a.txt");
    EXPECT_EQ(sys.journal, (Lines{L"message " + kNotFound + stored + L"\r\n\r\n", L"cursor"})) << "found nowhere";
    EXPECT_EQ(sys.messages[0].caption, L"Orvane");
    for (const std::wstring found : {L"b:\\Orvane\\Tool.exe", L"b:\\Drive_G\\T\\Tool.exe", L"`:\\Drive_G\\T\\Tool.exe",
                                     L"D:\\Drive_G\\T\\Tool.exe", L"C:\\Drive_G\\T\\Tool.exe",
                                     L"C:\\TellmarkSet\\Tool.exe", stored.c_str()}) {
        sys.addFile(found);
        EXPECT_EQ(launch(stored), found);
        EXPECT_EQ(sys.started.back().commandLine, found);
    }
}

TEST_F(Launching, WindowListKeepsOnlyTheWindowsATaskBarWouldShowInTheirOrder) {
    // handle, visible, parent, owner, extended style, title
    sys.windows = {{2, true, false, false, 0, L"Editor"},  {1, true, false, false, 0, L"Orvane"},
                   {3, false, false, false, 0, L"Hidden"},  {4, true, true, false, 0, L"Child"},
                   {5, true, false, true, 0, L"Owned"},     {6, true, false, true, kApp, L"Owned app"},
                   {7, true, false, false, kTool, L"Tool"}, {8, true, false, false, kTool | kApp, L"Tool app"},
                   {9, true, false, true, kTool | kApp, L"Owned tool app"},
                   {10, true, false, false, 0, L""},        {11, true, false, false, 0, L"Editor"}};
    app.windowList = {{L"stale", 99}};
    RefreshWindowList(app);
    std::vector<std::pair<std::wstring, WindowRef>> listed;
    for (const auto& entry : app.windowList) listed.emplace_back(entry.title, entry.handle);
    EXPECT_EQ(listed, (decltype(listed){{L"Editor", 2}, {L"Owned app", 6}, {L"Owned tool app", 9}, {L"Editor", 11}}));
    EXPECT_EQ(FindListedWindow(app.windowList, L"Editor"), 2u);
    EXPECT_EQ(FindListedWindow(app.windowList, L"editor"), 0u);
}

TEST_F(Launching, RunningSuiteProgramIsBroughtForwardByItsExactTitle) {
    sys.addFile(L"C:\\Suite\\Tool.exe");
    sys.windows = {{5, true, false, false, 0, L"tool"}, {6, true, false, false, 0, L"Tool.exe"},
                   {7, true, false, false, 0, L"Tool"}, {8, true, false, false, 0, L"Tool"}};
    launch(L"C:\\Suite\\Tool.exe", L"a.txt");
    EXPECT_EQ(sys.journal, (Lines{L"message Program running already", L"foreground 7"})) << "and nothing started";
    EXPECT_EQ(std::tie(sys.messages[0].caption, sys.messages[0].icon), std::tuple(L"Orvane", MessageIcon::None));
    EXPECT_EQ(app.LastLaunchResult, 1);
}

TEST_F(Launching, BrowserAndArgumentCommandLinesQuoteOnlyWithABlank) {
    app.settings.CustomBrowser = L"C:\\Web\\browser.exe";
    LoadCustomBrowser(app, L"x");
    EXPECT_EQ(sys.journal, (Lines{L"message " + kNotFound + L"C:\\Web\\browser.exe\r\n\r\n", L"cursor"})) << "missing";
    EXPECT_EQ(sys.messages[0].caption, L"Custom Browser");
    sys.addFile(app.settings.CustomBrowser);
    const std::pair<const wchar_t*, std::wstring> cases[] = {
        {L"", L""}, {L"https://mail.example.org/?a=1", L" https://mail.example.org/?a=1"},
        {L"C:\\My Pages\\index.html", L" \"C:\\My Pages\\index.html\""},
        {L"\"quoted already\"", L" \"\"quoted already\"\""},
    };
    for (const auto& [argument, tail] : cases) {
        sys.journal.clear();
        LoadCustomBrowser(app, argument);
        LaunchWithArgument(app, L"C:\\P\\p.exe", argument);
        EXPECT_EQ(sys.journal,
                  (Lines{L"events", L"start C:\\Web\\browser.exe" + tail, L"events", L"start C:\\P\\p.exe" + tail}));
    }
    EXPECT_EQ(app.LaunchPath, L"C:\\Web\\browser.exe");
}

}  // namespace
}  // namespace orvane
