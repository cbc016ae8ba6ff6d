// Copies a dialog template word by word; both the plain and the extended format.
#include "win/DialogTemplate.h"

#include <algorithm>

namespace {

// Type of the resource that says how a dialog's ActiveX controls begin.
const LPCTSTR RT_DLGINIT = MAKEINTRESOURCE(240);

constexpr wchar_t hostClass[] = L"AtlAxWin";

// Word offsets within the header and item records, plain and extended.
constexpr size_t styleInHeader[] = {0, 6};
constexpr size_t itemsInHeader[] = {4, 8};
constexpr size_t headerWords[] = {9, 13};
constexpr size_t fontWords[] = {1, 3};
constexpr size_t idInItem[] = {8, 10};
constexpr size_t itemWords[] = {9, 12};

} // namespace

bool CDialogTemplate::Load(LPCTSTR lpszTemplateName) {
    const HINSTANCE hInstance = AfxGetResourceHandle();
    const HRSRC hResource = ::FindResource(hInstance, lpszTemplateName, RT_DIALOG);
    const HGLOBAL hTemplate = hResource != nullptr ? ::LoadResource(hInstance, hResource) : nullptr;
    if (hTemplate == nullptr) return false;
    m_pSourceStart = m_pSource = static_cast<const WORD*>(::LockResource(hTemplate));
    m_words.reserve(::SizeofResource(hInstance, hResource) / sizeof(WORD));
    ReadInitEntries(lpszTemplateName);
    ReadHeader();
    for (WORD nItem = 0; nItem < m_nItems; ++nItem)
        ReadItem();
    return true;
}

// Entries of an id, a message, the length of the data and the data; an id of 0 ends them. Controls start new
// here, whatever data there is.
void CDialogTemplate::ReadInitEntries(LPCTSTR lpszTemplateName) {
    const HINSTANCE hInstance = AfxGetResourceHandle();
    const HRSRC hResource = ::FindResource(hInstance, lpszTemplateName, RT_DLGINIT);
    const HGLOBAL hEntries = hResource != nullptr ? ::LoadResource(hInstance, hResource) : nullptr;
    if (hEntries == nullptr) return;
    constexpr WORD loadFromStream = 0x376, startNew = 0x378;
    const auto* pEntry = static_cast<const BYTE*>(::LockResource(hEntries));
    for (WORD nID; memcpy(&nID, pEntry, sizeof(nID)), nID != 0;) {
        WORD nMessage = 0;
        DWORD nLength = 0;
        memcpy(&nMessage, pEntry + 2, sizeof(nMessage));
        memcpy(&nLength, pEntry + 4, sizeof(nLength));
        if (nMessage >= loadFromStream && nMessage <= startNew) m_listed.push_back(nID);
        pEntry += 8 + nLength;
    }
}

bool CDialogTemplate::IsListed(int nID) const {
    return std::find(m_listed.begin(), m_listed.end(), static_cast<WORD>(nID)) != m_listed.end();
}

DWORD CDialogTemplate::ReadDword(size_t nOffset) const {
    return MAKELONG(m_pSource[nOffset], m_pSource[nOffset + 1]);
}

void CDialogTemplate::Copy(size_t nWords) {
    m_words.insert(m_words.end(), m_pSource, m_pSource + nWords);
    m_pSource += nWords;
}

void CDialogTemplate::CopyText() {
    Copy(wcslen(reinterpret_cast<const wchar_t*>(m_pSource)) + 1);
}

void CDialogTemplate::CopyTextOrOrdinal() {
    if (*m_pSource == 0xFFFF)
        Copy(2);
    else
        CopyText();
}

// Items begin on multiples of four bytes, in the source and in the copy.
void CDialogTemplate::Align() {
    if ((m_pSource - m_pSourceStart) % 2 != 0) ++m_pSource;
    if (m_words.size() % 2 != 0) m_words.push_back(0);
}

void CDialogTemplate::ReadHeader() {
    m_bExtended = m_pSource[0] == 1 && m_pSource[1] == 0xFFFF;
    const size_t nStyle = styleInHeader[m_bExtended];
    const size_t nItems = itemsInHeader[m_bExtended];
    const DWORD dwStyle = ReadDword(nStyle);
    m_nItems = m_pSource[nItems];
    m_bFreePlace = !(dwStyle & (DS_ABSALIGN | DS_CENTER | DS_CENTERMOUSE)) && m_pSource[nItems + 1] == 0 &&
                   m_pSource[nItems + 2] == 0;
    m_nItemCountAt = nItems;
    Copy(headerWords[m_bExtended]);
    CopyTextOrOrdinal(); // menu
    CopyTextOrOrdinal(); // window class
    CopyText();          // title
    if (dwStyle & DS_SETFONT) {
        Copy(fontWords[m_bExtended]);
        CopyText();
    }
}

void CDialogTemplate::ReadItem() {
    Align();
    const size_t nStart = m_words.size();
    const size_t nId = idInItem[m_bExtended];
    const int nID = m_bExtended ? static_cast<int>(ReadDword(nId)) : static_cast<short>(m_pSource[nId]);
    Copy(itemWords[m_bExtended]);
    const bool bOleControl = *m_pSource == L'{';
    const bool bLeftOut = bOleControl && !IsListed(nID);
    if (bOleControl) {
        const auto* pszClass = reinterpret_cast<const wchar_t*>(m_pSource);
        if (!bLeftOut) m_oleControls.push_back(OleControl{nID, pszClass});
        m_pSource += wcslen(pszClass) + 1;
        m_words.insert(m_words.end(), hostClass, hostClass + _countof(hostClass));
    } else {
        CopyTextOrOrdinal();
    }
    const size_t nTitle = m_words.size();
    CopyTextOrOrdinal();
    if (bOleControl) {
        // The host window would take a title for the name of a control to create.
        m_words.resize(nTitle);
        m_words.push_back(0);
    }
    // Creation data: its size in bytes, then the data.
    Copy(1 + (*m_pSource + 1u) / sizeof(WORD));
    if (bLeftOut) {
        m_words.resize(nStart);
        --m_words[m_nItemCountAt];
    }
}
