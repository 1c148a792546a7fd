// The real system, except that messages are recorded instead of shown, so a
// test can run launches that report without a user to answer them.
#pragma once

#include <vector>

#include "win32_system.h"

namespace orvane::ui {

struct RecordingSystem : Win32System {
    MessageAnswer showMessage(const std::wstring& text, const std::wstring& caption, MessageIcon,
                              MessageButtons) override {
        messages.push_back(caption + L": " + text);
        return MessageAnswer::Ok;
    }
    std::vector<std::wstring> messages;
};

}  // namespace orvane::ui
