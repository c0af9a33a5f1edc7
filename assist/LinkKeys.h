// Links that the keyboard reaches and presses.
#pragma once

#include <windows.h>

namespace umbra {

/// Has a label stop Tab while it is a link, show where the focus is, and be pressed by Enter and
/// Space. It may become a link later.
void ServeLink(HWND label);

} // namespace umbra
