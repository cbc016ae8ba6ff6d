// The signatures that the server would have placed, kept in memory in place of a drawing.
#pragma once

#include <string>
#include <vector>

namespace signserver {

// One signature: the sign text that names what was signed, and who signed it in which role.
struct Signature {
    std::wstring signText;
    std::wstring userName;
    std::wstring role;
};

// All signatures of the process, whichever server object placed them. Texts are compared without regard to
// case. Used on one thread, that of the apartment which made the server.
class SignatureBook {
public:
    static SignatureBook& OfProcess();

    // A second signature with the same three texts replaces the first.
    void Place(Signature signature);
    // False when there is no such signature.
    bool Remove(const Signature& signature);
    void RemoveAll(const std::wstring& signText);
    bool Contains(const std::wstring& signText) const;

private:
    std::vector<Signature> m_signatures;
};

} // namespace signserver
