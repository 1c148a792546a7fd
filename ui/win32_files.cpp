#include "win32_system.h"

#include <algorithm>

#include "handles.h"

namespace orvane::ui {

namespace {

// The old runtime's numbers for a file that could not be created or written.
FileError RuntimeFileError(DWORD error) {
    switch (error) {
    case ERROR_FILE_NOT_FOUND:
        return 53;
    case ERROR_PATH_NOT_FOUND:
        return 76;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
        return 70;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return 61;
    default:
        return 75;
    }
}

} // namespace

bool Win32System::remember(bool ok) {
    lastError_ = ok ? 0 : GetLastError();
    return ok;
}

bool Win32System::fileExists(const std::wstring &path) {
    if (path.empty())
        return false;
    // A path without wildcards matches only itself: its attributes answer at a
    // fraction of a search's cost.
    if (path.find_first_of(L"*?") == std::wstring::npos) {
        const DWORD attributes = GetFileAttributesW(path.c_str());
        return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
    }
    WIN32_FIND_DATAW found;
    UniqueFind search(FindFirstFileW(path.c_str(), &found));
    return search && !(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool Win32System::pathExists(const std::wstring &path) {
    return !path.empty() && GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::optional<std::string> Win32System::readFile(const std::wstring &path, std::size_t maxBytes) {
    UniqueFile file(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!remember(bool(file)))
        return std::nullopt;
    LARGE_INTEGER size{};
    if (!remember(GetFileSizeEx(file.get(), &size)))
        return std::nullopt;
    std::string bytes;
    bytes.resize(static_cast<std::size_t>(std::min<ULONGLONG>(static_cast<ULONGLONG>(size.QuadPart), maxBytes)));
    std::size_t done = 0;
    while (done < bytes.size()) {
        const DWORD chunk = static_cast<DWORD>(std::min<std::size_t>(bytes.size() - done, 1u << 30));
        DWORD got = 0;
        if (!remember(ReadFile(file.get(), bytes.data() + done, chunk, &got, nullptr)) || got == 0)
            break;
        done += got;
    }
    bytes.resize(done);
    return bytes;
}

FileError Win32System::writeFile(const std::wstring &path, const std::string &bytes) {
    UniqueFile file(
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!remember(bool(file)))
        return RuntimeFileError(lastError_);
    DWORD written = 0;
    if (!remember(WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr)))
        return RuntimeFileError(lastError_);
    return written == bytes.size() ? 0 : RuntimeFileError(ERROR_DISK_FULL);
}

bool Win32System::deleteFile(const std::wstring &path) {
    return remember(DeleteFileW(path.c_str()));
}

std::wstring Win32System::currentFolder() {
    std::wstring folder(GetCurrentDirectoryW(0, nullptr), L'\0');
    folder.resize(GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data()));
    return folder;
}

bool Win32System::setCurrentFolder(const std::wstring &folder) {
    return !folder.empty() && remember(SetCurrentDirectoryW(folder.c_str()));
}

std::optional<FileFacts> Win32System::fileFacts(const std::wstring &path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!remember(GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data)) ||
        (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
        return std::nullopt;
    SYSTEMTIME universal{}, local{};
    if (!FileTimeToSystemTime(&data.ftLastWriteTime, &universal) ||
        !SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local))
        return std::nullopt;
    return FileFacts{(std::uint64_t{data.nFileSizeHigh} << 32) | data.nFileSizeLow, FromSystemTime(local)};
}

std::wstring Win32System::lastErrorDescription() {
    if (lastError_ == 0)
        return {};
    wchar_t *text = nullptr;
    const DWORD length =
        FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                       nullptr, lastError_, 0, reinterpret_cast<wchar_t *>(&text), 0, nullptr);
    std::wstring description(text ? text : L"", length);
    LocalFree(text);
    while (!description.empty() && (description.back() == L'\n' || description.back() == L'\r'))
        description.pop_back();
    return description;
}
namespace {

// Far more than any Start menu holds; a folder tree beyond it is cut there rather than walked for long.
constexpr std::size_t kMostListedFiles = 20000;
constexpr int kDeepestFolder = 12;

void AddFilesBelow(const std::wstring &folder, int depth, std::vector<std::wstring> &found) {
    WIN32_FIND_DATAW entry;
    const UniqueFind search(
        FindFirstFileExW((folder + L"\\*").c_str(), FindExInfoStandard, &entry, FindExSearchNameMatch, nullptr, 0));
    for (bool more = bool(search); more && found.size() < kMostListedFiles;
         more = FindNextFileW(search.get(), &entry)) {
        const std::wstring name = entry.cFileName;
        if (name == L"." || name == L"..")
            continue;
        // Links to folders are not followed: they can lead round in a circle.
        if (entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT)
            continue;
        if (!(entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
            found.push_back(folder + L"\\" + name);
        else if (depth < kDeepestFolder)
            AddFilesBelow(folder + L"\\" + name, depth + 1, found);
    }
}

} // namespace

std::vector<std::wstring> Win32System::filesBelow(const std::wstring &folder) {
    std::vector<std::wstring> found;
    if (!folder.empty())
        AddFilesBelow(folder.back() == L'\\' ? folder.substr(0, folder.size() - 1) : folder, 0, found);
    return found;
}

} // namespace orvane::ui
