// Control bars are not part of the subset; programs include this header all the same.
#pragma once
#include <afxwin.h>
