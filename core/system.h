// The logic's only door to the outside world. The Win32 build implements it
// with the real system; the unit tests implement it with a recording fake.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orvane {

// A window handle as a plain number, so the logic never sees <windows.h>.
using WindowRef = std::uintptr_t;

enum class MessageIcon {
    None,
    Critical,
    Exclamation,
    Question,
    Information
};
// YesNoDefaultNo: Yes and No, with No pressed by Enter.
enum class MessageButtons {
    Ok,
    OkCancel,
    YesNo,
    YesNoCancel,
    YesNoDefaultNo
};
enum class MessageAnswer {
    Ok,
    Cancel,
    Yes,
    No
};

struct ShellExecuteRequest {
    WindowRef owner = 0;
    std::wstring verb;
    std::wstring file;
    std::wstring parameters;
    std::wstring directory;
    int showCode = 1;
};

// What the window-list filter needs to know of one top-level window.
struct TopLevelWindow {
    WindowRef handle = 0;
    bool visible = false;
    bool hasParent = false;
    bool hasOwner = false;
    std::uint32_t exStyle = 0;
    std::wstring title; // at most 255 characters, as the platform returned it
};

struct OsVersion {
    int major = 0;
    int minor = 0;
};

enum class RegistryRoot {
    ClassesRoot,
    CurrentUser,
    LocalMachine,
    Users
};

// The platform's file-open or file-save dialog. The filter is written
// "Text|*.txt|All|*.*"; the first filter is selected.
struct FileRequest {
    std::wstring title;
    std::wstring filter;
    std::wstring preset{}; // the file name shown at first
    std::wstring folder{}; // where it starts; empty leaves that to the system
    bool save = false;
    std::wstring defaultExtension{}; // added to a typed name without one, without the dot
};

// A moment in local time.
struct DateTime {
    int year = 0, month = 0, day = 0, dayOfWeek = 0; // dayOfWeek: 0 is Sunday
    int hour = 0, minute = 0, second = 0;
};

struct FileFacts {
    std::uint64_t size = 0;
    DateTime lastChange;
};

// Error numbers as the old runtime reported them for file operations.
// Zero means success.
using FileError = int;

class System {
public:
    virtual ~System() = default;

    // Files and folders. fileExists finds files only; pathExists files and folders.
    virtual bool fileExists(const std::wstring &path) = 0;
    virtual bool pathExists(const std::wstring &path) = 0;
    // The content up to maxBytes, or nothing when the file cannot be opened for reading.
    virtual std::optional<std::string> readFile(const std::wstring &path, std::size_t maxBytes) = 0;
    // Creates the file anew (or truncates it) and writes the bytes.
    virtual FileError writeFile(const std::wstring &path, const std::string &bytes) = 0;
    virtual bool deleteFile(const std::wstring &path) = 0;
    virtual std::wstring currentFolder() = 0;
    // The current drive and folder; false, with nothing changed, when it cannot be.
    virtual bool setCurrentFolder(const std::wstring &folder) = 0;
    // Size and time of last change of an existing file.
    virtual std::optional<FileFacts> fileFacts(const std::wstring &path) = 0;
    // The system's words for the last failed operation; empty when there is none.
    virtual std::wstring lastErrorDescription() = 0;

    // 8-bit text of the files, in the system's ANSI code page.
    virtual std::wstring fromAnsi(const std::string &bytes) = 0;
    virtual std::string toAnsi(const std::wstring &text) = 0;

    // Starting programs. startCommandLine returns the new task's identifier,
    // or nothing when the start failed.
    virtual bool shellExecute(const ShellExecuteRequest &request) = 0;
    virtual std::optional<long long> startCommandLine(const std::wstring &commandLine, int showCode) = 0;
    // The shell's verb on a file or folder, with the platform's result code
    // (above 32 means success).
    virtual long long shellVerb(WindowRef owner, const std::wstring &verb, const std::wstring &file,
                                const std::wstring &directory, int showCode) = 0;

    // Top-level windows in the platform's enumeration order (top of the Z order first).
    virtual std::vector<TopLevelWindow> topLevelWindows() = 0;
    virtual bool bringToForeground(WindowRef window) = 0;
    // The window just above in the Z order; 0 at the top.
    virtual WindowRef windowAbove(WindowRef window) = 0;
    virtual void restoreIfMinimised(WindowRef window) = 0;

    // Registry and well-known folders.
    virtual std::optional<std::wstring> registryString(RegistryRoot root, const std::wstring &subKey,
                                                       const std::wstring &valueName) = 0;
    // The path of a shell special folder by its number (5 = the user's documents),
    // as the platform wrote it into its buffer.
    virtual std::wstring specialFolder(int csidl) = 0;
    virtual OsVersion osVersion() = 0;

    // The clock and the user's locale. A picture is the platform's ("dddd, MMM d
    // yyyy", "HH:mm:ss"); an empty one is the locale's own short date or long time.
    virtual DateTime now() = 0;
    virtual std::wstring dateText(const DateTime &moment, const std::wstring &picture) = 0;
    virtual std::wstring timeText(const DateTime &moment, const std::wstring &picture) = 0;
    virtual std::wstring thousandsSeparator() = 0;

    // User interface services.
    virtual MessageAnswer showMessage(const std::wstring &text, const std::wstring &caption, MessageIcon icon,
                                      MessageButtons buttons) = 0;
    // The chosen file, or nothing when the dialog was cancelled or failed.
    virtual std::optional<std::wstring> chooseFile(const FileRequest &request) = 0;
    virtual bool setClipboardText(const std::wstring &text) = 0;
    virtual void beep() = 0;
    virtual void showWaitCursor() = 0;
    virtual void restoreCursor() = 0;
    virtual void processPendingEvents() = 0;
};

} // namespace orvane
