#include "fake_system.h"

namespace orvane::testing {

namespace {

// 0x80..0x9F of Windows-1252; the five unassigned bytes map to the C1
// controls of the same value, as the system's converter does.
constexpr char16_t kHighControls[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

std::wstring Num(long long value) { return std::to_wstring(value); }

}  // namespace

std::wstring DecodeWindows1252(const std::string& bytes) {
    std::wstring text;
    text.reserve(bytes.size());
    for (unsigned char c : bytes)
        text += (c >= 0x80 && c < 0xA0) ? static_cast<wchar_t>(kHighControls[c - 0x80]) : static_cast<wchar_t>(c);
    return text;
}

std::string EncodeWindows1252(const std::wstring& text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (wchar_t c : text) {
        if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
            bytes += static_cast<char>(c);
            continue;
        }
        char mapped = '?';  // what the system writes for a character the code page lacks
        for (int i = 0; i < 32; ++i)
            if (static_cast<wchar_t>(kHighControls[i]) == c) mapped = static_cast<char>(0x80 + i);
        bytes += mapped;
    }
    return bytes;
}

bool FakeSystem::fileExists(const std::wstring& path) { return files.count(path) > 0; }

bool FakeSystem::pathExists(const std::wstring& path) { return fileExists(path) || folders.count(path) > 0; }

std::optional<std::string> FakeSystem::readFile(const std::wstring& path, std::size_t maxBytes) {
    if (!fileExists(path) || lockedFiles.count(path)) return std::nullopt;
    return files[path].substr(0, maxBytes);
}

FileError FakeSystem::writeFile(const std::wstring& path, const std::string& bytes) {
    journal.push_back(L"write " + path);
    if (createError != 0) return createError;
    if (lockedFiles.count(path)) return 70;
    files[path] = bytes;
    return 0;
}

bool FakeSystem::deleteFile(const std::wstring& path) {
    journal.push_back(L"delete " + path);
    if (lockedFiles.count(path)) return false;
    return files.erase(path) > 0;
}

std::wstring FakeSystem::fromAnsi(const std::string& bytes) { return DecodeWindows1252(bytes); }

std::string FakeSystem::toAnsi(const std::wstring& text) { return EncodeWindows1252(text); }

bool FakeSystem::shellExecute(const ShellExecuteRequest& request) {
    journal.push_back(L"shellExecute " + request.verb + L" " + request.file);
    shellRequests.push_back(request);
    return shellAccepts;
}

std::optional<long long> FakeSystem::startCommandLine(const std::wstring& commandLine, int showCode) {
    journal.push_back(L"start " + commandLine);
    started.push_back({commandLine, showCode, current});
    if (!startsSucceed) return std::nullopt;
    return nextTaskId;
}

long long FakeSystem::shellVerb(WindowRef owner, const std::wstring& verb, const std::wstring& file,
                                const std::wstring& directory, int showCode) {
    journal.push_back(L"verb " + verb + L" " + file + L" in " + directory + L" owner " + Num(owner) + L" show " +
                      Num(showCode));
    return shellVerbResult;
}

bool FakeSystem::bringToForeground(WindowRef window) {
    journal.push_back(L"foreground " + Num(window));
    foregrounded.push_back(window);
    return window != 0;
}

WindowRef FakeSystem::windowAbove(WindowRef window) {
    auto it = zOrderAbove.find(window);
    return it == zOrderAbove.end() ? 0 : it->second;
}

void FakeSystem::restoreIfMinimised(WindowRef window) { journal.push_back(L"restore " + Num(window)); }

std::optional<std::wstring> FakeSystem::registryString(RegistryRoot root, const std::wstring& subKey,
                                                       const std::wstring& valueName) {
    if (root != RegistryRoot::LocalMachine) return std::nullopt;
    auto it = registry.find(subKey + L"\\" + valueName);
    if (it == registry.end()) return std::nullopt;
    return it->second;
}

MessageAnswer FakeSystem::showMessage(const std::wstring& text, const std::wstring& caption, MessageIcon icon,
                                      MessageButtons buttons) {
    journal.push_back(L"message " + text);
    messages.push_back({text, caption, icon, buttons});
    if (answers.empty()) return MessageAnswer::Ok;
    const MessageAnswer answer = answers.front();
    answers.erase(answers.begin());
    return answer;
}

std::optional<std::wstring> FakeSystem::chooseFile(const FileRequest& request) {
    fileRequests.push_back(request);
    if (fileAnswers.empty()) return std::nullopt;
    auto answer = fileAnswers.front();
    fileAnswers.erase(fileAnswers.begin());
    return answer;
}

}  // namespace orvane::testing
