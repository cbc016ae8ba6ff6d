// Judgement of document names.
#include <afxwin.h>

#include "base/Paths.h"
#include "host/DocumentName.h"

namespace host {

namespace {

bool HasForbiddenCharacter(const CString& name) {
    for (int i = 0; i < name.GetLength(); ++i) {
        if (name[i] < L' ') return true;
    }
    return name.FindOneOf(L"<>\"|?*") >= 0;
}

} // namespace

TextId CheckDocumentName(const CString& name) {
    if (name.IsEmpty()) return TextId::RefusedEmpty;
    if (name.FindOneOf(L"\\/:") >= 0 || name == L"." || name == L"..") return TextId::RefusedPath;
    if (base::IsDeviceName(name)) return TextId::RefusedDevice;
    const wchar_t last = name[name.GetLength() - 1];
    if (last == L'.' || last == L' ') return TextId::RefusedEnding;
    if (HasForbiddenCharacter(name)) return TextId::RefusedCharacter;
    if (name.CompareNoCase(L"SignData") == 0) return TextId::RefusedSignData;
    return TextId::Ready;
}

int CompareFileNames(const CString& a, const CString& b) {
    return ::CompareStringOrdinal(a, a.GetLength(), b, b.GetLength(), TRUE) - CSTR_EQUAL;
}

} // namespace host
