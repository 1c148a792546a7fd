#include "modal_dialog.h"

#include <algorithm>
#include <vector>

#include "skin.h"

namespace orvane::ui {

namespace {

void CentreOver(HWND dialog, HWND owner) {
    RECT box{}, over{};
    GetWindowRect(dialog, &box);
    GetWindowRect(owner ? owner : GetDesktopWindow(), &over);
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromWindow(owner ? owner : dialog, MONITOR_DEFAULTTONEAREST), &monitor);
    const RECT &area = monitor.rcWork;
    const int width = box.right - box.left, height = box.bottom - box.top;
    // The bar is a thin strip at the screen's edge: keep the dialog on the screen.
    const int left =
        std::clamp((over.left + over.right - width) / 2, area.left, std::max(area.left, area.right - width));
    const int top =
        std::clamp((over.top + over.bottom - height) / 2, area.top, std::max(area.top, area.bottom - height));
    SetWindowPos(dialog, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// The dialogs open on this thread, innermost last.
thread_local std::vector<ModalDialog *> openDialogs;

} // namespace

// The dialog manager's loop has no place for shortcuts; its message filter does.
LRESULT CALLBACK ModalDialog::filter(int code, WPARAM wParam, LPARAM lParam) {
    if (code == MSGF_DIALOGBOX) {
        MSG &message = *reinterpret_cast<MSG *>(lParam);
        for (auto it = openDialogs.rbegin(); it != openDialogs.rend(); ++it) {
            HWND dialog = (*it)->window_;
            if (dialog && (message.hwnd == dialog || IsChild(dialog, message.hwnd))) {
                if ((*it)->translate(message))
                    return TRUE;
                break;
            }
        }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

INT_PTR ModalDialog::show(HWND owner, int templateId) {
    openDialogs.push_back(this);
    UniqueHook hook(openDialogs.size() == 1
                        ? SetWindowsHookExW(WH_MSGFILTER, &ModalDialog::filter, nullptr, GetCurrentThreadId())
                        : nullptr);
    const INT_PTR result = DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(templateId), owner,
                                           &ModalDialog::route, reinterpret_cast<LPARAM>(this));
    openDialogs.pop_back();
    return result;
}

void ModalDialog::onCommand(int id, int) {
    if (id == IDOK || id == IDCANCEL)
        end(id);
}

std::wstring WindowText(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

INT_PTR CALLBACK ModalDialog::route(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto *self = reinterpret_cast<ModalDialog *>(GetWindowLongPtrW(window, DWLP_USER));
    if (message == WM_INITDIALOG) {
        self = reinterpret_cast<ModalDialog *>(lParam);
        SetWindowLongPtrW(window, DWLP_USER, lParam);
        self->window_ = window;
        CentreOver(window, self->centreOver_ ? self->centreOver_ : GetWindow(window, GW_OWNER));
        self->skin_.join(window);
        self->onInit();
        return TRUE;
    }
    if (!self)
        return FALSE;
    switch (message) {
    case WM_COMMAND:
        self->onCommand(LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSTATIC:
        // The skin behind the dialog and its labels.
        return reinterpret_cast<INT_PTR>(
            self->skin_.controlColour(message, reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam)));
    case WM_NCDESTROY:
        self->skin_.leave(window);
        self->window_ = nullptr;
        break;
    }
    return self->onMessage(message, wParam, lParam);
}

} // namespace orvane::ui
