// A documents' folder with its sign log, and record files as data.
#pragma once
#include <afxwin.h>
#include <algorithm>
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <vector>
#include "neighbours/qorparser.h"
#include "varnoke/PLMInteract.h"
#include "tests/model/ModelFixture.h"

namespace tests {

using Texts = std::map<std::wstring, std::wstring>;

constexpr wchar_t kDrawing[] = L"ID=DOC-1|SIGN_ROLE=审核";

struct Entry {
    std::wstring type;
    Texts properties, local;
    // Whether it is one of the document and role that the tests sign.
    bool IsDrawing() const {
        return type == L"IQORM_OBJ_SIGN" && properties.at(L"QORMFILEID") == L"DOC-1" &&
               properties.at(L"QORMROLE") == L"审核";
    }
};

inline Texts ReadTexts(QORMODEL::IQORDataObject* object) {
    Texts texts;
    long count = 0;
    object->GetPropertyCount(&count);
    for (long index = 0; index < count; ++index) {
        _bstr_t name, value;
        object->GetPropertyName(index, name.GetAddress());
        object->GetProperty(name, value.GetAddress());
        texts.emplace(name, std::wstring(value, value.length()));
    }
    return texts;
}

inline std::vector<Entry> ReadEntries(const std::filesystem::path& file) {
    QORMODEL::IQORDataModelPtr model;
    model.CreateInstance(QORMODEL::CLSID_QORDataModel);
    if (CQORXmlDataParser().parseDataFile(file.c_str(), model, nullptr) != 1)
        throw std::runtime_error("no data file");
    long count = 0;
    model->GetCount(&count);
    std::vector<Entry> entries(count);
    for (long index = 0; index < count; ++index) {
        QORMODEL::IQORDataEntryPtr entry;
        QORMODEL::IQORDataObjectPtr local;
        _bstr_t type;
        model->GetEntry(index, &entry);
        entry->GetType(type.GetAddress());
        entry->GetLocalObject(&local);
        entries[index] = {std::wstring(type), ReadTexts(entry), ReadTexts(local)};
    }
    return entries;
}

// Writes a record with one entry of the drawing for each letter of `kinds`, its "ID" its number, after three
// entries that differ from it in type, document and role in turn.
inline void WriteRecord(const std::filesystem::path& file, std::wstring_view kinds) {
    constexpr size_t others = 3;
    const std::pair<const wchar_t*, const wchar_t*> names[] = {
        {L"OTHER", L"DOC-1"}, {L"IQORM_OBJ_SIGN", L"doc-1"}, {L"IQORM_OBJ_SIGN", L"DOC-1"}};
    std::wstring xml = L"<?xml version='1.0' encoding='UTF-8'?><qordata>";
    for (size_t at = 0; at < others + kinds.size(); ++at) {
        const auto& [type, document] = names[at < others ? at : 2];
        const wchar_t* role = at == 2 ? L"批准" : L"审核";
        xml += std::wstring(L"<obj type='") + type + L"' state='N'><pro name='ID' value='" +
               std::to_wstring(at < others ? at : at - others) + L"'/><pro name='QORMFILEID' value='" +
               document + L"'/><pro name='QORMROLE' value='" + role + L"'/><pro name='QORMTYPE' value='" +
               (at < others ? L'N' : kinds[at - others]) + L"'/></obj>\n";
    }
    WriteBytes(file, ToUtf8(xml + L"</qordata>"));
}

// Kind and number of each entry of the drawing (or of each other one), "+" for one that WriteRecord didn't
// write.
inline std::wstring Summary(const std::filesystem::path& file, bool drawing = true) {
    std::wstring words;
    for (const Entry& entry : ReadEntries(file)) {
        const std::wstring& id = entry.properties.at(L"ID");
        if (entry.IsDrawing() == drawing)
            words += (words.empty() ? L"" : L" ") + entry.properties.at(L"QORMTYPE") +
                     (id.size() == 36 ? L"+" : id);
    }
    return words;
}

inline std::vector<std::wstring> FileNames(const std::filesystem::path& folder) {
    std::vector<std::wstring> names;
    for (const auto& file : std::filesystem::directory_iterator(folder))
        names.push_back(file.path().filename().wstring());
    std::sort(names.begin(), names.end());
    return names;
}

class SignLogTest : public ModelFixture {
protected:
    SignLogTest() { EXPECT_EQ(m_plm->Initialize(nullptr), 1); }
    void TearDown() override {
        SetEnvironmentVariableW(L"DURVELL_VAULT", nullptr);
        m_plm.reset();
        ModelFixture::TearDown();
    }

    // Logs for a sign object with these properties ("name=value|..."); one element of its list is null.
    long Write(const wchar_t* kind, const std::wstring& properties = kDrawing,
               const wchar_t* behindFolder = L"") {
        SSignObj object;
        object.AddTail(static_cast<SSignPro*>(nullptr));
        std::vector<std::unique_ptr<SSignPro>> owned;
        std::wistringstream parts(properties);
        for (std::wstring part; std::getline(parts, part, L'|'); object.AddTail(owned.back().get())) {
            const size_t equals = part.find(L'=');
            owned.push_back(std::make_unique<SSignPro>());
            *owned.back() = {part.substr(0, equals).c_str(), part.substr(equals + 1).c_str()};
        }
        return m_plm->WriteDelOrSignLogToLocal(&object, (m_folder.Text() + behindFolder).c_str(), kind);
    }

    // Logs signatures of documents that have no entry yet.
    void WriteSome(int count) {
        for (int written = 0; written < count; ++written)
            EXPECT_EQ(Write(L"N", L"SIGN_ROLE=r|ID=other " + std::to_wstring(++m_documents)), 1);
    }

    int m_documents = 0;
    const LocalServices m_services;
    const TempFolder m_folder;
    const std::filesystem::path m_signData = m_folder / L"SignData",
                                m_record = m_signData / L"DocSignRecord.xml";
    const std::vector<std::wstring> m_recordOnly = {L"DocSignRecord.xml"};
    std::unique_ptr<CPLMInteract> m_plm = std::make_unique<CPLMInteract>();
};

} // namespace tests
