// Start-sign messages as text, the records read from them as text, and a work folder with a CPLMInteract.
#pragma once
#include <afxwin.h>
#include <vector>
#include <gtest/gtest.h>
#include "plm/PLMInteract.h"
#include "tests/support/TempFolder.h"

namespace tests {

// A text that exported functions may take as wchar_t*; null stays null.
class Text {
public:
    Text(const wchar_t* text) : m_isNull(!text), m_text(text ? text : L"") {}
    Text(std::wstring text) : m_text(std::move(text)) {}
    operator wchar_t*() { return m_isNull ? nullptr : m_text.data(); }

private:
    bool m_isNull = false;
    std::wstring m_text;
};

// One object from "NAME=value" words; a word without "=" is an "FNAME".
inline std::wstring Object(const std::vector<std::wstring>& words) {
    std::wstring xml = L"<obj>";
    for (const std::wstring& word : words) {
        const size_t equals = word.find(L'=');
        const bool named = equals != std::wstring::npos;
        xml += L"<pro name='" + (named ? word.substr(0, equals) : L"FNAME") + L"' value='" +
               (named ? word.substr(equals + 1) : word) + L"'/>";
    }
    return xml + L"</obj>";
}

inline std::wstring Group(const std::wstring& id, const std::wstring& objects) {
    return L"<type id='" + id + L"'>" + objects + L"</type>";
}

inline std::wstring Message(const std::wstring& groups) {
    return L"<root><objs>" + groups + L"</objs></root>";
}

inline const std::wstring kLogin =
    Group(L"LoginInfo", Object({L"UserName=wang", L"Password=p", L"PLMServer=s"}));
inline const std::wstring kSteps = Group(L"step", Object({L"STEP=审核"}));

// A message with the usual login and step and one document per name.
inline std::wstring Documents(const std::vector<std::wstring>& names) {
    std::wstring objects;
    for (const std::wstring& name : names)
        objects += Object({name});
    return Message(kLogin + kSteps + Group(L"DOC", objects));
}

inline std::wstring Described(const SLoginInfo* login) {
    if (!login) return L"none";
    return std::wstring(login->m_strUserName) + L"/" + login->m_strPassword.GetString() + L"/" +
           login->m_strPLMServer.GetString();
}

// The identifier, then each object as "[NAME=value NAME=value]".
inline std::wstring Described(const SSignType* type) {
    if (!type) return L"none";
    std::wstring text(type->m_strId);
    for (POSITION at = type->m_lstObj.GetHeadPosition(); at;) {
        const SSignObj* object = type->m_lstObj.GetNext(at);
        text += L"[";
        for (POSITION in = object->GetHeadPosition(); in;) {
            const SSignPro* property = object->GetNext(in);
            text += std::wstring(property->m_strName) + L"=" + property->m_strValue.GetString() +
                    (in ? L" " : L"");
        }
        text += L"]";
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

class PlmTest : public testing::Test {
protected:
    using Operation = long (CPLMInteract::*)(wchar_t*, wchar_t*, SLoginInfo**, SSignType**, SSignType**);

    long Call(Operation operation, const std::wstring& xml, Results& results) {
        return (m_plm.*operation)(Text(xml), Text(m_folder.Text()), &results.login, &results.steps,
                                  &results.files);
    }
    long Read(const std::wstring& xml, Results& results) {
        return Call(&CPLMInteract::StartSignForBackSign, xml, results);
    }
    long Merge(const std::wstring& xml, Results& results) {
        return Call(&CPLMInteract::AppendParserStartSignXmlString, xml, results);
    }
    std::string Kept() const { return ReadBytes(m_kept); }
    // What the kept file or another one holds, as Described gives it.
    std::wstring FilesIn(const std::filesystem::path& file) {
        Results results;
        TempFolder other;
        (m_plm.ParserStartSignXmlString)(Text(FromUtf8(ReadBytes(file))), Text(other.Text()), &results.login,
                                         &results.steps, &results.files);
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
