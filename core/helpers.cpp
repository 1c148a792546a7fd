#include "helpers.h"

#include "app.h"
#include "conversions.h"

namespace orvane {

WholeFile ReadWholeFile(Files &files, const std::wstring &path) {
    if (const auto facts = files.fileFacts(path); facts && facts->size > kMostFileBytes)
        return {std::nullopt, facts->size};
    // One byte more than the most tells a file that grew after its size was asked.
    auto bytes = files.readFile(path, kMostFileBytes + 1);
    if (!bytes || bytes->size() <= kMostFileBytes)
        return {std::move(bytes)};
    const auto facts = files.fileFacts(path);
    return {std::nullopt, facts ? facts->size : bytes->size()};
}

void DeleteFileIfPresent(Files &files, const std::wstring &path) {
    if (!path.empty() && files.fileExists(path))
        files.deleteFile(path);
}

void EnsureTrailingBackslash(std::wstring &path) {
    const std::wstring trimmed = TrimBlanks(path);
    if (!trimmed.empty() && (trimmed.back() == L'\\' || trimmed.back() == L'/'))
        return;
    path = TrimTrailingBlanks(path) + L"\\";
}

std::wstring ParentFolder(const std::wstring &path) {
    const auto slash = path.rfind(L'\\');
    return slash == std::wstring::npos ? std::wstring() : path.substr(0, slash);
}

std::wstring CutAtNul(const std::wstring &text) {
    return text.substr(0, text.find(L'\0'));
}

std::wstring BackslashFileName(const std::wstring &path) {
    const auto slash = path.rfind(L'\\');
    return slash == std::wstring::npos ? L"\\" + path : path.substr(slash);
}

std::wstring LeftOf(const std::wstring &text, std::size_t count) {
    return text.substr(0, count);
}

std::wstring MidFrom(const std::wstring &text, std::size_t position) {
    return position - 1 < text.size() ? text.substr(position - 1) : std::wstring();
}

bool Contains(const std::wstring &text, const std::wstring &part) {
    return text.find(part) != std::wstring::npos;
}

std::wstring OsVersionName(int major, int minor) {
    if (major >= 6 && minor >= 1)
        return L"Win 7 + later";
    if (major == 6 && minor == 0)
        return L"Vista";
    if (major == 5)
        return L"Win XP";
    if (major == 4)
        return L"Win 2000";
    return {};
}

void DetectOsVersion(App &app) {
    const OsVersion version = app.shell.osVersion();
    app.OsVersionCode = static_cast<std::int16_t>(version.major);
    app.OsMinorVersion = static_cast<std::int16_t>(version.minor);
    if (auto name = OsVersionName(version.major, version.minor); !name.empty())
        app.OsVersionName = name;
}

void FindSystemFolders(App &app) {
    constexpr int kPersonalFolder = 5;
    app.ProgramFilesFolder = app.shell
                                 .registryString(RegistryRoot::LocalMachine,
                                                 L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion", L"ProgramFilesDir")
                                 .value_or(L"");
    if (app.ProgramFilesFolder.empty() && app.files.pathExists(L"C:\\"))
        app.ProgramFilesFolder = L"C:\\";
    EnsureTrailingBackslash(app.ProgramFilesFolder);
    app.DocumentsFolder = CutAtNul(app.shell.specialFolder(kPersonalFolder));
    EnsureTrailingBackslash(app.DocumentsFolder);
}

} // namespace orvane
