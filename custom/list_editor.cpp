#include "list_editor.h"

#include <array>
#include <utility>

#include "app.h"
#include "conversions.h"
#include "helpers.h"
#include "launch.h"

namespace orvane {

namespace {

constexpr auto kEditorMenu = std::to_array<MenuRow>({
    {L"", L"keyLoad", L"&Load list", L"", {}},
    {L"", L"keySave", L"&Save list", L"", {}},
    {L"", L"keyAdd", L"&Add item", L"", {}},
    {L"", L"keyDel", L"&Delete", L"", {}},
    {L"", L"keyOpen", L"&Info", L"", {}},
    {L"", L"keyExit", L"E&xit", L"", {}},
});
constexpr auto kEditorCommands =
    std::to_array<EditorCommand>({EditorCommand::Load, EditorCommand::Save, EditorCommand::Add, EditorCommand::Delete,
                                  EditorCommand::Info, EditorCommand::Exit});

constexpr int kLastLine = static_cast<int>(kCustomEntries) - 1;

} // namespace

std::span<const MenuRow> EditorMenuRows() {
    return kEditorMenu;
}

const EditorCommand *FindEditorCommand(std::wstring_view caption) {
    return CommandOfCaption<EditorCommand>(kEditorMenu, kEditorCommands, caption);
}

std::wstring EditorCaption(const std::wstring &listFile) {
    return L"Custom programs ( " + listFile + L" )";
}

void CustomListEditor::leaveName(int line) {
    if (table_.isEmpty(Index(line)))
        table_.ProgramPaths[Index(line)].clear();
}

void CustomListEditor::insertLine() {
    for (int line = kLastLine; line > currentLine; --line) {
        table_.DisplayNames[Index(line)] = table_.DisplayNames[Index(line - 1)];
        table_.ProgramPaths[Index(line)] = table_.ProgramPaths[Index(line - 1)];
    }
    table_.DisplayNames[Index(currentLine)].clear();
    table_.ProgramPaths[Index(currentLine)].clear();
    changed = true;
}

bool CustomListEditor::deleteLine() {
    const std::size_t at = Index(currentLine);
    const std::wstring question = L"Delete this item from the list?\r\n\r\n" + table_.DisplayNames[at] + L"\r\n" +
                                  table_.ProgramPaths[at] + L"\t\r\n";
    if (app_.prompts.showMessage(question, kProgramTitle, MessageIcon::Question, MessageButtons::YesNoDefaultNo) !=
        MessageAnswer::Yes)
        return false;
    table_.DisplayNames[at].clear();
    table_.ProgramPaths[at].clear();
    for (int line = currentLine; line < kLastLine; ++line) {
        table_.DisplayNames[Index(line)] = table_.DisplayNames[Index(line + 1)];
        table_.ProgramPaths[Index(line)] = table_.ProgramPaths[Index(line + 1)];
    }
    changed = true;
    return true;
}

void CustomListEditor::swapLines(int a, int b) {
    std::swap(table_.DisplayNames[Index(a)], table_.DisplayNames[Index(b)]);
    std::swap(table_.ProgramPaths[Index(a)], table_.ProgramPaths[Index(b)]);
    currentLine = b;
    changed = true;
}

bool CustomListEditor::moveUp() {
    if (currentLine <= 0)
        return false;
    swapLines(currentLine, currentLine - 1);
    return true;
}

bool CustomListEditor::moveDown() {
    if (currentLine >= kLastLine)
        return false;
    swapLines(currentLine, currentLine + 1);
    return true;
}

void CustomListEditor::startLine(int line) {
    ExecuteProcess(app_.shell, table_.ProgramPaths[Index(line)], app_.MainWindowRef, kShowNormal, L"", false);
}

void CustomListEditor::takeEntry(const std::wstring &program, const std::wstring &folder) {
    if (program.empty())
        return;
    table_.ProgramPaths[Index(currentLine)] = program;
    table_.StartupFolders[Index(currentLine)] = folder;
}

bool CustomListEditor::loadList() {
    std::wstring &listFile = app_.settings.CustomListFile;
    if (changed) {
        const MessageAnswer answer =
            app_.prompts.showMessage(L"Save this list of files before loading a new one?\r\n\r\n" + listFile,
                                     kProgramTitle, MessageIcon::Question, MessageButtons::YesNoCancel);
        if (answer == MessageAnswer::Cancel)
            return false;
        if (answer == MessageAnswer::Yes)
            SaveCustomList(app_, table_);
    }
    const FolderKeeper keeper(app_.files);
    const auto chosen = app_.prompts.chooseFile(
        {.title = L"Select list of programs", .filter = app_.ListFileFilter, .folder = ParentFolder(listFile)});
    if (!chosen || chosen->empty())
        return false;
    const std::wstring previous = std::exchange(listFile, *chosen);
    const bool loaded = LoadCustomList(app_, table_);
    // A list that was not read leaves the table as it was, and with it the file a save writes.
    if (loaded)
        changed = false;
    else
        listFile = previous;
    return loaded;
}

bool CustomListEditor::saveList() {
    std::wstring &listFile = app_.settings.CustomListFile;
    const FolderKeeper keeper(app_.files);
    const std::wstring folder = ParentFolder(listFile);
    if (!folder.empty() && app_.files.pathExists(folder))
        app_.files.setCurrentFolder(folder);
    const auto chosen = app_.prompts.chooseFile({.title = L"Browse files",
                                                 .filter = app_.ListFileFilter,
                                                 .preset = BackslashFileName(listFile).substr(1),
                                                 .folder = folder,
                                                 .save = true,
                                                 .defaultExtension = L"lst"});
    if (!chosen || chosen->empty())
        return false;
    listFile = *chosen;
    SaveCustomList(app_, table_);
    changed = false;
    return true;
}

} // namespace orvane
