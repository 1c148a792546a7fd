// The palette, brought up by Ctrl+Alt+Space over another program's window:
// a command, a custom program and a website each start exactly as their own
// place in the bar starts them; Esc hides it; a hot key held elsewhere is told.
#include <gtest/gtest.h>

#include <shlobj.h>

#include <cctype>

#include "handles.h"
#include "program_test.h"
#include "resource.h"

namespace orvane::e2e {
namespace {

using namespace testsupport;

constexpr int kListId = 2; // the palette's list, under its field

class Palette : public ProgramTest {
protected:
    void SetUp() override {
        other_ = CreateWindowExW(0, L"STATIC", L"Another program", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 100, 300, 200,
                                 nullptr, nullptr, nullptr, nullptr);
    }
    void TearDown() override {
        DestroyWindow(other_);
    }
    // Ctrl+Alt+Space pressed in the other program's window.
    HWND summon() const {
        return SummonPalette(orvane->id(), other_);
    }
    static void Type(HWND window, const std::string &text) {
        for (char c : text)
            PressKeys(window, {WORD(std::toupper(static_cast<unsigned char>(c)))});
    }

    HWND other_ = nullptr;
};

// A program in a folder of its own in the user's Start menu, gone with the test.
struct StartMenuProgram {
    std::wstring folder;
    StartMenuProgram() {
        wchar_t programs[MAX_PATH] = {};
        SHGetFolderPathW(nullptr, CSIDL_PROGRAMS, nullptr, SHGFP_TYPE_CURRENT, programs);
        folder = FreshFolder(programs, L"Orvane palette test");
        CopyInto(EnvironmentPath(L"ORVANE_PROBE"), folder, L"Zz probe.exe");
    }
    ~StartMenuProgram() {
        RemoveTree(folder);
    }
};

TEST_F(Palette, ACommandAProgramAWebsiteAndAShortcutStartAsFromTheirOwnPlacesAndEscHidesIt) {
    const StartMenuProgram shortcut;
    CreateDirectoryW(file(L"start").c_str(), nullptr);
    CreateDirectoryW(file(L"My Browser").c_str(), nullptr);
    for (const wchar_t *name : {L"TS_Files.exe", L"run me.exe"})
        CopyInto(EnvironmentPath(L"ORVANE_PROBE"), folder.path(), name);
    CopyInto(EnvironmentPath(L"ORVANE_PROBE"), file(L"My Browser"), L"web probe.exe");
    WriteBytes(file(L"My.lst"), CustomListFile({{"Zeta tool", path(L"run me.exe"), path(L"start")}}));
    WriteBytes(file(L"Sites.lst"), WebListFile({{"Alpha site", "http://alpha", "0"}}));
    const std::string browser = path(L"My Browser\\web probe.exe");
    HWND bar =
        start({{20, Utf8(folder.path())}, {28, path(L"My.lst")}, {33, path(L"Sites.lst")}, {35, browser}, {37, "2"}});
    ASSERT_NE(bar, nullptr);

    // What is typed, the row it brings first, and the start the probe records, as the menu, grid, web list and the
    // shell's "open" do.
    const struct {
        std::string typed;
        std::wstring first, log;
        std::string commandLine, folder;
    } cases[] = {
        {"file man", L"File manager", file(L"probe.log"), "\"" + path(L"TS_Files.exe") + "\"", Utf8(folder.path())},
        {"zeta", L"Zeta tool", file(L"probe.log"), path(L"run me.exe"), path(L"start")},
        {"alpha s", L"Alpha site", file(L"My Browser\\probe.log"), browser + " http://alpha", ""},
        {"zz pro", L"Zz probe", shortcut.folder + L"\\probe.log", "\"" + Utf8(shortcut.folder) + "\\Zz probe.exe\"",
         Utf8(shortcut.folder)},
    };
    std::map<std::wstring, std::size_t> runs;
    for (const auto &c : cases) {
        SCOPED_TRACE(c.typed);
        HWND palette = summon();
        ASSERT_NE(palette, nullptr);
        Type(palette, c.typed);
        ASSERT_TRUE(Becomes(c.first, [&] {
            const auto names = ListViewTexts(GetDlgItem(palette, kListId), 0);
            return names.empty() ? std::wstring() : names.front();
        }));
        PressKeys(palette, {VK_RETURN});
        EXPECT_TRUE(Becomes(FALSE, IsWindowVisible, palette));
        const ProbeRecord started = ReadProbeLog(c.log, ++runs[c.log]).at(runs[c.log] - 1);
        EXPECT_EQ(started.commandLine, c.commandLine);
        EXPECT_EQ(started.folder, c.folder.empty() ? started.folder : c.folder) << "the browser's folder is any";
    }

    HWND palette = summon();
    ASSERT_NE(palette, nullptr);
    PressKeys(palette, {VK_ESCAPE});
    EXPECT_TRUE(Becomes(FALSE, IsWindowVisible, palette));
    EXPECT_TRUE(Becomes(other_, GetForegroundWindow)) << "the keyboard goes back";

    // While a modal window of the bar is open, the hot key brings it forward instead.
    HWND about = FromMenu(*orvane, bar, L"&About this program", L"About Orvane");
    ASSERT_NE(about, nullptr);
    PressKeys(other_, {VK_CONTROL, VK_MENU, VK_SPACE});
    EXPECT_TRUE(Becomes(about, GetForegroundWindow));
    EXPECT_FALSE(IsWindowVisible(palette));
    PressButton(about, IDOK);
    EXPECT_TRUE(Gone(about));
}

TEST_F(Palette, AHotKeyHeldByAnotherProgramIsToldInTheAboutBox) {
    const ui::UniqueHotKey<1> held(RegisterHotKey(other_, 1, MOD_CONTROL | MOD_ALT, VK_SPACE) ? other_ : nullptr);
    ASSERT_TRUE(held);
    HWND about = open({}, L"&About this program", L"About Orvane");
    ASSERT_NE(about, nullptr);
    EXPECT_EQ(ControlText(about, IDC_ABOUT_HOTKEY),
              L"Ctrl+Alt+Space is taken by another program, so the palette has no hotkey.");
    // Its own button: the keyboard may still be with the test's window here, and Esc is the first start's to show.
    PressButton(about, IDOK);
    EXPECT_TRUE(Gone(about));
}

} // namespace
} // namespace orvane::e2e
