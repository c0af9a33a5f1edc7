// The tool tip that the windows of a thread share.
#pragma once

class CWnd;

namespace afxint {

/// Takes the tip away from a window that is about to go.
void ForgetToolTips(const CWnd& window);

} // namespace afxint
