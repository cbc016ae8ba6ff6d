// Resource ids of the framework's test dialogs.
#pragma once

#define IDD_PLAIN 100
#define IDC_NAME 101
#define IDC_PRESS 102
#define IDC_COLORS 103
#define IDC_DATE 104
#define IDC_PROGRESS 105
#define IDC_DEFAULT 106

#define IDD_BROKEN 109
#define IDD_CONTROLS 110
#define IDC_BEFORE 111
#define IDC_UNKNOWN_CONTROL 112
#define IDC_FAKE_CONTROL 113
#define IDC_AFTER 114
