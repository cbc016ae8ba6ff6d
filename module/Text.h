// Texts that come from the host.
#pragma once

namespace varnoke {

/// Whether a text was given: neither null nor empty.
inline bool HasText(const wchar_t* text) {
    return text && *text != L'\0';
}

} // namespace varnoke
