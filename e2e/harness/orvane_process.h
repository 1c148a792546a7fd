// Drives orvane.exe from another process the way a user would: start it in a
// program folder, find its windows, answer its message boxes, close it.
#pragma once

#include <windows.h>

#include <chrono>
#include <optional>
#include <string>

namespace orvane::e2e {

using namespace std::chrono_literals;

inline constexpr wchar_t kMainWindowClass[] = L"Orvane.Main";
inline constexpr wchar_t kDialogClass[] = L"#32770";

// A fresh program folder holding a copy of orvane.exe.
class ProgramFolder {
public:
    explicit ProgramFolder(const std::wstring& name);
    const std::wstring& path() const { return path_; }
    std::wstring settingsFile() const { return path_ + L"\\Orvane.ini"; }

private:
    std::wstring path_;
};

// The program started with its folder as the current folder; ended when a failed test left it running.
class OrvaneProcess {
public:
    explicit OrvaneProcess(const ProgramFolder& folder);
    OrvaneProcess(const OrvaneProcess&) = delete;
    OrvaneProcess& operator=(const OrvaneProcess&) = delete;
    ~OrvaneProcess();

    DWORD id() const { return id_; }
    // Its visible bar or message box; a wait of 0 only looks.
    HWND waitForMainWindow(std::chrono::milliseconds timeout = 15s) const;
    HWND waitForDialog(std::chrono::milliseconds timeout = 15s) const;
    // Asks the bar to close, as its close box does.
    void close() const;
    // The exit code once the process has ended.
    std::optional<DWORD> waitForExit(std::chrono::milliseconds timeout = 15s) const;

private:
    HANDLE process_ = nullptr;
    DWORD id_ = 0;
};

// The text of a message box, as its static text control holds it.
std::wstring MessageBoxText(HWND box);
// Presses a dialog's button, as a click does.
void PressButton(HWND dialog, int buttonId);

}  // namespace orvane::e2e
