#pragma once

#define IDD_PLAIN 101
#define IDD_WITH_LIST 102
#define IDC_LATE_LIST 1001
