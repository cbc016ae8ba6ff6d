// Late-bound calls of the signing automation server.
#include "varnoke/COMAPInvokeHelper.h"

#include <cwchar>
#include <iterator>
#include <vector>

#include "module/Guarded.h"
#include "base/Owned.h"
#include "module/Text.h"
#include "module/Trace.h"

namespace {

using varnoke::Cause;
using varnoke::Fail;
using varnoke::HasText;

constexpr int kNameSize = 1024; // of a method name, with its terminator

/// What a failing method tells about itself; the texts are the caller's to free.
struct ExceptionInfo : EXCEPINFO {
    ExceptionInfo() : EXCEPINFO() {}
    ~ExceptionInfo() {
        const base::OwnedBstr texts[] = {base::OwnedBstr(bstrSource), base::OwnedBstr(bstrDescription),
                                         base::OwnedBstr(bstrHelpFile)};
    }
    ExceptionInfo& operator=(ExceptionInfo&&) = delete;

    /// "source: description", as far as the server gives them.
    CString Explanation() {
        if (pfnDeferredFillIn) pfnDeferredFillIn(this);
        CString text(bstrSource);
        if (bstrSource && bstrDescription) text += L": ";
        return text + CString(bstrDescription);
    }
};

/// The status that a method returned: its 32-bit integer, whatever type the server chose for it; 0 when it is
/// none. An object is not asked for a value.
long StatusOf(VARIANT& value, const wchar_t* method) {
    if (value.vt == VT_UI4 || value.vt == VT_UINT) return static_cast<long>(value.ulVal);
    _variant_t integer;
    const HRESULT hr = ::VariantChangeType(&integer, &value, VARIANT_NOVALUEPROP, VT_I4);
    if (FAILED(hr)) return Fail(Cause::MethodResultUnusable, method, hr);
    return integer.lVal;
}

static_assert(sizeof(_variant_t) == sizeof(VARIANT), "owned arguments go to the server as they lie");

/// A line for one call of the server; its arguments are nobody's business.
void TraceCall(const wchar_t* method, long status, ULONGLONG started) {
    if (!varnoke::IsTracing(varnoke::TraceLevel::Calls)) return;
    CString line;
    line.Format(L"signing server: %ls = %ld, %lu ms", method, status,
                static_cast<DWORD>(::GetTickCount64() - started));
    varnoke::WriteTrace(line);
}

} // namespace

CCOMAPInvokeHelper::~CCOMAPInvokeHelper() {
    // The server's code runs here for the last time.
    varnoke::Guarded([&] { m_server = nullptr; });
}

long CCOMAPInvokeHelper::CreateFromProgID(const wchar_t* progID) {
    if (!varnoke::IsGiven(progID, L"ProgID")) return 0;
    CLSID clsid = {};
    HRESULT hr = ::CLSIDFromProgID(progID, &clsid);
    if (FAILED(hr)) return Fail(Cause::SigningServerNotRegistered, progID, hr);
    _com_ptr_t<_com_IIID<IUnknown, &IID_IUnknown>> spObject;
    hr = ::CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown,
                            reinterpret_cast<void**>(&spObject));
    if (FAILED(hr) || !spObject) return Fail(Cause::SigningServerNotCreated, progID, hr);
    m_method = 0;
    // Taking the address gives the previous server back.
    hr = spObject->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&m_server));
    if (FAILED(hr)) m_server.Detach();
    return m_server ? 1 : Fail(Cause::SigningServerNotAutomation, progID, hr);
}

long CCOMAPInvokeHelper::SelectMethod(const wchar_t* name) {
    if (!m_server) return Fail(Cause::SigningServerNotConnected);
    if (!HasText(name) || wcsnlen(name, kNameSize) == kNameSize) return Fail(Cause::MethodMissing, name);
    m_method = 0;
    wchar_t buffer[kNameSize] = {};
    ::lstrcpynW(buffer, name, kNameSize);
    LPOLESTR names[] = {buffer};
    DISPID method = 0;
    const HRESULT hr = m_server->GetIDsOfNames(IID_NULL, names, 1, ::GetUserDefaultLCID(), &method);
    if (FAILED(hr) || method <= 0) return Fail(Cause::MethodMissing, name, hr);
    m_method = method;
    return m_method;
}

long CCOMAPInvokeHelper::Invoke(VARIANT* arguments, unsigned count, VARIANT* result) {
    if (!m_server || m_method < 1) return 0;
    DISPPARAMS parameters = {arguments, nullptr, count, 0};
    _variant_t returned;
    ExceptionInfo exception;
    UINT faultyArgument = 0;
    const HRESULT hr = m_server->Invoke(m_method, IID_NULL, ::GetUserDefaultLCID(), DISPATCH_METHOD,
                                        &parameters, &returned, &exception, &faultyArgument);
    if (FAILED(hr))
        return Fail(Cause::MethodFailed, exception.Explanation(),
                    hr == DISP_E_EXCEPTION && FAILED(exception.scode) ? exception.scode : hr);
    if (result) *result = returned.Detach();
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
    const ULONGLONG started = ::GetTickCount64();
    _variant_t result;
    long status = 0;
    if (Invoke(arguments.data(), static_cast<unsigned>(arguments.size()), &result)) {
        status = StatusOf(result, method);
        if (status == 0) Fail(Cause::MethodRefused, method);
    }
    TraceCall(method, status, started);
    return status;
}
