#include <classes/CAnimateCtrl.h>

#include <classes/Modules.h>

#include "controls/ControlMessages.h"

using afxint::Ask;

namespace {

constexpr afxint::CommonControl kind = {ANIMATE_CLASS, ICC_ANIMATE_CLASS};

constexpr UINT isPlaying = WM_USER + 104; ///< Came with a later Windows; an older one answers 0.

} // namespace

IMPLEMENT_DYNAMIC(CAnimateCtrl, CWnd)

CAnimateCtrl::CAnimateCtrl() = default;

BOOL CAnimateCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return afxint::CreateControl(*this, kind, dwStyle, rect, pParentWnd, nID);
}

BOOL CAnimateCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                            UINT nID)
{
    return afxint::CreateControlEx(*this, kind, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

BOOL CAnimateCtrl::Open(LPCTSTR lpszFileName)
{
    return Ask(m_hWnd, ACM_OPEN, 0, lpszFileName);
}

BOOL CAnimateCtrl::Open(UINT nID)
{
    const LPCTSTR name = MAKEINTRESOURCE(nID);
    return Ask(m_hWnd, ACM_OPEN, AfxFindResourceHandle(name, _T("AVI")), name);
}

BOOL CAnimateCtrl::Play(UINT nFrom, UINT nTo, UINT nRep)
{
    return Ask(m_hWnd, ACM_PLAY, nRep, MAKELPARAM(nFrom, nTo));
}

BOOL CAnimateCtrl::Stop()
{
    return Ask(m_hWnd, ACM_STOP);
}

BOOL CAnimateCtrl::Seek(UINT nTo)
{
    return Play(nTo, nTo, 1);
}

BOOL CAnimateCtrl::Close()
{
    return Open(static_cast<LPCTSTR>(NULL));
}

BOOL CAnimateCtrl::IsPlaying() const
{
    return Ask(m_hWnd, isPlaying);
}
