// Start-up through a fake window: what only it shows; the e2e StartUp tests cover the first start, a second copy
// and unloading.
#include <gtest/gtest.h>

#include <optional>

#include "app.h"
#include "fake_system.h"
#include "lifecycle.h"
#include "settings.h"
#include "skin_file.h"

namespace orvane {
namespace {

using Lines = std::vector<std::wstring>;

// A window that takes sizes in whole pixels of 15 twips, as at 96 DPI, and records what it is told.
class FakeHost : public MainWindowHost {
    using S = const std::wstring &;
    void set(std::int32_t &e, std::wstring name, int v) {
        calls.push_back(name + std::to_wstring(v));
        e = v / 15 * 15;
    }

public:
    bool earlierInstance = false;
    std::wstring title = L"Orvane";
    TwipsRect rect, area{0, 0, 19200, 11520};
    Lines calls;

    bool earlierInstanceRunning() override {
        return earlierInstance;
    }
    std::wstring programTitle() override {
        return title;
    }
    void setProgramTitle(S t) override {
        calls.push_back(L"title " + (title = t));
    }
    WindowRef findApplicationWindow(S t) override {
        calls.push_back(L"find " + t);
        return 0;
    } // the copy runs on
    ORVANE_RECORDS(calls, endProcessNow, L"end")
    ORVANE_RECORDS(calls, initCommonControls, L"initCommonControls")
    WindowRef handle() override {
        return 500;
    }
    void setTop(std::int32_t v) override {
        set(rect.top, L"top ", v);
    }
    void setLeft(std::int32_t v) override {
        set(rect.left, L"left ", v);
    }
    void setWidth(std::int32_t v) override {
        set(rect.width, L"width ", v);
    }
    void setHeight(std::int32_t v) override {
        set(rect.height, L"height ", v);
    }
    TwipsRect geometry() override {
        return rect;
    }
    TwipsRect workArea() override {
        return area;
    }
    std::int32_t backColor() override {
        return 0xF0F0F0;
    }
    ORVANE_RECORDS(calls, layIconStrip, L"iconStrip")
    void applySkin(S skin) override {
        calls.push_back(L"skin " + skin);
    }
    ORVANE_RECORDS(calls, buildMenuBar, L"menuBar")
    ORVANE_RECORDS(calls, takeOpeningSize, L"openingSize")
};

class StartUp : public ::testing::Test {
protected:
    StartUp() {
        app.ProgramFolder = L"C:\\Orvane";
    }
    // A fresh start on a settings file written with this top, the other values initial; no file without one.
    LoadOutcome start(std::optional<int> top = std::nullopt) {
        if (top) {
            Settings written;
            written.MainTop = *top;
            sys.addFile(L"C:\\Orvane\\Orvane.ini", sys.toAnsi(FormatSettings(written)));
        }
        app.settings = {};
        host.calls.clear();
        return LoadMainWindow(app, host, state);
    }
    testing::FakeSystem sys;
    App app{sys};
    FakeHost host;
    MainWindowState state;
};

TEST_F(StartUp, CallsTheWindowInOrderAndPlacesItAtTopOnlyWhereItsTopMeetsTheWorkArea) {
    host.earlierInstance = true; // a copy without a window is reported and runs on
    EXPECT_EQ(start(), LoadOutcome::Running);
    EXPECT_EQ(host.calls, (Lines{L"title Redundant instance", L"find Orvane", L"title Orvane", L"initCommonControls",
                                 L"top 0", L"left 0", L"width 0", L"height 0", L"iconStrip",
                                 L"skin C:\\Orvane\\Skin_Alba.bmp", L"menuBar", L"openingSize"}));
    host.earlierInstance = false;
    for (const auto &[areaTop, atTop] : {std::pair{0, false}, {300, true}, {315, false}}) {
        host.area.top = areaTop;
        start(301);
        EXPECT_EQ(std::pair(app.settings.MainTop, state.atTop), std::pair(300, atTop)) << areaTop;
    }
    // A skin ending in ".bmp" in any case is used; the other edges, the widths and the fall-backs: e2e tests.
    sys.addFile(L"D:\\Skin_Blue.BMP");
    EXPECT_EQ(StartupSkin(sys, L"D:\\Skin_Blue.BMP", L"P"), L"D:\\Skin_Blue.BMP");
}

} // namespace
} // namespace orvane
