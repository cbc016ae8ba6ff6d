#include "plm/TagTable.h"

#include <algorithm>
#include <cwchar>
#include <string_view>

#include "base/TextEncoding.h"

namespace varnoke {

namespace {

const wchar_t kLineEnd[] = L"\r\n";

std::string InCodePage(const std::wstring& text, BOOL* lost = nullptr) {
    const int length = static_cast<int>(text.size());
    const DWORD flags = ::GetACP() == CP_UTF8 || !lost ? 0 : WC_NO_BEST_FIT_CHARS;
    if (::GetACP() == CP_UTF8) lost = nullptr;
    std::string bytes(::WideCharToMultiByte(CP_ACP, flags, text.c_str(), length, nullptr, 0, nullptr, lost),
                      '\0');
    ::WideCharToMultiByte(CP_ACP, 0, text.c_str(), length, &bytes[0], static_cast<int>(bytes.size()), nullptr,
                          nullptr);
    return bytes;
}

} // namespace

bool IsPlain(const TagEntry& entry) {
    const CString& key = entry.key;
    for (int i = 0; i < key.GetLength(); ++i) {
        if (key[i] > 0x7F && (::IsCharUpperW(key[i]) || ::IsCharLowerW(key[i]))) return false;
    }
    CString trimmed = key;
    trimmed.Trim();
    return !key.IsEmpty() && trimmed == key && key.FindOneOf(L"=\"\r\n") < 0 && key[0] != L';' &&
           key[0] != L'[' && !entry.value.IsEmpty() &&
           wcsspn(entry.value, L"0123456789-_:") == static_cast<size_t>(entry.value.GetLength());
}

bool TagTable::Parse(const std::string& bytes) {
    m_lines.clear();
    m_positions.clear();
    m_utf16 = true;
    if (!bytes.empty()) {
        std::wstring text;
        const base::TextEncoding encoding = base::EncodingOf(bytes);
        m_utf16 = encoding == base::TextEncoding::Utf16;
        if (!base::IsProfileEncoding(encoding) || !base::DecodeFile(bytes, text)) return false;
        std::wstring_view rest(text);
        for (bool first = true; !rest.empty(); first = false) {
            const std::wstring_view line = rest.substr(0, rest.find(kLineEnd));
            rest.remove_prefix((std::min)(rest.size(), line.size() + wcslen(kLineEnd)));
            const CString whole(line.data(), static_cast<int>(line.size()));
            const int equals = whole.Find(L'=');
            if (first) {
                if (whole.CompareNoCase(m_header) != 0) return false;
                m_header = whole;
                m_size = Encoded(std::wstring(m_header) + kLineEnd).size() + (m_utf16 ? 2 : 0);
            } else {
                const TagEntry entry = {whole.Left(equals), whole.Mid(equals + 1)};
                if (equals < 0 || !IsPlain(entry)) return false;
                Append(entry.key, entry.value);
            }
        }
    } else {
        m_size = Encoded(std::wstring(m_header) + kLineEnd).size() + 2;
    }
    return bytes.empty() || Bytes() == bytes;
}

const CString* TagTable::Find(const CString& key) const {
    const auto found = m_positions.find(key);
    return found == m_positions.end() ? nullptr : &m_lines[found->second].value;
}

void TagTable::Set(const TagEntry& entry) {
    const auto found = m_positions.find(entry.key);
    if (found == m_positions.end()) {
        Append(entry.key, entry.value);
    } else {
        m_lines[found->second].value = entry.value;
    }
}

bool TagTable::Fits(const CString& text) const {
    BOOL lost = FALSE;
    if (!m_utf16) InCodePage(std::wstring(text), &lost);
    return !lost;
}

std::string TagTable::Bytes() const {
    std::wstring text = std::wstring(m_header) + kLineEnd;
    for (const Line& line : m_lines)
        text.append(line.key).append(L"=").append(line.value).append(kLineEnd);
    return m_utf16 ? base::ToUtf16File(text) : InCodePage(text);
}

std::string TagTable::Encoded(const std::wstring& text) const {
    if (!m_utf16) return InCodePage(text);
    return std::string(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t));
}

ULONGLONG TagTable::OffsetOf(const CString& key) const {
    const auto found = m_positions.find(key);
    return found == m_positions.end() ? m_size : m_lines[found->second].valueOffset;
}

void TagTable::Append(const CString& key, const CString& value) {
    m_positions.emplace(key, m_lines.size());
    const ULONGLONG valueOffset = m_size + Encoded(std::wstring(key) + L"=").size();
    m_lines.push_back({key, value, valueOffset});
    m_size = valueOffset + Encoded(std::wstring(value) + kLineEnd).size();
}

} // namespace varnoke
