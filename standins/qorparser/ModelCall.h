// What every model operation has in common: planned faults, no exception out, texts in and out.
#pragma once

#include <windows.h>
#include <string>
#include <string_view>

#include "base/ComObject.h"

namespace qorparser {

// Makes the n-th model operation from now on fail with E_FAIL; 0 for none. Without a call of this, the
// environment variable QOR_FAULT gives n, counted from the process's first operation.
void PlanFault(int n);

// Counts an operation and says whether it is the one that is to fail.
bool FaultDue();

// Runs the body of an operation without a result.
template <class Body>
HRESULT ModelCall(Body body) {
    return FaultDue() ? E_FAIL : base::GuardedCall(body);
}

// Runs the body of an operation with a result, which is null or zero unless the body sets it.
template <class Result, class Body>
HRESULT ModelCall(Result* result, Body body) {
    if (!result) return E_POINTER;
    *result = Result();
    return ModelCall(body);
}

// The characters of a string argument; null is the empty string.
inline std::wstring_view TextOf(BSTR text) {
    return text ? std::wstring_view(text, ::SysStringLen(text)) : std::wstring_view();
}

// Hands out a copy of the text.
inline HRESULT GiveText(BSTR* result, std::wstring_view text) {
    *result = ::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    return *result ? S_OK : E_OUTOFMEMORY;
}

// Hands out a text that may be absent (null).
inline HRESULT GiveText(BSTR* result, const std::wstring* text) {
    return text ? GiveText(result, std::wstring_view(*text)) : S_FALSE;
}

} // namespace qorparser
