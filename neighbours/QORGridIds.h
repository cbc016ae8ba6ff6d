// The grid control: its class and the dispatch ids of the members that CQORGrid uses.
#pragma once

#include <guiddef.h>

namespace varnoke {

/// {8E82ADC1-DCB0-4D8D-83E9-9B7CE27A0DC4}; Varnoke.rc names it as the class of control 4000.
inline constexpr CLSID kQORGridClass = {
    0x8e82adc1, 0xdcb0, 0x4d8d, {0x83, 0xe9, 0x9b, 0x7c, 0xe2, 0x7a, 0x0d, 0xc4}};

/// Rows and columns count from 0; the header is not a row.
enum EQORGridMember : long {
    kGridRowCount = 2,          // property, long
    kGridColumnCount = 3,       // property, long
    kGridSortable = 9,          // property, long: 1 = a click on a header sorts by that column
    kGridShowHeader = 10,       // property, long: 1 = the header is shown
    kGridSetCellText = 13,      // method (long row, long column, BSTR text)
    kGridGetCellText = 14,      // method (long row, long column) -> BSTR
    kGridSetColumnText = 16,    // method (long column, BSTR text): the header's text
    kGridSetColumnWidth = 18,   // method (long column, long pixels)
    kGridSetColumnEditor = 26,  // method (long column, BSTR plugIn): cell editor by its file name
    kGridSetSelectionMode = 43, // method (long mode): 0 cells, 1 whole rows
    kGridSetFixedColumns = 46,  // method (long count): columns that do not scroll
    kGridSetFixedRows = 54,     // method (long count): rows that do not scroll
    kGridAppendRow = 49,        // method: adds an empty row at the end
    kGridRowValue = 60,      // method (long row, long value), (long row) -> long: the caller's value of a row
    kGridSetColumnKind = 68, // method (long column, long kind): EQORGridColumnKind
    kGridSetGridLines = 69,  // method (long shown): 1 = lines between the cells
};

enum EQORGridColumnKind : long {
    kGridColumnText = 0, // the cell shows its text
    kGridColumnCheck = 1 // the cell shows a check box; its text is "1" when checked, else "0"
};

} // namespace varnoke
