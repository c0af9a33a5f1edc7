// The windows of the calling thread, for a report that a person reads.
#pragma once

#include "testing/Picture.h"
#include "testing/Text.h"

#include <string>

namespace umbra::testing {

/// The text of a window or control, however long.
TString TextOf(HWND window);

/// Each window that is shown, the one in front first, and its controls, a line each: id, class,
/// text, place on the screen, and whether it is hidden or disabled.
std::string ListWindows();
/// The windows that are shown, with their frames, where they are on the screen.
Picture ShowWindows();

} // namespace umbra::testing
