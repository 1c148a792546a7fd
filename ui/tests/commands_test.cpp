// Menu commands on awkward settings, against the real file system and shell:
// each gets its message or starts what it should, and nothing else happens.
#include <gtest/gtest.h>

#include <functional>

#include "app.h"
#include "commands.h"
#include "recording_routines.h"
#include "recording_system.h"
#include "win_support.h"

namespace orvane::ui {
namespace {

using namespace std::chrono_literals;
using namespace testsupport;

struct BadInput {
    const char* what;
    const wchar_t* caption;
    std::function<void(Settings&, const std::wstring& folder)> set;
    std::wstring expected;  // the message, or the started command line after the program's quoted path
};

TEST(BadInput, GetsItsMessageOrItsSpecifiedStart) {
    const std::wstring folder = FreshFolder(EnvironmentPath(L"ORVANE_TEST_ROOT"), L"bad input");
    const std::wstring probe = EnvironmentPath(L"ORVANE_PROBE");
    for (const wchar_t* tool : {L"TS_ScratchPad.exe", L"TS_Grid.exe"}) CopyInto(probe, folder, tool);
    CreateDirectoryW((folder + L"\\My Files").c_str(), nullptr);
    WriteBytes(folder + L"\\My Files\\a b.txt", "x");
    // A document deeper than MAX_PATH characters.
    const std::wstring deep = folder + L"\\" + std::wstring(120, L'd') + L"\\" + std::wstring(120, L'e');
    CreateDirectoryW((L"\\\\?\\" + deep.substr(0, deep.rfind(L'\\'))).c_str(), nullptr);
    CreateDirectoryW((L"\\\\?\\" + deep).c_str(), nullptr);
    WriteBytes(L"\\\\?\\" + deep + L"\\deadlines.txt", "x");
    const std::wstring missing = L"Cannot locate the following program/file:\r\n\r\n";

    const BadInput cases[] = {
        {"a folder named as Word", L"&Word", [](Settings& s, auto& f) { s.WordPath = f + L"\\My Files"; },
         L"Orvane: " + missing + L"C:\\Program Files\\\\Microsoft Office\\Office\\WINWORD.EXE\r\n\r\n"},
        {"quotes around the browser", L"&Custom browser",
         [&](Settings& s, auto&) { s.CustomBrowser = L"\"" + probe + L"\""; },
         L"Orvane: " + missing + L"\"" + probe + L"\"\r\n\r\n"},
        {"no browser", L"&Custom browser", [](Settings& s, auto&) { s.CustomBrowser.clear(); },
         L"Orvane: " + missing + L"( Filename empty! )\r\n\r\n"},
        {"a document with blanks, passed unquoted", L"Load Addr&esses file",
         [](Settings& s, auto& f) { s.AddressesFile = f + L"\\My Files\\a b.txt"; }, L" " + folder + L"\\My Files\\a b.txt"},
        {"a document past MAX_PATH", L"Load &Deadlines file",
         [&](Settings& s, auto&) { s.DeadlinesFile = deep + L"\\deadlines.txt"; }, L" " + deep + L"\\deadlines.txt"},
    };
    std::size_t starts = 0;
    for (const BadInput& c : cases) {
        SCOPED_TRACE(c.what);
        RecordingSystem sys;
        App app{sys};
        app.ProgramFolder = folder;
        app.ProgramFilesFolder = L"C:\\Program Files\\";
        testing::RecordingRoutines window;
        MainCommands commands(app, window);
        c.set(app.settings, folder);
        commands.dispatch(c.caption);
        if (c.expected.rfind(L"Orvane: ", 0) == 0) {
            EXPECT_EQ(sys.messages, std::vector<std::wstring>{c.expected});
            continue;
        }
        EXPECT_TRUE(sys.messages.empty());
        std::vector<ProbeRecord> records;
        WaitFor([&] { return (records = ReadProbeLog(folder + L"\\probe.log")).size() > starts; }, 10s);
        ASSERT_EQ(records.size(), ++starts);
        EXPECT_EQ(Wide(records.back().commandLine), L"\"" + app.CurrentProgramPath + L"\"" + c.expected);
    }
    Sleep(500);
    EXPECT_EQ(ReadProbeLog(folder + L"\\probe.log").size(), starts) << "nothing else started";
}

}  // namespace
}  // namespace orvane::ui
