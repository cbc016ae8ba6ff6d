#include "plm/RecordLock.h"

#include <cstring>

#include "base/Fnv1a.h"

namespace varnoke {

namespace {

constexpr DWORD kPause = 10; // milliseconds between attempts
constexpr int kPatience = 1000;
/// What an attempt takes off the patience: a lock that is just going away looks like a forbidden one.
constexpr int kDeniedCost = 100;

/// In front of an announced change's bytes. The sum tells a whole announcement from one that was cut off.
struct Header {
    ULONGLONG sum;
    ULONGLONG offset;
};

ULONGLONG SumOf(const TailChange& change) {
    base::Fnv1a sum(change.offset);
    for (const char byte : change.bytes)
        sum.Add(static_cast<unsigned char>(byte));
    return sum.Value();
}

bool WriteAt(HANDLE file, ULONGLONG offset, const std::string& bytes) {
    LARGE_INTEGER place = {};
    place.QuadPart = static_cast<LONGLONG>(offset);
    const DWORD size = static_cast<DWORD>(bytes.size());
    DWORD written = 0;
    return ::SetFilePointerEx(file, place, nullptr, FILE_BEGIN) &&
           ::WriteFile(file, bytes.data(), size, &written, nullptr) && written == size;
}

} // namespace

bool ChangeTail(HANDLE file, const TailChange& change, const std::string& oldTail, bool& torn) {
    torn = false;
    // One call for all bytes: the end of the process does not come in between.
    if (WriteAt(file, change.offset, change.bytes) && ::SetEndOfFile(file))
        return ::FlushFileBuffers(file) != FALSE;
    torn = !WriteAt(file, change.offset, oldTail) || !::SetEndOfFile(file);
    return false;
}

RecordLock::RecordLock(const CString& signDataFolder) {
    const CString path = signDataFolder + L"DocSignRecord.lock";
    for (int patience = kPatience; patience > 0; ::Sleep(kPause)) {
        m_file = base::OwnFile(::CreateFileW(path, GENERIC_READ | GENERIC_WRITE | DELETE, 0, nullptr,
                                             OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
        if (m_file) return;
        const DWORD error = ::GetLastError();
        m_busy = error == ERROR_SHARING_VIOLATION;
        if (!m_busy && error != ERROR_ACCESS_DENIED) return;
        patience -= m_busy ? 1 : kDeniedCost;
    }
}

RecordLock::~RecordLock() {
    if (!m_file || m_leave) return;
    FILE_DISPOSITION_INFO disposition = {TRUE};
    ::SetFileInformationByHandle(m_file.get(), FileDispositionInfo, &disposition, sizeof disposition);
}

bool RecordLock::Announce(const TailChange& change) {
    const Header header = {SumOf(change), change.offset};
    const std::string text =
        std::string(reinterpret_cast<const char*>(&header), sizeof header) + change.bytes;
    return WriteAt(m_file.get(), 0, text) && ::SetEndOfFile(m_file.get());
}

bool RecordLock::ReadAnnounced(TailChange& change) const {
    LARGE_INTEGER size = {};
    Header header;
    if (!::GetFileSizeEx(m_file.get(), &size) || size.QuadPart <= LONGLONG(sizeof header) ||
        size.QuadPart > 0x1000000)
        return false;
    std::string text(static_cast<size_t>(size.QuadPart), '\0');
    DWORD read = 0;
    if (!::ReadFile(m_file.get(), &text[0], static_cast<DWORD>(text.size()), &read, nullptr) ||
        read != text.size())
        return false;
    std::memcpy(&header, text.data(), sizeof header);
    change = {header.offset, text.substr(sizeof header)};
    return header.sum == SumOf(change);
}

} // namespace varnoke
