// The About box: the program's icon, name, version and what it is.
#include <vector>

#include "app.h"
#include "dialogs.h"
#include "dpi.h"
#include "handles.h"
#include "launch.h"
#include "modal_dialog.h"
#include "resource.h"

namespace orvane::ui {

namespace {

constexpr wchar_t kHomePage[] = L"https://orvane.example/";

std::wstring ProductVersion() {
    HRSRC found = FindResourceW(nullptr, MAKEINTRESOURCEW(VS_VERSION_INFO), MAKEINTRESOURCEW(16));
    if (!found)
        return {};
    const auto *data = static_cast<const char *>(LockResource(LoadResource(nullptr, found)));
    std::vector<char> copy(data, data + SizeofResource(nullptr, found)); // the query wants writable memory
    // The version library is needed here only, so it is loaded here only.
    using QueryFn = BOOL(WINAPI *)(const void *, const wchar_t *, void **, UINT *);
    static const UniqueModule library(LoadLibraryW(L"version.dll"));
    static const auto query =
        reinterpret_cast<QueryFn>(reinterpret_cast<void *>(GetProcAddress(library.get(), "VerQueryValueW")));
    wchar_t *text = nullptr;
    UINT length = 0;
    if (!query ||
        !query(copy.data(), L"\\StringFileInfo\\040904B0\\ProductVersion", reinterpret_cast<void **>(&text), &length))
        return {};
    return std::wstring(text, length ? length - 1 : 0);
}

class AboutDialog : public ModalDialog {
public:
    AboutDialog(App &app, Skin &skin, bool paletteKeyTaken)
        : ModalDialog(skin), app_(app), paletteKeyTaken_(paletteKeyTaken) {
    }

private:
    void onInit() override {
        const int size = ScaledForWindow(32, hwnd());
        icon_.reset(static_cast<HICON>(
            LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(1), IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
        SendDlgItemMessageW(hwnd(), IDC_ABOUT_PICTURE, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon_.get()));
        setItemText(IDC_ABOUT_VERSION, L"Version " + ProductVersion());
        if (paletteKeyTaken_)
            setItemText(IDC_ABOUT_HOTKEY, L"Ctrl+Alt+Space is taken by another program, so the palette has no hotkey.");
        SetFocus(GetDlgItem(hwnd(), IDOK));
    }
    void onCommand(int id, int code) override {
        if (id == IDC_ABOUT_PICTURE)
            LoadCustomBrowser(app_, kHomePage);
        else
            ModalDialog::onCommand(id, code);
    }

    App &app_;
    bool paletteKeyTaken_;
    UniqueIcon icon_;
};

} // namespace

void ShowAboutDialog(App &app, Skin &skin, HWND owner, bool paletteKeyTaken) {
    AboutDialog(app, skin, paletteKeyTaken).show(owner, IDD_ABOUT);
}

} // namespace orvane::ui
