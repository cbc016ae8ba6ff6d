// Defaults of settings that are applied in more than one place.
#pragma once

namespace varnoke {

inline constexpr wchar_t kDefaultDesignDoMain[] = L"standard";
inline constexpr wchar_t kDefaultLocalObjectConfigId[] = L"IQORM_OBJ_SIGN";
inline constexpr wchar_t kDefaultServerObjectConfigId[] = L"SIGN";
inline constexpr wchar_t kDefaultDateStyle[] = L"YYYY-MM-DD";

} // namespace varnoke
