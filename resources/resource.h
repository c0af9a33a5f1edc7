// The resource ids that Umbra and its hosts agree on.
//
// A page of a host uses IDOK, IDCANCEL and IDC_BACK for its standard buttons and may give any of
// the IDS_IMAGE_ ids to CBaseDialog::ShowPicture. A resource of the same id in the host's own
// module is found before the one in umbra.dll.
#pragma once

// String table: picture files, relative to the image folder (g_strImageDir).
#define IDS_IMAGE_CONFIRM 14 // images\Confirm.gif, button "Confirm"
#define IDS_IMAGE_INFO 16    // images\Info.gif, for ShowPicture
#define IDS_IMAGE_ERROR 17   // images\Error.gif, for ShowPicture
#define IDS_IMAGE_OK 18      // images\Ok.gif, button "OK"
#define IDS_IMAGE_BACK 19    // images\Back.gif, button "Back"
#define IDS_IMAGE_CLOSE 20   // images\Close.gif, buttons "Cancel" and "Close"
#define IDS_IMAGE_NEXT 21    // images\Next.gif, buttons "Next" and "Proceed"

// The background strip at the top left corner of every page: 72 x 367 pixels, 24 bits a pixel.
#define IDB_STRIP 3010

// The working window (CModellessDlg) and its hyperlink labels.
#define IDD_MODELESS 3040
#define IDC_MODELESS_ICON 3041   // the information icon, 32 x 32 pixels
#define IDC_MODELESS_TITLE 3042  // what is going on
#define IDC_MODELESS_DETAIL 3043 // more about it
#define IDC_MODELESS_HINT 3044   // what the user may do, or a link to read more

// The third standard button of a page, besides IDOK and IDCANCEL.
#define IDC_BACK 3046
