// The list editor's rules: 64 lines of a name and a program path, edited
// straight into the shared table, with insert, delete and move, loading
// another list and saving. The window shows the table and passes events here.
#pragma once

#include <span>
#include <string>

#include "menu.h"
#include "program_list.h"

namespace orvane {

class App;

// The editor's menu, and the dispatch of its captions.
enum class EditorCommand {
    Load,
    Save,
    Add,
    Delete,
    Info,
    Exit
};
std::span<const MenuRow> EditorMenuRows();
const EditorCommand *FindEditorCommand(std::wstring_view caption);

// "Custom programs ( <list file> )"
std::wstring EditorCaption(const std::wstring &listFile);

class CustomListEditor {
public:
    CustomListEditor(App &app, CustomProgramTable &table) : app_(app), table_(table) {
    }

    int currentLine = 0;
    // Set by insert, delete and move; cleared by a save or a load.
    bool changed = false;

    void setName(int line, const std::wstring &text) {
        table_.DisplayNames[Index(line)] = text;
    }
    void setProgram(int line, const std::wstring &text) {
        table_.ProgramPaths[Index(line)] = text;
    }
    // Leaving a name that is blank clears the line's program: the name is the entry's key.
    void leaveName(int line);

    // Each acts on the current line. Startup folders stay with their line numbers.
    // Insert drops the last line; delete asks first and leaves the last line doubled.
    void insertLine();
    bool deleteLine();
    // False where there is no line to move to; the current line follows the move.
    bool moveUp();
    bool moveDown();

    // The line's program, started as the main window starts programs.
    void startLine(int line);
    // What the entry dialog returned for the current line: taken when the path is not empty.
    void takeEntry(const std::wstring &program, const std::wstring &folder);

    // Another list, after asking to save a changed one; true when the table was read anew.
    bool loadList();
    // Under a chosen name; true when saved.
    bool saveList();

private:
    static std::size_t Index(int line) {
        return static_cast<std::size_t>(line);
    }
    void swapLines(int a, int b);

    App &app_;
    CustomProgramTable &table_;
};

} // namespace orvane
