// Thin wrappers over the common controls the windows use: each call is one of
// the control's own messages under a name, on a handle the wrapper does not
// own (the dialog does). Like a handle, a wrapper converts to its HWND.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace orvane::ui {

class ListView {
public:
    ListView() = default;
    explicit ListView(HWND window) : window_(window) {
    }
    operator HWND() const {
        return window_;
    }

    void setExtendedStyle(DWORD style) const {
        ListView_SetExtendedListViewStyle(window_, style);
    }
    // The item states the window keeps and gives when asked, as a virtual list's check marks.
    void setCallbackMask(UINT mask) const {
        ListView_SetCallbackMask(window_, mask);
    }
    void setImageList(HIMAGELIST images, int which) const {
        ListView_SetImageList(window_, images, which);
    }
    void insertColumn(int column, const wchar_t *title, int width) const;
    void setColumnWidth(int column, int width) const {
        ListView_SetColumnWidth(window_, column, width);
    }

    // A row whose first column shows the text.
    void insertItem(int row, wchar_t *text) const;
    void setItemText(int row, int column, wchar_t *text) const {
        ListView_SetItemText(window_, row, column, text);
    }
    void deleteAllItems() const {
        ListView_DeleteAllItems(window_);
    }
    // A virtual list's number of rows, set without scrolling.
    void setItemCount(int count) const {
        ListView_SetItemCountEx(window_, count, LVSICF_NOSCROLL);
    }

    // The next row after this one (-1: the first) in the given state (LVNI_*); -1 when there is none.
    int nextItem(int after, UINT state) const {
        return ListView_GetNextItem(window_, after, state);
    }
    // The row with the focus mark; -1 when there is none.
    int currentRow() const {
        return nextItem(-1, LVNI_FOCUSED);
    }
    // The states in mask take the values in state; row -1 is every row.
    void setItemState(int row, UINT state, UINT mask) const {
        ListView_SetItemState(window_, row, state, mask);
    }
    // The selected row of a list of one selection; -1 when there is none.
    int selectedRow() const {
        return nextItem(-1, LVNI_SELECTED);
    }
    // This row alone selected and current, scrolled into view; -1: none.
    void selectOnly(int row) const {
        setItemState(-1, 0, LVIS_SELECTED | LVIS_FOCUSED);
        if (row < 0)
            return;
        setItemState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        ensureVisible(row);
    }
    // The rows the list shows whole at once.
    int rowsPerPage() const {
        return ListView_GetCountPerPage(window_);
    }
    void ensureVisible(int row) const {
        ListView_EnsureVisible(window_, row, FALSE);
    }
    void redrawRow(int row) const {
        ListView_RedrawItems(window_, row, row);
    }

    // The row's whole rectangle; false when there is no such row.
    bool rowRect(int row, RECT &rect) const {
        return ListView_GetItemRect(window_, row, &rect, LVIR_BOUNDS);
    }
    RECT cellRect(int row, int column) const;
    // The row and column at a point of the client area, in hit; returns the row, -1 when there is none.
    int hitTest(POINT point, LVHITTESTINFO &hit) const;

private:
    HWND window_ = nullptr;
};

class ListBox {
public:
    explicit ListBox(HWND window) : window_(window) {
    }
    operator HWND() const {
        return window_;
    }

    void setRedraw(bool redraw) const {
        SendMessageW(window_, WM_SETREDRAW, redraw, 0);
    }
    void clear() const {
        SendMessageW(window_, LB_RESETCONTENT, 0, 0);
    }
    void add(const wchar_t *text) const {
        SendMessageW(window_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
    }
    int count() const {
        return static_cast<int>(SendMessageW(window_, LB_GETCOUNT, 0, 0));
    }
    std::wstring text(int index) const;
    // The first entry that is the text, ignoring case; -1 when there is none.
    int findExact(const std::wstring &text) const;

    // A list of one selection: the selected entry, -1 for none.
    int selection() const {
        return static_cast<int>(SendMessageW(window_, LB_GETCURSEL, 0, 0));
    }
    void setSelection(int index) const {
        SendMessageW(window_, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    }
    // A list of many selections: each entry's mark, and the entry with the focus mark.
    bool isSelected(int index) const {
        return SendMessageW(window_, LB_GETSEL, static_cast<WPARAM>(index), 0) > 0;
    }
    void select(int index) const {
        SendMessageW(window_, LB_SETSEL, TRUE, index);
    }
    int caret() const {
        return static_cast<int>(SendMessageW(window_, LB_GETCARETINDEX, 0, 0));
    }
    void setCaret(int index) const {
        SendMessageW(window_, LB_SETCARETINDEX, static_cast<WPARAM>(index), FALSE);
    }

private:
    HWND window_;
};

// Keys that edit fields leave to their window. The handler sees each key
// pressed in an attached field (and those pressed with Alt, when asked for)
// and returns true when it used the key: a used key goes no further, and the
// character it types is dropped. The kept keys (Enter, Esc) are asked of the
// dialog manager, so they reach the field instead of pressing a button.
class FieldKeys {
public:
    using Handler = std::function<bool(HWND field, WPARAM key)>;
    FieldKeys(std::vector<WPARAM> kept, bool altKeys, Handler handler)
        : kept_(std::move(kept)), altKeys_(altKeys), handler_(std::move(handler)) {
    }
    FieldKeys(const FieldKeys &) = delete;
    FieldKeys &operator=(const FieldKeys &) = delete;

    // Until the field is destroyed, which must come before this object goes.
    void attach(HWND field);

private:
    static LRESULT CALLBACK Subclass(HWND field, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR data);

    std::vector<WPARAM> kept_;
    bool altKeys_;
    Handler handler_;
    bool dropCharacter_ = false; // the last key pressed was used
};

} // namespace orvane::ui
