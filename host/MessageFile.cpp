// Reading of a start-sign message file. The library takes text, and not every XML parser knows the Chinese
// encodings that the system knows.
#include <afxwin.h>

#include <string>

#include "base/Text.h"
#include "base/WholeFile.h"
#include "host/Gb18030.h"
#include "host/MessageFile.h"
#include "host/Report.h"

namespace host {

namespace {

constexpr LONGLONG kLargestFile = 64LL * 1024 * 1024;
constexpr UINT kUtf16 = 1200;
constexpr UINT kUtf16BigEndian = 1201;
constexpr UINT kGb18030 = 54936;

struct EncodingName {
    const char* name;
    UINT codePage;
};

constexpr EncodingName kEncodingNames[] = {
    {"utf-8", CP_UTF8},    {"gbk", 936},        {"gb2312", 936},       {"cp936", 936},
    {"gb18030", kGb18030}, {"us-ascii", 20127}, {"iso-8859-1", 28591},
};

bool ReadBytes(const CString& path, std::string& bytes) {
    const base::ReadResult result = base::ReadWholeFile(path, bytes, kLargestFile);
    if (result == base::ReadResult::Done) return true;
    const bool tooLarge = result == base::ReadResult::TooLarge;
    TellError(tooLarge ? TextId::FileTooLarge : TextId::FileUnreadable, {path});
    return false;
}

/// The value of encoding="..." in the XML declaration, in lower case; empty without one.
std::string DeclaredEncoding(const std::string& bytes) {
    if (bytes.compare(0, 5, "<?xml") != 0) return {};
    const std::string declaration = bytes.substr(0, bytes.find("?>"));
    const size_t name = declaration.find("encoding");
    if (name == std::string::npos) return {};
    const size_t open = declaration.find_first_of("\"'", name);
    if (open == std::string::npos) return {};
    const size_t close = declaration.find(declaration[open], open + 1);
    if (close == std::string::npos) return {};
    std::string value = declaration.substr(open + 1, close - open - 1);
    for (char& c : value) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return value;
}

bool StartsWith(const std::string& bytes, const char* mark, size_t size) {
    return bytes.compare(0, size, mark, size) == 0;
}

/// Finds the encoding and removes a byte order mark. False, after an error line, for an encoding that is
/// declared but not known here.
bool DetectEncoding(std::string& bytes, UINT& codePage) {
    if (StartsWith(bytes, "\xEF\xBB\xBF", 3)) {
        codePage = CP_UTF8;
        bytes.erase(0, 3);
    } else if (StartsWith(bytes, "\xFF\xFE", 2) || StartsWith(bytes, "\xFE\xFF", 2)) {
        codePage = bytes[0] == '\xFF' ? kUtf16 : kUtf16BigEndian;
        bytes.erase(0, 2);
    } else if (StartsWith(bytes, "<\0", 2) || StartsWith(bytes, "\0<", 2)) {
        codePage = bytes[0] == '<' ? kUtf16 : kUtf16BigEndian;
    } else {
        codePage = CP_UTF8;
        const std::string declared = DeclaredEncoding(bytes);
        if (declared.empty()) return true;
        for (const EncodingName& known : kEncodingNames) {
            if (declared != known.name) continue;
            codePage = known.codePage;
            return true;
        }
        TellError(TextId::UnknownEncoding, {CString(std::wstring(declared.begin(), declared.end()).c_str())});
        return false;
    }
    return true;
}

bool DecodeUtf16(std::string bytes, bool bigEndian, CString& text) {
    if (bytes.size() % 2 != 0) return false;
    for (size_t i = 0; bigEndian && i < bytes.size(); i += 2) {
        std::swap(bytes[i], bytes[i + 1]);
    }
    text = CString(reinterpret_cast<const wchar_t*>(bytes.data()), static_cast<int>(bytes.size() / 2));
    return true;
}

bool DecodeBytes(const std::string& bytes, UINT codePage, CString& text) {
    std::wstring decoded;
    const bool valid =
        codePage == kGb18030 ? DecodeGb18030(bytes, decoded) : base::FromCodePage(codePage, bytes, decoded);
    text = CString(decoded.data(), static_cast<int>(decoded.size()));
    return valid;
}

bool Decode(const std::string& bytes, UINT codePage, CString& text) {
    const bool decoded = codePage == kUtf16 || codePage == kUtf16BigEndian
                             ? DecodeUtf16(bytes, codePage == kUtf16BigEndian, text)
                             : DecodeBytes(bytes, codePage, text);
    // A zero character would cut the message short on its way to the library.
    return decoded && static_cast<int>(wcslen(text)) == text.GetLength();
}

} // namespace

bool ReadMessageFile(const CString& path, CString& message) {
    std::string bytes;
    UINT codePage = CP_UTF8;
    if (!ReadBytes(path, bytes) || !DetectEncoding(bytes, codePage)) return false;
    if (Decode(bytes, codePage, message)) return true;
    TellError(TextId::BadEncoding, {path});
    return false;
}

} // namespace host
