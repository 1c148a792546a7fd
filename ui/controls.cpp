#include "controls.h"

#include <algorithm>
#include <utility>

namespace orvane::ui {

void ListView::insertColumn(int column, const wchar_t *title, int width) const {
    LVCOLUMNW c{};
    c.mask = LVCF_TEXT | LVCF_WIDTH;
    c.pszText = const_cast<wchar_t *>(title);
    c.cx = width;
    ListView_InsertColumn(window_, column, &c);
}

void ListView::insertItem(int row, wchar_t *text) const {
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = row;
    item.pszText = text;
    ListView_InsertItem(window_, &item);
}

RECT ListView::cellRect(int row, int column) const {
    RECT rect{};
    ListView_GetSubItemRect(window_, row, column, LVIR_BOUNDS, &rect);
    return rect;
}

int ListView::hitTest(POINT point, LVHITTESTINFO &hit) const {
    hit.pt = point;
    return ListView_SubItemHitTest(window_, &hit);
}

std::wstring ListBox::text(int index) const {
    std::wstring text(static_cast<std::size_t>(SendMessageW(window_, LB_GETTEXTLEN, index, 0)) + 1, L'\0');
    const LRESULT length = SendMessageW(window_, LB_GETTEXT, index, reinterpret_cast<LPARAM>(text.data()));
    text.resize(length == LB_ERR ? 0 : static_cast<std::size_t>(length));
    return text;
}

int ListBox::findExact(const std::wstring &text) const {
    return static_cast<int>(
        SendMessageW(window_, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text.c_str())));
}

void FieldKeys::attach(HWND field) {
    SetWindowSubclass(field, &FieldKeys::Subclass, 1, reinterpret_cast<DWORD_PTR>(this));
}

LRESULT CALLBACK FieldKeys::Subclass(HWND field, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR data) {
    auto *self = reinterpret_cast<FieldKeys *>(data);
    switch (message) {
    case WM_GETDLGCODE:
        if (std::find(self->kept_.begin(), self->kept_.end(), wParam) != self->kept_.end())
            return DLGC_WANTALLKEYS | DefSubclassProc(field, message, wParam, lParam);
        break;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        // The key's character can come while the handler runs (under a message box): it is dropped then too.
        self->dropCharacter_ = message == WM_KEYDOWN || self->altKeys_;
        self->dropCharacter_ = self->dropCharacter_ && self->handler_(field, wParam);
        if (self->dropCharacter_)
            return 0;
        break;
    case WM_CHAR:
    case WM_SYSCHAR:
        if (std::exchange(self->dropCharacter_, false))
            return 0;
        break;
    case WM_NCDESTROY:
        RemoveWindowSubclass(field, &FieldKeys::Subclass, 1);
        break;
    }
    return DefSubclassProc(field, message, wParam, lParam);
}

} // namespace orvane::ui
