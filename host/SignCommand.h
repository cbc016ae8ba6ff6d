// sign: signs the chosen document of a message with the library's dialogs.
#pragma once

#include "host/Command.h"
#include "host/Document.h"
#include "host/InteractiveSession.h"
#include "host/RunInput.h"
#include "host/SignMarks.h"
#include "host/Texts.h"

namespace host {

class CSignCommand : public CCommand {
public:
    static std::vector<SOptionRule> Rules();
    int Run(const COptions& options) override;

private:
    /// Signed, or the step that failed.
    EText Process(CInteractiveSession& session, const SLoginInfo& login, const CDocument& document);
    bool Transfer(CInteractiveSession& session, const CDocument& document, EText step,
                  long (CPLMInteract::*operation)(SSignFileDUL*));
    EText Sign(CInteractiveSession& session, const SLoginInfo& login, const CDocument& document,
               CSignMarks& marks);
    SignInfoPtr AskSignInfo(CInteractiveSession& session, const CDocument& document, const CString& path);

    CString m_strWork;
};

} // namespace host
