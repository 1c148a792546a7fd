// Menu commands on awkward settings against the real file system and shell.
#include <gtest/gtest.h>

#include "app.h"
#include "commands.h"
#include "recording_routines.h"
#include "recording_system.h"
#include "win_support.h"

namespace orvane::ui {
namespace {

using namespace std::chrono_literals;
using namespace testsupport;

TEST(BadInput, FoldersAndLongOrBlankDocumentsGetTheirMessageOrTheirStart) {
    const std::wstring folder = FreshFolder(EnvironmentPath(L"ORVANE_TEST_ROOT"), L"bad input");
    for (const wchar_t* tool : {L"TS_ScratchPad.exe", L"TS_Grid.exe"})
        CopyInto(EnvironmentPath(L"ORVANE_PROBE"), folder, tool);
    // A document with blanks, and one deeper than MAX_PATH characters.
    const std::wstring blanks = folder + L"\\My Files\\a b.txt";
    const std::wstring deep = folder + L"\\" + std::wstring(120, L'd') + L"\\" + std::wstring(120, L'e');
    CreateDirectoryW((folder + L"\\My Files").c_str(), nullptr);
    CreateDirectoryW((L"\\\\?\\" + deep.substr(0, deep.rfind(L'\\'))).c_str(), nullptr);
    CreateDirectoryW((L"\\\\?\\" + deep).c_str(), nullptr);
    WriteBytes(blanks, "x");
    WriteBytes(L"\\\\?\\" + deep + L"\\deadlines.txt", "x");

    RecordingSystem sys;
    App app{sys};
    app.ProgramFolder = folder;
    app.ProgramFilesFolder = L"C:\\Program Files\\";
    testing::RecordingRoutines window;
    MainCommands commands(app, window);
    app.settings.WordPath = folder + L"\\My Files";  // a folder is no program
    commands.dispatch(L"&Word");
    EXPECT_EQ(sys.messages, std::vector<std::wstring>{L"Orvane: Cannot locate the following program/file:\r\n\r\n"
                                                      L"C:\\Program Files\\\\Microsoft Office\\Office\\WINWORD.EXE\r\n\r\n"});
    // Documents go to their tool as they are: unquoted, however long.
    app.settings.AddressesFile = blanks;
    app.settings.DeadlinesFile = deep + L"\\deadlines.txt";
    const std::wstring log = folder + L"\\probe.log";
    std::vector<ProbeRecord> records;
    commands.dispatch(L"Load Addr&esses file");
    WaitFor([&] { return ReadProbeLog(log).size() == 1; }, 10s);  // one at a time keeps the log in order
    commands.dispatch(L"Load &Deadlines file");
    WaitFor([&] { return (records = ReadProbeLog(log)).size() == 2; }, 10s);
    ASSERT_EQ(records.size(), 2u);
    EXPECT_EQ(Wide(records[0].commandLine), L"\"" + folder + L"\\TS_Grid.exe\" " + blanks);
    EXPECT_EQ(Wide(records[1].commandLine), L"\"" + folder + L"\\TS_ScratchPad.exe\" " + deep + L"\\deadlines.txt");
    EXPECT_EQ(sys.messages.size(), 1u);
}

}  // namespace
}  // namespace orvane::ui
