// Base of the framework: strings, objects with run-time class, exceptions, time, file status, module state.
#pragma once
#include <afxver_.h>
#include <afxstr.h>
#include <atltime.h>
#include <afxstat_.h>

class CArchive;
class CDumpContext;
class CFileException;
class CObject;
namespace ATL {
class CAtlTransactionManager;
}

struct __POSITION {};
typedef __POSITION* POSITION;

/// Run-time description of a class; one static instance per class.
struct CRuntimeClass {
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema;
    CObject*(__stdcall* m_pfnCreateObject)();
    CRuntimeClass*(__stdcall* m_pfnGetBaseClass)();
    CRuntimeClass* m_pNextClass;
    const void* m_pClassInit;
};

/// Base of the framework's classes. It is never copied; the order of the virtual functions is fixed.
class CObject {
public:
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject() = default;
    // Archives and dumps are no part of this framework; the functions hold their places.
    virtual void Serialize(CArchive&) {}
    virtual void AssertValid() const {}
    virtual void Dump(CDumpContext&) const {}

    static const CRuntimeClass classCObject;
    static CRuntimeClass* __stdcall GetThisClass();

    CObject(const CObject&) = delete;
    void operator=(const CObject&) = delete;

protected:
    CObject() = default;
};

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

#define DECLARE_DYNAMIC(class_name)                                                                          \
protected:                                                                                                   \
    static CRuntimeClass* __stdcall _GetBaseClass();                                                         \
                                                                                                             \
public:                                                                                                      \
    static const CRuntimeClass class##class_name;                                                            \
    static CRuntimeClass* __stdcall GetThisClass();                                                          \
    CRuntimeClass* GetRuntimeClass() const override;

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                       \
    CRuntimeClass* __stdcall class_name::_GetBaseClass() {                                                   \
        return RUNTIME_CLASS(base_class_name);                                                               \
    }                                                                                                        \
    const CRuntimeClass class_name::class##class_name = {                                                    \
        #class_name, sizeof(class_name), 0xFFFF, nullptr, &class_name::_GetBaseClass, nullptr, nullptr};     \
    CRuntimeClass* __stdcall class_name::GetThisClass() {                                                    \
        return const_cast<CRuntimeClass*>(&class_name::class##class_name);                                   \
    }                                                                                                        \
    CRuntimeClass* class_name::GetRuntimeClass() const {                                                     \
        return RUNTIME_CLASS(class_name);                                                                    \
    }

/// Base of the framework's exceptions. They are thrown as pointers; who catches one calls Delete.
class CException : public CObject {
    DECLARE_DYNAMIC(CException)
public:
    CException();
    explicit CException(BOOL bAutoDelete);
    void Delete();

    /// The error's text for the user, cut to nMaxError characters; FALSE when there is none.
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const;
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr);
    virtual int ReportError(UINT nType = MB_OK, UINT nMessageID = 0);

protected:
    BOOL m_bAutoDelete;
};

/// An exception whose text is a string resource.
class CSimpleException : public CException {
    DECLARE_DYNAMIC(CSimpleException)
public:
    CSimpleException() = default;
    explicit CSimpleException(BOOL bAutoDelete) : CException(bAutoDelete) {}

    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError,
                                 PUINT pnHelpContext = nullptr) const override;

protected:
    BOOL m_bInitialized = FALSE;
    BOOL m_bLoaded = FALSE;
    TCHAR m_szMessage[128] = {};
    UINT m_nResourceID = 0;
};

class CMemoryException : public CSimpleException {
    DECLARE_DYNAMIC(CMemoryException)
public:
    using CSimpleException::CSimpleException;
};

class CInvalidArgException : public CSimpleException {
    DECLARE_DYNAMIC(CInvalidArgException)
public:
    using CSimpleException::CSimpleException;
};

#include <afxfile_.h>
