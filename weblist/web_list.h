// The web list window's rules: the rows and groups in memory, every editing
// operation, loading and saving, and opening websites in the chosen browser.
// The window shows this model and passes events here.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "file_information.h"
#include "menu.h"
#include "web_list_file.h"

namespace orvane {

class App;

// The window's menu, and the dispatch of its captions.
enum class WebListCommand {
    None, // a menu of the bar, or a separator
    LoadChecked,
    OpenList,
    SaveList,
    Info,
    Exit,
    EditItem,
    AddItem,
    Duplicate,
    Delete,
    InsertSeparator,
    MoveUp,
    MoveDown,
    AddToGroup,
    OpenGroupWindow,
};
std::span<const MenuRow> WebListMenuRows();
const WebListCommand *FindWebListCommand(std::wstring_view caption);

// What the edit panel shows when editing starts.
struct WebEdit {
    std::wstring caption, name, site;
    bool group = false;
};

class WebList {
public:
    explicit WebList(App &app) : app_(app) {
    }

    WebListContent content;
    std::vector<WebRow> &rows = content.rows;
    std::vector<std::wstring> &groups = content.groups;
    int current = -1;                        // the current row; -1 for none
    int currentGroup = -1;                   // the current group entry; -1 for none
    std::vector<std::size_t> selectedGroups; // as the group list shows them
    bool changed = false;                    // unsaved changes
    bool groupShown = false;                 // the group panel covers the rows
    bool singleRow = false;                  // the next opening is of the current row alone

    WebList(const WebList &) = delete;
    WebList &operator=(const WebList &) = delete;

    // "Website list :  <path>  ( <n> entries )"
    std::wstring caption() const;

    // Reads WebListFile; false, after saying so, when it cannot be opened or is too large to read whole.
    bool load();
    // Asks for a name and writes the lists there; false when nothing was written.
    bool save();
    // Another list, chosen by the user; unsaved edits of this one are dropped.
    // True when one was read.
    bool openList();
    // Asks to save while there are unsaved changes; false when the user cancels.
    bool confirmClose();
    // The six facts of the information dialog.
    FileInformation information();
    // The browser program for entry 1 to 3, as the user chose it; nothing when cancelled.
    std::optional<std::wstring> chooseBrowser();

    // The editing operations. Each returns whether it changed what the lists show.
    bool addItem(); // the new empty row is then edited
    bool duplicate();
    bool insertSeparator();
    bool deleteSelected(); // marks, after asking
    bool moveUp() {
        return move(-1);
    }
    bool moveDown() {
        return move(1);
    }
    bool addToGroup(); // shows the group panel
    bool emptyGroups();
    void toggleCheck(int row);

    // Editing the current row, or the current group entry while the group panel
    // is shown; nothing for a separator or where there is nothing to edit.
    std::optional<WebEdit> startEdit();
    // Enter in the panel: refused, after saying why, when either field is empty.
    bool enter(const std::wstring &name, const std::wstring &site);
    // The accept button: taken as it stands.
    void accept(const std::wstring &name, const std::wstring &site);
    void reject() {
        editing_ = Editing::None;
    }
    bool editing() const {
        return editing_ != Editing::None;
    }

    // Starts the chosen browser with the checked websites, the current row or
    // the current group, asking first when there are four or more.
    void openWebsites();

private:
    // The file becomes WebListFile unless it is too large, which changes nothing.
    bool read(const std::wstring &path);
    bool refuseInGroupPanel();
    void append(std::wstring name, std::wstring address);
    void makeCurrent(int row);
    bool move(int step);

    enum class Editing {
        None,
        Row,
        Group
    } editing_ = Editing::None;
    int editIndex_ = -1;
    App &app_;
};

} // namespace orvane
