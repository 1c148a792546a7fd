#include "helpers.h"

#include <gtest/gtest.h>

#include "app.h"
#include "fake_system.h"
#include "reports.h"

namespace orvane {
namespace {

using testing::FakeSystem;

TEST(Reports, FileNotFoundShowsThePathOrAPlaceholderAndRestoresTheCursor) {
    FakeSystem sys;
    App app{sys};
    ReportFileNotFound(app, L"C:\\Tools\\a b.exe");
    ReportFileNotFound(app, L"", L"Custom Browser");
    ASSERT_EQ(sys.messages.size(), 2u);
    EXPECT_EQ(sys.messages[0].text, L"Cannot locate the following program/file:\r\n\r\nC:\\Tools\\a b.exe\r\n\r\n");
    EXPECT_EQ(sys.messages[0].caption, L"Orvane");
    EXPECT_EQ(sys.messages[0].icon, MessageIcon::Critical);
    EXPECT_EQ(sys.messages[0].buttons, MessageButtons::Ok);
    EXPECT_EQ(sys.messages[1].text, L"Cannot locate the following program/file:\r\n\r\n( Filename empty! )\r\n\r\n");
    EXPECT_EQ(sys.messages[1].caption, L"Custom Browser");
    EXPECT_EQ(sys.journal.back(), L"cursor");
}

TEST(Reports, FileErrorNamesTheOperationAndTheReason) {
    FakeSystem sys;
    App app{sys};
    ReportFileError(app, L"C:\\a.lst", L"");
    ReportFileError(app, L"   ");
    ASSERT_EQ(sys.messages.size(), 2u);
    EXPECT_EQ(sys.messages[0].text,
              L"Cannot delete this file :\r\n\r\nC:\\a.lst\r\n\r\n"
              L"The error was probably triggered for the following reason : \r\n\r\n(unknown)\r\n");
    EXPECT_EQ(sys.messages[1].text,
              L"Cannot save this file :\r\n\r\n( no name specified or name is empty ! )\r\n\r\n"
              L"The error was probably triggered for the following reason : \r\n\r\n(unknown)\r\n");
    EXPECT_EQ(sys.messages[1].icon, MessageIcon::Critical);
    EXPECT_EQ(sys.journal[0], L"beep");
}

TEST(Helpers, TrailingBackslash) {
    auto ensure = [](std::wstring path) {
        EnsureTrailingBackslash(path);
        return path;
    };
    EXPECT_EQ(ensure(L"C:\\Data "), L"C:\\Data\\");
    EXPECT_EQ(ensure(L"C:\\Data/"), L"C:\\Data/");
    EXPECT_EQ(ensure(L"C:\\Data\\"), L"C:\\Data\\");
    EXPECT_EQ(ensure(L" C:\\Data"), L" C:\\Data\\");
    EXPECT_EQ(ensure(L"C:\\Data\\  "), L"C:\\Data\\  ");
    EXPECT_EQ(ensure(L""), L"\\");
}

TEST(Helpers, PathPieces) {
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

TEST(Helpers, DeleteFileIfPresentIgnoresEmptyAndMissing) {
    FakeSystem sys;
    App app{sys};
    sys.addFile(L"C:\\x.txt");
    DeleteFileIfPresent(app, L"");
    DeleteFileIfPresent(app, L"C:\\y.txt");
    EXPECT_TRUE(sys.journal.empty());
    DeleteFileIfPresent(app, L"C:\\x.txt");
    EXPECT_FALSE(sys.fileExists(L"C:\\x.txt"));
}

TEST(OsVersion, NamesFollowTheProgramsOwnLabels) {
    EXPECT_EQ(OsVersionName(10, 0), L"");
    EXPECT_EQ(OsVersionName(6, 3), L"Win 7 + later");
    EXPECT_EQ(OsVersionName(6, 1), L"Win 7 + later");
    EXPECT_EQ(OsVersionName(7, 1), L"Win 7 + later");
    EXPECT_EQ(OsVersionName(6, 0), L"Vista");
    EXPECT_EQ(OsVersionName(5, 2), L"Win XP");
    EXPECT_EQ(OsVersionName(5, 0), L"Win XP");
    EXPECT_EQ(OsVersionName(4, 10), L"Win 2000");
    EXPECT_EQ(OsVersionName(3, 51), L"");

    FakeSystem sys;
    App app{sys};
    app.OsVersionName = L"before";
    sys.version = {10, 0};
    DetectOsVersion(app);
    EXPECT_EQ(app.OsVersionCode, 10);
    EXPECT_EQ(app.OsMinorVersion, 0);
    EXPECT_EQ(app.OsVersionName, L"before");
    sys.version = {5, 1};
    DetectOsVersion(app);
    EXPECT_EQ(app.OsVersionName, L"Win XP");
}

TEST(SystemFolders, ComeFromTheRegistryAndTheShellWithABackslash) {
    FakeSystem sys;
    App app{sys};
    sys.registry[L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\ProgramFilesDir"] = L"D:\\Programs";
    sys.specialFolders[5] = std::wstring(L"C:\\Users\\ann\\Documents\0\0\0", 26);
    FindSystemFolders(app);
    EXPECT_EQ(app.ProgramFilesFolder, L"D:\\Programs\\");
    EXPECT_EQ(app.DocumentsFolder, L"C:\\Users\\ann\\Documents\\");
}

TEST(SystemFolders, MissingRegistryValueFallsBackToTheRootOrABackslash) {
    FakeSystem sys;
    App app{sys};
    FindSystemFolders(app);
    EXPECT_EQ(app.ProgramFilesFolder, L"\\");
    EXPECT_EQ(app.DocumentsFolder, L"\\");
    sys.addFolder(L"C:\\");
    FindSystemFolders(app);
    EXPECT_EQ(app.ProgramFilesFolder, L"C:\\");
}

}  // namespace
}  // namespace orvane
