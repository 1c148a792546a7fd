// The file information: facts about one file, with commands to copy them, see the
// file's properties, explore its folder or inspect it.
#include <windows.h>
#include <shellapi.h>

#include "app.h"
#include "catalogue.h"
#include "dialogs.h"
#include "file_information.h"
#include "handles.h"
#include "launch.h"
#include "modal_dialog.h"
#include "resource.h"

namespace orvane::ui {

namespace {

class FileInfoDialog : public ModalDialog {
public:
    FileInfoDialog(App &app, Skin &skin, const std::wstring &path, const FileInformation &info)
        : ModalDialog(skin), app_(app), path_(path), info_(info) {
    }

private:
    void onInit() override {
        setItemText(IDC_INFO_FILE, info_.fileName);
        setItemText(IDC_INFO_FOLDER, info_.folder);
        setItemText(IDC_INFO_SIZE, info_.size);
        setItemText(IDC_INFO_ALTERED, info_.altered);
        setItemText(IDC_INFO_TIME, info_.time);
        setItemText(IDC_INFO_DATE, info_.date);
        setItemText(IDC_INFO_EXISTS, std::wstring(L"File exists: ") + (info_.exists ? L"YES" : L"NO"));
    }

    void onCommand(int id, int code) override {
        switch (id) {
        case IDC_INFO_CLIP:
            CopyInformation(app_.prompts, info_);
            return;
        case IDC_INFO_PROPERTIES: {
            // The properties sheet is a verb of the item itself, not of its file type.
            SHELLEXECUTEINFOW request{};
            request.cbSize = sizeof request;
            request.fMask = SEE_MASK_INVOKEIDLIST;
            request.hwnd = hwnd();
            request.lpVerb = L"properties";
            request.lpFile = path_.c_str();
            request.nShow = SW_SHOWNORMAL;
            ShellExecuteExW(&request);
            return;
        }
        case IDC_INFO_EXPLORER:
            app_.shell.shellVerb(ToRef(hwnd()), L"explore", info_.folder, info_.folder, kShowNormal);
            return;
        case IDC_INFO_INSPECTOR: {
            std::wstring program = BuiltInPath(Tool::FileInspector), document = path_;
            LaunchSuiteProgram(app_, program, document);
            return;
        }
        }
        ModalDialog::onCommand(id, code);
    }

    App &app_;
    std::wstring path_;
    FileInformation info_;
};

} // namespace

void ShowFileInformation(App &app, Skin &skin, HWND owner, const std::wstring &path) {
    ShowFileInformation(app, skin, owner, path, InformationOf(app, path));
}

void ShowFileInformation(App &app, Skin &skin, HWND owner, const std::wstring &path, const FileInformation &info) {
    FileInfoDialog dialog(app, skin, path, info);
    dialog.centreOver(ToHwnd(app.MainWindowRef));
    dialog.show(owner, IDD_FILE_INFO);
}

} // namespace orvane::ui
