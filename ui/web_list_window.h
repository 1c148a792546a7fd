// The web list window: the websites of a web list in a virtual list view,
// whose rows, check marks and texts come from the model, with the browser
// entries, the group panel over the list and the edit panel in the buttons'
// place. Its commands are in web_list_commands.cpp.
#pragma once

#include <windows.h>

#include <array>
#include <string_view>

#include "commands.h"
#include "controls.h"
#include "menu_bar.h"
#include "modal_dialog.h"
#include "resource.h"
#include "web_list.h"

namespace orvane::ui {

class WebListWindow : public ModalDialog {
public:
    WebListWindow(App &app, Skin &skin, MainCommands &commands)
        : ModalDialog(skin), app_(app), commands_(commands), list_(app) {
    }

private:
    // The buttons of the template, in the order of their identifiers: the menu command each one runs.
    static constexpr auto kButtonCommands = std::to_array<std::wstring_view>({
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

    void onInit() override;

    void showCaption();

    void takeSelection();

    void refresh();

    void showGroupPanel(bool shown);

    void storeBrowsers();

    void openWebsites(bool singleRow);

    void close();

    void startEdit();

    void showEditPanel(bool shown);

    void endEdit(bool accepted);

    void run(WebListCommand command);

    void runCaption(std::wstring_view caption);

    void chooseBrowser(int n);

    void onCommand(int id, int code) override;

    bool editKey(WPARAM key);

    void giveItem(LVITEMW &item) const;

    void toggleCheck(int row);

    INT_PTR onNotify(const NMHDR &header);

    INT_PTR onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    bool translate(MSG &message) override;

    App &app_;
    MainCommands &commands_;
    WebList list_;
    MenuBar menu_{WebListMenuRows()};
    FieldKeys editKeys_{{VK_RETURN, VK_ESCAPE}, true, [this](HWND, WPARAM key) {
                            return editKey(key);
                        }};
};

} // namespace orvane::ui
