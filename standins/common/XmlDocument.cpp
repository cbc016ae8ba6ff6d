// XML documents of the system's parser, as the stand-ins load them.
#include "standins/common/XmlDocument.h"

#include <new>

#include "base/Owned.h"

namespace standins {

using _com_util::CheckError;

XmlDocumentPtr NewXmlDocument() {
    XmlDocumentPtr document;
    CheckError(document.CreateInstance(L"Msxml2.DOMDocument.6.0", nullptr, CLSCTX_INPROC_SERVER));
    CheckError(document->put_async(VARIANT_FALSE));
    CheckError(document->put_validateOnParse(VARIANT_FALSE));
    CheckError(document->put_resolveExternals(VARIANT_FALSE));
    CheckError(document->setProperty(_bstr_t(L"ProhibitDTD"), _variant_t(true)));
    return document;
}

// Not every version of the parser refuses a DTD by itself.
static bool HasDocumentType(const XmlDocumentPtr& document) {
    _com_ptr_t<_com_IIID<IXMLDOMDocumentType, &IID_IXMLDOMDocumentType>> type;
    return document->get_doctype(&type) == S_OK && type;
}

// The file's bytes, as a variant from which a document can load: a path would be taken for an address, in
// which some characters have a meaning. Empty when the file can't be read.
static _variant_t ReadBytes(const std::wstring& path) {
    _variant_t bytes;
    const base::FileHandle file = base::OwnFile(
        ::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    LARGE_INTEGER size = {};
    if (!file || !::GetFileSizeEx(file.get(), &size) || size.QuadPart == 0 || size.QuadPart > MAXLONG)
        return bytes;
    V_ARRAY(&bytes) = ::SafeArrayCreateVector(VT_UI1, 0, size.LowPart);
    if (!V_ARRAY(&bytes)) throw std::bad_alloc();
    V_VT(&bytes) = VT_ARRAY | VT_UI1;
    DWORD read = 0;
    const bool complete =
        ::ReadFile(file.get(), V_ARRAY(&bytes)->pvData, size.LowPart, &read, nullptr) && read == size.LowPart;
    if (!complete) bytes.Clear();
    return bytes;
}

XmlDocumentPtr LoadXmlText(const std::wstring& text) {
    const XmlDocumentPtr document = NewXmlDocument();
    VARIANT_BOOL loaded = VARIANT_FALSE;
    const HRESULT status = document->loadXML(_bstr_t(text.c_str()), &loaded);
    return SUCCEEDED(status) && loaded && !HasDocumentType(document) ? document : nullptr;
}

XmlDocumentPtr LoadXmlFile(const std::wstring& path) {
    const _variant_t bytes = ReadBytes(path);
    if (V_VT(&bytes) == VT_EMPTY) return nullptr;
    const XmlDocumentPtr document = NewXmlDocument();
    VARIANT_BOOL loaded = VARIANT_FALSE;
    const HRESULT status = document->load(bytes, &loaded);
    return SUCCEEDED(status) && loaded && !HasDocumentType(document) ? document : nullptr;
}

} // namespace standins
