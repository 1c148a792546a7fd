#include <gtest/gtest.h>

#include "app.h"
#include "fake_system.h"
#include "locations.h"
#include "office.h"

namespace orvane {
namespace {

using testing::FakeSystem;

TEST(OfficePrograms, TheUserLocationWinsThenTheStandardFoldersInOrder) {
    FakeSystem sys;
    App app{sys};
    app.ProgramFilesFolder = L"C:\\PF\\";
    const std::wstring office = L"C:\\PF\\\\Microsoft Office\\";
    EXPECT_EQ(LocateOfficeProgram(app, L"WINWORD.EXE"), office + L"Office\\WINWORD.EXE") << "untested last resort";
    app.settings.WordPath = L"D:\\Word\\WINWORD.EXE";  // missing until the last step
    for (const std::wstring& found : {office + L"OFFICE11\\WINWORD.EXE", office + L"OFFICE12\\WINWORD.EXE",
                                     office + L"OFFICE16\\WINWORD.EXE", app.settings.WordPath}) {
        sys.addFile(found);
        EXPECT_EQ(LocateOfficeProgram(app, L"WINWORD.EXE"), found);
    }
    EXPECT_EQ(LocateOfficeProgram(app, L"winword.exe"), office + L"Office\\winword.exe") << "exact case only";
    EXPECT_EQ(LocateOfficeProgram(app, L"EXCEL.EXE"), office + L"Office\\EXCEL.EXE") << "Word's location is Word's";

    LoadOfficeProgram(app, Office::Word, L"C:\\a b.doc");  // the document quoted, the program never
    ASSERT_EQ(sys.started.size(), 1u);
    EXPECT_EQ(sys.started[0].commandLine, L"D:\\Word\\WINWORD.EXE \"C:\\a b.doc\"");
    EXPECT_EQ(app.OfficeProgramPath, L"D:\\Word\\WINWORD.EXE");
}

TEST(SettingsDialogs, SameForAllYourProgramAndChosenFiles) {
    FakeSystem sys;
    App app{sys};
    Settings& s = app.settings;
    s.ExcelPath = L"old";
    s.WordPath = L"D:\\Office\\WINWORD.EXE";
    EXPECT_FALSE(SameForAll(app)) << "Word's file is missing";
    EXPECT_EQ(s.ExcelPath, L"old");
    sys.addFile(s.WordPath);
    EXPECT_TRUE(SameForAll(app));
    EXPECT_EQ(s.ExcelPath + L"|" + s.PowerPointPath + L"|" + s.PublisherPath + L"|" + s.AccessPath,
              L"D:\\Office\\EXCEL.EXE|D:\\Office\\POWERPNT.EXE|D:\\Office\\MSPUB.EXE|D:\\Office\\MSACCESS.EXE");

    s.YourProgram = L"C:\\Tools\\mine.exe";
    EXPECT_FALSE(StartYourProgram(app));
    sys.addFile(s.YourProgram);
    EXPECT_TRUE(StartYourProgram(app));
    ASSERT_EQ(sys.messages.size(), 2u);
    EXPECT_EQ(sys.messages[0].text, L"Location for MS Word invalid or empty.");
    EXPECT_EQ(sys.messages[1].text, L"Cannot find this program:\r\n\r\nC:\\Tools\\mine.exe");
    EXPECT_EQ(sys.messages[1].icon, MessageIcon::Exclamation);
    EXPECT_EQ(sys.started.at(0).commandLine, L"C:\\Tools\\mine.exe");

    s.DeadlinesFile = L"C:\\old.vrt";
    sys.fileAnswers = {std::nullopt, L"", L"C:\\new.vrt"};
    EXPECT_FALSE(ChooseIntoSetting(app, Choice::Deadlines) || ChooseIntoSetting(app, Choice::Deadlines));
    EXPECT_TRUE(ChooseIntoSetting(app, Choice::Deadlines));
    EXPECT_EQ(s.DeadlinesFile, L"C:\\new.vrt");
    const FileRequest& asked = sys.fileRequests[0];
    EXPECT_EQ(asked.title + L"|" + asked.filter + L"|" + asked.preset, L"Specify Deadlines file|All files (*.*)|*.*|C:\\old.vrt");
}

}  // namespace
}  // namespace orvane
