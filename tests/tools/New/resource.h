//{{NO_DEPENDENCIES}}
// Microsoft Visual C++ generated include file.
// Used by New.rc
//
#define IDR_MAINFRAME					128
#define IDM_ABOUTBOX					0x0010
#define IDD_ABOUTBOX					100
#define IDS_ABOUTBOX					101
#define IDD_NEW_DIALOG				102
#define IDS_EXTRA					103
#define IDC_CHOICES					1000
