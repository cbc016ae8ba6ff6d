// The control is driven through its automation interface.
#include "ui/Dwgviewerctrl1.h"

#include "neighbours/DwgViewerIds.h"

long CDwgviewerctrl1::OpenDrawing(const CString& strPath) {
    static const BYTE parms[] = VTS_BSTR;
    long result = 0;
    InvokeHelper(varnoke::kDwgViewerOpen, DISPATCH_METHOD, VT_I4, &result, parms, strPath.GetString());
    return result;
}
