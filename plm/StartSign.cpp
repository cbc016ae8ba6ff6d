// The start-sign request: a message, read or merged, becomes the records of a signing run.
#include <afxwin.h>

#include "plm/StartSign.h"
#include "module/Failure.h"
#include "ui/SDLDlg.h"

namespace varnoke {

bool StartSignArguments::CheckAndClear() const {
    if (!IsGiven(xml, L"message") || !IsGiven(workFolder, L"workFolder")) return false;
    if (!login) return Fail(Cause::ArgumentMissing, L"login");
    *login = nullptr;
    if (!steps) return Fail(Cause::ArgumentMissing, L"steps");
    *steps = nullptr;
    if (!files) return Fail(Cause::ArgumentMissing, L"documents");
    *files = nullptr;
    return true;
}

void StartSignArguments::HandOut(StartSignRecords& records) const {
    *login = records.login.release();
    *steps = records.steps.release();
    *files = records.files.release();
}

bool StartWithAllDocuments(const StartSignArguments& arguments, MessageReader read) {
    StartSignRecords records;
    if (!arguments.CheckAndClear() || !read(arguments.xml, arguments.workFolder, records)) return false;
    arguments.HandOut(records);
    return true;
}

bool StartWithChosenDocument(const StartSignArguments& arguments, MessageReader read, CModelConfig& config,
                             CWnd* parent) {
    StartSignRecords records; // outlives the dialog, which borrows the documents
    CSDLDlg dialog(parent);
    if (!arguments.CheckAndClear() || !read(arguments.xml, arguments.workFolder, records)) return false;
    // A merge may leave no new document; there is nothing to choose from then.
    if (records.files->m_lstObj.IsEmpty()) return Fail(Cause::NothingNew);

    dialog.SetSignFileType(records.files.get());
    dialog.SetModelConfig(&config);
    const INT_PTR result = dialog.DoModal();
    if (result != IDOK) return Fail(result == IDCANCEL ? Cause::Cancelled : Cause::DialogFailed);
    SSignType* chosen = nullptr;
    if (!dialog.GetSelectedSignFileType(&chosen)) return Fail(Cause::NoDocumentChosen);
    StartSignRecords handedOut{std::move(records.login), std::move(records.steps),
                               OwnedRecord<SSignType>(chosen)};
    arguments.HandOut(handedOut);
    return true;
}

} // namespace varnoke
