#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <sstream>

#include "app.h"
#include "fake_system.h"
#include "web_list.h"

namespace orvane {
namespace {

using A = MessageAnswer;

const std::wstring kSep(kSeparatorMarker);

// Rows as "name|address" with "+" after a checked one and "*" after a selected one.
std::wstring Show(const std::vector<WebRow> &rows) {
    std::wstring text;
    for (const WebRow &row : rows)
        text += row.name + L"|" + row.address + (row.checked ? L"+" : L"") + (row.selected ? L"*" : L"") + L" ";
    return text;
}

// Rows from blank-separated names: "SEP" for a separator, "+" after a checked row.
std::vector<WebRow> Rows(const std::wstring &names) {
    std::vector<WebRow> rows;
    std::wistringstream words(names);
    for (std::wstring name; words >> name;) {
        if (name == L"SEP")
            name = kSep;
        WebRow row{L"K_" + std::to_wstring(rows.size() + 1), name, name == kSep ? L"" : name};
        if (name.ends_with(L'+')) {
            row.name = row.address = name.substr(0, name.size() - 1);
            row.checked = true;
        }
        rows.push_back(row);
    }
    return rows;
}

TEST(WebListFile, ReadsAndWritesTheDesignedCases) {
    struct Case {
        const char *what;
        std::wstring file, rows /* as Show writes them */;
        std::size_t groups;
        std::wstring saved;
    };
    const std::wstring sep = kSep + L"\r\n\r\n";
    const Case cases[] = {
        {"checks: only \"1\" after trimming",
         L"a\r\nA\r\n 1 \r\nb\r\nB\r\n01\r\nc\r\nC\r\ntrue\r\nd\r\nD\r\n-1\r\n***\r\n", L"a|A+ b|B c|C d|D ", 0,
         L"a\r\nA\r\n1\r\nb\r\nB\r\n0\r\nc\r\nC\r\n0\r\nd\r\nD\r\n0\r\n***\r\n\r\n"},
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
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        const WebListContent read = ParseWebList(c.file);
        EXPECT_EQ(Show(read.rows), c.rows);
        EXPECT_EQ(read.groups.size(), c.groups);
        EXPECT_EQ(FormatWebList(read), c.saved);
    }
}

// The checked rows opening in one command line, their path unquoted: the e2e WebList test.
TEST(WebList, OperationsMoveTextsWhileCheckMarksStayInPlaceAndOpeningBuildsOneCommandLine) {
    testing::FakeSystem sys;
    App app{sys};
    app.settings.WebBrowser1 = L"C:\\B1.exe";
    app.settings.WebBrowser2 = L"C:\\Program Files\\Web\\b.exe";
    app.settings.WebBrowserChoice = 2;
    WebList list{app};
    using Op = std::function<bool(WebList &)>;
    // after: the rows, then the groups after a "/"; said: each message, then "start" and each command line, with a
    // "|" after each; answers: Yes, No, Cancel or Ok, one letter each.
    struct Case {
        const char *what;
        const wchar_t *rows;
        int current;
        Op operation;
        bool changes;
        std::wstring after, said = L"";
        const wchar_t *answers = L"";
    };
    const auto open = [](bool singleRow) {
        return [singleRow](WebList &l) {
            l.singleRow = singleRow;
            l.openWebsites();
            return l.singleRow;
        };
    };
    const Op deleteTwo = [](WebList &l) {
        l.rows[2].selected = true;
        return l.deleteSelected();
    };
    const Op groupChecked = [](WebList &l) {
        l.rows[1].checked = true;
        return l.addToGroup() && l.groupShown;
    };
    const Op inGroupPanel = [](WebList &l) {
        l.groupShown = true;
        l.groups = {L"g", L"h"};
        l.currentGroup = 1;
        const bool added = l.addItem() || l.duplicate() || l.insertSeparator();
        l.startEdit();
        l.accept(L"", L"H");
        return !added && l.moveUp() && !l.moveUp();
    };
    const Op emptyFields = [](WebList &l) {
        const bool separator = l.startEdit().has_value();
        l.current = 1;
        l.startEdit();
        const bool refused = !l.enter(L"", L"u") && !l.enter(L"n", L"");
        l.accept(L"", L"");
        return !separator && refused;
    };
    const Op closeTwice = [](WebList &l) {
        l.changed = true;
        return l.confirmClose() && !l.confirmClose();
    };
    const Op openTwice = [&](WebList &l) {
        open(false)(l);
        l.current = 1;
        return open(false)(l);
    };
    const Op openGroup = [&](WebList &l) {
        l.groups = {L"g h"};
        l.currentGroup = 0;
        l.groupShown = true;
        return open(false)(l);
    };
    const std::wstring start = L"start C:\\Program Files\\Web\\b.exe ";
    const std::wstring save = L"Save list before exiting this level ? |";
    const std::wstring panel = L"Add items to group list by selecting them from the main list|";
    const std::map<wchar_t, A> answerOf{{L'Y', A::Yes}, {L'N', A::No}, {L'C', A::Cancel}, {L'O', A::Ok}};
    const Case cases[] = {
        {"add above a checked row: the new row carries its mark", L"a b+ c", 0, &WebList::addItem, true,
         L"a|a |+* b|b c|c /"},
        {"move a checked row up: the mark stays", L"a b+", 1, &WebList::moveUp, true, L"b|b* a|a+ /"},
        {"duplicate copies to the end, unchecked", L"a b+", 1, &WebList::duplicate, true, L"a|a b|b+ b|b* /"},
        {"a separator goes to the end", L"a", 0, &WebList::insertSeparator, true, L"a|a " + kSep + L"|* /"},
        {"delete marks the selected rows after asking", L"a b c", 0, deleteTwo, true, L"---|---* b|b ---|---* /",
         L"Delete 2 items from list ? |", L"Y"},
        {"a group of the checked websites, a separator left out", L"a+ SEP c+", 1, groupChecked, true,
         L"a|a+ " + kSep + L"|+* c|c+ /a c ;"},
        {"in the group panel rows are not added, groups move and are edited", L"a", 0, inGroupPanel, true,
         L"a|a* /H;g;", panel + panel + panel},
        {"a separator is not edited; Enter checks both fields, Accept neither", L"SEP b", 0, emptyFields, true,
         kSep + L"|* | /", L"Name field is empty!|URL field is empty!|"},
        {"closing asks again after a cancelled save, until No; Cancel stays", L"a", 0, closeTwice, true, L"a|a* /",
         save + L"Data grid contains no entries !|" + save + save, L"YONC"},
        {"a double click while four are checked asks, then opens its row", L"a+ b+ c+ d+ e", 4, open(true), false,
         L"a|a+ b|b+ c|c+ d|d+ e|e* /", L"Load 4 selected websites from list?|" + start + L"e|", L"Y"},
        {"nothing checked opens the current row; a separator nothing", L"a SEP", 0, openTwice, false,
         L"a|a* " + kSep + L"| /", start + L"a|"},
        {"a group opens as it stands", L"a", 0, openGroup, false, L"a|a* /g h;", start + L"g h|"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        sys = testing::FakeSystem();
        list.changed = list.groupShown = false;
        for (const wchar_t answer : std::wstring_view(c.answers))
            sys.answers.push_back(answerOf.at(answer));
        list.groups.clear();
        list.rows = Rows(c.rows);
        list.rows[static_cast<std::size_t>(list.current = c.current)].selected = true;
        EXPECT_EQ(c.operation(list), c.changes);
        std::wstring after = Show(list.rows) + L"/", said;
        for (const std::wstring &group : list.groups)
            after += group + L";";
        EXPECT_EQ(std::pair(after, list.changed), std::pair(c.after, c.changes));
        for (const auto &m : sys.messages)
            said += m.text + L"|";
        for (const auto &command : sys.started)
            said += L"start " + command.commandLine + L"|";
        EXPECT_EQ(said, c.said);
    }
}

} // namespace
} // namespace orvane
