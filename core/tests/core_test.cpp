// The portable core on the recording fake: the settings file, launching, start-up and the helpers they share.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "app.h"
#include "conversions.h"
#include "fake_system.h"
#include "helpers.h"
#include "launch.h"
#include "locations.h"
#include "office.h"
#include "paths.h"
#include "reports.h"
#include "settings.h"
#include "skin_file.h"

namespace orvane {
namespace {

using Lines = std::vector<std::wstring>;
const std::wstring kIni = L"C:\\Orvane\\Orvane.ini";
const std::wstring kNotFound = L"message Cannot locate the following program/file:\r\n\r\n";
const std::wstring kReason = L"\r\n\r\nThe error was probably triggered for the following reason : \r\n\r\n";
// Written independently of the program's own table: the lines that hold text.
const std::set<int> kTextLines = {3, 4, 5, 6, 14, 15, 16, 17, 18, 19, 20, 21, 28, 29, 30, 32, 33, 34, 35, 36};

// A settings file of 39 CR LF lines, its own values ("text € 3" in Windows-1252, "70") or initial ones; some changed.
std::string File(bool distinct, const std::map<int, std::string> &changed = {}) {
    std::string text;
    for (int n = 1; n <= 39; ++n) {
        const std::string own = kTextLines.count(n) ? (distinct ? "text \x80 " + std::to_string(n) : "")
                                                    : std::to_string(distinct ? n * 10 : 0);
        text += (changed.count(n) ? changed.at(n) : own) + "\r\n";
    }
    return text;
}

class Core : public ::testing::Test {
protected:
    Core() {
        app.ProgramFolder = L"C:\\Orvane";
    }
    void load(const std::string &bytes) {
        app.SettingsFilePath = kIni;
        sys.addFile(kIni, bytes);
        LoadSettings(app);
    }
    const std::string &save() {
        SaveSettings(app);
        return sys.files[kIni];
    }
    // Starts the tool with the document (kept for a look afterwards); the program path as located.
    std::wstring launch(std::wstring program, std::wstring doc = L"") {
        LaunchSuiteProgram(app, program, document = doc);
        return program;
    }
    testing::FakeSystem sys;
    App app{sys};
    std::wstring document;
};

// A locked file (neither read nor overwritten): the e2e BadSettings test.
TEST_F(Core, MissingOrTooLargeFilesLeaveInitialValuesAndOnlyTheOldRuntimesErrorMinusOneIsReportedOnSaving) {
    app.SettingsFilePath = kIni; // an empty name is reported as such: the launcher tests
    LoadSettings(app);
    const auto &m = sys.messages.at(0);
    EXPECT_EQ(std::tie(m.caption, m.icon, m.buttons), std::tuple(L"Orvane", MessageIcon::Critical, MessageButtons::Ok));
    sys.addFile(kIni);
    EXPECT_EQ(save(), File(false)) << "initial values are 39 lines of zero and empty";
    EXPECT_EQ(sys.journal, (Lines{kNotFound + kIni + L"\r\n\r\n", L"cursor", L"delete " + kIni, L"write " + kIni}))
        << "the old file replaced by a fresh one";
    sys.errorDescription = L"Access is denied.";
    for (const FileError error : {75, -1}) {
        sys.createError = error;
        SaveSettings(app);
    }
    EXPECT_EQ(sys.messages.size(), 2u) << "one missing, then one failed save";
    EXPECT_EQ(sys.journal.back(),
              L"message Cannot save this file :\r\n\r\n" + kIni + kReason + L"\"Access is denied.\"\r\n");
    const std::string tooLarge = File(true) + std::string(kMostFileBytes + 1 - File(true).size(), 'x');
    load(tooLarge); // just over what is read whole: neither read nor written over, quietly
    EXPECT_EQ(std::tuple(app.settings == Settings{}, save() == tooLarge, sys.messages.size()),
              std::tuple(true, true, 2u));
}

TEST_F(Core, EveryLineReachesItsValueAndIsWrittenBackInPlace) {
    load(File(true) + "extra 40\r\nextra 41\r\n"); // lines past 39 are ignored, not kept
    const Settings &s = app.settings;
    EXPECT_EQ(std::tie(s.MainTop, s.MainLeft, s.ListFontSize, s.ListFontBold, s.ReservedLine9, s.MainWidth,
                       s.MainHeight, s.MainBackColor, s.IconSize, s.CustomTop, s.CustomLeft, s.CustomHeight,
                       s.CustomWidth, s.CustomGrid1Row, s.CustomGrid2Row, s.WallpaperStretch, s.WebBrowserChoice,
                       s.ExpandedLayout, s.ExpandedWidth),
              std::tuple(10, 20, 70, 80, 90, 100, 110, 120, 130, 220, 230, 240, 250, 260, 270, 310, 370, 380, 390));
    Lines expected; // the text lines in file order, read through the code page
    for (int n : kTextLines)
        expected.push_back(L"text \u20AC " + std::to_wstring(n));
    EXPECT_EQ((Lines{s.DeadlinesFile,  s.WebmailUrl,    s.AddressesFile,  s.ListFontName, s.AccessPath,
                     s.PublisherPath,  s.ExcelPath,     s.PowerPointPath, s.WordPath,     s.SkinFile,
                     s.SkinFolder,     s.CustomBrowser, s.CustomListFile, s.YourProgram,  s.WallpaperFile,
                     s.ReturnPassword, s.WebListFile,   s.WebBrowser1,    s.WebBrowser2,  s.WebBrowser3}),
              expected);
    EXPECT_EQ(save(), File(true));

    load("15\r\n30\r\nC:\\Deadlines.vrt"); // a short file keeps the rest; the last line needs no line end
    EXPECT_EQ(save(), File(true, {{1, "15"}, {2, "30"}, {3, "C:\\Deadlines.vrt"}}));
    EXPECT_TRUE(sys.messages.empty());
}

TEST_F(Core, LineValuesAsReadAndWrittenBack) {
    // The number's prefix (hexadecimal too), rounded, as the conversions below read it; text for a number is zero, but
    // too big for the line's type or for a double keeps the old value; text keeps its blanks.
    const std::tuple<int, std::string, std::string> cases[] = {
        {7, "  12pt", "12"},  {12, "&HFF00&", "65280"}, {22, "13.5", "14"},   {26, "none", "0"},
        {13, "40000", "130"}, {1, "99999999999", "10"}, {13, "1e400", "130"}, {18, "  C:\\x.exe  ", "  C:\\x.exe  "},
    };
    for (const auto &[line, read, written] : cases) {
        load(File(true));
        load(File(true, {{line, read}})); // every value its own before
        EXPECT_EQ(save(), File(true, {{line, written}})) << read;
    }
}

// The conversions the file format depends on.

TEST(Conversions, NumbersReadAsTheOldRuntimeDoesRoundingTrimmingAndLineSplitting) {
    const std::pair<const wchar_t *, std::optional<double>> cases[] = {
        {L"\t -15", -15},
        {L"+3", 3},
        {L".5", 0.5},
        {L"2D2", 200},
        {L"1e+x", 1},
        {L"1 2", 1},
        {L"1e400", std::nullopt},
        {L"", 0},
        {L"--5", 0},
        {L".", 0},
        {L"&Q1", 0},
        {L"&H", 0}, // no number: zero
        // Hexadecimal: four digits or fewer are a 16-bit pattern unless "&" marks a 32-bit literal.
        {L"&hff", 255},
        {L" &H7FFF", 32767},
        {L"&HFFFF", -1},
        {L"&H10000", 65536},
        {L"&HFFFFFFFF", -1},
        {L"&HFFG", 255},
        {L"&H100000000", std::nullopt},
    };
    for (const auto &[text, expected] : cases)
        EXPECT_EQ(NumericPrefix(text), expected) << '"' << text << '"';
    // Rounding takes halves to even and checks the range after rounding.
    const std::tuple<double, std::optional<std::int16_t>, std::optional<std::int32_t>> rounded[] = {
        {12.5, 12, 12},
        {32767.5, std::nullopt, 32768},
        {-32768.5, -32768, -32768},
        {-32769.0, std::nullopt, -32769},
        {2147483648.0, std::nullopt, std::nullopt},
        {-2147483648.0, std::nullopt, INT32_MIN},
    };
    for (const auto &[value, to16, to32] : rounded)
        EXPECT_EQ(std::pair(RoundToInt16(value), RoundToInt32(value)), std::pair(to16, to32)) << value;
    // Trimming removes blanks but not tabs; splitting takes every line end, up to the limit.
    EXPECT_EQ(TrimBlanks(L"  a b  ") + L"|" + TrimBlanks(L"\ta\t") + L"|" + TrimBlanks(L"   ") + L"|" +
                  TrimLeadingBlanks(L"  x ") + L"|" + TrimTrailingBlanks(L"  x "),
              L"a b|\ta\t||x |  x");
    using Views = std::vector<std::wstring_view>;
    EXPECT_EQ(SplitLines(L"a\r\nb\rc\nd\r\n\r\ne\r\n", 10), (Views{L"a", L"b", L"c", L"d", L"", L"e"}));
    EXPECT_EQ(SplitLines(L"a\nb\nc", 2), (Views{L"a", L"b"}));
}

TEST_F(Core, SuiteProgramDocumentBecomesAPathQuotedWhenItHasABlankAndTheProgramIsSearchedFor) {
    const std::wstring program = L" C:\\Suite\\Tool.exe "; // trimmed in a command with a document only
    sys.addFile(program);
    for (const wchar_t *file : {L"F:\\Drive_G\\Docs\\a.vrt", L"C:\\Drive_C\\Drive_G\\b.vrt"})
        sys.addFile(file);
    const std::tuple<const wchar_t *, const wchar_t *, const wchar_t *> cases[] = {
        // current folder, document, command
        {L"D:\\", L"my notes.txt", L"C:\\Suite\\Tool.exe \"D:\\my notes.txt\""},
        // The program alone, as given; blanks made a path before the blank test; a one-letter document left alone.
        {L"C:\\Work", L" ", L" C:\\Suite\\Tool.exe "},
        {L"C:\\Work", L"x", L"C:\\Suite\\Tool.exe x"},
        {L"C:\\Work", L"   ", L"C:\\Suite\\Tool.exe \"C:\\Work\\   \""},
        {L"C:\\Work", L"G:\\Docs\\a.vrt", L"C:\\Suite\\Tool.exe F:\\Drive_G\\Docs\\a.vrt"},
        {L"C:\\Work", L"C:\\Drive_G\\b.vrt", L"C:\\Suite\\Tool.exe C:\\Drive_G\\b.vrt"}, // not rescanned
        {L"C:\\Work", L"\"C:\\My Docs\\a.vrt\"", L"C:\\Suite\\Tool.exe \"C:\\My Docs\\a.vrt\""},
    };
    for (const auto &[current, doc, command] : cases) {
        sys.current = current;
        launch(program, doc);
        EXPECT_EQ(sys.started.back().commandLine, command) << doc;
    }
    EXPECT_EQ(document, L"\"C:\\My Docs\\a.vrt\"") << "unquoted, then quoted again for its blank";
    EXPECT_EQ(std::pair(sys.started.back().showCode, app.LastLaunchResult), std::pair(1, std::int16_t(100)));
    EXPECT_TRUE(sys.messages.empty());
    sys.journal.clear();
    for (const auto task : {std::optional<long long>(), std::optional<long long>(70000)}) {
        sys.nextTask = task;
        launch(program);
    }
    EXPECT_EQ(app.LastLaunchResult, 100) << "a refused start or an oversized task keeps the previous result";
    EXPECT_EQ(sys.journal, (Lines{L"start " + program, L"start " + program}));
    app.ProgramFolder = L"b:\\Orvane"; // a drive the scan does not reach
    // Each file added wins over the ones before it; the scan runs from C to the six characters after Z.
    const std::wstring stored = L"G:\\T\\Tool.exe";
    sys.journal.clear();
    launch(stored, L"a.txt");
    EXPECT_EQ(sys.journal, (Lines{kNotFound + stored + L"\r\n\r\n", L"cursor"})) << "found nowhere";
    for (const std::wstring found : {L"b:\\Orvane\\Tool.exe", L"b:\\Drive_G\\T\\Tool.exe", L"`:\\Drive_G\\T\\Tool.exe",
                                     L"C:\\Drive_G\\T\\Tool.exe", L"C:\\TellmarkSet\\Tool.exe", stored.c_str()}) {
        sys.addFile(found);
        EXPECT_EQ(launch(stored), found);
        EXPECT_EQ(sys.started.back().commandLine, found);
    }
}

// Which windows a task bar shows: the Win32 RealWindowList test.
TEST_F(Core, ARunningSuiteProgramIsBroughtForwardByTheFirstWindowOfItsExactTitle) {
    sys.addFile(L"C:\\Suite\\Tool.exe");
    // handle, visible, parent, owner, extended style, title
    sys.windows = {
        {5, true, false, false, 0, L"tool"}, {7, true, false, false, 0, L"Tool"}, {8, true, false, false, 0, L"Tool"}};
    launch(L"C:\\Suite\\Tool.exe", L"a.txt");
    EXPECT_EQ(sys.journal, (Lines{L"message Program running already", L"foreground 7"})) << "and nothing started";
    EXPECT_EQ(std::tie(sys.messages[0].caption, sys.messages[0].icon), std::tuple(L"Orvane", MessageIcon::None));
}

TEST_F(Core, BrowserAndArgumentCommandLinesQuoteOnlyWithABlankAndShellRequestsNameTheFilesFolder) {
    app.settings.CustomBrowser = L"C:\\Web\\web.exe";
    LoadCustomBrowser(app, L"x");
    EXPECT_EQ(sys.journal, (Lines{kNotFound + L"C:\\Web\\web.exe\r\n\r\n", L"cursor"})) << "missing";
    EXPECT_EQ(sys.messages[0].caption, L"Custom Browser");
    sys.addFile(app.settings.CustomBrowser); // an argument is quoted only for a blank, its own quotes kept
    const std::pair<const wchar_t *, std::wstring> cases[] = {
        {L"", L""},
        {L"C:\\My Pages\\index.html", L" \"C:\\My Pages\\index.html\""},
        {L"\"in quotes\"", L" \"\"in quotes\"\""}};
    for (const auto &[argument, tail] : cases) {
        sys.journal.clear();
        LoadCustomBrowser(app, argument);
        LaunchWithArgument(app, L"C:\\P\\p.exe", argument);
        EXPECT_EQ(sys.journal,
                  (Lines{L"events", L"start C:\\Web\\web.exe" + tail, L"events", L"start C:\\P\\p.exe" + tail}));
    }
    // Shell requests name the file's folder; exploring the current folder: the Win32 RealLaunch test.
    EXPECT_TRUE(ExecuteProcess(app.shell, L"C:\\Tools\\a.exe", 77, 1, L"-x", false));
    sys.shellAccepts = false;
    EXPECT_FALSE(ExecuteProcess(app.shell, L"a.exe", 0, 3, L"", true));
    EXPECT_FALSE(ExecuteProcess(app.shell, L" ", 0, 1, L"", false)) << "no file, no request";
    using Request = std::tuple<WindowRef, std::wstring, std::wstring, std::wstring, std::wstring, int>;
    std::vector<Request> requests;
    for (const auto &r : sys.shellRequests)
        requests.emplace_back(r.owner, r.verb, r.file, r.parameters, r.directory, r.showCode);
    EXPECT_EQ(requests, (std::vector<Request>{{77, L"Open", L"C:\\Tools\\a.exe", L"-x", L"C:\\Tools", 1},
                                              {0, L"runas", L"a.exe", L"", L"", 3}}));
}

// The helpers the above are built on; the registry and the system's folders: the Win32 RealSystem test.

TEST_F(Core, OsVersionNamesSystemFoldersDeletingAndFileErrors) {
    const std::tuple<int, int, std::wstring> names[] = {{10, 0, L""},      {6, 1, L"Win 7 + later"}, {6, 0, L"Vista"},
                                                        {5, 0, L"Win XP"}, {4, 10, L"Win 2000"},     {3, 51, L""}};
    for (const auto &[major, minor, name] : names)
        EXPECT_EQ(OsVersionName(major, minor), name) << major << '.' << minor;
    FindSystemFolders(app);
    EXPECT_EQ(app.ProgramFilesFolder + L"|" + app.DocumentsFolder, L"\\|\\") << "no registry value and no C:";
    sys.folders.insert(L"C:\\");
    FindSystemFolders(app);
    EXPECT_EQ(app.ProgramFilesFolder, L"C:\\");
    // Deleting skips empty and missing names; a file error names the operation and the reason.
    sys.addFile(L"C:\\x.txt");
    for (const wchar_t *file : {L"", L"C:\\y.txt", L"C:\\x.txt"})
        DeleteFileIfPresent(app.files, file);
    ReportFileError(app, L"C:\\a.lst", L"");
    ReportFileError(app, L"   ");
    EXPECT_EQ(sys.journal,
              (Lines{L"delete C:\\x.txt", L"beep",
                     L"message Cannot delete this file :\r\n\r\nC:\\a.lst" + kReason + L"(unknown)\r\n", L"beep",
                     L"message Cannot save this file :\r\n\r\n( no name specified or name is empty ! )" + kReason +
                         L"(unknown)\r\n"}));
    EXPECT_EQ(sys.messages[1].icon, MessageIcon::Critical);
    app.OsVersionName = L"before";
    sys.version = {10, 0};
    DetectOsVersion(app);
    EXPECT_EQ(std::tuple(app.OsVersionCode, app.OsMinorVersion, app.OsVersionName), std::tuple(10, 0, L"before"))
        << "a version without a label keeps the old name";
}

// Each step adds a file (or none) and shows which path now wins: a later step's file comes earlier in the order.
using Step = std::tuple<const wchar_t *, const wchar_t *, const wchar_t *>;

TEST_F(Core, PathPiecesTheDocumentPathSearchOrderRelocationAndTheSuitePathSearchOrder) {
    const std::pair<std::wstring, std::wstring> backslashed[] = {
        {L"C:\\Data ", L"C:\\Data\\"},  {L"C:\\Data/", L"C:\\Data/"},       {L"C:\\Data\\", L"C:\\Data\\"},
        {L" C:\\Data", L" C:\\Data\\"}, {L"C:\\Data\\  ", L"C:\\Data\\  "}, {L"", L"\\"}};
    for (auto [path, expected] : backslashed) {
        EnsureTrailingBackslash(path);
        EXPECT_EQ(path, expected);
    }
    // The old runtime's cuts at their edges; the search orders below rely on the rest.
    EXPECT_EQ(ParentFolder(L"a.exe") + L"|" + BackslashFileName(L"x.exe") + L"|" + MidFrom(L"abc", 4) + L"|" +
                  LeftOf(L"", 1),
              L"|\\x.exe||");
    const auto walk = [&](std::initializer_list<Step> steps, auto resolve, auto &context) {
        for (const auto &[added, path, expected] : steps) {
            if (added)
                sys.addFile(added);
            EXPECT_EQ(resolve(context, path), expected) << (added ? added : L"-") << " for " << path;
        }
    };
    const wchar_t *notes = L"C:\\Drive_G\\T\\Notes.vrt", *stored = L"C:\\Drive_G\\TellmarkSet\\X\\X.exe";
    // A document: drive folders are scanned from C on, so D's wins over E's; a path in a drive folder goes back to
    // its drive, or stays when that has nothing.
    walk({{nullptr, L"   ", L""},
          {nullptr, L"G:\\a\\b.vrt", L"G:\\a\\b.vrt"},
          {L"E:\\Drive_G\\a\\b.vrt", L"G:\\a\\b.vrt", L"E:\\Drive_G\\a\\b.vrt"},
          {L"D:\\Drive_G\\a\\b.vrt", L"G:\\a\\b.vrt", L"D:\\Drive_G\\a\\b.vrt"},
          {L"A:\\Drive_G\\x.vrt", L"G:\\x.vrt", L"G:\\x.vrt"},
          {nullptr, notes, notes},
          {L"G:\\T\\Notes.vrt", notes, L"G:\\T\\Notes.vrt"},
          {notes, notes, notes}},
         ResolveDocumentPath, app.files);
    EXPECT_EQ(TryDriveLetters(app.files, L":\\Drive_G\\y"), L"Z:\\Drive_G\\y") << "nothing found: the last drive tried";
    // Relocating maps between drive folders and drives (no name stays none: the suite path's last step).
    walk({{nullptr, L"G:\\TellmarkSet\\X\\X.exe", stored},
          {L"D:\\Drive_G\\TellmarkSet\\X\\X.exe", stored, L"G:\\TellmarkSet\\X\\X.exe"},
          {L"G:\\TellmarkSet\\Y.exe", L"G:\\TellmarkSet\\Y.exe", L"G:\\TellmarkSet\\Y.exe"}},
         RelocateDrivePath, app.files);
    // Swapping Program Files folders (both ways, exact case: the custom list test) cuts as if the folder stood first.
    std::wstring cut = L"D:\\C:\\Program Files\\x";
    EXPECT_EQ(SwapProgramFilesFolder(cut), L"C:\\Program Files (x86)\\es\\x");
    // A suite program, after the relocations above (so not on drive D); found nowhere, it is beside this program.
    walk(
        {{nullptr, stored, L"C:\\Orvane\\X.exe"},
         {L"C:\\TellmarkSet\\X.exe", stored, L"C:\\TellmarkSet\\X.exe"},
         {L"G:\\TellmarkSet\\X\\X.exe", stored, L"G:\\TellmarkSet\\X\\X.exe"},
         {stored, stored, stored},
         {L"C:\\Orvane\\X.exe", L"E:\\Drive_G\\TellmarkSet\\X\\X.exe", L"C:\\Orvane\\X.exe"},
         {nullptr, L"", L""}},
        [](App &context, std::wstring path) {
            return &ResolveSuitePath(context, path) == &path ? path : L"?";
        },
        app);
}

// The Office locator and the settings dialogs; e2e Commands: the file dialogs, and Excel's last resort with Word set.
TEST_F(Core, OfficeProgramsTheUserLocationWinsThenTheStandardFoldersAndTheSettingsDialogs) {
    app.ProgramFilesFolder = L"C:\\PF\\";
    const std::wstring office = L"C:\\PF\\\\Microsoft Office\\";
    Settings &s = app.settings;
    s.WordPath = L"D:\\Word\\WINWORD.EXE"; // missing until the last step
    for (const std::wstring &found : {office + L"OFFICE11\\WINWORD.EXE", office + L"OFFICE12\\WINWORD.EXE",
                                      office + L"OFFICE16\\WINWORD.EXE", s.WordPath}) {
        sys.addFile(found);
        EXPECT_EQ(LocateOfficeProgram(app, L"WINWORD.EXE"), found);
    }
    EXPECT_EQ(LocateOfficeProgram(app, L"winword.exe"), office + L"Office\\winword.exe") << "exact case only";
    // "Same for all" needs Word's file, then puts the other programs beside it.
    s.ExcelPath = L"old";
    s.WordPath = L"D:\\Office\\WINWORD.EXE";
    EXPECT_FALSE(SameForAll(app));
    EXPECT_EQ(sys.messages.at(0).text + L"|" + s.ExcelPath, L"Location for MS Word invalid or empty.|old");
    sys.addFile(s.WordPath);
    EXPECT_TRUE(SameForAll(app));
    EXPECT_EQ(s.ExcelPath + L"|" + s.PowerPointPath + L"|" + s.PublisherPath + L"|" + s.AccessPath,
              L"D:\\Office\\EXCEL.EXE|D:\\Office\\POWERPNT.EXE|D:\\Office\\MSPUB.EXE|D:\\Office\\MSACCESS.EXE");
    // Your program starts once it exists (its missing message: e2e).
    sys.addFile(s.YourProgram = L"C:\\Tools\\mine.exe");
    EXPECT_TRUE(StartYourProgram(app));
    EXPECT_EQ(sys.started.at(0).commandLine, L"C:\\Tools\\mine.exe");
}

} // namespace
} // namespace orvane
