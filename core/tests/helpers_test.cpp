#include "helpers.h"

#include <gtest/gtest.h>

#include "app.h"
#include "fake_system.h"
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
    sys.addFolder(L"C:\\");
    FindSystemFolders(app);
    EXPECT_EQ(app.ProgramFilesFolder, L"C:\\");

    sys.registry[L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\ProgramFilesDir"] = L"D:\\Programs";
    sys.specialFolders[5] = std::wstring(L"C:\\Users\\ann\\Documents\0\0\0", 26);
    FindSystemFolders(app);
    EXPECT_EQ(app.ProgramFilesFolder, L"D:\\Programs\\");
    EXPECT_EQ(app.DocumentsFolder, L"C:\\Users\\ann\\Documents\\");
}

}  // namespace
}  // namespace orvane
