#include "window_base.h"

namespace orvane::ui {

void WindowBase::registerClass(WNDCLASSEXW wc) {
    wc.cbSize = sizeof wc;
    wc.lpfnWndProc = &WindowBase::route;
    wc.hInstance = GetModuleHandleW(nullptr);
    WNDCLASSEXW existing{};
    if (!GetClassInfoExW(wc.hInstance, wc.lpszClassName, &existing))
        RegisterClassExW(&wc);
}

bool WindowBase::create(DWORD exStyle, const wchar_t *className, const wchar_t *title, DWORD style, HWND owner) {
    return CreateWindowExW(exStyle, className, title, style, 0, 0, 0, 0, owner, nullptr, GetModuleHandleW(nullptr),
                           this) != nullptr;
}

LRESULT WindowBase::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcW(hwnd(), message, wParam, lParam);
}

LRESULT CALLBACK WindowBase::route(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto *self = reinterpret_cast<WindowBase *>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_NCCREATE) {
        self = static_cast<WindowBase *>(reinterpret_cast<CREATESTRUCTW *>(lParam)->lpCreateParams);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
        self->window_.reset(window);
    }
    if (!self)
        return DefWindowProcW(window, message, wParam, lParam);
    const LRESULT result = self->handleMessage(message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(window, GWLP_USERDATA, 0);
        self->window_.release(); // already destroyed
    }
    return result;
}

} // namespace orvane::ui
