// Help, and events for accessibility.
#include <classes/CWnd.h>

#include <classes/Application.h>

void CWnd::WinHelp(DWORD_PTR dwData, UINT nCmd)
{
    if (CWinApp* app = AfxGetApp())
        app->WinHelp(dwData, nCmd);
}

void CWnd::HtmlHelp(DWORD_PTR dwData, UINT nCmd)
{
    if (CWinApp* app = AfxGetApp())
        app->HtmlHelp(dwData, nCmd);
}

void CWnd::OnHelp()
{
    // The innermost window that knows help for its context gives it.
    for (HWND window = m_hWnd; window != NULL; window = ::GetParent(window)) {
        if (::SendMessage(window, WM_COMMANDHELP, 0, 0) != 0)
            return;
    }
    OnHelpFinder();
}

void CWnd::OnHelpIndex()
{
    WinHelp(0, HELP_INDEX);
}

void CWnd::OnHelpFinder()
{
    WinHelp(0, HELP_FINDER);
}

void CWnd::OnHelpUsing()
{
    WinHelp(0, HELP_HELPONHELP);
}

void CWnd::NotifyWinEvent(DWORD event, LONG idObjectType, LONG idObject)
{
    ::NotifyWinEvent(event, m_hWnd, idObjectType, idObject);
}
