#include <afxwin.h>

IMPLEMENT_DYNAMIC(CPaintDC, CDC)

CPaintDC::CPaintDC(CWnd* pWnd) : m_ps(), m_hWnd(pWnd->GetSafeHwnd())
{
    if (!Attach(::BeginPaint(m_hWnd, &m_ps)))
        AfxThrowResourceException();
}

CPaintDC::~CPaintDC()
{
    Detach();
    ::EndPaint(m_hWnd, &m_ps);
}
