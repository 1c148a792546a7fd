// What orvane.exe carries: its manifest, version, icon and menu icons.
#include <gtest/gtest.h>

#include <cstdio>
#include <sstream>

#include "win_support.h"

namespace orvane::e2e {
namespace {

using namespace testsupport;

class Executable : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_NE(module, nullptr); }
    void TearDown() override { FreeLibrary(module); }
    std::string resource(const wchar_t* type, int id) {
        HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(id), type);
        if (!found) return {};
        return std::string(static_cast<const char*>(LockResource(LoadResource(module, found))), SizeofResource(module, found));
    }
    HMODULE module = LoadLibraryExW(EnvironmentPath(L"ORVANE_EXE").c_str(), nullptr,
                                    LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
};

TEST_F(Executable, ManifestAsksForModernControlsDpiAndLongPathsAndTheFileCarriesAnIconAndItsVersion) {
    const std::string manifest = resource(RT_MANIFEST, 1);
    for (const char* expected : {"Microsoft.Windows.Common-Controls", "version=\"6.0.0.0\"", "PerMonitorV2", "<longPathAware",
                                 "{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}", "{35138b9a-5d96-4fbd-8e2d-a2440225f93a}", "asInvoker"})
        EXPECT_NE(manifest.find(expected), std::string::npos) << expected;
    EXPECT_FALSE(resource(RT_GROUP_ICON, 1).empty());
    std::string info = resource(RT_VERSION, 1);  // a copy: reading may write into it
    wchar_t* text = nullptr;
    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueW(info.data(), L"\\StringFileInfo\\040904B0\\ProductName", reinterpret_cast<void**>(&text), &length) &&
                VerQueryValueW(info.data(), L"\\", reinterpret_cast<void**>(&fixed), &length));
    EXPECT_EQ(std::pair(std::wstring(text), HIWORD(fixed->dwFileVersionMS)), std::pair(std::wstring(L"Tellmark Set"), WORD{1}));
}

// Every key kN of the icon table is icon 1000 + N with 32-bit images of its own at 16 and 24 pixels
// (loading one would scale any size to fit, so the images are read directly).
TEST_F(Executable, CarriesEveryMenuIconAt16And24Pixels) {
    std::istringstream table(ReadBytes(EnvironmentPath(L"ORVANE_MENU_ICONS")));
    int keys = 0;
    for (std::string line; std::getline(table, line);) {
        int key = 0;
        if (std::sscanf(line.c_str(), "k%d", &key) != 1) continue;  // comments
        ++keys;
        std::string group = resource(RT_GROUP_ICON, 1000 + key);
        for (const int size : {16, 24}) {
            auto* directory = reinterpret_cast<BYTE*>(group.data());
            const std::string image = resource(RT_ICON, group.empty() ? 0 : LookupIconIdFromDirectoryEx(directory, TRUE, size, size, 0));
            const auto* header = reinterpret_cast<const BITMAPINFOHEADER*>(image.data());
            EXPECT_TRUE(image.size() >= sizeof *header && header->biWidth == size && header->biBitCount == 32)
                << "k" << key << " at " << size;
        }
    }
    EXPECT_GT(keys, 50) << "the icon table was read";
}

}  // namespace
}  // namespace orvane::e2e
