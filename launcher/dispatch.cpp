#include "dispatch.h"

#include <array>

namespace orvane {

namespace {

constexpr DispatchRow Run(Tool tool) {
    return {SuiteToolOf(tool).caption, Command::SuiteTool, tool};
}
// The file box's caption on the bar, and the running-programs tool's caption
// that no item carries (so its row is never reached).
constexpr DispatchRow RunByOtherCaption(Tool tool) {
    return {SuiteToolOf(tool).otherCaption, Command::SuiteTool, tool};
}

using C = Command;

constexpr auto kRows = std::to_array<DispatchRow>({
    Run(Tool::FileManager),
    Run(Tool::FileInspector),
    Run(Tool::FileBox),
    Run(Tool::FileCopier),
    {L"&Windows Explorer", C::WindowsExplorer},
    Run(Tool::EmailManager),
    Run(Tool::FileFinder),
    Run(Tool::TextFinder),
    Run(Tool::QuickSearch),
    Run(Tool::DiskDrives),
    Run(Tool::ClipboardViewer),
    Run(Tool::StartupManager),
    {L"E&xit", C::Exit},
    Run(Tool::DocumentEditor),
    Run(Tool::NotesEditor),
    Run(Tool::TabbedEditor),
    Run(Tool::TextDatabases),
    Run(Tool::TabbedNotes),
    Run(Tool::TextUtility),
    Run(Tool::ScratchPad),
    Run(Tool::ShortTexts),
    Run(Tool::Outliner),
    Run(Tool::PdfViewer),
    {L"&Word", C::Word},
    {L"&PowerPoint", C::PowerPoint},
    {L"E&xcel", C::Excel},
    {L"&Access", C::Access},
    {L"P&ublisher", C::Publisher},
    {L"&Location of programs", C::ProgramLocations},
    Run(Tool::WebFileEditor),
    Run(Tool::FileTransfer),
    Run(Tool::ZipArchives),
    {L"Load &Deadlines file", C::LoadDeadlines},
    {L"&Get Deadlines file", C::GetDeadlines},
    {L"Load Addr&esses file", C::LoadAddresses},
    {L"Get Addresses &file", C::GetAddresses},
    {L"&About this program", C::About},
    Run(Tool::Diary),
    Run(Tool::ToDo),
    {L"&Custom browser", C::CustomBrowser},
    {L"Get c&ustom browser", C::GetCustomBrowser},
    {L"Web interface U&RL", C::WebmailUrl},
    {L"Use screen &width", C::ScreenWidth},
    {L"&Increase image size", C::IncreaseImageSize},
    {L"&Decrease image size", C::DecreaseImageSize},
    {L"Change &skin", C::ChangeSkin},
    {L"Set me&nu font", C::MenuFont},
    Run(Tool::Clock),
    Run(Tool::Calculator),
    {L"C&ustom programs", C::CustomPrograms},
    {L"Load your program", C::YourProgram},
    {L"&Goto desktop", C::ToggleDesktop},
    RunByOtherCaption(Tool::RunningPrograms),
    Run(Tool::ImageEditor),
    Run(Tool::ImageViewer),
    Run(Tool::Thumbnails),
    Run(Tool::Drawing),
    Run(Tool::Workflow),
    Run(Tool::Magnifier),
    {L"Wa&llpaper", C::Wallpaper},
    Run(Tool::SlideShow),
    {L"Open &web list", C::WebList},
    Run(Tool::PersonalFiles),
    Run(Tool::Workdesk),
    {L"Des&ktop", C::ToggleDesktop},
    RunByOtherCaption(Tool::FileBox),
    Run(Tool::TellmarkSet),
    Run(Tool::RunningPrograms),
    {L"Top/&bottom", C::TopBottom},
    {L"&Icons", C::Icons},
    Run(Tool::UnicodeExplorer),
    Run(Tool::UnicodeEditor),
});
static_assert(kRows.size() == 72);

// The row of a caption, found while compiling: a caption no row has does not compile.
consteval DispatchRow Row(std::wstring_view caption) {
    for (const DispatchRow &row : kRows)
        if (row.caption == caption)
            return row;
    throw "no dispatch row has this caption";
}

constexpr auto kStrip = std::to_array<StripIcon>({
    {Row(L"&Tellmark Set"), L"k20"},   {Row(L"&File manager"), L"k47"},
    {Row(L"File &inspector"), L"k1"},  {Row(L"&Personal files"), L"k21"},
    {Row(L"File &box"), L"k51"},       {Row(L"&Work&desk"), L"k36"},
    {Row(L"&Goto desktop"), L"k48"},   {Row(L"&Windows Explorer"), L"k37"},
    {Row(L"&Custom browser"), L"k40"}, {{Row(L"Web interface U&RL").caption, C::OpenWebmail}, L"k30"},
    {Row(L"&Word"), L"k14"},           {Row(L"&Document editor"), L"k7"},
    {Row(L"Text uti&lity"), L"k10"},   {Row(L"C&lipboard viewer"), L"k5"},
    {Row(L"File fi&nder"), L"k2"},     {Row(L"&Text finder"), L"k3"},
    {Row(L"&PDF viewer"), L"k13"},     {Row(L"&Outliner"), L"k12"},
    {Row(L"E&xcel"), L"k16"},          {Row(L"&PowerPoint"), L"k15"},
    {Row(L"&E-mail manager"), L"k49"}, {Row(L"Load Addr&esses file"), L"k27"},
    {Row(L"T&o-do list"), L"k41"},     {Row(L"Load &Deadlines file"), L"k25"},
    {Row(L"Di&ary"), L"k39"},          {Row(L"&Disk drives"), L"k4"},
});
static_assert(kStrip.size() == 26);

} // namespace

std::span<const DispatchRow> DispatchRows() {
    return kRows;
}

std::span<const StripIcon> StripIcons() {
    return kStrip;
}

const DispatchRow *FindDispatchRow(std::wstring_view caption, std::span<const DispatchRow> rows) {
    for (const DispatchRow &row : rows)
        if (row.caption == caption)
            return &row;
    return nullptr;
}

} // namespace orvane
