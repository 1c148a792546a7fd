// What orvane.exe carries: its manifest, version and icon.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "win_support.h"

namespace orvane::e2e {
namespace {

using namespace testsupport;

TEST(Executable, CarriesItsManifestIconAndVersion) {
    const std::wstring path = WindowsPath(EnvironmentValue(L"ORVANE_EXE"));
    const HMODULE module =
        LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
    ASSERT_NE(module, nullptr);
    const auto resource = [&](const wchar_t* type) {
        const HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(1), type);
        if (!found) return std::string();
        return std::string(static_cast<const char*>(LockResource(LoadResource(module, found))),
                           SizeofResource(module, found));
    };
    // Modern controls, per-monitor DPI awareness, long paths, Windows 10 and 7 among the systems, no elevation.
    const std::string manifest = resource(RT_MANIFEST);
    for (const char* expected : {"Microsoft.Windows.Common-Controls", "version=\"6.0.0.0\"", "PerMonitorV2",
                                 "<longPathAware", "{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}",
                                 "{35138b9a-5d96-4fbd-8e2d-a2440225f93a}", "asInvoker"})
        EXPECT_NE(manifest.find(expected), std::string::npos) << expected;
    EXPECT_FALSE(resource(RT_GROUP_ICON).empty());
    FreeLibrary(module);

    std::vector<char> info(GetFileVersionInfoSizeW(path.c_str(), nullptr));
    ASSERT_FALSE(info.empty());
    ASSERT_TRUE(GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(info.size()), info.data()));
    wchar_t* text = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueW(info.data(), L"\\StringFileInfo\\040904B0\\ProductName", reinterpret_cast<void**>(&text),
                               &length));
    EXPECT_EQ(std::wstring(text), L"Tellmark Set");
    VS_FIXEDFILEINFO* fixed = nullptr;
    ASSERT_TRUE(VerQueryValueW(info.data(), L"\\", reinterpret_cast<void**>(&fixed), &length));
    EXPECT_EQ(HIWORD(fixed->dwFileVersionMS), 1);
}

}  // namespace
}  // namespace orvane::e2e
