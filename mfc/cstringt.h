// The string class with searching, cutting, formatting and comparison over the plain string.
#pragma once
#include <atlsimpstr.h>

namespace ATL {

template <typename CharType>
class ChTraitsCRT;

/// What a string needs from the C run-time library for wide characters.
template <>
class ChTraitsCRT<wchar_t> {
public:
    /// Length of the formatted text without terminator, or -1 for a bad format.
    static int GetFormattedLength(const wchar_t* pszFormat, va_list args) noexcept;
    /// Writes at most nBufferLength characters including the terminator.
    static int Format(wchar_t* pszBuffer, size_t nBufferLength, const wchar_t* pszFormat,
                      va_list args) noexcept;
};

template <typename BaseType, typename StringTraits>
class CStringT : public CSimpleStringT<BaseType, true> {
public:
    typedef CSimpleStringT<BaseType, true> CThisSimpleString;
    typedef typename CThisSimpleString::XCHAR XCHAR;
    typedef typename CThisSimpleString::PXSTR PXSTR;
    typedef typename CThisSimpleString::PCXSTR PCXSTR;
    using CThisSimpleString::GetBuffer;
    using CThisSimpleString::GetLength;
    using CThisSimpleString::GetManager;
    using CThisSimpleString::GetString;
    using CThisSimpleString::StringLength;

    CStringT();
    explicit CStringT(IAtlStringMgr* pStringMgr) : CThisSimpleString(pStringMgr) {}
    CStringT(const CStringT&) = default;
    CStringT(CStringT&&) = default;
    CStringT(PCXSTR pszSrc);
    CStringT(PCXSTR pchSrc, int nLength);
    CStringT(PCXSTR pchSrc, int nLength, IAtlStringMgr* pStringMgr)
        : CThisSimpleString(pchSrc, nLength, pStringMgr) {}
    explicit CStringT(XCHAR ch, int nRepeat = 1);
    ~CStringT() = default;

    CStringT& operator=(const CStringT&) = default;
    CStringT& operator=(CStringT&&) = default;
    CStringT& operator=(PCXSTR pszSrc) { return this->SetString(pszSrc), *this; }
    CStringT& operator+=(const CThisSimpleString& str) { return this->Append(str), *this; }
    CStringT& operator+=(PCXSTR pszSrc) { return this->Append(pszSrc), *this; }
    CStringT& operator+=(XCHAR ch) { return this->AppendChar(ch), *this; }

    int Compare(PCXSTR psz) const;
    int CompareNoCase(PCXSTR psz) const;

    /// Positions are from 0; -1 when not found or when iStart lies outside the string.
    int Find(PCXSTR pszSub, int iStart = 0) const;
    int Find(XCHAR ch, int iStart = 0) const;
    int FindOneOf(PCXSTR pszCharSet) const;
    int ReverseFind(XCHAR ch) const;

    /// Counts and positions outside the string are cut to it.
    CStringT Mid(int iFirst) const { return Mid(iFirst, GetLength()); }
    CStringT Mid(int iFirst, int nCount) const;
    CStringT Left(int nCount) const { return Mid(0, nCount); }
    CStringT Right(int nCount) const;

    /// Replace returns the number of replacements, Delete the new length.
    int Replace(XCHAR chOld, XCHAR chNew);
    int Replace(PCXSTR pszOld, PCXSTR pszNew);
    int Delete(int iIndex, int nCount = 1);

    CStringT& Trim() { return TrimRight().TrimLeft(); }
    CStringT& TrimLeft();
    CStringT& TrimRight();

    CStringT& MakeUpper();

    /// printf rules with %s for wide text; arguments must not point into this string. A bad format throws.
    void AFX_CDECL Format(PCXSTR pszFormat, ...);
    void FormatV(PCXSTR pszFormat, va_list args);
    void AFX_CDECL AppendFormat(PCXSTR pszFormat, ...);
    void AppendFormatV(PCXSTR pszFormat, va_list args);

    /// FALSE, with the string unchanged, when the module's resources have no such string.
    BOOL LoadString(UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID);

    // A sum takes the manager of the string that stands first.
    friend CStringT operator+(const CStringT& str1, const CStringT& str2) {
        CStringT strSum(str1.GetManager());
        CStringT::Concatenate(strSum, str1, str1.GetLength(), str2, str2.GetLength());
        return strSum;
    }
    friend CStringT operator+(const CStringT& str1, PCXSTR psz2) {
        CStringT strSum(str1.GetManager());
        CStringT::Concatenate(strSum, str1, str1.GetLength(), psz2, StringLength(psz2));
        return strSum;
    }
    friend CStringT operator+(PCXSTR psz1, const CStringT& str2) {
        CStringT strSum(str2.GetManager());
        CStringT::Concatenate(strSum, psz1, StringLength(psz1), str2, str2.GetLength());
        return strSum;
    }

    friend bool operator==(const CStringT& str1, const CStringT& str2) { return str1.Compare(str2) == 0; }
    friend bool operator==(const CStringT& str1, PCXSTR psz2) { return str1.Compare(psz2) == 0; }
    friend bool operator!=(const CStringT& str1, const CStringT& str2) { return str1.Compare(str2) != 0; }
    friend bool operator!=(const CStringT& str1, PCXSTR psz2) { return str1.Compare(psz2) != 0; }
};

} // namespace ATL
