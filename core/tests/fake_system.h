// A recording stand-in for the system: a file system in memory, scripted
// answers, and a journal of every call that changes the world.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "system.h"

namespace orvane::testing {

struct ShownMessage {
    std::wstring text;
    std::wstring caption;
    MessageIcon icon;
    MessageButtons buttons;
};

struct StartedCommand {
    std::wstring commandLine;
    int showCode;
    std::wstring currentFolder;
};

class FakeSystem : public System {
public:
    // Test set-up.
    void addFile(const std::wstring& path, const std::string& bytes = "x") { files[path] = bytes; }
    void addFolder(const std::wstring& path) { folders.insert(path); }

    std::map<std::wstring, std::string> files;
    std::set<std::wstring> folders;
    std::set<std::wstring> lockedFiles;   // exist, but cannot be opened
    FileError createError = 0;            // returned by every writeFile when set
    std::wstring errorDescription;
    std::wstring current = L"C:\\Work";
    bool startsSucceed = true;
    long long nextTaskId = 100;
    bool shellAccepts = true;
    long long shellVerbResult = 42;
    std::vector<TopLevelWindow> windows;
    std::map<WindowRef, WindowRef> zOrderAbove;
    std::map<std::wstring, std::wstring> registry;  // "subkey\\value" under HKLM
    std::map<int, std::wstring> specialFolders;
    OsVersion version{6, 1};
    std::vector<MessageAnswer> answers;  // consumed in order; Ok when empty
    std::vector<std::optional<std::wstring>> fileAnswers;  // consumed in order; cancelled when empty

    // What happened, in order.
    std::vector<std::wstring> journal;
    std::vector<ShownMessage> messages;
    std::vector<StartedCommand> started;
    std::vector<ShellExecuteRequest> shellRequests;
    std::vector<WindowRef> foregrounded;
    std::vector<FileRequest> fileRequests;

    // System.
    bool fileExists(const std::wstring& path) override;
    bool pathExists(const std::wstring& path) override;
    std::optional<std::string> readFile(const std::wstring& path, std::size_t maxBytes) override;
    FileError writeFile(const std::wstring& path, const std::string& bytes) override;
    bool deleteFile(const std::wstring& path) override;
    std::wstring currentFolder() override { return current; }
    std::wstring lastErrorDescription() override { return errorDescription; }
    std::wstring fromAnsi(const std::string& bytes) override;
    std::string toAnsi(const std::wstring& text) override;
    bool shellExecute(const ShellExecuteRequest& request) override;
    std::optional<long long> startCommandLine(const std::wstring& commandLine, int showCode) override;
    long long shellVerb(WindowRef owner, const std::wstring& verb, const std::wstring& file,
                        const std::wstring& directory, int showCode) override;
    std::vector<TopLevelWindow> topLevelWindows() override { return windows; }
    bool bringToForeground(WindowRef window) override;
    WindowRef windowAbove(WindowRef window) override;
    void restoreIfMinimised(WindowRef window) override;
    std::optional<std::wstring> registryString(RegistryRoot root, const std::wstring& subKey,
                                               const std::wstring& valueName) override;
    std::wstring specialFolder(int csidl) override { return specialFolders[csidl]; }
    OsVersion osVersion() override { return version; }
    MessageAnswer showMessage(const std::wstring& text, const std::wstring& caption, MessageIcon icon,
                              MessageButtons buttons) override;
    std::optional<std::wstring> chooseFile(const FileRequest& request) override;
    void beep() override { journal.push_back(L"beep"); }
    void restoreCursor() override { journal.push_back(L"cursor"); }
    void processPendingEvents() override { journal.push_back(L"events"); }
};

// The Windows-1252 code page, as the system converts it.
std::wstring DecodeWindows1252(const std::string& bytes);
std::string EncodeWindows1252(const std::wstring& text);

}  // namespace orvane::testing
