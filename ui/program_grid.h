// One of the custom programs window's two grids: a report ListView whose rows
// each show an entry's shell icon and its name, 48 pixels high (at 96 DPI).
// It draws its rows itself, for the colours that follow the mouse pointer,
// and takes each icon from the system's image list when its row is first drawn.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include <string>
#include <vector>

#include "controls.h"
#include "handles.h"
#include "program_list.h"

namespace orvane::ui {

class Skin;

// What both grids share: whether the pointer has entered a cell yet, and the hand it shows there.
struct GridPointer {
    bool seen = false;
    HCURSOR hand = nullptr;
};

class ProgramGrid {
public:
    // The current row takes the menus' highlight in the skin's colours.
    void create(HWND parent, int id, GridPointer &pointer, const Skin &skin);
    HWND hwnd() const {
        return list_;
    }

    // The rows: these entries of the table, in order.
    void fill(const CustomProgramTable &table, const std::vector<std::size_t> &entries);
    void place(const RECT &area);

    int rowCount() const {
        return static_cast<int>(entries_.size());
    }
    std::size_t entryOf(int row) const {
        return entries_[static_cast<std::size_t>(row)];
    }
    // The current row: the one with the focus mark; -1 when there is none.
    int currentRow() const;
    void setCurrentRow(int row);
    // A current row, the first when none is set, so Enter works at once.
    void ensureCurrentRow();

    // Its NM_CUSTOMDRAW: the rows are painted here.
    LRESULT customDraw(NMLVCUSTOMDRAW &draw);

private:
    static LRESULT CALLBACK Subclass(HWND, UINT, WPARAM, LPARAM, UINT_PTR, DWORD_PTR);
    void pointerAt(POINT point);
    void drawRow(HDC dc, int row, UINT state);
    int iconOf(int row);
    int scaled(int pixels) const;

    ListView list_;
    GridPointer *pointer_ = nullptr;
    const Skin *skin_ = nullptr;
    std::vector<std::size_t> entries_;
    std::vector<std::wstring> names_, programs_;
    std::vector<int> icons_;      // in the system image list; -1 none, -2 not asked yet
    HIMAGELIST images_ = nullptr; // the system's own, never destroyed here
    UniqueImageList rowHeight_;
    POINT hot_{-1, -1}; // the cell under the pointer: row, column
};

} // namespace orvane::ui
