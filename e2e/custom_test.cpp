// The custom programs window, its list editor and its dialogs, driven as a
// user would through the bar's menu, the keyboard and the dialogs' buttons.
#include <gtest/gtest.h>

#include <memory>

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
    HWND open(const std::string& list) {
        WriteBytes(folder.path() + L"\\My.lst", list);
        WriteBytes(folder.settingsFile(), SettingsText({{28, path(L"My.lst")}}));
        orvane = std::make_unique<OrvaneProcess>(folder);
        HWND bar = orvane->waitForMainWindow();
        return bar && PickMenuItem(bar, L"C&ustom programs") ? WaitForDialogTitled(orvane->id(), L"Custom programs") : nullptr;
    }
    std::string path(const std::wstring& name) { return Utf8(folder.path() + L"\\" + name); }
    // The names a grid shows, once it shows them.
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

TEST_F(CustomPrograms, EnterStartsTheRowInItsFolderMissingProgramsAreReportedAndRowsAreKept) {
    CreateDirectoryW((folder.path() + L"\\My Tools").c_str(), nullptr);
    CreateDirectoryW((folder.path() + L"\\start").c_str(), nullptr);
    CopyInto(EnvironmentPath(L"ORVANE_PROBE"), folder.path() + L"\\My Tools", L"run me.exe");
    const std::string program = path(L"My Tools\\run me.exe");
    HWND dialog = open(CustomListFile({{"Caf\xe9", program, path(L"start")}, {"Beta", program, ""},
                                       {"Gone", path(L"gone.exe"), ""}, {"Delta", program, ""}}));
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Names(dialog, IDC_GRID1, 2), (std::vector<std::wstring>{L"Caf\u00e9", L"Beta"}));
    EXPECT_EQ(Names(dialog, IDC_GRID2, 2), (std::vector<std::wstring>{L"Gone", L"Delta"}));

    PressKeys(dialog, {VK_RETURN});
    const std::wstring log = folder.path() + L"\\My Tools\\probe.log";
    const auto started = ReadProbeLog(log, 1);
    ASSERT_EQ(started.size(), 1u);
    EXPECT_EQ(std::pair(started[0].commandLine, started[0].folder), std::pair(program, path(L"start")));
    for (WORD key : {VK_DOWN, VK_RIGHT, VK_RETURN}) PressKeys(dialog, {key});
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

TEST_F(CustomPrograms, InformationIsCopiedAndTheEditorSavesAFreshFileAndDropsWhatWasNotSaved) {
    HWND dialog = open(CustomListFile({{"One", "D:\\Tools\\e.exe", "C:\\Work"}, {"Two", "C:\\two.exe", ""}}));
    ASSERT_NE(dialog, nullptr);
    ASSERT_EQ(Names(dialog, IDC_GRID1, 1).size(), 1u);

    Popup(dialog, 'I');
    HWND info = WaitForDialogTitled(orvane->id(), L"File information"); ASSERT_NE(info, nullptr);
    EXPECT_EQ(ControlText(info, IDC_INFO_EXISTS), L"File exists: YES");
    PressButton(info, IDC_INFO_CLIP);
    ASSERT_TRUE(AnswerMessage(orvane->id(), L"You can retrieve this text by pressing Ctrl-V or using the \"Paste\" option."));
    EXPECT_TRUE(ClipboardText().starts_with(L"File: My.lst\r\nPath: " + folder.path() + L"\r\n\r\nSize: ")) << Utf8(ClipboardText());
    PressKeys(info, {VK_ESCAPE});
    ASSERT_TRUE(WaitFor([&] { return !IsWindow(info); }, 5s));

    Popup(dialog, 'E');
    HWND editor = WaitForDialogTitled(orvane->id(), L"Custom programs ( " + Wide(path(L"My.lst")) + L" )");
    ASSERT_NE(editor, nullptr);
    HWND lines = GetDlgItem(editor, IDC_EDITOR_LINES);
    EXPECT_EQ(ControlText(lines, IDC_FIRST_NAME_FIELD), L"One");
    SetControlText(lines, IDC_FIRST_NAME_FIELD, L"Uno");
    PressButton(editor, IDC_FIRST_EDITOR_BUTTON + 1);  // Save list
    ASSERT_TRUE(AnswerFileDialog(WaitForDialogTitled(orvane->id(), L"Browse files"), folder.path() + L"\\New"));
    const std::wstring saved = folder.path() + L"\\New.lst";
    ASSERT_TRUE(WaitFor([&] { return GetFileAttributesW(saved.c_str()) != INVALID_FILE_ATTRIBUTES; }, 10s));
    EXPECT_EQ(ReadBytes(saved), CustomListFile({{"Uno", "D:\\Tools\\e.exe", "C:\\Work"}, {"Two", "C:\\two.exe", ""}}));
    EXPECT_TRUE(WaitFor([&] { return TextOf(editor) == L"Custom programs ( " + saved + L" )"; }, 5s));

    SetControlText(lines, IDC_FIRST_NAME_FIELD + 1, L"Not saved");
    PressKeys(editor, {VK_ESCAPE});
    ASSERT_TRUE(WaitFor([&] { return !IsWindow(editor); }, 5s));
    EXPECT_TRUE(WaitFor([&] { return ListViewTexts(GetDlgItem(dialog, IDC_GRID1), 1) == std::vector<std::wstring>{L"Uno"} &&
                                     ListViewTexts(GetDlgItem(dialog, IDC_GRID2), 1) == std::vector<std::wstring>{L"Two"}; }, 5s))
        << "the saved file, without the edit made after";
}

}  // namespace
}  // namespace orvane::e2e
