// Windows, dialogs, controls and the application object.
#pragma once

#include <windows.h>
#include <afx.h>
#include <atltypes.h>

#include "afxres.h"
#include "afxmsg_.h"
#include "win/DC.h"
#include "win/Wnd.h"
#include "win/Controls.h"
#include "win/Dialog.h"
#include "win/WinApp.h"
