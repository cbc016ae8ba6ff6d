// What the grid shows: columns, rows and their cells.
#include "standins/grid/GridModel.h"

#include <windows.h>
#include <algorithm>

namespace grid {

static const std::wstring& TextOf(const std::vector<std::wstring>& cells, long column) {
    static const std::wstring empty;
    return static_cast<size_t>(column) < cells.size() ? cells[static_cast<size_t>(column)] : empty;
}

void GridModel::SetColumnCount(long count) {
    m_columns.resize(static_cast<size_t>(count));
    for (Row& row : m_rows)
        if (row.cells.size() > m_columns.size()) row.cells.resize(m_columns.size());
}

const std::wstring& GridModel::CellText(long row, long column) const {
    return TextOf(m_rows[static_cast<size_t>(row)].cells, column);
}

void GridModel::SetCellText(long row, long column, std::wstring text) {
    std::vector<std::wstring>& cells = m_rows[static_cast<size_t>(row)].cells;
    if (static_cast<size_t>(column) >= cells.size()) cells.resize(static_cast<size_t>(column) + 1);
    cells[static_cast<size_t>(column)] = std::move(text);
}

void GridModel::SortBy(long column) {
    std::stable_sort(m_rows.begin(), m_rows.end(), [column](const Row& a, const Row& b) {
        return ::CompareStringEx(LOCALE_NAME_USER_DEFAULT, NORM_IGNORECASE, TextOf(a.cells, column).c_str(),
                                 -1, TextOf(b.cells, column).c_str(), -1, nullptr, nullptr,
                                 0) == CSTR_LESS_THAN;
    });
}

} // namespace grid
