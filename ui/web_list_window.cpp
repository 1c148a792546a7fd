// The web list window: its controls kept in step with the model, the group
// and edit panels, and what the list view asks and tells.
#include "web_list_window.h"

#include <commctrl.h>

#include "app.h"
#include "dialogs.h"
#include "dpi.h"
#include "skin.h"

namespace orvane::ui {

namespace {

constexpr int kGroupControls[] = {IDC_GROUP_FRAME, IDC_GROUP_LIST, IDC_EMPTY_GROUPS, IDC_CLOSE_GROUP};
constexpr int kEditControls[] = {IDC_EDIT_FRAME, IDC_EDIT_NAME_LABEL, IDC_EDIT_NAME,  IDC_EDIT_SITE_LABEL,
                                 IDC_EDIT_SITE,  IDC_EDIT_ACCEPT,     IDC_EDIT_REJECT};
constexpr int kGroupButtonsStrip = 60; // pixels at 96 DPI below the group list: 900 twips

} // namespace

void WebListWindow::onInit() {
    menu_.setColours(hwnd(), skin().menuColours());
    menu_.buildGrowing(hwnd());
    rows().setExtendedStyle(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
    rows().setCallbackMask(LVIS_STATEIMAGEMASK); // the check marks are the model's
    RECT client{};
    GetClientRect(rows(), &client);
    const int nameWidth = client.right * 2 / 5;
    rows().insertColumn(0, L"Name", nameWidth);
    rows().insertColumn(1, L"Website URL", static_cast<int>(client.right) - nameWidth - GetSystemMetrics(SM_CXVSCROLL));
    for (HWND edit : {item(IDC_EDIT_NAME), item(IDC_EDIT_SITE)})
        editKeys_.attach(edit);
    if (list_.load())
        showCaption();
    const Settings &s = app_.settings;
    const std::wstring *browsers[] = {&s.WebBrowser1, &s.WebBrowser2, &s.WebBrowser3};
    for (int n = 0; n < 3; ++n)
        setItemText(IDC_FIRST_BROWSER_PATH + n, *browsers[n]);
    if (s.WebBrowserChoice >= 1 && s.WebBrowserChoice <= 3)
        CheckDlgButton(hwnd(), IDC_FIRST_BROWSER_CHOICE + s.WebBrowserChoice - 1, BST_CHECKED);
    refresh();
    SetFocus(rows());
}

void WebListWindow::showCaption() {
    SetWindowTextW(hwnd(), list_.caption().c_str());
}

// The model's selection and current row as the controls hold them.
void WebListWindow::takeSelection() {
    for (WebRow &row : list_.rows)
        row.selected = false;
    for (int i = rows().nextItem(-1, LVNI_SELECTED); i >= 0 && i < count(); i = rows().nextItem(i, LVNI_SELECTED))
        list_.rows[static_cast<std::size_t>(i)].selected = true;
    const int focused = rows().currentRow();
    list_.current = focused < count() ? focused : -1;
    list_.selectedGroups.clear();
    const int entries = groups().count();
    for (int i = 0; i < entries; ++i)
        if (groups().isSelected(i))
            list_.selectedGroups.push_back(static_cast<std::size_t>(i));
    const int caret = groups().caret();
    list_.currentGroup = list_.selectedGroups.empty() ? -1 : caret;
}

// The controls as the model holds them.
void WebListWindow::refresh() {
    rows().setItemCount(count());
    // One by one: clearing every row at once costs two notifications a row.
    for (int i = -1; (i = rows().nextItem(i, LVNI_SELECTED)) >= 0;)
        rows().setItemState(i, 0, LVIS_SELECTED);
    for (int i = 0; i < count(); ++i)
        if (list_.rows[static_cast<std::size_t>(i)].selected)
            rows().setItemState(i, LVIS_SELECTED, LVIS_SELECTED);
    if (list_.current >= 0 && list_.current < count()) {
        rows().setItemState(list_.current, LVIS_FOCUSED, LVIS_FOCUSED);
        rows().ensureVisible(list_.current);
    }
    InvalidateRect(rows(), nullptr, FALSE);
    groups().setRedraw(false);
    groups().clear();
    for (const std::wstring &entry : list_.groups)
        groups().add(entry.c_str());
    if (list_.currentGroup >= 0) {
        groups().select(list_.currentGroup);
        groups().setCaret(list_.currentGroup);
    }
    groups().setRedraw(true);
    InvalidateRect(groups(), nullptr, TRUE);
    showGroupPanel(list_.groupShown);
}

// The panel covers the list exactly; its list leaves room for its buttons below.
void WebListWindow::showGroupPanel(bool shown) {
    list_.groupShown = shown;
    if (shown == ((GetWindowLongPtrW(groups(), GWL_STYLE) & WS_VISIBLE) != 0))
        return;
    RECT area{};
    GetWindowRect(rows(), &area);
    MapWindowPoints(nullptr, hwnd(), reinterpret_cast<POINT *>(&area), 2);
    const int margin = ScaledForWindow(8, hwnd()), strip = ScaledForWindow(kGroupButtonsStrip, hwnd());
    const int height = area.bottom - area.top, buttonHeight = ScaledForWindow(24, hwnd());
    MoveWindow(item(IDC_GROUP_FRAME), area.left, area.top, area.right - area.left, height, TRUE);
    MoveWindow(groups(), area.left + margin, area.top + 2 * margin, area.right - area.left - 2 * margin, height - strip,
               TRUE);
    const int buttonTop = area.top + 2 * margin + height - strip + (strip - 2 * margin - buttonHeight) / 2;
    int left = area.left + margin;
    for (int id : {IDC_EMPTY_GROUPS, IDC_CLOSE_GROUP}) {
        RECT button{};
        GetWindowRect(item(id), &button);
        MoveWindow(item(id), left, buttonTop, button.right - button.left, buttonHeight, TRUE);
        left += button.right - button.left + margin;
    }
    for (int id : kGroupControls)
        ShowWindow(item(id), shown ? SW_SHOW : SW_HIDE);
    ShowWindow(rows(), shown ? SW_HIDE : SW_SHOW);
    SetFocus(shown ? groups() : static_cast<HWND>(rows()));
}

void WebListWindow::storeBrowsers() {
    Settings &s = app_.settings;
    std::wstring *browsers[] = {&s.WebBrowser1, &s.WebBrowser2, &s.WebBrowser3};
    for (int n = 0; n < 3; ++n)
        *browsers[n] = itemText(IDC_FIRST_BROWSER_PATH + n);
    for (int n = 0; n < 3; ++n)
        if (IsDlgButtonChecked(hwnd(), IDC_FIRST_BROWSER_CHOICE + n) == BST_CHECKED) {
            s.WebBrowserChoice = static_cast<std::int16_t>(n + 1);
            break;
        }
}

void WebListWindow::openWebsites(bool singleRow) {
    takeSelection();
    list_.singleRow = singleRow;
    storeBrowsers();
    list_.openWebsites();
}

void WebListWindow::close() {
    takeSelection();
    if (!list_.confirmClose())
        return;
    storeBrowsers();
    end(IDCANCEL);
}

void WebListWindow::startEdit() {
    const auto edit = list_.startEdit();
    if (!edit)
        return;
    setItemText(IDC_EDIT_FRAME, edit->caption);
    if (!edit->group)
        setItemText(IDC_EDIT_NAME, edit->name);
    setItemText(IDC_EDIT_SITE, edit->site);
    showEditPanel(true);
    SetFocus(item(edit->group ? IDC_EDIT_SITE : IDC_EDIT_NAME));
}

void WebListWindow::showEditPanel(bool shown) {
    for (int id : kEditControls)
        ShowWindow(item(id), shown ? SW_SHOW : SW_HIDE);
    for (int i = 1; i < static_cast<int>(kButtonCommands.size()); ++i)
        ShowWindow(item(IDC_FIRST_WEB_BUTTON + i), shown ? SW_HIDE : SW_SHOW);
    if (!shown)
        SetFocus(list_.groupShown ? groups() : static_cast<HWND>(rows()));
}

void WebListWindow::endEdit(bool accepted) {
    if (!accepted)
        list_.reject();
    showEditPanel(false);
    refresh();
}

// The model's texts and check marks, as the virtual list asks for them.
void WebListWindow::giveItem(LVITEMW &item) const {
    if (item.iItem < 0 || item.iItem >= count())
        return;
    const WebRow &row = list_.rows[static_cast<std::size_t>(item.iItem)];
    if ((item.mask & LVIF_TEXT) && item.cchTextMax > 0)
        lstrcpynW(item.pszText, (item.iSubItem == 0 ? row.name : row.address).c_str(), item.cchTextMax);
    if (item.mask & LVIF_STATE) {
        item.state = (item.state & ~LVIS_STATEIMAGEMASK) | INDEXTOSTATEIMAGEMASK(row.checked ? 2 : 1);
        item.stateMask |= LVIS_STATEIMAGEMASK;
    }
}

void WebListWindow::toggleCheck(int row) {
    list_.toggleCheck(row);
    rows().redrawRow(row);
}

INT_PTR WebListWindow::onNotify(const NMHDR &header) {
    if (header.idFrom != IDC_WEB_ROWS)
        return FALSE;
    switch (header.code) {
    case LVN_GETDISPINFOW:
        giveItem(reinterpret_cast<NMLVDISPINFOW *>(const_cast<NMHDR *>(&header))->item);
        return TRUE;
    case LVN_KEYDOWN:
        if (reinterpret_cast<const NMLVKEYDOWN &>(header).wVKey == VK_SPACE)
            toggleCheck(rows().currentRow());
        return TRUE;
    case NM_CLICK:
    case NM_DBLCLK: {
        LVHITTESTINFO hit{};
        rows().hitTest(reinterpret_cast<const NMITEMACTIVATE &>(header).ptAction, hit);
        if (hit.iItem < 0)
            return TRUE;
        const bool onCheck = hit.flags & LVHT_ONITEMSTATEICON;
        if (header.code == NM_CLICK && onCheck)
            toggleCheck(hit.iItem);
        if (header.code == NM_DBLCLK && !onCheck)
            openWebsites(true);
        return TRUE;
    }
    }
    return FALSE;
}

INT_PTR WebListWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (menu_.dialogMessage(hwnd(), skin(), message, wParam, lParam))
        return TRUE;
    switch (message) {
    case WM_NOTIFY:
        return onNotify(*reinterpret_cast<const NMHDR *>(lParam));
    case WM_CLOSE:
        close();
        return TRUE;
    }
    return FALSE;
}

// The menu's shortcuts, except in text fields, whose keys (Shift+Delete, Ctrl+Insert) are their own.
bool WebListWindow::translate(MSG &message) {
    wchar_t type[16] = {};
    GetClassNameW(GetFocus(), type, 16);
    if (lstrcmpiW(type, L"Edit") == 0)
        return false;
    return menu_.accelerators() && TranslateAcceleratorW(hwnd(), menu_.accelerators(), &message);
}

void ShowWebList(App &app, Skin &skin, MainCommands &commands, HWND owner) {
    WebListWindow(app, skin, commands).show(owner, IDD_WEB_LIST);
}

} // namespace orvane::ui
