#include "win_support.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <thread>

namespace orvane::testsupport {

std::wstring ExeFolder() {
    wchar_t path[MAX_PATH * 4];
    const std::wstring full(path, GetModuleFileNameW(nullptr, path, MAX_PATH * 4));
    return full.substr(0, full.find_last_of(L'\\'));
}

std::string Utf8(const std::wstring &text) {
    std::string bytes(WideCharToMultiByte(CP_UTF8, 0, text.data(), int(text.size()), nullptr, 0, nullptr, nullptr),
                      '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), int(text.size()), bytes.data(), int(bytes.size()), nullptr, nullptr);
    return bytes;
}

std::wstring Wide(const std::string &utf8) {
    std::wstring text(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), int(utf8.size()), nullptr, 0), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), int(utf8.size()), text.data(), int(text.size()));
    return text;
}

std::wstring WindowsPath(const std::wstring &path) {
    std::wstring converted = path.starts_with(L'/') ? L"Z:" + path : path;
    if (path.starts_with(L'/'))
        std::ranges::replace(converted, L'/', L'\\');
    return converted;
}

std::wstring EnvironmentPath(const wchar_t *name) {
    wchar_t value[4096];
    const DWORD length = GetEnvironmentVariableW(name, value, 4096);
    return WindowsPath(std::wstring(value, length < 4096 ? length : 0));
}

std::string ReadBytes(const std::wstring &path) {
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool WriteBytes(const std::wstring &path, const std::string &bytes) {
    std::ofstream file(std::filesystem::path(path), std::ios::binary);
    return file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush().good();
}

void CopyInto(const std::wstring &file, const std::wstring &folder, const std::wstring &newName) {
    const std::wstring name = newName.empty() ? file.substr(file.find_last_of(L'\\') + 1) : newName;
    CopyFileW(file.c_str(), (folder + L"\\" + name).c_str(), FALSE);
}

void RemoveTree(const std::wstring &folder) {
    WIN32_FIND_DATAW found;
    HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &found);
    for (bool more = search != INVALID_HANDLE_VALUE; more; more = FindNextFileW(search, &found)) {
        const std::wstring name = found.cFileName, path = folder + L"\\" + name;
        if (name == L"." || name == L"..")
            continue;
        if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
            RemoveTree(path);
        else if (SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL))
            DeleteFileW(path.c_str()); // read-only too
    }
    if (search != INVALID_HANDLE_VALUE)
        FindClose(search);
    RemoveDirectoryW(folder.c_str());
}

std::wstring FreshFolder(const std::wstring &root, const std::wstring &name) {
    const std::wstring folder = root + L"\\" + name;
    std::error_code error;
    RemoveTree(folder);
    std::filesystem::create_directories(folder, error);
    return folder;
}

bool WaitFor(const std::function<bool()> &condition, std::chrono::milliseconds timeout) {
    for (const auto end = std::chrono::steady_clock::now() + timeout; !condition();) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return true;
}

std::wstring TextOf(HWND window) {
    wchar_t text[4096] = {};
    DWORD_PTR result = 0;
    SendMessageTimeoutW(window, WM_GETTEXT, 4096, LPARAM(text), SMTO_ABORTIFHUNG, 2000, &result);
    return text;
}

HWND FindProcessWindow(DWORD processId, const wchar_t *className, const wchar_t *title,
                       std::chrono::milliseconds wait) {
    const std::wstring_view wanted = title ? title : L"";
    const auto matches = [&](const std::wstring &text) {
        return wanted.ends_with(L'*') ? text.starts_with(wanted.substr(0, wanted.size() - 1)) : text == wanted;
    };
    HWND found = nullptr;
    WaitFor(
        [&] {
            for (found = nullptr; (found = FindWindowExW(nullptr, found, className, nullptr)) != nullptr;) {
                DWORD owner = 0;
                GetWindowThreadProcessId(found, &owner);
                if ((owner == processId || !processId) && IsWindowVisible(found) && (!title || matches(TextOf(found))))
                    return true;
            }
            return false;
        },
        wait);
    return found;
}

std::vector<ProbeRecord> ReadProbeLog(const std::wstring &logPath, std::size_t atLeast) {
    // A line per start: the command line, a tab, the working folder; one still being written has no line end.
    std::vector<ProbeRecord> records;
    WaitFor(
        [&] {
            const std::string log = ReadBytes(logPath);
            records.clear();
            for (std::size_t at = 0, end; (end = log.find('\n', at)) != std::string::npos; at = end + 1) {
                const std::size_t tab = log.rfind('\t', end);
                if (tab != std::string::npos && tab >= at)
                    records.push_back({log.substr(at, tab - at), log.substr(tab + 1, end - tab - 1)});
            }
            return records.size() >= atLeast;
        },
        std::chrono::seconds(10));
    return records;
}

} // namespace orvane::testsupport
