#include "paths.h"

#include <gtest/gtest.h>

#include "app.h"
#include "fake_system.h"

namespace orvane {
namespace {

using testing::FakeSystem;

class PathRules : public ::testing::Test {
protected:
    PathRules() { app.ProgramFolder = L"E:\\Apps\\Orvane"; }
    FakeSystem sys;
    App app{sys};
};

TEST_F(PathRules, DocumentPathEmptyOrExisting) {
    EXPECT_EQ(ResolveDocumentPath(app, L""), L"");
    EXPECT_EQ(ResolveDocumentPath(app, L"   "), L"");
    sys.addFile(L"C:\\Drive_G\\a\\b.vrt");
    EXPECT_EQ(ResolveDocumentPath(app, L"C:\\Drive_G\\a\\b.vrt"), L"C:\\Drive_G\\a\\b.vrt");
}

TEST_F(PathRules, DocumentPathLooksInTheDriveFoldersOfEveryDriveFromC) {
    EXPECT_EQ(ResolveDocumentPath(app, L"G:\\a\\b.vrt"), L"G:\\a\\b.vrt");
    sys.addFile(L"E:\\Drive_G\\a\\b.vrt");
    EXPECT_EQ(ResolveDocumentPath(app, L"G:\\a\\b.vrt"), L"E:\\Drive_G\\a\\b.vrt");
    sys.addFile(L"D:\\Drive_G\\a\\b.vrt");
    EXPECT_EQ(ResolveDocumentPath(app, L"G:\\a\\b.vrt"), L"D:\\Drive_G\\a\\b.vrt");
    sys.addFile(L"A:\\Drive_G\\a\\b.vrt");
    EXPECT_EQ(ResolveDocumentPath(app, L"G:\\x.vrt"), L"G:\\x.vrt");
}

TEST_F(PathRules, DocumentPathInADriveFolderGoesBackToItsDrive) {
    EXPECT_EQ(ResolveDocumentPath(app, L"C:\\Drive_G\\TellmarkSet\\Notes.vrt"), L"C:\\Drive_G\\TellmarkSet\\Notes.vrt");
    sys.addFile(L"G:\\TellmarkSet\\Notes.vrt");
    EXPECT_EQ(ResolveDocumentPath(app, L"C:\\Drive_G\\TellmarkSet\\Notes.vrt"), L"G:\\TellmarkSet\\Notes.vrt");
}

TEST_F(PathRules, TryDriveLettersEndsWithZWhenNothingExists) {
    EXPECT_EQ(TryDriveLetters(app, L":\\Drive_G\\x"), L"Z:\\Drive_G\\x");
    sys.addFile(L"Q:\\Drive_G\\x");
    EXPECT_EQ(TryDriveLetters(app, L":\\Drive_G\\x"), L"Q:\\Drive_G\\x");
}

TEST_F(PathRules, RelocateMapsBetweenDriveFoldersAndDrives) {
    EXPECT_EQ(RelocateDrivePath(app, L""), L"");
    EXPECT_EQ(RelocateDrivePath(app, L"G:\\TellmarkSet\\X\\X.exe"), L"C:\\Drive_G\\TellmarkSet\\X\\X.exe");
    sys.addFile(L"D:\\Drive_G\\TellmarkSet\\X\\X.exe");
    EXPECT_EQ(RelocateDrivePath(app, L"C:\\Drive_G\\TellmarkSet\\X\\X.exe"), L"G:\\TellmarkSet\\X\\X.exe");
    sys.addFile(L"G:\\TellmarkSet\\Y.exe");
    EXPECT_EQ(RelocateDrivePath(app, L"G:\\TellmarkSet\\Y.exe"), L"G:\\TellmarkSet\\Y.exe");
}

TEST_F(PathRules, SuitePathPrefersTheToolBesideThisProgram) {
    sys.addFile(L"E:\\Apps\\Orvane\\X.exe");
    sys.addFile(L"G:\\TellmarkSet\\X\\X.exe");
    std::wstring path = L"C:\\Drive_G\\TellmarkSet\\X\\X.exe";
    EXPECT_EQ(ResolveSuitePath(app, path), L"E:\\Apps\\Orvane\\X.exe");
    EXPECT_EQ(path, L"E:\\Apps\\Orvane\\X.exe");
}

TEST_F(PathRules, SuitePathSearchOrder) {
    std::wstring stored = L"C:\\Drive_G\\TellmarkSet\\X\\X.exe";
    std::wstring path = stored;
    EXPECT_EQ(ResolveSuitePath(app, path), L"E:\\Apps\\Orvane\\X.exe") << "found nowhere: beside this program";
    sys.addFile(L"C:\\TellmarkSet\\X.exe");
    path = stored;
    EXPECT_EQ(ResolveSuitePath(app, path), L"C:\\TellmarkSet\\X.exe");
    sys.addFile(L"G:\\TellmarkSet\\X\\X.exe");
    path = stored;
    EXPECT_EQ(ResolveSuitePath(app, path), L"G:\\TellmarkSet\\X\\X.exe");
    sys.addFile(stored);
    path = stored;
    EXPECT_EQ(ResolveSuitePath(app, path), stored);
    path.clear();
    EXPECT_EQ(ResolveSuitePath(app, path), L"");
}

TEST_F(PathRules, SwapProgramFilesFolderBothWaysAndCaseSensitive) {
    std::wstring path = L"C:\\Program Files\\Foo\\a.exe";
    EXPECT_EQ(SwapProgramFilesFolder(path), L"C:\\Program Files (x86)\\Foo\\a.exe");
    EXPECT_EQ(SwapProgramFilesFolder(path), L"C:\\Program Files\\Foo\\a.exe");
    path = L"c:\\program files\\Foo\\a.exe";
    EXPECT_EQ(SwapProgramFilesFolder(path), L"c:\\program files\\Foo\\a.exe");
    path = L"D:\\C:\\Program Files\\x";  // the cut assumes the folder stands first
    EXPECT_EQ(SwapProgramFilesFolder(path), L"C:\\Program Files (x86)\\es\\x");
}

}  // namespace
}  // namespace orvane
