// The web list window driven as a user would: opened from the bar's menu,
// rows checked with the keyboard, websites opened in a probe browser, a row
// added and saved, and the files it cannot save or read.
#include <gtest/gtest.h>

#include <array>
#include <tuple>

#include "helpers.h"
#include "program_test.h"
#include "reports.h"
#include "resource.h"

namespace orvane::e2e {
namespace {

using namespace testsupport;

class WebList : public ProgramTest {
protected:
    // The bar on a list file, the probe as browser 2 and chosen, with its web list window open.
    HWND open(const std::string &list, const std::wstring &listFile = L"Sites.lst") {
        CreateDirectoryW(file(L"My Browser").c_str(), nullptr);
        CopyInto(EnvironmentPath(L"ORVANE_PROBE"), file(L"My Browser"), L"web probe.exe");
        WriteBytes(file(listFile), list);
        return ProgramTest::open({{33, path(listFile)}, {34, "C:\\none.exe"}, {35, browser()}, {37, "2"}},
                                 L"Open &web list", L"Website list*");
    }
    std::string browser() const {
        return path(L"My Browser\\web probe.exe");
    }
    std::vector<ProbeRecord> started(std::size_t n) const {
        return ReadProbeLog(file(L"My Browser\\probe.log"), n);
    }
};

TEST_F(WebList, RowsAndChecksAsInTheFileCheckedOnesOpenInOneCommandLineARowAddedIsSavedAndLeavingUnsavedAsks) {
    HWND window = open(WebListFile({{"Alpha", "a", "1"},
                                    {"Beta", "b", "0"},
                                    {".   .   .   .   .   .   .   .   .", "", "0"},
                                    {"Gamma", "c", "0"},
                                    {"Delta", "d", "1"}},
                                   "a b\r\n"));
    ASSERT_NE(window, nullptr);
    HWND rows = GetDlgItem(window, IDC_WEB_ROWS);
    EXPECT_EQ(ListViewTexts(rows, 1), (std::vector<std::wstring>{L"a", L"b", L"", L"c", L"d"}));
    EXPECT_EQ(ListViewChecks(rows), (std::vector<bool>{true, false, false, false, true}));

    // Delta unchecked, Beta checked, from the keyboard; then F12 loads them.
    for (WORD key : {VK_END, VK_SPACE, VK_HOME, VK_DOWN, VK_SPACE})
        PressKeys(window, {key});
    EXPECT_TRUE(Becomes(std::vector<bool>{true, true, false, false, false}, ListViewChecks, rows));
    PressKeys(window, {VK_F12});
    EXPECT_EQ(started(1).at(0).commandLine, browser() + " a b ") << "the path unquoted, every address with its blank";

    // Four checked: the question, and No starts nothing.
    for (WORD key : {VK_DOWN, VK_DOWN, VK_SPACE, VK_DOWN, VK_SPACE})
        PressKeys(window, {key});
    ASSERT_TRUE(Becomes(std::vector<bool>{true, true, false, true, true}, ListViewChecks, rows));
    ASSERT_TRUE(PickMenuItem(window, L"&Load checked items"));
    ASSERT_TRUE(AnswerMessage(orvane->id(), L"Load 4 selected websites from list?", IDNO));
    EXPECT_EQ(started(2).size(), 1u);

    // A row added after the current one, Delta, through the edit panel; saved under a new name.
    PressKeys(window, {VK_F5});
    ASSERT_TRUE(Becomes(TRUE, IsWindowVisible, GetDlgItem(window, IDC_EDIT_NAME)));
    SetControlText(window, IDC_EDIT_NAME, L"Caf\u00e9");
    SetControlText(window, IDC_EDIT_SITE, L"http://cafe");
    PressKeys(window, {VK_RETURN});
    EXPECT_TRUE(
        Becomes(std::vector<std::wstring>{L"a", L"b", L"", L"c", L"d", L"http://cafe"}, ListViewTexts, rows, 1));
    PressKeys(window, {VK_CONTROL, 'S'});
    ASSERT_TRUE(AnswerFileDialog(WaitForDialogTitled(orvane->id(), L"Save web list to disk"), file(L"Saved")));
    const std::wstring saved = file(L"Saved.lst");
    ASSERT_TRUE(Becomes(L"Website list :  " + saved + L"  ( 6 entries )", TextOf, window));
    const std::string bytes =
        "Alpha\r\na\r\n1\r\nBeta\r\nb\r\n1\r\n.   .   .   .   .   .   .   .   .\r\n\r\n0\r\nGamma\r\nc\r\n1\r\n"
        "Delta\r\nd\r\n1\r\nCaf\xe9\r\nhttp://cafe\r\n0\r\n***\r\na b\r\n\r\n";
    EXPECT_EQ(ReadBytes(saved), bytes);

    // Another edit, then closing asks; No closes it unsaved, keeping the browser chosen last.
    PressKeys(window, {VK_CONTROL, VK_INSERT});
    EXPECT_TRUE(Becomes(7, ListViewRows, rows));
    PressButton(window, IDC_FIRST_BROWSER_CHOICE);
    EXPECT_TRUE(Becomes(UINT(BST_CHECKED), IsDlgButtonChecked, window, IDC_FIRST_BROWSER_CHOICE));
    PostMessageW(window, WM_CLOSE, 0, 0);
    ASSERT_TRUE(AnswerMessage(orvane->id(), L"Save list before exiting this level ? ", IDNO));
    ASSERT_TRUE(Gone(window));
    EXPECT_EQ(ReadBytes(saved), bytes) << "as saved";
    const auto settings = closeAndReadSettings();
    EXPECT_EQ(std::tuple(settings.at(33), settings.at(34), settings.at(36)),
              std::tuple("C:\\none.exe", browser(), "1"));
}

TEST_F(WebList, ATenMegabyteListOfGarbageAndTooManyRowsOpensButIsNeverHalfWrittenAndOneTooLargeIsNotOpened) {
    // 40,000 rows, one of them a megabyte of every byte value: about ten megabytes in all.
    std::string garbage;
    for (int i = 0; i < (1 << 20); ++i)
        garbage += static_cast<char>(i % 256 == 13 ? 'x' : i % 256);
    std::vector<std::array<std::string, 3>> many(40000, {"Site", "http://example/" + std::string(200, 'p'), "0"});
    many[7][0] = garbage;
    const std::string list = WebListFile(many);
    HWND window = open(list, L"Long.lst");
    ASSERT_NE(window, nullptr);
    HWND rows = GetDlgItem(window, IDC_WEB_ROWS);
    EXPECT_EQ(ListViewRows(rows), 40000);
    PressKeys(window, {VK_SHIFT, VK_F5}); // a separator at the end: changed
    EXPECT_TRUE(Becomes(40001, ListViewRows, rows));
    PressKeys(window, {VK_CONTROL, 'S'});
    ASSERT_TRUE(AnswerMessage(
        orvane->id(),
        L"This list has 40001 entries, more than the 32767 a web list file can hold. Nothing was saved."));
    const std::string tooLarge =
        list + std::string(kMostFileBytes + 1 - list.size(), 'x'); // refused: the list shown stays
    ASSERT_TRUE(WriteBytes(file(L"Huge.lst"), tooLarge));
    PressKeys(window, {VK_CONTROL, 'O'});
    ASSERT_TRUE(AnswerFileDialog(WaitForDialogTitled(orvane->id(), L"Load list of websites"), file(L"Huge.lst")));
    ASSERT_TRUE(AnswerMessage(orvane->id(), FileTooLargeText(file(L"Huge.lst"), kMostFileBytes + 1)));
    EXPECT_EQ(ListViewRows(rows), 40001);
    PostMessageW(window, WM_CLOSE, 0, 0);
    ASSERT_TRUE(AnswerMessage(orvane->id(), L"Save list before exiting this level ? ", IDNO)) << "still unsaved";
    EXPECT_EQ(ReadBytes(file(L"Long.lst")), list);
}

} // namespace
} // namespace orvane::e2e
