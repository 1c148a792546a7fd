// The entry dialog: the program and startup folder of one line of the list.
#include "app.h"
#include "conversions.h"
#include "dialogs.h"
#include "file_information.h"
#include "handles.h"
#include "helpers.h"
#include "modal_dialog.h"
#include "program_grids.h"
#include "resource.h"

namespace orvane::ui {

namespace {

class EntryDialog : public ModalDialog {
public:
    EntryDialog(App &app, Skin &skin, const CustomProgramTable &table, int entry)
        : ModalDialog(skin), app_(app), name_(table.DisplayNames[static_cast<std::size_t>(entry)]),
          entry_(entry), choice_{table.ProgramPaths[static_cast<std::size_t>(entry)],
                                 table.StartupFolders[static_cast<std::size_t>(entry)]} {
    }

    const EntryChoice &choice() const {
        return choice_;
    }

private:
    void onInit() override {
        showChoice();
    }
    void showChoice() {
        setItemText(IDC_ENTRY_FILE, choice_.program);
        setItemText(IDC_ENTRY_FOLDER, choice_.folder);
    }

    void onCommand(int id, int code) override {
        switch (id) {
        case IDC_CHANGE_FILE:
            // Lines are numbered from 1, as the editor shows them.
            if (const auto file =
                    app_.prompts.chooseFile({.title = L"Select program no.: " + std::to_wstring(entry_ + 1),
                                             .filter = L"Programs (*.exe)|*.exe",
                                             .preset = choice_.program}))
                choice_.program = *file;
            break;
        case IDC_CHANGE_FOLDER:
            if (const auto folder = BrowseForFolder(hwnd(), L"Select startup folder for: " + name_, choice_.folder))
                choice_.folder = *folder;
            break;
        case IDC_GET_DIRECTORY:
            choice_.folder = ParentFolder(choice_.program);
            break;
        case IDC_EMPTY_FOLDER:
            choice_.folder.clear();
            break;
        case IDC_TOGGLE_X86:
            choice_.program = ToggleX86(choice_.program);
            break;
        case IDC_START_PROGRAM:
            StartInFolder(app_, TrimBlanks(itemText(IDC_ENTRY_FILE)), TrimBlanks(itemText(IDC_ENTRY_FOLDER)));
            return;
        default:
            ModalDialog::onCommand(id, code);
            return;
        }
        showChoice();
    }

    App &app_;
    std::wstring name_;
    int entry_;
    EntryChoice choice_;
};

} // namespace

std::optional<EntryChoice> ShowEntryDialog(App &app, Skin &skin, HWND owner, const CustomProgramTable &table,
                                           int entry) {
    EntryDialog dialog(app, skin, table, entry);
    dialog.centreOver(ToHwnd(app.MainWindowRef));
    if (dialog.show(owner, IDD_ENTRY) != IDOK)
        return std::nullopt;
    return dialog.choice();
}

} // namespace orvane::ui
