#include <classes/CToolBarCtrl.h>

#include <classes/CBitmap.h>
#include <classes/CToolTipCtrl.h>
#include <classes/Modules.h>

#include "controls/ControlMessages.h"
#include "controls/LaterMessages.h"

using afxint::Ask;
using afxint::AskForImageList;
using afxint::AskForWindow;

namespace {

constexpr afxint::CommonControl kind = {TOOLBARCLASSNAME, ICC_BAR_CLASSES};

} // namespace

IMPLEMENT_DYNAMIC(CToolBarCtrl, CWnd)

CToolBarCtrl::CToolBarCtrl() = default;

BOOL CToolBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CToolBarCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                            UINT nID)
{
    if (!afxint::CreateControlEx(*this, kind, dwExStyle, dwStyle, rect, pParentWnd, nID))
        return FALSE;
    SetButtonStructSize(sizeof(TBBUTTON));
    return TRUE;
}

BOOL CToolBarCtrl::IsButtonEnabled(int nID) const
{
    return Ask(m_hWnd, TB_ISBUTTONENABLED, nID);
}

BOOL CToolBarCtrl::IsButtonChecked(int nID) const
{
    return Ask(m_hWnd, TB_ISBUTTONCHECKED, nID);
}

BOOL CToolBarCtrl::IsButtonPressed(int nID) const
{
    return Ask(m_hWnd, TB_ISBUTTONPRESSED, nID);
}

BOOL CToolBarCtrl::IsButtonHidden(int nID) const
{
    return Ask(m_hWnd, TB_ISBUTTONHIDDEN, nID);
}

BOOL CToolBarCtrl::IsButtonIndeterminate(int nID) const
{
    return Ask(m_hWnd, TB_ISBUTTONINDETERMINATE, nID);
}

BOOL CToolBarCtrl::IsButtonHighlighted(int nID) const
{
    return Ask(m_hWnd, TB_ISBUTTONHIGHLIGHTED, nID);
}

BOOL CToolBarCtrl::EnableButton(int nID, BOOL bEnable)
{
    return Ask(m_hWnd, TB_ENABLEBUTTON, nID, MAKELPARAM(bEnable, 0));
}

BOOL CToolBarCtrl::CheckButton(int nID, BOOL bCheck)
{
    return Ask(m_hWnd, TB_CHECKBUTTON, nID, MAKELPARAM(bCheck, 0));
}

BOOL CToolBarCtrl::PressButton(int nID, BOOL bPress)
{
    return Ask(m_hWnd, TB_PRESSBUTTON, nID, MAKELPARAM(bPress, 0));
}

BOOL CToolBarCtrl::HideButton(int nID, BOOL bHide)
{
    return Ask(m_hWnd, TB_HIDEBUTTON, nID, MAKELPARAM(bHide, 0));
}

BOOL CToolBarCtrl::Indeterminate(int nID, BOOL bIndeterminate)
{
    return Ask(m_hWnd, TB_INDETERMINATE, nID, MAKELPARAM(bIndeterminate, 0));
}

BOOL CToolBarCtrl::MarkButton(int nID, BOOL fHighlight)
{
    return Ask(m_hWnd, TB_MARKBUTTON, nID, MAKELPARAM(fHighlight, 0));
}

int CToolBarCtrl::GetState(int nID) const
{
    return Ask(m_hWnd, TB_GETSTATE, nID);
}

BOOL CToolBarCtrl::SetState(int nID, UINT nState)
{
    return Ask(m_hWnd, TB_SETSTATE, nID, MAKELPARAM(nState, 0));
}

int CToolBarCtrl::GetButtonInfo(int nID, TBBUTTONINFO* ptbbi) const
{
    return Ask(m_hWnd, TB_GETBUTTONINFO, nID, ptbbi);
}

BOOL CToolBarCtrl::SetButtonInfo(int nID, TBBUTTONINFO* ptbbi)
{
    return Ask(m_hWnd, TB_SETBUTTONINFO, nID, ptbbi);
}

BOOL CToolBarCtrl::GetRect(int nID, LPRECT lpRect) const
{
    return Ask(m_hWnd, TB_GETRECT, nID, lpRect);
}

CString CToolBarCtrl::GetButtonText(int idButton) const
{
    CString text;
    const int length = Ask(m_hWnd, TB_GETBUTTONTEXT, idButton);
    if (length > 0) {
        Ask(m_hWnd, TB_GETBUTTONTEXT, idButton, text.GetBufferSetLength(length));
        text.ReleaseBuffer();
    }
    return text;
}

int CToolBarCtrl::GetBitmap(int nID) const
{
    return Ask(m_hWnd, TB_GETBITMAP, nID);
}

BOOL CToolBarCtrl::ChangeBitmap(int idButton, int iBitmap)
{
    return Ask(m_hWnd, TB_CHANGEBITMAP, idButton, iBitmap);
}

UINT CToolBarCtrl::CommandToIndex(UINT nID) const
{
    return Ask(m_hWnd, TB_COMMANDTOINDEX, nID);
}

int CToolBarCtrl::GetButtonCount() const
{
    return Ask(m_hWnd, TB_BUTTONCOUNT);
}

BOOL CToolBarCtrl::GetButton(int nIndex, LPTBBUTTON lpButton) const
{
    return Ask(m_hWnd, TB_GETBUTTON, nIndex, lpButton);
}

BOOL CToolBarCtrl::AddButtons(int nNumButtons, LPTBBUTTON lpButtons)
{
    return Ask(m_hWnd, TB_ADDBUTTONS, nNumButtons, lpButtons);
}

BOOL CToolBarCtrl::InsertButton(int nIndex, LPTBBUTTON lpButton)
{
    return Ask(m_hWnd, TB_INSERTBUTTON, nIndex, lpButton);
}

BOOL CToolBarCtrl::DeleteButton(int nIndex)
{
    return Ask(m_hWnd, TB_DELETEBUTTON, nIndex);
}

BOOL CToolBarCtrl::MoveButton(UINT nOldPos, UINT nNewPos)
{
    return Ask(m_hWnd, TB_MOVEBUTTON, nOldPos, nNewPos);
}

BOOL CToolBarCtrl::GetItemRect(int nIndex, LPRECT lpRect) const
{
    return Ask(m_hWnd, TB_GETITEMRECT, nIndex, lpRect);
}

BOOL CToolBarCtrl::SetCmdID(int nIndex, UINT nID)
{
    return Ask(m_hWnd, TB_SETCMDID, nIndex, nID);
}

int CToolBarCtrl::HitTest(LPPOINT ppt) const
{
    return Ask(m_hWnd, TB_HITTEST, 0, ppt);
}

int CToolBarCtrl::GetHotItem() const
{
    return Ask(m_hWnd, TB_GETHOTITEM);
}

int CToolBarCtrl::SetHotItem(int nHot)
{
    return Ask(m_hWnd, TB_SETHOTITEM, nHot);
}

BOOL CToolBarCtrl::MapAccelerator(TCHAR chAccel, UINT* pIDBtn)
{
    return Ask(m_hWnd, TB_MAPACCELERATOR, static_cast<_TUCHAR>(chAccel), pIDBtn);
}

int CToolBarCtrl::AddBitmap(int nNumButtons, UINT nBitmapID)
{
    TBADDBITMAP bitmap = {AfxFindResourceHandle(MAKEINTRESOURCE(nBitmapID), RT_BITMAP), nBitmapID};
    return Ask(m_hWnd, TB_ADDBITMAP, nNumButtons, &bitmap);
}

int CToolBarCtrl::AddBitmap(int nNumButtons, CBitmap* pBitmap)
{
    TBADDBITMAP bitmap = {NULL, reinterpret_cast<UINT_PTR>(pBitmap->GetSafeHandle())};
    return Ask(m_hWnd, TB_ADDBITMAP, nNumButtons, &bitmap);
}

int CToolBarCtrl::AddString(UINT nStringID)
{
    CString text;
    if (!text.LoadString(nStringID))
        return -1;
    text.AppendChar('\0'); // The list of strings ends with an empty one.
    return AddStrings(text);
}

int CToolBarCtrl::AddStrings(LPCTSTR lpszStrings)
{
    return Ask(m_hWnd, TB_ADDSTRING, 0, lpszStrings);
}

int CToolBarCtrl::GetString(int nString, LPTSTR lpstrString, int cchMaxLen) const
{
    // The message counts the room in bytes, and answers in characters.
    return Ask(m_hWnd, TB_GETSTRING, MAKEWPARAM(cchMaxLen * sizeof(TCHAR), nString), lpstrString);
}

int CToolBarCtrl::GetString(int nString, CString& str) const
{
    const int length = GetString(nString, NULL, 0);
    if (length < 0)
        return length;
    GetString(nString, str.GetBufferSetLength(length), length + 1);
    str.ReleaseBuffer();
    return length;
}

BOOL CToolBarCtrl::ReplaceBitmap(LPTBREPLACEBITMAP pReplaceBitmap)
{
    return Ask(m_hWnd, TB_REPLACEBITMAP, 0, pReplaceBitmap);
}

UINT CToolBarCtrl::GetBitmapFlags() const
{
    return Ask(m_hWnd, TB_GETBITMAPFLAGS);
}

void CToolBarCtrl::LoadImages(int iBitmapID, HINSTANCE hinst)
{
    Ask(m_hWnd, TB_LOADIMAGES, iBitmapID, hinst);
}

CImageList* CToolBarCtrl::GetImageList() const
{
    return AskForImageList(m_hWnd, TB_GETIMAGELIST);
}

CImageList* CToolBarCtrl::SetImageList(CImageList* pImageList)
{
    return AskForImageList(m_hWnd, TB_SETIMAGELIST, 0, pImageList->GetSafeHandle());
}

CImageList* CToolBarCtrl::GetHotImageList() const
{
    return AskForImageList(m_hWnd, TB_GETHOTIMAGELIST);
}

CImageList* CToolBarCtrl::SetHotImageList(CImageList* pImageList)
{
    return AskForImageList(m_hWnd, TB_SETHOTIMAGELIST, 0, pImageList->GetSafeHandle());
}

CImageList* CToolBarCtrl::GetDisabledImageList() const
{
    return AskForImageList(m_hWnd, TB_GETDISABLEDIMAGELIST);
}

CImageList* CToolBarCtrl::SetDisabledImageList(CImageList* pImageList)
{
    return AskForImageList(m_hWnd, TB_SETDISABLEDIMAGELIST, 0, pImageList->GetSafeHandle());
}

CImageList* CToolBarCtrl::GetPressedImageList()
{
    return AskForImageList(m_hWnd, TB_GETPRESSEDIMAGELIST);
}

CImageList* CToolBarCtrl::SetPressedImageList(int iImageID, CImageList* pImageList)
{
    return AskForImageList(m_hWnd, TB_SETPRESSEDIMAGELIST, iImageID, pImageList->GetSafeHandle());
}

BOOL CToolBarCtrl::SetBitmapSize(CSize size)
{
    return Ask(m_hWnd, TB_SETBITMAPSIZE, 0, MAKELPARAM(size.cx, size.cy));
}

BOOL CToolBarCtrl::SetButtonSize(CSize size)
{
    return Ask(m_hWnd, TB_SETBUTTONSIZE, 0, MAKELPARAM(size.cx, size.cy));
}

DWORD CToolBarCtrl::GetButtonSize() const
{
    return Ask(m_hWnd, TB_GETBUTTONSIZE);
}

BOOL CToolBarCtrl::SetButtonWidth(int cxMin, int cxMax)
{
    return Ask(m_hWnd, TB_SETBUTTONWIDTH, 0, MAKELPARAM(cxMin, cxMax));
}

void CToolBarCtrl::SetButtonStructSize(int nSize)
{
    Ask(m_hWnd, TB_BUTTONSTRUCTSIZE, nSize);
}

BOOL CToolBarCtrl::SetIndent(int iIndent)
{
    return Ask(m_hWnd, TB_SETINDENT, iIndent);
}

BOOL CToolBarCtrl::GetMaxSize(LPSIZE pSize) const
{
    return Ask(m_hWnd, TB_GETMAXSIZE, 0, pSize);
}

int CToolBarCtrl::GetMaxTextRows() const
{
    return Ask(m_hWnd, TB_GETTEXTROWS);
}

BOOL CToolBarCtrl::SetMaxTextRows(int iMaxRows)
{
    return Ask(m_hWnd, TB_SETMAXTEXTROWS, iMaxRows);
}

int CToolBarCtrl::GetRows() const
{
    return Ask(m_hWnd, TB_GETROWS);
}

void CToolBarCtrl::SetRows(int nRows, BOOL bLarger, LPRECT lpRect)
{
    Ask(m_hWnd, TB_SETROWS, MAKEWPARAM(nRows, bLarger), lpRect);
}

BOOL CToolBarCtrl::GetPadding(int* pnHorzPadding, int* pnVertPadding) const
{
    const DWORD words = Ask(m_hWnd, TB_GETPADDING);
    *pnHorzPadding = LOWORD(words);
    *pnVertPadding = HIWORD(words);
    return TRUE;
}

DWORD CToolBarCtrl::SetPadding(int nHorzPadding, int nVertPadding)
{
    return Ask(m_hWnd, TB_SETPADDING, 0, MAKELPARAM(nHorzPadding, nVertPadding));
}

void CToolBarCtrl::GetMetrics(LPTBMETRICS ptbm) const
{
    Ask(m_hWnd, TB_GETMETRICS, 0, ptbm);
}

void CToolBarCtrl::SetMetrics(LPTBMETRICS ptbm)
{
    Ask(m_hWnd, TB_SETMETRICS, 0, ptbm);
}

void CToolBarCtrl::AutoSize()
{
    Ask(m_hWnd, TB_AUTOSIZE);
}

DWORD CToolBarCtrl::GetStyle() const
{
    return Ask(m_hWnd, TB_GETSTYLE);
}

void CToolBarCtrl::SetStyle(DWORD dwStyle)
{
    Ask(m_hWnd, TB_SETSTYLE, 0, dwStyle);
}

DWORD CToolBarCtrl::GetExtendedStyle() const
{
    return Ask(m_hWnd, TB_GETEXTENDEDSTYLE);
}

DWORD CToolBarCtrl::SetExtendedStyle(DWORD dwExStyle)
{
    return Ask(m_hWnd, TB_SETEXTENDEDSTYLE, 0, dwExStyle);
}

DWORD CToolBarCtrl::SetDrawTextFlags(DWORD dwMask, DWORD dwDTFlags)
{
    return Ask(m_hWnd, TB_SETDRAWTEXTFLAGS, dwMask, dwDTFlags);
}

BOOL CToolBarCtrl::GetAnchorHighlight() const
{
    return Ask(m_hWnd, TB_GETANCHORHIGHLIGHT);
}

BOOL CToolBarCtrl::SetAnchorHighlight(BOOL fAnchor)
{
    return Ask(m_hWnd, TB_SETANCHORHIGHLIGHT, fAnchor);
}

BOOL CToolBarCtrl::GetColorScheme(COLORSCHEME* lpColorScheme) const
{
    return Ask(m_hWnd, TB_GETCOLORSCHEME, 0, lpColorScheme);
}

void CToolBarCtrl::SetColorScheme(const COLORSCHEME* lpColorScheme)
{
    Ask(m_hWnd, TB_SETCOLORSCHEME, 0, lpColorScheme);
}

void CToolBarCtrl::GetInsertMark(TBINSERTMARK* ptbim) const
{
    Ask(m_hWnd, TB_GETINSERTMARK, 0, ptbim);
}

void CToolBarCtrl::SetInsertMark(TBINSERTMARK* ptbim)
{
    Ask(m_hWnd, TB_SETINSERTMARK, 0, ptbim);
}

COLORREF CToolBarCtrl::GetInsertMarkColor() const
{
    return Ask(m_hWnd, TB_GETINSERTMARKCOLOR);
}

COLORREF CToolBarCtrl::SetInsertMarkColor(COLORREF clrNew)
{
    return Ask(m_hWnd, TB_SETINSERTMARKCOLOR, 0, clrNew);
}

BOOL CToolBarCtrl::InsertMarkHitTest(LPPOINT ppt, LPTBINSERTMARK ptbim) const
{
    return Ask(m_hWnd, TB_INSERTMARKHITTEST, ppt, ptbim);
}

HRESULT CToolBarCtrl::SetWindowTheme(LPCWSTR pszSubAppName)
{
    return Ask(m_hWnd, TB_SETWINDOWTHEME, 0, pszSubAppName);
}

CToolTipCtrl* CToolBarCtrl::GetToolTips() const
{
    return AskForWindow<CToolTipCtrl>(m_hWnd, TB_GETTOOLTIPS);
}

void CToolBarCtrl::SetToolTips(CToolTipCtrl* pTip)
{
    Ask(m_hWnd, TB_SETTOOLTIPS, pTip->GetSafeHwnd());
}

void CToolBarCtrl::SetOwner(CWnd* pWnd)
{
    Ask(m_hWnd, TB_SETPARENT, pWnd->GetSafeHwnd());
}

HRESULT CToolBarCtrl::GetDropTarget(IDropTarget** ppDropTarget) const
{
    return Ask(m_hWnd, TB_GETOBJECT, &IID_IDropTarget, ppDropTarget);
}

void CToolBarCtrl::Customize()
{
    Ask(m_hWnd, TB_CUSTOMIZE);
}

void CToolBarCtrl::SaveState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName)
{
    TBSAVEPARAMS place = {hKeyRoot, lpszSubKey, lpszValueName};
    Ask(m_hWnd, TB_SAVERESTORE, TRUE, &place);
}

void CToolBarCtrl::RestoreState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName)
{
    TBSAVEPARAMS place = {hKeyRoot, lpszSubKey, lpszValueName};
    Ask(m_hWnd, TB_SAVERESTORE, FALSE, &place);
}
