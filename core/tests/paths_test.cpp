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
