// What the grid shows: columns, rows and their cells.
#include "standins/grid/GridModel.h"

namespace grid {

void GridModel::SetColumnCount(long count) {
    m_columns.resize(static_cast<size_t>(count));
    for (Row& row : m_rows)
        if (row.cells.size() > m_columns.size()) row.cells.resize(m_columns.size());
}

const std::wstring& GridModel::CellText(long row, long column) const {
    static const std::wstring none;
    const std::vector<std::wstring>& cells = m_rows[static_cast<size_t>(row)].cells;
    return static_cast<size_t>(column) < cells.size() ? cells[static_cast<size_t>(column)] : none;
}

void GridModel::SetCellText(long row, long column, std::wstring text) {
    std::vector<std::wstring>& cells = m_rows[static_cast<size_t>(row)].cells;
    if (static_cast<size_t>(column) >= cells.size()) cells.resize(static_cast<size_t>(column) + 1);
    cells[static_cast<size_t>(column)] = std::move(text);
}

} // namespace grid
