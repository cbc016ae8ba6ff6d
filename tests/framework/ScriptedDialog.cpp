// The message map of the scripted dialog.
#include "tests/framework/ScriptedDialog.h"

BEGIN_MESSAGE_MAP(CScriptedDialog, CDialog)
    ON_BN_CLICKED(IDC_PRESS, &CScriptedDialog::OnClickedPress)
    ON_BN_CLICKED(IDC_DEFAULT, &CScriptedDialog::OnClickedPress)
    ON_WM_TIMER()
    ON_MESSAGE(WM_RUN_SCRIPT, &CScriptedDialog::OnRunScript)
END_MESSAGE_MAP()
