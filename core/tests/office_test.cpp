#include <gtest/gtest.h>

#include "app.h"
#include "fake_system.h"
#include "locations.h"
#include "office.h"

namespace orvane {
namespace {

using testing::FakeSystem;

class OfficePrograms : public ::testing::Test {
protected:
    OfficePrograms() { app.ProgramFilesFolder = L"C:\\PF\\"; }
    FakeSystem sys;
    App app{sys};
};

TEST_F(OfficePrograms, TheUserLocationWinsThenTheStandardFoldersInOrder) {
    const std::wstring office = L"C:\\PF\\\\Microsoft Office\\";
    EXPECT_EQ(LocateOfficeProgram(app, L"WINWORD.EXE"), office + L"Office\\WINWORD.EXE") << "untested last resort";
    const struct { std::wstring present, expected; } steps[] = {
        {office + L"OFFICE11\\WINWORD.EXE", office + L"OFFICE11\\WINWORD.EXE"},
        {office + L"OFFICE12\\WINWORD.EXE", office + L"OFFICE12\\WINWORD.EXE"},
        {office + L"OFFICE16\\WINWORD.EXE", office + L"OFFICE16\\WINWORD.EXE"},
        {L"D:\\Word\\WINWORD.EXE", L"D:\\Word\\WINWORD.EXE"},
    };
    app.settings.WordPath = L"D:\\Word\\WINWORD.EXE";  // missing until the last step
    for (const auto& step : steps) {
        sys.addFile(step.present);
        EXPECT_EQ(LocateOfficeProgram(app, L"WINWORD.EXE"), step.expected);
    }
    EXPECT_EQ(LocateOfficeProgram(app, L"winword.exe"), office + L"Office\\winword.exe") << "exact case only";
    EXPECT_EQ(LocateOfficeProgram(app, L"EXCEL.EXE"), office + L"Office\\EXCEL.EXE") << "Word's location is Word's";
}

TEST_F(OfficePrograms, DocumentsWithABlankAreQuotedButNeverTheProgram) {
    sys.addFile(app.settings.PowerPointPath = L"C:\\My Office\\POWERPNT.EXE");
    for (const wchar_t* document : {L"", L"C:\\ab.ppt", L"C:\\a b.ppt"}) LoadOfficeProgram(app, Office::PowerPoint, document);
    ASSERT_EQ(sys.started.size(), 3u);
    EXPECT_EQ(sys.started[0].commandLine, L"C:\\My Office\\POWERPNT.EXE");
    EXPECT_EQ(sys.started[1].commandLine, L"C:\\My Office\\POWERPNT.EXE C:\\ab.ppt");
    EXPECT_EQ(sys.started[2].commandLine, L"C:\\My Office\\POWERPNT.EXE \"C:\\a b.ppt\"");
    EXPECT_EQ(sys.journal[0], L"events") << "pending events run before the start";
    EXPECT_EQ(app.OfficeProgramPath, app.settings.PowerPointPath);
    EXPECT_EQ(app.LastLaunchResult, 100);
}

TEST_F(OfficePrograms, SameForAllTakesWordsFolderWithoutTestingTheOthers) {
    app.settings.ExcelPath = L"old";
    for (const wchar_t* word : {L"", L"D:\\Office\\WINWORD.EXE"}) {
        app.settings.WordPath = word;
        EXPECT_FALSE(SameForAll(app));
    }
    ASSERT_EQ(sys.messages.size(), 2u);
    EXPECT_EQ(sys.messages[1].text, L"Location for MS Word invalid or empty.");
    EXPECT_EQ(sys.messages[1].icon, MessageIcon::Exclamation);
    EXPECT_EQ(app.settings.ExcelPath, L"old");
    sys.addFile(app.settings.WordPath);
    EXPECT_TRUE(SameForAll(app));
    const Settings& s = app.settings;
    EXPECT_EQ(s.ExcelPath + s.PowerPointPath + s.PublisherPath + s.AccessPath,
              L"D:\\Office\\EXCEL.EXED:\\Office\\POWERPNT.EXED:\\Office\\MSPUB.EXED:\\Office\\MSACCESS.EXE");
}

TEST_F(OfficePrograms, YourProgramStartsOnlyWhenItExists) {
    app.settings.YourProgram = L"C:\\Tools\\mine.exe";
    EXPECT_FALSE(StartYourProgram(app));
    ASSERT_EQ(sys.messages.size(), 1u);
    EXPECT_EQ(sys.messages[0].text, L"Cannot find this program:\r\n\r\nC:\\Tools\\mine.exe");
    EXPECT_EQ(sys.messages[0].icon, MessageIcon::Exclamation);
    sys.addFile(app.settings.YourProgram);
    EXPECT_TRUE(StartYourProgram(app));
    ASSERT_EQ(sys.started.size(), 1u);
    EXPECT_EQ(sys.started[0].commandLine, L"C:\\Tools\\mine.exe");
}

TEST_F(OfficePrograms, ChosenFilesBecomeSettingsAndCancelKeepsThem) {
    app.settings.DeadlinesFile = L"C:\\old.vrt";
    sys.fileAnswers = {std::nullopt, L"", L"C:\\new.vrt"};
    EXPECT_FALSE(ChooseIntoSetting(app, Choice::Deadlines));
    EXPECT_FALSE(ChooseIntoSetting(app, Choice::Deadlines));
    EXPECT_EQ(app.settings.DeadlinesFile, L"C:\\old.vrt");
    EXPECT_TRUE(ChooseIntoSetting(app, Choice::Deadlines));
    EXPECT_EQ(app.settings.DeadlinesFile, L"C:\\new.vrt");
    const FileRequest& asked = sys.fileRequests[0];
    EXPECT_EQ(asked.title + L"|" + asked.filter + L"|" + asked.preset, L"Specify Deadlines file|All files (*.*)|*.*|C:\\old.vrt");
}

}  // namespace
}  // namespace orvane
