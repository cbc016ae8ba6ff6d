// The start-sign request: a message, read or merged, becomes the records of a signing run.
#include <afxwin.h>

#include "plm/StartSign.h"
#include "module/Text.h"
#include "ui/SDLDlg.h"

namespace varnoke {

bool StartSignArguments::CheckAndClear() const {
    if (!HasText(xml) || !HasText(workFolder) || !login) return false;
    *login = nullptr;
    if (!steps) return false;
    *steps = nullptr;
    if (!files) return false;
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
    if (records.files->m_lstObj.IsEmpty()) return false;

    dialog.SetSignFileType(records.files.get());
    dialog.SetModelConfig(&config);
    if (dialog.DoModal() != IDOK) return false;
    SSignType* chosen = nullptr;
    if (!dialog.GetSelectedSignFileType(&chosen)) return false;
    StartSignRecords result{std::move(records.login), std::move(records.steps),
                            OwnedRecord<SSignType>(chosen)};
    arguments.HandOut(result);
    return true;
}

} // namespace varnoke
