#pragma once

#include <afxwin.h>
#include <afxdisp.h>

/// The viewer control in a dialog.
class CDwgviewerctrl1 : public CWnd {
public:
    /// Shows a drawing (full path). Throws when the control is missing or refuses the call.
    long OpenDrawing(const CString& path);
};
