// The walk of a message past the windows that may want it before it is dispatched.
#pragma once

#include <classes/Platform.h>

namespace afxint {

/// Calls PreTranslateMessage of the message's window, then of each parent or owner up to and with
/// `last` (NULL: up to the top). TRUE when one of them kept the message.
BOOL PreTranslateUpTo(HWND last, MSG* message);

} // namespace afxint
