// Your program: the user's own program, chosen, typed and started.
#include "app.h"
#include "dialogs.h"
#include "locations.h"
#include "modal_dialog.h"
#include "resource.h"

namespace orvane::ui {

namespace {

class YourProgramDialog : public ModalDialog {
public:
    YourProgramDialog(App &app, Skin &skin) : ModalDialog(skin), app_(app) {
    }

private:
    void onInit() override {
        setItemText(IDC_PROGRAM, app_.settings.YourProgram);
    }
    void onCommand(int id, int code) override {
        if (id == IDC_PROGRAM && code == EN_CHANGE)
            app_.settings.YourProgram = itemText(IDC_PROGRAM);
        if (id == IDC_BROWSE && ChooseIntoSetting(app_, Choice::YourProgram))
            setItemText(IDC_PROGRAM, app_.settings.YourProgram);
        // A missing program is reported and the dialog stays open.
        if (id == IDOK && !StartYourProgram(app_))
            return;
        ModalDialog::onCommand(id, code);
    }

    App &app_;
};

} // namespace

void ShowYourProgram(App &app, Skin &skin, HWND owner) {
    YourProgramDialog(app, skin).show(owner, IDD_YOUR_PROGRAM);
}

} // namespace orvane::ui
