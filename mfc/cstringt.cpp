// Searching, cutting, replacing, formatting and comparison of CString.
#include <afxstr.h>

namespace ATL {

template <typename B, typename T>
CStringT<B, T>::CStringT() : CThisSimpleString(T::GetDefaultManager()) {}

template <typename B, typename T>
CStringT<B, T>::CStringT(PCXSTR pszSrc) : CStringT(pszSrc, StringLength(pszSrc)) {}

template <typename B, typename T>
CStringT<B, T>::CStringT(PCXSTR pchSrc, int nLength)
    : CThisSimpleString(pchSrc, nLength, T::GetDefaultManager()) {}

template <typename B, typename T>
CStringT<B, T>::CStringT(XCHAR ch, int nRepeat) : CStringT() {
    if (nRepeat <= 0) return;
    PXSTR pszBuffer = this->GetBufferSetLength(nRepeat);
    for (int i = 0; i < nRepeat; ++i)
        pszBuffer[i] = ch;
}

template <typename B, typename T>
int CStringT<B, T>::Compare(PCXSTR psz) const {
    ATLENSURE(psz != nullptr);
    return wcscmp(GetString(), psz);
}

template <typename B, typename T>
int CStringT<B, T>::CompareNoCase(PCXSTR psz) const {
    ATLENSURE(psz != nullptr);
    return _wcsicmp(GetString(), psz);
}

template <typename B, typename T>
int CStringT<B, T>::Find(PCXSTR pszSub, int iStart) const {
    if (pszSub == nullptr || iStart < 0 || iStart > GetLength()) return -1;
    PCXSTR pszFound = wcsstr(GetString() + iStart, pszSub);
    return pszFound == nullptr ? -1 : static_cast<int>(pszFound - GetString());
}

template <typename B, typename T>
int CStringT<B, T>::Find(XCHAR ch, int iStart) const {
    if (iStart < 0 || iStart >= GetLength()) return -1;
    PCXSTR pszFound = wcschr(GetString() + iStart, ch);
    return pszFound == nullptr ? -1 : static_cast<int>(pszFound - GetString());
}

template <typename B, typename T>
int CStringT<B, T>::FindOneOf(PCXSTR pszCharSet) const {
    ATLENSURE(pszCharSet != nullptr);
    PCXSTR pszFound = wcspbrk(GetString(), pszCharSet);
    return pszFound == nullptr ? -1 : static_cast<int>(pszFound - GetString());
}

template <typename B, typename T>
int CStringT<B, T>::ReverseFind(XCHAR ch) const {
    PCXSTR pszFound = wcsrchr(GetString(), ch);
    return pszFound == nullptr ? -1 : static_cast<int>(pszFound - GetString());
}

template <typename B, typename T>
CStringT<B, T> CStringT<B, T>::Mid(int iFirst, int nCount) const {
    if (iFirst < 0) iFirst = 0;
    if (nCount < 0) nCount = 0;
    if (iFirst > GetLength()) iFirst = GetLength();
    if (nCount > GetLength() - iFirst) nCount = GetLength() - iFirst;
    if (nCount == GetLength()) return *this;
    return CStringT(GetString() + iFirst, nCount, GetManager());
}

template <typename B, typename T>
CStringT<B, T> CStringT<B, T>::Right(int nCount) const {
    if (nCount < 0) nCount = 0;
    if (nCount >= GetLength()) return *this;
    return Mid(GetLength() - nCount, nCount);
}

template <typename B, typename T>
int CStringT<B, T>::Replace(XCHAR chOld, XCHAR chNew) {
    if (chOld == chNew || Find(chOld) < 0) return 0;
    int nReplaced = 0;
    PXSTR pszBuffer = GetBuffer();
    for (int i = 0; i < GetLength(); ++i) {
        if (pszBuffer[i] != chOld) continue;
        pszBuffer[i] = chNew;
        ++nReplaced;
    }
    return nReplaced;
}

template <typename B, typename T>
int CStringT<B, T>::Replace(PCXSTR pszOld, PCXSTR pszNew) {
    if (pszOld == nullptr || *pszOld == 0) return 0;
    const int nOldLength = static_cast<int>(wcslen(pszOld));
    CStringT strResult(GetManager());
    int nReplaced = 0;
    int iFrom = 0;
    for (int iHit = Find(pszOld); iHit >= 0; iHit = Find(pszOld, iFrom)) {
        strResult.Append(GetString() + iFrom, iHit - iFrom);
        strResult.Append(pszNew);
        iFrom = iHit + nOldLength;
        ++nReplaced;
    }
    if (nReplaced == 0) return 0;
    strResult.Append(GetString() + iFrom, GetLength() - iFrom);
    *this = static_cast<CStringT&&>(strResult);
    return nReplaced;
}

template <typename B, typename T>
int CStringT<B, T>::Delete(int iIndex, int nCount) {
    if (iIndex < 0) iIndex = 0;
    if (nCount <= 0 || iIndex >= GetLength()) return GetLength();
    if (nCount > GetLength() - iIndex) nCount = GetLength() - iIndex;
    const int nNewLength = GetLength() - nCount;
    PXSTR pszBuffer = GetBuffer();
    memmove(pszBuffer + iIndex, pszBuffer + iIndex + nCount, (nNewLength - iIndex) * sizeof(XCHAR));
    this->ReleaseBufferSetLength(nNewLength);
    return nNewLength;
}

template <typename B, typename T>
CStringT<B, T>& CStringT<B, T>::TrimLeft() {
    int nSkip = 0;
    while (nSkip < GetLength() && iswspace(GetString()[nSkip]))
        ++nSkip;
    if (nSkip > 0) Delete(0, nSkip);
    return *this;
}

template <typename B, typename T>
CStringT<B, T>& CStringT<B, T>::TrimRight() {
    int nKept = GetLength();
    while (nKept > 0 && iswspace(GetString()[nKept - 1]))
        --nKept;
    if (nKept < GetLength()) this->Truncate(nKept);
    return *this;
}

template <typename B, typename T>
CStringT<B, T>& CStringT<B, T>::MakeUpper() {
    _wcsupr(GetBuffer());
    return *this;
}

template <typename B, typename T>
void CStringT<B, T>::FormatV(PCXSTR pszFormat, va_list args) {
    CStringT strResult(GetManager());
    strResult.AppendFormatV(pszFormat, args);
    *this = static_cast<CStringT&&>(strResult);
}

template <typename B, typename T>
void CStringT<B, T>::AppendFormatV(PCXSTR pszFormat, va_list args) {
    ATLENSURE(pszFormat != nullptr);
    va_list argsForLength;
    va_copy(argsForLength, args);
    const int nAdded = T::GetFormattedLength(pszFormat, argsForLength);
    va_end(argsForLength);
    ATLENSURE(nAdded >= 0);
    CStringT strAdded(GetManager());
    PXSTR pszBuffer = strAdded.GetBuffer(nAdded);
    T::Format(pszBuffer, static_cast<size_t>(nAdded) + 1, pszFormat, args);
    strAdded.ReleaseBufferSetLength(nAdded);
    this->Append(strAdded);
}

template <typename B, typename T>
void CStringT<B, T>::Format(PCXSTR pszFormat, ...) {
    va_list args;
    va_start(args, pszFormat);
    FormatV(pszFormat, args);
    va_end(args);
}

template <typename B, typename T>
void CStringT<B, T>::AppendFormat(PCXSTR pszFormat, ...) {
    va_list args;
    va_start(args, pszFormat);
    AppendFormatV(pszFormat, args);
    va_end(args);
}

template <typename B, typename T>
BOOL CStringT<B, T>::LoadString(UINT nID) {
    return LoadString(T::FindStringResourceInstance(nID), nID);
}

template <typename B, typename T>
BOOL CStringT<B, T>::LoadString(HINSTANCE hInstance, UINT nID) {
    // With a zero length the call hands out a pointer to the text in the resource itself.
    PCXSTR pszResource = nullptr;
    const int nLength = ::LoadStringW(hInstance, nID, reinterpret_cast<PXSTR>(&pszResource), 0);
    if (nLength <= 0) return FALSE;
    this->SetString(pszResource, nLength);
    return TRUE;
}

int ChTraitsCRT<wchar_t>::GetFormattedLength(const wchar_t* pszFormat, va_list args) noexcept {
    return Format(nullptr, 0, pszFormat, args);
}

int ChTraitsCRT<wchar_t>::Format(wchar_t* pszBuffer, size_t nBufferLength, const wchar_t* pszFormat,
                                 va_list args) noexcept {
#ifdef _UCRT
    // The inline wrappers of this run-time library disagree about what %s means, so its one entry is called.
    const unsigned __int64 nOptions =
        _CRT_INTERNAL_PRINTF_STANDARD_SNPRINTF_BEHAVIOR | _CRT_INTERNAL_PRINTF_LEGACY_WIDE_SPECIFIERS;
    return __stdio_common_vswprintf(nOptions, pszBuffer, nBufferLength, pszFormat, nullptr, args);
#else
    if (nBufferLength == 0) return _vscwprintf(pszFormat, args);
    return _vsnwprintf(pszBuffer, nBufferLength, pszFormat, args);
#endif
}

} // namespace ATL

template class ATL::CStringT<wchar_t, StrTraitMFC_DLL<wchar_t>>;
