// The Win32 system interface against the real file system, registry, shell, windows and the versions Wine pretends to
// be; real launches recorded by the probe (command lines are the unit tests' business, menus the end-to-end tests').
#include <gtest/gtest.h>

#include <process.h>
#include <shlobj.h>

#include <algorithm>
#include <functional>

#include "app.h"
#include "handles.h"
#include "helpers.h"
#include "launch.h"
#include "resource.h"
#include "win32_system.h"
#include "win_support.h"
#include "winlist.h"

namespace orvane::ui {
namespace {

using namespace std::chrono_literals;
using namespace testsupport;

// The real system, with messages recorded instead of shown, so launches that report need no user to answer them.
struct RecordingSystem : Win32System {
    MessageAnswer showMessage(const std::wstring &text, const std::wstring &caption, MessageIcon,
                              MessageButtons) override {
        messages.push_back(caption + L": " + text);
        return MessageAnswer::Ok;
    }
    std::vector<std::wstring> messages;
};

// A folder of its own for each test, its name beyond ASCII.
class RealSystem : public ::testing::Test {
protected:
    const std::wstring folder =
        FreshFolder(EnvironmentPath(L"ORVANE_TEST_ROOT"),
                    L"system " + Wide(::testing::UnitTest::GetInstance()->current_test_info()->name()) + L" \u00e4");
    RecordingSystem sys;
};

TEST_F(RealSystem, FilesAndFoldersAreToldApartAndListedBelowAFolder) {
    const std::wstring file = folder + L"\\a file.txt";
    WriteBytes(file, "x");
    CreateDirectoryW((folder + L"\\sub").c_str(), nullptr);
    WriteBytes(folder + L"\\sub\\b.lnk", "x");
    auto below = sys.filesBelow(folder + L"\\");
    std::ranges::sort(below);
    EXPECT_EQ(below, (std::vector<std::wstring>{file, folder + L"\\sub\\b.lnk"}));
    const std::tuple<std::wstring, bool, bool> paths[] = {
        // path, a file, a file or folder
        {file, true, true},
        {folder, false, true},
        {folder + L"\\", false, true},
        {L"C:\\", false, true},
        {L"", false, false},
        {folder + L"\\missing.txt", false, false},
        {folder + L"\\a*.t?t", true, false}, // a search, as the old runtime's existence test was
    };
    for (const auto &[path, isFile, exists] : paths) {
        EXPECT_EQ(sys.fileExists(path), isFile) << Utf8(path);
        EXPECT_EQ(sys.pathExists(path), exists) << Utf8(path);
    }
    EXPECT_EQ(std::pair(sys.fileFacts(file)->size, sys.fileFacts(file)->lastChange.year),
              std::pair(std::uint64_t(1), sys.now().year));
    EXPECT_FALSE(sys.fileFacts(folder).has_value());
}

TEST_F(RealSystem, BytesReadBackExactlyAndALockedFileIsNeitherReadNorWrittenNorDeleted) {
    const std::wstring file = folder + L"\\Orvane.ini";
    const std::string bytes = std::string("0\r\n  C:\\x.exe  \r\n\x80\xFF\r\n") + std::string(3, '\0');
    ASSERT_EQ(sys.writeFile(file, bytes), 0);
    EXPECT_EQ(sys.readFile(file, 1 << 20), bytes);
    EXPECT_EQ(sys.readFile(file, 3), "0\r\n");
    ASSERT_EQ(sys.writeFile(file, "keep me"), 0);
    EXPECT_EQ(ReadBytes(file), "keep me") << "rewritten whole";

    UniqueFile lock(CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(lock && sys.fileExists(file));
    EXPECT_FALSE(sys.readFile(file, 100).has_value());
    EXPECT_EQ(sys.writeFile(file, "lost"), 70);
    EXPECT_FALSE(sys.lastErrorDescription().empty());
    EXPECT_FALSE(sys.deleteFile(file));
    lock.reset();
    EXPECT_EQ(ReadBytes(file), "keep me");
    EXPECT_TRUE(sys.deleteFile(file));
    EXPECT_FALSE(sys.readFile(file, 100).has_value());
    EXPECT_EQ(sys.writeFile(folder + L"\\no such folder\\x.ini", "x"), 76);
}

TEST_F(RealSystem, AnsiCodecFollowsTheCodePage) {
    if (GetACP() != 1252)
        GTEST_SKIP() << "code page " << GetACP();
    EXPECT_EQ(sys.toAnsi(L"D\u00fcsseldorf \u20ac \u0141"), "D\xFCsseldorf \x80 ?");
    EXPECT_EQ(sys.fromAnsi("D\xFCsseldorf \x80"), L"D\u00fcsseldorf \u20ac");
}

TEST_F(RealSystem, RegistryStringsAreReadOnlyWhenTheyAreStringsAndTheDocumentsFolderIsTheSystems) {
    const wchar_t *key = L"Software\\Orvane Tests";
    const DWORD number = 7;
    RegSetKeyValueW(HKEY_CURRENT_USER, key, L"text", REG_SZ, L"C:\\Some where", sizeof L"C:\\Some where");
    RegSetKeyValueW(HKEY_CURRENT_USER, key, L"number", REG_DWORD, &number, sizeof number);
    RegSetKeyValueW(HKEY_CURRENT_USER, key, L"expandable", REG_EXPAND_SZ, L"%TEMP%", 14);
    EXPECT_EQ(sys.registryString(RegistryRoot::CurrentUser, key, L"text"), L"C:\\Some where");
    for (const wchar_t *value : {L"number", L"expandable", L"missing"})
        EXPECT_EQ(sys.registryString(RegistryRoot::CurrentUser, key, value), std::nullopt) << Utf8(value);
    EXPECT_EQ(sys.registryString(RegistryRoot::CurrentUser, L"Software\\No Such Key", L"x"), std::nullopt);
    RegDeleteTreeW(HKEY_CURRENT_USER, key);
    // The program files folder from the registry: the end-to-end tests see it in the path of Excel.
    App app(sys);
    FindSystemFolders(app);
    wchar_t documents[MAX_PATH];
    ASSERT_EQ(SHGetFolderPathW(nullptr, CSIDL_PERSONAL, nullptr, 0, documents), S_OK);
    EXPECT_EQ(app.DocumentsFolder, std::wstring(documents) + L"\\");
}

TEST_F(RealSystem, PendingEventsRunAndAQuitIsKeptForTheMainLoop) {
    HWND window = CreateWindowW(L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    PostMessageW(window, WM_CLOSE, 0, 0);
    PostQuitMessage(3);
    sys.processPendingEvents();
    EXPECT_FALSE(IsWindow(window)) << "the pending close ran";
    MSG message{};
    EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) && message.wParam == 3u);
    // A key typed meanwhile reaches the dialog's own keys: Esc cancels it.
    static bool cancelled = false;
    HWND dialog = CreateDialogParamW(
        nullptr, MAKEINTRESOURCEW(IDD_YOUR_PROGRAM), nullptr,
        [](HWND, UINT m, WPARAM w, LPARAM) -> INT_PTR {
            cancelled |= m == WM_COMMAND && LOWORD(w) == IDCANCEL;
            return FALSE;
        },
        0);
    PostMessageW(GetDlgItem(dialog, IDC_PROGRAM), WM_KEYDOWN, VK_ESCAPE, 1);
    sys.processPendingEvents();
    EXPECT_TRUE(cancelled);
    DestroyWindow(dialog);
}

TEST_F(RealSystem, ADocumentOfTheCurrentFolderOpensInItsToolThenRunningItBringsItForwardAndExploreOpensTheFolder) {
    const std::wstring current = FreshFolder(folder, L"current dir");
    CopyInto(EnvironmentPath(L"ORVANE_PROBE"), folder);
    WriteBytes(folder + L"\\probe.window", "");
    const FolderKeeper keeper(sys);
    sys.setCurrentFolder(current);
    App app(sys);
    std::wstring program = folder + L"\\probe.exe", document = L"n\u00f6tes b.txt";
    LaunchSuiteProgram(app, program, document);
    const auto records = ReadProbeLog(folder + L"\\probe.log", 1);
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].commandLine, Utf8(program + L" \"" + current + L"\\n\u00f6tes b.txt\""));
    EXPECT_EQ(records[0].folder, Utf8(current));
    EXPECT_TRUE(sys.messages.empty() && app.LastLaunchResult != 0);

    // Shown, not just created: only a visible window counts as running.
    const HWND tool = FindProcessWindow(0, L"Static", L"probe", 10s);
    ASSERT_NE(tool, nullptr);
    const UniqueWindow other(
        CreateWindowW(L"STATIC", L"other", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 100, 100, 0, 0, 0, 0));
    SetForegroundWindow(other.get());
    LaunchSuiteProgram(app, program, document);
    EXPECT_EQ(sys.messages, std::vector<std::wstring>{L"Orvane: Program running already"});
    Sleep(800); // time for a start that should not happen to show, and for the switch to the tool
    const std::size_t starts = ReadProbeLog(folder + L"\\probe.log").size();
    EXPECT_EQ(std::tuple(app.LastLaunchResult, starts, GetForegroundWindow()), std::tuple(1, 1u, tool));
    PostMessageW(tool, WM_CLOSE, 0, 0);

    ExploreFolder(app, 0);
    EXPECT_GT(app.LastLaunchResult, 32);
    // Wine's file explorer titles its window with the folder's name.
    const HWND explorer = FindProcessWindow(0, L"ExplorerWClass", L"current dir", 10s);
    ASSERT_NE(explorer, nullptr);
    PostMessageW(explorer, WM_CLOSE, 0, 0);
}

TEST(RealWindowList, OnlyTheWindowsATaskBarShowsComeOutTopOfTheZOrderFirst) {
    constexpr DWORD kShown = WS_OVERLAPPEDWINDOW | WS_VISIBLE;
    const auto make = [](const wchar_t *title, DWORD style, DWORD exStyle = 0, HWND parent = nullptr) {
        return UniqueWindow(CreateWindowExW(exStyle, L"STATIC", title, style, 10, 10, 120, 60, parent, 0, 0, 0));
    };
    const UniqueWindow bar = make(L"Orvane", kShown), plain = make(L"Listed plain", kShown),
                       lower = make(L"Listed lower", kShown);
    const UniqueWindow others[] = {make(L"Listed owned app window", kShown, WS_EX_APPWINDOW, plain.get()),
                                   make(L"Hidden", WS_OVERLAPPEDWINDOW),
                                   make(L"Child", WS_CHILD | WS_VISIBLE, 0, plain.get()),
                                   make(L"Owned", kShown, 0, plain.get()),
                                   make(L"Owned popup app window", WS_POPUP | WS_VISIBLE, WS_EX_APPWINDOW, plain.get()),
                                   make(L"Tool", kShown, WS_EX_TOOLWINDOW),
                                   make(L"", kShown)};
    ASSERT_TRUE(bar && plain && lower && std::ranges::none_of(others, std::logical_not<>()));
    SetWindowPos(plain.get(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    SetWindowPos(lower.get(), plain.get(), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);

    Win32System sys;
    App app(sys);
    app.MainWindowRef = ToRef(bar.get());
    RefreshWindowList(app);
    std::vector<std::wstring> ours; // the listed windows of this thread, in list order
    for (const WindowListEntry &entry : app.windowList)
        if (GetWindowThreadProcessId(ToHwnd(entry.handle), nullptr) == GetCurrentThreadId())
            ours.push_back(entry.title);
    EXPECT_LT(std::ranges::find(ours, L"Listed plain"), std::ranges::find(ours, L"Listed lower"));
    std::ranges::sort(ours);
    // An owned popup reports its owner as parent, so it stays out too.
    EXPECT_EQ(ours, (std::vector<std::wstring>{L"Listed lower", L"Listed owned app window", L"Listed plain"}));
    EXPECT_EQ(FindListedWindow(app.windowList, L"Listed plain"), ToRef(plain.get()));
    EXPECT_EQ(FindListedWindow(app.windowList, L"Orvane"), 0u) << "the bar itself never enters";
}

// Set for the probe program alone, so other tests in the same prefix are not touched.
TEST(OsVersion, AsWineReportsEachPretendedWindowsToAProgramWithOurManifest) {
    const std::wstring probe = EnvironmentPath(L"ORVANE_OSVERSION_PROBE");
    const std::wstring key = L"Software\\Wine\\AppDefaults\\osversion_probe.exe";
    const std::pair<std::wstring, intptr_t> versions[] = {{L"win2k", 500}, {L"winxp64", 502}, {L"vista", 600},
                                                          {L"win7", 601},  {L"win81", 603},   {L"win10", 1000}};
    for (const auto &[name, expected] : versions) {
        RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), L"Version", REG_SZ, name.c_str(),
                        DWORD((name.size() + 1) * sizeof(wchar_t)));
        EXPECT_EQ(_wspawnl(_P_WAIT, probe.c_str(), (L"\"" + probe + L"\"").c_str(), nullptr), expected) << Utf8(name);
    }
    RegDeleteTreeW(HKEY_CURRENT_USER, key.c_str());
}

} // namespace
} // namespace orvane::ui
