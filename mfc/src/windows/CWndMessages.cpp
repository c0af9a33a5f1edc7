// Messages that a program sends to a window.
#include <classes/CWnd.h>

namespace {

struct Broadcast
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    bool deep;
    bool onlyPermanent;
};

void SendToDescendants(HWND parent, const Broadcast& sent)
{
    for (HWND child = ::GetTopWindow(parent); child != NULL;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (!sent.onlyPermanent || CWnd::FromHandlePermanent(child) != NULL)
            ::SendMessage(child, sent.message, sent.wParam, sent.lParam);
        if (sent.deep)
            SendToDescendants(child, sent);
    }
}

} // namespace

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::PostMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendNotifyMessage(m_hWnd, message, wParam, lParam);
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep,
                                    BOOL bOnlyPerm)
{
    SendToDescendants(m_hWnd, {message, wParam, lParam, bDeep != FALSE, bOnlyPerm != FALSE});
}
