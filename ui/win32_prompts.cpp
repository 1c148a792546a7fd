// What the system interface asks of the user: messages, file dialogs, the
// cursor, and the events that wait while a routine runs.
#include "win32_system.h"

#include <commdlg.h>

#include <string_view>

#include "handles.h"

namespace orvane::ui {

MessageAnswer Win32System::showMessage(const std::wstring &text, const std::wstring &caption, MessageIcon icon,
                                       MessageButtons buttons) {
    static constexpr UINT kIcons[] = {0, MB_ICONHAND, MB_ICONEXCLAMATION, MB_ICONQUESTION, MB_ICONASTERISK};
    static constexpr UINT kButtons[] = {MB_OK, MB_OKCANCEL, MB_YESNO, MB_YESNOCANCEL, MB_YESNO | MB_DEFBUTTON2};
    switch (MessageBoxW(owner(), text.c_str(), caption.c_str(),
                        kIcons[static_cast<int>(icon)] | kButtons[static_cast<int>(buttons)])) {
    case IDCANCEL:
        return MessageAnswer::Cancel;
    case IDYES:
        return MessageAnswer::Yes;
    case IDNO:
        return MessageAnswer::No;
    default:
        return MessageAnswer::Ok;
    }
}

HWND Win32System::owner() const {
    if (HWND active = GetActiveWindow())
        return active;
    return messageOwner_ && IsWindowVisible(messageOwner_) ? messageOwner_ : nullptr;
}

// The filter's "|" separators become the NULs the dialog expects.
std::optional<std::wstring> Win32System::chooseFile(const FileRequest &request) {
    std::wstring filter = request.filter + L'|';
    for (wchar_t &c : filter)
        if (c == L'|')
            c = L'\0';
    // Room for long paths; a preset that does not fit is cut, never overrun.
    std::wstring name(32768, L'\0');
    request.preset.copy(name.data(), std::min(request.preset.size(), name.size() - 1));
    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner();
    dialog.lpstrFilter = filter.c_str();
    dialog.nFilterIndex = 1;
    dialog.lpstrFile = name.data();
    dialog.nMaxFile = static_cast<DWORD>(name.size());
    dialog.lpstrTitle = request.title.c_str();
    dialog.lpstrInitialDir = OrNull(request.folder);
    dialog.lpstrDefExt = OrNull(request.defaultExtension);
    dialog.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | (request.save ? OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST : 0);
    // Bound at first use: loading the common dialogs at start-up costs every
    // start time and memory for a dialog most sessions never open.
    using FileDialogFn = BOOL(WINAPI *)(OPENFILENAMEW *);
    static const UniqueModule library(LoadLibraryW(L"comdlg32.dll"));
    const auto bind = [](const char *name) {
        return reinterpret_cast<FileDialogFn>(reinterpret_cast<void *>(GetProcAddress(library.get(), name)));
    };
    static const FileDialogFn getOpenFileName = bind("GetOpenFileNameW"), getSaveFileName = bind("GetSaveFileNameW");
    const FileDialogFn show = request.save ? getSaveFileName : getOpenFileName;
    EnterComApartment(); // the dialog browses the shell's folders
    if (!show || !show(&dialog))
        return std::nullopt;
    return std::wstring(name.c_str());
}

void Win32System::beep() {
    MessageBeep(MB_OK);
}

void Win32System::showWaitCursor() {
    SetCursor(LoadCursorW(nullptr, IDC_WAIT));
}

void Win32System::restoreCursor() {
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
}

void Win32System::processPendingEvents() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam)); // leave it for the main loop
            return;
        }
        // A key typed meanwhile goes where the modal loop would send it: to
        // the dialog's shortcuts and its own keys (Esc, Enter, Tab), not lost.
        HWND dialog = message.hwnd ? GetAncestor(message.hwnd, GA_ROOT) : nullptr;
        wchar_t type[8] = {};
        if (dialog && GetClassNameW(dialog, type, 8) && std::wstring_view(type) == L"#32770" &&
            (CallMsgFilterW(&message, MSGF_DIALOGBOX) || IsDialogMessageW(dialog, &message)))
            continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

} // namespace orvane::ui
