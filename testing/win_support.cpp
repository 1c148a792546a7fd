#include "win_support.h"

#include <thread>

namespace orvane::testsupport {

std::wstring ExeFolder() {
    wchar_t path[MAX_PATH * 4];
    const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH * 4);
    std::wstring full(path, length);
    return full.substr(0, full.find_last_of(L'\\'));
}

std::string Utf8(const std::wstring& text) {
    if (text.empty()) return {};
    const int size = static_cast<int>(text.size());
    std::string bytes(WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
    return bytes;
}

std::wstring Wide(const std::string& utf8) {
    if (utf8.empty()) return {};
    const int size = static_cast<int>(utf8.size());
    std::wstring text(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, text.data(), static_cast<int>(text.size()));
    return text;
}

std::wstring WindowsPath(const std::wstring& path) {
    if (path.empty() || path[0] != L'/') return path;
    std::wstring converted = L"Z:" + path;
    for (wchar_t& c : converted)
        if (c == L'/') c = L'\\';
    return converted;
}

std::wstring EnvironmentValue(const wchar_t* name) {
    wchar_t value[4096];
    const DWORD length = GetEnvironmentVariableW(name, value, 4096);
    return length && length < 4096 ? std::wstring(value, length) : std::wstring();
}

std::string ReadBytes(const std::wstring& path) {
    HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                              nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return {};
    std::string bytes;
    char buffer[65536];
    DWORD got = 0;
    while (ReadFile(file, buffer, sizeof buffer, &got, nullptr) && got) bytes.append(buffer, got);
    CloseHandle(file);
    return bytes;
}

bool WriteBytes(const std::wstring& path, const std::string& bytes) {
    HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    DWORD written = 0;
    const bool ok = WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
                    written == bytes.size();
    CloseHandle(file);
    return ok;
}

bool FileExists(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

void CopyInto(const std::wstring& file, const std::wstring& folder, const std::wstring& newName) {
    const std::wstring name = newName.empty() ? file.substr(file.find_last_of(L'\\') + 1) : newName;
    CopyFileW(file.c_str(), (folder + L"\\" + name).c_str(), FALSE);
}

void RemoveTree(const std::wstring& folder) {
    WIN32_FIND_DATAW found;
    HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &found);
    if (search != INVALID_HANDLE_VALUE) {
        do {
            const std::wstring name = found.cFileName;
            if (name == L"." || name == L"..") continue;
            const std::wstring path = folder + L"\\" + name;
            if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) RemoveTree(path);
            else {
                SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
                DeleteFileW(path.c_str());
            }
        } while (FindNextFileW(search, &found));
        FindClose(search);
    }
    RemoveDirectoryW(folder.c_str());
}

std::wstring FreshFolder(const std::wstring& root, const std::wstring& name) {
    CreateDirectoryW(root.c_str(), nullptr);
    const std::wstring folder = root + L"\\" + name;
    RemoveTree(folder);
    CreateDirectoryW(folder.c_str(), nullptr);
    return folder;
}

bool WaitFor(const std::function<bool()>& condition, std::chrono::milliseconds timeout) {
    const auto end = std::chrono::steady_clock::now() + timeout;
    for (;;) {
        if (condition()) return true;
        if (std::chrono::steady_clock::now() > end) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
}

std::wstring ClassOf(HWND window) {
    wchar_t name[256] = {};
    GetClassNameW(window, name, 256);
    return name;
}

std::wstring TextOf(HWND window) {
    wchar_t text[4096] = {};
    DWORD_PTR result = 0;
    SendMessageTimeoutW(window, WM_GETTEXT, 4096, reinterpret_cast<LPARAM>(text), SMTO_ABORTIFHUNG, 2000, &result);
    return text;
}

std::vector<HWND> ProcessWindows(DWORD processId, const wchar_t* className) {
    struct Search {
        DWORD processId;
        const wchar_t* className;
        std::vector<HWND> found;
    } search{processId, className, {}};
    EnumWindows(
        [](HWND window, LPARAM context) -> BOOL {
            auto& s = *reinterpret_cast<Search*>(context);
            DWORD owner = 0;
            GetWindowThreadProcessId(window, &owner);
            if (owner == s.processId && IsWindowVisible(window) && ClassOf(window) == s.className)
                s.found.push_back(window);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND FindProcessWindow(DWORD processId, const wchar_t* className, const wchar_t* title) {
    for (HWND window : ProcessWindows(processId, className))
        if (!title || TextOf(window) == title) return window;
    return nullptr;
}

std::vector<ProbeRecord> ReadProbeLog(const std::wstring& logPath) {
    // Records: "CMDLINE=...\nCWD=...\nEND\n", UTF-8.
    const std::string log = ReadBytes(logPath);
    std::vector<ProbeRecord> records;
    std::size_t at = 0;
    for (;;) {
        const std::size_t end = log.find("\nEND\n", at);
        if (end == std::string::npos) break;
        const std::string record = log.substr(at, end - at);
        const std::size_t folder = record.find("\nCWD=");
        if (record.rfind("CMDLINE=", 0) == 0 && folder != std::string::npos)
            records.push_back({record.substr(8, folder - 8), record.substr(folder + 5)});
        at = end + 5;
    }
    return records;
}

}  // namespace orvane::testsupport
