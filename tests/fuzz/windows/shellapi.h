#pragma once // Its names are in afxwin.h.
