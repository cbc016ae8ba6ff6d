// Run-time classes, exceptions and the functions that throw them.
#include <afx.h>

const CRuntimeClass CObject::classCObject = {"CObject", sizeof(CObject), 0xFFFF, nullptr,
                                             nullptr,   nullptr,         nullptr};

CRuntimeClass* __stdcall CObject::GetThisClass() {
    return const_cast<CRuntimeClass*>(&classCObject);
}

CRuntimeClass* CObject::GetRuntimeClass() const {
    return GetThisClass();
}

// Archives and dumps are no part of this framework; the functions hold their places among the virtual ones.
void CObject::Serialize(CArchive&) {}
void CObject::AssertValid() const {}
void CObject::Dump(CDumpContext&) const {}

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CMemoryException, CException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CException)

void CException::Delete() {
    if (m_bAutoDelete) delete this;
}

// These are static objects, so that reporting a lack of memory needs none.
void AFXAPI AfxThrowMemoryException() {
    static CMemoryException exception(FALSE);
    throw &exception;
}

void AFXAPI AfxThrowInvalidArgException() {
    static CInvalidArgException exception(FALSE);
    throw &exception;
}
