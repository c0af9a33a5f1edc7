// The buttons of a dialog that belong together.
#pragma once

#include <windows.h>

namespace umbra {

/// Calls the action with each other control of the group (WS_GROUP) that a control is in, in the
/// order in which the arrow keys go. Hidden and disabled ones are left out.
template <class Action>
void ForEachOtherOfGroup(HWND control, Action action)
{
    const HWND parent = ::GetParent(control);
    const HWND first = ::GetNextDlgGroupItem(parent, control, FALSE);
    HWND mark = first;
    unsigned int steps = 0;
    for (HWND item = first; item != nullptr && item != control;) {
        action(item);
        item = ::GetNextDlgGroupItem(parent, item, FALSE);
        // A hidden or disabled control is not part of the circle, so the walk need not come back to
        // it: it ends where it has been before.
        if (item == first || item == mark)
            return;
        ++steps;
        if ((steps & (steps - 1)) == 0) // A power of two.
            mark = item;
    }
}

} // namespace umbra
