#include "controls/ToolTipRelay.h"

BOOL RelayToToolTip(CToolTipCtrl& toolTip, const CWnd& tool, UINT message, WPARAM wParam,
                    LPARAM lParam)
{
    const HWND window = tool.m_hWnd;
    MSG relayed = {};
    relayed.hwnd = window;
    relayed.message = message;
    relayed.wParam = wParam;
    relayed.lParam = lParam;
    relayed.pt.x = LOWORD(lParam);
    relayed.pt.y = HIWORD(lParam);
    toolTip.SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
    return ::IsWindow(window);
}
