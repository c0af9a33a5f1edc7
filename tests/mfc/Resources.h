// The ids in resources.rc.
#pragma once

#define IDD_PLAIN 7001
#define IDD_FILLED 7002
#define IDD_FRAME_TEXT 7003
#define IDD_PAGE 7004
#define IDR_FRAME 7010
#define IDS_PAGE 7020

#define IDC_NAME 7101
#define IDC_LIST 7102
#define IDC_COMBO 7103
#define IDC_ACTION 7104

#define ID_ACTION 0x8101
#define ID_UNHANDLED 0x8102
#define ID_CHECKED 0x8103
