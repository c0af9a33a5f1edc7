// The gallery's resource ids. Those of the standard buttons come from the toolkit.
#pragma once

#include "resources/resource.h"

#define IDI_GALLERY 1

// Every page.
#define IDC_TITLE 1001
#define IDC_INTRO 1002
#define IDC_FOOTNOTE 1003

#define IDD_START 100
#define IDC_ROOM_FIRST 1010 // One button a room, in the order of the rooms.
#define IDC_ROOM_LAST 1016

#define IDD_BACKGROUNDS 110
#define IDD_SAMPLE_FRAMED 111
#define IDD_SAMPLE_BARE 112
#define IDC_SAMPLE_FIRST 1020 // One button a sample window.
#define IDC_SAMPLE_LAST 1023
#define IDC_DRAG 1024
#define IDC_SAMPLE_TEXT 1025
#define IDC_SAMPLE_COLOUR 1026
#define IDC_DRAG_STATE 1027

#define IDD_GRID 120
#define IDC_REQUEST_FIRST 1030 // x, y, width, height; so are the two rows below.
#define IDC_REQUEST_LAST 1033
#define IDC_UNITS_FIRST 1034
#define IDC_SNAPPED_FIRST 1038
#define IDC_SPIN_FIRST 1042
#define IDC_BASE_UNITS 1046
#define IDC_BASE_SOURCE 1047
#define IDC_REQUEST_VIEW 1048
#define IDC_SNAPPED_VIEW 1049

#define IDD_BUTTONS 130
#define IDC_FLAT 1050
#define IDC_DEFAULT 1051
#define IDC_PICTURE_LEFT 1052
#define IDC_PICTURE_RIGHT 1053
#define IDC_PICTURE_ABOVE 1054
#define IDC_CHECK_PLAIN 1055
#define IDC_CHECK_PUSH 1056
#define IDC_RADIO_FIRST 1057
#define IDC_RADIO_LAST 1059
#define IDC_TIP 1060
#define IDC_STYLE_NAME_FIRST 1061 // One static a style.
#define IDC_MATRIX_FIRST 1100     // The shade styles by rows, the states by columns.

#define IDD_SHADE_LAB 140
#define IDC_STYLE 1200
#define IDC_GRANULARITY 1201 // The sliders, in this order.
#define IDC_HIGHLIGHT 1202
#define IDC_COLORING 1203
#define IDC_RED 1204
#define IDC_GREEN 1205
#define IDC_BLUE 1206
#define IDC_VALUE_FIRST 1211 // Their values, in the same order.
#define IDC_SWATCH 1218
#define IDC_CALL 1219
#define IDC_COPY 1220
#define IDC_LIVE_FIRST 1221
#define IDC_LIVE_LAST 1224
#define IDC_RESET 1225

#define IDD_LABELS 150
#define IDC_PLAIN 1250
#define IDC_ETCHED 1251
#define IDC_COLORED 1252
#define IDC_LEFT 1253
#define IDC_CENTRE 1254
#define IDC_RIGHT 1255
#define IDC_NOTE 1256
#define IDC_PANEL 1257
#define IDC_OPAQUE 1258
#define IDC_KEYED 1259
#define IDC_LARGE 1260
#define IDC_WEB_LINK 1261
#define IDC_FILE_LINK 1262
#define IDC_TARGET_LINK 1263
#define IDC_TIP_LINK 1264
#define IDC_OPAQUE_NAME 1265
#define IDC_KEYED_NAME 1266
#define IDC_LARGE_NAME 1267

#define IDD_WIZARD_FOLDER 160
#define IDD_WIZARD_PICTURES 161
#define IDD_WIZARD_CONFIRM 162
#define IDD_WIZARD_RESULT 163
#define IDC_FOLDER 1300
#define IDC_BROWSE 1301
#define IDC_FOUND 1302
#define IDC_PICTURES 1303
#define IDC_PREVIEW 1304
#define IDC_PICTURE_INFO 1305
#define IDC_HEADING 1306
#define IDC_SUMMARY 1307
#define IDC_RESULT_LINK 1308
#define IDC_STEP 1309

#define IDD_WORKING 170
#define IDC_START_WORK 1350
#define IDC_ALLOW_CANCEL 1351
#define IDC_PROGRESS 1352
#define IDC_RESULT 1353
#define IDC_WORK_PROGRESS 1354
