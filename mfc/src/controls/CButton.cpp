#include <classes/CButton.h>

#include "controls/ControlMessages.h"

using afxint::Ask;
using afxint::AskFor;

IMPLEMENT_DYNAMIC(CButton, CWnd)

CButton::CButton() = default;

BOOL CButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                     UINT nID)
{
    return CWnd::Create(WC_BUTTON, lpszCaption, dwStyle, rect, pParentWnd, nID);
}

UINT CButton::GetState() const
{
    return Ask(m_hWnd, BM_GETSTATE);
}

void CButton::SetState(BOOL bHighlight)
{
    Ask(m_hWnd, BM_SETSTATE, bHighlight);
}

int CButton::GetCheck() const
{
    return Ask(m_hWnd, BM_GETCHECK);
}

void CButton::SetCheck(int nCheck)
{
    Ask(m_hWnd, BM_SETCHECK, nCheck);
}

UINT CButton::GetButtonStyle() const
{
    // The button's own styles are the low word; its lowest bits change with the default button.
    return ::GetWindowLong(m_hWnd, GWL_STYLE) & 0xffff;
}

void CButton::SetButtonStyle(UINT nStyle, BOOL bRedraw)
{
    Ask(m_hWnd, BM_SETSTYLE, nStyle, bRedraw);
}

HICON CButton::SetIcon(HICON hIcon)
{
    return AskFor<HICON>(m_hWnd, BM_SETIMAGE, IMAGE_ICON, hIcon);
}

HICON CButton::GetIcon() const
{
    return AskFor<HICON>(m_hWnd, BM_GETIMAGE, IMAGE_ICON);
}

HBITMAP CButton::SetBitmap(HBITMAP hBitmap)
{
    return AskFor<HBITMAP>(m_hWnd, BM_SETIMAGE, IMAGE_BITMAP, hBitmap);
}

HBITMAP CButton::GetBitmap() const
{
    return AskFor<HBITMAP>(m_hWnd, BM_GETIMAGE, IMAGE_BITMAP);
}

HCURSOR CButton::SetCursor(HCURSOR hCursor)
{
    return AskFor<HCURSOR>(m_hWnd, BM_SETIMAGE, IMAGE_CURSOR, hCursor);
}

HCURSOR CButton::GetCursor()
{
    return AskFor<HCURSOR>(m_hWnd, BM_GETIMAGE, IMAGE_CURSOR);
}

BOOL CButton::GetIdealSize(LPSIZE psize)
{
    return Ask(m_hWnd, BCM_GETIDEALSIZE, 0, psize);
}

BOOL CButton::SetImageList(PBUTTON_IMAGELIST pbuttonImagelist)
{
    return Ask(m_hWnd, BCM_SETIMAGELIST, 0, pbuttonImagelist);
}

BOOL CButton::GetImageList(PBUTTON_IMAGELIST pbuttonImagelist)
{
    return Ask(m_hWnd, BCM_GETIMAGELIST, 0, pbuttonImagelist);
}

BOOL CButton::SetTextMargin(LPRECT pmargin)
{
    return Ask(m_hWnd, BCM_SETTEXTMARGIN, 0, pmargin);
}

BOOL CButton::GetTextMargin(LPRECT pmargin)
{
    return Ask(m_hWnd, BCM_GETTEXTMARGIN, 0, pmargin);
}

void CButton::DrawItem(LPDRAWITEMSTRUCT)
{
}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    if (CWnd::OnChildNotify(message, wParam, lParam, pLResult))
        return TRUE;
    return afxint::DrawOnRequest(*this, message, lParam);
}
