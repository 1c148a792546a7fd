// Real launches under Wine, recorded by the probe: what only the real system shows of documents, running tools and
// the file explorer. Command lines are the unit tests' business, menu commands the end-to-end tests'.
#include <gtest/gtest.h>

#include "app.h"
#include "handles.h"
#include "launch.h"
#include "win32_system.h"
#include "win_support.h"

namespace orvane::ui {
namespace {

using namespace std::chrono_literals;
using namespace testsupport;

// The real system, with messages recorded instead of shown, so launches that report need no user to answer them.
struct RecordingSystem : Win32System {
    MessageAnswer showMessage(const std::wstring& text, const std::wstring& caption, MessageIcon, MessageButtons) override {
        messages.push_back(caption + L": " + text);
        return MessageAnswer::Ok;
    }
    std::vector<std::wstring> messages;
};

class RealLaunch : public ::testing::Test {
protected:
    void SetUp() override {
        CopyInto(EnvironmentPath(L"ORVANE_PROBE"), folder);
        GetCurrentDirectoryW(MAX_PATH, previousFolder), SetCurrentDirectoryW(current.c_str());
    }
    void TearDown() override { SetCurrentDirectoryW(previousFolder); }

    // The probe's starts once there is one, or after a while: a start that should not happen needs time to show.
    std::vector<ProbeRecord> records(bool waitForOne = true) {
        if (!waitForOne) Sleep(800);
        return ReadProbeLog(folder + L"\\probe.log", waitForOne ? 1 : 0);
    }

    const std::wstring folder = FreshFolder(EnvironmentPath(L"ORVANE_TEST_ROOT"),
        L"launch " + Wide(::testing::UnitTest::GetInstance()->current_test_info()->name()) + L" \u00e4");
    const std::wstring current = FreshFolder(folder, L"current dir");
    wchar_t previousFolder[MAX_PATH] = {};
    RecordingSystem sys;
    App app{sys};
};

TEST_F(RealLaunch, SuiteProgramOpensADocumentOfTheCurrentFolderQuotedForItsBlank) {
    std::wstring program = folder + L"\\probe.exe", document = L"n\u00f6tes b.txt";
    LaunchSuiteProgram(app, program, document);
    const auto started = records();
    ASSERT_EQ(started.size(), 1u);
    EXPECT_EQ(started[0].commandLine, Utf8(program + L" \"" + current + L"\\n\u00f6tes b.txt\""));
    EXPECT_EQ(started[0].folder, Utf8(current));
    EXPECT_TRUE(sys.messages.empty() && app.LastLaunchResult != 0);
}

TEST_F(RealLaunch, RunningSuiteProgramIsBroughtForwardNotStartedTwice) {
    WriteBytes(folder + L"\\probe.window", "");
    std::wstring program = folder + L"\\probe.exe", document;
    LaunchSuiteProgram(app, program, document);
    HWND tool = nullptr;
    // Shown, not just created: only a visible window counts as running.
    ASSERT_TRUE(WaitFor([&] { return (tool = FindWindowW(L"Static", L"probe")) && IsWindowVisible(tool); }, 10s));
    const UniqueWindow other(CreateWindowW(L"STATIC", L"other", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 100, 100, 0, 0, 0, 0));
    SetForegroundWindow(other.get());

    LaunchSuiteProgram(app, program, document);
    EXPECT_EQ(sys.messages, std::vector<std::wstring>{L"Orvane: Program running already"});
    const std::size_t started = records(false).size();  // read first: it gives the switch to the tool its time
    EXPECT_EQ(std::tuple(app.LastLaunchResult, started, GetForegroundWindow()), std::tuple(1, 1u, tool));
    PostMessageW(tool, WM_CLOSE, 0, 0);
    WaitFor([&] { return !IsWindow(tool); }, 5s);
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
