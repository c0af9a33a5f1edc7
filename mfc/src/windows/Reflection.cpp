// Messages that a parent hands back to the control they came from.
#include <classes/CWnd.h>

#include "windows/MessageMap.h"
#include "threads/ThreadState.h"

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult)
{
    const MSG current = afxint::CurrentThread().currentMessage;
    LRESULT ignored = 0;
    return OnChildNotify(current.message, current.wParam, current.lParam,
                         pResult == NULL ? &ignored : pResult);
}

BOOL PASCAL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult)
{
    CWnd* child = FromHandlePermanent(hWndChild);
    return child != NULL && child->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    const UINT reflected = WM_REFLECT_BASE + message;
    switch (message) {
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_PARENTNOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_CHARTOITEM:
    case WM_VKEYTOITEM:
        return CWnd::OnWndMsg(reflected, wParam, lParam, pResult);

    case WM_COMMAND:
        if (!OnCmdMsg(0, MAKELONG(HIWORD(wParam), reflected), NULL, NULL))
            return FALSE;
        *pResult = TRUE;
        return TRUE;

    case WM_NOTIFY: {
        auto* header = reinterpret_cast<NMHDR*>(lParam);
        AFX_NOTIFY notify{pResult, header};
        return OnCmdMsg(0, MAKELONG(header->code, reflected), &notify, NULL);
    }

    case WM_CTLCOLORMSGBOX:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSCROLLBAR:
    case WM_CTLCOLORSTATIC: {
        // No brush means that the parent decides.
        LRESULT brush = 0;
        if (!CWnd::OnWndMsg(reflected, wParam, lParam, &brush) || brush == 0)
            return FALSE;
        *pResult = brush;
        return TRUE;
    }
    }
    return FALSE;
}
