// Placing one signature.
#include <afxwin.h>

#include "host/DrawingDocument.h"
#include "host/Signature.h"

namespace host {

namespace {

/// A box on the sheet in drawing units, its origin at the upper left. The library turns the top into the
/// lower edge that the signing server wants.
struct SBox {
    double m_dLeft;
    double m_dTop;
    double m_dWidth;
    double m_dHeight;
};

constexpr SBox kSealBox = {180.0, 40.0, 40.0, 20.0};
constexpr SBox kDateBox = {180.0, 18.0, 40.0, 8.0};

} // namespace

void CompleteSignInfo(SSignInfo& info, const CDocument& document, const CString& path, const CString& user) {
    info.m_strFirstText = document.Id();
    info.m_strSecondText = path;
    if (info.m_strUserName.IsEmpty()) info.m_strUserName = user;
    if (info.m_strRole.IsEmpty()) info.m_strRole = document.Role();
    info.m_dA = kSealBox.m_dLeft;
    info.m_dB = kSealBox.m_dTop;
    info.m_dC = kSealBox.m_dWidth;
    info.m_dD = kSealBox.m_dHeight;
    info.m_dE = kDateBox.m_dLeft;
    info.m_dF = kDateBox.m_dTop;
    info.m_dG = kDateBox.m_dWidth;
    info.m_dH = kDateBox.m_dHeight;
}

bool SignDrawing(CSignOpt& signOpt, SignOperation operation, SSignInfo& info, const CString& path) {
    const IDispatchPtr drawing = CDrawingDocument::Make(path);
    return (signOpt.*operation)(drawing, &info) != 0;
}

} // namespace host
