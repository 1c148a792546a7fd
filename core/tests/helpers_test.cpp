#include "helpers.h"

#include <gtest/gtest.h>

#include "app.h"
#include "fake_system.h"
#include "paths.h"
#include "reports.h"

namespace orvane {
namespace {

using testing::FakeSystem;

class Helpers : public ::testing::Test {
protected:
    FakeSystem sys;
    App app{sys};
};

TEST_F(Helpers, FileErrorNamesTheOperationAndTheReason) {
    ReportFileError(app, L"C:\\a.lst", L"");
    ReportFileError(app, L"   ");
    ASSERT_EQ(sys.messages.size(), 2u);
    const std::wstring reason =
        L"\r\n\r\nThe error was probably triggered for the following reason : \r\n\r\n(unknown)\r\n";
    EXPECT_EQ(sys.messages[0].text, L"Cannot delete this file :\r\n\r\nC:\\a.lst" + reason);
    EXPECT_EQ(sys.messages[1].text,
              L"Cannot save this file :\r\n\r\n( no name specified or name is empty ! )" + reason);
    EXPECT_EQ(sys.messages[1].icon, MessageIcon::Critical);
    EXPECT_EQ(sys.journal[0], L"beep");
}

TEST(PathPieces, TrailingBackslashAndTheOldRuntimesCuts) {
    const std::pair<std::wstring, std::wstring> backslashed[] = {
        {L"C:\\Data ", L"C:\\Data\\"}, {L"C:\\Data/", L"C:\\Data/"},  {L"C:\\Data\\", L"C:\\Data\\"},
        {L" C:\\Data", L" C:\\Data\\"}, {L"C:\\Data\\  ", L"C:\\Data\\  "}, {L"", L"\\"},
    };
    for (auto [path, expected] : backslashed) {
        EnsureTrailingBackslash(path);
        EXPECT_EQ(path, expected);
    }
    EXPECT_EQ(ParentFolder(L"a.exe"), L"");
    EXPECT_EQ(ParentFolder(L"C:\\a.exe"), L"C:");
    EXPECT_EQ(ParentFolder(L"C:\\Tools\\a b\\x.exe"), L"C:\\Tools\\a b");
    EXPECT_EQ(BackslashFileName(L"C:\\Tools\\x.exe"), L"\\x.exe");
    EXPECT_EQ(BackslashFileName(L"x.exe"), L"\\x.exe");
    EXPECT_EQ(CutAtNul(std::wstring(L"C:\\Docs\0junk", 12)), L"C:\\Docs");
    EXPECT_EQ(MidFrom(L"abc", 3), L"c");
    EXPECT_EQ(MidFrom(L"abc", 4), L"");
    EXPECT_EQ(LeftOf(L"", 1), L"");
}

TEST_F(Helpers, DeleteFileIfPresentIgnoresEmptyAndMissing) {
    sys.addFile(L"C:\\x.txt");
    DeleteFileIfPresent(app, L"");
    DeleteFileIfPresent(app, L"C:\\y.txt");
    EXPECT_TRUE(sys.journal.empty());
    DeleteFileIfPresent(app, L"C:\\x.txt");
    EXPECT_FALSE(sys.fileExists(L"C:\\x.txt"));
}

TEST_F(Helpers, OsVersionNamesFollowTheProgramsOwnLabels) {
    const std::tuple<int, int, std::wstring> names[] = {
        {10, 0, L""},     {6, 3, L"Win 7 + later"}, {6, 1, L"Win 7 + later"}, {7, 1, L"Win 7 + later"},
        {6, 0, L"Vista"}, {5, 2, L"Win XP"},         {5, 0, L"Win XP"},        {4, 10, L"Win 2000"}, {3, 51, L""},
    };
    for (const auto& [major, minor, name] : names)
        EXPECT_EQ(OsVersionName(major, minor), name) << major << '.' << minor;

    app.OsVersionName = L"before";
    sys.version = {10, 0};
    DetectOsVersion(app);
    EXPECT_EQ(app.OsVersionCode, 10);
    EXPECT_EQ(app.OsMinorVersion, 0);
    EXPECT_EQ(app.OsVersionName, L"before") << "a version without a label keeps the old name";
    sys.version = {5, 1};
    DetectOsVersion(app);
    EXPECT_EQ(app.OsVersionName, L"Win XP");
}

TEST_F(Helpers, SystemFoldersComeFromTheRegistryAndTheShellWithABackslash) {
    FindSystemFolders(app);
    EXPECT_EQ(app.ProgramFilesFolder, L"\\") << "no registry value and no C:";
    EXPECT_EQ(app.DocumentsFolder, L"\\");
    sys.folders.insert(L"C:\\");
    FindSystemFolders(app);
    EXPECT_EQ(app.ProgramFilesFolder, L"C:\\");

    sys.registry[L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\ProgramFilesDir"] = L"D:\\Programs";
    sys.specialFolders[5] = std::wstring(L"C:\\Users\\ann\\Documents\0\0\0", 26);
    FindSystemFolders(app);
    EXPECT_EQ(app.ProgramFilesFolder, L"D:\\Programs\\");
    EXPECT_EQ(app.DocumentsFolder, L"C:\\Users\\ann\\Documents\\");
}

class PathRules : public Helpers {
protected:
    PathRules() { app.ProgramFolder = L"E:\\Apps\\Orvane"; }
};

// Each step adds a file and shows which path now wins: the later the step, the
// earlier the place in the search order.
struct Step {
    const wchar_t* added;  // nothing for the first step
    const wchar_t* path;
    const wchar_t* expected;
};

TEST_F(PathRules, DocumentPathSearchOrder) {
    const Step steps[] = {
        {nullptr, L"", L""},
        {nullptr, L"   ", L""},
        {nullptr, L"G:\\a\\b.vrt", L"G:\\a\\b.vrt"},
        {L"E:\\Drive_G\\a\\b.vrt", L"G:\\a\\b.vrt", L"E:\\Drive_G\\a\\b.vrt"},
        {L"D:\\Drive_G\\a\\b.vrt", L"G:\\a\\b.vrt", L"D:\\Drive_G\\a\\b.vrt"},
        {L"A:\\Drive_G\\x.vrt", L"G:\\x.vrt", L"G:\\x.vrt"},  // the scan starts at C
        // A path in a drive folder goes back to its drive, or stays when that has nothing.
        {nullptr, L"C:\\Drive_G\\T\\Notes.vrt", L"C:\\Drive_G\\T\\Notes.vrt"},
        {L"G:\\T\\Notes.vrt", L"C:\\Drive_G\\T\\Notes.vrt", L"G:\\T\\Notes.vrt"},
        {L"C:\\Drive_G\\T\\Notes.vrt", L"C:\\Drive_G\\T\\Notes.vrt", L"C:\\Drive_G\\T\\Notes.vrt"},
    };
    for (const Step& step : steps) {
        if (step.added) sys.addFile(step.added);
        EXPECT_EQ(ResolveDocumentPath(app, step.path), step.expected)
            << "after adding " << (step.added ? step.added : L"-");
    }
    EXPECT_EQ(TryDriveLetters(app, L":\\Drive_G\\y"), L"Z:\\Drive_G\\y") << "nothing found: the last drive tried";
}

TEST_F(PathRules, SuitePathSearchOrder) {
    const wchar_t* stored = L"C:\\Drive_G\\TellmarkSet\\X\\X.exe";
    const Step steps[] = {
        {nullptr, stored, L"E:\\Apps\\Orvane\\X.exe"},  // found nowhere: beside this program
        {L"C:\\TellmarkSet\\X.exe", stored, L"C:\\TellmarkSet\\X.exe"},
        {L"G:\\TellmarkSet\\X\\X.exe", stored, L"G:\\TellmarkSet\\X\\X.exe"},
        {stored, stored, stored},
        {L"E:\\Apps\\Orvane\\X.exe", L"D:\\Drive_G\\TellmarkSet\\X\\X.exe", L"E:\\Apps\\Orvane\\X.exe"},
        {nullptr, L"", L""},
    };
    for (const Step& step : steps) {
        if (step.added) sys.addFile(step.added);
        std::wstring path = step.path;
        EXPECT_EQ(&ResolveSuitePath(app, path), &path);
        EXPECT_EQ(path, step.expected) << "after adding " << (step.added ? step.added : L"-");
    }
}

TEST_F(PathRules, RelocateMapsBetweenDriveFoldersAndDrives) {
    EXPECT_EQ(RelocateDrivePath(app, L""), L"");
    EXPECT_EQ(RelocateDrivePath(app, L"G:\\TellmarkSet\\X\\X.exe"), L"C:\\Drive_G\\TellmarkSet\\X\\X.exe");
    sys.addFile(L"D:\\Drive_G\\TellmarkSet\\X\\X.exe");
    EXPECT_EQ(RelocateDrivePath(app, L"C:\\Drive_G\\TellmarkSet\\X\\X.exe"), L"G:\\TellmarkSet\\X\\X.exe");
    sys.addFile(L"G:\\TellmarkSet\\Y.exe");
    EXPECT_EQ(RelocateDrivePath(app, L"G:\\TellmarkSet\\Y.exe"), L"G:\\TellmarkSet\\Y.exe");
}

TEST_F(PathRules, SwapProgramFilesFolderBothWaysAndCaseSensitive) {
    const std::pair<std::wstring, std::wstring> swaps[] = {
        {L"C:\\Program Files\\Foo\\a.exe", L"C:\\Program Files (x86)\\Foo\\a.exe"},
        {L"C:\\Program Files (x86)\\Foo\\a.exe", L"C:\\Program Files\\Foo\\a.exe"},
        {L"c:\\program files\\Foo\\a.exe", L"c:\\program files\\Foo\\a.exe"},
        {L"D:\\C:\\Program Files\\x", L"C:\\Program Files (x86)\\es\\x"},  // the cut assumes the folder stands first
    };
    for (auto [path, expected] : swaps) EXPECT_EQ(SwapProgramFilesFolder(path), expected);
}

}  // namespace
}  // namespace orvane
