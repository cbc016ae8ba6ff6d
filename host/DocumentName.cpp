// Judgement of document names.
#include <afxwin.h>

#include "host/DocumentName.h"

namespace host {

namespace {

constexpr const wchar_t* kDevices[] = {L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$", L"CLOCK$"};

bool IsPortNumber(wchar_t c) {
    // The superscript digits one to three count as digits here.
    return (c >= L'0' && c <= L'9') || c == 0xB9 || c == 0xB2 || c == 0xB3;
}

/// Devices answer to their name with any extension and with blanks after it.
bool IsDevice(const CString& name) {
    const int extension = name.Find(L'.');
    CString stem = extension < 0 ? name : name.Left(extension);
    stem.TrimRight();
    for (const wchar_t* device : kDevices) {
        if (stem.CompareNoCase(device) == 0) return true;
    }
    const CString kind = stem.Left(3);
    const bool port = kind.CompareNoCase(L"COM") == 0 || kind.CompareNoCase(L"LPT") == 0;
    return port && stem.GetLength() == 4 && IsPortNumber(stem[3]);
}

bool HasForbiddenCharacter(const CString& name) {
    for (int i = 0; i < name.GetLength(); ++i) {
        if (name[i] < L' ') return true;
    }
    return name.FindOneOf(L"<>\"|?*") >= 0;
}

} // namespace

NameFault CheckDocumentName(const CString& name) {
    if (name.IsEmpty()) return NameFault::Empty;
    if (name.FindOneOf(L"\\/:") >= 0 || name == L"." || name == L"..") return NameFault::Path;
    if (IsDevice(name)) return NameFault::Device;
    const wchar_t last = name[name.GetLength() - 1];
    if (last == L'.' || last == L' ') return NameFault::Ending;
    if (HasForbiddenCharacter(name)) return NameFault::Character;
    if (name.CompareNoCase(L"SignData") == 0) return NameFault::SignData;
    return NameFault::None;
}

int CompareFileNames(const CString& a, const CString& b) {
    return ::CompareStringOrdinal(a, a.GetLength(), b, b.GetLength(), TRUE) - CSTR_EQUAL;
}

} // namespace host
