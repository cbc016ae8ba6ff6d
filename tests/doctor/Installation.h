// A copy of an installation in which all is well, for the doctor to look at.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "tests/host/HostProcess.h"
#include "tests/support/TempFolder.h"

namespace tests {

// A key below HKEY_LOCAL_MACHINE\Software\Classes that goes with this object.
class RegisteredKey {
public:
    RegisteredKey(const std::wstring& key, const std::wstring& value);
    ~RegisteredKey();
    RegisteredKey(const RegisteredKey&) = delete;

private:
    std::wstring m_key;
};

// A port of this machine that takes connections.
class Listener {
public:
    Listener();
    ~Listener();
    int Port() const { return m_port; }

private:
    UINT_PTR m_socket;
    int m_port = 0;
};

class Installation {
public:
    Installation();
    ~Installation();

    std::filesystem::path File(const wchar_t* name) const { return m_app / name; }
    void Set(const wchar_t* section, const wchar_t* key, const std::wstring& value) const;
    // Puts one text of bytes in the place of another one of the same length, everywhere in a file.
    void Patch(const wchar_t* name, const std::string& from, const std::string& to) const;
    // The report in the machine's form. Stand-ins are taken for real.
    HostResult Examine(std::vector<std::wstring> further = {}) const;

    const TempFolder m_folder;
    const std::filesystem::path m_app = m_folder / L"app", m_vault = m_folder / L"vault",
                                m_work = m_folder / L"work";
    const Listener m_listener;
};

} // namespace tests
