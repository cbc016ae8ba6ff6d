// A server folder, a work folder and messages for runs of the reference host.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "tests/host/HostProcess.h"
#include "tests/support/TempFolder.h"

namespace tests {

// One document of a message: file name, and the server's name where it is another.
struct TestDocument {
    std::wstring name;
    std::wstring remote = L"";
};

class HostTest : public testing::Test {
protected:
    HostTest();
    ~HostTest() override;

    // Puts a drawing on the server.
    void Store(const std::wstring& remote) const;
    // Document i (from 1) has the identifier "D<i>".
    static std::wstring MessageText(const std::vector<TestDocument>& documents,
                                    const std::wstring& declaration = L"");
    // Writes the message file and puts every document on the server.
    void Prepare(const std::vector<TestDocument>& documents) const;
    // [Fault] of the server: see its documentation.
    void Fault(const wchar_t* key, const wchar_t* value) const;

    // A command with the options --message, --vault and --work.
    HostResult Run(const wchar_t* command, const std::vector<std::wstring>& further = {},
                   const std::function<void(DWORD)>& whileRunning = nullptr) const;
    HostResult BackSign(const std::vector<std::wstring>& further = {},
                        const std::function<void(DWORD)>& whileRunning = nullptr) const;
    // "SignRet" values of the return file in order, such as "101"; empty without a file.
    std::string ReturnValues() const;
    long Tag(const wchar_t* tag, const wchar_t* document) const;
    // Lines of a journal that name the call.
    int Calls(const char* call, const std::string& containing = "") const;
    int SignCalls(const char* call, const std::string& containing = "") const;
    // Whether a sign record that the server got has an entry of the document's identifier and the role.
    bool ServerLogged(const std::string& id, const std::string& role = "") const;
    // Path, attributes and content of everything below the test's folder.
    std::set<std::string> Snapshot() const;

    const TempFolder m_folder;
    const std::filesystem::path m_message = m_folder / L"message.xml", m_returned = m_folder / L"ret_Ret.Xml";
    std::filesystem::path m_vault = m_folder / L"vault", m_work = m_folder / L"work",
                          m_return = m_folder / L"ret.xml"; // the option's value
};

} // namespace tests
