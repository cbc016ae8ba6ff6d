// Buffer handling of the plain string: sharing, copying before a write, growth, locking.
#include <atlsimpstr.h>
#include <limits.h>

namespace ATL {

namespace {

CStringData* AllocateOrThrow(IAtlStringMgr* pStringMgr, int nLength, int nCharSize) {
    CStringData* pData = pStringMgr->Allocate(nLength, nCharSize);
    if (pData == nullptr) AfxThrowMemoryException();
    return pData;
}

int SumOrThrow(int nFirst, int nSecond) {
    if (nSecond > INT_MAX - 1 - nFirst) AfxThrowMemoryException();
    return nFirst + nSecond;
}

} // namespace

template <typename B, bool M>
CSimpleStringT<B, M>::CSimpleStringT(IAtlStringMgr* pStringMgr) {
    Attach(pStringMgr->GetNilString());
}

template <typename B, bool M>
CSimpleStringT<B, M>::CSimpleStringT(PCXSTR pchSrc, int nLength, IAtlStringMgr* pStringMgr) {
    ATLENSURE(nLength >= 0 && (pchSrc != nullptr || nLength == 0));
    if (nLength == 0) {
        Attach(pStringMgr->GetNilString());
        return;
    }
    Attach(AllocateOrThrow(pStringMgr, nLength, sizeof(XCHAR)));
    memcpy(m_pszData, pchSrc, nLength * sizeof(XCHAR));
    SetLength(nLength);
}

template <typename B, bool M>
CSimpleStringT<B, M>::CSimpleStringT(const CSimpleStringT& strSrc) {
    Attach(CloneData(strSrc.GetData()));
}

template <typename B, bool M>
CSimpleStringT<B, M>::CSimpleStringT(CSimpleStringT&& strSrc) {
    CStringData* pSource = strSrc.GetData();
    if (pSource->IsLocked()) {
        Attach(CloneData(pSource));
        return;
    }
    strSrc.Attach(pSource->pStringMgr->GetNilString());
    Attach(pSource);
}

template <typename B, bool M>
CSimpleStringT<B, M>::~CSimpleStringT() noexcept {
    GetData()->Release();
}

template <typename B, bool M>
CSimpleStringT<B, M>& CSimpleStringT<B, M>::operator=(const CSimpleStringT& strSrc) {
    CStringData* pOld = GetData();
    CStringData* pSource = strSrc.GetData();
    if (pSource == pOld) return *this;
    if (pOld->IsLocked() || pSource->pStringMgr != pOld->pStringMgr) {
        SetString(strSrc.GetString(), strSrc.GetLength());
        return *this;
    }
    CStringData* pNew = CloneData(pSource);
    pOld->Release();
    Attach(pNew);
    return *this;
}

template <typename B, bool M>
CSimpleStringT<B, M>& CSimpleStringT<B, M>::operator=(CSimpleStringT&& strSrc) {
    CStringData* pOld = GetData();
    CStringData* pSource = strSrc.GetData();
    const bool bMovable =
        !pOld->IsLocked() && !pSource->IsLocked() && pSource->pStringMgr == pOld->pStringMgr;
    if (!bMovable) return *this = static_cast<const CSimpleStringT&>(strSrc);
    Attach(pSource);
    strSrc.Attach(pOld);
    return *this;
}

template <typename B, bool M>
B CSimpleStringT<B, M>::operator[](int iChar) const {
    ATLENSURE(iChar >= 0 && iChar <= GetLength());
    return m_pszData[iChar];
}

template <typename B, bool M>
void CSimpleStringT<B, M>::SetAt(int iChar, XCHAR ch) {
    ATLENSURE(iChar >= 0 && iChar < GetLength());
    PrepareWrite(GetLength());
    m_pszData[iChar] = ch;
}

template <typename B, bool M>
void CSimpleStringT<B, M>::Empty() noexcept {
    CStringData* pOld = GetData();
    if (pOld->nDataLength == 0) return;
    if (pOld->IsLocked()) {
        pOld->nDataLength = 0;
        m_pszData[0] = 0;
        return;
    }
    Attach(pOld->pStringMgr->GetNilString());
    pOld->Release();
}

template <typename B, bool M>
int __cdecl CSimpleStringT<B, M>::StringLength(PCXSTR psz) {
    if (psz == nullptr) return 0;
    const size_t nLength = wcslen(psz);
    if (nLength >= INT_MAX) AfxThrowMemoryException();
    return static_cast<int>(nLength);
}

template <typename B, bool M>
void CSimpleStringT<B, M>::SetString(PCXSTR pszSrc) {
    SetString(pszSrc, StringLength(pszSrc));
}

template <typename B, bool M>
void CSimpleStringT<B, M>::SetString(PCXSTR pszSrc, int nLength) {
    if (nLength == 0) {
        Empty();
        return;
    }
    ATLENSURE(pszSrc != nullptr && nLength > 0);
    // The source may lie inside this very string, whose buffer can move when it is made writable.
    const UINT_PTR nOffset = pszSrc - m_pszData;
    const bool bInside = pszSrc >= m_pszData && nOffset <= static_cast<UINT_PTR>(GetLength());
    PrepareWrite(nLength);
    memmove(m_pszData, bInside ? m_pszData + nOffset : pszSrc, nLength * sizeof(XCHAR));
    SetLength(nLength);
}

template <typename B, bool M>
void CSimpleStringT<B, M>::Append(PCXSTR pszSrc) {
    Append(pszSrc, StringLength(pszSrc));
}

template <typename B, bool M>
void CSimpleStringT<B, M>::Append(PCXSTR pszSrc, int nLength) {
    if (nLength == 0) return;
    ATLENSURE(pszSrc != nullptr && nLength > 0);
    const int nOldLength = GetLength();
    const int nNewLength = SumOrThrow(nOldLength, nLength);
    const UINT_PTR nOffset = pszSrc - m_pszData;
    const bool bInside = pszSrc >= m_pszData && nOffset <= static_cast<UINT_PTR>(nOldLength);
    PrepareWrite(nNewLength);
    memmove(m_pszData + nOldLength, bInside ? m_pszData + nOffset : pszSrc, nLength * sizeof(XCHAR));
    SetLength(nNewLength);
}

template <typename B, bool M>
void CSimpleStringT<B, M>::Append(const CSimpleStringT& strSrc) {
    Append(strSrc.GetString(), strSrc.GetLength());
}

template <typename B, bool M>
void CSimpleStringT<B, M>::Truncate(int nNewLength) {
    ATLENSURE(nNewLength >= 0 && nNewLength <= GetLength());
    PrepareWrite(nNewLength);
    SetLength(nNewLength);
}

template <typename B, bool M>
B* CSimpleStringT<B, M>::GetBuffer() {
    PrepareWrite(GetLength());
    return m_pszData;
}

template <typename B, bool M>
B* CSimpleStringT<B, M>::GetBuffer(int nMinBufferLength) {
    ATLENSURE(nMinBufferLength >= 0);
    PrepareWrite(nMinBufferLength);
    return m_pszData;
}

template <typename B, bool M>
B* CSimpleStringT<B, M>::GetBufferSetLength(int nLength) {
    GetBuffer(nLength);
    SetLength(nLength);
    return m_pszData;
}

template <typename B, bool M>
void CSimpleStringT<B, M>::ReleaseBuffer(int nNewLength) {
    if (nNewLength < 0)
        for (nNewLength = 0; nNewLength < GetAllocLength() && m_pszData[nNewLength] != 0;)
            ++nNewLength;
    SetLength(nNewLength);
}

template <typename B, bool M>
void CSimpleStringT<B, M>::SetLength(int nLength) {
    ATLENSURE(nLength >= 0 && nLength <= GetAllocLength());
    // Writing even an equal terminator into the shared nil buffer would be a race.
    if (nLength == 0 && GetAllocLength() == 0) return;
    GetData()->nDataLength = nLength;
    m_pszData[nLength] = 0;
}

template <typename B, bool M>
B* CSimpleStringT<B, M>::PrepareWrite(int nLength) {
    const int nWanted = nLength > GetLength() ? nLength : GetLength();
    if (GetData()->IsShared())
        Fork(nWanted);
    else if (nWanted > GetAllocLength())
        Reallocate(nWanted);
    return m_pszData;
}

template <typename B, bool M>
void CSimpleStringT<B, M>::Fork(int nLength) {
    CStringData* pOld = GetData();
    CStringData* pNew = AllocateOrThrow(pOld->pStringMgr->Clone(), nLength, sizeof(XCHAR));
    pNew->nDataLength = pOld->nDataLength;
    memcpy(pNew->data(), pOld->data(), (pOld->nDataLength + 1) * sizeof(XCHAR));
    Attach(pNew);
    pOld->Release();
}

template <typename B, bool M>
void CSimpleStringT<B, M>::Reallocate(int nLength) {
    // Half as much again, so that appending piece by piece stays linear.
    const int nRoomy = GetAllocLength() < INT_MAX / 2 ? GetAllocLength() + GetAllocLength() / 2 : nLength;
    CStringData* pOld = GetData();
    CStringData* pNew =
        pOld->pStringMgr->Reallocate(pOld, nRoomy > nLength ? nRoomy : nLength, sizeof(XCHAR));
    if (pNew == nullptr) AfxThrowMemoryException();
    Attach(pNew);
}

template <typename B, bool M>
void CSimpleStringT<B, M>::Concatenate(CSimpleStringT& strResult, PCXSTR psz1, int nLength1, PCXSTR psz2,
                                       int nLength2) {
    memcpy(strResult.GetBufferSetLength(SumOrThrow(nLength1, nLength2)), psz1, nLength1 * sizeof(XCHAR));
    memcpy(strResult.m_pszData + nLength1, psz2, nLength2 * sizeof(XCHAR));
}

template <typename B, bool M>
CStringData* CSimpleStringT<B, M>::CloneData(CStringData* pData) {
    IAtlStringMgr* pStringMgr = pData->pStringMgr->Clone();
    if (!pData->IsLocked() && pStringMgr == pData->pStringMgr) {
        pData->AddRef();
        return pData;
    }
    CStringData* pNew = AllocateOrThrow(pStringMgr, pData->nDataLength, sizeof(XCHAR));
    pNew->nDataLength = pData->nDataLength;
    memcpy(pNew->data(), pData->data(), (pData->nDataLength + 1) * sizeof(XCHAR));
    return pNew;
}

template class CSimpleStringT<wchar_t, true>;

} // namespace ATL
