// The return file of a back-sign run: which of the kept message's documents were signed.
#pragma once

#include <afxwin.h>
#include <afxcoll.h>

namespace varnoke {

/// Writes <returnFile without extension>_Ret.Xml; false when the kept message is incomplete or the file can't
/// be written. The kept message stays as it is.
bool WriteReturnFile(const CStringList& signedNames, const CString& keyName, const CString& workFolder,
                     const CString& returnFile);

} // namespace varnoke
