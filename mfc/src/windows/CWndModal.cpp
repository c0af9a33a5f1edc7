// Modal loops, and who owns what.
#include <classes/CWnd.h>

#include <classes/CFrameWnd.h>
#include <classes/CWinThread.h>

#include "threads/ThreadState.h"
#include "windows/ModalScope.h"

#include <optional>

namespace {

bool IsChildWindow(HWND window)
{
    return (::GetWindowLongPtr(window, GWL_STYLE) & WS_CHILD) != 0;
}

bool IsFrame(const CWnd* window)
{
    return window != NULL && window->IsKindOf(RUNTIME_CLASS(CFrameWnd));
}

/// The window itself, or its nearest parent that is no child.
HWND TopLevelOf(HWND window)
{
    while (window != NULL && IsChildWindow(window))
        window = ::GetParent(window);
    return window;
}

/// The parent of a child, the owner of another.
HWND ParentOrOwner(HWND window)
{
    return IsChildWindow(window) ? ::GetParent(window) : ::GetWindow(window, GW_OWNER);
}

/// One idle call of a modal loop; false when there is nothing left to do until a message comes.
bool SpendIdleTime(CWnd& window, DWORD flags, LONG count)
{
    if ((flags & MLF_NOIDLEMSG) == 0 && count == 0) {
        if (const HWND parent = ::GetParent(window.m_hWnd)) {
            ::SendMessage(parent, WM_ENTERIDLE, MSGF_DIALOGBOX,
                          reinterpret_cast<LPARAM>(window.m_hWnd));
        }
    }
    bool more = false;
    if ((flags & MLF_NOKICKIDLE) == 0)
        more = window.SendMessage(WM_KICKIDLE, MSGF_DIALOGBOX, count) != 0;
    if (CWinThread* thread = AfxGetThread())
        return thread->OnIdle(count) || more;
    afxint::DropTemporaryObjects();
    return more;
}

/// Fetches and dispatches one message where no thread object does it.
void PumpWithoutThread(CWnd& window)
{
    MSG message;
    if (GetMessage(&message, NULL, 0, 0) <= 0 || window.PreTranslateMessage(&message))
        return;
    TranslateMessage(&message);
    DispatchMessage(&message);
}

} // namespace

int CWnd::RunModalLoop(DWORD dwFlags)
{
    // DoModal begins the state before the window is made, where EndModalLoop may be called already.
    std::optional<afxint::ModalState> state;
    if (!Has(modalLoop))
        state.emplace(*this);
    bool hidden = (dwFlags & MLF_SHOWONIDLE) != 0 && !IsWindowVisible();
    bool idle = true;
    LONG idleCount = 0;
    while (ContinueModal()) {
        MSG next;
        if (!PeekMessage(&next, NULL, 0, 0, PM_NOREMOVE)) {
            if (!ContinueModal()) // A sent message has been handled meanwhile.
                break;
            if (hidden) {
                hidden = false;
                ShowWindow(SW_SHOWNORMAL);
                UpdateWindow();
            } else if (idle) {
                idle = SpendIdleTime(*this, dwFlags, idleCount++);
            } else {
                WaitMessage();
            }
            continue;
        }
        if (next.message == WM_QUIT || !ContinueModal())
            break; // WM_QUIT stays for the loop outside.
        CWinThread* thread = AfxGetThread();
        if (thread == NULL)
            PumpWithoutThread(*this);
        else if (!thread->PumpMessage())
            PostQuitMessage(0);
        if (thread == NULL || thread->IsIdleMessage(&next)) {
            idle = true;
            idleCount = 0;
        }
    }
    return modalResult_;
}

BOOL CWnd::ContinueModal()
{
    return Has(continueModal);
}

void CWnd::EndModalLoop(int nResult)
{
    modalResult_ = nResult;
    if (!Has(continueModal))
        return;
    Set(continueModal, false);
    PostMessage(WM_NULL); // Wakes the loop.
}

void CWnd::BeginModalState()
{
    ::EnableWindow(m_hWnd, FALSE);
}

void CWnd::EndModalState()
{
    ::EnableWindow(m_hWnd, TRUE);
}

CWnd* CWnd::GetOwner() const
{
    return owner_ == NULL ? GetParent() : FromHandle(owner_);
}

void CWnd::SetOwner(CWnd* pOwnerWnd)
{
    owner_ = pOwnerWnd->GetSafeHwnd();
}

CFrameWnd* CWnd::GetParentFrame() const
{
    if (GetSafeHwnd() == NULL)
        return NULL;
    for (HWND window = ::GetParent(m_hWnd); window != NULL; window = ::GetParent(window)) {
        CWnd* object = FromHandlePermanent(window);
        if (IsFrame(object))
            return static_cast<CFrameWnd*>(object);
    }
    return NULL;
}

CFrameWnd* CWnd::GetTopLevelFrame() const
{
    if (GetSafeHwnd() == NULL)
        return NULL;
    CFrameWnd* top =
        IsFrame(this) ? static_cast<CFrameWnd*>(const_cast<CWnd*>(this)) : GetParentFrame();
    while (top != NULL) {
        CFrameWnd* outer = top->GetParentFrame();
        if (outer == NULL)
            break;
        top = outer;
    }
    return top;
}

CWnd* CWnd::GetTopLevelParent() const
{
    if (GetSafeHwnd() == NULL)
        return NULL;
    HWND top = m_hWnd;
    while (const HWND outer = ParentOrOwner(top))
        top = outer;
    return FromHandle(top);
}

CWnd* CWnd::GetTopLevelOwner() const
{
    if (GetSafeHwnd() == NULL)
        return NULL;
    HWND top = TopLevelOf(m_hWnd);
    while (top != NULL) {
        const HWND owner = ::GetWindow(top, GW_OWNER);
        if (owner == NULL)
            break;
        top = owner;
    }
    return FromHandle(top);
}

CWnd* CWnd::GetParentOwner() const
{
    if (GetSafeHwnd() == NULL)
        return NULL;
    return FromHandle(TopLevelOf(ParentOrOwner(m_hWnd)));
}

CWnd* PASCAL CWnd::GetSafeOwner(CWnd* pParent, HWND* pWndTop)
{
    const bool given = pParent->GetSafeHwnd() != NULL;
    HWND owner = given ? pParent->m_hWnd : AfxGetMainWnd()->GetSafeHwnd();
    owner = TopLevelOf(owner);
    HWND top = owner;
    while (top != NULL) {
        const HWND outer = ::GetParent(top);
        if (outer == NULL)
            break;
        top = outer;
    }
    if (!given && owner != NULL)
        owner = ::GetLastActivePopup(owner);
    CWnd* found = FromHandle(owner);
    if (pWndTop != NULL) {
        *pWndTop = NULL;
        if (top != NULL && top != owner && ::IsWindowEnabled(top)) {
            *pWndTop = top;
            ::EnableWindow(top, FALSE);
        }
    }
    return found;
}
