// The people and documents of the sample project.
#pragma once

#include <afxwin.h>

#include <vector>

namespace samples {

struct SSampleUser {
    const wchar_t* m_pszName;
    const wchar_t* m_pszPerson;
    const wchar_t* m_pszSignature; ///< server's name of the signature drawing
    bool m_bDeleted;
};

struct SSampleDocument {
    const wchar_t* m_pszId;
    const wchar_t* m_pszFileName;
    const wchar_t* m_pszRemoteName;
    const wchar_t* m_pszTitle;
    const wchar_t* m_pszVersion;
    const wchar_t* m_pszRole;
    const char* m_pszFileVersion; ///< of the .dwg format
};

/// The first one is the signer of the messages.
const std::vector<SSampleUser>& SampleUsers();

/// All documents; the start-sign message has all but the last one, the further message the last two.
const std::vector<SSampleDocument>& SampleDocuments();

/// The start-sign message and the further one, as XML with an UTF-8 declaration.
CString StartMessage();
CString FurtherMessage();

/// The objects of type USER, as the server keeps them.
CString UserObjects();

/// session.ini of the vault and Varnoke.ini of the demonstration.
CString SessionSettings();
CString LibrarySettings();

} // namespace samples
