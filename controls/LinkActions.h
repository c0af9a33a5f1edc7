// What the link labels have in common: the hand over them, and what a click opens.
#pragma once

#include <afxwin.h>

/// Gives the pointer the shape of a hand. Where there is none it keeps its shape.
void ShowHandCursor();

/// A link's target without the blanks around it.
CString TrimTarget(CString target);

/// Tells the debugger of a link that no click can reach: a static control without SS_NOTIFY is
/// transparent to the mouse. Does nothing in a release build.
void TraceUnreachableLink(const CWnd& label);
