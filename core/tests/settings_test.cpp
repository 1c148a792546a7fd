#include "settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "app.h"
#include "conversions.h"
#include "fake_system.h"

namespace orvane {
namespace {

using Lines = std::vector<std::wstring>;
const std::wstring kIni = L"C:\\Orvane\\Orvane.ini";
// Written independently of the program's own table: the lines that hold text.
const std::set<int> kTextLines = {3, 4, 5, 6, 14, 15, 16, 17, 18, 19, 20, 21, 28, 29, 30, 32, 33, 34, 35, 36};

// The 39 lines of a file, each ending in CR LF: every line its own value ("text 3", "70"), or with
// distinct=false the initial ones ("", "0"); then the given lines (1-based) replaced.
std::string File(bool distinct, const std::map<int, std::string>& changed = {}) {
    std::string text;
    for (int n = 1; n <= 39; ++n) {
        const std::string own = kTextLines.count(n) ? (distinct ? "text " + std::to_string(n) : "")
                                                    : std::to_string(distinct ? n * 10 : 0);
        text += (changed.count(n) ? changed.at(n) : own) + "\r\n";
    }
    return text;
}

class SettingsFile : public ::testing::Test {
protected:
    SettingsFile() { app.SettingsFilePath = kIni; }
    void load(const std::string& bytes) { sys.addFile(kIni, bytes), LoadSettings(app); }
    const std::string& save() { return SaveSettings(app), sys.files[kIni]; }
    testing::FakeSystem sys;
    App app{sys};
};

TEST_F(SettingsFile, MissingFileIsReportedAndLeavesInitialValues) {
    LoadSettings(app);
    app.SettingsFilePath.clear();
    LoadSettings(app);
    const std::wstring missing = L"message Cannot locate the following program/file:\r\n\r\n";
    EXPECT_EQ(sys.journal,
              (Lines{missing + kIni + L"\r\n\r\n", L"cursor", missing + L"( Filename empty! )\r\n\r\n", L"cursor"}));
    const auto& m = sys.messages.at(0);
    EXPECT_EQ(std::tie(m.caption, m.icon, m.buttons), std::tuple(L"Orvane", MessageIcon::Critical, MessageButtons::Ok));
    EXPECT_EQ(app.settings, Settings{});
    app.SettingsFilePath = kIni;
    sys.addFile(kIni);
    sys.journal.clear();
    EXPECT_EQ(save(), File(false)) << "initial values are 39 lines of zero and empty";
    EXPECT_EQ(sys.journal, (Lines{L"delete " + kIni, L"write " + kIni})) << "the old file replaced by a fresh one";
}

TEST_F(SettingsFile, EveryLineReachesItsValueAndIsWrittenBackInPlace) {
    std::string withExtras = File(true);
    for (int n = 40; n <= 60; ++n) withExtras += "extra " + std::to_string(n) + "\r\n";  // ignored, not kept
    load(withExtras);
    const Settings& s = app.settings;
    EXPECT_EQ(std::tie(s.MainTop, s.MainLeft, s.ListFontSize, s.ListFontBold, s.ReservedLine9, s.MainWidth,
                       s.MainHeight, s.MainBackColor, s.IconSize, s.CustomTop, s.CustomLeft, s.CustomHeight,
                       s.CustomWidth, s.CustomGrid1Row, s.CustomGrid2Row, s.WallpaperStretch, s.WebBrowserChoice,
                       s.ExpandedLayout, s.ExpandedWidth),
              std::tuple(10, 20, 70, 80, 90, 100, 110, 120, 130, 220, 230, 240, 250, 260, 270, 310, 370, 380, 390));
    const Lines texts = {s.DeadlinesFile, s.WebmailUrl, s.AddressesFile, s.ListFontName, s.AccessPath, s.PublisherPath,
                         s.ExcelPath, s.PowerPointPath, s.WordPath, s.SkinFile, s.SkinFolder, s.CustomBrowser,
                         s.CustomListFile, s.YourProgram, s.WallpaperFile, s.ReturnPassword, s.WebListFile,
                         s.WebBrowser1, s.WebBrowser2, s.WebBrowser3};  // in file order
    Lines expected;
    for (int n : kTextLines) expected.push_back(L"text " + std::to_wstring(n));
    EXPECT_EQ(texts, expected);
    EXPECT_EQ(save(), File(true));

    load("15\r\n30\r\nC:\\Deadlines.vrt");  // a short file keeps the rest; the last line needs no line end
    EXPECT_EQ(save(), File(true, {{1, "15"}, {2, "30"}, {3, "C:\\Deadlines.vrt"}}));
    EXPECT_TRUE(sys.messages.empty());
}

TEST_F(SettingsFile, LineValuesAsReadAndWrittenBack) {
    // Blanks before a number, a numeric prefix, a hand-edited true, an empty number line, hexadecimal, halves to
    // the even neighbour, text where a number belongs, text keeping its blanks; then numbers that do not fit their
    // type, which keep the value before.
    const std::tuple<int, std::string, std::string> cases[] = {
        {1, "   -45", "-45"}, {7, "  12pt", "12"}, {8, "1", "1"}, {9, "-1", "-1"}, {9, "", "0"},
        {12, "&HFF00&", "65280"}, {13, "12.5", "12"}, {22, "13.5", "14"}, {26, "none", "0"},
        {18, "  C:\\x.exe  ", "  C:\\x.exe  "},
        {13, "40000", "130"}, {38, "-32769", "380"}, {1, "99999999999", "10"}, {2, "2147483647", "2147483647"},
        {13, "1e400", "130"}, {39, "&H100000000", "390"},
    };
    for (const auto& [line, read, written] : cases) {
        load(File(true));  // every value its own before
        load(File(true, {{line, read}}));
        EXPECT_EQ(save(), File(true, {{line, written}})) << read;
    }
}

TEST_F(SettingsFile, LockedFileIsReadAsNothingAndOnlyTheOldRuntimesErrorMinusOneIsReported) {
    sys.lockedFiles.insert(kIni);
    load(File(true));
    EXPECT_EQ(app.settings, Settings{});
    EXPECT_EQ(save(), File(true)) << "not overwritten";
    sys.createError = 75;
    SaveSettings(app);
    EXPECT_TRUE(sys.messages.empty());
    sys.createError = -1;
    sys.errorDescription = L"Access is denied.";
    SaveSettings(app);
    ASSERT_EQ(sys.messages.size(), 1u);
    EXPECT_EQ(sys.messages[0].text,
              L"Cannot save this file :\r\n\r\nC:\\Orvane\\Orvane.ini\r\n\r\n"
              L"The error was probably triggered for the following reason : \r\n\r\n\"Access is denied.\"\r\n");
}

TEST_F(SettingsFile, AnsiTextSurvivesForeignCharactersBecomeQuestionMarksAndGarbageOrHugeFilesAreTakenInStride) {
    load(File(true, {{3, "C:\\D\xFCsseldorf\\\x80uro.vrt"}}));  // ü and € in Windows-1252
    EXPECT_EQ(app.settings.DeadlinesFile, L"C:\\D\u00FCsseldorf\\\u20ACuro.vrt");
    app.settings.AddressesFile = L"C:\\\u0141\u00F3d\u017A.vrt";  // Ł and ź have no place in the code page
    EXPECT_EQ(save(), File(true, {{3, "C:\\D\xFCsseldorf\\\x80uro.vrt"}, {5, "C:\\?\xF3" "d?.vrt"}}));

    std::string garbage;
    for (int i = 0; i < 4096; ++i) garbage += static_cast<char>((i * 7919) % 256);
    load(garbage);
    const std::string& written = save();
    EXPECT_EQ(std::count(written.begin(), written.end(), '\n'), 39);

    const std::string longLine(1 << 20, 'a');
    std::string huge = File(true, {{3, longLine}});
    while (huge.size() < 10u << 20) huge += longLine + "\r\n";
    load(huge);
    EXPECT_EQ(save(), File(true, {{3, longLine}})) << "read up to line 39, the long line whole";
}

// The conversions the file format depends on.

TEST(Conversions, NumericPrefixIsTheLongestNumberAfterWhiteSpaceOrZeroOrNothingOnOverflow) {
    const std::pair<const wchar_t*, std::optional<double>> cases[] = {
        {L"1440", 1440}, {L"   -15", -15}, {L"\t 7", 7}, {L"+3", 3}, {L"12abc", 12}, {L"12.5", 12.5}, {L".5", 0.5},
        {L"5.", 5}, {L"1e3", 1000}, {L"2D2", 200}, {L"1e", 1}, {L"1e+x", 1}, {L"1 2", 1}, {L"1,000", 1},
        {L"1e400", std::nullopt},
        // Without a number: zero.
        {L"", 0}, {L"abc", 0}, {L"--5", 0}, {L".", 0}, {L"- 5", 0}, {L"&Q1", 0}, {L"&H", 0},
        // Hexadecimal: four digits or fewer are a 16-bit pattern unless "&" marks a 32-bit literal.
        {L"&H10", 16}, {L"&hff", 255}, {L" &H7FFF", 32767}, {L"&HFFFF", -1}, {L"&HFFFF&", 65535}, {L"&H10000", 65536},
        {L"&HFFFFFFFF", -1}, {L"&HFFG", 255}, {L"&H100000000", std::nullopt},
    };
    for (const auto& [text, expected] : cases) EXPECT_EQ(NumericPrefix(text), expected) << '"' << text << '"';
}

TEST(Conversions, RoundingTakesHalvesToEvenAndChecksTheRangeAfterRounding) {
    const std::tuple<double, std::optional<std::int16_t>, std::optional<std::int32_t>> cases[] = {
        {12.5, 12, 12}, {13.5, 14, 14}, {-2.5, -2, -2}, {2.6, 3, 3}, {0.5, 0, 0}, {32767.4, 32767, 32767},
        {32767.5, std::nullopt, 32768}, {-32768.5, -32768, -32768}, {-32769.0, std::nullopt, -32769},
        {2147483647.0, std::nullopt, 2147483647}, {2147483648.0, std::nullopt, std::nullopt},
        {-2147483648.0, std::nullopt, INT32_MIN},
    };
    for (const auto& [value, to16, to32] : cases)
        EXPECT_EQ(std::pair(RoundToInt16(value), RoundToInt32(value)), std::pair(to16, to32)) << value;
}

TEST(Conversions, TrimmingRemovesBlanksButNotTabsAndSplittingTakesEveryLineEndUpToTheLimit) {
    EXPECT_EQ(TrimBlanks(L"  a b  ") + L"|" + TrimBlanks(L"\ta\t") + L"|" + TrimBlanks(L"   ") + L"|" +
                  TrimLeadingBlanks(L"  x ") + L"|" + TrimTrailingBlanks(L"  x "),
              L"a b|\ta\t||x |  x");
    using Views = std::vector<std::wstring_view>;
    EXPECT_EQ(SplitLines(L"a\r\nb\rc\nd\r\n\r\ne\r\n", 10), (Views{L"a", L"b", L"c", L"d", L"", L"e"}));
    EXPECT_EQ(SplitLines(L"a\nb\nc", 2), (Views{L"a", L"b"}));
    EXPECT_TRUE(SplitLines(L"", 5).empty());
}

}  // namespace
}  // namespace orvane
