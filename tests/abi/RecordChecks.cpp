// Records that cross: read by offset as another compiler's code would, built on either side, released by
// the library.
#include <afxcoll.h>
#include "plm/PLMInteract.h"
#include "tests/abi/Checks.h"
#include "tests/abi/TextFiles.h"

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

void Message(CPLMInteract& plm) {
    SLoginInfo* login = nullptr;
    SSignType* steps = nullptr;
    SSignType* files = nullptr;
    CString message =
        L"<root><objs><type id='LoginInfo'><obj><pro name='UserName' value='王工'/>"
        L"<pro name='Password' value='secret'/><pro name='PLMServer' value='plm:80'/></obj></type>"
        L"<type id='step'><obj><pro name='ROLE' value='审核'/></obj></type>"
        L"<type id='doc'><obj><pro name='FNAME' value='a.dwg'/><pro name='VER' value='2'/></obj>"
        L"<obj><pro name='FNAME' value='b.dwg'/></obj></type></objs></root>";
    CString folder = checks::WorkFolder();
    CHECK(plm.StartSignForBackSign(message.GetBuffer(), folder.GetBuffer(), &login, &steps, &files) == 1);
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
    for (int i = 0; i < 25; ++i) {
        auto* added = new SSignObj;
        added->AddTail(new SSignPro{L"名", CString(L'x', 100)});
        files->m_lstObj.AddTail(added);
    }
    files->m_lstObj.AddHead(static_cast<SSignObj*>(nullptr));
    CHECK(Cmn_ReleaseSignType(files) == 1 && Cmn_ReleaseSignType(steps) == 1);
    CHECK(Cmn_ReleaseLoginInfo(login) == 1 && Cmn_ReleaseLoginInfo(nullptr) == 0);
}

void HostMadeRecords(CPLMInteract& plm) {
    auto* list = new SSignFileDUL;
    list->m_strFolder = checks::WorkFolder();
    auto* item = new SSignFileDULItem;
    item->m_strLocalName = L"without a remote name.dwg";
    list->m_lstItem.AddTail(item);
    CHECK(plm.UploadDocForBackSign(list) == 1 && item->m_nState == 0);
    CHECK(Cmn_ReleaseSignFileDUL(list) == 1);

    auto* info = new SSignInfo;
    info->m_strReserved4 = L"last text";
    info->m_strFirstText = info->m_strReserved4;
    CHECK(Cmn_ReleaseSignInfo(info) == 1);
}

void SignedNames(CPLMInteract& plm) {
    CStringList names;
    names.AddTail(L"");
    names.AddTail(L"B.DWG");
    CString shared = names.GetTail();
    CString folder = checks::WorkFolder();
    CString target = folder + L"\\return.xml";
    CString key = L"fname";
    CHECK(plm.NotifyPLMSignForBackSignRet(names, key.GetBuffer(), folder.GetBuffer(), target.GetBuffer()) ==
          1);
    const std::string written = checks::ReadText(folder + L"\\return_Ret.Xml");
    const size_t notSigned = written.find("<pro name=\"SignRet\" value=\"0\"/>");
    const size_t isSigned = written.find("<pro name=\"SignRet\" value=\"1\"/>");
    CHECK(notSigned < isSigned && isSigned != std::string::npos);
    CHECK(names.GetCount() == 2 && names.GetTail() == L"B.DWG" &&
          names.GetTail().GetString() == shared.GetString());
}

} // namespace

void checks::Records() {
    CPLMInteract plm;
    Message(plm);
    HostMadeRecords(plm);
    SignedNames(plm);
}
