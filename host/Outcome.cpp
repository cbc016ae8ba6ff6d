#include "host/Outcome.h"

#include "varnoke/Cause.h"

namespace host {

namespace {

/// The hundreds of a reason code tell what the cause has to do with.
TextId RemedyFor(long cause) {
    constexpr TextId kRemedies[] = {TextId::RemedyAnywhere, TextId::RemedySettings, TextId::RemedySignServer,
                                    TextId::RemedyMessage,  TextId::RemedyTransfer, TextId::RemedyFiles,
                                    TextId::RemedyLog,      TextId::RemedyFiles};
    const size_t area = static_cast<size_t>(cause) / 100;
    return area < std::size(kRemedies) ? kRemedies[area] : TextId::RemedyAnywhere;
}

} // namespace

Outcome Outcome::Because(TextId id) {
    Outcome outcome(id);
    constexpr long kCapacity = 600;
    Cmn_GetLastCause(&outcome.cause, outcome.why.GetBuffer(kCapacity), kCapacity);
    outcome.why.ReleaseBuffer();
    if (outcome.cause == static_cast<long>(varnoke::Cause::Cancelled)) outcome.cause = 0; // they know why
    return outcome;
}

CString Explained(const CString& text, const Outcome& outcome) {
    if (outcome.cause == 0) return text;
    CString code;
    code.Format(L" [%ld] -> ", outcome.cause);
    return text + L": " + outcome.why + code + Text(RemedyFor(outcome.cause));
}

} // namespace host
