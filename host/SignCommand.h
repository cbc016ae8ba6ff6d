// sign: signs the chosen document of a message with the library's dialogs.
#pragma once

#include "host/Command.h"
#include "host/Document.h"
#include "host/InteractiveSession.h"
#include "host/RunInput.h"
#include "host/SignMarks.h"
#include "host/Texts.h"

namespace host {

class SignCommand : public Command {
public:
    static std::vector<OptionRule> Rules();
    int Run(const Options& options) override;

private:
    /// Signed, or the step that failed.
    TextId Process(InteractiveSession& session, const SLoginInfo& login, const Document& document);
    bool Transfer(InteractiveSession& session, const Document& document, TextId step,
                  long (CPLMInteract::*operation)(SSignFileDUL*));
    TextId Sign(InteractiveSession& session, const SLoginInfo& login, const Document& document,
                SignMarks& marks);
    SignInfoPtr AskSignInfo(InteractiveSession& session, const Document& document, const CString& path);

    CString m_work;
};

} // namespace host
