// The custom programs window, its list editor and its dialogs, driven as a
// user would through the bar's menu, the keyboard and the dialogs' buttons.
#include <gtest/gtest.h>

#include "program_test.h"
#include "resource.h"

namespace orvane::e2e {
namespace {

using namespace testsupport;

using CustomPrograms = ProgramTest;

TEST_F(CustomPrograms, RowsStartFromTheKeyboardInformationIsCopiedAndTheEditorSavesAFreshFileDroppingWhatWasNotSaved) {
    CreateDirectoryW(file(L"My Tools").c_str(), nullptr);
    CreateDirectoryW(file(L"start").c_str(), nullptr);
    CopyInto(EnvironmentPath(L"ORVANE_PROBE"), file(L"My Tools"), L"run me.exe");
    const std::string program = path(L"My Tools\\run me.exe");
    std::vector<CustomEntry> entries{{"Caf\xe9", program, path(L"start")},
                                     {"Beta", program, ""},
                                     {"Gone", path(L"gone.exe"), ""},
                                     {"Delta", program, ""}};
    WriteBytes(file(L"My.lst"), CustomListFile(entries));
    HWND dialog = open({{28, path(L"My.lst")}}, L"C&ustom programs", L"Custom programs");
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(
        Becomes(std::vector<std::wstring>{L"Caf\u00e9", L"Beta"}, ListViewTexts, GetDlgItem(dialog, IDC_GRID1), 1));
    EXPECT_TRUE(Becomes(std::vector<std::wstring>{L"Gone", L"Delta"}, ListViewTexts, GetDlgItem(dialog, IDC_GRID2), 1));

    PressKeys(dialog, {VK_RETURN});
    const std::wstring log = file(L"My Tools\\probe.log");
    const ProbeRecord started = ReadProbeLog(log, 1).at(0);
    EXPECT_EQ(std::pair(started.commandLine, started.folder), std::pair(program, path(L"start")));
    for (WORD key : {VK_DOWN, VK_RIGHT, VK_RETURN})
        PressKeys(dialog, {key});
    EXPECT_TRUE(AnswerMessage(orvane->id(),
                              L"Cannot locate the following program/file:\r\n\r\n" + file(L"gone.exe") + L"\r\n\r\n"));
    EXPECT_EQ(ReadProbeLog(log).size(), 1u) << "nothing else started";

    HWND info = FromPopupMenu(*orvane, dialog, 'I', L"File information");
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(ControlText(info, IDC_INFO_EXISTS), L"File exists: YES");
    PressButton(info, IDC_INFO_CLIP);
    ASSERT_TRUE(
        AnswerMessage(orvane->id(), L"You can retrieve this text by pressing Ctrl-V or using the \"Paste\" option."));
    EXPECT_TRUE(ClipboardText().starts_with(L"File: My.lst\r\nPath: " + folder.path() + L"\r\n\r\nSize: "))
        << Utf8(ClipboardText());
    ASSERT_TRUE(EscapeFrom(info));

    HWND editor = FromPopupMenu(*orvane, dialog, 'E', L"Custom programs ( " + file(L"My.lst") + L" )");
    ASSERT_NE(editor, nullptr);
    HWND lines = GetDlgItem(editor, IDC_EDITOR_LINES);
    EXPECT_EQ(ControlText(lines, IDC_FIRST_NAME_FIELD), L"Caf\u00e9");
    SetControlText(lines, IDC_FIRST_NAME_FIELD, L"Uno");
    PressButton(editor, IDC_FIRST_EDITOR_BUTTON + 1); // Save list
    ASSERT_TRUE(AnswerFileDialog(WaitForDialogTitled(orvane->id(), L"Browse files"), file(L"New")));
    const std::wstring saved = file(L"New.lst");
    // The caption names the file once it has been written.
    ASSERT_TRUE(Becomes(L"Custom programs ( " + saved + L" )", TextOf, editor));
    entries[0].name = "Uno";
    EXPECT_EQ(ReadBytes(saved), CustomListFile(entries));

    SetControlText(lines, IDC_FIRST_NAME_FIELD + 1, L"Not saved");
    ASSERT_TRUE(EscapeFrom(editor));
    // The saved file, without the edit made after; the current rows stay.
    EXPECT_TRUE(Becomes(std::vector<std::wstring>{L"Uno", L"Beta"}, ListViewTexts, GetDlgItem(dialog, IDC_GRID1), 1));
    ASSERT_TRUE(EscapeFrom(dialog));
    const auto settings = closeAndReadSettings();
    EXPECT_EQ(std::pair(settings.at(25), settings.at(26)), std::pair(std::string("1"), std::string("0")))
        << "current rows";
    EXPECT_GT(std::stoi(settings.at(24)), 0) << "width";
}

} // namespace
} // namespace orvane::e2e
