// CString: the framework's wide string over its own buffer manager.
#pragma once
#include <afxstat_.h>
#include <cstringt.h>

/// The buffer manager of this module; its buffers come from the C heap.
ATL::IAtlStringMgr* AFXAPI AfxGetStringManager();

template <typename CharType = char, class StringIterator = ATL::ChTraitsCRT<CharType>>
class StrTraitMFC_DLL : public StringIterator {
public:
    static ATL::IAtlStringMgr* GetDefaultManager() noexcept { return AfxGetStringManager(); }
    static HINSTANCE FindStringResourceInstance(UINT) noexcept { return AfxGetResourceHandle(); }
};

extern template class ATL::CStringT<wchar_t, StrTraitMFC_DLL<wchar_t>>;
typedef ATL::CStringT<wchar_t, StrTraitMFC_DLL<wchar_t>> CStringW;
typedef CStringW CString;
