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

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)

CException::CException() : m_bAutoDelete(TRUE) {}

CException::CException(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete) {}

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
