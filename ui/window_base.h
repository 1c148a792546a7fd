// Routes a window's messages to a member function of the object that owns it.
#pragma once

#include <windows.h>

#include "handles.h"

namespace orvane::ui {

class WindowBase {
public:
    WindowBase() = default;
    WindowBase(const WindowBase &) = delete;
    WindowBase &operator=(const WindowBase &) = delete;
    virtual ~WindowBase() = default;

    HWND hwnd() const {
        return window_.get();
    }

protected:
    // Registers the class once per process; the class routes to handleMessage.
    static void registerClass(WNDCLASSEXW wc);
    bool create(DWORD exStyle, const wchar_t *className, const wchar_t *title, DWORD style, HWND owner);

    virtual LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam);

private:
    static LRESULT CALLBACK route(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    UniqueWindow window_;
};

} // namespace orvane::ui
