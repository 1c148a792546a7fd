// The clock: today's date, set once; the time and its seconds, written
// every 100 ms; the first click on it or key pressed in it closes it.
#include "clock.h"
#include "dialogs.h"
#include "dpi.h"
#include "handles.h"
#include "modal_dialog.h"
#include "resource.h"

namespace orvane::ui {

namespace {

constexpr UINT_PTR kTimer = 1;
constexpr UINT kTickMilliseconds = 100;

// The key catcher, the dialog's one control that takes the focus. Wanting
// every key keeps the dialog manager from taking Esc, Enter, Tab and the
// arrows for itself; each key pressed is passed on as a command.
LRESULT CALLBACK KeyCatcher(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_GETDLGCODE:
        return DLGC_WANTALLKEYS;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        SendMessageW(GetParent(window), WM_COMMAND, GetDlgCtrlID(window), reinterpret_cast<LPARAM>(window));
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

// The label's font: the dialog's face at the given size, in the window's DPI.
UniqueFont LabelFont(HWND dialog, int points, LONG weight) {
    LOGFONTW face{};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(dialog, WM_GETFONT, 0, 0)), sizeof face, &face);
    face.lfHeight = -MulDiv(points, static_cast<int>(WindowDpi(dialog)), 72);
    face.lfWeight = weight;
    return UniqueFont(CreateFontIndirectW(&face));
}

class ClockWindow : public ModalDialog {
public:
    explicit ClockWindow(Skin &skin) : ModalDialog(skin) {
    }

private:
    void onInit() override {
        timeFont_ = LabelFont(hwnd(), 28, FW_BOLD);
        secondsFont_ = LabelFont(hwnd(), 11, FW_NORMAL);
        SendDlgItemMessageW(hwnd(), IDC_CLOCK_TIME, WM_SETFONT, reinterpret_cast<WPARAM>(timeFont_.get()), FALSE);
        SendDlgItemMessageW(hwnd(), IDC_CLOCK_SECONDS, WM_SETFONT, reinterpret_cast<WPARAM>(secondsFont_.get()), FALSE);
        SYSTEMTIME now{};
        GetLocalTime(&now);
        wchar_t date[128] = {};
        GetDateFormatW(LOCALE_USER_DEFAULT, 0, &now, kClockDatePicture, date, 128);
        setItemText(IDC_CLOCK_DATE, date);
        tick();
        SetTimer(hwnd(), kTimer, kTickMilliseconds, nullptr);
    }

    void tick() {
        SYSTEMTIME now{};
        GetLocalTime(&now);
        setItemText(IDC_CLOCK_TIME, ClockTimeText(now.wHour, now.wMinute));
        // Hidden while it changes, so the seconds do not flicker.
        HWND seconds = GetDlgItem(hwnd(), IDC_CLOCK_SECONDS);
        ShowWindow(seconds, SW_HIDE);
        setItemText(IDC_CLOCK_SECONDS, ClockSecondsText(now.wSecond));
        ShowWindow(seconds, SW_SHOW);
    }

    // A key (from the catcher), a click on a label, OK, Cancel or the close box.
    void onCommand(int, int) override {
        end(IDOK);
    }

    INT_PTR onMessage(UINT message, WPARAM wParam, LPARAM) override {
        switch (message) {
        case WM_TIMER:
            if (wParam == kTimer)
                tick();
            return TRUE;
        case WM_LBUTTONDOWN: // a click on the window
        case WM_CONTEXTMENU: // a right click, on the window or a label
            end(IDOK);
            return TRUE;
        case WM_DESTROY:
            KillTimer(hwnd(), kTimer);
            return TRUE;
        }
        return FALSE;
    }

    UniqueFont timeFont_, secondsFont_;
};

} // namespace

void ShowClockWindow(Skin &skin, HWND owner) {
    static const ATOM catcher = [] {
        WNDCLASSW type{};
        type.lpfnWndProc = KeyCatcher;
        type.hInstance = GetModuleHandleW(nullptr);
        type.lpszClassName = L"OrvaneClockKeys";
        return RegisterClassW(&type);
    }();
    if (catcher)
        ClockWindow(skin).show(owner, IDD_CLOCK);
}

} // namespace orvane::ui
