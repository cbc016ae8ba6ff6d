// The people and documents of the sample project.
#include <afxwin.h>

#include "host/samples/SampleData.h"

namespace samples {

namespace {

constexpr wchar_t kDeclaration[] = L"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n";

CString Escaped(const wchar_t* text) {
    CString escaped = text;
    escaped.Replace(L"&", L"&amp;");
    escaped.Replace(L"<", L"&lt;");
    escaped.Replace(L"\"", L"&quot;");
    return escaped;
}

CString Property(const wchar_t* name, const wchar_t* value) {
    return CString(L"        <pro name=\"") + name + L"\" value=\"" + Escaped(value) + L"\"/>\r\n";
}

CString Object(const CString& properties) {
    return L"      <obj>\r\n" + properties + L"      </obj>\r\n";
}

CString Group(const wchar_t* id, const CString& objects) {
    return CString(L"    <type id=\"") + id + L"\">\r\n" + objects + L"    </type>\r\n";
}

CString Document(const CString& groups) {
    return kDeclaration + (L"<root>\r\n  <objs>\r\n" + groups + L"  </objs>\r\n</root>\r\n");
}

CString DocumentObject(const SampleDocument& document, const SampleUser& signer) {
    return Object(Property(L"ID", document.id) + Property(L"FNAME", document.fileName) +
                  Property(L"LOCATION", document.remoteName) + Property(L"DOCNAME", document.title) +
                  Property(L"VERSION", document.version) + Property(L"USERNAME", signer.person) +
                  Property(L"DOC_NAME", document.title) + Property(L"DOC_VERSION", document.version) +
                  Property(L"SIGN_USER", signer.person) + Property(L"SIGN_ROLE", document.role) +
                  Property(L"SIGN_DATE", L""));
}

CString Message(size_t first, size_t count) {
    const SampleUser& signer = SampleUsers().front();
    CString documents;
    for (size_t i = first; i < first + count; ++i) {
        documents += DocumentObject(SampleDocuments()[i], signer);
    }
    const CString login = Object(Property(L"UserName", signer.name) + Property(L"Password", L"plm-2015") +
                                 Property(L"PLMServer", L"plm.example.cn"));
    const CString step = Object(Property(L"STEPID", L"S01") + Property(L"STEPNAME", L"设计签署"));
    return Document(Group(L"LoginInfo", login) + Group(L"step", step) + Group(L"DRAWING", documents));
}

} // namespace

const std::vector<SampleUser>& SampleUsers() {
    static const std::vector<SampleUser> users = {
        {L"wang", L"王建国", L"signatures/wang.dwg", false},
        {L"li", L"李明", L"signatures/li.dwg", false},
        {L"wang", L"王旧", L"signatures/wang-old.dwg", true},
    };
    return users;
}

const std::vector<SampleDocument>& SampleDocuments() {
    static const std::vector<SampleDocument> documents = {
        {L"D-1001", L"泵体装配图.dwg", L"泵体装配图.dwg", L"泵体装配图", L"A", L"设计", "AC1015"},
        {L"D-1002", L"PUMP-002 Shaft.dwg", L"PUMP-002 Shaft.dwg", L"Pump shaft", L"B", L"设计", "AC1018"},
        {L"D-1003", L"齿轮箱-总图.dwg", L"projects/gearbox/齿轮箱-总图.dwg", L"齿轮箱总图", L"A.1", L"校对",
         "AC1015"},
        {L"D-1004", L"法兰盖 Cover.dwg", L"法兰盖 Cover.dwg", L"法兰盖", L"A", L"设计", "AC1018"},
    };
    return documents;
}

CString StartMessage() {
    return Message(0, SampleDocuments().size() - 1);
}

CString FurtherMessage() {
    return Message(SampleDocuments().size() - 2, 2);
}

CString UserObjects() {
    CString users;
    for (const SampleUser& user : SampleUsers()) {
        users += Object(Property(L"NAME", user.name) + Property(L"PERSON", user.person) +
                        Property(L"DEL", user.deleted ? L"1" : L"0") + Property(L"LOCATION", user.signature));
    }
    return Document(Group(L"USER", users));
}

CString SessionSettings() {
    return CString(L"[Session]\r\nUserName=") + SampleUsers().front().name +
           L"\r\nPassword=plm-2015\r\nServer=plm.example.cn\r\n";
}

CString LibrarySettings() {
    return L"[SignServer]\r\nServerIP=127.0.0.1\r\nServerPort=8089\r\nwang=wangjianguo\r\n"
           L"[Sign]\r\nIndex=1\r\n"
           L"[SignDate]\r\nDateStyle=YYYY年-MM月-DD日\r\nDateLocation=右下\r\nDateFontSize=10\r\n"
           L"DateTextColor=2113568\r\nDateFontName=宋体\r\n"
           L"[SignScope]\r\nScope=2\r\n"
           L"[DynDisp]\r\nProgID=Brevanix.Brevanix0\r\n";
}

} // namespace samples
