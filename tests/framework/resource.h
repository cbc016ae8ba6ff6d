// Resource ids of the framework's test dialogs.
#pragma once

#define IDD_PLAIN 100
#define IDC_NAME 101

#define IDD_CONTROLS 110
#define IDC_FAKE_CONTROL 113
#define IDC_UNLISTED_CONTROL 114
