#include "helpers.h"

#include <gtest/gtest.h>

#include "app.h"
#include "fake_system.h"
#include "paths.h"
#include "reports.h"

namespace orvane {
namespace {

class Helpers : public ::testing::Test {
protected:
    Helpers() { app.ProgramFolder = L"E:\\Apps\\Orvane"; }
    testing::FakeSystem sys;
    App app{sys};
};

TEST_F(Helpers, FileErrorNamesTheOperationAndTheReason) {
    ReportFileError(app, L"C:\\a.lst", L"");
    ReportFileError(app, L"   ");
    const std::wstring reason =
        L"\r\n\r\nThe error was probably triggered for the following reason : \r\n\r\n(unknown)\r\n";
    const std::wstring unnamed = L"( no name specified or name is empty ! )";
    EXPECT_EQ(sys.journal, (std::vector<std::wstring>{L"beep", L"message Cannot delete this file :\r\n\r\nC:\\a.lst" +
                            reason, L"beep", L"message Cannot save this file :\r\n\r\n" + unnamed + reason}));
    EXPECT_EQ(sys.messages[1].icon, MessageIcon::Critical);
}

TEST(PathPieces, TrailingBackslashAndTheOldRuntimesCuts) {
    const std::pair<std::wstring, std::wstring> backslashed[] = {
        {L"C:\\Data ", L"C:\\Data\\"}, {L"C:\\Data/", L"C:\\Data/"},  {L"C:\\Data\\", L"C:\\Data\\"},
        {L" C:\\Data", L" C:\\Data\\"}, {L"C:\\Data\\  ", L"C:\\Data\\  "}, {L"", L"\\"},
    };
    for (auto [path, expected] : backslashed) EXPECT_EQ((EnsureTrailingBackslash(path), path), expected);
    // The old runtime's cuts at their edges; the search orders below rely on the rest.
    EXPECT_EQ(ParentFolder(L"a.exe") + L"|" + BackslashFileName(L"x.exe") + L"|" + MidFrom(L"abc", 4) + L"|" +
                  LeftOf(L"", 1), L"|\\x.exe||");
}

TEST_F(Helpers, DeleteFileIfPresentIgnoresEmptyAndMissing) {
    sys.addFile(L"C:\\x.txt");
    DeleteFileIfPresent(app, L"");
    DeleteFileIfPresent(app, L"C:\\y.txt");
    DeleteFileIfPresent(app, L"C:\\x.txt");
    EXPECT_EQ(sys.journal, std::vector<std::wstring>{L"delete C:\\x.txt"});
    EXPECT_TRUE(sys.files.empty());
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
    EXPECT_EQ(std::tuple(app.OsVersionCode, app.OsMinorVersion, app.OsVersionName), std::tuple(10, 0, L"before"))
        << "a version without a label keeps the old name";
}

TEST_F(Helpers, SystemFoldersComeFromTheRegistryAndTheShellWithABackslash) {
    FindSystemFolders(app);
    EXPECT_EQ(app.ProgramFilesFolder + L"|" + app.DocumentsFolder, L"\\|\\") << "no registry value and no C:";
    sys.folders.insert(L"C:\\");
    FindSystemFolders(app);
    EXPECT_EQ(app.ProgramFilesFolder, L"C:\\");
    sys.registry[L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\ProgramFilesDir"] = L"D:\\Programs";
    sys.specialFolders[5] = std::wstring(L"C:\\Users\\ann\\Documents\0\0\0", 26);
    FindSystemFolders(app);
    EXPECT_EQ(app.ProgramFilesFolder + L"|" + app.DocumentsFolder, L"D:\\Programs\\|C:\\Users\\ann\\Documents\\");
}

// Each step adds a file and shows which path now wins: the later the step, the earlier the place in the search order.
struct Step {
    const wchar_t *added, *path, *expected;  // added: nothing for the first step
};

TEST_F(Helpers, DocumentPathSearchOrder) {
    const Step steps[] = {
        {nullptr, L"", L""}, {nullptr, L"   ", L""}, {nullptr, L"G:\\a\\b.vrt", L"G:\\a\\b.vrt"},
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
        EXPECT_EQ(ResolveDocumentPath(app, step.path), step.expected) << (step.added ? step.added : L"-");
    }
    EXPECT_EQ(TryDriveLetters(app, L":\\Drive_G\\y"), L"Z:\\Drive_G\\y") << "nothing found: the last drive tried";
}

TEST_F(Helpers, SuitePathSearchOrder) {
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
        EXPECT_EQ(path, step.expected) << (step.added ? step.added : L"-");
    }
}

TEST_F(Helpers, RelocateMapsBetweenDriveFoldersAndDrivesAndProgramFilesSwapBothWaysInExactCase) {
    EXPECT_EQ(RelocateDrivePath(app, L""), L"");
    EXPECT_EQ(RelocateDrivePath(app, L"G:\\TellmarkSet\\X\\X.exe"), L"C:\\Drive_G\\TellmarkSet\\X\\X.exe");
    sys.addFile(L"D:\\Drive_G\\TellmarkSet\\X\\X.exe");
    EXPECT_EQ(RelocateDrivePath(app, L"C:\\Drive_G\\TellmarkSet\\X\\X.exe"), L"G:\\TellmarkSet\\X\\X.exe");
    sys.addFile(L"G:\\TellmarkSet\\Y.exe");
    EXPECT_EQ(RelocateDrivePath(app, L"G:\\TellmarkSet\\Y.exe"), L"G:\\TellmarkSet\\Y.exe");
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
