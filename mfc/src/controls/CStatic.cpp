#include <classes/CStatic.h>

#include "controls/ControlMessages.h"

using afxint::AskFor;

IMPLEMENT_DYNAMIC(CStatic, CWnd)

CStatic::CStatic() = default;

BOOL CStatic::Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(WC_STATIC, lpszText, dwStyle, rect, pParentWnd, nID);
}

HBITMAP CStatic::SetBitmap(HBITMAP hBitmap)
{
    return AskFor<HBITMAP>(m_hWnd, STM_SETIMAGE, IMAGE_BITMAP, hBitmap);
}

HBITMAP CStatic::GetBitmap() const
{
    return AskFor<HBITMAP>(m_hWnd, STM_GETIMAGE, IMAGE_BITMAP);
}

HICON CStatic::SetIcon(HICON hIcon)
{
    return AskFor<HICON>(m_hWnd, STM_SETICON, hIcon);
}

HICON CStatic::GetIcon() const
{
    return AskFor<HICON>(m_hWnd, STM_GETICON);
}

HENHMETAFILE CStatic::SetEnhMetaFile(HENHMETAFILE hMetaFile)
{
    return AskFor<HENHMETAFILE>(m_hWnd, STM_SETIMAGE, IMAGE_ENHMETAFILE, hMetaFile);
}

HENHMETAFILE CStatic::GetEnhMetaFile() const
{
    return AskFor<HENHMETAFILE>(m_hWnd, STM_GETIMAGE, IMAGE_ENHMETAFILE);
}

HCURSOR CStatic::SetCursor(HCURSOR hCursor)
{
    return AskFor<HCURSOR>(m_hWnd, STM_SETIMAGE, IMAGE_CURSOR, hCursor);
}

HCURSOR CStatic::GetCursor()
{
    return AskFor<HCURSOR>(m_hWnd, STM_GETIMAGE, IMAGE_CURSOR);
}

void CStatic::DrawItem(LPDRAWITEMSTRUCT)
{
}

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    if (CWnd::OnChildNotify(message, wParam, lParam, pLResult))
        return TRUE;
    return afxint::DrawOnRequest(*this, message, lParam);
}
