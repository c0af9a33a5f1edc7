// A list of its own: its origin, its look, and the places of its items.
#include <classes/CListCtrl.h>

#include <classes/CToolTipCtrl.h>

#include "controls/ControlMessages.h"

using afxint::Ask;
using afxint::AskFor;
using afxint::AskForImageList;
using afxint::AskForWindow;

namespace {

constexpr afxint::CommonControl kind = {WC_LISTVIEW, ICC_LISTVIEW_CLASSES};

} // namespace

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

CListCtrl::CListCtrl() = default;

BOOL CListCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return afxint::CreateControl(*this, kind, dwStyle, rect, pParentWnd, nID);
}

BOOL CListCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                         UINT nID)
{
    return afxint::CreateControlEx(*this, kind, dwExStyle, dwStyle, rect, pParentWnd, nID);
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

CImageList* CListCtrl::GetImageList(int nImageList) const
{
    return AskForImageList(m_hWnd, LVM_GETIMAGELIST, nImageList);
}

CImageList* CListCtrl::SetImageList(CImageList* pImageList, int nImageListType)
{
    return AskForImageList(m_hWnd, LVM_SETIMAGELIST, nImageListType, pImageList->GetSafeHandle());
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

DWORD CListCtrl::GetExtendedStyle()
{
    return Ask(m_hWnd, LVM_GETEXTENDEDLISTVIEWSTYLE);
}

DWORD CListCtrl::SetExtendedStyle(DWORD dwNewStyle)
{
    return Ask(m_hWnd, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, dwNewStyle);
}

HCURSOR CListCtrl::GetHotCursor()
{
    return AskFor<HCURSOR>(m_hWnd, LVM_GETHOTCURSOR);
}

HCURSOR CListCtrl::SetHotCursor(HCURSOR hc)
{
    return AskFor<HCURSOR>(m_hWnd, LVM_SETHOTCURSOR, 0, hc);
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
    return AskForWindow<CToolTipCtrl>(m_hWnd, LVM_GETTOOLTIPS);
}

CToolTipCtrl* CListCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    return AskForWindow<CToolTipCtrl>(m_hWnd, LVM_SETTOOLTIPS, pWndTip->GetSafeHwnd());
}

BOOL CListCtrl::SetInfoTip(PLVSETINFOTIP plvInfoTip)
{
    return Ask(m_hWnd, LVM_SETINFOTIP, 0, plvInfoTip);
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

CImageList* CListCtrl::CreateDragImage(int nItem, LPPOINT lpPoint)
{
    return afxint::OwnedImageList(AskFor<HIMAGELIST>(m_hWnd, LVM_CREATEDRAGIMAGE, nItem, lpPoint));
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
    return afxint::DrawOnRequest(*this, message, lParam);
}
