#include <gtest/gtest.h>

#include "app.h"
#include "fake_system.h"
#include "file_information.h"
#include "helpers.h"
#include "list_editor.h"
#include "program_grids.h"
#include "program_list.h"

namespace orvane {
namespace {

using testing::FakeSystem;

class Custom : public ::testing::Test {
protected:
    Custom() {
        app.settings.CustomListFile = kList;
        app.ListFileFilter = L"List files (*.lst)|*.lst";
    }
    // The table with these entries named "N<i>", program "C:\P\<i>.exe" and folder "C:\F<i>".
    static CustomProgramTable Filled(std::initializer_list<std::size_t> entries) {
        CustomProgramTable table;
        for (std::size_t i : entries) {
            table.DisplayNames[i] = L"N" + std::to_wstring(i);
            table.ProgramPaths[i] = L"C:\\P\\" + std::to_wstring(i) + L".exe";
            table.StartupFolders[i] = L"C:\\F" + std::to_wstring(i);
        }
        return table;
    }
    static std::vector<std::string> Lines(const std::string &text) {
        std::vector<std::string> lines;
        for (std::size_t at = 0, end; (end = text.find("\r\n", at)) != std::string::npos; at = end + 2)
            lines.push_back(text.substr(at, end - at));
        return lines;
    }

    static constexpr wchar_t kList[] = L"C:\\Lists\\My.lst";
    FakeSystem sys;
    App app{sys};
    CustomProgramTable table;
};

TEST_F(Custom, SavingWritesTheThreeSectionsOf64LinesAndClearsUnnamedEntriesInMemoryToo) {
    table = Filled({0, 5, 63});
    // Blanks only: kept as written, but no program or folder.
    table.DisplayNames[7] = L"   ";
    table.ProgramPaths[7] = L"C:\\gone.exe";
    table.StartupFolders[9] = L"C:\\orphan";
    sys.addFile(kList, std::string(5000, 'x')); // a longer old file leaves no tail
    SaveCustomList(app, table);
    const auto lines = Lines(sys.files[kList]);
    ASSERT_EQ(lines.size(), 192u) << "counted by their CR LF: the last line ends too";
    std::vector<int> withText;
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (!lines[i].empty())
            withText.push_back(static_cast<int>(i) + 1);
    EXPECT_EQ(withText, (std::vector<int>{1, 6, 8, 64, 65, 70, 128, 129, 134, 192}));
    EXPECT_EQ(std::tuple(lines[7], table.ProgramPaths[7], table.StartupFolders[9]), std::tuple("   ", L"", L""));
    EXPECT_EQ(sys.journal, (std::vector<std::wstring>{L"delete C:\\Lists\\My.lst", L"write C:\\Lists\\My.lst"}));
}

TEST_F(Custom, ReadingShortOddAndUnreadableFilesAndSwappingProgramFilesFolders) {
    std::string hundred;
    for (int i = 1; i <= 100; ++i)
        hundred.append("L").append(std::to_string(i)).append("\r\n");
    // The content of the list file (none: no file), read from the given path, the file locked or not.
    const auto load = [&](const std::string &content, const std::wstring &listFile = kList, bool locked = false) {
        sys = FakeSystem();
        app.settings.CustomListFile = listFile;
        if (!content.empty() || locked)
            sys.addFile(kList, content);
        if (locked)
            sys.lockedFiles.insert(kList);
        table = Filled({3});
        return LoadCustomList(app, table);
    };

    EXPECT_TRUE(load(hundred));
    EXPECT_EQ(table.DisplayNames[63] + L"|" + table.ProgramPaths[35] + L"|" + table.ProgramPaths[36], L"L64|L100|");
    EXPECT_TRUE(load("a\rb\nc\r\nd")) << "a lone CR ends a line, a lone LF does not";
    EXPECT_EQ(std::vector<std::wstring>(table.DisplayNames.begin(), table.DisplayNames.begin() + 4),
              (std::vector<std::wstring>{L"a", L"b\nc", L"d", L""}));
    EXPECT_TRUE(load("", kList, true)) << "locked: an empty table and no message";
    EXPECT_TRUE(table == CustomProgramTable{} && sys.messages.empty());

    for (const auto &[listFile, shown] :
         {std::pair{L"C:\\Lists\\Gone.lst", L"C:\\Lists\\Gone.lst"}, std::pair{L"", L"( Filename empty! )"}}) {
        EXPECT_FALSE(load("", listFile));
        EXPECT_EQ(table, Filled({3})) << "kept";
        ASSERT_EQ(sys.messages.size(), 1u);
        EXPECT_EQ(sys.messages[0].text,
                  L"Cannot locate the following program/file:\r\n\r\n" + std::wstring(shown) + L"\r\n\r\n");
    }
    // Found in a "Drive_" folder, the list keeps that path; a missing Program Files program takes its twin's case.
    sys.addFile(L"C:\\Program Files (x86)\\A\\a.exe");
    sys.addFile(L"C:\\Program Files\\B\\b.EXE");
    sys.addFile(
        L"E:\\Drive_G\\My.lst",
        "C:\\Program Files\\A\\a.exe\r\nc:\\program files\\a\\a.exe\r\n"
        "C:\\Program Files\\B\\b.EXE\r\nC:\\Program Files (x86)\\C\\c.exe\r\nC:\\Program Files\\D\\readme.txt\r\n");
    app.settings.CustomListFile = L"G:\\My.lst";
    ASSERT_TRUE(LoadCustomList(app, table));
    EXPECT_EQ(app.settings.CustomListFile, L"E:\\Drive_G\\My.lst");
    EXPECT_EQ(std::vector<std::wstring>(table.DisplayNames.begin(), table.DisplayNames.begin() + 5),
              (std::vector<std::wstring>{L"C:\\Program Files (x86)\\A\\a.exe", L"c:\\program files\\a\\a.exe",
                                         L"C:\\Program Files\\B\\b.EXE", L"C:\\Program Files\\C\\c.exe",
                                         L"C:\\Program Files\\D\\readme.txt"}));
}

TEST_F(Custom, GridsSplitTheFirstNSlotsHalfToEvenWithTheOddOnesLost) {
    struct Case {
        std::vector<std::size_t> named;
        std::vector<std::size_t> first, second;
    };
    // Three: 1.5 rounds up to even, none lost, as for 7 and every other 4n + 3; with 0, 1 and 10 the empty slot 2
    // takes a row and slot 10 is not shown.
    const Case cases[] = {{{0}, {}, {}},
                          {{0, 1}, {0}, {1}},
                          {{0, 1, 2}, {0, 1}, {2}},
                          {{0, 1, 2, 3, 4}, {0, 1}, {2}},
                          {{0, 1, 10}, {0, 1}, {2}}};
    for (const Case &c : cases) {
        table = {};
        for (std::size_t i : c.named)
            table.DisplayNames[i] = L"x";
        EXPECT_EQ(GridEntries(table, 1), c.first) << c.named.size();
        EXPECT_EQ(GridEntries(table, 2), c.second) << c.named.size();
    }
    table.DisplayNames[0] = L" "; // counted: only the empty string is absent
    EXPECT_EQ(SplitForGrids(table).first, 2);
}

// Starting an entry in its folder, blank rows and missing programs: the e2e CustomPrograms tests; a document
// quoted for its blank: the core launch test.
TEST_F(Custom, EditorInsertDeleteAndMoveKeepTheirQuirks) {
    using Act = bool (CustomListEditor::*)();
    // names: of lines 0, 1, 9, 10, 11, 62, 63 afterwards; programs move with their names, folders stay with their lines
    struct Case {
        const char *name;
        int line;
        Act act;
        std::vector<std::wstring> names;
        int lineAfter;
        bool changed;                              // and what the operation returns
        MessageAnswer answer = MessageAnswer::Yes; // to a question to delete
    };
    const Act insert = nullptr, remove = &CustomListEditor::deleteLine, up = &CustomListEditor::moveUp,
              down = &CustomListEditor::moveDown; // insert: insertLine, which always acts
    const std::vector<std::wstring> same = {L"N0", L"N1", L"N9", L"N10", L"N11", L"N62", L"N63"};
    const Case cases[] = {
        {"insert drops the last line", 0, insert, {L"", L"N0", L"N8", L"N9", L"N10", L"N61", L"N62"}, 0, true},
        {"delete doubles the last line", 10, remove, {L"N0", L"N1", L"N9", L"N11", L"N12", L"N63", L"N63"}, 10, true},
        {"delete of the last line", 63, remove, {L"N0", L"N1", L"N9", L"N10", L"N11", L"N62", L""}, 63, true},
        {"up", 10, up, {L"N0", L"N1", L"N10", L"N9", L"N11", L"N62", L"N63"}, 9, true},
        {"up on line 0", 0, up, same, 0, false},
        {"down", 0, down, {L"N1", L"N0", L"N9", L"N10", L"N11", L"N62", L"N63"}, 1, true},
        {"down on line 63", 63, down, same, 63, false},
        {"No keeps the line", 10, remove, same, 10, false, MessageAnswer::No},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        table = {};
        for (std::size_t i = 0; i < kCustomEntries; ++i) {
            const std::wstring n = std::to_wstring(i);
            std::tie(table.DisplayNames[i], table.ProgramPaths[i], table.StartupFolders[i]) =
                std::tuple(L"N" + n, L"P" + n, L"F" + n);
        }
        sys.answers = {c.answer};
        CustomListEditor editor(app, table);
        editor.currentLine = c.line;
        bool changed = true;
        if (c.act)
            changed = (editor.*c.act)();
        else
            editor.insertLine();
        EXPECT_EQ(changed, c.changed);
        std::vector<std::wstring> names;
        for (std::size_t i : {0, 1, 9, 10, 11, 62, 63}) {
            const std::wstring &name = names.emplace_back(table.DisplayNames[i]);
            const std::wstring program = name.empty() ? L"" : L"P" + name.substr(1);
            EXPECT_EQ(table.ProgramPaths[i] + L"|" + table.StartupFolders[i], program + L"|F" + std::to_wstring(i));
        }
        EXPECT_EQ(names, c.names);
        EXPECT_EQ(std::pair(editor.currentLine, editor.changed), std::pair(c.lineAfter, c.changed));
    }
    ASSERT_EQ(sys.messages.size(), 3u);
    EXPECT_EQ(std::tie(sys.messages[0].text, sys.messages[0].buttons),
              std::tuple(L"Delete this item from the list?\r\n\r\nN10\r\nP10\t\r\n", MessageButtons::YesNoDefaultNo));
}

TEST_F(Custom, EditorFieldsEntryLoadingAndSaving) {
    table = Filled({0, 1});
    CustomListEditor editor(app, table);
    editor.setName(1, L"  ");
    editor.leaveName(1);
    EXPECT_EQ(table.ProgramPaths[1], L"") << "a blank name takes its program with it";
    editor.currentLine = 0;
    editor.takeEntry(L"", L"C:\\Else");
    EXPECT_EQ(table.StartupFolders[0], L"C:\\F0") << "an empty path returns nothing";
    editor.takeEntry(L"C:\\Q.exe", L"");
    EXPECT_EQ(table.ProgramPaths[0] + L"|" + table.StartupFolders[0], L"C:\\Q.exe|");

    // Loading straight away asks nothing; after a change it asks, and Cancel stops everything.
    sys.addFile(L"C:\\Lists\\Other.lst", "Other\r\n");
    sys.folders = {L"C:\\Work", L"C:\\Lists"};
    sys.fileAnswers = {L"C:\\Lists\\Other.lst"};
    ASSERT_TRUE(editor.loadList());
    EXPECT_TRUE(sys.messages.empty());
    EXPECT_EQ(sys.fileRequests[0].title + L"|" + sys.fileRequests[0].folder, L"Select list of programs|C:\\Lists");
    EXPECT_EQ(table.DisplayNames[0], L"Other");
    sys.addFile(L"C:\\Lists\\Huge.lst", std::string(kMostFileBytes + 1, 'x')); // refused: the table and its file stay
    sys.fileAnswers = {L"C:\\Lists\\Huge.lst"};
    EXPECT_FALSE(editor.loadList());
    EXPECT_EQ(
        std::tuple(sys.messages.at(0).text, table.DisplayNames[0], app.settings.CustomListFile),
        std::tuple(L"Cannot load this file :\r\n\r\nC:\\Lists\\Huge.lst\r\n\r\nIt holds 67108865 bytes, more than the "
                   L"67108864 the program reads. Nothing of it was loaded, and the file is left as it is.\r\n",
                   L"Other", L"C:\\Lists\\Other.lst"));
    editor.insertLine();
    sys.answers = {MessageAnswer::Cancel};
    EXPECT_FALSE(editor.loadList());
    EXPECT_EQ(sys.messages.back().text,
              L"Save this list of files before loading a new one?\r\n\r\nC:\\Lists\\Other.lst");
    EXPECT_EQ(sys.fileRequests.size(), 2u);

    // What a fresh file holds, the dialog's title and the editor's caption afterwards: the e2e CustomPrograms test.
    sys.fileAnswers = {L"C:\\Lists\\New.lst"};
    sys.current = L"C:\\Work";
    ASSERT_TRUE(editor.saveList());
    const FileRequest &save = sys.fileRequests.back();
    EXPECT_TRUE(save.save);
    EXPECT_EQ(save.title + L"|" + save.preset + L"|" + save.folder + L"|" + save.defaultExtension,
              L"Browse files|Other.lst|C:\\Lists|lst");
    EXPECT_TRUE(sys.current == L"C:\\Work" && !editor.changed) << "the folder comes back";
}

TEST_F(Custom, InformationOfAFileAndTheX86ToggleAtADrivesRoot) {
    sys.addFile(L"C:\\Lists\\Big.lst", std::string(1234567, 'x'));
    FileInformation info = InformationOf(app, L"C:\\Lists\\Big.lst");
    EXPECT_EQ(InformationText(info), L"File: Big.lst\r\nPath: C:\\Lists\r\n\r\nSize: 1,234,567\r\n"
                                     L"Altered: [] 2025-3-4 day 2 [] 17:30:0\r\n\r\n"
                                     L"Time: [HH:mm:ss] 9:5:7\r\nDate: [dddd, MMM d yyyy] 2026-11-22 day 0\r\n");
    // Copying it: the e2e CustomPrograms tests.
    sys.addFile(L"C:\\Empty.txt", "");
    sys.fileTime = {2025, 1, 2, 4, 0, 0, 0};
    info = InformationOf(app, L"C:\\Empty.txt");
    EXPECT_EQ(info.size + L"|" + info.altered, L"|[] 2025-1-2 day 4") << "no size for 0 bytes, no time at midnight";
    info = InformationOf(app, L"C:");
    EXPECT_EQ(info.fileName + L"|" + info.altered + L"|" + (info.exists ? L"YES" : L"NO"),
              L"C:\\|(not yet saved / not present on disk)|NO");
    EXPECT_EQ(GroupedDigits(1234567890, L".") + L"|" + GroupedDigits(999, L","), L"1.234.567.890|999");
    // A folder toggled: the e2e entry dialog; a file in a drive's root takes the mark itself.
    EXPECT_EQ(ToggleX86(L"C:\\a.exe") + L"|" + ToggleX86(L"C:\\a.exe (x86)"), L"C:\\a.exe (x86)|C:\\a.exe");
}

} // namespace
} // namespace orvane
