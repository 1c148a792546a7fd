// Helpers shared by the Windows test programs (Win32 tests, end-to-end tests, benchmarks): files, folders, text,
// waiting.
#pragma once

#include <windows.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace orvane::testsupport {

std::wstring ExeFolder();
std::string Utf8(const std::wstring &text);
std::wstring Wide(const std::string &utf8);
// A Linux path ("/work/x") as Wine sees it ("Z:\work\x"); Windows paths pass unchanged.
std::wstring WindowsPath(const std::wstring &path);
// The path an environment variable names, as Wine sees it.
std::wstring EnvironmentPath(const wchar_t *name);

std::string ReadBytes(const std::wstring &path);
bool WriteBytes(const std::wstring &path, const std::string &bytes);
void CopyInto(const std::wstring &file, const std::wstring &folder, const std::wstring &newName = L"");
// A fresh, empty folder for one test: root\name, removed first if it exists.
std::wstring FreshFolder(const std::wstring &root, const std::wstring &name);
void RemoveTree(const std::wstring &folder);

// Polls until the condition holds or the time is up; true when it held.
bool WaitFor(const std::function<bool()> &condition, std::chrono::milliseconds timeout);
// A visible top-level window of the process (of any, for 0), by class and title when given; a title ending in "*"
// matches every title that starts with the rest. Waits up to the given time for one to show; null if none did.
HWND FindProcessWindow(DWORD processId, const wchar_t *className, const wchar_t *title = nullptr,
                       std::chrono::milliseconds wait = std::chrono::milliseconds(0));
// Text of another process's window or control, through WM_GETTEXT.
std::wstring TextOf(HWND window);

// One start seen by the probe: its exact command line and working folder.
struct ProbeRecord {
    std::string commandLine, folder;
};
// The starts in the probe's log, once there are at least this many (or ten seconds have passed).
std::vector<ProbeRecord> ReadProbeLog(const std::wstring &logPath, std::size_t atLeast = 0);

} // namespace orvane::testsupport
