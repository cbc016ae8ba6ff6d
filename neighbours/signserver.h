// Methods of the signing server's automation object, by the names that they have where the settings give no
// other one.
#pragma once

namespace signserver {

inline constexpr wchar_t kLogin[] = L"Login";
inline constexpr wchar_t kSign[] = L"Sign";
inline constexpr wchar_t kSignatureDelete[] = L"SignatureDelete";
inline constexpr wchar_t kDeleteAllSign[] = L"DeleteAllSign";
inline constexpr wchar_t kSignatureInvalidDelete[] = L"SignatureInvalidDelete";
inline constexpr wchar_t kSignatureValidate[] = L"SignatureValidate";

/// All that a server has to have.
inline constexpr const wchar_t* kMethods[] = {
    kLogin, kSign, kSignatureDelete, kDeleteAllSign, kSignatureInvalidDelete, kSignatureValidate};

} // namespace signserver
