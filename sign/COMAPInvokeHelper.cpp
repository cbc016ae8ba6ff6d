// Late-bound calls of the signing automation server.
#include "varnoke/COMAPInvokeHelper.h"

#include <cwchar>
#include <iterator>
#include <vector>

#include "module/Guarded.h"
#include "base/Owned.h"
#include "module/Text.h"

namespace {

constexpr int kNameSize = 1024; // of a method name, with its terminator

/// Takes what a failing method tells about itself; nobody reads it, but it is the caller's to free.
struct ExceptionInfo : EXCEPINFO {
    ExceptionInfo() : EXCEPINFO() {}
    ~ExceptionInfo() {
        const base::OwnedBstr texts[] = {base::OwnedBstr(bstrSource), base::OwnedBstr(bstrDescription),
                                         base::OwnedBstr(bstrHelpFile)};
    }
    ExceptionInfo(const ExceptionInfo&) = delete;
    ExceptionInfo& operator=(const ExceptionInfo&) = delete;
};

/// The status that a method returned: its 32-bit integer, whatever type the server chose for it; 0 when it is
/// none. An object is not asked for a value.
long StatusOf(VARIANT& value) {
    if (value.vt == VT_UI4 || value.vt == VT_UINT) return static_cast<long>(value.ulVal);
    _variant_t integer;
    const HRESULT hr = ::VariantChangeType(&integer, &value, VARIANT_NOVALUEPROP, VT_I4);
    return SUCCEEDED(hr) ? integer.lVal : 0;
}

static_assert(sizeof(_variant_t) == sizeof(VARIANT), "owned arguments go to the server as they lie");

} // namespace

CCOMAPInvokeHelper::~CCOMAPInvokeHelper() {
    // The server's code runs here for the last time.
    varnoke::Guarded([&] { m_server = nullptr; });
}

long CCOMAPInvokeHelper::CreateFromProgID(const wchar_t* progID) {
    if (!varnoke::HasText(progID)) return 0;
    CLSID clsid = {};
    if (FAILED(::CLSIDFromProgID(progID, &clsid))) return 0;
    _com_ptr_t<_com_IIID<IUnknown, &IID_IUnknown>> spObject;
    if (FAILED(::CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown,
                                  reinterpret_cast<void**>(&spObject))) ||
        !spObject) {
        return 0;
    }
    m_method = 0;
    // Taking the address gives the previous server back.
    if (FAILED(spObject->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&m_server)))) {
        m_server.Detach();
    }
    return m_server ? 1 : 0;
}

long CCOMAPInvokeHelper::SelectMethod(const wchar_t* name) {
    if (!varnoke::HasText(name) || wcsnlen(name, kNameSize) == kNameSize || !m_server) return 0;
    m_method = 0;
    wchar_t buffer[kNameSize] = {};
    ::lstrcpynW(buffer, name, kNameSize);
    LPOLESTR names[] = {buffer};
    DISPID method = 0;
    if (SUCCEEDED(m_server->GetIDsOfNames(IID_NULL, names, 1, ::GetUserDefaultLCID(), &method)) &&
        method > 0) {
        m_method = method;
    }
    return m_method;
}

long CCOMAPInvokeHelper::Invoke(VARIANT* arguments, unsigned count, VARIANT* result) {
    if (!m_server || m_method < 1) return 0;
    DISPPARAMS parameters = {arguments, nullptr, count, 0};
    _variant_t returned;
    ExceptionInfo exception;
    UINT faultyArgument = 0;
    if (FAILED(m_server->Invoke(m_method, IID_NULL, ::GetUserDefaultLCID(), DISPATCH_METHOD, &parameters,
                                &returned, &exception, &faultyArgument))) {
        return 0;
    }
    if (result) {
        *result = returned.Detach();
    }
    return 1;
}

long CCOMAPInvokeHelper::Call(const wchar_t* method, std::initializer_list<const wchar_t*> texts,
                              std::initializer_list<double> numbers) {
    if (SelectMethod(method) == 0) return 0;
    std::vector<_variant_t> arguments; // the method's last parameter comes first
    arguments.reserve(texts.size() + numbers.size());
    for (auto number = std::rbegin(numbers); number != std::rend(numbers); ++number) {
        arguments.emplace_back(*number);
    }
    for (auto text = std::rbegin(texts); text != std::rend(texts); ++text) {
        arguments.emplace_back(*text);
    }
    _variant_t result;
    if (Invoke(arguments.data(), static_cast<unsigned>(arguments.size()), &result) == 0) return 0;
    return StatusOf(result);
}
