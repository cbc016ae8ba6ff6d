// The trials of other makers' code; see Probe.h.
#include <windows.h>
#include <comdef.h>

#include <string>

#include "base/Owned.h"
#include "base/Text.h"
#include "doctor/PeImage.h"
#include "doctor/Probe.h"
#include "doctor/Report.h"

namespace doctor {

namespace {

using DispatchPtr = _com_ptr_t<_com_IIID<IDispatch, &IID_IDispatch>>;

HMODULE Load(const std::wstring& path) {
    return ::LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

template <class Function>
Function Find(HMODULE module, const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(module, name)));
}

/// Says why when there is none.
DispatchPtr Create(const std::wstring& progId) {
    CLSID id = {};
    DispatchPtr server;
    HRESULT result = ::CLSIDFromProgID(progId.c_str(), &id);
    void* object = nullptr;
    if (SUCCEEDED(result))
        result = ::CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, &object);
    if (SUCCEEDED(result)) {
        server.Attach(static_cast<IDispatch*>(object));
        PrintLine(L"created");
    } else {
        PrintLine(ErrorText(static_cast<unsigned long>(result)));
    }
    return server;
}

/// The method's identifier; 0 when there is none, or one that the library does not call.
DISPID MethodId(IDispatch* server, const std::wstring& name) {
    LPOLESTR text = const_cast<LPOLESTR>(name.c_str());
    DISPID id = 0;
    const HRESULT found = server->GetIDsOfNames(IID_NULL, &text, 1, ::GetUserDefaultLCID(), &id);
    return SUCCEEDED(found) && id > 0 ? id : 0;
}

std::wstring Setting(const std::wstring& file, const wchar_t* key, const wchar_t* fallback) {
    wchar_t value[1023] = {};
    ::GetPrivateProfileStringW(L"SignServer", key, fallback, value, 1023, file.c_str());
    return value[0] ? value : fallback;
}

/// A model configuration as the library has it, through the library's exported class in either binary
/// interface.
class ModelConfiguration {
public:
    explicit ModelConfiguration(const std::wstring& path) : m_library(doctor::Load(path)) {
        m_image.Read(path);
        m_microsoft = !m_image.ExportLike("??0CModelConfig@@").empty();
    }

    /// False when there is no library, or it has no such class.
    bool Open() {
        const auto constructor = Member("??0CModelConfig@@", "_ZN12CModelConfigC1E");
        if (constructor) constructor(m_object, nullptr);
        return constructor && Ask("?Initialize@CModelConfig@@", "_ZN12CModelConfig10InitializeE");
    }
    bool Load() { return Ask("?Load@CModelConfig@@", "_ZN12CModelConfig4LoadE"); }

    /// Whether a member that gives a smart pointer gives one that isn't null.
    bool Gives(const char* microsoft, const char* gnu) {
        const auto member = Member(microsoft, gnu);
        void* pointer = nullptr;
        // The place for the result comes after the object in one interface and before it in the other.
        if (member && m_microsoft) member(m_object, &pointer);
        if (member && !m_microsoft) member(&pointer, m_object);
        return pointer != nullptr;
    }

private:
    using Function = long (*)(void*, void*);

    Function Member(const char* microsoft, const char* gnu) const {
        const std::string name = m_image.ExportLike(m_microsoft ? microsoft : gnu);
        return name.empty() || !m_library ? nullptr : Find<Function>(m_library, name.c_str());
    }
    bool Ask(const char* microsoft, const char* gnu) {
        const auto member = Member(microsoft, gnu);
        return member && member(m_object, nullptr) != 0;
    }

    HMODULE m_library;
    PeImage m_image;
    bool m_microsoft = false;
    alignas(16) char m_object[1024] = {}; // larger than the class ever was; lives until the process ends
};

} // namespace

void ProbeLoad(const std::vector<std::wstring>& arguments) {
    for (const std::wstring& path : arguments)
        PrintLine(Load(path) ? L"loaded" : ErrorText(::GetLastError()));
}

void ProbeServer(const std::vector<std::wstring>& arguments) {
    const DispatchPtr server = Create(arguments[0]);
    for (size_t i = 1; server && i < arguments.size(); ++i)
        PrintLine(MethodId(server, arguments[i]) ? L"1" : L"0");
}

void ProbeLogin(const std::vector<std::wstring>& arguments) {
    using ShareInfo = int (*)(wchar_t*, wchar_t*, wchar_t*);
    const HMODULE durvell = Load(arguments[3]);
    const auto share = durvell ? Find<ShareInfo>(durvell, "dvl_GetShareInfo") : nullptr;
    wchar_t user[1024] = {}, password[1024] = {}, address[1024] = {};
    const int shared = share ? share(user, password, address) : -1;
    PrintLine(shared == 0 ? user : L"");
    if (shared != 0 || !user[0]) {
        PrintLine(L"dvl_GetShareInfo = " + std::to_wstring(shared));
        return;
    }
    const DispatchPtr server = Create(arguments[0]);
    const DISPID login = server ? MethodId(server, arguments[1]) : 0;
    if (!login) return;
    const std::wstring& file = arguments[2];
    _variant_t texts[] = {Setting(file, L"ServerPort", L"8089").c_str(),
                          Setting(file, L"ServerIP", L"127.0.0.1").c_str(), password,
                          Setting(file, user, user).c_str()};
    DISPPARAMS parameters = {texts, nullptr, 4, 0};
    _variant_t result;
    const HRESULT called = server->Invoke(login, IID_NULL, ::GetUserDefaultLCID(), DISPATCH_METHOD,
                                          &parameters, &result, nullptr, nullptr);
    PrintLine(SUCCEEDED(called) && result.vt == VT_I4 && result.lVal != 0 ? L"1" : L"0");
}

void ProbeModel(const std::vector<std::wstring>& arguments) {
    Load(arguments[1]); // beside it lies the model configuration
    ModelConfiguration model(arguments[0]);
    if (!model.Open()) return;
    PrintLine(model.Load() ? L"1" : L"0");
    constexpr const char* kParts[][2] = {
        {"?GetLocalObjectConfig@CModelConfig@@", "_ZN12CModelConfig20GetLocalObjectConfigE"},
        {"?GetServerObjectConfig@CModelConfig@@", "_ZN12CModelConfig21GetServerObjectConfigE"},
        {"?GetMapObjectConfig@CModelConfig@@", "_ZN12CModelConfig18GetMapObjectConfigE"}};
    for (const auto& part : kParts)
        PrintLine(model.Gives(part[0], part[1]) ? L"1" : L"0");
}

} // namespace doctor
