// The signatures that the server would have placed, kept in memory in place of a drawing.
#include "standins/signserver/SignatureBook.h"

#include <algorithm>

#include "standins/common/Text.h"

namespace signserver {

using base::SameText;

SignatureBook& SignatureBook::OfProcess() {
    static SignatureBook book;
    return book;
}

void SignatureBook::Place(Signature signature) {
    Remove(signature);
    m_signatures.push_back(std::move(signature));
}

bool SignatureBook::Remove(const Signature& wanted) {
    const auto found =
        std::find_if(m_signatures.begin(), m_signatures.end(), [&](const Signature& signature) {
            return SameText(signature.signText, wanted.signText) &&
                   SameText(signature.userName, wanted.userName) && SameText(signature.role, wanted.role);
        });
    if (found == m_signatures.end()) return false;
    m_signatures.erase(found);
    return true;
}

void SignatureBook::RemoveAll(const std::wstring& signText) {
    const auto first =
        std::remove_if(m_signatures.begin(), m_signatures.end(),
                       [&](const Signature& signature) { return SameText(signature.signText, signText); });
    m_signatures.erase(first, m_signatures.end());
}

bool SignatureBook::Contains(const std::wstring& signText) const {
    return std::any_of(m_signatures.begin(), m_signatures.end(),
                       [&](const Signature& signature) { return SameText(signature.signText, signText); });
}

} // namespace signserver
