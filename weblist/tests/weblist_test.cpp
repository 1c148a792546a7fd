#include <gtest/gtest.h>

#include <functional>

#include "app.h"
#include "fake_system.h"
#include "web_list.h"

namespace orvane {
namespace {

using testing::FakeSystem;
using A = MessageAnswer;

const std::wstring kSep(kSeparatorMarker);

// Rows as "name|address" with "+" after a checked one and "*" after a selected one.
std::wstring Show(const std::vector<WebRow>& rows) {
    std::wstring text;
    for (const WebRow& row : rows)
        text += row.name + L"|" + row.address + (row.checked ? L"+" : L"") + (row.selected ? L"*" : L"") + L" ";
    return text;
}

std::vector<WebRow> Rows(const std::vector<const wchar_t*>& names) {
    std::vector<WebRow> rows;
    for (std::wstring name : names) {
        WebRow row{L"K_" + std::to_wstring(rows.size() + 1), name, name == kSep ? L"" : name};
        if (name.ends_with(L'+')) row.name = row.address = name.substr(0, name.size() - 1), row.checked = true;
        rows.push_back(row);
    }
    return rows;
}

TEST(WebListFile, ReadsAndWritesTheDesignedCases) {
    struct Case {
        const char* what;
        std::wstring file;
        std::wstring rows;    // as Show writes them
        std::size_t groups;   // entries read
        std::wstring saved;   // written back
    };
    const std::wstring sep = kSep + L"\r\n\r\n";
    const Case cases[] = {
        {"checks: only \"1\" after trimming", L"a\r\nA\r\n 1 \r\nb\r\nB\r\n01\r\nc\r\nC\r\ntrue\r\nd\r\nD\r\n-1\r\n***\r\n",
         L"a|A+ b|B c|C d|D ", 0, L"a\r\nA\r\n1\r\nb\r\nB\r\n0\r\nc\r\nC\r\n0\r\nd\r\nD\r\n0\r\n***\r\n\r\n"},
        {"a separator round trip; a marker in an address unchecks", sep + L"1\r\nx\r\nq" + kSep + L"\r\n1\r\n",
         kSep + L"|+ x|q" + kSep + L" ", 0, sep + L"1\r\nx\r\nq" + kSep + L"\r\n0\r\n***\r\n\r\n"},
        {"a row named --- is shown but not written", L"---\r\n---\r\n0\r\nz\r\nZ\r\n1\r\n***\r\ng\r\n",
         L"---|--- z|Z+ ", 1, L"z\r\nZ\r\n1\r\n***\r\ng\r\n\r\n"},
        {"no *** line: every line is a field, the end half a row", L"a\r\nA\r\n0\r\nb", L"a|A b| ", 0,
         L"a\r\nA\r\n0\r\nb\r\n\r\n0\r\n***\r\n\r\n"},
        {"a ; line is skipped and the rhythm shifts", L"a\r\nA\r\n1\r\n;b\r\nB\r\n0\r\n***\r\n;g\r\n", L"a|A+ B|0 ", 0,
         L"a\r\nA\r\n1\r\nB\r\n0\r\n0\r\n***\r\n\r\n"},
        {"CR alone ends a line, LF alone does not", L"a\rA\nB\r1\r***more\r  g1  \r\n---\r\n  \r", L"a|A\nB+ ", 3,
         L"a\r\nA\nB\r\n1\r\n***\r\ng1\r\n\r\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const WebListContent read = ParseWebList(c.file);
        EXPECT_EQ(Show(read.rows), c.rows);
        EXPECT_EQ(read.groups.size(), c.groups);
        EXPECT_EQ(FormatWebList(read), c.saved);
        for (std::size_t i = 0; i < read.rows.size(); ++i) EXPECT_EQ(read.rows[i].key, L"K_" + std::to_wstring(i + 1));
    }
}

TEST(WebListFile, ASavedFileReadsBackWithOneEmptyGroupAndDoesNotGrow) {
    WebListContent content{Rows({L"a+", L"b"}), {L"a b ", L"---", L"c d"}};
    const std::wstring saved = *FormatWebList(content);
    EXPECT_EQ(saved, L"a\r\na\r\n1\r\nb\r\nb\r\n0\r\n***\r\na b\r\nc d\r\n\r\n");
    const WebListContent back = ParseWebList(saved);
    EXPECT_EQ(back.groups, (std::vector<std::wstring>{L"a b", L"c d", L""}));
    EXPECT_EQ(FormatWebList(back), saved);
    content.rows.resize(kMostSavedRows + 1);
    EXPECT_FALSE(FormatWebList(content)) << "more rows than the file can count";
}

class WebListTest : public ::testing::Test {
protected:
    WebListTest() {
        s.WebListFile = kPath;
        s.WebBrowser1 = L"C:\\B1.exe";
        s.WebBrowser2 = L"C:\\Program Files\\Web\\b.exe";
        s.WebBrowserChoice = 2;
    }
    void Use(std::vector<WebRow> rows, int current) {
        list.rows = std::move(rows);
        list.current = current;
        if (current >= 0) list.rows[static_cast<std::size_t>(current)].selected = true;
    }
    std::vector<std::wstring> Texts() const {
        std::vector<std::wstring> texts;
        for (const auto& m : sys.messages) texts.push_back(m.text);
        return texts;
    }

    static constexpr wchar_t kPath[] = L"C:\\Lists\\Web.lst";
    FakeSystem sys;
    App app{sys};
    Settings& s = app.settings;
    WebList list{app};
};

TEST_F(WebListTest, OperationsMoveTextsWhileCheckMarksStayInPlace) {
    struct Case {
        const char* what;
        std::vector<const wchar_t*> rows;
        int current;
        std::vector<A> answers;
        std::function<bool(WebList&)> operation;
        bool result;
        std::wstring after;
        std::vector<std::wstring> messages;
    };
    const Case cases[] = {
        {"add above a checked row: the new row carries its mark", {L"a", L"b+", L"c"}, 0, {},
         [](WebList& l) { return l.addItem(); }, true, L"a|a |+* b|b c|c ", {}},
        {"add with the last row current appends", {L"a", L"b"}, 1, {}, [](WebList& l) { return l.addItem(); }, true,
         L"a|a b|b |* ", {}},
        {"move a checked row up: the mark stays", {L"a", L"b+"}, 1, {}, [](WebList& l) { return l.moveUp(); }, true,
         L"b|b* a|a+ ", {}},
        {"move down from the last row does nothing", {L"a", L"b"}, 1, {}, [](WebList& l) { return l.moveDown(); },
         false, L"a|a b|b* ", {}},
        {"duplicate copies to the end, unchecked", {L"a", L"b+", L"c"}, 1, {}, [](WebList& l) { return l.duplicate(); },
         true, L"a|a b|b+ c|c b|b* ", {}},
        {"a separator goes to the end", {L"a"}, 0, {}, [](WebList& l) { return l.insertSeparator(); }, true,
         L"a|a " + kSep + L"|* ", {}},
        {"delete marks the selected rows after asking", {L"a", L"b", L"c"}, 0, {A::Yes},
         [](WebList& l) { l.rows[2].selected = true; return l.deleteSelected(); }, true, L"---|---* b|b ---|---* ",
         {L"Delete 2 items from list ? "}},
        {"delete answered No changes nothing", {L"a"}, 0, {A::No}, [](WebList& l) { return l.deleteSelected(); }, false,
         L"a|a* ", {L"Delete 1 items from list ? "}},
        {"delete with nothing selected says so", {L"a"}, -1, {}, [](WebList& l) { return l.deleteSelected(); }, false,
         L"a|a ", {L"No items selected!"}},
        {"a group needs two websites; a separator does not count", {L"a+", L"SEP"}, 0, {},
         [](WebList& l) { l.rows[1] = {L"K_2", kSep, L"", true}; return l.addToGroup(); }, false,
         L"a|a+* " + kSep + L"|+ ", {L"You must select at least two items for a group list entry!"}},
        {"rows are not added while the group panel is shown", {L"a"}, 0, {},
         [](WebList& l) { l.groupShown = true; return l.addItem() || l.duplicate() || l.insertSeparator(); }, false,
         L"a|a* ", std::vector<std::wstring>(3, L"Add items to group list by selecting them from the main list")},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        sys = FakeSystem();
        sys.answers = c.answers;
        list.changed = list.groupShown = false;
        Use(Rows(c.rows), c.current);
        EXPECT_EQ(c.operation(list), c.result);
        EXPECT_EQ(Show(list.rows), c.after);
        EXPECT_EQ(list.changed, c.result);
        EXPECT_EQ(Texts(), c.messages);
    }
}

TEST_F(WebListTest, GroupsAreBuiltMovedEditedAndEmptied) {
    Use(Rows({L"a+", L"b", L"c+"}), 1);
    ASSERT_TRUE(list.addToGroup());
    EXPECT_EQ(list.groups, (std::vector<std::wstring>{L"a c "}));
    EXPECT_TRUE(list.groupShown);
    list.groups.push_back(L"x y");
    list.currentGroup = 1;
    EXPECT_TRUE(list.moveUp());
    EXPECT_EQ(list.groups, (std::vector<std::wstring>{L"x y", L"a c "}));
    EXPECT_FALSE(list.moveUp());
    const auto edit = list.startEdit();
    ASSERT_TRUE(edit);
    EXPECT_EQ(edit->caption, L" Edit group of websites ");
    list.accept(L"ignored", L"z w");
    EXPECT_EQ(list.groups[0], L"z w");
    sys.answers = {A::Yes};
    list.changed = false;
    EXPECT_TRUE(list.emptyGroups());
    EXPECT_TRUE(list.groups.empty());
    EXPECT_FALSE(list.changed) << "emptying the groups is not an edit";
}

TEST_F(WebListTest, EditingChecksOnEnterButNotOnAccept) {
    Use(Rows({L"a", L"SEP"}), 1);
    list.rows[1].name = kSep;
    EXPECT_FALSE(list.startEdit()) << "a separator is not edited";
    list.current = 0;
    const auto edit = list.startEdit();
    ASSERT_TRUE(edit);
    EXPECT_EQ(edit->caption, L" Text for name && website ");
    EXPECT_FALSE(list.enter(L"", L"u"));
    EXPECT_FALSE(list.enter(L"n", L""));
    EXPECT_TRUE(list.editing());
    list.accept(L"", L"");
    EXPECT_EQ(Show(list.rows), L"| " + kSep + L"|SEP* ");
    EXPECT_EQ(Texts(), (std::vector<std::wstring>{L"Name field is empty!", L"URL field is empty!"}));
    EXPECT_TRUE(list.changed);
}

TEST_F(WebListTest, OpeningBuildsOneCommandLine) {
    struct Case {
        const char* what;
        std::vector<const wchar_t*> rows;
        int current;
        bool singleRow, group;
        std::vector<A> answers;
        std::vector<std::wstring> started;
        std::size_t questions;
    };
    const std::wstring P = L"C:\\Program Files\\Web\\b.exe ";
    const Case cases[] = {
        {"two checked: the path unquoted, a trailing blank", {L"a+", L"x", L"b+"}, 1, false, false, {}, {P + L"a b "}, 0},
        {"three checked: no question", {L"a+", L"b+", L"c+"}, 0, false, false, {}, {P + L"a b c "}, 0},
        {"four checked ask; Yes opens them", {L"a+", L"b+", L"c+", L"d+"}, 0, false, false, {A::Yes},
         {P + L"a b c d "}, 1},
        {"four checked ask; No opens nothing", {L"a+", L"b+", L"c+", L"d+"}, 0, false, false, {A::No}, {}, 1},
        {"a double click while four are checked asks, then opens its row", {L"a+", L"b+", L"c+", L"d+", L"e"}, 4, true,
         false, {A::Yes}, {P + L"e"}, 1},
        {"nothing checked opens the current row", {L"a", L"b"}, 1, false, false, {}, {P + L"b"}, 0},
        {"a group opens as it stands", {L"a"}, 0, false, true, {}, {P + L"g h"}, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        sys = FakeSystem();
        sys.answers = c.answers;
        Use(Rows(c.rows), c.current);
        list.groups = {L"g h"};
        list.currentGroup = 0;
        list.groupShown = c.group;
        list.singleRow = c.singleRow;
        list.openWebsites();
        std::vector<std::wstring> started;
        for (const auto& command : sys.started) started.push_back(command.commandLine);
        EXPECT_EQ(started, c.started);
        EXPECT_EQ(sys.messages.size(), c.questions);
        if (c.questions) {
            EXPECT_EQ(sys.messages[0].text, L"Load 4 selected websites from list?");
        }
        EXPECT_FALSE(list.singleRow);
    }
    sys = FakeSystem();
    list.groupShown = false;
    Use({{L"K_1", kSep, L""}}, 0);
    s.WebBrowserChoice = 1;
    list.openWebsites();
    Use(Rows({L"a"}), 0);
    s.WebBrowserChoice = 4;
    list.openWebsites();
    EXPECT_TRUE(sys.started.empty()) << "a separator alone, and a choice of no browser, start nothing";
}

TEST_F(WebListTest, LoadingSavingAndClosing) {
    EXPECT_FALSE(list.load());
    EXPECT_EQ(Texts(), (std::vector<std::wstring>{L"Can't open file: C:\\Lists\\Web.lst"}));
    sys = FakeSystem();
    sys.addFile(kPath, "Caf\xe9\r\nhttp://a\r\n1\r\n***\r\n");
    ASSERT_TRUE(list.load());
    EXPECT_EQ(Show(list.rows), L"Caf\u00e9|http://a+* ");
    EXPECT_EQ(list.caption(), L"Website list :  C:\\Lists\\Web.lst  ( 1 entries )");

    // Closing asks until saved or refused: Yes, the dialog cancelled, then No.
    list.changed = true;
    sys.answers = {A::Yes, A::No};
    EXPECT_TRUE(list.confirmClose());
    EXPECT_EQ(Texts(), (std::vector<std::wstring>{L"Save list before exiting this level ? ",
                                                  L"Data grid contains no entries !",
                                                  L"Save list before exiting this level ? "}));
    sys.answers = {A::Cancel};
    EXPECT_FALSE(list.confirmClose());

    // Saved under a new name, in the file's own code page.
    sys.fileAnswers = {L"C:\\New.lst"};
    ASSERT_TRUE(list.save());
    EXPECT_EQ(sys.files[L"C:\\New.lst"], "Caf\xe9\r\nhttp://a\r\n1\r\n***\r\n\r\n");
    EXPECT_EQ(sys.fileRequests.back().title, L"Save web list to disk");
    EXPECT_FALSE(list.changed);
    EXPECT_EQ(s.WebListFile, L"C:\\New.lst");

    // Too many rows: refused before the dialog, the old file intact, still unsaved.
    list.rows.resize(kMostSavedRows + 1);
    list.changed = true;
    sys.fileAnswers = {L"C:\\New.lst"};
    EXPECT_FALSE(list.save());
    EXPECT_EQ(sys.files[L"C:\\New.lst"], "Caf\xe9\r\nhttp://a\r\n1\r\n***\r\n\r\n");
    EXPECT_TRUE(list.changed);
    EXPECT_EQ(sys.messages.back().text.substr(0, 32), L"This list has 32768 entries, mor");
}

TEST_F(WebListTest, InformationNamesTheListItsRowsAndTheCurrentFolder) {
    Use(Rows({L"a", L"b"}), 0);
    FileInformation info = list.information();
    EXPECT_EQ(info.fileName, L"Web.lst    ( 2 items )");
    EXPECT_EQ(info.altered, L"(not yet saved / not present on disk)");
    EXPECT_EQ(info.size, L"");
    EXPECT_EQ(info.folder, L"C:\\Work");
    sys.addFile(kPath, std::string(1234, 'x'));
    EXPECT_EQ(list.information().size, L"1,234");
}

}  // namespace
}  // namespace orvane
