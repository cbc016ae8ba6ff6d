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

/// What to do about what the host itself found.
constexpr struct {
    TextId found, remedy;
} kOwnRemedies[] = {
    {TextId::NoVault, TextId::RemedyFolder},
    {TextId::NoWorkFolder, TextId::RemedyFolder},
    {TextId::NoReturnFolder, TextId::RemedyFolder},
    {TextId::NoPictureFolder, TextId::RemedyFolder},
    {TextId::NoFolder, TextId::RemedyFolder},
    {TextId::WorkFolderReadOnly, TextId::RemedyFiles},
    {TextId::NoTemporaryFolder, TextId::RemedyFiles},
    {TextId::NoLogFile, TextId::RemedyFiles},
    {TextId::ReturnFileFailed, TextId::RemedyFiles},
    {TextId::FileUnreadable, TextId::RemedyFiles},
    {TextId::NotNoted, TextId::RemedyFiles},
    {TextId::WorkFolderBusy, TextId::RemedyBusy},
    {TextId::PathTooLong, TextId::RemedyShorter},
    {TextId::FileTooLarge, TextId::RemedyMessage},
    {TextId::BadEncoding, TextId::RemedyMessage},
    {TextId::UnknownEncoding, TextId::RemedyMessage},
    {TextId::RefusedEmpty, TextId::RemedyName},
    {TextId::RefusedPath, TextId::RemedyName},
    {TextId::RefusedDevice, TextId::RemedyName},
    {TextId::RefusedEnding, TextId::RemedyName},
    {TextId::RefusedCharacter, TextId::RemedyName},
    {TextId::RefusedSignData, TextId::RemedyName},
    {TextId::RefusedTwice, TextId::RemedyName},
    {TextId::NoModel, TextId::RemedySettings},
    {TextId::MissingMethod, TextId::RemedySettings},
    {TextId::NoSignServer, TextId::RemedySignServer},
    {TextId::SignServerGone, TextId::RemedySignServer},
    {TextId::SignServerSilent, TextId::RemedySignServer},
    {TextId::TimedOut, TextId::RemedySlow},
    {TextId::NotTried, TextId::RemedyAgain},
    {TextId::LogNotSent, TextId::RemedyTransfer},
    {TextId::Unexpected, TextId::RemedyAnywhere},
    {TextId::FrameworkFailed, TextId::RemedyAnywhere},
};

} // namespace

Outcome Outcome::Because(TextId id) {
    Outcome outcome(id);
    constexpr long kCapacity = 600;
    Cmn_GetLastCause(&outcome.cause, outcome.why.GetBuffer(kCapacity), kCapacity);
    outcome.why.ReleaseBuffer();
    if (outcome.cause == static_cast<long>(varnoke::Cause::Cancelled)) outcome.cause = 0; // they know why
    return outcome;
}

CString Remedy(const Outcome& outcome) {
    if (outcome.cause != 0) return Text(RemedyFor(outcome.cause));
    for (const auto& own : kOwnRemedies) {
        if (outcome == own.found) return Text(own.remedy);
    }
    return CString();
}

CString Explained(const CString& text, const Outcome& outcome) {
    CString line = text, code;
    code.Format(L" [%ld]", outcome.cause);
    if (outcome.cause != 0) line += L": " + outcome.why + code;
    const CString remedy = Remedy(outcome);
    return remedy.IsEmpty() ? line : line + L" -> " + remedy;
}

} // namespace host
