#include "base/Xml.h"

#include <cstring>
#include <new>

#include "base/WholeFile.h"

namespace base {

namespace {

using _com_util::CheckError;
using StreamPtr = _com_ptr_t<_com_IIID<IStream, &IID_IStream>>;
using XmlDocumentTypePtr = _com_ptr_t<_com_IIID<IXMLDOMDocumentType, &IID_IXMLDOMDocumentType>>;

using XmlParseErrorPtr = _com_ptr_t<_com_IIID<IXMLDOMParseError, &IID_IXMLDOMParseError>>;

constexpr CLSID kDocument60 = {0x88d96a05, 0xf192, 0x11d4, {0xa6, 0x5f, 0x00, 0x40, 0x96, 0x32, 0x51, 0xe5}};

void Tell(XmlFault& fault, IXMLDOMDocument2* document) {
    IXMLDOMParseError* error = nullptr;
    if (document->get_parseError(&error) != S_OK) return;
    const XmlParseErrorPtr owner(error, false);
    error->get_line(&fault.line);
    error->get_linepos(&fault.column);
    _bstr_t reason;
    if (error->get_reason(reason.GetAddress()) == S_OK) fault.reason.assign(reason, reason.length());
}

/// Null unless the document was loaded. Not every version of the parser refuses a document type definition by
/// itself.
XmlDocumentPtr Accepted(const XmlDocumentPtr& document, VARIANT_BOOL loaded, XmlFault* fault) {
    IXMLDOMDocumentType* type = nullptr;
    const bool hasType = document->get_doctype(&type) == S_OK && type;
    const XmlDocumentTypePtr owner(type, false);
    if (loaded && !hasType) return document;
    if (fault) Tell(*fault, document);
    return nullptr;
}

/// The bytes as a variant from which a document can load: it would take a path for an address, in which some
/// characters have a meaning.
_variant_t ByteArray(const std::string& bytes) {
    SAFEARRAY* array = ::SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(bytes.size()));
    if (!array) throw std::bad_alloc();
    std::memcpy(array->pvData, bytes.data(), bytes.size());
    _variant_t variant;
    variant.vt = VT_ARRAY | VT_UI1;
    variant.parray = array;
    return variant;
}

std::string BytesOf(IStream* stream) {
    STATSTG status = {};
    CheckError(stream->Stat(&status, STATFLAG_NONAME));
    CheckError(stream->Seek({}, STREAM_SEEK_SET, nullptr));
    std::string bytes(static_cast<size_t>(status.cbSize.QuadPart), '\0');
    ULONG read = 0;
    CheckError(stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &read));
    bytes.resize(read);
    return bytes;
}

} // namespace

XmlDocumentPtr NewXmlDocument() {
    XmlDocumentPtr document;
    CheckError(document.CreateInstance(kDocument60, nullptr, CLSCTX_INPROC_SERVER));
    CheckError(document->put_async(VARIANT_FALSE));
    // A parser that refuses one of these lacks what it switches off.
    document->setProperty(_bstr_t(L"ProhibitDTD"), _variant_t(true));
    document->put_resolveExternals(VARIANT_FALSE);
    document->put_validateOnParse(VARIANT_FALSE);
    return document;
}

XmlDocumentPtr LoadXmlText(TextRef text, XmlFault* fault) {
    const XmlDocumentPtr document = NewXmlDocument();
    VARIANT_BOOL loaded = VARIANT_FALSE;
    CheckError(document->loadXML(_bstr_t(static_cast<const wchar_t*>(text)), &loaded));
    return Accepted(document, loaded, fault);
}

XmlDocumentPtr LoadXmlFile(TextRef path, XmlFault* fault) {
    std::string bytes;
    if (ReadWholeFile(path, bytes) != ReadResult::Done || bytes.empty()) return nullptr;
    const XmlDocumentPtr document = NewXmlDocument();
    VARIANT_BOOL loaded = VARIANT_FALSE;
    CheckError(document->load(ByteArray(bytes), &loaded));
    return Accepted(document, loaded, fault);
}

bool SaveXml(IXMLDOMDocument* document, TextRef path) {
    // Not to the file itself: the parser may call a cut-off file a success.
    StreamPtr stream;
    CheckError(::CreateStreamOnHGlobal(nullptr, TRUE, &stream));
    return SUCCEEDED(document->save(_variant_t(static_cast<IUnknown*>(stream)))) &&
           WriteWholeFile(path, BytesOf(stream));
}

} // namespace base
