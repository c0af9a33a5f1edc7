#include <classes/CListCtrl.h>

#include <classes/CEdit.h>
#include <classes/CHeaderCtrl.h>
#include <classes/CToolTipCtrl.h>

#include "controls/ControlMessages.h"

using afxint::Ask;

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

CListCtrl::CListCtrl() = default;

BOOL CListCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    afxint::NeedCommonControls(ICC_LISTVIEW_CLASSES);
    return CWnd::Create(WC_LISTVIEW, NULL, dwStyle, rect, pParentWnd, nID);
}

BOOL CListCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                         UINT nID)
{
    afxint::NeedCommonControls(ICC_LISTVIEW_CLASSES);
    return CWnd::CreateEx(dwExStyle, WC_LISTVIEW, NULL, dwStyle, rect, pParentWnd, nID);
}

COLORREF CListCtrl::GetBkColor() const
{
    return Ask(m_hWnd, LVM_GETBKCOLOR);
}

BOOL CListCtrl::SetBkColor(COLORREF cr)
{
    return Ask(m_hWnd, LVM_SETBKCOLOR, 0, cr);
}

COLORREF CListCtrl::GetTextColor() const
{
    return Ask(m_hWnd, LVM_GETTEXTCOLOR);
}

BOOL CListCtrl::SetTextColor(COLORREF cr)
{
    return Ask(m_hWnd, LVM_SETTEXTCOLOR, 0, cr);
}

COLORREF CListCtrl::GetTextBkColor() const
{
    return Ask(m_hWnd, LVM_GETTEXTBKCOLOR);
}

BOOL CListCtrl::SetTextBkColor(COLORREF cr)
{
    return Ask(m_hWnd, LVM_SETTEXTBKCOLOR, 0, cr);
}

COLORREF CListCtrl::GetOutlineColor() const
{
    return Ask(m_hWnd, LVM_GETOUTLINECOLOR);
}

COLORREF CListCtrl::SetOutlineColor(COLORREF color)
{
    return Ask(m_hWnd, LVM_SETOUTLINECOLOR, 0, color);
}

COLORREF CListCtrl::GetInsertMarkColor() const
{
    return Ask(m_hWnd, LVM_GETINSERTMARKCOLOR);
}

COLORREF CListCtrl::SetInsertMarkColor(COLORREF color)
{
    return Ask(m_hWnd, LVM_SETINSERTMARKCOLOR, 0, color);
}

CImageList* CListCtrl::GetImageList(int nImageList) const
{
    return CImageList::FromHandle((HIMAGELIST)Ask(m_hWnd, LVM_GETIMAGELIST, nImageList));
}

CImageList* CListCtrl::SetImageList(CImageList* pImageList, int nImageListType)
{
    return CImageList::FromHandle(
        (HIMAGELIST)Ask(m_hWnd, LVM_SETIMAGELIST, nImageListType, pImageList->GetSafeHandle()));
}

int CListCtrl::GetItemCount() const
{
    return Ask(m_hWnd, LVM_GETITEMCOUNT);
}

BOOL CListCtrl::GetItem(LVITEM* pItem) const
{
    return Ask(m_hWnd, LVM_GETITEM, 0, pItem);
}

BOOL CListCtrl::SetItem(const LVITEM* pItem)
{
    return Ask(m_hWnd, LVM_SETITEM, 0, pItem);
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage,
                        UINT nState, UINT nStateMask, LPARAM lParam)
{
    return SetItem(nItem, nSubItem, nMask, lpszItem, nImage, nState, nStateMask, lParam, 0);
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage,
                        UINT nState, UINT nStateMask, LPARAM lParam, int nIndent)
{
    LVITEM item = {};
    item.mask = nMask;
    item.iItem = nItem;
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.state = nState;
    item.stateMask = nStateMask;
    item.lParam = lParam;
    item.iIndent = nIndent;
    return SetItem(&item);
}

UINT CListCtrl::GetCallbackMask() const
{
    return Ask(m_hWnd, LVM_GETCALLBACKMASK);
}

BOOL CListCtrl::SetCallbackMask(UINT nMask)
{
    return Ask(m_hWnd, LVM_SETCALLBACKMASK, nMask);
}

int CListCtrl::GetNextItem(int nItem, int nFlags) const
{
    return Ask(m_hWnd, LVM_GETNEXTITEM, nItem, MAKELPARAM(nFlags, 0));
}

POSITION CListCtrl::GetFirstSelectedItemPosition() const
{
    // A position is the item's number counted from one, so that NULL is none.
    return (POSITION)(INT_PTR)(GetNextItem(-1, LVNI_SELECTED) + 1);
}

int CListCtrl::GetNextSelectedItem(POSITION& pos) const
{
    const int item = (int)(INT_PTR)pos - 1;
    pos = (POSITION)(INT_PTR)(GetNextItem(item, LVNI_SELECTED) + 1);
    return item;
}

BOOL CListCtrl::GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const
{
    lpRect->left = nCode;
    return Ask(m_hWnd, LVM_GETITEMRECT, nItem, lpRect);
}

BOOL CListCtrl::GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref)
{
    RECT bounds = {nArea, iSubItem, 0, 0};
    if (!Ask(m_hWnd, LVM_GETSUBITEMRECT, iItem, &bounds))
        return FALSE;
    ref = bounds;
    return TRUE;
}

BOOL CListCtrl::GetItemPosition(int nItem, LPPOINT lpPoint) const
{
    return Ask(m_hWnd, LVM_GETITEMPOSITION, nItem, lpPoint);
}

BOOL CListCtrl::SetItemPosition(int nItem, POINT pt)
{
    // The message without "32" has only 16 bits for each coordinate.
    return Ask(m_hWnd, LVM_SETITEMPOSITION32, nItem, &pt);
}

BOOL CListCtrl::GetItemSpacing(BOOL fSmall, int* pnHorzSpacing, int* pnVertSpacing) const
{
    const LRESULT words = Ask(m_hWnd, LVM_GETITEMSPACING, fSmall);
    *pnHorzSpacing = LOWORD(words);
    *pnVertSpacing = HIWORD(words);
    return words != 0;
}

int CListCtrl::GetStringWidth(LPCTSTR lpsz) const
{
    return Ask(m_hWnd, LVM_GETSTRINGWIDTH, 0, lpsz);
}

CEdit* CListCtrl::GetEditControl() const
{
    return (CEdit*)CWnd::FromHandle((HWND)Ask(m_hWnd, LVM_GETEDITCONTROL));
}

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

BOOL CListCtrl::GetCheck(int nItem) const
{
    // State image 1 is the empty box, 2 the checked one; 0 is no box at all.
    return (GetItemState(nItem, LVIS_STATEIMAGEMASK) >> 12) > 1;
}

BOOL CListCtrl::SetCheck(int nItem, BOOL fCheck)
{
    return SetItemState(nItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1), LVIS_STATEIMAGEMASK);
}

UINT CListCtrl::GetItemState(int nItem, UINT nMask) const
{
    return Ask(m_hWnd, LVM_GETITEMSTATE, nItem, nMask);
}

BOOL CListCtrl::SetItemState(int nItem, LVITEM* pItem)
{
    return Ask(m_hWnd, LVM_SETITEMSTATE, nItem, pItem);
}

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask)
{
    LVITEM item = {};
    item.state = nState;
    item.stateMask = nMask;
    return SetItemState(nItem, &item);
}

CString CListCtrl::GetItemText(int nItem, int nSubItem) const
{
    // The control does not tell a text's length, so the room grows until the text fits.
    CString text;
    for (int room = 128;; room *= 2) {
        const int length = GetItemText(nItem, nSubItem, text.GetBufferSetLength(room), room);
        text.ReleaseBuffer();
        if (length < room - 1)
            return text;
    }
}

int CListCtrl::GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const
{
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.pszText = lpszText;
    item.cchTextMax = nLen;
    *lpszText = 0;
    return Ask(m_hWnd, LVM_GETITEMTEXT, nItem, &item);
}

BOOL CListCtrl::SetItemText(int nItem, int nSubItem, LPCTSTR lpszText)
{
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPTSTR>(lpszText);
    return Ask(m_hWnd, LVM_SETITEMTEXT, nItem, &item);
}

DWORD_PTR CListCtrl::GetItemData(int nItem) const
{
    LVITEM item = {};
    item.mask = LVIF_PARAM;
    item.iItem = nItem;
    GetItem(&item);
    return item.lParam;
}

BOOL CListCtrl::SetItemData(int nItem, DWORD_PTR dwData)
{
    return SetItem(nItem, 0, LVIF_PARAM, NULL, 0, 0, 0, dwData);
}

void CListCtrl::SetItemCount(int nItems)
{
    Ask(m_hWnd, LVM_SETITEMCOUNT, nItems);
}

BOOL CListCtrl::SetItemCountEx(int iCount, DWORD dwFlags)
{
    return Ask(m_hWnd, LVM_SETITEMCOUNT, iCount, dwFlags);
}

UINT CListCtrl::GetSelectedCount() const
{
    return Ask(m_hWnd, LVM_GETSELECTEDCOUNT);
}

int CListCtrl::GetSelectionMark()
{
    return Ask(m_hWnd, LVM_GETSELECTIONMARK);
}

int CListCtrl::SetSelectionMark(int iIndex)
{
    return Ask(m_hWnd, LVM_SETSELECTIONMARK, 0, iIndex);
}

UINT CListCtrl::GetSelectedColumn() const
{
    return Ask(m_hWnd, LVM_GETSELECTEDCOLUMN);
}

LRESULT CListCtrl::SetSelectedColumn(int iCol)
{
    return Ask(m_hWnd, LVM_SETSELECTEDCOLUMN, iCol);
}

int CListCtrl::GetTopIndex() const
{
    return Ask(m_hWnd, LVM_GETTOPINDEX);
}

int CListCtrl::GetCountPerPage() const
{
    return Ask(m_hWnd, LVM_GETCOUNTPERPAGE);
}

BOOL CListCtrl::GetOrigin(LPPOINT lpPoint) const
{
    return Ask(m_hWnd, LVM_GETORIGIN, 0, lpPoint);
}

BOOL CListCtrl::GetViewRect(LPRECT lpRect) const
{
    return Ask(m_hWnd, LVM_GETVIEWRECT, 0, lpRect);
}

DWORD CListCtrl::GetView() const
{
    return Ask(m_hWnd, LVM_GETVIEW);
}

DWORD CListCtrl::SetView(int iView)
{
    return Ask(m_hWnd, LVM_SETVIEW, iView);
}

CSize CListCtrl::SetIconSpacing(int cx, int cy)
{
    return afxint::SizeOfWords(Ask(m_hWnd, LVM_SETICONSPACING, 0, MAKELPARAM(cx, cy)));
}

CSize CListCtrl::SetIconSpacing(CSize size)
{
    return SetIconSpacing(size.cx, size.cy);
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl()
{
    return (CHeaderCtrl*)CWnd::FromHandle((HWND)Ask(m_hWnd, LVM_GETHEADER));
}

DWORD CListCtrl::GetExtendedStyle()
{
    return Ask(m_hWnd, LVM_GETEXTENDEDLISTVIEWSTYLE);
}

DWORD CListCtrl::SetExtendedStyle(DWORD dwNewStyle)
{
    return Ask(m_hWnd, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, dwNewStyle);
}

int CListCtrl::GetHotItem()
{
    return Ask(m_hWnd, LVM_GETHOTITEM);
}

int CListCtrl::SetHotItem(int iIndex)
{
    return Ask(m_hWnd, LVM_SETHOTITEM, iIndex);
}

HCURSOR CListCtrl::GetHotCursor()
{
    return (HCURSOR)Ask(m_hWnd, LVM_GETHOTCURSOR);
}

HCURSOR CListCtrl::SetHotCursor(HCURSOR hc)
{
    return (HCURSOR)Ask(m_hWnd, LVM_SETHOTCURSOR, 0, hc);
}

DWORD CListCtrl::GetHoverTime() const
{
    return Ask(m_hWnd, LVM_GETHOVERTIME);
}

DWORD CListCtrl::SetHoverTime(DWORD dwHoverTime)
{
    return Ask(m_hWnd, LVM_SETHOVERTIME, 0, dwHoverTime);
}

UINT CListCtrl::GetNumberOfWorkAreas() const
{
    UINT count = 0;
    Ask(m_hWnd, LVM_GETNUMBEROFWORKAREAS, 0, &count);
    return count;
}

void CListCtrl::GetWorkAreas(int nWorkAreas, LPRECT pRect) const
{
    Ask(m_hWnd, LVM_GETWORKAREAS, nWorkAreas, pRect);
}

void CListCtrl::SetWorkAreas(int nWorkAreas, LPRECT lpRect)
{
    Ask(m_hWnd, LVM_SETWORKAREAS, nWorkAreas, lpRect);
}

BOOL CListCtrl::GetBkImage(LVBKIMAGE* plvbkImage) const
{
    return Ask(m_hWnd, LVM_GETBKIMAGE, 0, plvbkImage);
}

BOOL CListCtrl::SetBkImage(LVBKIMAGE* plvbkImage)
{
    return Ask(m_hWnd, LVM_SETBKIMAGE, 0, plvbkImage);
}

BOOL CListCtrl::SetBkImage(HBITMAP hbm, BOOL fTile, int xOffsetPercent, int yOffsetPercent)
{
    LVBKIMAGE image = {};
    image.ulFlags = LVBKIF_SOURCE_HBITMAP | (fTile ? LVBKIF_STYLE_TILE : LVBKIF_STYLE_NORMAL);
    image.hbm = hbm;
    image.xOffsetPercent = xOffsetPercent;
    image.yOffsetPercent = yOffsetPercent;
    return SetBkImage(&image);
}

BOOL CListCtrl::SetBkImage(LPTSTR pszUrl, BOOL fTile, int xOffsetPercent, int yOffsetPercent)
{
    LVBKIMAGE image = {};
    image.ulFlags = LVBKIF_SOURCE_URL | (fTile ? LVBKIF_STYLE_TILE : LVBKIF_STYLE_NORMAL);
    image.pszImage = pszUrl;
    image.xOffsetPercent = xOffsetPercent;
    image.yOffsetPercent = yOffsetPercent;
    return SetBkImage(&image);
}

CToolTipCtrl* CListCtrl::GetToolTips() const
{
    return (CToolTipCtrl*)CWnd::FromHandle((HWND)Ask(m_hWnd, LVM_GETTOOLTIPS));
}

CToolTipCtrl* CListCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    return (CToolTipCtrl*)CWnd::FromHandle(
        (HWND)Ask(m_hWnd, LVM_SETTOOLTIPS, pWndTip->GetSafeHwnd()));
}

BOOL CListCtrl::SetInfoTip(PLVSETINFOTIP plvInfoTip)
{
    return Ask(m_hWnd, LVM_SETINFOTIP, 0, plvInfoTip);
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

UINT CListCtrl::MapIDToIndex(UINT id) const
{
    return Ask(m_hWnd, LVM_MAPIDTOINDEX, id);
}

UINT CListCtrl::MapIndexToID(UINT index) const
{
    return Ask(m_hWnd, LVM_MAPINDEXTOID, index);
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

int CListCtrl::InsertItem(const LVITEM* pItem)
{
    return Ask(m_hWnd, LVM_INSERTITEM, 0, pItem);
}

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem)
{
    return InsertItem(LVIF_TEXT, nItem, lpszItem, 0, 0, 0, 0);
}

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage)
{
    return InsertItem(LVIF_TEXT | LVIF_IMAGE, nItem, lpszItem, 0, 0, nImage, 0);
}

int CListCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask,
                          int nImage, LPARAM lParam)
{
    LVITEM item = {};
    item.mask = nMask;
    item.iItem = nItem;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.state = nState;
    item.stateMask = nStateMask;
    item.iImage = nImage;
    item.lParam = lParam;
    return InsertItem(&item);
}

BOOL CListCtrl::DeleteItem(int nItem)
{
    return Ask(m_hWnd, LVM_DELETEITEM, nItem);
}

BOOL CListCtrl::DeleteAllItems()
{
    return Ask(m_hWnd, LVM_DELETEALLITEMS);
}

int CListCtrl::FindItem(LVFINDINFO* pFindInfo, int nStart) const
{
    return Ask(m_hWnd, LVM_FINDITEM, nStart, pFindInfo);
}

int CListCtrl::HitTest(LVHITTESTINFO* pHitTestInfo) const
{
    return Ask(m_hWnd, LVM_HITTEST, 0, pHitTestInfo);
}

int CListCtrl::HitTest(CPoint pt, UINT* pFlags) const
{
    LVHITTESTINFO hit = {};
    hit.pt = pt;
    const int item = HitTest(&hit);
    if (pFlags != NULL)
        *pFlags = hit.flags;
    return item;
}

int CListCtrl::SubItemHitTest(LPLVHITTESTINFO pInfo)
{
    return Ask(m_hWnd, LVM_SUBITEMHITTEST, 0, pInfo);
}

int CListCtrl::InsertMarkHitTest(LPPOINT pPoint, LPLVINSERTMARK lvim) const
{
    return Ask(m_hWnd, LVM_INSERTMARKHITTEST, pPoint, lvim);
}

BOOL CListCtrl::EnsureVisible(int nItem, BOOL bPartialOK)
{
    return Ask(m_hWnd, LVM_ENSUREVISIBLE, nItem, MAKELPARAM(bPartialOK, 0));
}

BOOL CListCtrl::Scroll(CSize size)
{
    return Ask(m_hWnd, LVM_SCROLL, size.cx, size.cy);
}

BOOL CListCtrl::RedrawItems(int nFirst, int nLast)
{
    return Ask(m_hWnd, LVM_REDRAWITEMS, nFirst, nLast);
}

BOOL CListCtrl::Arrange(UINT nCode)
{
    return Ask(m_hWnd, LVM_ARRANGE, nCode);
}

CEdit* CListCtrl::EditLabel(int nItem)
{
    return (CEdit*)CWnd::FromHandle((HWND)Ask(m_hWnd, LVM_EDITLABEL, nItem));
}

void CListCtrl::CancelEditLabel()
{
    Ask(m_hWnd, LVM_CANCELEDITLABEL);
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

CImageList* CListCtrl::CreateDragImage(int nItem, LPPOINT lpPoint)
{
    return afxint::OwnedImageList((HIMAGELIST)Ask(m_hWnd, LVM_CREATEDRAGIMAGE, nItem, lpPoint));
}

BOOL CListCtrl::Update(int nItem)
{
    return Ask(m_hWnd, LVM_UPDATE, nItem);
}

BOOL CListCtrl::SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData)
{
    return Ask(m_hWnd, LVM_SORTITEMS, dwData, pfnCompare);
}

BOOL CListCtrl::SortItemsEx(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData)
{
    return Ask(m_hWnd, LVM_SORTITEMSEX, dwData, pfnCompare);
}

CSize CListCtrl::ApproximateViewRect(CSize sz, int iCount) const
{
    return afxint::SizeOfWords(
        Ask(m_hWnd, LVM_APPROXIMATEVIEWRECT, iCount, MAKELPARAM(sz.cx, sz.cy)));
}

void CListCtrl::DrawItem(LPDRAWITEMSTRUCT)
{
}

BOOL CListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    if (CWnd::OnChildNotify(message, wParam, lParam, pLResult))
        return TRUE;
    if (message != WM_DRAWITEM)
        return FALSE;
    DrawItem((LPDRAWITEMSTRUCT)lParam);
    return TRUE;
}
