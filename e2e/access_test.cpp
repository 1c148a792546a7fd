// Every window used by keyboard alone and named for a screen reader: access keys that do not clash, a Tab
// order reaching every control in reading order with the focus on something visible, names for controls.
#include <gtest/gtest.h>

#include "dispatch.h"
#include "menu.h"
#include "program_test.h"

namespace orvane::e2e {
namespace {

using namespace testsupport;

void ExpectUsableByKeyboard(const std::wstring &name, HWND window) {
    SCOPED_TRACE(Utf8(name));
    // The one clash the design's own captions make, kept: Windows moves between both items on the letter.
    EXPECT_EQ(AccessKeyClashes(window), name == L"bar" ? std::vector<std::wstring>{L"W: Use screen &width Sho&w clock"}
                                                       : std::vector<std::wstring>{});
    EXPECT_EQ(UnnamedControls(window), std::vector<std::wstring>{});
    if (name == L"clock")
        return; // any key closes it: it has no controls to move between
    const std::vector<FocusStop> cycle = TabCycle(window);
    int wraps = 0;
    for (std::size_t i = 0; i < cycle.size(); ++i) { // reading order: a stop lies above the one before only on wrapping
        EXPECT_TRUE(cycle[i].seen) << i << " " << Utf8(TextOf(cycle[i].control));
        wraps += i > 0 && cycle[i].place.bottom <= cycle[i - 1].place.top;
    }
    EXPECT_LE(wraps, 1);
}

std::wstring IconName(std::size_t icon) {
    return WithoutAccessMarks(StripIcons()[icon].row.caption);
}

TEST(Access, EveryWindowWorksFromTheKeyboardAndNamesItsControls) {
    ProgramFolder folder(L"Access");
    PrepareForEveryWindow(folder);
    OrvaneProcess orvane(folder);
    HWND bar = orvane.waitForMainWindow();
    ASSERT_NE(bar, nullptr);
    HWND strip = FindWindowExW(bar, nullptr, L"Orvane.IconStrip", nullptr); // named for the icon the arrow keys reached
    EXPECT_EQ(TextOf(strip), IconName(0));
    PressKeys(bar, {VK_RIGHT});
    EXPECT_TRUE(Becomes(IconName(1), TextOf, strip));
    ExpectUsableByKeyboard(L"bar", bar);

    for (const ProgramWindow &window : kProgramWindows) {
        HWND opened = window.open(orvane, bar);
        ASSERT_NE(opened, nullptr) << Utf8(window.name);
        ExpectUsableByKeyboard(window.name, opened);
        EXPECT_TRUE(window.close(orvane, opened)) << Utf8(window.name);
    }
    orvane.close();
    EXPECT_TRUE(orvane.waitForExit());
}

} // namespace
} // namespace orvane::e2e
