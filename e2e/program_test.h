// What the end-to-end tests share: the harness, a program folder named after the test, and orvane.exe started there.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "orvane_process.h"
#include "program_windows.h"
#include "win_support.h"

namespace orvane::e2e {

// Success once read(args...) gives this value, as the program shows it after a while; else what it gives.
template <class Value, class Read, class... Args>
::testing::AssertionResult Becomes(const Value &value, Read read, const Args &...args) {
    if (testsupport::WaitFor(
            [&] {
                return read(args...) == value;
            },
            10s))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "it stays " << ::testing::PrintToString(read(args...));
}

class ProgramTest : public ::testing::Test {
protected:
    // Starts the bar on a settings file with these lines; the bar once it shows.
    HWND start(const std::map<int, std::string> &settings) {
        testsupport::WriteBytes(folder.settingsFile(), SettingsText(settings));
        orvane = std::make_unique<OrvaneProcess>(folder);
        return orvane->waitForMainWindow();
    }
    // Starts the bar, then opens the window with this title from the bar's menu item with this caption.
    HWND open(const std::map<int, std::string> &settings, const wchar_t *caption, const wchar_t *title) {
        return FromMenu(*orvane, start(settings), caption, title);
    }
    // Closes the bar, which ends cleanly; the lines of the settings file it wrote.
    std::vector<std::string> closeAndReadSettings() {
        orvane->close();
        EXPECT_EQ(orvane->waitForExit(), 0u);
        return SplitCrLf(testsupport::ReadBytes(folder.settingsFile()));
    }
    // A file of the program folder, by its name there; as UTF-8 for settings lines and command lines.
    std::wstring file(const std::wstring &name) const {
        return folder.path() + L"\\" + name;
    }
    std::string path(const std::wstring &name) const {
        return testsupport::Utf8(file(name));
    }

    ProgramFolder folder{testsupport::Wide(::testing::UnitTest::GetInstance()->current_test_info()->name())};
    std::unique_ptr<OrvaneProcess> orvane;
};

} // namespace orvane::e2e
