// The headers against mfc140u.dll itself: sizes of classes, places of virtual functions.
#include <afxcmn.h>
#include <afxcoll.h>
#include <afxdisp.h>
#include <afxdlgs.h>
#include <afxdtctl.h>

#include <gtest/gtest.h>

namespace {

// What a slot of this module's table leads to: behind the import's jump, if it is one.
const void* TargetOf(const void* function, bool& imported) {
    const auto* code = static_cast<const BYTE*>(function);
    imported = code[0] == 0xFF && code[1] == 0x25;
    if (!imported) return function;
    LONG distance;
    memcpy(&distance, code + 2, sizeof distance);
    return *reinterpret_cast<const void* const*>(code + 6 + distance);
}

const void* const* TableOf(const CObject& object) {
    return *reinterpret_cast<const void* const* const*>(&object);
}

// A class derived here has its table from the headers; the object made by the DLL has the DLL's. `own`: how
// many functions of the class the headers define themselves, the destructor included.
template <class TDerived, class TMade>
void CompareTables(const char* name, const TDerived& derived, const TMade& made, int slots, int own) {
    for (int slot = 0; slot < slots; ++slot) {
        bool imported = false;
        ASSERT_TRUE(TableOf(derived)[slot] != nullptr) << name << " has no slot " << slot;
        const void* function = TargetOf(TableOf(derived)[slot], imported);
        own -= !imported;
        if (imported) {
            EXPECT_EQ(TableOf(made)[slot], function) << name << " slot " << slot;
        }
    }
    EXPECT_EQ(0, own) << name;
    bool imported = false;
    ASSERT_TRUE(TableOf(derived)[slots] != nullptr) << name << " has fewer slots than " << slots;
    EXPECT_TRUE(TargetOf(TableOf(derived)[slots], imported) && !imported)
        << name << " has more than " << slots;
}

// Adds one more virtual function, behind those of the class.
template <class T>
struct Derived : T {
    using T::T;
    virtual void BehindTheClass() {}
};

template <class T>
void CompareSize() {
    EXPECT_EQ(static_cast<int>(sizeof(T)), T::GetThisClass()->m_nObjectSize)
        << T::GetThisClass()->m_lpszClassName;
}

template <class... TClasses>
void CompareSizes() {
    (CompareSize<TClasses>(), ...);
}

} // namespace

TEST(Layout, Classes_HaveTheDllsSizes) {
    CompareSizes<CObject, CCmdTarget, CWnd, CDialog, CCommonDialog, CColorDialog>();
    CompareSizes<CStatic, CButton, CEdit, CComboBox, CProgressCtrl, CDateTimeCtrl, CWinThread, CWinApp>();
    CompareSizes<CDC, CClientDC, CPaintDC, CFile, CStringList, CException, CSimpleException>();
    CompareSizes<CMemoryException, CInvalidArgException, CNotSupportedException, CResourceException>();
    CompareSizes<COleException, COleDispatchException>();
}

TEST(Layout, VirtualFunctions_StandWhereTheDllHasThem) {
    // CCmdTarget and CException have no table of their own in the DLL; those below hold their functions.
    CompareTables("CWnd", Derived<CWnd>(), CWnd(), 91, 7);
    CompareTables("CDialog", Derived<CDialog>(0u), CDialog(0u), 101, 8);
    CompareTables("CColorDialog", Derived<CColorDialog>(), CColorDialog(), 102, 8);
    CompareTables("CWinThread", Derived<CWinThread>(), CWinThread(), 33, 4);
    CompareTables("CDC", Derived<CDC>(), CDC(), 32, 13);
    CompareTables("CFile", Derived<CFile>(), CFile(), 24, 5);
    CompareTables("CStringList", Derived<CStringList>(), CStringList(), 5, 3);
    COleDispatchException made(L"", 0, 0);
    CompareTables("COleDispatchException", Derived<COleDispatchException>(L"", 0, WORD(0)), made, 8, 4);

    static AFX_MODULE_STATE state(TRUE, &AfxWndProc, _MFC_VER);
    AFX_MANAGE_STATE(&state)
    const Derived<CWinApp> derived;
    const CWinApp app;
    CompareTables("CWinApp", derived, app, 70, 13);
}
