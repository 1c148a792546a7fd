// Settings files that are garbage, huge, or locked: the bar still starts
// without a message, and closes the way the settings rules say.
#include <gtest/gtest.h>

#include "orvane_process.h"
#include "settings_text.h"
#include "win_support.h"

namespace orvane::e2e {
namespace {

using namespace testsupport;

std::string Garbage(std::size_t size) {
    std::string bytes(size, '\0');
    unsigned state = 12345;
    for (char& c : bytes) c = static_cast<char>((state = state * 1103515245u + 12345u) >> 16);
    return bytes;
}

// Starts the bar on the given settings file; true when it opened without
// any message and closed by itself after WM_CLOSE.
bool StartsQuietlyAndCloses(const ProgramFolder& folder) {
    OrvaneProcess orvane(folder);
    if (!orvane.waitForMainWindow()) return false;
    if (orvane.dialog()) return false;
    orvane.close();
    return orvane.waitForExit() == 0u;
}

TEST(BadSettings, BinaryGarbageIsReadAsWhatItSaysAndRewrittenClean) {
    ProgramFolder folder(L"garbage settings");
    ASSERT_TRUE(WriteBytes(folder.settingsFile(), Garbage(64 * 1024)));
    ASSERT_TRUE(StartsQuietlyAndCloses(folder));
    const std::string written = ReadBytes(folder.settingsFile());
    EXPECT_EQ(SplitCrLf(written).size(), 39u);
    EXPECT_EQ(written.substr(written.size() - 2), "\r\n");
}

TEST(BadSettings, TenMegabytesWithAMegabyteLineAreReadUpToLine39) {
    ProgramFolder folder(L"huge settings");
    const std::string longLine(1 << 20, 'x');
    auto lines = SettingsLines({{4, longLine}, {7, "11"}});
    std::string content = CrLfLines(lines);
    while (content.size() < (10u << 20)) content += Garbage(1 << 16) + "\r\n";
    ASSERT_TRUE(WriteBytes(folder.settingsFile(), content));
    ASSERT_TRUE(StartsQuietlyAndCloses(folder));
    const auto written = SplitCrLf(ReadBytes(folder.settingsFile()));
    ASSERT_EQ(written.size(), 39u);
    EXPECT_EQ(written[3], longLine);
    EXPECT_EQ(written[6], "11");
}

TEST(BadSettings, LockedFileIsNeitherReadNorOverwritten) {
    ProgramFolder folder(L"locked settings");
    const std::string content = CrLfLines(SettingsLines({{1, "1500"}, {7, "11"}}));
    ASSERT_TRUE(WriteBytes(folder.settingsFile(), content));
    HANDLE lock = CreateFileW(folder.settingsFile().c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                              0, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    OrvaneProcess orvane(folder);
    HWND bar = orvane.waitForMainWindow();
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(orvane.dialog(), nullptr);
    EXPECT_EQ(WindowRectangle(bar).top, 0) << "nothing was read";
    orvane.close();
    EXPECT_EQ(orvane.waitForExit(), 0u);
    EXPECT_EQ(orvane.dialog(), nullptr);
    CloseHandle(lock);
    EXPECT_EQ(ReadBytes(folder.settingsFile()), content);
}

}  // namespace
}  // namespace orvane::e2e
