// What every module has of its own beside mfc140u.dll: functions that MFC defines in its headers.
#include <afxstr.h>

namespace ATL {

template <typename B, bool M>
CSimpleStringT<B, M>::CSimpleStringT(CSimpleStringT&& strSrc) : CSimpleStringT(strSrc.GetManager()) {
    *this = static_cast<CSimpleStringT&&>(strSrc);
}

template <typename B, bool M>
CSimpleStringT<B, M>& CSimpleStringT<B, M>::operator=(CSimpleStringT&& strSrc) {
    CStringData* pOld = GetData();
    CStringData* pSource = strSrc.GetData();
    const bool bMovable =
        !pOld->IsLocked() && !pSource->IsLocked() && pSource->pStringMgr == pOld->pStringMgr;
    if (!bMovable) return *this = static_cast<const CSimpleStringT&>(strSrc);
    m_pszData = static_cast<PXSTR>(pSource->data());
    strSrc.m_pszData = static_cast<PXSTR>(pOld->data());
    return *this;
}

template CSimpleStringT<wchar_t, true>::CSimpleStringT(CSimpleStringT&&);
template CSimpleStringT<wchar_t, true>& CSimpleStringT<wchar_t, true>::operator=(CSimpleStringT&&);

} // namespace ATL
