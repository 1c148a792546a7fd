// The web list window's commands: from its menu, its buttons, the browser
// entries, and the keys of the edit panel's fields.
#include "web_list_window.h"

#include "app.h"
#include "dialogs.h"
#include "launch.h"
#include "skin.h"

namespace orvane::ui {

namespace {

bool Held(int key) {
    return GetKeyState(key) < 0;
}

} // namespace

void WebListWindow::run(WebListCommand command) {
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

void WebListWindow::runCaption(std::wstring_view caption) {
    if (const WebListCommand *command = FindWebListCommand(caption))
        run(*command);
}

void WebListWindow::chooseBrowser(int n) {
    if (const auto program = list_.chooseBrowser())
        setItemText(IDC_FIRST_BROWSER_PATH + n, *program);
}

void WebListWindow::onCommand(int id, int code) {
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
bool WebListWindow::editKey(WPARAM key) {
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
} // namespace orvane::ui
