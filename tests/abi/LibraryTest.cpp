// Varnoke.dll as another compiler's program uses it: records built on either side and released by the
// library; CString by value; exceptions that must not come out.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <utility>
#include <malloc.h>
#include "tests/support/Message.h"
#include "varnoke/Varnoke.h"

namespace {

// A work folder with a kept message, whose records it has.
struct Library : testing::Test {
    Library() {
        GetTempPathW(MAX_PATH, m_folder.GetBuffer(MAX_PATH));
        m_folder.ReleaseBuffer();
        m_folder += L"varnoke-abi";
        CreateDirectoryW(m_folder, nullptr);
        std::wstring message = tests::Message(L"LoginInfo:UserName=王工,Password=secret,PLMServer=plm:80|"
                                              L"step:ROLE=审核|doc:FNAME=a.dwg,VER=2;b.dwg");
        EXPECT_EQ(1, m_plm.StartSignForBackSign(message.data(), m_folder.GetBuffer(), &m_login, &m_steps,
                                                &m_files));
    }
    ~Library() {
        EXPECT_EQ(1, Cmn_ReleaseSignType(m_files));
        EXPECT_EQ(1, Cmn_ReleaseSignType(m_steps));
        EXPECT_EQ(1, Cmn_ReleaseLoginInfo(m_login));
    }

    CString m_folder;
    CPLMInteract m_plm;
    SLoginInfo* m_login = nullptr;
    SSignType *m_steps = nullptr, *m_files = nullptr;
};

long ReferencesTo(const CString& text) {
    return reinterpret_cast<const ATL::CStringData*>(text.GetString())[-1].nRefs;
}

// An object each of whose functions throws; the functions' parameters do not matter to the caller's stack.
struct Throwing {
    static HRESULT STDMETHODCALLTYPE ThrowNumber() { throw 7; }
    static HRESULT STDMETHODCALLTYPE ThrowFrameworkException() { AfxThrowMemoryException(); }

    explicit Throwing(HRESULT(STDMETHODCALLTYPE* function)()) {
        for (auto& entry : functions)
            entry = function;
    }

    HRESULT(STDMETHODCALLTYPE** m_table)() = functions;
    HRESULT(STDMETHODCALLTYPE* functions[128])();
};

} // namespace

TEST_F(Library, Lists_TakeThisSidesNodesElementsAndTexts) {
    EXPECT_EQ(2, m_files->m_lstObj.GetCount());
    EXPECT_STREQ(L"b.dwg", m_files->m_lstObj.GetTail()->GetHead()->m_strValue);
    m_files->m_lstObj.AddTail(static_cast<SSignObj*>(nullptr));
    for (int i = 0; i < 25; ++i) { // more than a block of nodes
        auto* added = new SSignObj;
        added->AddTail(new SSignPro{L"名", CString(L'x', 100)});
        m_files->m_lstObj.AddTail(added);
    }
    EXPECT_EQ(1, Cmn_ReleaseSignType(std::exchange(m_files, new SSignType)));
    EXPECT_EQ(_HEAPOK, _heapchk());
}

// Arguments and results are objects; each side has a string manager of its own.
TEST_F(Library, Strings_PassByValue) {
    const CString path = m_folder + L"\\SignData\\StartSign.Xml", name = L"UserName";
    CString value = m_plm.GetProValue(path, name);
    EXPECT_STREQ(L"王工", value);
    EXPECT_TRUE(ReferencesTo(path) == 1 && ReferencesTo(name) == 1) << "the callee destroys its arguments";
    // The result keeps the library's memory; strings of this program take copies.
    EXPECT_FALSE(value.GetManager() == AfxGetStringManager());
    CString own = L"own";
    own = value;
    EXPECT_TRUE(own.GetManager() == AfxGetStringManager() && ReferencesTo(value) == 1);
    const CString sharing = value;
    EXPECT_EQ(2, ReferencesTo(value));
    value += L" and more, so that the library's memory has to grow beyond its first size";
    EXPECT_TRUE(value.Find(L"first") > 0 && ReferencesTo(sharing) == 1 && own == sharing);
}

TEST_F(Library, Exceptions_StayInside) {
    for (auto function : {&Throwing::ThrowNumber, &Throwing::ThrowFrameworkException}) {
        Throwing thrower(function);
        auto* login = reinterpret_cast<SLoginInfo*>(&thrower);
        EXPECT_EQ(0, m_plm.GetLoginInfo(reinterpret_cast<IXMLDOMDocument*>(&thrower), &login));
        EXPECT_FALSE(login);
    }
}

// The memory comes from this program; the destructor in the table, which frees it, is the library's.
TEST_F(Library, Destruction_GoesThroughTheTable) {
    CCOMAPInvokeHelper* base = new CSignOpt;
    delete base;
    EXPECT_EQ(_HEAPOK, _heapchk());
}
