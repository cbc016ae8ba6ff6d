#include <afxwin.h>

#include <algorithm>
#include <string>

#include "base/Fnv1a.h"
#include "base/Text.h"
#include "base/WholeFile.h"
#include "host/Paths.h"
#include "host/RunState.h"
#include "varnoke/Elements.h"

namespace host {

namespace {

constexpr const wchar_t* kWords[] = {L"none", L"signing", L"signed", L"uploaded", L"done"};

/// A value from outside must not end a field or a line.
CString Field(CString text) {
    for (int i = 0; i < text.GetLength(); ++i) {
        if (text[i] < L' ') text.SetAt(i, L' ');
    }
    return text;
}

std::string LineOf(const DocumentState& state) {
    CString line = kWords[static_cast<int>(state.progress)];
    for (const CString& text : {state.fingerprint, state.stamp, state.signature.user, state.signature.role,
                                state.signature.date, state.name}) {
        line += L"\t" + Field(text);
    }
    return base::ToUtf8(line) + "\r\n";
}

bool ParseLine(const CString& line, DocumentState& state) {
    CString word;
    CString* const fields[] = {&word,
                               &state.fingerprint,
                               &state.stamp,
                               &state.signature.user,
                               &state.signature.role,
                               &state.signature.date,
                               &state.name};
    int start = 0;
    for (CString* field : fields) {
        const int end = line.Find(L'\t', start);
        const bool last = field == &state.name;
        if ((end < 0) != last) return false;
        *field = last ? line.Mid(start) : line.Mid(start, end - start);
        start = end + 1;
    }
    for (int i = 0; i < static_cast<int>(_countof(kWords)); ++i) {
        if (word == kWords[i]) state.progress = static_cast<Progress>(i);
    }
    return !state.name.IsEmpty();
}

bool IsBefore(const DocumentState& state, const CString& name) {
    return CompareFileNames(state.name, name) < 0;
}

void Mix(base::Fnv1a& hash, const CString& text) {
    hash.Add(static_cast<uint64_t>(text.GetLength())); // keeps neighbouring texts apart
    for (int i = 0; i < text.GetLength(); ++i) {
        hash.Add(text[i]);
    }
}

} // namespace

RunState::RunState(const CString& work) : m_path(SignDataFile(work, L"SignRun.log")) {}

void RunState::Read() {
    std::string bytes;
    std::wstring text;
    if (base::ReadWholeFile(m_path, bytes) != base::ReadResult::Done) return;
    // Only whole lines count; cut bytes at the end need not be UTF-8.
    bytes.resize(bytes.rfind('\n') + 1);
    if (!base::FromUtf8(bytes, text)) return;
    for (size_t start = 0, end; (end = text.find(L'\n', start)) != std::wstring::npos; start = end + 1) {
        CString line(text.data() + start, static_cast<int>(end - start));
        DocumentState state;
        if (ParseLine(line.TrimRight(), state)) Keep(state);
    }
}

bool RunState::Open() {
    Read();
    std::string bytes;
    for (const DocumentState& state : m_states) {
        bytes += LineOf(state);
    }
    if (!base::WriteWholeFile(m_path, bytes)) return false;
    m_file = base::OwnFile(::CreateFileW(m_path, FILE_APPEND_DATA, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                         FILE_ATTRIBUTE_NORMAL | FILE_FLAG_WRITE_THROUGH, nullptr));
    return m_file != nullptr;
}

DocumentState RunState::Of(const CString& name) const {
    const auto found = std::lower_bound(m_states.begin(), m_states.end(), name, IsBefore);
    const bool known = found != m_states.end() && CompareFileNames(found->name, name) == 0;
    return known ? *found : DocumentState();
}

bool RunState::Note(const DocumentState& state) {
    const std::string line = LineOf(state);
    DWORD written = 0;
    return m_file &&
           ::WriteFile(m_file.get(), line.data(), static_cast<DWORD>(line.size()), &written, nullptr) &&
           written == line.size();
}

void RunState::Keep(const DocumentState& state) {
    const auto place = std::lower_bound(m_states.begin(), m_states.end(), state.name, IsBefore);
    if (place != m_states.end() && CompareFileNames(place->name, state.name) == 0) {
        *place = state;
    } else {
        m_states.insert(place, state);
    }
}

CString FingerprintOf(const Document& document, const CString& signer) {
    base::Fnv1a hash;
    Mix(hash, signer);
    for (const SSignPro* property : varnoke::Elements(document.Object())) {
        Mix(hash, property->m_strName);
        Mix(hash, property->m_strValue);
    }
    CString text;
    text.Format(L"%08x%08x", static_cast<unsigned>(hash.Value() >> 32), static_cast<unsigned>(hash.Value()));
    return text;
}

CString StampOf(const CString& path) {
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    if (!::GetFileAttributesExW(path, GetFileExInfoStandard, &data)) return CString();
    CString text;
    text.Format(L"%x%08x-%08x%08x", data.nFileSizeHigh, data.nFileSizeLow,
                data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime);
    return text;
}

} // namespace host
