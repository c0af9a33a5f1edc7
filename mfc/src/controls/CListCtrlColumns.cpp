// The columns of a list.
#include <classes/CListCtrl.h>

#include <classes/CHeaderCtrl.h>

#include "controls/ControlMessages.h"

using afxint::Ask;
using afxint::AskForWindow;

BOOL CListCtrl::GetColumn(int nCol, LVCOLUMN* pColumn) const
{
    return Ask(m_hWnd, LVM_GETCOLUMN, nCol, pColumn);
}

BOOL CListCtrl::SetColumn(int nCol, const LVCOLUMN* pColumn)
{
    return Ask(m_hWnd, LVM_SETCOLUMN, nCol, pColumn);
}

int CListCtrl::GetColumnWidth(int nCol) const
{
    return Ask(m_hWnd, LVM_GETCOLUMNWIDTH, nCol);
}

BOOL CListCtrl::SetColumnWidth(int nCol, int cx)
{
    return Ask(m_hWnd, LVM_SETCOLUMNWIDTH, nCol, MAKELPARAM(cx, 0));
}

BOOL CListCtrl::GetColumnOrderArray(LPINT piArray, int iCount)
{
    if (iCount == -1)
        iCount = GetHeaderCtrl()->GetItemCount();
    return Ask(m_hWnd, LVM_GETCOLUMNORDERARRAY, iCount, piArray);
}

BOOL CListCtrl::SetColumnOrderArray(int iCount, LPINT piArray)
{
    return Ask(m_hWnd, LVM_SETCOLUMNORDERARRAY, iCount, piArray);
}

UINT CListCtrl::GetSelectedColumn() const
{
    return Ask(m_hWnd, LVM_GETSELECTEDCOLUMN);
}

LRESULT CListCtrl::SetSelectedColumn(int iCol)
{
    return Ask(m_hWnd, LVM_SETSELECTEDCOLUMN, iCol);
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl()
{
    return AskForWindow<CHeaderCtrl>(m_hWnd, LVM_GETHEADER);
}

int CListCtrl::InsertColumn(int nCol, const LVCOLUMN* pColumn)
{
    return Ask(m_hWnd, LVM_INSERTCOLUMN, nCol, pColumn);
}

int CListCtrl::InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat, int nWidth,
                            int nSubItem)
{
    LVCOLUMN column = {};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.pszText = const_cast<LPTSTR>(lpszColumnHeading);
    column.fmt = nFormat;
    if (nWidth != -1) {
        column.mask |= LVCF_WIDTH;
        column.cx = nWidth;
    }
    if (nSubItem != -1) {
        column.mask |= LVCF_SUBITEM;
        column.iSubItem = nSubItem;
    }
    return InsertColumn(nCol, &column);
}

BOOL CListCtrl::DeleteColumn(int nCol)
{
    return Ask(m_hWnd, LVM_DELETECOLUMN, nCol);
}
