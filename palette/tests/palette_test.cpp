#include <gtest/gtest.h>

#include <tuple>

#include "app.h"
#include "fake_system.h"
#include "helpers.h"
#include "palette.h"

namespace orvane {
namespace {

using K = TargetKind;

TEST(Palette, RanksByMatchThenRecencyThenOrder) {
    std::vector<Target> targets; // in kind and list order
    for (const wchar_t *name : {L"Paint Shop", L"My paper (daily)", L"Zip-Pack", L"Newspaper", L"Spread all", L"Äpfel",
                                L"Über Ωmega", L"a.org b.org", L"File manager", L"Photo", L"Calc"})
        targets.push_back({.name = name, .folded = FoldCase(name)});
    const std::tuple<const wchar_t *, std::vector<std::size_t>, std::vector<std::size_t>> cases[] = {
        {L"pa", {}, {0, 1, 2, 3, 4}},        // start, word starts in order, inside, letters in order, no match
        {L"PA", {2, 1, 2}, {0, 2, 1, 3, 4}}, // among equals the more recently run first
        {L"ÜBER ΩM", {}, {6}},
        {L"", {4}, {4, 0, 1, 2, 3, 5, 6, 7, 8, 9, 10}}, // the runs, then the rest in order
        {L"", {3, 0, 1, 2, 4, 5, 6, 7, 8, 9, 10}, {10, 9, 8, 7, 6, 5, 4, 2, 1, 0, 3}}, // the last ten
    };
    for (const auto &[typed, runs, ranked] : cases) { // runs oldest first
        RunHistory history;
        for (std::size_t run : runs)
            history.ran(targets[run]);
        EXPECT_EQ(RankTargets(targets, typed, history), ranked) << typed;
    }
}

TEST(Palette, BuildsCommandsProgramsWebsitesGroupsAndShortcutsInOrder) {
    CustomProgramTable table;
    table.DisplayNames[0] = L" Editor ";
    table.ProgramPaths[0] = L"C:\\e.exe";
    table.DisplayNames[2] = L"Mail";
    const WebListContent web =
        ParseWebList(L"News\r\nn.org\r\n0\r\n" + std::wstring(kSeparatorMarker) +
                     L"\r\n\r\n0\r\n---\r\n---\r\n0\r\n \r\nb.org\r\n0\r\n***\r\na b\r\n---\r\n");
    const std::wstring shortcuts[] = {L"C:\\S\\Word Pad.lnk"};
    std::wstring shown;
    for (const Target &t : BuildTargets({MainMenuRows(), StripIcons(), &table, &web, shortcuts}))
        if (t.kind != K::Command || t.name.starts_with(L"E") || t.name.starts_with(L"We") || t.name.ends_with(L"|"))
            shown += t.name + L"," + t.shortcut + L"," + std::wstring(t.iconKey) + L"," + t.path + L"," +
                     std::to_wstring(t.index) + (t.stripOnly ? L"*" : L"") + L" ";
    EXPECT_EQ(shown,
              L"Exit,Alt+Q,k6,,0 E-mail manager,Ctrl+Shift+E,k49,,0 Excel,Ctrl+Shift+X,k16,,0 Web interface "
              L"URL,Ctrl+Alt+F5,k30,,0 Web interface URL,,k30,,0* Editor,,,C:\\e.exe,0 Mail,,,,2 News,,,,0 "
              L"b.org,,,,3 a b,,,,0 Word Pad,,,C:\\S\\Word Pad.lnk,0 "); // the second URL item: the strip's, marked *
}

TEST(Palette, ReadsItsSourcesQuietlyAndOpensWebTargetsAsTheWebListWindowDoes) {
    testing::FakeSystem sys;
    sys.specialFolders = {{2, L"C:\\U"}, {0x17, L"C:\\A"}}; // the user's and all users' Programs
    App app(sys);
    for (const wchar_t *path : {L"C:\\U\\S\\a.lnk", L"C:\\U\\B.LNK", L"C:\\U\\r.txt", L"C:\\A\\y.exe", L"C:\\A\\x.url"})
        sys.addFile(path);
    const std::vector<std::wstring> all{L"C:\\U\\B.LNK", L"C:\\U\\S\\a.lnk", L"C:\\A\\x.url", L"C:\\A\\y.exe"};
    EXPECT_EQ(StartMenuShortcuts(sys, StartMenuFolders(sys)), all);
    sys.specialFolders[0x17] = L"c:\\u"; // given twice: listed once
    EXPECT_EQ(StartMenuShortcuts(sys, StartMenuFolders(sys)), std::vector(all.begin(), all.begin() + 2));
    EXPECT_EQ(QuietWebList(app), WebListContent{}); // missing; fresh settings name both lists ""
    sys.addFile(L"", std::string(kMostFileBytes + 1, 'x'));
    EXPECT_EQ(QuietCustomList(app), CustomProgramTable{}); // too large
    sys.addFile(L"", "A\r\na\r\n1\r\nB\r\n\xE9\r\n1\r\nC\r\nc\r\n1\r\nD\r\nd\r\n1\r\n***\r\nx\r\na b\r\n");
    const WebListContent web = QuietWebList(app);
    app.settings.WebBrowser1 = L"C:\\B b\\b.exe";
    app.settings.WebBrowserChoice = 1;
    sys.answers = {MessageAnswer::No, MessageAnswer::Yes}; // four checked: asked first, as the window asks
    for (K kind : {K::Website, K::Website, K::WebGroup})
        OpenWebTarget(app, web, {.kind = kind, .index = 1});
    const std::wstring question = L"message Load 4 selected websites from list?";
    EXPECT_EQ(sys.journal,
              (std::vector<std::wstring>{question, question, L"start C:\\B b\\b.exe é", L"start C:\\B b\\b.exe a b"}));
}

} // namespace
} // namespace orvane
