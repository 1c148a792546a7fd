// The program locations: where the Office programs are, the wallpaper, the
// return password and the web list. Every change goes straight into the
// settings, which are written when the program ends.
#include "app.h"
#include "dialogs.h"
#include "locations.h"
#include "modal_dialog.h"
#include "resource.h"

namespace orvane::ui {

namespace {

struct LocateButton {
    int button;
    int field;
    Choice choice;
};

constexpr LocateButton kButtons[] = {
    {IDC_WORD, IDC_WORD_PATH, Choice::Word},
    {IDC_EXCEL, IDC_EXCEL_PATH, Choice::Excel},
    {IDC_POWERPOINT, IDC_POWERPOINT_PATH, Choice::PowerPoint},
    {IDC_PUBLISHER, IDC_PUBLISHER_PATH, Choice::Publisher},
    {IDC_ACCESS, IDC_ACCESS_PATH, Choice::Access},
    {IDC_WALLPAPER, IDC_WALLPAPER_PATH, Choice::Wallpaper},
    {IDC_WEBLIST, IDC_WEBLIST_PATH, Choice::WebList},
};

class LocationsDialog : public ModalDialog {
public:
    LocationsDialog(App &app, Skin &skin) : ModalDialog(skin), app_(app) {
    }

private:
    void showFields() {
        for (const LocateButton &b : kButtons)
            setItemText(b.field, app_.settings.*kFileChoices[static_cast<std::size_t>(b.choice)].setting);
    }
    void onInit() override {
        showFields();
        CheckDlgButton(hwnd(), IDC_STRETCH, app_.settings.WallpaperStretch == 1 ? BST_CHECKED : BST_UNCHECKED);
        setItemText(IDC_PASSWORD, app_.settings.ReturnPassword);
    }
    void onCommand(int id, int code) override {
        for (const LocateButton &b : kButtons)
            if (id == b.button && ChooseIntoSetting(app_, b.choice))
                showFields();
        if (id == IDC_SAME_FOR_ALL && SameForAll(app_))
            showFields();
        if (id == IDC_STRETCH)
            app_.settings.WallpaperStretch = IsDlgButtonChecked(hwnd(), IDC_STRETCH) ? 1 : 0;
        if (id == IDC_PASSWORD && code == EN_CHANGE)
            app_.settings.ReturnPassword = itemText(IDC_PASSWORD);
        ModalDialog::onCommand(id, code);
    }

    App &app_;
};

} // namespace

void ShowProgramLocations(App &app, Skin &skin, HWND owner) {
    LocationsDialog(app, skin).show(owner, IDD_LOCATIONS);
}

} // namespace orvane::ui
