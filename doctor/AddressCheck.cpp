// Whether the signing server's address takes a connection.
#include <winsock2.h>
#include <ws2tcpip.h>

#include <memory>

#include "doctor/Checks.h"

namespace doctor {

namespace {

struct Network {
    Network() { ::WSAStartup(MAKEWORD(2, 2), &m_data); }
    ~Network() { ::WSACleanup(); }
    Network(const Network&) = delete;
    Network& operator=(const Network&) = delete;

private:
    WSADATA m_data;
};

class Socket {
public:
    explicit Socket(SOCKET socket) : m_socket(socket) {}
    ~Socket() {
        if (m_socket != INVALID_SOCKET) ::closesocket(m_socket);
    }
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;
    operator SOCKET() const { return m_socket; }

private:
    SOCKET m_socket;
};

struct AddressFreer {
    void operator()(ADDRINFOW* address) const { ::FreeAddrInfoW(address); }
};
using Address = std::unique_ptr<ADDRINFOW, AddressFreer>;

constexpr int kNoAnswer = WSAETIMEDOUT;

/// 0 when connected, else the error; kNoAnswer after the time.
// NOLINTNEXTLINE(readability-function-cognitive-complexity): the set macros
int Connect(const ADDRINFOW& address, int seconds) {
    const Socket made(::socket(address.ai_family, address.ai_socktype, address.ai_protocol));
    if (made == INVALID_SOCKET) return ::WSAGetLastError();
    u_long nonBlocking = 1;
    ::ioctlsocket(made, FIONBIO, &nonBlocking);
    if (::connect(made, address.ai_addr, static_cast<int>(address.ai_addrlen)) == 0) return 0;
    if (::WSAGetLastError() != WSAEWOULDBLOCK) return ::WSAGetLastError();
    fd_set connected;
    fd_set failed;
    FD_ZERO(&connected);
    FD_ZERO(&failed);
    FD_SET(made, &connected);
    FD_SET(made, &failed);
    timeval time = {seconds, 0};
    if (::select(0, nullptr, &connected, &failed, &time) == 0) return kNoAnswer;
    int error = 0;
    int size = sizeof error;
    ::getsockopt(made, SOL_SOCKET, SO_ERROR, reinterpret_cast<char*>(&error), &size);
    return error;
}

} // namespace

void CheckAddress(const std::wstring& host, const std::wstring& port, const Options& options,
                  Report& report) {
    const Network network;
    std::wstring name = host;
    name += L':';
    name += port;
    ADDRINFOW wanted = {};
    wanted.ai_socktype = SOCK_STREAM;
    ADDRINFOW* found = nullptr;
    const int error = ::GetAddrInfoW(host.c_str(), port.c_str(), &wanted, &found);
    const Address addresses(found);
    if (error != 0) {
        report.Add(L"server.unknown", name, ErrorText(static_cast<DWORD>(error)));
        return;
    }
    int result = kNoAnswer;
    for (const ADDRINFOW* address = found; address && result != 0; address = address->ai_next)
        result = Connect(*address, options.timeoutSeconds);
    if (result == 0) {
        report.Add(L"server.reachable", name);
    } else if (result == kNoAnswer) {
        report.Add(L"server.timeout", name, std::to_wstring(options.timeoutSeconds));
    } else {
        report.Add(L"server.refused", name, ErrorText(static_cast<DWORD>(result)));
    }
}

} // namespace doctor
