// The bare XML parser, which the library's costs are compared with.
#pragma once

#include <comdef.h>
#include <msxml2.h>
#include <string>

namespace bench {

using Document = _com_ptr_t<_com_IIID<IXMLDOMDocument, &IID_IXMLDOMDocument>>;

/// Ends the program with exit code 2 when a measure could not be taken.
void Require(bool condition, const char* what);

Document LoadBare(const std::wstring& text);
void SaveBare(const Document& document, const std::wstring& path);

} // namespace bench
