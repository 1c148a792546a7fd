// The Tellmark Set's own tools: one table serves the menu bar, the command
// dispatch, the icon strip, the custom programs window and the demo's
// stand-in suite. Every tool lives under C:\Drive_G\TellmarkSet\<folder>\<program>.exe;
// a few lie one level deeper, inside another tool's folder.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvane {

enum class Tool : std::uint8_t {
    FileManager,
    FileInspector,
    FileBox,
    FileCopier,
    UnicodeExplorer,
    StartupManager,
    FileFinder,
    TextFinder,
    QuickSearch,
    DiskDrives,
    ClipboardViewer,
    DocumentEditor,
    NotesEditor,
    UnicodeEditor,
    TabbedNotes,
    TabbedEditor,
    TextDatabases,
    TextUtility,
    ScratchPad,
    ShortTexts,
    EmailManager,
    Outliner,
    PdfViewer,
    WebFileEditor,
    FileTransfer,
    ZipArchives,
    ToDo,
    Diary,
    ImageEditor,
    ImageViewer,
    Thumbnails,
    Drawing,
    Workflow,
    Magnifier,
    SlideShow,
    Calculator,
    Clock,
    Workdesk,
    PersonalFiles,
    RunningPrograms,
    TellmarkSet,
    AddressGrid,
    Count
};

struct SuiteTool {
    Tool tool;
    std::wstring_view role;
    std::wstring_view key;     // the menu item's key
    std::wstring_view caption; // with "&" before the access letter; empty for a tool no item starts
    // A second caption of the same tool: the file box's on the bar, and the
    // running-programs tool's one that only the dispatch knows.
    std::wstring_view otherCaption;
    std::wstring_view folder;  // below the suite folder
    std::wstring_view program; // without ".exe"
};

inline constexpr std::array<SuiteTool, static_cast<std::size_t>(Tool::Count)> kSuiteTools = {{
    {Tool::FileManager, L"file manager", L"keyFileMan", L"&File manager", L"", L"TS_Files", L"TS_Files"},
    {Tool::FileInspector, L"file inspection", L"keyInspect", L"File &inspector", L"", L"TS_Inspect", L"TS_Inspect"},
    {Tool::FileBox, L"file box", L"keyFileBox", L"File &box", L"File bo&x", L"TS_FileBox", L"TS_FileBox"},
    {Tool::FileCopier, L"file copier", L"keyCopier", L"File &copier", L"", L"TS_Copier", L"TS_Copier"},
    {Tool::UnicodeExplorer, L"Unicode file explorer", L"keyUniFiles", L"&Unicode file explorer", L"", L"TS_UniFiles",
     L"TS_UniFiles"},
    {Tool::StartupManager, L"start-up manager", L"keyStartup", L"&Start-up manager", L"", L"TS_Startup", L"TS_Startup"},
    {Tool::FileFinder, L"file finder", L"keyFinder", L"File fi&nder", L"", L"TS_Finder", L"TS_Finder"},
    {Tool::TextFinder, L"text finder", L"keyTextFind", L"&Text finder", L"", L"TS_TextFind", L"TS_TextFind"},
    {Tool::QuickSearch, L"fast file search", L"keyQuickFind", L"&Quick search", L"", L"TS_QuickFind", L"TS_QuickFind"},
    {Tool::DiskDrives, L"disk-drive utility", L"keyDrives", L"&Disk drives", L"", L"TS_Drives", L"TS_Drives"},
    {Tool::ClipboardViewer, L"clipboard viewer", L"keyClipboard", L"C&lipboard viewer", L"", L"TS_Clipboard",
     L"TS_Clipboard"},
    {Tool::DocumentEditor, L"document editor", L"keyDocEdit", L"&Document editor", L"", L"TS_DocEdit", L"TS_DocEdit"},
    {Tool::NotesEditor, L"notes editor", L"keyNoteEdit", L"&Notes editor", L"", L"TS_NoteEdit", L"TS_NoteEdit"},
    {Tool::UnicodeEditor, L"Unicode editor", L"keyUniEdit", L"&Unicode editor", L"", L"TS_UniEdit", L"TS_UniEdit"},
    {Tool::TabbedNotes, L"tabbed notes", L"keyTabNotes", L"Ta&bbed notes", L"", L"TS_TabNotes", L"TS_TabNotes"},
    {Tool::TabbedEditor, L"tabbed text editor", L"keyTabEdit", L"&Tabbed text editor", L"", L"TS_TabEdit",
     L"TS_TabEdit"},
    {Tool::TextDatabases, L"text databases", L"keyTextBase", L"Te&xt databases", L"", L"TS_TextBase", L"TS_TextBase"},
    {Tool::TextUtility, L"general text utility", L"keyTextTools", L"Text uti&lity", L"", L"TS_TextTools",
     L"TS_TextTools"},
    {Tool::ScratchPad, L"scratch-pad editor", L"keyScratch", L"&Scratch pad", L"", L"TS_ScratchPad", L"TS_ScratchPad"},
    {Tool::ShortTexts, L"short-text utility", L"keySnippets", L"S&hort texts", L"", L"TS_ScratchPad\\TS_Snippets",
     L"TS_Snippets"},
    {Tool::EmailManager, L"e-mail manager", L"keyMailBox", L"&E-mail manager", L"", L"TS_MailBox", L"TS_MailBox"},
    {Tool::Outliner, L"outliner", L"keyOutliner", L"&Outliner", L"", L"TS_Outliner", L"TS_Outliner"},
    {Tool::PdfViewer, L"PDF viewer", L"keyPdfView", L"&PDF viewer", L"", L"TS_PdfView", L"TS_PdfView"},
    {Tool::WebFileEditor, L"internet file editor", L"keyWebEdit", L"&Internet file editor", L"", L"TS_WebEdit",
     L"TS_WebEdit"},
    {Tool::FileTransfer, L"file transfer", L"keyTransfer", L"File &transfer", L"", L"TS_Transfer", L"TS_Transfer"},
    {Tool::ZipArchives, L"zip tool", L"keyZip", L"&Zip archives", L"", L"TS_Zip", L"TS_Zip"},
    {Tool::ToDo, L"to-do tool", L"keyToDo", L"T&o-do list", L"", L"TS_ToDo", L"TS_ToDo"},
    {Tool::Diary, L"diary", L"keyDiary", L"Di&ary", L"", L"TS_Diary", L"TS_Diary"},
    {Tool::ImageEditor, L"image editor", L"keyImageEdit", L"&Image editor", L"", L"TS_ImageEdit", L"TS_ImageEdit"},
    {Tool::ImageViewer, L"image viewer", L"keyImageView", L"Image &viewer", L"", L"TS_ImageView", L"TS_ImageView"},
    {Tool::Thumbnails, L"image thumbnails", L"keyThumbs", L"&Thumbnails", L"", L"TS_ImageView\\TS_Thumbs",
     L"TS_Thumbs"},
    {Tool::Drawing, L"drawing utility", L"keyDraw", L"&Drawing", L"", L"TS_Draw", L"TS_Draw"},
    {Tool::Workflow, L"workflow tool", L"keyFlow", L"Wor&kflow", L"", L"TS_Flow", L"TS_Flow"},
    {Tool::Magnifier, L"screen magnifier", L"keyMagnify", L"&Magnifier", L"", L"TS_Magnify", L"TS_Magnify"},
    {Tool::SlideShow, L"slide show", L"keySlides", L"&Slide show", L"", L"TS_Slides", L"TS_Slides"},
    {Tool::Calculator, L"calculator", L"keyCalculator", L"&Calculator", L"", L"TS_Calculator", L"TS_Calculator"},
    {Tool::Clock, L"clock", L"keyClock", L"Sho&w clock", L"", L"TS_Workdesk\\TS_Clock", L"TS_Clock"},
    // Two access letters on purpose: either one reaches it on the bar.
    {Tool::Workdesk, L"desktop tool", L"keyWorkdesk", L"&Work&desk", L"", L"TS_Workdesk", L"TS_Workdesk"},
    {Tool::PersonalFiles, L"personal file tool", L"keyPersonal", L"&Personal files", L"", L"TS_Personal",
     L"TS_Personal"},
    {Tool::RunningPrograms, L"running programs", L"keyRunning", L"&Running", L"&Running programs", L"TS_Running",
     L"TS_Running"},
    {Tool::TellmarkSet, L"suite main program", L"keyTellmark", L"&Tellmark Set", L"", L"TellmarkSet", L"TellmarkSet"},
    {Tool::AddressGrid, L"address grid", L"", L"", L"", L"TS_Grid", L"TS_Grid"},
}};

inline constexpr std::wstring_view kSuiteFolder = L"C:\\Drive_G\\TellmarkSet\\";

constexpr const SuiteTool &SuiteToolOf(Tool tool) {
    return kSuiteTools[static_cast<std::size_t>(tool)];
}

// The tool's built-in path, before it is resolved to where the suite really is.
std::wstring BuiltInPath(Tool tool);

} // namespace orvane
