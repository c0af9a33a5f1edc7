// The tie between a window object and its system window: made, found and ended.
#include <classes/CWnd.h>

#include <classes/Application.h>
#include <classes/CDumpContext.h>
#include <classes/CRect.h>

#include "threads/ThreadState.h"
#include "windows/CommonControls.h"
#include "windows/WindowCreation.h"
#include "windows/WindowMessages.h"

using afxint::CurrentThread;
using afxint::WindowMessages;

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

AFX_DATADEF const CWnd CWnd::wndTop(HWND_TOP);
AFX_DATADEF const CWnd CWnd::wndBottom(HWND_BOTTOM);
AFX_DATADEF const CWnd CWnd::wndTopMost(HWND_TOPMOST);
AFX_DATADEF const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

CWnd* afxint::WindowTraits::Wrap(HWND window)
{
    return new CWnd(window);
}

void afxint::WindowTraits::Unwrap(CWnd* window)
{
    window->m_hWnd = NULL;
    delete window;
}

CWnd::CWnd() : CWnd(NULL)
{
}

CWnd::CWnd(HWND window) : m_hWnd(window), superProc_(NULL), owner_(NULL), state_(0), modalResult_(0)
{
}

CWnd::~CWnd()
{
    // Temporary objects and the constants of SetWindowPos own no window.
    if (m_hWnd == NULL || FromHandlePermanent(m_hWnd) != this)
        return;
    TRACE(_T("A CWnd object goes before its window 0x%p.\n"), static_cast<void*>(m_hWnd));
    CWnd::DestroyWindow();
}

void CWnd::AssertValid() const
{
    CCmdTarget::AssertValid();
    ASSERT(m_hWnd == NULL || ::IsWindow(m_hWnd));
}

void CWnd::Dump(CDumpContext& dc) const
{
    CCmdTarget::Dump(dc);
    dc << "with window " << m_hWnd;
    if (::IsWindow(m_hWnd)) {
        CString caption;
        GetWindowText(caption);
        CRect place;
        GetWindowRect(place);
        dc << " \"" << caption << "\" at " << place;
    }
    dc << "\n";
}

CWnd::operator HWND() const
{
    return GetSafeHwnd();
}

BOOL CWnd::operator==(const CWnd& wnd) const
{
    return wnd.GetSafeHwnd() == GetSafeHwnd();
}

BOOL CWnd::operator!=(const CWnd& wnd) const
{
    return wnd.GetSafeHwnd() != GetSafeHwnd();
}

HWND CWnd::GetSafeHwnd() const
{
    return this == NULL ? NULL : m_hWnd;
}

CWnd* PASCAL CWnd::FromHandle(HWND hWnd)
{
    return CurrentThread().windows.FindOrWrap(hWnd);
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND hWnd)
{
    return hWnd == NULL ? NULL : CurrentThread().windows.FindPermanent(hWnd);
}

void PASCAL CWnd::DeleteTempMap()
{
    CurrentThread().windows.DropTemporaries(afxint::DepthOfIdleTime());
}

BOOL CWnd::Attach(HWND hWndNew)
{
    ASSERT(m_hWnd == NULL);
    ASSERT(FromHandlePermanent(hWndNew) == NULL);
    if (hWndNew == NULL)
        return FALSE;
    CurrentThread().windows.Add(hWndNew, this);
    m_hWnd = hWndNew;
    superProc_ = WindowMessages::TakeKeptFormer(hWndNew);
    return TRUE;
}

HWND CWnd::Detach()
{
    const HWND window = m_hWnd;
    if (window == NULL)
        return NULL;
    WindowMessages::KeepFormer(window, superProc_);
    WindowMessages::Forget(this);
    return window;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (cs.lpszClass == NULL) {
        cs.lpszClass =
            AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, LoadCursor(NULL, IDC_ARROW));
    }
    return TRUE;
}

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, CCreateContext* pContext)
{
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID,
                    pContext);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam)
{
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                    afxint::Extent(rect.left, rect.right), afxint::Extent(rect.top, rect.bottom),
                    pParentWnd->GetSafeHwnd(), reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)),
                    lpParam);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    int x, int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu,
                    LPVOID lpParam)
{
    CREATESTRUCT create{};
    create.lpCreateParams = lpParam;
    create.hInstance = AfxGetInstanceHandle();
    create.hMenu = nIDorHMenu;
    create.hwndParent = hWndParent;
    create.cy = nHeight;
    create.cx = nWidth;
    create.y = y;
    create.x = x;
    create.style = static_cast<LONG>(dwStyle);
    create.lpszName = lpszWindowName;
    create.lpszClass = lpszClassName;
    create.dwExStyle = dwExStyle;
    if (!PreCreateWindow(create)) {
        PostNcDestroy();
        return FALSE;
    }

    afxint::NeedClassOfWindow(create.lpszClass, create.hInstance);
    afxint::WindowCreation creation(this);
    HWND window = NULL;
    if (creation.IsReady()) {
        window = ::CreateWindowEx(create.dwExStyle, create.lpszClass, create.lpszName,
                                  static_cast<DWORD>(create.style), create.x, create.y, create.cx,
                                  create.cy, create.hwndParent, create.hMenu, create.hInstance,
                                  create.lpCreateParams);
    }
    if (window == NULL)
        TRACE(_T("A window could not be created, error %u.\n"), GetLastError());
    // The object may have deleted itself when the creation failed.
    if (!creation.Finish(window))
        PostNcDestroy();
    return window != NULL;
}

BOOL CWnd::DestroyWindow()
{
    const HWND window = m_hWnd;
    if (window == NULL)
        return FALSE;
    const bool owned = FromHandlePermanent(window) == this;
    const BOOL destroyed = ::DestroyWindow(window);
    // A window that was only attached has not told its object. A deleted object is in no map.
    if (owned && destroyed && FromHandlePermanent(window) == this)
        WindowMessages::Forget(this);
    return destroyed;
}

void CWnd::PreSubclassWindow()
{
}

BOOL CWnd::SubclassWindow(HWND hWnd)
{
    if (hWnd == NULL || m_hWnd != NULL || FromHandlePermanent(hWnd) != NULL) {
        TRACE(_T("Window 0x%p cannot be subclassed.\n"), static_cast<void*>(hWnd));
        return FALSE;
    }
    return WindowMessages::TakeOver(this, hWnd);
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent)
{
    const HWND control = ::GetDlgItem(pParent->GetSafeHwnd(), static_cast<int>(nID));
    if (control == NULL) {
        TRACE(_T("There is no control with id %u.\n"), nID);
        return FALSE;
    }
    return SubclassWindow(control);
}

HWND CWnd::UnsubclassWindow()
{
    const HWND window = m_hWnd;
    if (window == NULL)
        return NULL;
    WindowMessages::GiveBack(window, superProc_);
    WindowMessages::Forget(this);
    return window;
}

void CWnd::PostNcDestroy()
{
}

BOOL CWnd::PreTranslateMessage(MSG* pMsg)
{
    if (Has(toolTips))
        FilterToolTipMessage(pMsg);
    return FALSE;
}

BOOL CWnd::IsDialogMessage(LPMSG lpMsg)
{
    return ::IsDialogMessage(m_hWnd, lpMsg);
}
