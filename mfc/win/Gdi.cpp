// GDI objects and device contexts.
#include "win/ThreadWindows.h"

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)

namespace {

CRuntimeClass* ClassOf(HGDIOBJ hObject) {
    switch (::GetObjectType(hObject)) {
    case OBJ_PEN:
        return RUNTIME_CLASS(CPen);
    case OBJ_BRUSH:
        return RUNTIME_CLASS(CBrush);
    case OBJ_FONT:
        return RUNTIME_CLASS(CFont);
    default:
        return RUNTIME_CLASS(CGdiObject);
    }
}

CGdiObject* NewObject(const CRuntimeClass* pClass) {
    if (pClass == RUNTIME_CLASS(CPen)) return new CPen;
    if (pClass == RUNTIME_CLASS(CBrush)) return new CBrush;
    if (pClass == RUNTIME_CLASS(CFont)) return new CFont;
    return new CGdiObject;
}

} // namespace

CGdiObject::CGdiObject() : m_hObject(nullptr) {}

CGdiObject::~CGdiObject() {
    DeleteObject();
}

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ hObject) {
    if (hObject == nullptr) return nullptr;
    auto& pTemporary = CThreadWindows::Get().m_temporaryObjects[hObject];
    // The system may have given the handle to an object of another type meanwhile.
    const CRuntimeClass* pClass = ClassOf(hObject);
    if (pTemporary == nullptr || pTemporary->GetRuntimeClass() != pClass) {
        pTemporary.reset(NewObject(pClass));
        pTemporary->m_hObject = hObject;
    }
    return pTemporary.get();
}

BOOL CGdiObject::Attach(HGDIOBJ hObject) {
    if (hObject == nullptr || m_hObject != nullptr) return FALSE;
    m_hObject = hObject;
    return TRUE;
}

HGDIOBJ CGdiObject::Detach() {
    const HGDIOBJ hObject = m_hObject;
    m_hObject = nullptr;
    return hObject;
}

BOOL CGdiObject::DeleteObject() {
    const HGDIOBJ hObject = Detach();
    return hObject != nullptr && ::DeleteObject(hObject);
}

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor) {
    if (!CreatePen(nPenStyle, nWidth, crColor)) AfxThrowResourceException();
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, COLORREF crColor) {
    return Attach(::CreatePen(nPenStyle, nWidth, crColor));
}

CBrush::CBrush(COLORREF crColor) {
    if (!CreateSolidBrush(crColor)) AfxThrowResourceException();
}

BOOL CBrush::CreateSolidBrush(COLORREF crColor) {
    return Attach(::CreateSolidBrush(crColor));
}

BOOL CFont::CreateFontIndirect(const LOGFONT* lpLogFont) {
    return Attach(::CreateFontIndirect(lpLogFont));
}
