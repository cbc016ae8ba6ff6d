// Records in the short notation of messages, and a work folder with a CPLMInteract.
#pragma once
#include <afxwin.h>
#include <vector>
#include <gtest/gtest.h>
#include "varnoke/OwnedRecord.h"
#include "varnoke/PLMInteract.h"
#include "tests/support/Message.h"
#include "tests/support/TempFolder.h"
#include "tests/support/Text.h"

namespace tests {

inline const std::wstring kLogin = L"LoginInfo:UserName=wang,Password=p,PLMServer=s|";
inline const std::wstring kSteps = L"step:STEP=审核|";

// A message with the usual login and step.
inline std::wstring Documents(const std::wstring& objects) {
    return Message(kLogin + kSteps + L"DOC:" + objects);
}

inline std::wstring Described(const SLoginInfo* login) {
    if (!login) return L"";
    return std::wstring(login->m_strUserName) + L"/" + login->m_strPassword.GetString() + L"/" +
           login->m_strPLMServer.GetString();
}

// In the notation of Message.
inline std::wstring Described(const SSignType* type) {
    if (!type) return L"";
    std::wstring text = std::wstring(type->m_strId) + L":";
    for (POSITION at = type->m_lstObj.GetHeadPosition(); at;) {
        const SSignObj* object = type->m_lstObj.GetNext(at);
        for (POSITION in = object->GetHeadPosition(); in;) {
            const SSignPro* property = object->GetNext(in);
            if (property->m_strName != L"FNAME") text += std::wstring(property->m_strName) + L"=";
            text += std::wstring(property->m_strValue) + (in ? L"," : at ? L";" : L"");
        }
    }
    return text;
}

// The out-pointers of one call, not null beforehand, and their release.
struct Results {
    ~Results() {
        if (login != Unset<SLoginInfo>()) Cmn_ReleaseLoginInfo(login);
        for (SSignType* type : {steps, files})
            if (type != Unset<SSignType>()) Cmn_ReleaseSignType(type);
    }
    template <class Record>
    static Record* Unset() {
        return reinterpret_cast<Record*>(1);
    }
    bool AllNull() const { return !login && !steps && !files; }

    SLoginInfo* login = Unset<SLoginInfo>();
    SSignType* steps = Unset<SSignType>();
    SSignType* files = Unset<SSignType>();
};

// Items of remote and local names, after a null one.
using ItemNames = std::vector<std::pair<const wchar_t*, const wchar_t*>>;
inline varnoke::OwnedRecord<SSignFileDUL> NewList(const std::wstring& folder, const ItemNames& names) {
    varnoke::OwnedRecord<SSignFileDUL> list(new SSignFileDUL);
    list->m_strFolder = folder.c_str();
    list->m_lstItem.AddTail(static_cast<SSignFileDULItem*>(nullptr));
    for (const auto& [remote, local] : names)
        list->m_lstItem.AddTail(new SSignFileDULItem{remote, local});
    return list;
}

class PlmTest : public testing::Test {
protected:
    using Operation = long (CPLMInteract::*)(wchar_t*, wchar_t*, SLoginInfo**, SSignType**, SSignType**);
    static constexpr Operation kRead = &CPLMInteract::StartSignForBackSign;
    static constexpr Operation kMerge = &CPLMInteract::AppendParserStartSignXmlString;

    long Call(Operation operation, const std::wstring& xml, Results& results, const std::wstring& folder) {
        return (m_plm.*operation)(Text(xml), Text(folder), &results.login, &results.steps, &results.files);
    }
    long Read(const std::wstring& xml, Results&& results = {}) {
        return Call(kRead, xml, results, m_folder.Text());
    }
    long Merge(const std::wstring& xml, Results& results) {
        return Call(kMerge, xml, results, m_folder.Text());
    }
    std::string Kept() const { return ReadBytes(m_kept); }
    // The documents in a kept message.
    std::wstring DocumentsIn(const std::filesystem::path& file) {
        Results results;
        const TempFolder other;
        Call(kRead, FromUtf8(ReadBytes(file)), results, other.Text());
        return Described(results.files);
    }
    size_t FileCount() const {
        const std::filesystem::directory_iterator files(m_kept.parent_path());
        return std::distance(begin(files), end(files));
    }

    const TempFolder m_folder;
    const std::filesystem::path m_kept = m_folder / L"SignData" / L"StartSign.Xml";
    CPLMInteract m_plm;
};

} // namespace tests
