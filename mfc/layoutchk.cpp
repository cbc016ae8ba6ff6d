// Compile-time checks of the layouts that a host built with Visual C++ relies on.
#include <afxcoll.h>
#include <afxtempl.h>

// Every compiler in use gives offsetof its plain meaning for these classes, though the language leaves it
// open.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

namespace {

static_assert(sizeof(CString) == 8);
static_assert(sizeof(ATL::CStringData) == 0x18);
static_assert(offsetof(ATL::CStringData, pStringMgr) == 0);
static_assert(offsetof(ATL::CStringData, nDataLength) == 8);
static_assert(offsetof(ATL::CStringData, nAllocLength) == 0xC);
static_assert(offsetof(ATL::CStringData, nRefs) == 0x10);

static_assert(sizeof(CObject) == 8);
static_assert(offsetof(CRuntimeClass, m_lpszClassName) == 0);
static_assert(offsetof(CRuntimeClass, m_nObjectSize) == 8);
static_assert(offsetof(CRuntimeClass, m_wSchema) == 0xC);
static_assert(offsetof(CRuntimeClass, m_pfnCreateObject) == 0x10);
static_assert(offsetof(CRuntimeClass, m_pfnGetBaseClass) == 0x18);
static_assert(offsetof(CRuntimeClass, m_pNextClass) == 0x20);
static_assert(offsetof(CRuntimeClass, m_pClassInit) == 0x28);

static_assert(sizeof(CPlex) == 8);
static_assert(sizeof(CTime) == 8);

// Derives from a list to reach its protected parts.
template <class LIST>
struct ListLayout : LIST {
    typedef typename LIST::CNode Node;
    static constexpr bool Holds() {
        return sizeof(LIST) == 0x38 && offsetof(ListLayout, m_pNodeHead) == 8 &&
               offsetof(ListLayout, m_pNodeTail) == 0x10 && offsetof(ListLayout, m_nCount) == 0x18 &&
               offsetof(ListLayout, m_pNodeFree) == 0x20 && offsetof(ListLayout, m_pBlocks) == 0x28 &&
               offsetof(ListLayout, m_nBlockSize) == 0x30 && sizeof(Node) == 0x18 &&
               offsetof(Node, pNext) == 0 && offsetof(Node, pPrev) == 8 && offsetof(Node, data) == 0x10;
    }
};
static_assert(ListLayout<CList<void*, void*>>::Holds());
static_assert(ListLayout<CStringList>::Holds());

} // namespace
