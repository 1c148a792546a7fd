// The skin chooser: the skins of the skin folder, a preview of the selected
// one, and the commands that apply it. What is applied stays applied on exit.
#include <optional>

#include "app.h"
#include "controls.h"
#include "dialogs.h"
#include "handles.h"
#include "modal_dialog.h"
#include "resource.h"
#include "skin.h"
#include "skin_file.h"
#include "skin_preview.h"

namespace orvane::ui {

namespace {

class SkinChooser : public ModalDialog {
public:
    SkinChooser(App &app, Skin &skin, const SkinChooserActions &actions)
        : ModalDialog(skin), app_(app), actions_(actions) {
    }

private:
    ListBox list() const {
        return ListBox(GetDlgItem(hwnd(), IDC_SKIN_FILES));
    }

    // The skin files of SkinFolder; none when it is missing.
    void fillList() {
        list().clear();
        if (app_.settings.SkinFolder.empty())
            return;
        WIN32_FIND_DATAW found;
        const std::wstring pattern = SkinPathInFolder(app_.settings.SkinFolder, L"Skin_*.bmp");
        const UniqueFind search(FindFirstFileW(pattern.c_str(), &found));
        for (bool more = static_cast<bool>(search); more; more = FindNextFileW(search.get(), &found))
            // The short 8.3 names match the pattern too ("Skin_A.bmpx" as SKIN_A~1.BMP): the long name decides.
            if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) && IsSkinFileName(found.cFileName))
                list().add(found.cFileName);
    }

    std::wstring selectedName() const {
        const int at = list().selection();
        return at < 0 ? std::wstring() : list().text(at);
    }

    void showPreview() {
        preview_ = Skin();
        if (const std::wstring name = selectedName(); !name.empty())
            preview_.load(SkinPathInFolder(app_.settings.SkinFolder, name));
        InvalidateRect(GetDlgItem(hwnd(), IDC_SKIN_PREVIEW), nullptr, FALSE);
    }

    // A file that is no skin is not applied, but its name is kept: the next
    // start-up then falls back to the default skin.
    void changeSkin() {
        const std::wstring name = selectedName();
        if (name.empty())
            return;
        app_.settings.SkinFile = SkinPathInFolder(app_.settings.SkinFolder, name);
        if (IsUsableSkin(app_.files, app_.settings.SkinFile) && actions_.applySkin)
            actions_.applySkin();
    }

    void chooseFolder() {
        // Owned by the chooser, so the chooser cannot be used or closed while it is open.
        const auto folder = BrowseForFolder(hwnd(), L"Select a folder", app_.files.currentFolder());
        if (!folder || folder->empty())
            return;
        app_.settings.SkinFolder = *folder;
        setItemText(IDC_SKIN_FOLDER, *folder);
        fillList();
        showPreview();
        SetCurrentDirectoryW(folder->c_str());
    }

    void onInit() override {
        setItemText(IDC_SKIN_FOLDER, app_.settings.SkinFolder);
        fillList();
        const std::wstring &file = app_.settings.SkinFile;
        const std::wstring name = file.substr(file.find_last_of(L'\\') + 1);
        // Names compare as the file system does: "skin_blue.BMP" selects Skin_Blue.bmp.
        list().setSelection(name.empty() ? -1 : list().findExact(name));
        showPreview();
        // After the dialog manager has given the focus to the first control.
        PostMessageW(hwnd(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(static_cast<HWND>(list())), TRUE);
    }

    // Enter outside the buttons arrives as the default button (Use this skin), Esc as IDCANCEL.
    void onCommand(int id, int code) override {
        switch (id) {
        case IDC_SKIN_FILES:
            if (code == LBN_SELCHANGE)
                showPreview();
            if (code == LBN_DBLCLK)
                changeSkin();
            break;
        case IDOK:
        case IDC_CHANGE_SKIN:
            changeSkin();
            break;
        case IDC_GET_FOLDER:
            chooseFolder();
            break;
        case IDC_ADJUST_SKIN:
            if (actions_.adjustMenuColours)
                actions_.adjustMenuColours();
            break;
        case IDCANCEL:
        case IDC_EXIT:
            end(IDCANCEL);
            break;
        }
    }

    INT_PTR onMessage(UINT message, WPARAM, LPARAM lParam) override {
        const auto *item = reinterpret_cast<const DRAWITEMSTRUCT *>(lParam);
        if (message != WM_DRAWITEM || item->CtlID != IDC_SKIN_PREVIEW)
            return FALSE;
        DrawSkinPreview(*item, preview_, reinterpret_cast<HFONT>(SendMessageW(hwnd(), WM_GETFONT, 0, 0)));
        return TRUE;
    }

    App &app_;
    const SkinChooserActions &actions_;
    Skin preview_; // the selected skin, read but not applied
};

} // namespace

void ShowSkinChooser(App &app, Skin &skin, HWND owner, const SkinChooserActions &actions) {
    SkinChooser(app, skin, actions).show(owner, IDD_SKIN_CHOOSER);
}

} // namespace orvane::ui
