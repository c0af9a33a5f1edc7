// Groups, tiles and the insertion mark of a list.
#include <classes/CListCtrl.h>

#include "controls/ControlMessages.h"

using afxint::Ask;

COLORREF CListCtrl::GetInsertMarkColor() const
{
    return Ask(m_hWnd, LVM_GETINSERTMARKCOLOR);
}

COLORREF CListCtrl::SetInsertMarkColor(COLORREF color)
{
    return Ask(m_hWnd, LVM_SETINSERTMARKCOLOR, 0, color);
}

BOOL CListCtrl::GetTileInfo(PLVTILEINFO plvti) const
{
    return Ask(m_hWnd, LVM_GETTILEINFO, 0, plvti);
}

BOOL CListCtrl::SetTileInfo(PLVTILEINFO pti)
{
    return Ask(m_hWnd, LVM_SETTILEINFO, 0, pti);
}

BOOL CListCtrl::GetTileViewInfo(PLVTILEVIEWINFO ptvi) const
{
    return Ask(m_hWnd, LVM_GETTILEVIEWINFO, 0, ptvi);
}

BOOL CListCtrl::SetTileViewInfo(PLVTILEVIEWINFO ptvi)
{
    return Ask(m_hWnd, LVM_SETTILEVIEWINFO, 0, ptvi);
}

BOOL CListCtrl::GetInsertMark(LPLVINSERTMARK lvim) const
{
    return Ask(m_hWnd, LVM_GETINSERTMARK, 0, lvim);
}

BOOL CListCtrl::SetInsertMark(LPLVINSERTMARK lvim)
{
    return Ask(m_hWnd, LVM_SETINSERTMARK, 0, lvim);
}

int CListCtrl::GetInsertMarkRect(LPRECT pRect) const
{
    return Ask(m_hWnd, LVM_GETINSERTMARKRECT, 0, pRect);
}

LRESULT CListCtrl::EnableGroupView(BOOL fEnable)
{
    return Ask(m_hWnd, LVM_ENABLEGROUPVIEW, fEnable);
}

BOOL CListCtrl::IsGroupViewEnabled() const
{
    return Ask(m_hWnd, LVM_ISGROUPVIEWENABLED);
}

BOOL CListCtrl::HasGroup(int iGroupId) const
{
    return Ask(m_hWnd, LVM_HASGROUP, iGroupId);
}

LRESULT CListCtrl::InsertGroup(int index, PLVGROUP pgrp)
{
    return Ask(m_hWnd, LVM_INSERTGROUP, index, pgrp);
}

LRESULT CListCtrl::InsertGroupSorted(PLVINSERTGROUPSORTED pStructInsert)
{
    return Ask(m_hWnd, LVM_INSERTGROUPSORTED, pStructInsert);
}

LRESULT CListCtrl::MoveGroup(int iGroupId, int toIndex)
{
    return Ask(m_hWnd, LVM_MOVEGROUP, iGroupId, toIndex);
}

void CListCtrl::MoveItemToGroup(int idItemFrom, int idGroupTo)
{
    Ask(m_hWnd, LVM_MOVEITEMTOGROUP, idItemFrom, idGroupTo);
}

LRESULT CListCtrl::RemoveGroup(int iGroupId)
{
    return Ask(m_hWnd, LVM_REMOVEGROUP, iGroupId);
}

void CListCtrl::RemoveAllGroups()
{
    Ask(m_hWnd, LVM_REMOVEALLGROUPS);
}

int CListCtrl::GetGroupInfo(int iGroupId, PLVGROUP pgrp) const
{
    return Ask(m_hWnd, LVM_GETGROUPINFO, iGroupId, pgrp);
}

int CListCtrl::SetGroupInfo(int iGroupId, PLVGROUP pgrp)
{
    return Ask(m_hWnd, LVM_SETGROUPINFO, iGroupId, pgrp);
}

void CListCtrl::GetGroupMetrics(PLVGROUPMETRICS pGroupMetrics) const
{
    Ask(m_hWnd, LVM_GETGROUPMETRICS, 0, pGroupMetrics);
}

void CListCtrl::SetGroupMetrics(PLVGROUPMETRICS pGroupMetrics)
{
    Ask(m_hWnd, LVM_SETGROUPMETRICS, 0, pGroupMetrics);
}

BOOL CListCtrl::SortGroups(PFNLVGROUPCOMPARE _pfnGroupCompare, LPVOID _plv)
{
    return Ask(m_hWnd, LVM_SORTGROUPS, _pfnGroupCompare, _plv);
}

int CListCtrl::InsertMarkHitTest(LPPOINT pPoint, LPLVINSERTMARK lvim) const
{
    return Ask(m_hWnd, LVM_INSERTMARKHITTEST, pPoint, lvim);
}
