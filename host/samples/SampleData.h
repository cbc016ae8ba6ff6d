// The people and documents of the sample project.
#pragma once

#include <afxwin.h>

#include <vector>

namespace samples {

struct SampleUser {
    const wchar_t* name;
    const wchar_t* person;
    const wchar_t* signature; ///< server's name of the signature drawing
    bool deleted;
};

struct SampleDocument {
    const wchar_t* id;
    const wchar_t* fileName;
    const wchar_t* remoteName;
    const wchar_t* title;
    const wchar_t* version;
    const wchar_t* role;
    const char* fileVersion; ///< of the .dwg format
};

/// The first one is the signer of the messages.
const std::vector<SampleUser>& SampleUsers();

/// All documents; the start-sign message has all but the last one, the further message the last two.
const std::vector<SampleDocument>& SampleDocuments();

/// The start-sign message and the further one, as XML with an UTF-8 declaration.
CString StartMessage();
CString FurtherMessage();

/// The objects of type USER, as the server keeps them.
CString UserObjects();

/// session.ini of the vault and Varnoke.ini of the demonstration.
CString SessionSettings();
CString LibrarySettings();

} // namespace samples
