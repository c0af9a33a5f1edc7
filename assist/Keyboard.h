// A page that can be used with the keyboard alone.
#pragma once

#include "umbra_api.h"

#include <afxwin.h>

/// From then on the shaded buttons and links of a page follow the platform's rules for keys. Enter
/// presses the push button that has the focus, otherwise the page's default button, and whichever it
/// would press is marked. A group of radio buttons is one tab stop, and the arrow keys select in it.
/// Links can be reached by Tab, show a focus rectangle, and are pressed by Enter and Space. Standard
/// captions get a mnemonic: "Confirm", "Next", "Proceed" and "Back" their first letter, "Close" its second.
///
/// Call it at the end of OnInitDialog. Controls that the page makes later are served, too; after one
/// was attached to an object later (DDX_Control), call it again. FALSE: the page has no window, or
/// there is too little memory.
UMBRA_API BOOL AssistKeyboard(CWnd& page);
