#include "win32_system.h"

#include <shellapi.h>
#include <shlobj.h>

#include <cstring>
#include <vector>

#include "handles.h"

namespace orvane::ui {

namespace {

HKEY RootKey(RegistryRoot root) {
    switch (root) {
    case RegistryRoot::ClassesRoot:
        return HKEY_CLASSES_ROOT;
    case RegistryRoot::CurrentUser:
        return HKEY_CURRENT_USER;
    case RegistryRoot::LocalMachine:
        return HKEY_LOCAL_MACHINE;
    case RegistryRoot::Users:
        return HKEY_USERS;
    }
    return HKEY_LOCAL_MACHINE;
}

std::optional<std::wstring> FindExecutable(const std::wstring &name) {
    wchar_t found[MAX_PATH * 4];
    const DWORD length = SearchPathW(nullptr, name.c_str(), L".exe", MAX_PATH * 4, found, nullptr);
    if (length == 0 || length >= MAX_PATH * 4)
        return std::nullopt;
    const DWORD attributes = GetFileAttributesW(found);
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY))
        return std::nullopt;
    return std::wstring(found, length);
}

// The program a command line starts, found the way the system reads an
// unquoted path with blanks: ever longer prefixes up to a blank. Naming it
// separately keeps the command line exactly as built; some systems quote the
// program path in it otherwise.
std::optional<std::wstring> ProgramOfCommandLine(const std::wstring &commandLine) {
    const std::size_t start = commandLine.find_first_not_of(L" \t");
    if (start == std::wstring::npos)
        return std::nullopt;
    if (commandLine[start] == L'"') {
        const std::size_t close = commandLine.find(L'"', start + 1);
        return FindExecutable(commandLine.substr(start + 1, close == std::wstring::npos ? close : close - start - 1));
    }
    for (std::size_t blank = start;;) {
        blank = commandLine.find(L' ', blank + 1);
        if (auto found = FindExecutable(commandLine.substr(start, blank - start)))
            return found;
        if (blank == std::wstring::npos)
            return std::nullopt;
    }
}

SYSTEMTIME ToSystemTime(const DateTime &t) {
    const auto w = [](int value) {
        return static_cast<WORD>(value);
    };
    return {w(t.year), w(t.month), w(t.dayOfWeek), w(t.day), w(t.hour), w(t.minute), w(t.second), 0};
}

} // namespace

DateTime Win32System::now() {
    SYSTEMTIME local{};
    GetLocalTime(&local);
    return FromSystemTime(local);
}

std::wstring Win32System::dateText(const DateTime &moment, const std::wstring &picture) {
    const SYSTEMTIME t = ToSystemTime(moment);
    wchar_t text[128] = {};
    const int length =
        GetDateFormatW(LOCALE_USER_DEFAULT, picture.empty() ? DATE_SHORTDATE : 0, &t, OrNull(picture), text, 128);
    return std::wstring(text, length > 0 ? static_cast<std::size_t>(length - 1) : 0);
}

std::wstring Win32System::timeText(const DateTime &moment, const std::wstring &picture) {
    const SYSTEMTIME t = ToSystemTime(moment);
    wchar_t text[128] = {};
    const int length = GetTimeFormatW(LOCALE_USER_DEFAULT, 0, &t, OrNull(picture), text, 128);
    return std::wstring(text, length > 0 ? static_cast<std::size_t>(length - 1) : 0);
}

std::wstring Win32System::thousandsSeparator() {
    wchar_t separator[8] = {};
    const int length = GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, separator, 8);
    return std::wstring(separator, length > 0 ? static_cast<std::size_t>(length - 1) : 0);
}

bool Win32System::setClipboardText(const std::wstring &text) {
    const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (!memory)
        return false;
    if (void *target = GlobalLock(memory)) {
        std::memcpy(target, text.c_str(), bytes);
        GlobalUnlock(memory);
    }
    if (!OpenClipboard(owner())) {
        GlobalFree(memory);
        return false;
    }
    EmptyClipboard();
    const bool set = SetClipboardData(CF_UNICODETEXT, memory) != nullptr;
    CloseClipboard();
    if (!set)
        GlobalFree(memory); // the clipboard owns it only when taken
    return set;
}

std::wstring Win32System::fromAnsi(const std::string &bytes) {
    if (bytes.empty())
        return {};
    const int size = static_cast<int>(bytes.size());
    std::wstring text(MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, nullptr, 0), L'\0');
    MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, text.data(), static_cast<int>(text.size()));
    return text;
}

std::string Win32System::toAnsi(const std::wstring &text) {
    if (text.empty())
        return {};
    const int size = static_cast<int>(text.size());
    // No best fit: a character the code page lacks becomes "?", never a look-alike
    // that would name another file.
    constexpr DWORD kFlags = WC_NO_BEST_FIT_CHARS;
    std::string bytes(WideCharToMultiByte(CP_ACP, kFlags, text.data(), size, nullptr, 0, nullptr, nullptr), '\0');
    WideCharToMultiByte(CP_ACP, kFlags, text.data(), size, bytes.data(), static_cast<int>(bytes.size()), nullptr,
                        nullptr);
    return bytes;
}

bool Win32System::shellExecute(const ShellExecuteRequest &request) {
    SHELLEXECUTEINFOW info{};
    info.cbSize = sizeof info;
    info.hwnd = ToHwnd(request.owner);
    info.lpVerb = request.verb.c_str();
    info.lpFile = request.file.c_str();
    info.lpParameters = OrNull(request.parameters);
    info.lpDirectory = OrNull(request.directory);
    info.nShow = request.showCode;
    return remember(ShellExecuteExW(&info));
}

std::optional<long long> Win32System::startCommandLine(const std::wstring &commandLine, int showCode) {
    std::wstring writable = commandLine; // CreateProcessW may write into it
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = static_cast<WORD>(showCode);
    PROCESS_INFORMATION process{};
    const auto program = ProgramOfCommandLine(commandLine);
    if (!remember(CreateProcessW(program ? program->c_str() : nullptr, writable.data(), nullptr, nullptr, FALSE, 0,
                                 nullptr, nullptr, &startup, &process)))
        return std::nullopt;
    UniqueHandle processHandle(process.hProcess), threadHandle(process.hThread);
    return process.dwProcessId;
}

long long Win32System::shellVerb(WindowRef owner, const std::wstring &verb, const std::wstring &file,
                                 const std::wstring &directory, int showCode) {
    const auto result = reinterpret_cast<INT_PTR>(
        ShellExecuteW(ToHwnd(owner), verb.c_str(), file.c_str(), nullptr, OrNull(directory), showCode));
    remember(result > 32);
    return result;
}

namespace {

// A named callback, not a lambda: on 32-bit Windows EnumWindows calls it
// with the stdcall convention, which a lambda cannot take.
BOOL CALLBACK AddTopLevelWindow(HWND handle, LPARAM context) {
    TopLevelWindow window;
    window.handle = ToRef(handle);
    window.visible = IsWindowVisible(handle);
    window.hasParent = GetParent(handle) != nullptr;
    window.hasOwner = GetWindow(handle, GW_OWNER) != nullptr;
    window.exStyle = static_cast<std::uint32_t>(GetWindowLongW(handle, GWL_EXSTYLE));
    wchar_t title[256];
    window.title.assign(title, static_cast<std::size_t>(GetWindowTextW(handle, title, 256)));
    reinterpret_cast<std::vector<TopLevelWindow> *>(context)->push_back(std::move(window));
    return TRUE;
}

} // namespace

std::vector<TopLevelWindow> Win32System::topLevelWindows() {
    std::vector<TopLevelWindow> windows;
    EnumWindows(AddTopLevelWindow, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

bool Win32System::bringToForeground(WindowRef window) {
    return SetForegroundWindow(ToHwnd(window));
}

WindowRef Win32System::windowAbove(WindowRef window) {
    return window ? ToRef(GetWindow(ToHwnd(window), GW_HWNDPREV)) : 0;
}

void Win32System::restoreIfMinimised(WindowRef window) {
    if (window && IsIconic(ToHwnd(window)))
        OpenIcon(ToHwnd(window));
}

std::optional<std::wstring> Win32System::registryString(RegistryRoot root, const std::wstring &subKey,
                                                        const std::wstring &valueName) {
    HKEY opened = nullptr;
    if (RegOpenKeyExW(RootKey(root), subKey.c_str(), 0, KEY_QUERY_VALUE, &opened) != ERROR_SUCCESS)
        return std::nullopt;
    UniqueKey key(opened);
    DWORD type = 0, size = 0;
    if (RegQueryValueExW(key.get(), valueName.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS ||
        type != REG_SZ)
        return std::nullopt;
    std::wstring value(size / sizeof(wchar_t) + 1, L'\0');
    DWORD bytes = static_cast<DWORD>(value.size() * sizeof(wchar_t));
    if (RegQueryValueExW(key.get(), valueName.c_str(), nullptr, &type, reinterpret_cast<BYTE *>(value.data()),
                         &bytes) != ERROR_SUCCESS)
        return std::nullopt;
    return value.substr(0, value.find(L'\0'));
}

std::wstring Win32System::specialFolder(int csidl) {
    PIDLIST_ABSOLUTE list = nullptr;
    if (FAILED(SHGetSpecialFolderLocation(nullptr, csidl, &list)))
        return {};
    UniqueItemList owned(list);
    std::wstring path(MAX_PATH, L'\0');
    if (!SHGetPathFromIDListW(owned.get(), path.data()))
        return {};
    return path;
}

OsVersion Win32System::osVersion() {
    OSVERSIONINFOW info{};
    info.dwOSVersionInfoSize = sizeof info;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    if (!GetVersionExW(&info))
        return {};
#pragma GCC diagnostic pop
    return {static_cast<int>(info.dwMajorVersion), static_cast<int>(info.dwMinorVersion)};
}

} // namespace orvane::ui
