// Varnoke.dll as another compiler's program uses it: records by offset, built on either side and released by
// the library; CString by value; exceptions that must not come out.
#include <afxwin.h>
#include <locale.h>
#include <malloc.h>
#include "varnoke/Varnoke.h"
#include "tests/abi/Checks.h"
#include "tests/support/Message.h"

namespace {

struct RawNode {
    RawNode* next;
    RawNode* previous;
    void* data;
};

struct RawList {
    void* functions;
    RawNode* head;
    RawNode* tail;
    INT_PTR count;
    RawNode* freeNodes;
    void* blocks;
    INT_PTR blockSize;
};

CString TextAt(const void* record, size_t offset) {
    return *reinterpret_cast<const wchar_t* const*>(static_cast<const char*>(record) + offset);
}

const RawList& ListAt(const void* record) {
    return *static_cast<const RawList*>(record);
}

void Records(CPLMInteract& plm, CString folder) {
    SLoginInfo* login = nullptr;
    SSignType* steps = nullptr;
    SSignType* files = nullptr;
    std::wstring message =
        tests::Message(L"LoginInfo:UserName=王工,Password=secret,PLMServer=plm:80|step:ROLE=审核|"
                       L"doc:FNAME=a.dwg,VER=2;b.dwg");
    CHECK(plm.StartSignForBackSign(message.data(), folder.GetBuffer(), &login, &steps, &files) == 1);
    if (login == nullptr || steps == nullptr || files == nullptr) return;

    CHECK(TextAt(login, 0) == L"王工" && TextAt(login, 8) == L"secret" && TextAt(login, 0x10) == L"plm:80");
    CHECK(TextAt(files, 0x38) == L"doc" && TextAt(steps, 0x38).IsEmpty());
    const RawList& documents = ListAt(files);
    CHECK(documents.count == 2 && documents.tail == documents.head->next && documents.blockSize == 10);
    const RawList& first = ListAt(documents.head->data);
    CHECK(first.count == 2 && first.head->previous == nullptr && first.tail->next == nullptr);
    CHECK(TextAt(first.head->data, 0) == L"FNAME" && TextAt(first.head->data, 8) == L"a.dwg");
    CHECK(TextAt(ListAt(documents.tail->data).head->data, 8) == L"b.dwg");

    // This side's nodes, blocks, elements and texts go into the library's lists, which the library frees.
    files->m_lstObj.AddTail(static_cast<SSignObj*>(nullptr));
    for (int i = 0; i < 25; ++i) {
        auto* added = new SSignObj;
        added->AddTail(new SSignPro{L"名", CString(L'x', 100)});
        files->m_lstObj.AddTail(added);
    }
    CHECK(Cmn_ReleaseSignType(files) == 1 && Cmn_ReleaseSignType(steps) == 1);
    CHECK(Cmn_ReleaseLoginInfo(login) == 1 && Cmn_ReleaseLoginInfo(nullptr) == 0);
    auto* info = new SSignInfo;
    info->m_strReserved4 = L"last text";
    info->m_strFirstText = info->m_strReserved4;
    CHECK(Cmn_ReleaseSignInfo(info) == 1);
}

long ReferencesTo(const CString& text) {
    return reinterpret_cast<const ATL::CStringData*>(text.GetString())[-1].nRefs;
}

// Arguments and results are objects; each side has a string manager of its own.
void Strings(CPLMInteract& plm, const CString& folder) {
    const CString path = folder + L"\\SignData\\StartSign.Xml", name = L"UserName";
    CString value = plm.GetProValue(path, name);
    CHECK(value == L"王工");
    // The callee destroys its arguments: exactly once.
    CHECK(ReferencesTo(path) == 1 && ReferencesTo(name) == 1);

    // The result keeps the library's memory; strings of this program take copies.
    CHECK(value.GetManager() != AfxGetStringManager());
    CString own = L"own";
    own = value;
    CHECK(own.GetManager() == AfxGetStringManager() && ReferencesTo(value) == 1);
    const CString sharing = value;
    CHECK(sharing.GetString() == value.GetString() && ReferencesTo(value) == 2);
    value += L" and more, so that the library's memory has to grow beyond its first size";
    CHECK(value.Find(L"first") > 0 && ReferencesTo(sharing) == 1 && own == sharing);

    CHECK(plm.GetProValue(path, L"none").IsEmpty());
    CHECK(plm.GetProValue(CString(), CString()).IsEmpty());
}

// An object each of whose functions throws; the functions' parameters do not matter to the caller's stack.
struct Throwing {
    static HRESULT STDMETHODCALLTYPE ThrowNumber() { throw 7; }
    static HRESULT STDMETHODCALLTYPE ThrowFrameworkException() { AfxThrowMemoryException(); }

    explicit Throwing(HRESULT(STDMETHODCALLTYPE* function)()) {
        for (auto& entry : functions)
            entry = function;
    }
    template <typename Interface>
    Interface* As() {
        return reinterpret_cast<Interface*>(this);
    }

    HRESULT(STDMETHODCALLTYPE** m_table)() = functions;
    HRESULT(STDMETHODCALLTYPE* functions[128])();
};

void ExceptionsStayInside(CPLMInteract& plm) {
    for (auto function : {&Throwing::ThrowNumber, &Throwing::ThrowFrameworkException}) {
        Throwing thrower(function);
        auto* login = reinterpret_cast<SLoginInfo*>(&thrower);
        bool escaped = false;
        long result = -1;
        try {
            result = plm.GetLoginInfo(thrower.As<IXMLDOMDocument>(), &login);
        } catch (...) {
            escaped = true;
        }
        CHECK(!escaped && result == 0 && login == nullptr);
    }
}

template <class Field>
Field FieldAt(const void* record, size_t offset) {
    return *reinterpret_cast<const Field*>(static_cast<const char*>(record) + offset);
}

// The library's own file, read with the run-time library that is shipped: what it makes of numbers is not the
// one of the other build.
void Settings() {
    CString path;
    GetModuleFileNameW(GetModuleHandleW(L"Varnoke.dll"), path.GetBuffer(MAX_PATH), MAX_PATH);
    path.ReleaseBuffer();
    path = path.Left(path.ReverseFind(L'\\') + 1) + L"Varnoke.ini";
    const auto set = [&](const wchar_t* section, const wchar_t* key, const wchar_t* value) {
        CHECK(WritePrivateProfileStringW(section, key, value, path));
    };
    DeleteFileW(path);
    set(L"Sign", L"Index", L"-3");
    set(L"Sign", L"Pin", L" 55 ");
    set(L"SignDate", L"DateStyle", L"D.M.YYYY%s");
    set(L"SignDate", L"DateFontSize", L"15");
    set(L"SignDate", L"DateTextColor", L"66");
    set(L"SignDate", L"DateFontName", L"黑体");
    set(L"DynDisp", L"ProgID", L"No.Such.Server");
    CSignOpt sign;
    CHECK(sign.Initialize(nullptr) == 0);
    SSignInfo* info = nullptr;
    CHECK(sign.GetSignInfoForBackSign(CString(L"a.dwg").GetBuffer(), &info) == 1);
    if (!info) return;
    CHECK(FieldAt<long>(info, 0x68) == -3 && TextAt(info, 0x70) == L"55" && TextAt(info, 0xA0) == L"黑体");
    CHECK(FieldAt<double>(info, 0x90) == 15.0 && FieldAt<long>(info, 0x98) == 66);
    SYSTEMTIME today;
    GetLocalTime(&today);
    CString date;
    date.Format(L"%d.%d.%.4d%%s", today.wDay, today.wMonth, today.wYear);
    CHECK(TextAt(info, 0x78) == date && TextAt(info, 0) == L"" && FieldAt<long>(info, 0xD8) == 0);
    CHECK(Cmn_ReleaseSignInfo(info) == 1);

    const struct {
        const wchar_t* text;
        double number;
    } numbers[] = {{L"-1.5e1x", -15.0}, {L"nan", 0.0},   {L"inf", 0.0},
                   {L"0x10", 0.0},      {L"9e999", 0.0}, {L"4,5", 4.0}};
    CHECK(setlocale(LC_ALL, "de-DE"));
    for (const auto& row : numbers) {
        set(L"SignDate", L"DateOffsetY", row.text);
        CHECK(sign.GetSignInfoForBackSign(CString(L"a.dwg").GetBuffer(), &info) == 1);
        CHECK(FieldAt<double>(info, 0x88) == row.number && FieldAt<double>(info, 0x80) == 0.0);
        CHECK(Cmn_ReleaseSignInfo(info) == 1);
    }
    setlocale(LC_ALL, "C");
    DeleteFileW(path);
}

// The memory comes from this program; the destructor in the table, which frees it, is the library's.
void DestructionThroughTheTable() {
    CCOMAPInvokeHelper* base = new CSignOpt;
    delete base;
    CHECK(_heapchk() == _HEAPOK);
}

} // namespace

void checks::Library() {
    wchar_t temporary[MAX_PATH];
    GetTempPathW(MAX_PATH, temporary);
    const CString folder = CString(temporary) + L"varnoke-abi";
    CreateDirectoryW(folder, nullptr);
    CPLMInteract plm;
    Records(plm, folder);
    Strings(plm, folder);
    ExceptionsStayInside(plm);
    Settings();
    DestructionThroughTheTable();
}
