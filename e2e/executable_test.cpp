// What orvane.exe carries: its manifest and icon. Its version is read back in the About box (StartUp tests).
#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include "win_support.h"

namespace orvane::e2e {
namespace {

using namespace testsupport;

TEST(Executable, ManifestAsksForModernControlsDpiAndLongPathsAndTheFileCarriesAnIcon) {
    const std::unique_ptr<std::remove_pointer_t<HMODULE>, decltype(&FreeLibrary)> module(
        LoadLibraryExW(EnvironmentPath(L"ORVANE_EXE").c_str(), nullptr,
                       LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE),
        FreeLibrary);
    ASSERT_NE(module, nullptr);
    const auto resource = [&](const wchar_t *type, int id) {
        HRSRC found = FindResourceW(module.get(), MAKEINTRESOURCEW(id), type);
        const auto *bytes =
            found ? static_cast<const char *>(LockResource(LoadResource(module.get(), found))) : nullptr;
        return bytes ? std::string(bytes, SizeofResource(module.get(), found)) : std::string();
    };
    const std::string manifest = resource(RT_MANIFEST, 1);
    for (const char *expected :
         {"Microsoft.Windows.Common-Controls", "version=\"6.0.0.0\"", "PerMonitorV2", "<longPathAware",
          "{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}", "{35138b9a-5d96-4fbd-8e2d-a2440225f93a}", "asInvoker"})
        EXPECT_NE(manifest.find(expected), std::string::npos) << expected;
    EXPECT_FALSE(resource(RT_GROUP_ICON, 1).empty());
}

} // namespace
} // namespace orvane::e2e
