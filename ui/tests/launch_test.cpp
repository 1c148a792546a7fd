// Real launches under Wine: the probe records the exact command line and
// working folder of every start. What leads to a report instead of a start is
// the unit tests' business; here the real system runs what the logic built.
#include <gtest/gtest.h>

#include "app.h"
#include "launch.h"
#include "recording_system.h"
#include "win_support.h"

namespace orvane::ui {
namespace {

using namespace std::chrono_literals;
using namespace testsupport;

class RealLaunch : public ::testing::Test {
protected:
    void SetUp() override {
        const std::wstring root = WindowsPath(EnvironmentValue(L"ORVANE_TEST_ROOT"));
        const std::wstring name = Wide(::testing::UnitTest::GetInstance()->current_test_info()->name());
        folder = FreshFolder(root, L"launch " + name + L" \u00e4");
        current = FreshFolder(folder, L"current dir");
        probe = folder + L"\\probe.exe";
        CopyInto(WindowsPath(EnvironmentValue(L"ORVANE_PROBE")), folder);
        GetCurrentDirectoryW(MAX_PATH, previousFolder);
        SetCurrentDirectoryW(current.c_str());
        app.ProgramFolder = folder + L"\\program";
    }
    void TearDown() override { SetCurrentDirectoryW(previousFolder); }

    // The starts of the probe in that folder, once there are at least count of them.
    std::vector<ProbeRecord> waitForRecords(std::size_t count, const std::wstring& in = L"") {
        std::vector<ProbeRecord> records;
        const std::wstring log = (in.empty() ? folder : in) + L"\\probe.log";
        WaitFor([&] { return (records = ReadProbeLog(log)).size() >= count; }, 10s);
        return records;
    }
    // Absence needs a wait: a start that should not happen gets time to show up.
    std::size_t recordsAfterAWhile() {
        Sleep(800);
        return ReadProbeLog(folder + L"\\probe.log").size();
    }

    std::wstring folder, current, probe;
    wchar_t previousFolder[MAX_PATH] = {};
    RecordingSystem sys;
    App app{sys};
};

TEST_F(RealLaunch, ExecuteProcessRunsTheProgramInItsOwnFolderOrABareNameInTheCurrentOne) {
    ASSERT_TRUE(ExecuteProcess(app, probe, 0, 1, L"plain \"two words\" \u00fcml", false));
    auto records = waitForRecords(1);
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].commandLine, Utf8(L"\"" + probe + L"\" plain \"two words\" \u00fcml"));
    EXPECT_EQ(records[0].folder, Utf8(folder));

    CopyInto(probe, current);
    ASSERT_TRUE(ExecuteProcess(app, L"probe.exe", 0, 1, L"", false));
    records = waitForRecords(1, current);
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].folder, Utf8(current));
}

TEST_F(RealLaunch, SuiteProgramOpensADocumentOfTheCurrentFolder) {
    std::wstring program = probe, document = L"notes.txt";
    LaunchSuiteProgram(app, program, document);
    const auto records = waitForRecords(1);
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].commandLine, Utf8(probe + L" \"" + current + L"\\notes.txt\""));
    EXPECT_EQ(records[0].folder, Utf8(current));
    EXPECT_TRUE(sys.messages.empty());
    EXPECT_NE(app.LastLaunchResult, 0);
}

TEST_F(RealLaunch, SuiteProgramFoundBesideThisProgramAfterScanningEveryDriveFolder) {
    CreateDirectoryW(app.ProgramFolder.c_str(), nullptr);
    CopyInto(probe, app.ProgramFolder, L"Tool.exe");
    std::wstring program = L"C:\\Drive_Q\\TellmarkSet\\Tool\\Tool.exe", document = L"C:\\a.txt";
    LaunchSuiteProgram(app, program, document);
    EXPECT_EQ(program, app.ProgramFolder + L"\\Tool.exe");
    const auto records = waitForRecords(1, app.ProgramFolder);
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].commandLine, Utf8(program + L" C:\\a.txt"));
}

TEST_F(RealLaunch, RunningSuiteProgramIsBroughtForwardNotStartedTwice) {
    WriteBytes(folder + L"\\probe.window", "");
    CopyInto(probe, folder, L"Tool.exe");
    std::wstring program = folder + L"\\Tool.exe", document;
    LaunchSuiteProgram(app, program, document);
    HWND tool = nullptr;
    // Shown, not just created: only a visible window counts as running.
    ASSERT_TRUE(WaitFor([&] { return (tool = FindWindowW(L"Orvane.Probe", L"Tool")) && IsWindowVisible(tool); }, 10s));
    HWND other = CreateWindowW(L"STATIC", L"other", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 100, 100, nullptr,
                               nullptr, nullptr, nullptr);
    SetForegroundWindow(other);

    LaunchSuiteProgram(app, program, document);
    ASSERT_EQ(sys.messages.size(), 1u);
    EXPECT_EQ(sys.messages[0], L"Orvane: Program running already");
    EXPECT_EQ(app.LastLaunchResult, 1);
    EXPECT_EQ(recordsAfterAWhile(), 1u);
    EXPECT_EQ(GetForegroundWindow(), tool);

    DestroyWindow(other);
    PostMessageW(tool, WM_CLOSE, 0, 0);
    WaitFor([&] { return !IsWindow(tool); }, 5s);
}

TEST_F(RealLaunch, BrowserAndArgumentStartsQuoteOnlyWithABlankAndSayNothingWhenTheyFail) {
    app.settings.CustomBrowser = probe;
    const std::pair<std::wstring, std::wstring> starts[] = {
        {L"https://mail.example.org/?a=1&b=2", probe + L" https://mail.example.org/?a=1&b=2"},
        {L"C:\\My Pages\\index \u00fc.html", probe + L" \"C:\\My Pages\\index \u00fc.html\""},
        {L"", probe},
    };
    for (std::size_t i = 0; i < 3; ++i) {  // one at a time, so the log keeps their order
        LoadCustomBrowser(app, starts[i].first);
        LaunchWithArgument(app, probe, starts[i].first);
        const auto records = waitForRecords(2 * i + 2);
        ASSERT_EQ(records.size(), 2 * i + 2);
        EXPECT_EQ(records[2 * i].commandLine, Utf8(starts[i].second));
        EXPECT_EQ(records[2 * i + 1].commandLine, Utf8(starts[i].second));
        EXPECT_EQ(records[2 * i].folder, Utf8(current));
    }
    LaunchWithArgument(app, folder + L"\\gone.exe", L"x");
    EXPECT_EQ(recordsAfterAWhile(), 6u);
    EXPECT_TRUE(sys.messages.empty());
}

TEST_F(RealLaunch, ExploreOpensTheCurrentFolderInTheFileExplorer) {
    ExploreFolder(app, 0);
    EXPECT_GT(app.LastLaunchResult, 32);
    // Wine's file explorer titles its window with the folder's name.
    HWND explorer = nullptr;
    ASSERT_TRUE(WaitFor([&] { return (explorer = FindWindowW(L"ExplorerWClass", L"current dir")) != nullptr; }, 10s));
    PostMessageW(explorer, WM_CLOSE, 0, 0);
}

}  // namespace
}  // namespace orvane::ui
