// The tool tip that the windows of a thread share.
#pragma once

#include <classes/Platform.h>

class CWnd;

namespace afxint {

/// The tip of a thread and the tool that it serves just now.
struct ToolTip
{
    static constexpr INT_PTR noTool = -1;

    HWND window = NULL;
    HWND asker = NULL; ///< Whose OnToolHitTest told the tool.
    INT_PTR hit = noTool;
    TOOLINFO tool{};
};

/// Takes the tip away from a window that is about to go.
void ForgetToolTips(const CWnd& window);

} // namespace afxint
