#include <classes/CHeaderCtrl.h>

#include "controls/ControlMessages.h"

using afxint::Ask;
using afxint::AskFor;
using afxint::AskForImageList;

namespace {

constexpr afxint::CommonControl kind = {WC_HEADER, ICC_LISTVIEW_CLASSES};

} // namespace

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)

CHeaderCtrl::CHeaderCtrl() = default;

BOOL CHeaderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return afxint::CreateControl(*this, kind, dwStyle, rect, pParentWnd, nID);
}

BOOL CHeaderCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                           UINT nID)
{
    return afxint::CreateControlEx(*this, kind, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

CImageList* CHeaderCtrl::GetImageList() const
{
    return AskForImageList(m_hWnd, HDM_GETIMAGELIST);
}

CImageList* CHeaderCtrl::SetImageList(CImageList* pImageList)
{
    return AskForImageList(m_hWnd, HDM_SETIMAGELIST, 0, pImageList->GetSafeHandle());
}

int CHeaderCtrl::GetItemCount() const
{
    return Ask(m_hWnd, HDM_GETITEMCOUNT);
}

BOOL CHeaderCtrl::GetItem(int nPos, HDITEM* pHeaderItem) const
{
    return Ask(m_hWnd, HDM_GETITEM, nPos, pHeaderItem);
}

BOOL CHeaderCtrl::SetItem(int nPos, HDITEM* pHeaderItem)
{
    return Ask(m_hWnd, HDM_SETITEM, nPos, pHeaderItem);
}

BOOL CHeaderCtrl::GetItemRect(int nIndex, LPRECT lpRect) const
{
    return Ask(m_hWnd, HDM_GETITEMRECT, nIndex, lpRect);
}

BOOL CHeaderCtrl::GetOrderArray(LPINT piArray, int iCount)
{
    return Ask(m_hWnd, HDM_GETORDERARRAY, iCount == -1 ? GetItemCount() : iCount, piArray);
}

BOOL CHeaderCtrl::SetOrderArray(int iCount, LPINT piArray)
{
    return Ask(m_hWnd, HDM_SETORDERARRAY, iCount, piArray);
}

int CHeaderCtrl::OrderToIndex(int nOrder) const
{
    return Ask(m_hWnd, HDM_ORDERTOINDEX, nOrder);
}

int CHeaderCtrl::GetBitmapMargin() const
{
    return Ask(m_hWnd, HDM_GETBITMAPMARGIN);
}

int CHeaderCtrl::SetBitmapMargin(int nWidth)
{
    return Ask(m_hWnd, HDM_SETBITMAPMARGIN, nWidth);
}

int CHeaderCtrl::InsertItem(int nPos, HDITEM* phdi)
{
    return Ask(m_hWnd, HDM_INSERTITEM, nPos, phdi);
}

BOOL CHeaderCtrl::DeleteItem(int nPos)
{
    return Ask(m_hWnd, HDM_DELETEITEM, nPos);
}

BOOL CHeaderCtrl::Layout(HDLAYOUT* pHeaderLayout)
{
    return Ask(m_hWnd, HDM_LAYOUT, 0, pHeaderLayout);
}

int CHeaderCtrl::HitTest(LPHDHITTESTINFO phdhti)
{
    return Ask(m_hWnd, HDM_HITTEST, 0, phdhti);
}

CImageList* CHeaderCtrl::CreateDragImage(int nIndex)
{
    return afxint::OwnedImageList(AskFor<HIMAGELIST>(m_hWnd, HDM_CREATEDRAGIMAGE, nIndex));
}

int CHeaderCtrl::SetHotDivider(CPoint pt)
{
    return Ask(m_hWnd, HDM_SETHOTDIVIDER, TRUE, MAKELPARAM(pt.x, pt.y));
}

int CHeaderCtrl::SetHotDivider(int nIndex)
{
    return Ask(m_hWnd, HDM_SETHOTDIVIDER, FALSE, nIndex);
}

int CHeaderCtrl::EditFilter(int iColumn, BOOL bDiscardChanges)
{
    return Ask(m_hWnd, HDM_EDITFILTER, iColumn, MAKELPARAM(bDiscardChanges, 0));
}

int CHeaderCtrl::ClearFilter(int nColumn)
{
    return Ask(m_hWnd, HDM_CLEARFILTER, nColumn);
}

int CHeaderCtrl::ClearAllFilters()
{
    return Ask(m_hWnd, HDM_CLEARFILTER, -1);
}

int CHeaderCtrl::SetFilterChangeTimeout(DWORD dwTimeOut)
{
    return Ask(m_hWnd, HDM_SETFILTERCHANGETIMEOUT, 0, dwTimeOut);
}

void CHeaderCtrl::DrawItem(LPDRAWITEMSTRUCT)
{
}

BOOL CHeaderCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    if (CWnd::OnChildNotify(message, wParam, lParam, pLResult))
        return TRUE;
    return afxint::DrawOnRequest(*this, message, lParam);
}
