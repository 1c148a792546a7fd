// The input box: a prompt and one line of text, with a way to look up a
// folder or a file while typing.
#include "app.h"
#include "catalogue.h"
#include "dialogs.h"
#include "handles.h"
#include "launch.h"
#include "modal_dialog.h"
#include "resource.h"

namespace orvane::ui {

namespace {

constexpr int kDesktopFolder = 0x10;

class InputBox : public ModalDialog {
public:
    InputBox(App &app, Skin &skin, const std::wstring &prompt, const std::wstring &preset)
        : ModalDialog(skin), app_(app), prompt_(prompt), preset_(preset) {
    }
    // Empty unless OK ended the box: a box closed any other way, even with its
    // owner, answers nothing.
    const std::wstring &text() const {
        return text_;
    }

private:
    void onInit() override {
        setItemText(IDC_PROMPT, prompt_);
        setItemText(IDC_BOX_TEXT, preset_);
        SendDlgItemMessageW(hwnd(), IDC_BOX_TEXT, EM_SETSEL, 0, -1);
        SetFocus(GetDlgItem(hwnd(), IDC_BOX_TEXT));
    }
    void onCommand(int id, int code) override {
        switch (id) {
        case IDOK:
            text_ = itemText(IDC_BOX_TEXT);
            break;
        case IDC_DESKTOP_FOLDER: {
            const std::wstring desktop = app_.shell.specialFolder(kDesktopFolder);
            app_.shell.shellVerb(ToRef(hwnd()), L"open", desktop, desktop, kShowNormal);
            return;
        }
        case IDC_EXPLORER:
            ExploreFolder(app_, ToRef(hwnd()));
            return;
        case IDC_INSPECTOR: {
            std::wstring program = BuiltInPath(Tool::FileInspector), document;
            LaunchSuiteProgram(app_, program, document);
            return;
        }
        }
        ModalDialog::onCommand(id, code);
    }

    App &app_;
    std::wstring prompt_, preset_, text_;
};

} // namespace

std::wstring ShowInputBox(App &app, Skin &skin, HWND owner, const std::wstring &prompt, const std::wstring &preset) {
    InputBox box(app, skin, prompt, preset);
    box.show(owner, IDD_INPUT_BOX);
    return box.text();
}

} // namespace orvane::ui
