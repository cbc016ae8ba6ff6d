// The module's string buffer manager over the C heap.
#include <afxstr.h>
#include <limits.h>

namespace {

using ATL::CStringData;

class CAfxStringMgr final : public ATL::IAtlStringMgr {
public:
    constexpr CAfxStringMgr() = default;
    CStringData* Allocate(int nChars, int nCharSize) override;
    void Free(CStringData* pData) override { free(pData); }
    CStringData* Reallocate(CStringData* pData, int nChars, int nCharSize) override;
    CStringData* GetNilString() override;
    ATL::IAtlStringMgr* Clone() override { return this; }
};

struct NilString {
    CStringData header;
    wchar_t terminator[2];
};

// Both are constant-initialised, so that static strings of other files may use them at once.
// A second reference which nobody releases keeps the nil string from ever being freed or written to.
CAfxStringMgr g_stringManager;
NilString g_nilString = {{&g_stringManager, 0, 0, 2}, {}};

// Capacity is rounded up to whole steps so that a short string can grow a little in place; 0 when too large.
size_t BytesFor(int& nChars, int nCharSize) {
    constexpr int nStep = 8;
    if (nChars < 0 || nCharSize <= 0 || nChars > INT_MAX - nStep) return 0;
    const int nCapacity = (nChars + nStep) / nStep * nStep;
    nChars = nCapacity - 1;
    return sizeof(CStringData) + static_cast<size_t>(nCapacity) * nCharSize;
}

CStringData* CAfxStringMgr::Allocate(int nChars, int nCharSize) {
    const size_t nBytes = BytesFor(nChars, nCharSize);
    if (nBytes == 0) return nullptr;
    auto* pData = static_cast<CStringData*>(malloc(nBytes));
    if (pData != nullptr) *pData = {this, 0, nChars, 1};
    return pData;
}

CStringData* CAfxStringMgr::Reallocate(CStringData* pData, int nChars, int nCharSize) {
    const size_t nBytes = BytesFor(nChars, nCharSize);
    if (nBytes == 0) return nullptr;
    auto* pNew = static_cast<CStringData*>(realloc(pData, nBytes));
    if (pNew != nullptr) pNew->nAllocLength = nChars;
    return pNew;
}

CStringData* CAfxStringMgr::GetNilString() {
    g_nilString.header.AddRef();
    return &g_nilString.header;
}

} // namespace

ATL::IAtlStringMgr* AFXAPI AfxGetStringManager() {
    return &g_stringManager;
}
