#include "lifecycle.h"

#include <gtest/gtest.h>

#include <map>

#include "app.h"
#include "fake_system.h"

namespace orvane {
namespace {

using testing::FakeSystem;

// A window that takes sizes in whole pixels of 15 twips, as at 96 DPI.
class FakeHost : public MainWindowHost {
public:
    bool earlierInstance = false;
    std::map<std::wstring, WindowRef> applicationWindows;
    std::wstring title = L"Orvane";
    std::wstring titleWhenSearched;
    bool ended = false;
    TwipsRect rect;
    TwipsRect area{0, 0, 19200, 11520};
    std::vector<std::wstring> calls;

    bool earlierInstanceRunning() override { return earlierInstance; }
    std::wstring programTitle() override { return title; }
    void setProgramTitle(const std::wstring& t) override { title = t; }
    WindowRef findApplicationWindow(const std::wstring& t) override {
        titleWhenSearched = title;
        return applicationWindows.count(t) ? applicationWindows[t] : 0;
    }
    void endProcessNow() override { ended = true; }
    void initCommonControls() override { calls.push_back(L"initCommonControls"); }
    WindowRef handle() override { return 500; }
    void setTop(std::int32_t v) override { set(rect.top, L"top ", v); }
    void setLeft(std::int32_t v) override { set(rect.left, L"left ", v); }
    void setWidth(std::int32_t v) override { set(rect.width, L"width ", v); }
    void setHeight(std::int32_t v) override { set(rect.height, L"height ", v); }
    TwipsRect geometry() override { return rect; }
    TwipsRect workArea() override { return area; }
    std::int32_t backColor() override { return 0xF0F0F0; }
    void layIconStrip() override { calls.push_back(L"iconStrip"); }
    void applySkin(const std::wstring& skin) override { calls.push_back(L"skin " + skin); }
    void buildMenuBar() override { calls.push_back(L"menuBar"); }

private:
    void set(std::int32_t& edge, const wchar_t* name, std::int32_t twips) {
        edge = twips / 15 * 15;
        calls.push_back(name + std::to_wstring(twips));
    }
};

class StartUp : public ::testing::Test {
protected:
    StartUp() {
        app.ProgramFolder = L"C:\\Orvane";
        sys.registry[L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\ProgramFilesDir"] = L"C:\\Program Files";
        sys.specialFolders[5] = L"C:\\users\\ann\\Documents";
    }
    // A fresh start on a settings file with these lines; the others empty.
    LoadOutcome load(const std::map<int, std::string>& values = {}) {
        std::string text;
        for (int line = 1; line <= 39; ++line) text += (values.count(line) ? values.at(line) : "") + "\r\n";
        if (!values.empty()) sys.addFile(L"C:\\Orvane\\Orvane.ini", text);
        app.settings = {};
        host.calls.clear();
        return LoadMainWindow(app, host, state);
    }

    FakeSystem sys;
    App app{sys};
    FakeHost host;
    MainWindowState state;
};

TEST_F(StartUp, FirstStartReportsTheMissingFileAndOpensTheSingleStripBar) {
    EXPECT_EQ(load(), LoadOutcome::Running);
    ASSERT_EQ(sys.messages.size(), 1u);
    EXPECT_EQ(sys.messages[0].text, L"Cannot locate the following program/file:\r\n\r\nC:\\Orvane\\Orvane.ini\r\n\r\n");
    EXPECT_EQ(app.SettingsFilePath, L"C:\\Orvane\\Orvane.ini");
    EXPECT_EQ(app.ListFileFilter, L"List files (*.lst)|*.lst|All files (*.*)|*.*");
    EXPECT_EQ(app.OsVersionName, L"Win 7 + later");
    EXPECT_TRUE(state.systemIsVersion6OrLater);
    EXPECT_EQ(app.ProgramFilesFolder, L"C:\\Program Files\\");
    EXPECT_EQ(app.DocumentsFolder, L"C:\\users\\ann\\Documents\\");
    EXPECT_EQ(app.MainWindowRef, 500u);
    EXPECT_EQ(app.settings.SkinFile, L"C:\\Orvane\\Skin_Alba.bmp");
    EXPECT_TRUE(state.atTop);
    const std::vector<std::wstring> expected = {
        L"initCommonControls", L"top 0", L"left 0", L"width 0", L"height 0", L"iconStrip",
        L"skin C:\\Orvane\\Skin_Alba.bmp", L"menuBar", L"height 1020", L"width 16060"};
    EXPECT_EQ(host.calls, expected);
    EXPECT_EQ(host.rect.width, 16050) << "a whole number of pixels";
}

TEST_F(StartUp, TheWindowIsPlacedFromTheSettingsAndAtTopOnlyWhereItsTopMeetsTheWorkArea) {
    for (const auto& [areaTop, atTop] : {std::pair{0, false}, {300, true}, {315, false}}) {
        host.area.top = areaTop;
        load({{1, "301"}, {2, "1207"}, {10, "9000"}, {11, "2000"}});
        EXPECT_EQ(std::vector(host.calls.begin() + 1, host.calls.begin() + 5),
                  (std::vector<std::wstring>{L"top 301", L"left 1207", L"width 9000", L"height 2000"}));
        EXPECT_EQ(app.settings.MainTop, 300) << "read back as the window took it";
        EXPECT_EQ(app.settings.MainLeft, 1200);
        EXPECT_EQ(state.atTop, atTop) << areaTop;
    }
    EXPECT_TRUE(sys.messages.empty());
}

TEST_F(StartUp, ExpandedWidthIsClampedToTheWorkArea) {
    load({{38, "1"}, {39, "30000"}});
    EXPECT_EQ(app.settings.ExpandedWidth, 19200);
    load({{39, "12000"}});
    EXPECT_EQ(app.settings.ExpandedWidth, 12000);
}

TEST_F(StartUp, AUsableSkinIsKeptAndAnyOtherFallsBackToTheDefault) {
    sys.addFile(L"D:\\Skins\\Skin_Blue.BMP");
    sys.addFile(L"D:\\Skins\\Skin_Blue.png");
    for (const auto& [skin, used] : std::map<std::string, std::wstring>{
             {"D:\\Skins\\Skin_Blue.BMP", L"D:\\Skins\\Skin_Blue.BMP"},
             {"D:\\Skins\\Skin_Gone.bmp", L"C:\\Orvane\\Skin_Alba.bmp"},
             {"D:\\Skins\\Skin_Blue.png", L"C:\\Orvane\\Skin_Alba.bmp"}}) {
        load({{19, skin}});
        EXPECT_EQ(app.settings.SkinFile, used) << skin;
        EXPECT_EQ(host.calls[6], L"skin " + used);
    }
}

TEST_F(StartUp, SecondCopyBringsTheFirstForwardAndDoesNothingElse) {
    host.earlierInstance = true;
    host.applicationWindows[L"Orvane"] = 40;
    sys.zOrderAbove = {{40, 41}, {41, 42}};
    EXPECT_EQ(load({{1, "100"}}), LoadOutcome::HandedOver);
    EXPECT_TRUE(host.ended);
    EXPECT_EQ(host.titleWhenSearched, L"Redundant instance");
    
    std::vector<std::wstring> rounds;  // each from the window the one before reached
    for (std::wstring w : {L"41", L"42", L"0", L"0", L"0"})
        rounds.insert(rounds.end(), {L"events", L"restore " + w, L"foreground " + w, L"events"});
    EXPECT_EQ(sys.journal, rounds);
    EXPECT_TRUE(host.calls.empty());
    EXPECT_TRUE(sys.messages.empty());
    EXPECT_EQ(app.settings.MainTop, 0) << "settings are not even read";
}

TEST_F(StartUp, ReportedCopyWithoutAWindowStartsNormally) {
    host.earlierInstance = true;
    host.applicationWindows[L"Other"] = 40;
    EXPECT_EQ(load(), LoadOutcome::Running);
    EXPECT_EQ(host.title, L"Orvane");
    EXPECT_FALSE(host.ended);
    EXPECT_EQ(host.calls.back(), L"width 16060");
}

TEST_F(StartUp, UnloadRecordsTheWindowAndWritesTheSettingsOnce) {
    load();
    host.rect = {150, 300, 16065, 1020};
    sys.journal.clear();
    UnloadMainWindow(app, host);
    EXPECT_EQ(std::count_if(sys.journal.begin(), sys.journal.end(),
                            [](const std::wstring& s) { return s.rfind(L"write ", 0) == 0; }),
              1);
    const std::string& file = sys.files[L"C:\\Orvane\\Orvane.ini"];
    EXPECT_EQ(file.substr(0, 10), "300\r\n150\r\n");
    EXPECT_NE(file.find("\r\n16065\r\n1020\r\n15790320\r\n"), std::string::npos);
    EXPECT_NE(file.find("\r\nC:\\Orvane\\Skin_Alba.bmp\r\n"), std::string::npos);
}

}  // namespace
}  // namespace orvane
