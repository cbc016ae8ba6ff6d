// Base of the framework: strings, objects with run-time class, exceptions, time, file status, module state.
#pragma once
#include <afxver_.h>
#include <afxstr.h>
#include <atltime.h>
#include <afxstat_.h>

class CArchive;
class CDumpContext;
class CObject;

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
    virtual void Serialize(CArchive& ar);
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;

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
    CException() : CException(TRUE) {}
    explicit CException(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete) {}
    void Delete();

protected:
    BOOL m_bAutoDelete;
};

class CMemoryException : public CException {
    DECLARE_DYNAMIC(CMemoryException)
public:
    using CException::CException;
};

class CInvalidArgException : public CException {
    DECLARE_DYNAMIC(CInvalidArgException)
public:
    using CException::CException;
};

/// What CFile::GetStatus reports.
struct CFileStatus {
    CTime m_mtime; // last modification
};

class CFile : public CObject {
    DECLARE_DYNAMIC(CFile)
public:
    /// FALSE when the file does not exist, cannot be asked, or has a full path of _MAX_PATH characters or
    /// more.
    static BOOL __stdcall GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus);
};
