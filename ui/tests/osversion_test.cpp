// The system version as Wine pretends to be several Windows versions, set for
// the probe program alone so other tests in the same prefix are not touched.
#include <gtest/gtest.h>

#include <algorithm>

#include "handles.h"
#include "win_support.h"

namespace orvane::ui {
namespace {

using namespace testsupport;

std::string RunCapturingOutput(const std::wstring& program) {
    SECURITY_ATTRIBUTES inherit{sizeof inherit, nullptr, TRUE};
    HANDLE readEnd = nullptr, writeEnd = nullptr;
    if (!CreatePipe(&readEnd, &writeEnd, &inherit, 0)) return {};
    UniqueHandle reader(readEnd), writer(writeEnd);
    SetHandleInformation(reader.get(), HANDLE_FLAG_INHERIT, 0);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = writer.get();
    startup.hStdError = writer.get();
    PROCESS_INFORMATION process{};
    std::wstring commandLine = L"\"" + program + L"\"";
    if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr, nullptr,
                        &startup, &process))
        return {};
    UniqueHandle processHandle(process.hProcess), thread(process.hThread);
    writer.reset();
    std::string output;
    char buffer[256];
    DWORD got = 0;
    while (ReadFile(reader.get(), buffer, sizeof buffer, &got, nullptr) && got) output.append(buffer, got);
    WaitForSingleObject(processHandle.get(), 10000);
    return output;
}

struct PretendedVersion {
    const wchar_t* wineName;
    const char* expected;
};

TEST(OsVersion, NamedForEveryPretendedWindows) {
    const std::wstring probe = WindowsPath(EnvironmentValue(L"ORVANE_OSVERSION_PROBE"));
    const std::wstring key = L"Software\\Wine\\AppDefaults\\osversion_probe.exe";
    const PretendedVersion versions[] = {
        {L"win2k", "5.0|Win XP\n"},         {L"winxp64", "5.2|Win XP\n"},     {L"vista", "6.0|Vista\n"},
        {L"win7", "6.1|Win 7 + later\n"}, {L"win81", "6.3|Win 7 + later\n"}, {L"win10", "10.0|\n"},
    };
    for (const auto& version : versions) {
        const std::wstring name = version.wineName;
        RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), L"Version", REG_SZ, name.c_str(),
                        static_cast<DWORD>((name.size() + 1) * sizeof(wchar_t)));
        std::string output = RunCapturingOutput(probe);
        output.erase(std::remove(output.begin(), output.end(), '\r'), output.end());
        EXPECT_EQ(output, version.expected) << Utf8(name);
    }
    RegDeleteTreeW(HKEY_CURRENT_USER, key.c_str());
}

}  // namespace
}  // namespace orvane::ui
