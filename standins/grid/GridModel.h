// What the grid shows: columns, rows and their cells.
#pragma once

#include <string>
#include <vector>

namespace grid {

struct Column {
    std::wstring header;
    int width = 80;
    bool hasCheckEditor = false;
    bool isCheckKind = false;

    // The cells show a check box and hold "1" or "0".
    bool IsCheck() const { return hasCheckEditor || isCheckKind; }
};

// Rows and columns count from 0. Rows may hold fewer cells than there are columns; the missing ones are
// empty.
class GridModel {
public:
    int RowCount() const { return static_cast<int>(m_rows.size()); }
    int ColumnCount() const { return static_cast<int>(m_columns.size()); }
    bool HasRow(long row) const { return row >= 0 && row < RowCount(); }
    bool HasColumn(long column) const { return column >= 0 && column < ColumnCount(); }
    bool HasCell(long row, long column) const { return HasRow(row) && HasColumn(column); }

    // New rows and columns are empty; surplus columns at the end are dropped.
    void AppendRow() { m_rows.emplace_back(); }
    void SetColumnCount(long count);

    // The row or column must exist.
    Column& ColumnAt(long column) { return m_columns[static_cast<size_t>(column)]; }
    const Column& ColumnAt(long column) const { return m_columns[static_cast<size_t>(column)]; }
    const std::wstring& CellText(long row, long column) const;
    void SetCellText(long row, long column, std::wstring text);
    long RowValue(long row) const { return m_rows[static_cast<size_t>(row)].value; }
    void SetRowValue(long row, long value) { m_rows[static_cast<size_t>(row)].value = value; }

    bool IsChecked(long row, long column) const { return CellText(row, column) == L"1"; }
    void Toggle(long row, long column) { SetCellText(row, column, IsChecked(row, column) ? L"0" : L"1"); }

private:
    struct Row {
        std::vector<std::wstring> cells;
        long value = 0;
    };

    std::vector<Column> m_columns;
    std::vector<Row> m_rows;
};

} // namespace grid
