// How something ended, and why.
#pragma once

#include <afxwin.h>

#include "host/Texts.h"

namespace host {

struct Outcome {
    Outcome(TextId id) : id(id) {} // NOLINT(google-explicit-constructor): most outcomes need no cause
    /// With the cause of the library's last operation on this thread, if it failed.
    static Outcome Because(TextId id);

    bool operator==(TextId other) const { return id == other; }
    bool operator!=(TextId other) const { return id != other; }

    TextId id;
    long cause = 0; ///< the library's reason code; 0: none is known
    CString why;    ///< in the library's language
};

/// What to do about it; empty when there is nothing to do.
CString Remedy(const Outcome& outcome);

/// What, why, and what to do: "text: cause [code] -> remedy", as far as they are known.
CString Explained(const CString& text, const Outcome& outcome);

} // namespace host
