// Reference-counted character buffers and the plain string over them.
// Strings cross module boundaries, so the layout is the 64-bit ATL one and a buffer stays with its manager.
#pragma once
#include <afxver_.h>

namespace ATL {

struct CStringData;

/// Source of string buffers. It has no destructor slot; a manager outlives all its buffers.
struct IAtlStringMgr {
    /// Room for nChars characters of nCharSize bytes and a terminator, one reference; null when out of
    /// memory.
    virtual CStringData* Allocate(int nChars, int nCharSize) = 0;
    virtual void Free(CStringData* pData) = 0;
    /// Null when out of memory, the old buffer is then still valid.
    virtual CStringData* Reallocate(CStringData* pData, int nChars, int nCharSize) = 0;
    /// The manager's empty buffer with one more reference; it is never freed.
    virtual CStringData* GetNilString() = 0;
    /// The manager that copies of a buffer are to use.
    virtual IAtlStringMgr* Clone() = 0;
};

/// Header in front of the characters. Lengths are in characters, without the terminator.
struct CStringData {
    IAtlStringMgr* pStringMgr;
    int nDataLength;
    int nAllocLength;
    long nRefs; // 1: one owner, above: shared, below 0: locked

    void* data() noexcept { return this + 1; }
    bool IsLocked() const noexcept { return nRefs < 0; }
    bool IsShared() const noexcept { return nRefs > 1; }
    void AddRef() noexcept { InterlockedIncrement(&nRefs); }
    void Release() noexcept {
        if (InterlockedDecrement(&nRefs) <= 0) pStringMgr->Free(this);
    }
};

/// String of BaseType with value semantics. Copies share one buffer until one of them is written to.
/// One object belongs to one thread at a time; copies may live on different threads.
template <typename BaseType, bool t_bMFCDLL = false>
class CSimpleStringT {
public:
    typedef BaseType XCHAR;
    typedef BaseType* PXSTR;
    typedef const BaseType* PCXSTR;

    explicit CSimpleStringT(IAtlStringMgr* pStringMgr);
    CSimpleStringT(PCXSTR pchSrc, int nLength, IAtlStringMgr* pStringMgr);
    CSimpleStringT(const CSimpleStringT& strSrc);
    CSimpleStringT(CSimpleStringT&& strSrc);
    ~CSimpleStringT() noexcept;

    /// Shares the buffer only when both strings have the same manager; otherwise the characters are copied.
    CSimpleStringT& operator=(const CSimpleStringT& strSrc);
    CSimpleStringT& operator=(CSimpleStringT&& strSrc);

    operator PCXSTR() const noexcept { return m_pszData; }
    PCXSTR GetString() const noexcept { return m_pszData; }
    int GetLength() const noexcept { return GetData()->nDataLength; }
    int GetAllocLength() const noexcept { return GetData()->nAllocLength; }
    bool IsEmpty() const noexcept { return GetLength() == 0; }
    IAtlStringMgr* GetManager() const noexcept { return GetData()->pStringMgr->Clone(); }

    /// Valid from 0 to GetLength() (the terminator); other positions throw.
    XCHAR operator[](int iChar) const;
    void SetAt(int iChar, XCHAR ch);

    void Empty() noexcept;
    void SetString(PCXSTR pszSrc);
    void SetString(PCXSTR pszSrc, int nLength);
    void Append(PCXSTR pszSrc);
    void Append(PCXSTR pszSrc, int nLength);
    void Append(const CSimpleStringT& strSrc);
    void AppendChar(XCHAR ch) { Append(&ch, 1); }
    void Truncate(int nNewLength);

    /// Writable buffer of this string alone, valid until the next other call; end its use with ReleaseBuffer.
    PXSTR GetBuffer();
    PXSTR GetBuffer(int nMinBufferLength);
    PXSTR GetBufferSetLength(int nLength);
    /// Sets the length; -1 takes it from the terminator.
    void ReleaseBuffer(int nNewLength = -1);
    void ReleaseBufferSetLength(int nNewLength) { ReleaseBuffer(nNewLength < 0 ? 0 : nNewLength); }

    /// 0 for null; throws when the length does not fit.
    static int __cdecl StringLength(PCXSTR psz);

protected:
    /// Makes strResult, an empty string, the two texts in a row.
    static void __cdecl Concatenate(CSimpleStringT& strResult, PCXSTR psz1, int nLength1, PCXSTR psz2,
                                    int nLength2);

private:
    void SetLength(int nLength);
    CStringData* GetData() const noexcept { return reinterpret_cast<CStringData*>(m_pszData) - 1; }
    void Attach(CStringData* pData) noexcept { m_pszData = static_cast<PXSTR>(pData->data()); }
    PXSTR PrepareWrite(int nLength);
    void Fork(int nLength);
    void Reallocate(int nLength);
    static CStringData* CloneData(CStringData* pData);

    PXSTR m_pszData;
};

extern template class CSimpleStringT<wchar_t, true>;

} // namespace ATL
