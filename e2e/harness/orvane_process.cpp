#include "orvane_process.h"

#include <commctrl.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <sstream>

#include "win_support.h"

namespace orvane::e2e {

using namespace testsupport;

ProgramFolder::ProgramFolder(const std::wstring &name) : path_(EnvironmentPath(L"ORVANE_PROGRAM_FOLDER")) {
    if (!path_.empty())
        return; // a folder laid out elsewhere, the unzipped release, used as it stands
    path_ = FreshFolder(EnvironmentPath(L"ORVANE_TEST_ROOT"), name);
    CopyInto(EnvironmentPath(L"ORVANE_EXE"), path_);
    // The built skins: the default one, and others (a dark one among them) to choose; and the hand cursor.
    std::error_code error;
    for (const auto &entry : std::filesystem::directory_iterator(EnvironmentPath(L"ORVANE_SKINS"), error))
        if (const std::wstring file = entry.path().filename().wstring();
            file.starts_with(L"Skin_") || file == L"HandOpen.ico")
            CopyInto(entry.path().wstring(), path_);
}

OrvaneProcess::OrvaneProcess(const ProgramFolder &folder) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION info{};
    const std::wstring exe = folder.path() + L"\\orvane.exe";
    std::wstring commandLine = L"\"" + exe + L"\"";
    if (CreateProcessW(exe.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, folder.path().c_str(),
                       &startup, &info)) {
        CloseHandle(info.hThread);
        process_ = info.hProcess;
        id_ = info.dwProcessId;
    }
}

OrvaneProcess::~OrvaneProcess() {
    if (process_ && WaitForSingleObject(process_, 0) == WAIT_TIMEOUT)
        TerminateProcess(process_, 99);
    if (process_)
        CloseHandle(process_);
}

HWND OrvaneProcess::waitForMainWindow(std::chrono::milliseconds timeout) const {
    HWND bar = nullptr;
    WaitFor(
        [&] {
            return (bar = FindProcessWindow(id_, kMainWindowClass)) || waitForExit(0ms);
        },
        timeout);
    if (!bar && timeout > 0ms) // say why, for the test's log
        std::fprintf(stderr, "no bar from process %lu: it %s; message: \"%s\"\n", id_,
                     waitForExit(0ms) ? "has ended" : "still runs", Utf8(MessageBoxText(waitForDialog(0ms))).c_str());
    return bar;
}

HWND OrvaneProcess::waitForDialog(std::chrono::milliseconds timeout) const {
    return WaitForDialogTitled(id_, L"*", timeout);
}

void OrvaneProcess::close() const {
    if (HWND bar = waitForMainWindow(0ms))
        PostMessageW(bar, WM_CLOSE, 0, 0);
}

std::optional<DWORD> OrvaneProcess::waitForExit(std::chrono::milliseconds timeout) const {
    DWORD code = 0;
    const bool ended = process_ && WaitForSingleObject(process_, static_cast<DWORD>(timeout.count())) == WAIT_OBJECT_0;
    return ended && GetExitCodeProcess(process_, &code) ? std::optional(code) : std::nullopt;
}

std::wstring MessageBoxText(HWND box) {
    return ControlText(box, 0xFFFF);
} // the box's static text

void PressButton(HWND dialog, int buttonId) {
    PostMessageW(GetDlgItem(dialog, buttonId), BM_CLICK, 0, 0);
}

bool Gone(HWND window, std::chrono::milliseconds timeout) {
    return WaitFor(
        [&] {
            return !IsWindow(window);
        },
        timeout);
}

bool EscapeFrom(HWND window) {
    PressKeys(window, {VK_ESCAPE});
    return Gone(window);
}

bool AnswerMessage(DWORD processId, const std::wstring &text, int buttonId, const std::wstring &title) {
    HWND box = WaitForDialogTitled(processId, title);
    if (!box || MessageBoxText(box) != text) {
        std::fprintf(stderr, "expected the message \"%s\", got \"%s\"\n", Utf8(text).c_str(),
                     Utf8(MessageBoxText(box)).c_str());
        return false;
    }
    PressButton(box, buttonId);
    return Gone(box);
}

std::vector<MenuItem> ReadMenu(HWND window) {
    const testsupport::HookChannel channel(window, L"menu_hook.dll", "ReadMenuHook", kMenuChannel);
    // A bar always has a menu: an empty answer means the request went astray
    // (seen once while the shell's desktop toggle ran), so it is asked again.
    std::wstring dump;
    for (int attempt = 0; attempt < 3 && dump.empty() && channel; ++attempt) {
        if (const void *answer = channel.ask(5000))
            dump = static_cast<const wchar_t *>(answer);
    }
    std::vector<MenuItem> items;
    std::wistringstream lines(dump);
    for (MenuItem item; lines >> item.depth >> item.id >> item.type && lines.get() && std::getline(lines, item.text);)
        items.push_back(item);
    return items;
}

bool PickMenuItem(HWND window, const std::wstring &caption) {
    for (const MenuItem &item : ReadMenu(window))
        if (item.id != 0 && item.text.substr(0, item.text.find(L'\t')) == caption)
            return PostMessageW(window, WM_COMMAND, item.id, 0) != 0;
    return false;
}

void PressKeys(HWND window, std::initializer_list<WORD> keys) {
    // Asked only when needed: bringing the window forward closes its open menu.
    if (GetForegroundWindow() != window)
        SetForegroundWindow(window);
    WaitFor(
        [&] {
            return GetForegroundWindow() == window;
        },
        2s);
    std::vector<INPUT> inputs;
    auto add = [&](WORD key, DWORD flags) {
        inputs.push_back(
            {.type = INPUT_KEYBOARD, .ki = {key, WORD(MapVirtualKeyW(key, MAPVK_VK_TO_VSC)), flags, 0, 0}});
    };
    for (WORD key : keys)
        add(key, 0);
    for (auto key = keys.end(); key != keys.begin();)
        add(*--key, KEYEVENTF_KEYUP);
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

void ClickAt(POINT point) {
    SetCursorPos(point.x, point.y);
    INPUT inputs[2] = {{.type = INPUT_MOUSE, .mi = {0, 0, 0, MOUSEEVENTF_LEFTDOWN, 0, 0}},
                       {.type = INPUT_MOUSE, .mi = {0, 0, 0, MOUSEEVENTF_LEFTUP, 0, 0}}};
    SendInput(2, inputs, sizeof(INPUT));
}

COLORREF ScreenColour(POINT point) {
    HDC screen = GetDC(nullptr);
    const COLORREF colour = GetPixel(screen, point.x, point.y);
    ReleaseDC(nullptr, screen);
    return colour;
}

HWND WaitForDialogTitled(DWORD processId, const std::wstring &title, std::chrono::milliseconds timeout) {
    return FindProcessWindow(processId, kDialogClass, title.c_str(), timeout);
}

std::wstring ControlText(HWND dialog, int id) {
    return TextOf(GetDlgItem(dialog, id));
}

void SetControlText(HWND dialog, int id, const std::wstring &text) {
    SendMessageW(GetDlgItem(dialog, id), WM_SETTEXT, 0, LPARAM(text.c_str()));
}

bool AnswerFileDialog(HWND dialog, const std::wstring &fileName) {
    // GetOpenFileNameW's dialog keeps the name in an edit inside a combo box (cmb13).
    HWND combo = FindWindowExW(GetDlgItem(dialog, 0x47C), nullptr, L"ComboBox", nullptr);
    HWND name = FindWindowExW(combo ? combo : GetDlgItem(dialog, 0x47C), nullptr, L"Edit", nullptr);
    if (!name)
        return false;
    SendMessageW(name, WM_SETTEXT, 0, LPARAM(fileName.c_str()));
    PressButton(dialog, IDOK);
    return true;
}

namespace {

// A list view writes texts through pointers in its own process, so each request (an LVITEMW or LVCOLUMNW) and its
// text buffer are placed there, sent for every index below the count, and the texts read back; empty where it fails.
template <class Request> std::vector<std::wstring> AskRemote(HWND listView, UINT message, int count, Request request) {
    constexpr int kChars = 1024;
    constexpr std::size_t kRequestBytes = 256;
    static_assert(sizeof(Request) <= kRequestBytes);
    DWORD processId = 0;
    GetWindowThreadProcessId(listView, &processId);
    const std::unique_ptr<void, decltype(&CloseHandle)> process(
        OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, processId), CloseHandle);
    void *block = process ? VirtualAllocEx(process.get(), nullptr, kRequestBytes + kChars * sizeof(wchar_t),
                                           MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE)
                          : nullptr;
    auto *remoteText = reinterpret_cast<wchar_t *>(static_cast<char *>(block) + kRequestBytes);
    request.pszText = remoteText;
    request.cchTextMax = kChars;
    std::vector<std::wstring> texts;
    for (int index = 0; index < count; ++index) {
        std::wstring text(kChars, L'\0');
        const bool read = block && WriteProcessMemory(process.get(), block, &request, sizeof request, nullptr) &&
                          SendMessageW(listView, message, index, LPARAM(block)) &&
                          ReadProcessMemory(process.get(), remoteText, text.data(), kChars * sizeof(wchar_t), nullptr);
        texts.push_back(read ? text.c_str() : L"");
    }
    if (block)
        VirtualFreeEx(process.get(), block, 0, MEM_RELEASE);
    return texts;
}

} // namespace

int ListViewRows(HWND listView) {
    return int(SendMessageW(listView, LVM_GETITEMCOUNT, 0, 0));
}

std::vector<std::wstring> ListViewTexts(HWND listView, int column) {
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iSubItem = column;
    return AskRemote(listView, LVM_GETITEMTEXTW, ListViewRows(listView), item);
}

std::vector<std::wstring> ListViewColumns(HWND listView) {
    const auto header = reinterpret_cast<HWND>(SendMessageW(listView, LVM_GETHEADER, 0, 0));
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT;
    return AskRemote(listView, LVM_GETCOLUMNW, int(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0)), column);
}

std::vector<bool> ListViewChecks(HWND listView) {
    std::vector<bool> checks;
    for (int row = 0; row < ListViewRows(listView); ++row)
        checks.push_back((SendMessageW(listView, LVM_GETITEMSTATE, row, LVIS_STATEIMAGEMASK) >> 12) == 2);
    return checks;
}

std::wstring ClipboardText() {
    // The program that just copied, or Wine's bridge to the X selection, may hold it a moment.
    if (!WaitFor(
            [] {
                return OpenClipboard(nullptr) != FALSE;
            },
            1s))
        return {};
    std::wstring text;
    HANDLE data = GetClipboardData(CF_UNICODETEXT);
    if (const auto *chars = data ? static_cast<const wchar_t *>(GlobalLock(data)) : nullptr) {
        text.assign(chars, wcsnlen(chars, GlobalSize(data) / sizeof(wchar_t)));
        GlobalUnlock(data);
    }
    CloseClipboard();
    return text;
}

} // namespace orvane::e2e
