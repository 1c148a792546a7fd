#include "launch.h"

#include <gtest/gtest.h>

#include "app.h"
#include "fake_system.h"

namespace orvane {
namespace {

using testing::FakeSystem;

class Launching : public ::testing::Test {
protected:
    Launching() {
        app.ProgramFolder = L"E:\\Apps\\Orvane";
        app.MainWindowRef = 1;
        sys.current = L"C:\\Work";
    }
    const std::wstring& lastCommand() { return sys.started.back().commandLine; }
    TopLevelWindow appWindow(WindowRef handle, const std::wstring& title) { return {handle, true, false, false, 0, title}; }

    FakeSystem sys;
    App app{sys};
};

TEST_F(Launching, ExecuteProcessAsksTheShellWithTheFilesFolder) {
    EXPECT_TRUE(ExecuteProcess(app, L"C:\\Tools\\a.exe", 77, 1, L"-x", false));
    sys.shellAccepts = false;
    EXPECT_FALSE(ExecuteProcess(app, L"a.exe", 0, 3, L"", true));
    ASSERT_EQ(sys.shellRequests.size(), 2u);
    const auto& first = sys.shellRequests[0];
    EXPECT_EQ(first.verb, L"Open");
    EXPECT_EQ(first.file, L"C:\\Tools\\a.exe");
    EXPECT_EQ(first.parameters, L"-x");
    EXPECT_EQ(first.directory, L"C:\\Tools");
    EXPECT_EQ(first.owner, 77u);
    EXPECT_EQ(first.showCode, 1);
    EXPECT_EQ(sys.shellRequests[1].verb, L"runas");
    EXPECT_EQ(sys.shellRequests[1].directory, L"");
    EXPECT_EQ(sys.shellRequests[1].showCode, 3);
}

TEST_F(Launching, SuiteProgramWithADocumentInTheCurrentFolder) {
    std::wstring program = L"C:\\Suite\\Tool.exe", document = L"notes.txt";
    sys.addFile(program);
    LaunchSuiteProgram(app, program, document);
    ASSERT_EQ(sys.started.size(), 1u);
    EXPECT_EQ(lastCommand(), L"C:\\Suite\\Tool.exe C:\\Work\\notes.txt");
    EXPECT_EQ(sys.started[0].showCode, 1);
    EXPECT_EQ(app.LastLaunchResult, 100);

    sys.current = L"D:\\";
    document = L"my notes.txt";
    LaunchSuiteProgram(app, program, document);
    EXPECT_EQ(lastCommand(), L"C:\\Suite\\Tool.exe \"D:\\my notes.txt\"");
}

TEST_F(Launching, SuiteProgramDocumentQuotingAndTrimming) {
    std::wstring program = L" C:\\Suite\\Tool.exe ";
    sys.addFile(program);
    std::wstring document = L"\"C:\\My Docs\\a.vrt\"";
    LaunchSuiteProgram(app, program, document);
    EXPECT_EQ(lastCommand(), L"C:\\Suite\\Tool.exe \"C:\\My Docs\\a.vrt\"");
    EXPECT_EQ(document, L"\"C:\\My Docs\\a.vrt\"");

    document = L" ";
    LaunchSuiteProgram(app, program, document);
    EXPECT_EQ(lastCommand(), L" C:\\Suite\\Tool.exe ") << "the program alone, as given";

    document = L"   ";  // long enough to be made a path before the blank test
    LaunchSuiteProgram(app, program, document);
    EXPECT_EQ(lastCommand(), L"C:\\Suite\\Tool.exe \"C:\\Work\\   \"");

    document = L"x";
    LaunchSuiteProgram(app, program, document);
    EXPECT_EQ(lastCommand(), L"C:\\Suite\\Tool.exe x") << "a one-letter document is not made a path";
}

TEST_F(Launching, SuiteProgramDocumentFoundInADriveFolder) {
    std::wstring program = L"C:\\Suite\\Tool.exe";
    sys.addFile(program);
    sys.addFile(L"F:\\Drive_G\\Docs\\a.vrt");
    std::wstring document = L"G:\\Docs\\a.vrt";
    LaunchSuiteProgram(app, program, document);
    EXPECT_EQ(lastCommand(), L"C:\\Suite\\Tool.exe F:\\Drive_G\\Docs\\a.vrt");
}

TEST_F(Launching, SuiteProgramSearchOrder) {
    const std::wstring stored = L"G:\\TellmarkSet\\Tool\\Tool.exe";
    auto locate = [&] {
        std::wstring program = stored, document;
        LaunchSuiteProgram(app, program, document);
        return program;
    };
    sys.addFile(L"E:\\Apps\\Orvane\\Tool.exe");
    EXPECT_EQ(locate(), L"E:\\Apps\\Orvane\\Tool.exe");
    sys.addFile(L"E:\\Drive_G\\TellmarkSet\\Tool\\Tool.exe");
    EXPECT_EQ(locate(), L"E:\\Drive_G\\TellmarkSet\\Tool\\Tool.exe");
    sys.addFile(L"`:\\Drive_G\\TellmarkSet\\Tool\\Tool.exe");
    EXPECT_EQ(locate(), L"E:\\Drive_G\\TellmarkSet\\Tool\\Tool.exe");
    sys.addFile(L"D:\\Drive_G\\TellmarkSet\\Tool\\Tool.exe");
    EXPECT_EQ(locate(), L"D:\\Drive_G\\TellmarkSet\\Tool\\Tool.exe");
    sys.addFile(L"C:\\TellmarkSet\\Tool.exe");
    EXPECT_EQ(locate(), L"C:\\TellmarkSet\\Tool.exe");
    sys.addFile(stored);
    EXPECT_EQ(locate(), stored);
    EXPECT_EQ(sys.started.back().commandLine, stored);
}

TEST_F(Launching, SuiteProgramScanReachesTheSixCharactersAfterZ) {
    sys.addFile(L"`:\\Drive_G\\T\\Tool.exe");
    std::wstring program = L"G:\\T\\Tool.exe", document;
    LaunchSuiteProgram(app, program, document);
    EXPECT_EQ(program, L"`:\\Drive_G\\T\\Tool.exe");

    app.ProgramFolder = L"b:\\Orvane";  // a drive the scan does not reach
    sys.files.clear();
    sys.addFile(L"b:\\Drive_G\\T\\Tool.exe");
    program = L"G:\\T\\Tool.exe";
    LaunchSuiteProgram(app, program, document);
    EXPECT_EQ(program, L"b:\\Drive_G\\T\\Tool.exe");
}

TEST_F(Launching, MissingSuiteProgramIsReported) {
    std::wstring program = L"G:\\TellmarkSet\\Tool\\Tool.exe", document = L"a.txt";
    LaunchSuiteProgram(app, program, document);
    EXPECT_TRUE(sys.started.empty());
    ASSERT_EQ(sys.messages.size(), 1u);
    EXPECT_EQ(sys.messages[0].text,
              L"Cannot locate the following program/file:\r\n\r\nG:\\TellmarkSet\\Tool\\Tool.exe\r\n\r\n");
}

TEST_F(Launching, RunningSuiteProgramIsBroughtForwardInstead) {
    std::wstring program = L"C:\\Suite\\Tool.exe", document = L"a.txt";
    sys.addFile(program);
    sys.windows = {appWindow(5, L"tool"), appWindow(6, L"Tool.exe"), appWindow(7, L"Tool"), appWindow(8, L"Tool")};
    LaunchSuiteProgram(app, program, document);
    EXPECT_TRUE(sys.started.empty());
    ASSERT_EQ(sys.messages.size(), 1u);
    EXPECT_EQ(sys.messages[0].text, L"Program running already");
    EXPECT_EQ(sys.messages[0].caption, L"Orvane");
    EXPECT_EQ(sys.messages[0].icon, MessageIcon::None);
    EXPECT_EQ(sys.foregrounded, std::vector<WindowRef>{7});
    EXPECT_EQ(app.LastLaunchResult, 1);
}

TEST_F(Launching, TitleInOtherCaseStartsASecondCopy) {
    std::wstring program = L"C:\\Suite\\Tool.exe", document;
    sys.addFile(program);
    sys.windows = {appWindow(5, L"TOOL")};
    LaunchSuiteProgram(app, program, document);
    EXPECT_EQ(sys.started.size(), 1u);
    EXPECT_TRUE(sys.messages.empty());
}

TEST_F(Launching, RefusedStartKeepsThePreviousResult) {
    std::wstring program = L"C:\\Suite\\Tool.exe", document;
    sys.addFile(program);
    app.LastLaunchResult = 9;
    sys.startsSucceed = false;
    LaunchSuiteProgram(app, program, document);
    EXPECT_EQ(app.LastLaunchResult, 9);
    sys.startsSucceed = true;
    sys.nextTaskId = 70000;  // does not fit the 16-bit result
    LaunchSuiteProgram(app, program, document);
    EXPECT_EQ(app.LastLaunchResult, 9);
    EXPECT_TRUE(sys.messages.empty());
}

TEST_F(Launching, CustomBrowserCommandLines) {
    app.settings.CustomBrowser = L"C:\\Web\\browser.exe";
    sys.addFile(app.settings.CustomBrowser);
    LoadCustomBrowser(app, L"");
    LoadCustomBrowser(app, L"https://mail.example.org/?a=1");
    LoadCustomBrowser(app, L"C:\\My Pages\\index.html");
    LoadCustomBrowser(app, L"\"quoted already\"");
    ASSERT_EQ(sys.started.size(), 4u);
    EXPECT_EQ(sys.started[0].commandLine, L"C:\\Web\\browser.exe");
    EXPECT_EQ(sys.started[1].commandLine, L"C:\\Web\\browser.exe https://mail.example.org/?a=1");
    EXPECT_EQ(sys.started[2].commandLine, L"C:\\Web\\browser.exe \"C:\\My Pages\\index.html\"");
    EXPECT_EQ(sys.started[3].commandLine, L"C:\\Web\\browser.exe \"\"quoted already\"\"");
    EXPECT_EQ(sys.journal[0], L"events") << "pending events run before the start";
    EXPECT_EQ(app.LaunchPath, L"C:\\Web\\browser.exe");
}

TEST_F(Launching, MissingCustomBrowserIsReportedUnderItsOwnTitle) {
    app.settings.CustomBrowser = L"C:\\Web\\gone.exe";
    LoadCustomBrowser(app, L"x");
    EXPECT_TRUE(sys.started.empty());
    ASSERT_EQ(sys.messages.size(), 1u);
    EXPECT_EQ(sys.messages[0].caption, L"Custom Browser");
    EXPECT_EQ(sys.messages[0].text, L"Cannot locate the following program/file:\r\n\r\nC:\\Web\\gone.exe\r\n\r\n");
}

TEST_F(Launching, ArgumentCommandLines) {
    LaunchWithArgument(app, L"C:\\P\\p.exe", L"");
    LaunchWithArgument(app, L"C:\\P\\p.exe", L"a");
    LaunchWithArgument(app, L"C:\\P\\p.exe", L"a b");
    ASSERT_EQ(sys.started.size(), 3u);
    EXPECT_EQ(sys.started[0].commandLine, L"C:\\P\\p.exe");
    EXPECT_EQ(sys.started[1].commandLine, L"C:\\P\\p.exe a");
    EXPECT_EQ(sys.started[2].commandLine, L"C:\\P\\p.exe \"a b\"");
    EXPECT_EQ(sys.journal[0], L"events") << "pending events run before the start";
    EXPECT_TRUE(sys.messages.empty());
}

TEST_F(Launching, ExploreOpensTheCurrentFolder) {
    sys.current = L"C:\\Some Folder";
    ExploreFolder(app, 12);
    EXPECT_EQ(sys.journal.back(), L"verb explore C:\\Some Folder in C:\\Some Folder owner 12 show 1");
    EXPECT_EQ(app.LastLaunchResult, 42);
}

}  // namespace
}  // namespace orvane
