// The ids of the page that the timed programs show.
#pragma once

#define IDD_START 101
#define IDC_TEXT 1001
