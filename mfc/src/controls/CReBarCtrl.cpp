#include <classes/CReBarCtrl.h>

#include <classes/CPalette.h>
#include <classes/CToolTipCtrl.h>

#include "controls/ControlMessages.h"
#include "controls/LaterMessages.h"

using afxint::Ask;
using afxint::AskFor;
using afxint::AskForImageList;
using afxint::AskForWindow;

namespace {

constexpr afxint::CommonControl kind = {REBARCLASSNAME, ICC_COOL_CLASSES};

} // namespace

IMPLEMENT_DYNAMIC(CReBarCtrl, CWnd)

CReBarCtrl::CReBarCtrl() = default;

BOOL CReBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return afxint::CreateControl(*this, kind, dwStyle, rect, pParentWnd, nID);
}

BOOL CReBarCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID)
{
    return afxint::CreateControlEx(*this, kind, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

UINT CReBarCtrl::GetBandCount() const
{
    return Ask(m_hWnd, RB_GETBANDCOUNT);
}

BOOL CReBarCtrl::GetBandInfo(UINT uBand, REBARBANDINFO* prbbi) const
{
    return Ask(m_hWnd, RB_GETBANDINFO, uBand, prbbi);
}

BOOL CReBarCtrl::SetBandInfo(UINT uBand, REBARBANDINFO* prbbi)
{
    return Ask(m_hWnd, RB_SETBANDINFO, uBand, prbbi);
}

UINT CReBarCtrl::GetBarHeight() const
{
    return Ask(m_hWnd, RB_GETBARHEIGHT);
}

BOOL CReBarCtrl::GetBarInfo(REBARINFO* prbi) const
{
    return Ask(m_hWnd, RB_GETBARINFO, 0, prbi);
}

BOOL CReBarCtrl::SetBarInfo(REBARINFO* prbi)
{
    return Ask(m_hWnd, RB_SETBARINFO, 0, prbi);
}

COLORREF CReBarCtrl::GetBkColor() const
{
    return Ask(m_hWnd, RB_GETBKCOLOR);
}

COLORREF CReBarCtrl::SetBkColor(COLORREF clr)
{
    return Ask(m_hWnd, RB_SETBKCOLOR, 0, clr);
}

COLORREF CReBarCtrl::GetTextColor() const
{
    return Ask(m_hWnd, RB_GETTEXTCOLOR);
}

COLORREF CReBarCtrl::SetTextColor(COLORREF clr)
{
    return Ask(m_hWnd, RB_SETTEXTCOLOR, 0, clr);
}

BOOL CReBarCtrl::GetColorScheme(COLORSCHEME* lpcs)
{
    return Ask(m_hWnd, RB_GETCOLORSCHEME, 0, lpcs);
}

void CReBarCtrl::SetColorScheme(const COLORSCHEME* lpcs)
{
    Ask(m_hWnd, RB_SETCOLORSCHEME, 0, lpcs);
}

DWORD CReBarCtrl::GetExtendedStyle() const
{
    return Ask(m_hWnd, RB_GETEXTENDEDSTYLE);
}

DWORD CReBarCtrl::SetExtendedStyle(DWORD dwMask, DWORD dwStyleEx)
{
    return Ask(m_hWnd, RB_SETEXTENDEDSTYLE, dwMask, dwStyleEx);
}

UINT CReBarCtrl::GetRowCount() const
{
    return Ask(m_hWnd, RB_GETROWCOUNT);
}

UINT CReBarCtrl::GetRowHeight(UINT uRow) const
{
    return Ask(m_hWnd, RB_GETROWHEIGHT, uRow);
}

BOOL CReBarCtrl::GetRect(UINT uBand, LPRECT prc) const
{
    return Ask(m_hWnd, RB_GETRECT, uBand, prc);
}

void CReBarCtrl::GetBandBorders(UINT uBand, LPRECT prc) const
{
    Ask(m_hWnd, RB_GETBANDBORDERS, uBand, prc);
}

void CReBarCtrl::GetBandMargins(PMARGINS pMargins)
{
    Ask(m_hWnd, RB_GETBANDMARGINS, 0, pMargins);
}

CImageList* CReBarCtrl::GetImageList() const
{
    REBARINFO info = {sizeof(info), RBIM_IMAGELIST, NULL};
    return GetBarInfo(&info) ? CImageList::FromHandle(info.himl) : NULL;
}

BOOL CReBarCtrl::SetImageList(CImageList* pImageList)
{
    REBARINFO info = {sizeof(info), RBIM_IMAGELIST, pImageList->GetSafeHandle()};
    return SetBarInfo(&info);
}

CToolTipCtrl* CReBarCtrl::GetToolTips() const
{
    return AskForWindow<CToolTipCtrl>(m_hWnd, RB_GETTOOLTIPS);
}

void CReBarCtrl::SetToolTips(CToolTipCtrl* pToolTip)
{
    Ask(m_hWnd, RB_SETTOOLTIPS, pToolTip->GetSafeHwnd());
}

CPalette* CReBarCtrl::GetPalette() const
{
    return CPalette::FromHandle(AskFor<HPALETTE>(m_hWnd, RB_GETPALETTE));
}

CPalette* CReBarCtrl::SetPalette(HPALETTE hPal)
{
    return CPalette::FromHandle(AskFor<HPALETTE>(m_hWnd, RB_SETPALETTE, 0, hPal));
}

CWnd* CReBarCtrl::SetOwner(CWnd* pWnd)
{
    return AskForWindow<CWnd>(m_hWnd, RB_SETPARENT, pWnd->GetSafeHwnd());
}

IDropTarget* CReBarCtrl::GetDropTarget() const
{
    IDropTarget* target = NULL;
    Ask(m_hWnd, RB_GETDROPTARGET, 0, &target);
    return target;
}

HRESULT CReBarCtrl::SetWindowTheme(LPCWSTR pszSubAppName)
{
    return Ask(m_hWnd, RB_SETWINDOWTHEME, 0, pszSubAppName);
}

BOOL CReBarCtrl::SetBandWidth(UINT uBand, int cxWidth)
{
    return Ask(m_hWnd, RB_SETBANDWIDTH, uBand, cxWidth);
}

BOOL CReBarCtrl::InsertBand(UINT uIndex, REBARBANDINFO* prbbi)
{
    return Ask(m_hWnd, RB_INSERTBAND, uIndex, prbbi);
}

BOOL CReBarCtrl::DeleteBand(UINT uBand)
{
    return Ask(m_hWnd, RB_DELETEBAND, uBand);
}

BOOL CReBarCtrl::MoveBand(UINT uFrom, UINT uTo)
{
    return Ask(m_hWnd, RB_MOVEBAND, uFrom, uTo);
}

BOOL CReBarCtrl::ShowBand(UINT uBand, BOOL fShow)
{
    return Ask(m_hWnd, RB_SHOWBAND, uBand, fShow);
}

void CReBarCtrl::MinimizeBand(UINT uBand)
{
    Ask(m_hWnd, RB_MINIMIZEBAND, uBand);
}

void CReBarCtrl::MaximizeBand(UINT uBand)
{
    Ask(m_hWnd, RB_MAXIMIZEBAND, uBand);
}

void CReBarCtrl::RestoreBand(UINT uBand)
{
    Ask(m_hWnd, RB_MAXIMIZEBAND, uBand, TRUE);
}

int CReBarCtrl::IDToIndex(UINT uBandID) const
{
    return Ask(m_hWnd, RB_IDTOINDEX, uBandID);
}

int CReBarCtrl::HitTest(RBHITTESTINFO* prbht)
{
    return Ask(m_hWnd, RB_HITTEST, 0, prbht);
}

BOOL CReBarCtrl::SizeToRect(CRect& rect)
{
    return Ask(m_hWnd, RB_SIZETORECT, 0, static_cast<LPRECT>(rect));
}

void CReBarCtrl::BeginDrag(UINT uBand, DWORD dwPos)
{
    Ask(m_hWnd, RB_BEGINDRAG, uBand, dwPos);
}

void CReBarCtrl::DragMove(DWORD dwPos)
{
    Ask(m_hWnd, RB_DRAGMOVE, 0, dwPos);
}

void CReBarCtrl::EndDrag()
{
    Ask(m_hWnd, RB_ENDDRAG);
}

void CReBarCtrl::PushChevron(UINT uBand, LPARAM lAppValue)
{
    Ask(m_hWnd, RB_PUSHCHEVRON, uBand, lAppValue);
}
