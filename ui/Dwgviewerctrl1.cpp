#include "ui/Dwgviewerctrl1.h"

#include "neighbours/DwgViewerIds.h"

long CDwgviewerctrl1::OpenDrawing(const CString& path) {
    static const BYTE parms[] = VTS_BSTR;
    long result = 0;
    InvokeHelper(varnoke::kDwgViewerOpen, DISPATCH_METHOD, VT_I4, &result, parms, path.GetString());
    return result;
}
