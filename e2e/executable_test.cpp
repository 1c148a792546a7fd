// What orvane.exe carries: its manifest, version and icon.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "win_support.h"

namespace orvane::e2e {
namespace {

using namespace testsupport;

class Executable : public ::testing::Test {
protected:
    void SetUp() override {
        module = LoadLibraryExW(WindowsPath(EnvironmentValue(L"ORVANE_EXE")).c_str(), nullptr,
                                LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
        ASSERT_NE(module, nullptr);
    }
    void TearDown() override { FreeLibrary(module); }

    std::string resource(const wchar_t* type, const wchar_t* name) {
        HRSRC found = FindResourceW(module, name, type);
        if (!found) return {};
        HGLOBAL loaded = LoadResource(module, found);
        return std::string(static_cast<const char*>(LockResource(loaded)), SizeofResource(module, found));
    }
    HMODULE module = nullptr;
};

TEST_F(Executable, ManifestAsksForModernControlsDpiAndLongPaths) {
    const std::string manifest = resource(RT_MANIFEST, MAKEINTRESOURCEW(1));
    for (const char* expected : {"Microsoft.Windows.Common-Controls", "version=\"6.0.0.0\"", "PerMonitorV2",
                                 "<longPathAware", "{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}",
                                 "{35138b9a-5d96-4fbd-8e2d-a2440225f93a}", "asInvoker"})
        EXPECT_NE(manifest.find(expected), std::string::npos) << expected;
}

TEST_F(Executable, CarriesAnIconAndItsVersion) {
    EXPECT_FALSE(resource(RT_GROUP_ICON, MAKEINTRESOURCEW(1)).empty());
    const std::wstring path = WindowsPath(EnvironmentValue(L"ORVANE_EXE"));
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
