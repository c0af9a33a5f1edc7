// New texts for labels, which paint over what is beneath them.
#pragma once

#include <umbra.h>

/// Gives a label of a page another text; the page erases what was beneath the former one.
void SetLabelText(CWnd& label, const CString& text);
