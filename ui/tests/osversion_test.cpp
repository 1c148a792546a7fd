// The system version as Wine pretends to be several Windows versions, set for
// the probe program alone so other tests in the same prefix are not touched.
#include <gtest/gtest.h>

#include "win_support.h"

namespace orvane::ui {
namespace {

using namespace testsupport;

TEST(OsVersion, NamedForEveryPretendedWindows) {
    const std::wstring probe = WindowsPath(EnvironmentValue(L"ORVANE_OSVERSION_PROBE"));
    const std::wstring key = L"Software\\Wine\\AppDefaults\\osversion_probe.exe";
    const std::pair<std::wstring, std::string> versions[] = {
        {L"win2k", "5.0|Win XP"}, {L"winxp64", "5.2|Win XP"},        {L"vista", "6.0|Vista"},
        {L"win7", "6.1|Win 7 + later"}, {L"win81", "6.3|Win 7 + later"}, {L"win10", "10.0|"},
    };
    for (const auto& [name, expected] : versions) {
        RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), L"Version", REG_SZ, name.c_str(),
                        static_cast<DWORD>((name.size() + 1) * sizeof(wchar_t)));
        DeleteFileW((probe + L".txt").c_str());
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        PROCESS_INFORMATION process{};
        std::wstring commandLine = L"\"" + probe + L"\"";
        ASSERT_TRUE(CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                                   nullptr, &startup, &process));
        WaitForSingleObject(process.hProcess, 10000);
        CloseHandle(process.hProcess);
        CloseHandle(process.hThread);
        EXPECT_EQ(ReadBytes(probe + L".txt"), expected) << Utf8(name);
    }
    RegDeleteTreeW(HKEY_CURRENT_USER, key.c_str());
}

}  // namespace
}  // namespace orvane::ui
