// Hash sets and maps of texts that are equal without regard to case.
#pragma once

#include <afxwin.h>
#include <wctype.h>
#include <cstddef>
#include <unordered_map>
#include <unordered_set>

namespace varnoke {

struct NoCaseEqual {
    bool operator()(const CString& left, const CString& right) const {
        return left.CompareNoCase(right) == 0;
    }
};

/// Folds at least what CompareNoCase folds, so that equal texts meet in one bucket.
struct NoCaseHash {
    std::size_t operator()(const CString& text) const {
        std::size_t hash = 14695981039346656037u;
        const wchar_t* characters = text;
        for (int i = 0; i < text.GetLength(); ++i) {
            hash = (hash ^ towlower(characters[i])) * 1099511628211u;
        }
        return hash;
    }
};

using NoCaseSet = std::unordered_set<CString, NoCaseHash, NoCaseEqual>;
template <class Value>
using NoCaseMap = std::unordered_map<CString, Value, NoCaseHash, NoCaseEqual>;

} // namespace varnoke
