// The cause of a failure: stated where a check fails, kept for the host and for the trace.
#pragma once

#include <afxwin.h>

#include "base/Text.h"
#include "varnoke/Cause.h"

namespace varnoke {

/// What a failing function returns, whatever its type: 0, false, null, empty.
struct Failed {
    template <class Result>
    operator Result() const {
        return Result();
    }
};

/// States why the thread's operation fails; the first cause stands. `detail` is added to the cause's text,
/// and `number` if it is not 0: a failing HRESULT with the system's explanation, or another library's result.
Failed Fail(Cause cause, base::TextRef detail = L"", long number = 0) noexcept;

/// The same with what the system's last error tells.
Failed FailWithLastError(Cause cause, base::TextRef detail) noexcept;

/// Keeps the stated cause although the operation's result is not its usual one for a failure.
void KeepCause() noexcept;

/// Whether a text was given; if not, that is the cause.
bool IsGiven(const wchar_t* text, const wchar_t* name) noexcept;

/// Within a catch block: states the exception that is being handled, and deletes one of the framework's.
void StateCaughtException() noexcept;

struct StatedCause {
    Cause cause;
    const wchar_t* text; ///< empty for none; until the thread's next failure
};

/// Why the thread's last operation failed.
StatedCause LastCause() noexcept;

/// The run of an exported operation. One that is called by another belongs to it.
class Operation {
public:
    /// `name` must live on; null for what is no operation.
    explicit Operation(const char* name) noexcept;
    ~Operation();
    Operation& operator=(Operation&&) = delete;

    /// Leaves a line in the trace; success forgets causes that did not prevent it.
    void End(long result, bool failed) const noexcept;

private:
    const char* m_name; // null within another operation
};

} // namespace varnoke
