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
        auto it = applicationWindows.find(t);
        return it == applicationWindows.end() ? 0 : it->second;
    }
    void endProcessNow() override { ended = true; }
    void initCommonControls() override { calls.push_back(L"initCommonControls"); }
    WindowRef handle() override { return 500; }
    void setTop(std::int32_t v) override { rect.top = Pixels(v); calls.push_back(L"top " + std::to_wstring(v)); }
    void setLeft(std::int32_t v) override { rect.left = Pixels(v); calls.push_back(L"left " + std::to_wstring(v)); }
    void setWidth(std::int32_t v) override { rect.width = Pixels(v); calls.push_back(L"width " + std::to_wstring(v)); }
    void setHeight(std::int32_t v) override {
        rect.height = Pixels(v);
        calls.push_back(L"height " + std::to_wstring(v));
    }
    TwipsRect geometry() override { return rect; }
    TwipsRect workArea() override { return area; }
    std::int32_t backColor() override { return 0xF0F0F0; }
    void layIconStrip() override { calls.push_back(L"iconStrip"); }
    void applySkin(const std::wstring& skin) override { calls.push_back(L"skin " + skin); }
    void buildMenuBar() override { calls.push_back(L"menuBar"); }

private:
    static std::int32_t Pixels(std::int32_t twips) { return twips / 15 * 15; }
};

class StartUp : public ::testing::Test {
protected:
    StartUp() {
        app.ProgramFolder = L"C:\\Orvane";
        sys.registry[L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\ProgramFilesDir"] = L"C:\\Program Files";
        sys.specialFolders[5] = L"C:\\users\\ann\\Documents";
    }
    void writeSettings(const std::map<int, std::string>& values) {
        std::string text;
        for (int line = 1; line <= 39; ++line) text += (values.count(line) ? values.at(line) : "") + "\r\n";
        sys.addFile(L"C:\\Orvane\\Orvane.ini", text);
    }
    LoadOutcome load() { return LoadMainWindow(app, host, state); }

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

TEST_F(StartUp, TheWindowIsPlacedFromTheSettingsAndReadBack) {
    writeSettings({{1, "301"}, {2, "1207"}, {10, "9000"}, {11, "2000"}, {39, "0"}});
    load();
    EXPECT_EQ(host.calls[1], L"top 301");
    EXPECT_EQ(host.calls[2], L"left 1207");
    EXPECT_EQ(host.calls[3], L"width 9000");
    EXPECT_EQ(host.calls[4], L"height 2000");
    EXPECT_EQ(app.settings.MainTop, 300);
    EXPECT_EQ(app.settings.MainLeft, 1200);
    EXPECT_FALSE(state.atTop);
    EXPECT_TRUE(sys.messages.empty());
}

TEST_F(StartUp, AtTopOnlyWhenTheTopEdgeMatchesTheWorkAreaExactly) {
    host.area.top = 450;
    writeSettings({{1, "450"}});
    load();
    EXPECT_TRUE(state.atTop);
    host.area.top = 465;
    load();
    EXPECT_FALSE(state.atTop);
}

TEST_F(StartUp, ExpandedWidthIsClampedToTheWorkArea) {
    writeSettings({{38, "1"}, {39, "30000"}});
    load();
    EXPECT_EQ(app.settings.ExpandedWidth, 19200);
    writeSettings({{39, "12000"}});
    app.settings = {};
    load();
    EXPECT_EQ(app.settings.ExpandedWidth, 12000);
}

TEST_F(StartUp, AUsableSkinIsKeptAndAnyOtherFallsBackToTheDefault) {
    sys.addFile(L"D:\\Skins\\Skin_Blue.BMP");
    writeSettings({{19, "D:\\Skins\\Skin_Blue.BMP"}});
    load();
    EXPECT_EQ(app.settings.SkinFile, L"D:\\Skins\\Skin_Blue.BMP");
    for (const char* unusable : {"D:\\Skins\\Skin_Gone.bmp", "D:\\Skins\\Skin_Blue.png"}) {
        sys.addFile(L"D:\\Skins\\Skin_Blue.png");
        writeSettings({{19, unusable}});
        load();
        EXPECT_EQ(app.settings.SkinFile, L"C:\\Orvane\\Skin_Alba.bmp") << unusable;
    }
}

TEST_F(StartUp, SecondCopyBringsTheFirstForwardAndDoesNothingElse) {
    writeSettings({{1, "100"}});
    host.earlierInstance = true;
    host.applicationWindows[L"Orvane"] = 40;
    sys.zOrderAbove = {{40, 41}, {41, 42}};
    EXPECT_EQ(load(), LoadOutcome::HandedOver);
    EXPECT_TRUE(host.ended);
    EXPECT_EQ(host.titleWhenSearched, L"Redundant instance");
    EXPECT_EQ(sys.foregrounded, (std::vector<WindowRef>{41, 42, 0, 0, 0}));
    EXPECT_EQ(std::count(sys.journal.begin(), sys.journal.end(), L"events"), 10);
    EXPECT_EQ(sys.journal[1], L"restore 41");
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
