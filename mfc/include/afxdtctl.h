// Date and time pickers are not part of the subset; programs include this header all the same.
#pragma once
#include <afxcmn.h>
