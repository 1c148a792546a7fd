// The Win32 system interface against the real file system, registry and shell.
#include <gtest/gtest.h>

#include <shlobj.h>

#include "app.h"
#include "handles.h"
#include "helpers.h"
#include "win32_system.h"
#include "win_support.h"

namespace orvane::ui {
namespace {

using namespace testsupport;

class RealSystem : public ::testing::Test {
protected:
    void SetUp() override {
        const std::wstring name = Wide(::testing::UnitTest::GetInstance()->current_test_info()->name());
        folder = FreshFolder(WindowsPath(EnvironmentValue(L"ORVANE_TEST_ROOT")), L"system " + name);
    }
    std::wstring folder;
    Win32System sys;
};

TEST_F(RealSystem, FilesAndFoldersAreToldApart) {
    const std::wstring file = folder + L"\\a file.txt";
    WriteBytes(file, "x");
    const std::tuple<std::wstring, bool, bool> paths[] = {  // path, a file, a file or folder
        {file, true, true},          {folder, false, true},   {folder + L"\\", false, true},
        {L"C:\\", false, true},      {L"", false, false},     {folder + L"\\missing.txt", false, false},
        {folder + L"\\missing", false, false},
    };
    for (const auto& [path, isFile, exists] : paths) {
        EXPECT_EQ(sys.fileExists(path), isFile) << Utf8(path);
        EXPECT_EQ(sys.pathExists(path), exists) << Utf8(path);
    }
}

TEST_F(RealSystem, WrittenBytesReadBackExactlyAndDeleteRemoves) {
    const std::wstring file = folder + L"\\Orvane.ini";
    std::string bytes = "0\r\n  C:\\x.exe  \r\n\x80\xFF\r\n";
    bytes += std::string(3, '\0');
    ASSERT_EQ(sys.writeFile(file, bytes), 0);
    EXPECT_EQ(sys.readFile(file, 1 << 20), bytes);
    EXPECT_EQ(sys.readFile(file, 3), "0\r\n");
    ASSERT_EQ(sys.writeFile(file, "short"), 0);
    EXPECT_EQ(ReadBytes(file), "short") << "rewritten from scratch";
    EXPECT_TRUE(sys.deleteFile(file));
    EXPECT_FALSE(sys.readFile(file, 100).has_value());
    EXPECT_FALSE(sys.lastErrorDescription().empty());
}

TEST_F(RealSystem, LockedFileCannotBeReadNorWrittenAndSaysWhy) {
    const std::wstring file = folder + L"\\locked.ini";
    WriteBytes(file, "keep me");
    UniqueFile lock(CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(lock);
    EXPECT_TRUE(sys.fileExists(file));
    EXPECT_FALSE(sys.readFile(file, 100).has_value());
    EXPECT_EQ(sys.writeFile(file, "lost"), 70);
    EXPECT_FALSE(sys.lastErrorDescription().empty());
    EXPECT_FALSE(sys.deleteFile(file));
    lock.reset();
    EXPECT_EQ(ReadBytes(file), "keep me");
    EXPECT_EQ(sys.writeFile(folder + L"\\no such folder\\x.ini", "x"), 76);
}

TEST_F(RealSystem, AnsiCodecFollowsTheCodePage) {
    if (GetACP() != 1252) GTEST_SKIP() << "code page " << GetACP();
    EXPECT_EQ(sys.toAnsi(L"D\u00fcsseldorf \u20ac \u0141"), "D\xFCsseldorf \x80 ?");
    EXPECT_EQ(sys.fromAnsi("D\xFCsseldorf \x80"), L"D\u00fcsseldorf \u20ac");
}

TEST_F(RealSystem, RegistryStringsAreReadOnlyWhenTheyAreStrings) {
    const wchar_t* key = L"Software\\Orvane Tests";
    const std::wstring text = L"C:\\Some where";
    const DWORD number = 7;
    RegSetKeyValueW(HKEY_CURRENT_USER, key, L"text", REG_SZ, text.c_str(),
                    static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
    RegSetKeyValueW(HKEY_CURRENT_USER, key, L"number", REG_DWORD, &number, sizeof number);
    RegSetKeyValueW(HKEY_CURRENT_USER, key, L"expandable", REG_EXPAND_SZ, L"%TEMP%", 14);
    EXPECT_EQ(sys.registryString(RegistryRoot::CurrentUser, key, L"text"), text);
    for (const wchar_t* value : {L"number", L"expandable", L"missing"})
        EXPECT_EQ(sys.registryString(RegistryRoot::CurrentUser, key, value), std::nullopt) << Utf8(value);
    EXPECT_EQ(sys.registryString(RegistryRoot::CurrentUser, L"Software\\No Such Key", L"x"), std::nullopt);
    RegDeleteTreeW(HKEY_CURRENT_USER, key);
}

TEST_F(RealSystem, ProgramFilesAndDocumentsFoldersAreTheSystems) {
    App app(sys);
    FindSystemFolders(app);
    wchar_t expected[MAX_PATH];
    ASSERT_EQ(SHGetFolderPathW(nullptr, CSIDL_PROGRAM_FILES, nullptr, 0, expected), S_OK);
    EXPECT_EQ(app.ProgramFilesFolder, std::wstring(expected) + L"\\");
    ASSERT_EQ(SHGetFolderPathW(nullptr, CSIDL_PERSONAL, nullptr, 0, expected), S_OK);
    EXPECT_EQ(app.DocumentsFolder, std::wstring(expected) + L"\\");
}

TEST_F(RealSystem, PendingEventsRunAndAQuitIsKeptForTheMainLoop) {
    int timerRuns = 0;
    static int* counter = nullptr;
    counter = &timerRuns;
    const UINT_PTR timer = SetTimer(nullptr, 0, 1, [](HWND, UINT, UINT_PTR, DWORD) { ++*counter; });
    Sleep(50);
    sys.processPendingEvents();
    KillTimer(nullptr, timer);
    EXPECT_GE(timerRuns, 1);
    PostQuitMessage(3);
    sys.processPendingEvents();
    MSG message;
    ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 3u);
}

}  // namespace
}  // namespace orvane::ui
