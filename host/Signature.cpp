// Placing one signature.
#include <afxwin.h>

#include "host/DrawingDocument.h"
#include "host/Signature.h"

namespace host {

namespace {

/// A box on the sheet in drawing units, its origin at the upper left. The library turns the top into the
/// lower edge that the signing server wants.
struct Box {
    double left;
    double top;
    double width;
    double height;
};

constexpr Box kSealBox = {180.0, 40.0, 40.0, 20.0};
constexpr Box kDateBox = {180.0, 18.0, 40.0, 8.0};

} // namespace

void CompleteSignInfo(SSignInfo& info, const Document& document, const CString& path, const CString& user) {
    info.m_strFirstText = document.Id();
    info.m_strSecondText = path;
    if (info.m_strUserName.IsEmpty()) info.m_strUserName = user;
    if (info.m_strRole.IsEmpty()) info.m_strRole = document.Role();
    info.m_dA = kSealBox.left;
    info.m_dB = kSealBox.top;
    info.m_dC = kSealBox.width;
    info.m_dD = kSealBox.height;
    info.m_dE = kDateBox.left;
    info.m_dF = kDateBox.top;
    info.m_dG = kDateBox.width;
    info.m_dH = kDateBox.height;
}

bool SignDrawing(CSignOpt& signOpt, SignOperation operation, SSignInfo& info, const CString& path) {
    const IDispatchPtr drawing = DrawingDocument::Make(path);
    return (signOpt.*operation)(drawing, &info) != 0;
}

} // namespace host
