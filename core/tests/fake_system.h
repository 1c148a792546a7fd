// A recording stand-in for the system: files in memory, scripted answers, a journal of the calls that act on the world.
#pragma once

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "system.h"

// An override of a routine without arguments that only records, in the named log, that it ran.
#define ORVANE_RECORDS(log, routine, name)                                                                             \
    void routine() override {                                                                                          \
        log.push_back(name);                                                                                           \
    }

namespace orvane::testing {

struct ShownMessage {
    std::wstring text, caption;
    MessageIcon icon;
    MessageButtons buttons;
};
struct StartedCommand {
    std::wstring commandLine;
    int showCode;
};

// 0x80..0x9F of Windows-1252, the code page as the system converts it: the five unassigned bytes map to the C1
// controls of the same value, and a character the code page lacks is written as '?', as the system's converter does.
inline constexpr char16_t kHigh1252[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

inline std::wstring DecodeWindows1252(const std::string &bytes) {
    std::wstring text;
    for (unsigned char c : bytes)
        text += (c >= 0x80 && c < 0xA0) ? wchar_t(kHigh1252[c - 0x80]) : wchar_t(c);
    return text;
}

inline std::string EncodeWindows1252(const std::wstring &text) {
    std::string bytes;
    for (wchar_t c : text) { // the table is searched only for what it holds
        const bool direct = c < 0x80 || (c >= 0xA0 && c <= 0xFF);
        const auto high = direct ? 0 : std::ranges::find(kHigh1252, c) - std::begin(kHigh1252);
        bytes += direct ? char(c) : high < 32 ? char(0x80 + high) : '?';
    }
    return bytes;
}

class FakeSystem : public System {
    using S = const std::wstring &;
    template <class T> static T next(std::vector<T> &queue, T otherwise) { // the first scripted answer, consumed
        if (queue.empty())
            return otherwise;
        const T answer = queue.front();
        queue.erase(queue.begin());
        return answer;
    }

public:
    void addFile(S path, const std::string &bytes = "x") {
        files[path] = bytes;
    }

    std::map<std::wstring, std::string> files;
    std::set<std::wstring> folders, lockedFiles; // locked files exist, but cannot be opened
    FileError createError = 0;                   // returned by every writeFile when set
    std::wstring errorDescription, current = L"C:\\Work";
    std::optional<long long> nextTask = 100; // what every start returns
    bool shellAccepts = true;
    std::vector<TopLevelWindow> windows;
    OsVersion version{6, 1};
    std::map<int, std::wstring> specialFolders;           // by their numbers; none when not given
    std::vector<std::optional<std::wstring>> fileAnswers; // consumed in order; cancelled when empty
    std::vector<MessageAnswer> answers;                   // consumed in order; Ok when empty
    DateTime fileTime{2025, 3, 4, 2, 17, 30, 0};

    // What happened, in order. Shell verbs return 42.
    std::vector<std::wstring> journal;
    std::vector<ShownMessage> messages;
    std::vector<StartedCommand> started;
    std::vector<ShellExecuteRequest> shellRequests;
    std::vector<FileRequest> fileRequests;

    bool fileExists(S path) override {
        return files.count(path) > 0;
    }
    bool pathExists(S path) override {
        return fileExists(path) || folders.count(path) > 0;
    }
    std::optional<std::string> readFile(S path, std::size_t max) override {
        return fileExists(path) && !lockedFiles.count(path) ? std::optional(files[path].substr(0, max)) : std::nullopt;
    }
    FileError writeFile(S path, const std::string &bytes) override {
        journal.push_back(L"write " + path);
        if (createError != 0 || lockedFiles.count(path))
            return createError ? createError : 70;
        files[path] = bytes;
        return 0;
    }
    bool deleteFile(S path) override {
        journal.push_back(L"delete " + path);
        return !lockedFiles.count(path) && files.erase(path);
    }
    std::wstring currentFolder() override {
        return current;
    }
    bool setCurrentFolder(S folder) override {
        if (!folders.count(folder))
            return false;
        current = folder;
        return true;
    }
    std::optional<FileFacts> fileFacts(S path) override {
        return fileExists(path) ? std::optional(FileFacts{files[path].size(), fileTime}) : std::nullopt;
    }
    std::wstring lastErrorDescription() override {
        return errorDescription;
    }
    std::vector<std::wstring> filesBelow(S folder) override {
        std::vector<std::wstring> found;
        for (const auto &[path, bytes] : files)
            if (path.starts_with(folder + L"\\"))
                found.push_back(path);
        return found;
    }
    std::wstring fromAnsi(const std::string &bytes) override {
        return DecodeWindows1252(bytes);
    }
    std::string toAnsi(S text) override {
        return EncodeWindows1252(text);
    }
    bool shellExecute(const ShellExecuteRequest &r) override {
        shellRequests.push_back(r);
        return shellAccepts;
    }
    std::optional<long long> startCommandLine(S commandLine, int showCode) override {
        journal.push_back(L"start " + commandLine);
        started.push_back({commandLine, showCode});
        return nextTask;
    }
    long long shellVerb(WindowRef owner, S verb, S file, S directory, int showCode) override {
        journal.push_back(L"verb " + verb + L" " + file + L" in " + directory + L" owner " + std::to_wstring(owner) +
                          L" show " + std::to_wstring(showCode));
        return 42;
    }
    std::vector<TopLevelWindow> topLevelWindows() override {
        return windows;
    }
    bool bringToForeground(WindowRef window) override {
        journal.push_back(L"foreground " + std::to_wstring(window));
        return window != 0;
    }
    WindowRef windowAbove(WindowRef) override {
        return 0;
    }
    void restoreIfMinimised(WindowRef) override {
    }
    std::optional<std::wstring> registryString(RegistryRoot, S, S) override {
        return std::nullopt;
    }
    std::wstring specialFolder(int csidl) override {
        return specialFolders[csidl];
    }
    OsVersion osVersion() override {
        return version;
    }
    DateTime now() override {
        return {2026, 11, 22, 0, 9, 5, 7};
    }
    // The picture and the numbers the locale would have spelt out.
    std::wstring dateText(const DateTime &t, S picture) override {
        return L"[" + picture + L"] " + std::to_wstring(t.year) + L"-" + std::to_wstring(t.month) + L"-" +
               std::to_wstring(t.day) + L" day " + std::to_wstring(t.dayOfWeek);
    }
    std::wstring timeText(const DateTime &t, S picture) override {
        return L"[" + picture + L"] " + std::to_wstring(t.hour) + L":" + std::to_wstring(t.minute) + L":" +
               std::to_wstring(t.second);
    }
    std::wstring thousandsSeparator() override {
        return L",";
    }
    MessageAnswer showMessage(S text, S caption, MessageIcon i, MessageButtons b) override {
        journal.push_back(L"message " + text);
        messages.push_back({text, caption, i, b});
        return next(answers, MessageAnswer::Ok);
    }
    std::optional<std::wstring> chooseFile(const FileRequest &request) override {
        fileRequests.push_back(request);
        return next(fileAnswers, std::optional<std::wstring>());
    }
    bool setClipboardText(S) override {
        return true;
    }
    ORVANE_RECORDS(journal, beep, L"beep")
    ORVANE_RECORDS(journal, showWaitCursor, L"wait")
    ORVANE_RECORDS(journal, restoreCursor, L"cursor")
    ORVANE_RECORDS(journal, processPendingEvents, L"events")
};

} // namespace orvane::testing
