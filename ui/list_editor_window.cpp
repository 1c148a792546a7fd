// The custom list editor: the 64 lines of the list, each a number, a name
// field and a program field, scrolling in their panel; every edit goes
// straight into the shared table, through the editor's rules.
#include <windows.h>

#include "app.h"
#include "controls.h"
#include "dialogs.h"
#include "dpi.h"
#include "list_editor.h"
#include "menu_bar.h"
#include "modal_dialog.h"
#include "resource.h"
#include "skin.h"

namespace orvane::ui {

namespace {

constexpr int kLines = static_cast<int>(kCustomEntries);
constexpr wchar_t kLinesClass[] = L"Orvane.EditorLines";

bool IsName(int id) {
    return id >= IDC_FIRST_NAME_FIELD && id < IDC_FIRST_NAME_FIELD + kLines;
}
bool IsProgram(int id) {
    return id >= IDC_FIRST_PROGRAM_FIELD && id < IDC_FIRST_PROGRAM_FIELD + kLines;
}
int LineOf(int id) {
    return IsName(id) ? id - IDC_FIRST_NAME_FIELD : id - IDC_FIRST_PROGRAM_FIELD;
}

// The panel's line pitch in pixels, kept with the panel for its scroll bar.
int Pitch(HWND panel) {
    return static_cast<int>(GetWindowLongPtrW(panel, GWLP_USERDATA));
}
// The skin the editor paints with, kept with the panel in its window's extra bytes.
const Skin *PanelSkin(HWND panel) {
    return reinterpret_cast<const Skin *>(GetWindowLongPtrW(panel, 0));
}

void ScrollPanelTo(HWND panel, int position) {
    SCROLLINFO info{sizeof info, SIF_ALL, 0, 0, 0, 0, 0};
    GetScrollInfo(panel, SB_VERT, &info);
    position = std::clamp(position, 0, std::max(0, info.nMax + 1 - static_cast<int>(info.nPage)));
    if (position == info.nPos)
        return;
    const int delta = info.nPos - position;
    info.fMask = SIF_POS;
    info.nPos = position;
    SetScrollInfo(panel, SB_VERT, &info, TRUE);
    ScrollWindowEx(panel, 0, delta, nullptr, nullptr, nullptr, nullptr, SW_SCROLLCHILDREN | SW_INVALIDATE | SW_ERASE);
}

// The panel holds the lines; their notifications and colours are the dialog's business.
LRESULT CALLBACK LinesPanel(HWND panel, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC:
        return SendMessageW(GetParent(panel), message, wParam, lParam);
    case WM_ERASEBKGND:
        if (const Skin *skin = PanelSkin(panel))
            skin->paintBackground(panel, reinterpret_cast<HDC>(wParam));
        return TRUE;
    case WM_MOUSEWHEEL:
        ScrollPanelTo(panel,
                      GetScrollPos(panel, SB_VERT) - GET_WHEEL_DELTA_WPARAM(wParam) * 3 * Pitch(panel) / WHEEL_DELTA);
        return 0;
    case WM_VSCROLL: {
        SCROLLINFO info{sizeof info, SIF_ALL, 0, 0, 0, 0, 0};
        GetScrollInfo(panel, SB_VERT, &info);
        const int page = static_cast<int>(info.nPage);
        switch (LOWORD(wParam)) {
        case SB_LINEUP:
            ScrollPanelTo(panel, info.nPos - Pitch(panel));
            break;
        case SB_LINEDOWN:
            ScrollPanelTo(panel, info.nPos + Pitch(panel));
            break;
        case SB_PAGEUP:
            ScrollPanelTo(panel, info.nPos - page);
            break;
        case SB_PAGEDOWN:
            ScrollPanelTo(panel, info.nPos + page);
            break;
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION:
            ScrollPanelTo(panel, info.nTrackPos);
            break;
        case SB_TOP:
            ScrollPanelTo(panel, 0);
            break;
        case SB_BOTTOM:
            ScrollPanelTo(panel, info.nMax);
            break;
        }
        return 0;
    }
    }
    return DefWindowProcW(panel, message, wParam, lParam);
}

class ListEditorWindow : public ModalDialog {
public:
    ListEditorWindow(App &app, Skin &skin, CustomProgramTable &table)
        : ModalDialog(skin), app_(app), table_(table), editor_(app, table) {
    }

private:
    int scaled(int pixels) const {
        return ScaledForWindow(pixels, hwnd());
    }
    HWND panel() const {
        return GetDlgItem(hwnd(), IDC_EDITOR_LINES);
    }
    HWND field(int id) const {
        return GetDlgItem(panel(), id);
    }

    void onInit() override {
        menu_.setColours(hwnd(), skin().menuColours());
        menu_.buildGrowing(hwnd());
        createLines();
        if (LoadCustomList(app_, table_))
            refill();
        showCaption();
        SetFocus(field(IDC_FIRST_NAME_FIELD));
        setCurrentLine(0);
    }

    void createLines() {
        HWND lines = panel();
        RECT client{};
        GetClientRect(lines, &client);
        const int pitch = scaled(26), height = scaled(22), marker = scaled(16), number = scaled(24);
        const int name = (client.right - marker - number) * 2 / 5;
        SetWindowLongPtrW(lines, GWLP_USERDATA, pitch);
        SetWindowLongPtrW(lines, 0, reinterpret_cast<LONG_PTR>(&skin()));
        const auto font = static_cast<WPARAM>(SendMessageW(hwnd(), WM_GETFONT, 0, 0));
        const auto make = [&](const wchar_t *type, DWORD style, DWORD exStyle, int id, const std::wstring &text, int x,
                              int y, int width) {
            HWND control =
                CreateWindowExW(exStyle, type, text.c_str(), WS_CHILD | WS_VISIBLE | style, x, y, width, height, lines,
                                reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
            SendMessageW(control, WM_SETFONT, font, FALSE);
            return control;
        };
        make(L"STATIC", SS_CENTER | SS_CENTERIMAGE, 0, IDC_LINE_MARKER, L"\u00BB", 0, 0, marker);
        for (int line = 0; line < kLines; ++line) {
            const int y = line * pitch + (pitch - height) / 2;
            make(L"STATIC", SS_RIGHT | SS_CENTERIMAGE, 0, IDC_FIRST_LINE_NUMBER + line, std::to_wstring(line + 1),
                 marker, y, number - scaled(4));
            for (const auto &[id, x, width] :
                 {std::tuple(IDC_FIRST_NAME_FIELD + line, marker + number, name - scaled(4)),
                  std::tuple(IDC_FIRST_PROGRAM_FIELD + line, marker + number + name,
                             static_cast<int>(client.right) - marker - number - name)}) {
                fieldKeys_.attach(make(L"EDIT", WS_TABSTOP | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE, id, L"", x, y, width));
            }
        }
        SCROLLINFO info{
            sizeof info, SIF_RANGE | SIF_PAGE | SIF_POS, 0, kLines * pitch - 1, static_cast<UINT>(client.bottom), 0, 0};
        SetScrollInfo(lines, SB_VERT, &info, TRUE);
    }

    void showCaption() {
        SetWindowTextW(hwnd(), EditorCaption(app_.settings.CustomListFile).c_str());
    }

    // A field takes the table's text, with the caret after its last character.
    void showField(int id, const std::wstring &text) {
        HWND edit = field(id);
        if (WindowText(edit) != text)
            SetWindowTextW(edit, text.c_str());
        SendMessageW(edit, EM_SETSEL, text.size(), text.size());
    }

    void refill() {
        for (int line = 0; line < kLines; ++line) {
            showField(IDC_FIRST_NAME_FIELD + line, table_.DisplayNames[static_cast<std::size_t>(line)]);
            showField(IDC_FIRST_PROGRAM_FIELD + line, table_.ProgramPaths[static_cast<std::size_t>(line)]);
        }
    }

    // The marker goes to the line, and the panel scrolls to show it.
    void setCurrentLine(int line) {
        editor_.currentLine = line;
        const int pitch = Pitch(panel());
        RECT client{};
        GetClientRect(panel(), &client);
        const int position = GetScrollPos(panel(), SB_VERT), top = line * pitch;
        if (top < position)
            ScrollPanelTo(panel(), top);
        if (top + pitch > position + client.bottom)
            ScrollPanelTo(panel(), top + pitch - client.bottom);
        RECT marker{};
        GetWindowRect(field(IDC_LINE_MARKER), &marker);
        MapWindowPoints(nullptr, panel(), reinterpret_cast<POINT *>(&marker), 2);
        SetWindowPos(field(IDC_LINE_MARKER), nullptr, 0,
                     top - GetScrollPos(panel(), SB_VERT) + (pitch - (marker.bottom - marker.top)) / 2, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }

    // The focus moves to the same kind of field on another line, or to the other field of this line.
    void focusField(bool name, int line) {
        if (line < 0 || line >= kLines)
            return;
        SetFocus(field((name ? IDC_FIRST_NAME_FIELD : IDC_FIRST_PROGRAM_FIELD) + line));
    }

    bool fieldKey(int id, WPARAM key) {
        const int line = LineOf(id);
        const bool name = IsName(id);
        const bool ctrlOnly = GetKeyState(VK_CONTROL) < 0 && GetKeyState(VK_SHIFT) >= 0 && GetKeyState(VK_MENU) >= 0;
        switch (key) {
        case VK_RETURN:
            editor_.startLine(line);
            return true;
        case VK_DOWN:
            focusField(name, line + 1);
            return true;
        case VK_UP:
            focusField(name, line - 1);
            return true;
        case VK_RIGHT:
            if (!name || !ctrlOnly)
                return false;
            focusField(false, line);
            return true;
        case VK_LEFT:
            if (name || !ctrlOnly)
                return false;
            focusField(true, line);
            return true;
        }
        return false;
    }

    void fieldEvent(int id, int code) {
        const int line = LineOf(id);
        const auto index = static_cast<std::size_t>(line);
        if (code == EN_SETFOCUS)
            setCurrentLine(line);
        if (code == EN_CHANGE)
            IsName(id) ? editor_.setName(line, WindowText(field(id))) : editor_.setProgram(line, WindowText(field(id)));
        if (code == EN_KILLFOCUS && IsName(id)) {
            editor_.leaveName(line);
            showField(IDC_FIRST_PROGRAM_FIELD + line, table_.ProgramPaths[index]);
        }
    }

    void move(bool up) {
        const HWND focus = GetFocus();
        const bool name = !IsProgram(GetDlgCtrlID(focus)) || GetParent(focus) != panel();
        if (!(up ? editor_.moveUp() : editor_.moveDown()))
            return;
        refill();
        focusField(name, editor_.currentLine);
    }

    void chooseEntry() {
        const int line = editor_.currentLine;
        if (const auto choice = ShowEntryDialog(app_, skin(), hwnd(), table_, line)) {
            editor_.takeEntry(choice->program, choice->folder);
            showField(IDC_FIRST_PROGRAM_FIELD + line, table_.ProgramPaths[static_cast<std::size_t>(line)]);
        }
    }

    void run(EditorCommand command) {
        switch (command) {
        case EditorCommand::Load:
            if (editor_.loadList())
                refill();
            showCaption();
            break;
        case EditorCommand::Save:
            editor_.saveList();
            showCaption();
            break;
        case EditorCommand::Add:
            editor_.insertLine();
            refill();
            break;
        case EditorCommand::Delete:
            if (editor_.deleteLine())
                refill();
            break;
        case EditorCommand::Info:
            ShowFileInformation(app_, skin(), hwnd(), app_.settings.CustomListFile);
            break;
        case EditorCommand::Exit:
            end(IDCANCEL);
            break;
        }
    }

    void onCommand(int id, int code) override {
        if (IsName(id) || IsProgram(id))
            return fieldEvent(id, code);
        if (id >= static_cast<int>(kFirstMenuCommand)) {
            if (const EditorCommand *command = FindEditorCommand(menu_.caption(hwnd(), static_cast<UINT>(id))))
                run(*command);
            return;
        }
        const auto buttons = EditorMenuRows().size() - 1; // every command but Exit has its button
        if (id >= IDC_FIRST_EDITOR_BUTTON && id < IDC_FIRST_EDITOR_BUTTON + static_cast<int>(buttons))
            return run(
                *FindEditorCommand(EditorMenuRows()[static_cast<std::size_t>(id - IDC_FIRST_EDITOR_BUTTON)].caption));
        switch (id) {
        case IDC_MOVE_UP:
            move(true);
            break;
        case IDC_MOVE_DOWN:
            move(false);
            break;
        case IDC_GET_PROGRAM:
            chooseEntry();
            break;
        case IDC_ACCEPT:
        case IDCANCEL:
            end(IDCANCEL);
            break;
        }
    }

    INT_PTR onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        return menu_.dialogMessage(hwnd(), skin(), message, wParam, lParam);
    }

    App &app_;
    CustomProgramTable &table_;
    CustomListEditor editor_;
    MenuBar menu_{EditorMenuRows()};
    // Enter belongs to the field, not to the dialog.
    FieldKeys fieldKeys_{{VK_RETURN}, false, [this](HWND field, WPARAM key) {
                             return fieldKey(GetDlgCtrlID(field), key);
                         }};
};

} // namespace

void ShowCustomListEditor(App &app, Skin &skin, CustomProgramTable &table, HWND owner) {
    static const ATOM lines = [] {
        WNDCLASSW type{};
        type.lpfnWndProc = LinesPanel;
        type.cbWndExtra = sizeof(LONG_PTR);
        type.hInstance = GetModuleHandleW(nullptr);
        type.hCursor = LoadCursorW(nullptr, IDC_ARROW);
        type.lpszClassName = kLinesClass;
        return RegisterClassW(&type);
    }();
    if (lines)
        ListEditorWindow(app, skin, table).show(owner, IDD_LIST_EDITOR);
}

} // namespace orvane::ui
