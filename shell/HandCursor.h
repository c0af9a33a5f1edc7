// The pointing hand that shows over links.
#pragma once

#include "umbra_api.h"

#include <afxwin.h>

/// The hand cursor, borrowed from the help program in the Windows directory. NULL when there is
/// none; the pointer is then to keep its shape. The cursor is loaded once, stays the toolkit's and
/// is released when the toolkit is unloaded: callers neither keep nor destroy it.
UMBRA_API HCURSOR LoadHandCursor();
