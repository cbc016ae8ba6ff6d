// The system's list view showing a grid model.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include "base/Owned.h"
#include "standins/grid/GridModel.h"

namespace grid {

// How the grid looks; kept apart from the window, which comes and goes.
struct GridLook {
    bool showHeader = true;
    bool selectRows = false;
    bool showLines = false;
};

// A virtual list: texts are asked for when they are drawn. Check boxes are drawn by the view itself, since
// the list view knows them in its first column only.
class GridView {
public:
    GridView(GridModel& model, const GridLook& look) : m_model(model), m_look(look) {}
    GridView& operator=(GridView&&) = delete;

    // Makes the list view; the parent's owner passes its messages on.
    void Create(HWND parent);
    // The parent destroys the window itself.
    void Forget() { m_list = nullptr; }
    HWND List() const { return m_list; }

    // Each does nothing without a window.
    void Resize(int width, int height) const;
    void ShowColumns() const;
    void ShowRows() const;
    void ShowLook() const;
    void ShowRow(long row) const;

    LRESULT OnNotify(NMHDR* header);

private:
    void GiveText(LVITEMW& item) const;
    LRESULT OnCustomDraw(NMLVCUSTOMDRAW& draw) const;
    void DrawCheckBox(const NMLVCUSTOMDRAW& draw) const;
    void OnClick(const NMITEMACTIVATE& click);
    void OnSpace();
    void Toggle(int row, int column);

    GridModel& m_model;     // outlives the view
    const GridLook& m_look; // the same
    HWND m_list = nullptr;  // ends with its parent
    base::GdiObject<HFONT> m_font;
};

} // namespace grid
