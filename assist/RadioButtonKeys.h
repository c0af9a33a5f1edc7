// Shaded radio buttons that the arrow keys select.
#pragma once

#include <windows.h>

namespace umbra {

/// Has a shaded radio button answer as radio buttons do: arrow keys select the next of its group, and
/// Tab stops at the group once, where it is checked.
void ServeRadioButton(HWND button);

} // namespace umbra
