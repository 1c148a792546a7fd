#include "menu.h"

#include <array>

#include "catalogue.h"

namespace orvane {

namespace {

using namespace keys;

constexpr MenuRow Title(std::wstring_view key, std::wstring_view caption) {
    return {L"", key, caption, L"", None};
}
constexpr MenuRow Item(std::wstring_view parent, std::wstring_view key, std::wstring_view caption,
                       std::wstring_view icon, Shortcut shortcut) {
    return {parent, key, caption, icon, shortcut};
}
constexpr MenuRow ToolItem(std::wstring_view parent, Tool tool, std::wstring_view icon, Shortcut shortcut) {
    return {parent, SuiteToolOf(tool).key, SuiteToolOf(tool).caption, icon, shortcut};
}
constexpr MenuRow Separator(std::wstring_view parent) {
    return {parent, L"", L"", L"", None};
}

constexpr wchar_t kFile[] = L"keyFile", kEdit[] = L"keyEdit", kOffice[] = L"keyOffice", kUtil[] = L"keyUtil",
                  kGraph[] = L"keyGraph", kMisc[] = L"keyMisc";

constexpr auto kRows = std::to_array<MenuRow>({
    Title(kFile, L"&File"),
    ToolItem(kFile, Tool::FileManager, L"k47", CtrlShift(Key('M'))),
    ToolItem(kFile, Tool::FileInspector, L"k1", CtrlShift(Key('Y'))),
    ToolItem(kFile, Tool::FileBox, L"k51", Ctrl(Key('L'))),
    ToolItem(kFile, Tool::FileCopier, L"k28", CtrlShift(Key('L'))),
    Item(kFile, L"keyWEx", L"&Windows Explorer", L"k37", CtrlShift(F(9))),
    ToolItem(kFile, Tool::UnicodeExplorer, L"k71", CtrlAlt(Key('U'))),
    ToolItem(kFile, Tool::StartupManager, L"k42", Alt(Key('S'))),
    Separator(kFile),
    ToolItem(kFile, Tool::FileFinder, L"k2", Plain(F(4))),
    ToolItem(kFile, Tool::TextFinder, L"k3", Ctrl(Key('F'))),
    ToolItem(kFile, Tool::QuickSearch, L"k50", Ctrl(Key('Q'))),
    ToolItem(kFile, Tool::DiskDrives, L"k4", CtrlShift(Key('D'))),
    ToolItem(kFile, Tool::ClipboardViewer, L"k5", Shift(F(2))),
    Separator(kFile),
    Item(kFile, L"keyExit", L"E&xit", L"k6", Alt(Key('Q'))),

    Title(kEdit, L"&Edit"),
    ToolItem(kEdit, Tool::DocumentEditor, L"k7", Plain(F(5))),
    ToolItem(kEdit, Tool::NotesEditor, L"k8", Ctrl(Key('N'))),
    ToolItem(kEdit, Tool::UnicodeEditor, L"k71", Ctrl(Key('U'))),
    ToolItem(kEdit, Tool::TabbedNotes, L"k34", Ctrl(Key('T'))),
    ToolItem(kEdit, Tool::TabbedEditor, L"k9", Ctrl(Key('B'))),
    ToolItem(kEdit, Tool::TextDatabases, L"k52", Ctrl(Key('D'))),
    ToolItem(kEdit, Tool::TextUtility, L"k10", Plain(F(6))),
    ToolItem(kEdit, Tool::ScratchPad, L"k11", Ctrl(Key('J'))),
    ToolItem(kEdit, Tool::ShortTexts, L"k43", CtrlShift(Key('Q'))),
    ToolItem(kEdit, Tool::EmailManager, L"k49", CtrlShift(Key('E'))),
    ToolItem(kEdit, Tool::Outliner, L"k12", CtrlShift(F(9))),
    ToolItem(kEdit, Tool::PdfViewer, L"k13", CtrlShift(F(8))),

    Title(kOffice, L"&Office"),
    Item(kOffice, L"keyWord", L"&Word", L"k14", CtrlShift(Key('W'))),
    Item(kOffice, L"keyPPnt", L"&PowerPoint", L"k15", CtrlShift(Key('P'))),
    Item(kOffice, L"keyExcel", L"E&xcel", L"k16", CtrlShift(Key('X'))),
    Item(kOffice, L"keyAcc", L"&Access", L"k17", CtrlShift(Key('A'))),
    Item(kOffice, L"keyPub", L"P&ublisher", L"k18", CtrlShift(Key('U'))),
    Item(kOffice, L"keyLoc", L"&Location of programs", L"k19", Plain(F(3))),

    // The menu opens with a separator, directly under its title.
    Title(kUtil, L"&Utilities"),
    Separator(kUtil),
    ToolItem(kUtil, Tool::WebFileEditor, L"k22", Plain(F(2))),
    ToolItem(kUtil, Tool::FileTransfer, L"k23", Ctrl(F(2))),
    ToolItem(kUtil, Tool::ZipArchives, L"k24", CtrlShift(F(2))),
    Separator(kUtil),
    ToolItem(kUtil, Tool::ToDo, L"k41", CtrlAlt(F(1))),
    Item(kUtil, L"keyLDead", L"Load &Deadlines file", L"k25", CtrlAlt(F(2))),
    Item(kUtil, L"keyGDead", L"&Get Deadlines file", L"k26", None),
    Item(kUtil, L"keyLAdd", L"Load Addr&esses file", L"k27", CtrlAlt(F(3))),
    Item(kUtil, L"keyGAdd", L"Get Addresses &file", L"k26", None),
    ToolItem(kUtil, Tool::Diary, L"k39", CtrlAlt(F(4))),
    Item(kUtil, L"keyWeb", L"Web interface U&RL", L"k30", CtrlAlt(F(5))),
    Item(kUtil, L"keyBrowser", L"&Custom browser", L"k40", Alt(Key('B'))),
    Item(kUtil, L"keyGetBrowser", L"Get c&ustom browser", L"k28", None),
    Item(kUtil, L"keyWebList", L"Open &web list", L"k60", Ctrl(Key('W'))),
    Separator(kUtil),
    Item(kUtil, L"keyYourProgram", L"Load your program", L"k45", Plain(F(9))),

    Title(kGraph, L"&Graphics"),
    ToolItem(kGraph, Tool::ImageEditor, L"k53", CtrlShift(F(8))),
    ToolItem(kGraph, Tool::ImageViewer, L"k54", CtrlAlt(F(8))),
    ToolItem(kGraph, Tool::Thumbnails, L"k55", None),
    ToolItem(kGraph, Tool::Drawing, L"k56", CtrlShift(Key('U'))),
    ToolItem(kGraph, Tool::Workflow, L"k57", None),
    ToolItem(kGraph, Tool::Magnifier, L"k50", None),
    // Kept without a command: the wallpaper window is reached from "Varia".
    Item(kGraph, L"keyWall", L"&Wallpaper", L"k58", Plain(F(7))),
    ToolItem(kGraph, Tool::SlideShow, L"k59", Shift(F(7))),

    Title(kMisc, L"&Varia"),
    Item(kMisc, L"keyAbout", L"&About this program", L"k29", None),
    Item(kMisc, L"keyWidth", L"Use screen &width", L"k31", CtrlAlt(Key('W'))),
    Item(kMisc, L"keyIncr", L"&Increase image size", L"k32", Plain(F(12))),
    Item(kMisc, L"keyDecr", L"&Decrease image size", L"k33", Shift(F(12))),
    Item(kMisc, L"keySkin", L"Change &skin", L"k25", CtrlShift(F(12))),
    Item(kMisc, L"keyWall", L"Wa&llpaper", L"k42", Alt(F(10))),
    Item(kMisc, L"keyFont", L"Set me&nu font", L"k34", None),
    ToolItem(kMisc, Tool::Clock, L"k35", Shift(F(11))),
    ToolItem(kMisc, Tool::Calculator, L"k38", CtrlShift(F(11))),
    Separator(kMisc),
    Item(kMisc, L"keyCustProgr", L"C&ustom programs", L"k42", Alt(F(10))),
    Item(kMisc, L"keyDesktop", L"&Goto desktop", L"k48", CtrlAlt(Key('D'))),

    // The bar's own commands, right of the menus.
    Title(L"keyvertBars", L"||"),
    Title(L"keyIcons", L"&Icons"),
    Title(L"keyUpDown", L"Top/&bottom"),
    Title(SuiteToolOf(Tool::Workdesk).key, SuiteToolOf(Tool::Workdesk).caption),
    Title(SuiteToolOf(Tool::PersonalFiles).key, SuiteToolOf(Tool::PersonalFiles).caption),
    Title(SuiteToolOf(Tool::FileBox).key, SuiteToolOf(Tool::FileBox).otherCaption),
    Title(SuiteToolOf(Tool::TellmarkSet).key, SuiteToolOf(Tool::TellmarkSet).caption),
    Title(SuiteToolOf(Tool::RunningPrograms).key, SuiteToolOf(Tool::RunningPrograms).caption),
    Title(L"keyDesk", L"Des&ktop"),
});

} // namespace

std::span<const MenuRow> MainMenuRows() {
    return kRows;
}

bool HasItems(std::span<const MenuRow> rows, std::wstring_view key) {
    for (const MenuRow &row : rows)
        if (row.parentKey == key && !key.empty())
            return true;
    return false;
}

wchar_t AccessLetter(std::wstring_view caption) {
    for (std::size_t at = caption.find(L'&'); at != std::wstring_view::npos && at + 1 < caption.size();
         at = caption.find(L'&', at + 2))
        if (caption[at + 1] != L'&')
            return caption[at + 1];
    return 0;
}

std::wstring WithoutAccessMarks(std::wstring_view caption) {
    std::wstring text;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == L'&' && (i + 1 == caption.size() || caption[i + 1] != L'&'))
            continue;
        text += caption[i];
        if (caption[i] == L'&')
            ++i; // "&&" is one "&"
    }
    return text;
}

std::wstring ShortcutText(Shortcut shortcut) {
    if (shortcut.key == 0)
        return {};
    std::wstring text;
    if (shortcut.modifiers & kCtrl)
        text += L"Ctrl+";
    if (shortcut.modifiers & kAlt)
        text += L"Alt+";
    if (shortcut.modifiers & kShift)
        text += L"Shift+";
    if (shortcut.key >= F(1) && shortcut.key <= F(12))
        return text + L"F" + std::to_wstring(shortcut.key - F(1) + 1);
    if (shortcut.key == kInsert)
        return text + L"Insert";
    if (shortcut.key == kDelete)
        return text + L"Delete";
    return text + static_cast<wchar_t>(shortcut.key);
}

} // namespace orvane
