// Hash sets and maps of texts that are equal as file names are: ordinal, without regard to case.
#pragma once

#include <afxwin.h>
#include <cstddef>
#include <unordered_map>
#include <unordered_set>

#include "base/Fnv1a.h"
#include "base/Text.h"

namespace varnoke {

struct NoCaseEqual {
    bool operator()(const CString& left, const CString& right) const {
        return base::SameText(left.GetString(), right.GetString());
    }
};

/// Folds what the comparison folds, so that equal texts meet in one bucket.
struct NoCaseHash {
    std::size_t operator()(const CString& text) const {
        base::Fnv1a hash;
        const wchar_t* characters = text;
        for (int i = 0; i < text.GetLength(); ++i) {
            hash.Add(Upper(characters[i]));
        }
        return hash.Value();
    }

private:
    static std::size_t Upper(wchar_t character) {
        if (character < 0x80) return character >= L'a' && character <= L'z' ? character - 32 : character;
        auto* const asText = reinterpret_cast<wchar_t*>(static_cast<std::size_t>(character));
        return reinterpret_cast<std::size_t>(::CharUpperW(asText));
    }
};

using NoCaseSet = std::unordered_set<CString, NoCaseHash, NoCaseEqual>;
template <class Value>
using NoCaseMap = std::unordered_map<CString, Value, NoCaseHash, NoCaseEqual>;

} // namespace varnoke
