#include "user_input.h"

#include <sstream>

#include "orvane_process.h"
#include "win_support.h"

namespace orvane::e2e {

using namespace testsupport;

std::vector<MenuItem> ReadMenu(HWND window) {
    static HMODULE hook = LoadLibraryW((ExeFolder() + L"\\menu_hook.dll").c_str());
    const auto procedure = reinterpret_cast<HOOKPROC>(reinterpret_cast<void*>(GetProcAddress(hook, "ReadMenuHook")));
    if (!procedure) return {};
    HANDLE map = CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                    static_cast<DWORD>(kMenuDumpChars * sizeof(wchar_t)), kMenuDumpName);
    HANDLE done = CreateEventW(nullptr, TRUE, FALSE, kMenuDoneName);
    auto* view = static_cast<wchar_t*>(MapViewOfFile(map, FILE_MAP_READ, 0, 0, 0));
    HHOOK installed = SetWindowsHookExW(WH_GETMESSAGE, procedure, hook, GetWindowThreadProcessId(window, nullptr));
    PostMessageW(window, RegisterWindowMessageW(kReadMenuMessage), 0, 0);
    const bool answered = WaitForSingleObject(done, 5000) == WAIT_OBJECT_0;
    const std::wstring dump = answered && view ? view : L"";
    UnhookWindowsHookEx(installed);
    UnmapViewOfFile(view);
    CloseHandle(done);
    CloseHandle(map);

    std::vector<MenuItem> items;
    std::wistringstream lines(dump);
    for (MenuItem item; lines >> item.depth >> item.id >> item.type && lines.get() && std::getline(lines, item.text);)
        items.push_back(item);
    return items;
}

bool PickMenuItem(HWND window, const std::wstring& caption) {
    for (const MenuItem& item : ReadMenu(window)) {
        if (item.id == 0 || item.text.substr(0, item.text.find(L'\t')) != caption) continue;
        PostMessageW(window, WM_COMMAND, item.id, 0);
        return true;
    }
    return false;
}

void PressKeys(HWND window, std::initializer_list<WORD> keys) {
    // Asked only when needed: bringing the window forward closes its open menu.
    if (GetForegroundWindow() != window) SetForegroundWindow(window);
    WaitFor([&] { return GetForegroundWindow() == window; }, 2s);
    std::vector<INPUT> inputs;
    auto add = [&](WORD key, DWORD flags) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
        input.ki.dwFlags = flags;
        inputs.push_back(input);
    };
    for (WORD key : keys) add(key, 0);
    for (auto key = keys.end(); key != keys.begin();) add(*--key, KEYEVENTF_KEYUP);
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

HWND WaitForDialogTitled(DWORD processId, const std::wstring& title) {
    HWND dialog = nullptr;
    WaitFor([&] { return (dialog = FindProcessWindow(processId, kDialogClass, title.c_str())) != nullptr; }, 15s);
    return dialog;
}

std::wstring ControlText(HWND dialog, int id) { return TextOf(GetDlgItem(dialog, id)); }

void SetControlText(HWND dialog, int id, const std::wstring& text) {
    SendMessageW(GetDlgItem(dialog, id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

bool AnswerFileDialog(HWND dialog, const std::wstring& fileName) {
    // GetOpenFileNameW's dialog keeps the name in an edit inside a combo box (cmb13).
    HWND combo = FindWindowExW(GetDlgItem(dialog, 0x47C), nullptr, L"ComboBox", nullptr);
    HWND name = FindWindowExW(combo ? combo : GetDlgItem(dialog, 0x47C), nullptr, L"Edit", nullptr);
    if (!name) return false;
    SendMessageW(name, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(fileName.c_str()));
    PressButton(dialog, IDOK);
    return true;
}

}  // namespace orvane::e2e
