// The web list window: the websites of a web list in a virtual list view,
// whose rows, check marks and texts come from the model, with the browser
// entries, the group panel over the list and the edit panel in the buttons'
// place.
#include <windows.h>
#include <commctrl.h>

#include <array>

#include "app.h"
#include "commands.h"
#include "controls.h"
#include "dialogs.h"
#include "dpi.h"
#include "launch.h"
#include "menu_bar.h"
#include "modal_dialog.h"
#include "resource.h"
#include "skin.h"
#include "web_list.h"

namespace orvane::ui {

namespace {

// The buttons of the template, in the order of their identifiers: the menu command each one runs.
constexpr auto kButtonCommands = std::to_array<std::wstring_view>({
    L"&Load checked items",
    L"&Load checked items",
    L"&Open list",
    L"Sa&ve list",
    L"&Info about list",
    L"E&xit",
    L"&Add item",
    L"Du&plicate",
    L"De&lete",
    L"Move item &up",
    L"Move item &down",
    L"&Add to group",
    L"&Open group window",
});
constexpr int kGroupControls[] = {IDC_GROUP_FRAME, IDC_GROUP_LIST, IDC_EMPTY_GROUPS, IDC_CLOSE_GROUP};
constexpr int kEditControls[] = {IDC_EDIT_FRAME, IDC_EDIT_NAME_LABEL, IDC_EDIT_NAME,  IDC_EDIT_SITE_LABEL,
                                 IDC_EDIT_SITE,  IDC_EDIT_ACCEPT,     IDC_EDIT_REJECT};
constexpr int kGroupButtonsStrip = 60; // pixels at 96 DPI below the group list: 900 twips

bool Held(int key) {
    return GetKeyState(key) < 0;
}

class WebListWindow : public ModalDialog {
public:
    WebListWindow(App &app, Skin &skin, MainCommands &commands)
        : ModalDialog(skin), app_(app), commands_(commands), list_(app) {
    }

private:
    HWND item(int id) const {
        return GetDlgItem(hwnd(), id);
    }
    ListView rows() const {
        return ListView(item(IDC_WEB_ROWS));
    }
    ListBox groups() const {
        return ListBox(item(IDC_GROUP_LIST));
    }
    int count() const {
        return static_cast<int>(list_.rows.size());
    }

    void onInit() override {
        menu_.setColours(hwnd(), skin().menuColours());
        menu_.buildGrowing(hwnd());
        rows().setExtendedStyle(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
        rows().setCallbackMask(LVIS_STATEIMAGEMASK); // the check marks are the model's
        RECT client{};
        GetClientRect(rows(), &client);
        const int nameWidth = client.right * 2 / 5;
        rows().insertColumn(0, L"Name", nameWidth);
        rows().insertColumn(1, L"Website URL",
                            static_cast<int>(client.right) - nameWidth - GetSystemMetrics(SM_CXVSCROLL));
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

    void showCaption() {
        SetWindowTextW(hwnd(), list_.caption().c_str());
    }

    // The model's selection and current row as the controls hold them.
    void takeSelection() {
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
    void refresh() {
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
    void showGroupPanel(bool shown) {
        list_.groupShown = shown;
        if (shown == ((GetWindowLongPtrW(groups(), GWL_STYLE) & WS_VISIBLE) != 0))
            return;
        RECT area{};
        GetWindowRect(rows(), &area);
        MapWindowPoints(nullptr, hwnd(), reinterpret_cast<POINT *>(&area), 2);
        const int margin = ScaledForWindow(8, hwnd()), strip = ScaledForWindow(kGroupButtonsStrip, hwnd());
        const int height = area.bottom - area.top, buttonHeight = ScaledForWindow(24, hwnd());
        MoveWindow(item(IDC_GROUP_FRAME), area.left, area.top, area.right - area.left, height, TRUE);
        MoveWindow(groups(), area.left + margin, area.top + 2 * margin, area.right - area.left - 2 * margin,
                   height - strip, TRUE);
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

    void storeBrowsers() {
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

    void openWebsites(bool singleRow) {
        takeSelection();
        list_.singleRow = singleRow;
        storeBrowsers();
        list_.openWebsites();
    }

    void close() {
        takeSelection();
        if (!list_.confirmClose())
            return;
        storeBrowsers();
        end(IDCANCEL);
    }

    void startEdit() {
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

    void showEditPanel(bool shown) {
        for (int id : kEditControls)
            ShowWindow(item(id), shown ? SW_SHOW : SW_HIDE);
        for (int i = 1; i < static_cast<int>(kButtonCommands.size()); ++i)
            ShowWindow(item(IDC_FIRST_WEB_BUTTON + i), shown ? SW_HIDE : SW_SHOW);
        if (!shown)
            SetFocus(list_.groupShown ? groups() : static_cast<HWND>(rows()));
    }

    void endEdit(bool accepted) {
        if (!accepted)
            list_.reject();
        showEditPanel(false);
        refresh();
    }

    void run(WebListCommand command) {
        if (list_.editing())
            return; // the panel is answered first
        takeSelection();
        using C = WebListCommand;
        switch (command) {
        case C::None:
            return;
        case C::LoadChecked:
            openWebsites(false);
            return;
        case C::OpenList:
            if (list_.openList())
                showCaption();
            break;
        case C::SaveList:
            if (list_.save())
                showCaption();
            break;
        case C::Info:
            ShowFileInformation(app_, skin(), hwnd(), app_.settings.WebListFile, list_.information());
            return;
        case C::Exit:
            close();
            return;
        case C::EditItem:
            startEdit();
            return;
        case C::AddItem:
            if (list_.addItem()) {
                refresh();
                showCaption();
                startEdit();
            }
            return;
        case C::Duplicate:
            if (list_.duplicate())
                showCaption();
            break;
        case C::Delete:
            list_.deleteSelected();
            break;
        case C::InsertSeparator:
            if (list_.insertSeparator())
                showCaption();
            break;
        case C::MoveUp:
            list_.moveUp();
            break;
        case C::MoveDown:
            list_.moveDown();
            break;
        case C::AddToGroup:
            list_.addToGroup();
            break;
        case C::OpenGroupWindow:
            list_.groupShown = true;
            break;
        }
        refresh();
        if (!list_.groupShown)
            SetFocus(rows());
    }

    void runCaption(std::wstring_view caption) {
        if (const WebListCommand *command = FindWebListCommand(caption))
            run(*command);
    }

    void chooseBrowser(int n) {
        if (const auto program = list_.chooseBrowser())
            setItemText(IDC_FIRST_BROWSER_PATH + n, *program);
    }

    void onCommand(int id, int code) override {
        if (id >= static_cast<int>(kFirstMenuCommand))
            return runCaption(menu_.caption(hwnd(), static_cast<UINT>(id)));
        if (id >= IDC_FIRST_WEB_BUTTON && id < IDC_FIRST_WEB_BUTTON + static_cast<int>(kButtonCommands.size()))
            return runCaption(kButtonCommands[static_cast<std::size_t>(id - IDC_FIRST_WEB_BUTTON)]);
        if (id >= IDC_FIRST_BROWSER_CHOICE && id < IDC_FIRST_BROWSER_CHOICE + 3) {
            CheckRadioButton(hwnd(), IDC_FIRST_BROWSER_CHOICE, IDC_FIRST_BROWSER_CHOICE + 2, id);
            return;
        }
        if (id >= IDC_FIRST_BROWSE_BROWSER && id < IDC_FIRST_BROWSE_BROWSER + 3)
            return chooseBrowser(id - IDC_FIRST_BROWSE_BROWSER);
        const HWND focus = GetFocus();
        switch (id) {
        case IDC_GROUP_LIST:
            if (code == LBN_DBLCLK)
                openWebsites(false);
            return;
        case IDC_EMPTY_GROUPS:
            if (list_.emptyGroups())
                refresh();
            return;
        case IDC_CLOSE_GROUP:
            showGroupPanel(false);
            return;
        case IDC_EDIT_ACCEPT:
            list_.accept(itemText(IDC_EDIT_NAME), itemText(IDC_EDIT_SITE));
            endEdit(true);
            return;
        case IDC_EDIT_REJECT:
            endEdit(false);
            return;
        case IDOK: // Enter in a list opens
            if (focus == rows())
                openWebsites(true);
            if (focus == groups())
                openWebsites(false);
            return;
        case IDCANCEL: // Esc in the group list closes the panel, elsewhere the window
            if (focus == groups())
                showGroupPanel(false);
            else
                close();
            return;
        }
    }

    // Enter and Esc belong to the edit panel's fields, and so do the three key commands.
    bool editKey(WPARAM key) {
        const bool ctrl = Held(VK_CONTROL), alt = Held(VK_MENU);
        switch (key) {
        case VK_RETURN:
            if (list_.enter(itemText(IDC_EDIT_NAME), itemText(IDC_EDIT_SITE)))
                endEdit(true);
            return true;
        case VK_ESCAPE:
            endEdit(false);
            return true;
        case 'B':
            if (!ctrl && !alt)
                return false;
            {
                std::wstring program = app_.settings.WebBrowser1, document;
                LaunchSuiteProgram(app_, program, document);
            }
            return true;
        case 'D':
            if (!ctrl || !alt)
                return false;
            commands_.run({L"", Command::ToggleDesktop});
            return true;
        case 'X':
            if (!ctrl || !alt)
                return false;
            ExploreFolder(app_, ToRef(hwnd()));
            return true;
        }
        return false;
    }

    // The model's texts and check marks, as the virtual list asks for them.
    void giveItem(LVITEMW &item) const {
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

    void toggleCheck(int row) {
        list_.toggleCheck(row);
        rows().redrawRow(row);
    }

    INT_PTR onNotify(const NMHDR &header) {
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

    INT_PTR onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
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
    bool translate(MSG &message) override {
        wchar_t type[16] = {};
        GetClassNameW(GetFocus(), type, 16);
        if (lstrcmpiW(type, L"Edit") == 0)
            return false;
        return menu_.accelerators() && TranslateAcceleratorW(hwnd(), menu_.accelerators(), &message);
    }

    App &app_;
    MainCommands &commands_;
    WebList list_;
    MenuBar menu_{WebListMenuRows()};
    FieldKeys editKeys_{{VK_RETURN, VK_ESCAPE}, true, [this](HWND, WPARAM key) {
                            return editKey(key);
                        }};
};

} // namespace

void ShowWebList(App &app, Skin &skin, MainCommands &commands, HWND owner) {
    WebListWindow(app, skin, commands).show(owner, IDD_WEB_LIST);
}

} // namespace orvane::ui
