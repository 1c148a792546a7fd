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
    for (std::wstring name : names) {  // "SEP" for a separator, "+" after a checked row
        if (name == L"SEP") name = kSep;
        WebRow row{L"K_" + std::to_wstring(rows.size() + 1), name, name == kSep ? L"" : name};
        if (name.ends_with(L'+')) row.name = row.address = name.substr(0, name.size() - 1), row.checked = true;
        rows.push_back(row);
    }
    return rows;
}

TEST(WebListFile, ReadsAndWritesTheDesignedCases) {
    struct Case { const char* what; std::wstring file, rows /* as Show writes them */; std::size_t groups; std::wstring saved; };
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
        {"no rows, only groups", L"***\r\ng\r\n", L"", 1, L"***\r\ng\r\n\r\n"},
        {"a saved file reads back with one empty group more, and saves the same", L"a\r\nb\r\n1\r\n***\r\ng\r\n\r\n",
         L"a|b+ ", 2, L"a\r\nb\r\n1\r\n***\r\ng\r\n\r\n"},
        {"a ; line is skipped and the rhythm shifts", L"a\r\nA\r\n1\r\n;b\r\nB\r\n0\r\n***\r\n;g\r\n", L"a|A+ B|0 ", 0,
         L"a\r\nA\r\n1\r\nB\r\n0\r\n0\r\n***\r\n\r\n"},
        {"CR alone ends a line, LF alone does not", L"a\rA\nB\r1\r***more\r  g1  \r\n---\r\n  \r", L"a|A\nB+ ", 3,
         L"a\r\nA\nB\r\n1\r\n***\r\ng1\r\n\r\n"},
        {"a group that would read as a comment or the marker keeps one blank", L"***\r\n  ;g\r\n ***h\r\n", L"", 2,
         L"***\r\n ;g\r\n ***h\r\n\r\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what); const WebListContent read = ParseWebList(c.file);
        EXPECT_EQ(Show(read.rows), c.rows);
        EXPECT_EQ(read.groups.size(), c.groups);
        EXPECT_EQ(FormatWebList(read), c.saved);
        for (std::size_t i = 0; i < read.rows.size(); ++i) EXPECT_EQ(read.rows[i].key, L"K_" + std::to_wstring(i + 1));
    }
    EXPECT_FALSE(FormatWebList({std::vector<WebRow>(kMostSavedRows + 1), {}})) << "more rows than the file can count";
}

class WebListTest : public ::testing::Test {
protected:
    WebListTest() { s.WebBrowser1 = L"C:\\B1.exe", s.WebBrowser2 = L"C:\\Program Files\\Web\\b.exe", s.WebBrowserChoice = 2; }
    FakeSystem sys;
    App app{sys};
    Settings& s = app.settings;
    WebList list{app};
};

// The checked rows opening in one command line, their path unquoted: the e2e WebList test.
TEST_F(WebListTest, OperationsMoveTextsWhileCheckMarksStayInPlaceAndOpeningBuildsOneCommandLine) {
    using Op = std::function<bool(WebList&)>;
    struct Case {  // after: the rows, then the groups after a "/"; started: command lines
        const char* what; std::vector<const wchar_t*> rows; int current; Op operation; bool changes; std::wstring after;
        std::vector<std::wstring> messages; std::vector<A> answers = {}; std::vector<std::wstring> started = {};
    };
    const auto open = [](bool singleRow) {
        return [singleRow](WebList& l) { l.singleRow = singleRow, l.openWebsites(); return l.singleRow; };
    };
    const std::wstring P = L"C:\\Program Files\\Web\\b.exe ", load4 = L"Load 4 selected websites from list?";
    const Case cases[] = {
        {"add above a checked row: the new row carries its mark", {L"a", L"b+", L"c"}, 0,
         [](WebList& l) { return l.addItem(); }, true, L"a|a |+* b|b c|c /", {}},
        {"move a checked row up: the mark stays", {L"a", L"b+"}, 1, [](WebList& l) { return l.moveUp(); }, true,
         L"b|b* a|a+ /", {}},
        {"duplicate copies to the end, unchecked", {L"a", L"b+"}, 1, [](WebList& l) { return l.duplicate(); }, true,
         L"a|a b|b+ b|b* /", {}},
        {"a separator goes to the end", {L"a"}, 0, [](WebList& l) { return l.insertSeparator(); }, true,
         L"a|a " + kSep + L"|* /", {}},
        {"delete marks the selected rows after asking", {L"a", L"b", L"c"}, 0,
         [](WebList& l) { l.rows[2].selected = true; return l.deleteSelected(); }, true, L"---|---* b|b ---|---* /",
         {L"Delete 2 items from list ? "}, {A::Yes}},
        {"a group of the checked websites, a separator left out", {L"a+", L"SEP", L"c+"}, 1,
         [](WebList& l) { l.rows[1].checked = true; return l.addToGroup() && l.groupShown; }, true,
         L"a|a+ " + kSep + L"|+* c|c+ /a c ;", {}},
        {"in the group panel rows are not added, groups move and are edited", {L"a"}, 0,
         [](WebList& l) {
             l.groupShown = true, l.groups = {L"g", L"h"}, l.currentGroup = 1;
             const bool added = l.addItem() || l.duplicate() || l.insertSeparator();
             l.startEdit(), l.accept(L"", L"H");
             return !added && l.moveUp() && !l.moveUp();
         },
         true, L"a|a* /H;g;", std::vector<std::wstring>(3, L"Add items to group list by selecting them from the main list")},
        {"a separator is not edited; Enter checks both fields, Accept neither", {L"SEP", L"b"}, 0,
         [](WebList& l) {
             const bool separator = l.startEdit().has_value();
             l.current = 1, l.startEdit();
             const bool refused = !l.enter(L"", L"u") && !l.enter(L"n", L"");
             l.accept(L"", L"");
             return !separator && refused;
         },
         true, kSep + L"|* | /", {L"Name field is empty!", L"URL field is empty!"}},
        {"closing asks again after a cancelled save, until No; Cancel stays", {L"a"}, 0,
         [](WebList& l) { l.changed = true; return l.confirmClose() && !l.confirmClose(); }, true, L"a|a* /",
         {L"Save list before exiting this level ? ", L"Data grid contains no entries !",
          L"Save list before exiting this level ? ", L"Save list before exiting this level ? "},
         {A::Yes, A::Ok, A::No, A::Cancel}},
        {"a double click while four are checked asks, then opens its row", {L"a+", L"b+", L"c+", L"d+", L"e"}, 4, open(true),
         false, L"a|a+ b|b+ c|c+ d|d+ e|e* /", {load4}, {A::Yes}, {P + L"e"}},
        {"nothing checked opens the current row; a separator nothing", {L"a", L"SEP"}, 0,
         [&](WebList& l) { open(false)(l), l.current = 1; return open(false)(l); }, false, L"a|a* " + kSep + L"| /", {},
         {}, {P + L"a"}},
        {"a group opens as it stands", {L"a"}, 0,
         [&](WebList& l) { l.groups = {L"g h"}, l.currentGroup = 0, l.groupShown = true; return open(false)(l); }, false,
         L"a|a* /g h;", {}, {}, {P + L"g h"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what); sys = FakeSystem(), sys.answers = c.answers, list.changed = list.groupShown = false;
        list.groups.clear(), list.rows = Rows(c.rows);
        list.rows[static_cast<std::size_t>(list.current = c.current)].selected = true;
        EXPECT_EQ(c.operation(list), c.changes);
        std::wstring after = Show(list.rows) + L"/";
        for (const std::wstring& group : list.groups) after += group + L";";
        EXPECT_EQ(std::pair(after, list.changed), std::pair(c.after, c.changes));
        std::vector<std::wstring> messages, started; for (const auto& m : sys.messages) messages.push_back(m.text);
        for (const auto& command : sys.started) started.push_back(command.commandLine);
        EXPECT_EQ(std::pair(messages, started), std::pair(c.messages, c.started));
    }
}

}  // namespace
}  // namespace orvane
