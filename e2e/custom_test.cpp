// The custom programs window, its list editor and its dialogs, driven as a
// user would through the bar's menu, the keyboard and the dialogs' buttons.
#include <gtest/gtest.h>

#include <memory>
#include <regex>

#include "orvane_process.h"
#include "program_windows.h"
#include "resource.h"
#include "win_support.h"

namespace orvane::e2e {
namespace {

using namespace testsupport;

class CustomPrograms : public ::testing::Test {
protected:
    // The bar on a list file, with its custom programs window open.
    HWND open(const std::string& list, const std::wstring& listFile = L"My.lst") {
        if (!list.empty()) WriteBytes(folder.path() + L"\\" + listFile, list);
        WriteBytes(folder.settingsFile(), SettingsText({{28, path(listFile)}}));
        orvane = std::make_unique<OrvaneProcess>(folder);
        HWND bar = orvane->waitForMainWindow();
        if (!bar || !PickMenuItem(bar, L"C&ustom programs")) return nullptr;
        return WaitForDialogTitled(orvane->id(), L"Custom programs");
    }
    std::string path(const std::wstring& name) { return Utf8(folder.path() + L"\\" + name); }
    // The names the grid shows, once it shows them.
    static std::vector<std::wstring> Names(HWND dialog, int grid, std::size_t count) {
        std::vector<std::wstring> names;
        WaitFor([&] { return (names = ListViewTexts(GetDlgItem(dialog, grid), 1)).size() == count; }, 5s);
        return names;
    }
    // A popup item by its access letter, from the keyboard.
    static void Popup(HWND dialog, WORD letter) {
        PressKeys(dialog, {VK_SHIFT, VK_F10});
        Sleep(300);
        PressKeys(dialog, {letter});
    }

    ProgramFolder folder{Wide(::testing::UnitTest::GetInstance()->current_test_info()->name())};
    std::unique_ptr<OrvaneProcess> orvane;
};

TEST_F(CustomPrograms, EnterStartsTheRowInItsFolderBlankRowsDoNothingMissingProgramsAreReportedAndRowsAreKept) {
    CreateDirectoryW((folder.path() + L"\\My Tools").c_str(), nullptr);
    CreateDirectoryW((folder.path() + L"\\start").c_str(), nullptr);
    CopyInto(EnvironmentPath(L"ORVANE_PROBE"), folder.path() + L"\\My Tools", L"run me.exe");
    const std::string program = path(L"My Tools\\run me.exe");
    HWND dialog = open(CustomListFile({{"Caf\xe9", program, path(L"start")},
                                       {"  ", program, ""},
                                       {"Gone", path(L"gone.exe"), ""},
                                       {"Delta", program, ""}}));
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Names(dialog, IDC_GRID1, 2), (std::vector<std::wstring>{L"Caf\u00e9", L"  "}));
    EXPECT_EQ(Names(dialog, IDC_GRID2, 2), (std::vector<std::wstring>{L"Gone", L"Delta"}));

    PressKeys(dialog, {VK_RETURN});
    const std::wstring log = folder.path() + L"\\My Tools\\probe.log";
    const auto started = ReadProbeLog(log, 1);
    ASSERT_EQ(started.size(), 1u);
    EXPECT_EQ(started[0].commandLine, program) << "unquoted, as the list holds it";
    EXPECT_EQ(started[0].folder, path(L"start"));

    PressKeys(dialog, {VK_DOWN});
    PressKeys(dialog, {VK_RETURN});  // the blank row
    EXPECT_EQ(WaitForDialogTitled(orvane->id(), L"Orvane", 2s), nullptr) << "no message";
    PressKeys(dialog, {VK_RIGHT});
    PressKeys(dialog, {VK_RETURN});
    EXPECT_TRUE(AnswerMessage(orvane->id(), L"Cannot locate the following program/file:\r\n\r\n" +
                                                Wide(path(L"gone.exe")) + L"\r\n\r\n"));
    EXPECT_EQ(ReadProbeLog(log).size(), 1u) << "nothing else started";

    PressKeys(dialog, {VK_ESCAPE});
    ASSERT_TRUE(WaitFor([&] { return !IsWindow(dialog); }, 5s));
    orvane->close();
    ASSERT_EQ(orvane->waitForExit(), 0u);
    const auto settings = SplitCrLf(ReadBytes(folder.settingsFile()));
    EXPECT_EQ(std::pair(settings.at(25), settings.at(26)), std::pair(std::string("1"), std::string("0"))) << "current rows";
    EXPECT_GT(std::stoi(settings.at(24)), 0) << "width";
}

TEST_F(CustomPrograms, InformationIsCopiedTheEntryDialogTogglesX86AndTheEditorSavesAFreshFileAndDropsWhatWasNotSaved) {
    // A folder long enough for the size to need its thousands separator.
    const std::string deep = "C:\\" + std::string(1200, 'd');
    const std::string list = CustomListFile({{"One", "D:\\Tools\\Editors\\e.exe", "C:\\Work"}, {"Two", "C:\\two.exe", deep}});
    HWND dialog = open(list);
    ASSERT_NE(dialog, nullptr);
    ASSERT_EQ(Names(dialog, IDC_GRID1, 1).size(), 1u);

    Popup(dialog, 'I');
    HWND info = WaitForDialogTitled(orvane->id(), L"File information");
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(ControlText(info, IDC_INFO_EXISTS), L"File exists: YES");
    PressButton(info, IDC_INFO_CLIP);
    ASSERT_TRUE(AnswerMessage(orvane->id(), L"You can retrieve this text by pressing Ctrl-V or using the \"Paste\" option."));
    const std::regex copied("File: My\\.lst\r\nPath: (.*)\r\n\r\nSize: ([0-9]),([0-9]{3})\r\nAltered: .+\r\n\r\n"
                            "Time: [0-9]{2}:[0-9]{2}:[0-9]{2}\r\nDate: .+, .+ [0-9]+ [0-9]{4}\r\n");
    std::smatch parts;
    const std::string text = Utf8(ClipboardText());
    ASSERT_TRUE(std::regex_match(text, parts, copied)) << text;
    EXPECT_EQ(parts[1], Utf8(folder.path()));
    EXPECT_EQ(std::stoul(parts[2]) * 1000 + std::stoul(parts[3]), list.size());
    PressKeys(info, {VK_ESCAPE});
    ASSERT_TRUE(WaitFor([&] { return !IsWindow(info); }, 5s));

    Popup(dialog, 'E');
    HWND editor = WaitForDialogTitled(orvane->id(), L"Custom programs ( " + Wide(path(L"My.lst")) + L" )");
    ASSERT_NE(editor, nullptr);
    HWND lines = GetDlgItem(editor, IDC_EDITOR_LINES);
    EXPECT_EQ(ControlText(lines, IDC_FIRST_NAME_FIELD), L"One");
    // Down and Up move between lines, Ctrl+Right to the line's program.
    for (const auto& [keys, focus] : {std::pair(std::vector<WORD>{VK_DOWN}, IDC_FIRST_NAME_FIELD + 1),
                                      std::pair(std::vector<WORD>{VK_CONTROL, VK_RIGHT}, IDC_FIRST_PROGRAM_FIELD + 1),
                                      std::pair(std::vector<WORD>{VK_UP}, IDC_FIRST_PROGRAM_FIELD)}) {
        keys.size() == 1 ? PressKeys(editor, {keys[0]}) : PressKeys(editor, {keys[0], keys[1]});
        EXPECT_TRUE(WaitFor([&] { return FocusOf(editor) == GetDlgItem(lines, focus); }, 5s)) << focus;
    }
    PressButton(editor, IDC_GET_PROGRAM);
    HWND entry = WaitForDialogTitled(orvane->id(), L"Program and startup folder");
    ASSERT_NE(entry, nullptr);
    PressButton(entry, IDC_TOGGLE_X86);
    EXPECT_TRUE(WaitFor([&] { return ControlText(entry, IDC_ENTRY_FILE) == L"D:\\Tools\\Editors (x86)\\e.exe"; }, 5s));
    PressButton(entry, IDOK);
    EXPECT_TRUE(WaitFor([&] { return ControlText(lines, IDC_FIRST_PROGRAM_FIELD) == L"D:\\Tools\\Editors (x86)\\e.exe"; }, 5s));

    SetControlText(lines, IDC_FIRST_NAME_FIELD, L"Uno");
    PressButton(editor, IDC_FIRST_EDITOR_BUTTON + 1);  // Save list
    HWND save = WaitForDialogTitled(orvane->id(), L"Browse files");
    ASSERT_TRUE(AnswerFileDialog(save, folder.path() + L"\\New"));
    const std::wstring saved = folder.path() + L"\\New.lst";
    ASSERT_TRUE(WaitFor([&] { return GetFileAttributesW(saved.c_str()) != INVALID_FILE_ATTRIBUTES; }, 10s));
    EXPECT_EQ(ReadBytes(saved),
              CustomListFile({{"Uno", "D:\\Tools\\Editors (x86)\\e.exe", "C:\\Work"}, {"Two", "C:\\two.exe", deep}}));
    EXPECT_TRUE(WaitFor([&] { return TextOf(editor) == L"Custom programs ( " + saved + L" )"; }, 5s));

    SetControlText(lines, IDC_FIRST_NAME_FIELD + 1, L"Not saved");
    PressKeys(editor, {VK_ESCAPE});
    ASSERT_TRUE(WaitFor([&] { return !IsWindow(editor); }, 5s));
    EXPECT_TRUE(WaitFor([&] { return ListViewTexts(GetDlgItem(dialog, IDC_GRID1), 1) == std::vector<std::wstring>{L"Uno"} &&
                                     ListViewTexts(GetDlgItem(dialog, IDC_GRID2), 1) == std::vector<std::wstring>{L"Two"}; },
                        5s))
        << "the saved file, without the edit made after";
}

}  // namespace
}  // namespace orvane::e2e
