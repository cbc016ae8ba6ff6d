// The bare XML parser, which the library's costs are compared with.
#include "bench/BareParser.h"

#include <cstdio>
#include <cstdlib>

namespace bench {

namespace {

constexpr CLSID kDocument60 = {0x88d96a05, 0xf192, 0x11d4, {0xa6, 0x5f, 0x00, 0x40, 0x96, 0x32, 0x51, 0xe5}};

} // namespace

void Require(bool condition, const char* what) {
    if (condition) return;
    std::printf("failed: %s\n", what);
    std::exit(2);
}

Document LoadBare(const std::wstring& text) {
    Document document;
    VARIANT_BOOL loaded = VARIANT_FALSE;
    Require(SUCCEEDED(document.CreateInstance(kDocument60)), "creating a document");
    document->put_async(VARIANT_FALSE);
    document->loadXML(_bstr_t(text.c_str()), &loaded);
    Require(loaded != VARIANT_FALSE, "loading a message");
    return document;
}

void SaveBare(const Document& document, const std::wstring& path) {
    Require(SUCCEEDED(document->save(_variant_t(path.c_str()))), "saving a message");
}

} // namespace bench
