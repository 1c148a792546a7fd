#include "lifecycle.h"

#include <gtest/gtest.h>

#include <map>

#include "app.h"
#include "fake_system.h"

namespace orvane {
namespace {

using Lines = std::vector<std::wstring>;

// A window that takes sizes in whole pixels of 15 twips, as at 96 DPI, and records what it is told.
class FakeHost : public MainWindowHost {
public:
    bool earlierInstance = false;
    WindowRef earlierWindow = 0;  // the application window titled "Orvane"
    std::wstring title = L"Orvane";
    TwipsRect rect, area{0, 0, 19200, 11520};
    Lines calls;

    bool earlierInstanceRunning() override { return earlierInstance; }
    std::wstring programTitle() override { return title; }
    void setProgramTitle(const std::wstring& t) override { calls.push_back(L"title " + (title = t)); }
    WindowRef findApplicationWindow(const std::wstring& t) override {
        calls.push_back(L"find " + t);
        return t == L"Orvane" ? earlierWindow : 0;
    }
    void endProcessNow() override { calls.push_back(L"end"); }
    void initCommonControls() override { calls.push_back(L"initCommonControls"); }
    WindowRef handle() override { return 500; }
    void set(std::int32_t& e, std::wstring name, int v) { calls.push_back(name + std::to_wstring(v)); e = v / 15 * 15; }
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
    testing::FakeSystem sys;
    App app{sys};
    FakeHost host;
    MainWindowState state;
};

TEST_F(StartUp, FirstStartOpensTheSingleStripBarThoughACopyWithoutAWindowIsReportedAndUnloadWritesTheSettings) {
    host.earlierInstance = true;
    EXPECT_EQ(load(), LoadOutcome::Running);
    ASSERT_EQ(sys.messages.size(), 1u);
    EXPECT_EQ(sys.messages[0].text, L"Cannot locate the following program/file:\r\n\r\nC:\\Orvane\\Orvane.ini\r\n\r\n");
    EXPECT_EQ(std::tie(app.SettingsFilePath, app.ListFileFilter, app.OsVersionName, app.ProgramFilesFolder,
                       app.DocumentsFolder, app.settings.SkinFile, app.MainWindowRef),
              std::tuple(L"C:\\Orvane\\Orvane.ini", L"List files (*.lst)|*.lst|All files (*.*)|*.*", L"Win 7 + later",
                         L"C:\\Program Files\\", L"C:\\users\\ann\\Documents\\", L"C:\\Orvane\\Skin_Alba.bmp", 500u));
    EXPECT_TRUE(state.systemIsVersion6OrLater);
    EXPECT_TRUE(state.atTop);
    EXPECT_EQ(host.calls, (Lines{L"title Redundant instance", L"find Orvane", L"title Orvane", L"initCommonControls",
                                 L"top 0", L"left 0", L"width 0", L"height 0", L"iconStrip",
                                 L"skin C:\\Orvane\\Skin_Alba.bmp", L"menuBar", L"height 1020", L"width 16060"}));
    EXPECT_EQ(host.rect.width, 16050) << "a whole number of pixels";

    host.rect = {150, 300, 16065, 1020};  // the user moved it; unload records it and writes the settings once
    sys.journal.clear();
    UnloadMainWindow(app, host);
    EXPECT_EQ(sys.journal, Lines{L"write C:\\Orvane\\Orvane.ini"});
    const std::string& file = sys.files[L"C:\\Orvane\\Orvane.ini"];
    EXPECT_EQ(file.substr(0, 10), "300\r\n150\r\n");
    EXPECT_NE(file.find("\r\n16065\r\n1020\r\n15790320\r\n"), std::string::npos);
    EXPECT_NE(file.find("\r\nC:\\Orvane\\Skin_Alba.bmp\r\n"), std::string::npos);
}

TEST_F(StartUp, TheWindowIsPlacedFromTheSettingsAtTopOnlyWhereItsTopMeetsTheWorkAreaAndNoWiderThanThat) {
    for (const auto& [areaTop, atTop] : {std::pair{0, false}, {300, true}, {315, false}}) {
        host.area.top = areaTop;
        load({{1, "301"}, {2, "1207"}, {10, "9000"}, {11, "2000"}});
        EXPECT_EQ(Lines(host.calls.begin(), host.calls.begin() + 5),
                  (Lines{L"initCommonControls", L"top 301", L"left 1207", L"width 9000", L"height 2000"}));
        EXPECT_EQ(std::pair(app.settings.MainTop, app.settings.MainLeft), std::pair(300, 1200)) << "as taken";
        EXPECT_EQ(state.atTop, atTop) << areaTop;
    }
    EXPECT_TRUE(sys.messages.empty());
    load({{38, "1"}, {39, "30000"}});
    EXPECT_EQ(app.settings.ExpandedWidth, 19200);
    load({{39, "12000"}});
    EXPECT_EQ(app.settings.ExpandedWidth, 12000);
}

TEST_F(StartUp, AUsableSkinIsKeptAndAnyOtherFallsBackToTheDefault) {
    sys.addFile(L"D:\\Skins\\Skin_Blue.BMP");
    sys.addFile(L"D:\\Skins\\Skin_Blue.png");
    const std::wstring fallback = L"C:\\Orvane\\Skin_Alba.bmp";
    for (const auto& [skin, used] : {std::pair{"D:\\Skins\\Skin_Blue.BMP", L"D:\\Skins\\Skin_Blue.BMP"},
                                     {"D:\\Skins\\Skin_Gone.bmp", fallback.c_str()},
                                     {"D:\\Skins\\Skin_Blue.png", fallback.c_str()}}) {
        load({{19, skin}});
        EXPECT_EQ(app.settings.SkinFile, used) << skin;
        EXPECT_EQ(host.calls[6], L"skin " + std::wstring(used));
    }
}

TEST_F(StartUp, SecondCopyBringsTheFirstForwardAndDoesNothingElse) {
    host.earlierInstance = true;
    host.earlierWindow = 40;
    sys.zOrderAbove = {{40, 41}, {41, 42}};
    EXPECT_EQ(load({{1, "100"}}), LoadOutcome::HandedOver);
    EXPECT_EQ(host.calls, (Lines{L"title Redundant instance", L"find Orvane", L"end"}));
    Lines rounds;  // each from the window the one before reached
    for (std::wstring w : {L"41", L"42", L"0", L"0", L"0"})
        rounds.insert(rounds.end(), {L"events", L"restore " + w, L"foreground " + w, L"events"});
    EXPECT_EQ(sys.journal, rounds) << "and no message";
    EXPECT_EQ(app.settings.MainTop, 0) << "settings are not even read";
}

}  // namespace
}  // namespace orvane
