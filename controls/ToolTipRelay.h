// Passing a control's mouse messages on to its tool tip.
#pragma once

#include <afxcmn.h>
#include <afxwin.h>

/// Relays a mouse message of `tool` to the tool tip. FALSE: the host, whom the tool tip notifies,
/// has ended the control meanwhile, and perhaps its object with it.
BOOL RelayToToolTip(CToolTipCtrl& toolTip, const CWnd& tool, UINT message, WPARAM wParam,
                    LPARAM lParam);
