#include "settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "app.h"
#include "fake_system.h"

namespace orvane {
namespace {

using testing::FakeSystem;

const std::wstring kIni = L"C:\\Orvane\\Orvane.ini";
// Written independently of the program's own table: the lines that hold text.
const std::set<int> kTextLines = {3, 4, 5, 6, 14, 15, 16, 17, 18, 19, 20, 21, 28, 29, 30, 32, 33, 34, 35, 36};

std::string Lines(const std::vector<std::string>& lines, const char* end = "\r\n") {
    std::string text;
    for (const auto& line : lines) text += line + end;
    return text;
}

// A file whose every line holds a value of its own.
std::vector<std::string> DistinctLines() {
    std::vector<std::string> lines;
    for (int n = 1; n <= 39; ++n) lines.push_back(kTextLines.count(n) ? "text " + std::to_string(n) : std::to_string(n * 10));
    return lines;
}

class SettingsFile : public ::testing::Test {
protected:
    SettingsFile() { app.SettingsFilePath = kIni; }
    void load(const std::string& bytes) {
        sys.addFile(kIni, bytes);
        LoadSettings(app);
    }
    FakeSystem sys;
    App app{sys};
};

TEST_F(SettingsFile, InitialValuesAreWrittenAs39LinesOfZeroAndEmpty) {
    SaveSettings(app);
    std::vector<std::string> expected;
    for (int n = 1; n <= 39; ++n) expected.push_back(kTextLines.count(n) ? "" : "0");
    EXPECT_EQ(sys.files[kIni], Lines(expected));
}

TEST_F(SettingsFile, EveryLineReachesItsValueAndIsWrittenBackInPlace) {
    load(Lines(DistinctLines()));
    const Settings& s = app.settings;
    EXPECT_EQ(s.MainTop, 10);
    EXPECT_EQ(s.MainLeft, 20);
    EXPECT_EQ(s.DeadlinesFile, L"text 3");
    EXPECT_EQ(s.ListFontSize, 70);
    EXPECT_EQ(s.ReservedLine9, 90);
    EXPECT_EQ(s.MainBackColor, 120);
    EXPECT_EQ(s.IconSize, 130);
    EXPECT_EQ(s.WordPath, L"text 18");
    EXPECT_EQ(s.SkinFile, L"text 19");
    EXPECT_EQ(s.CustomBrowser, L"text 21");
    EXPECT_EQ(s.CustomGrid2Row, 270);
    EXPECT_EQ(s.WallpaperStretch, 310);
    EXPECT_EQ(s.ReturnPassword, L"text 32");
    EXPECT_EQ(s.WebBrowser3, L"text 36");
    EXPECT_EQ(s.ExpandedWidth, 390);
    EXPECT_TRUE(sys.messages.empty());
    SaveSettings(app);
    EXPECT_EQ(sys.files[kIni], Lines(DistinctLines()));
}

TEST_F(SettingsFile, MissingFileIsReportedOnceAndLeavesInitialValues) {
    LoadSettings(app);
    ASSERT_EQ(sys.messages.size(), 1u);
    EXPECT_EQ(sys.messages[0].text, L"Cannot locate the following program/file:\r\n\r\nC:\\Orvane\\Orvane.ini\r\n\r\n");
    EXPECT_EQ(sys.messages[0].caption, L"Orvane");
    EXPECT_EQ(sys.messages[0].icon, MessageIcon::Critical);
    EXPECT_EQ(app.settings, Settings{});

    app.SettingsFilePath.clear();
    LoadSettings(app);
    EXPECT_EQ(sys.messages.back().text, L"Cannot locate the following program/file:\r\n\r\n( Filename empty! )\r\n\r\n");
}

TEST_F(SettingsFile, AllZeroFileEqualsNoFileWithoutTheMessage) {
    std::vector<std::string> zeros;
    for (int n = 1; n <= 39; ++n) zeros.push_back(kTextLines.count(n) ? "" : "0");
    load(Lines(zeros));
    EXPECT_EQ(app.settings, Settings{});
    EXPECT_TRUE(sys.messages.empty());
}

TEST_F(SettingsFile, ShortFileKeepsTheRestAndLastLineNeedsNoLineEnd) {
    app.settings.IconSize = 400;
    load("15\r\n30\r\nC:\\Deadlines.vrt");
    EXPECT_EQ(app.settings.MainTop, 15);
    EXPECT_EQ(app.settings.MainLeft, 30);
    EXPECT_EQ(app.settings.DeadlinesFile, L"C:\\Deadlines.vrt");
    EXPECT_EQ(app.settings.IconSize, 400);
}

TEST_F(SettingsFile, LinesPastThe39thAreIgnoredAndNotKept) {
    auto lines = DistinctLines();
    for (int n = 40; n <= 60; ++n) lines.push_back("extra " + std::to_string(n));
    load(Lines(lines));
    EXPECT_EQ(app.settings.ExpandedWidth, 390);
    SaveSettings(app);
    EXPECT_EQ(sys.files[kIni], Lines(DistinctLines()));
}

TEST_F(SettingsFile, TextKeepsItsBlanksAndNumbersAreReadLeniently) {
    auto lines = DistinctLines();
    lines[0] = "   -45";         // MainTop: leading blanks
    lines[6] = "  12pt";         // ListFontSize: numeric prefix
    lines[7] = "1";              // ListFontBold: a hand-edited true
    lines[11] = "&HFF00&";       // MainBackColor: hexadecimal
    lines[12] = "12.5";          // IconSize: half to even
    lines[21] = "13.5";          // CustomTop
    lines[25] = "none";          // CustomGrid1Row: text
    lines[17] = "  C:\\x.exe  "; // WordPath
    load(Lines(lines));
    const Settings& s = app.settings;
    EXPECT_EQ(s.MainTop, -45);
    EXPECT_EQ(s.ListFontSize, 12);
    EXPECT_EQ(s.ListFontBold, 1);
    EXPECT_EQ(s.MainBackColor, 0xFF00);
    EXPECT_EQ(s.IconSize, 12);
    EXPECT_EQ(s.CustomTop, 14);
    EXPECT_EQ(s.CustomGrid1Row, 0);
    EXPECT_EQ(s.WordPath, L"  C:\\x.exe  ");
    SaveSettings(app);
    EXPECT_NE(sys.files[kIni].find("\r\n  C:\\x.exe  \r\n"), std::string::npos);
    EXPECT_EQ(sys.files[kIni].substr(0, 5), "-45\r\n");
}

TEST_F(SettingsFile, NumberOutsideItsTypeKeepsThePreviousValue) {
    app.settings.IconSize = 400;
    app.settings.ExpandedLayout = 1;
    app.settings.MainTop = 7;
    auto lines = DistinctLines();
    lines[12] = "40000";
    lines[37] = "-32769";
    lines[0] = "99999999999";
    lines[1] = "2147483647";
    load(Lines(lines));
    EXPECT_EQ(app.settings.IconSize, 400);
    EXPECT_EQ(app.settings.ExpandedLayout, 1);
    EXPECT_EQ(app.settings.MainTop, 7);
    EXPECT_EQ(app.settings.MainLeft, 2147483647);
    EXPECT_EQ(app.settings.ExpandedWidth, 390);
}

TEST_F(SettingsFile, SavedFileIsTheValuesPlus78BytesOfLineEnds) {
    app.settings.WordPath = L"C:\\Office\\WINWORD.EXE";
    app.settings.MainWidth = 16065;
    app.settings.ListFontBold = -1;
    SaveSettings(app);
    const std::string& file = sys.files[kIni];
    // WordPath, "16065", "-1" and seventeen other number lines of "0".
    EXPECT_EQ(file.size(), 21u + 5 + 2 + 17 + 78);
    EXPECT_NE(file.find("\r\n-1\r\n"), std::string::npos);
}

TEST_F(SettingsFile, SaveReplacesTheOldFileWithAFreshOne) {
    sys.addFile(kIni, "old content that is much longer than the new one ...........................");
    SaveSettings(app);
    ASSERT_GE(sys.journal.size(), 2u);
    EXPECT_EQ(sys.journal[0], L"delete " + kIni);
    EXPECT_EQ(sys.journal[1], L"write " + kIni);
    EXPECT_EQ(sys.files[kIni].rfind("0\r\n0\r\n", 0), 0u);
}

TEST_F(SettingsFile, LockedFileIsReadAsNothingAndNotOverwritten) {
    sys.lockedFiles.insert(kIni);
    load(Lines(DistinctLines()));
    EXPECT_EQ(app.settings, Settings{});
    EXPECT_TRUE(sys.messages.empty());
    SaveSettings(app);
    EXPECT_EQ(sys.files[kIni], Lines(DistinctLines()));
    EXPECT_TRUE(sys.messages.empty());
}

TEST_F(SettingsFile, OnlyTheOldRuntimesErrorMinusOneIsReported) {
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
    EXPECT_EQ(sys.journal[sys.journal.size() - 2], L"beep");
}

TEST_F(SettingsFile, AnsiTextSurvivesAndForeignCharactersBecomeQuestionMarks) {
    auto lines = DistinctLines();
    lines[2] = "C:\\D\xFCsseldorf\\\x80uro.vrt";  // ü and € in Windows-1252
    load(Lines(lines));
    EXPECT_EQ(app.settings.DeadlinesFile, L"C:\\D\u00FCsseldorf\\\u20ACuro.vrt");
    app.settings.AddressesFile = L"C:\\\u0141\u00F3d\u017A.vrt";  // Ł and ź have no place in the code page
    SaveSettings(app);
    EXPECT_NE(sys.files[kIni].find("\r\nC:\\D\xFCsseldorf\\\x80uro.vrt\r\n"), std::string::npos);
    EXPECT_NE(sys.files[kIni].find("\r\nC:\\?\xF3" "d?.vrt\r\n"), std::string::npos);
}

TEST_F(SettingsFile, GarbageHugeFilesAndLongLinesAreTakenInStride) {
    std::string garbage;
    for (int i = 0; i < 4096; ++i) garbage += static_cast<char>((i * 7919) % 256);
    load(garbage);
    SaveSettings(app);
    EXPECT_EQ(std::count(sys.files[kIni].begin(), sys.files[kIni].end(), '\n'), 39);

    const std::string longLine(1 << 20, 'a');
    auto lines = DistinctLines();
    lines[2] = longLine;
    std::string huge = Lines(lines);
    while (huge.size() < 10u << 20) huge += longLine + "\r\n";
    load(huge);
    EXPECT_EQ(app.settings.DeadlinesFile.size(), longLine.size());
    EXPECT_EQ(app.settings.ExpandedWidth, 390);
}

}  // namespace
}  // namespace orvane
