//{{NO_DEPENDENCIES}}
// Microsoft Developer Studio generated include file.
// Used by OLD.RC
//
#define IDR_MAINFRAME					128
#define IDD_OLD_DIALOG				102
#define IDS_GREETING                    103
#define IDS_EXTRA                       104
#define IDC_CHOICES                     1000
#define IDC_GREETING                    1001

// Next default values for new objects
// 
#ifdef APSTUDIO_INVOKED
#ifndef APSTUDIO_READONLY_SYMBOLS

#define _APS_NEXT_RESOURCE_VALUE	129
#define _APS_NEXT_CONTROL_VALUE		1002
#define _APS_NEXT_SYMED_VALUE		105
#define _APS_NEXT_COMMAND_VALUE		32771
#endif
#endif
