#pragma once

#define IDD_STARTER 100
#define IDC_NOTE 101
