// A dialog from a template, shown modally over its owner and centred over it
// (inside the work area), painted with the program's skin. Enter presses OK,
// Esc Cancel; both end it unless the dialog decides otherwise.
#pragma once

#include <windows.h>

#include <string>

#include "handles.h"

namespace orvane::ui {

class Skin;

// A control's or window's whole text.
std::wstring WindowText(HWND window);

class ModalDialog {
public:
    explicit ModalDialog(Skin &skin) : skin_(skin) {
    }
    ModalDialog(const ModalDialog &) = delete;
    ModalDialog &operator=(const ModalDialog &) = delete;
    virtual ~ModalDialog() = default;

    // Returns the identifier the dialog ended with.
    INT_PTR show(HWND owner, int templateId);
    // Centres the dialog over this window instead of its owner.
    void centreOver(HWND window) {
        centreOver_ = window;
    }

protected:
    HWND hwnd() const {
        return window_;
    }
    virtual void onInit() {
    }
    // Controls' notifications; the default ends the dialog on OK and Cancel.
    virtual void onCommand(int id, int code);
    // Any other message; TRUE when the dialog handled it.
    virtual INT_PTR onMessage(UINT, WPARAM, LPARAM) {
        return FALSE;
    }
    // A message for the dialog or its controls before the dialog manager sees
    // it, for keyboard shortcuts; true when it was used up.
    virtual bool translate(MSG &) {
        return false;
    }
    void end(INT_PTR result) {
        EndDialog(window_, result);
    }
    // The skin this dialog paints with, for the windows it opens in turn.
    Skin &skin() const {
        return skin_;
    }

    std::wstring itemText(int id) const {
        return WindowText(GetDlgItem(window_, id));
    }
    void setItemText(int id, const std::wstring &text) {
        SetDlgItemTextW(window_, id, text.c_str());
    }

private:
    static INT_PTR CALLBACK route(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK filter(int code, WPARAM wParam, LPARAM lParam);
    Skin &skin_;
    HWND window_ = nullptr;
    HWND centreOver_ = nullptr;
};

} // namespace orvane::ui
