// The system interface implemented with Win32.
#pragma once

#include <windows.h>

#include "system.h"

namespace orvane::ui {

// An empty text as the null pointer the system's calls take for "none".
inline const wchar_t *OrNull(const std::wstring &text) {
    return text.empty() ? nullptr : text.c_str();
}

inline DateTime FromSystemTime(const SYSTEMTIME &t) {
    return {t.wYear, t.wMonth, t.wDay, t.wDayOfWeek, t.wHour, t.wMinute, t.wSecond};
}

// The files are in win32_files.cpp, the prompts in win32_prompts.cpp.
class Win32System : public System {
public:
    // Message boxes and file dialogs are owned by the active window of the
    // program, or by this window while it is visible.
    void setMessageOwner(HWND owner) {
        messageOwner_ = owner;
    }

    bool fileExists(const std::wstring &path) override;
    bool pathExists(const std::wstring &path) override;
    std::optional<std::string> readFile(const std::wstring &path, std::size_t maxBytes) override;
    FileError writeFile(const std::wstring &path, const std::string &bytes) override;
    bool deleteFile(const std::wstring &path) override;
    std::wstring currentFolder() override;
    bool setCurrentFolder(const std::wstring &folder) override;
    std::optional<FileFacts> fileFacts(const std::wstring &path) override;
    std::wstring lastErrorDescription() override;
    std::vector<std::wstring> filesBelow(const std::wstring &folder) override;
    std::wstring fromAnsi(const std::string &bytes) override;
    std::string toAnsi(const std::wstring &text) override;
    bool shellExecute(const ShellExecuteRequest &request) override;
    std::optional<long long> startCommandLine(const std::wstring &commandLine, int showCode) override;
    long long shellVerb(WindowRef owner, const std::wstring &verb, const std::wstring &file,
                        const std::wstring &directory, int showCode) override;
    std::vector<TopLevelWindow> topLevelWindows() override;
    bool bringToForeground(WindowRef window) override;
    WindowRef windowAbove(WindowRef window) override;
    void restoreIfMinimised(WindowRef window) override;
    std::optional<std::wstring> registryString(RegistryRoot root, const std::wstring &subKey,
                                               const std::wstring &valueName) override;
    std::wstring specialFolder(int csidl) override;
    OsVersion osVersion() override;
    DateTime now() override;
    std::wstring dateText(const DateTime &moment, const std::wstring &picture) override;
    std::wstring timeText(const DateTime &moment, const std::wstring &picture) override;
    std::wstring thousandsSeparator() override;
    MessageAnswer showMessage(const std::wstring &text, const std::wstring &caption, MessageIcon icon,
                              MessageButtons buttons) override;
    std::optional<std::wstring> chooseFile(const FileRequest &request) override;
    bool setClipboardText(const std::wstring &text) override;
    void beep() override;
    void showWaitCursor() override;
    void restoreCursor() override;
    void processPendingEvents() override;

private:
    bool remember(bool ok);
    HWND owner() const;
    HWND messageOwner_ = nullptr;
    DWORD lastError_ = 0;
};

} // namespace orvane::ui
