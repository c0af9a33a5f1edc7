#include <classes/CButton.h>

#include "controls/ControlMessages.h"
#include "controls/LaterMessages.h"

#include <vector>

using afxint::Ask;
using afxint::AskFor;

namespace {

afxint::SplitInfo ReadSplit(HWND button, UINT mask)
{
    afxint::SplitInfo info = {};
    info.mask = mask;
    Ask(button, BCM_GETSPLITINFO, 0, &info);
    return info;
}

/// The control's notes are wide in every program.
bool ReadNote(HWND button, CString& note)
{
    DWORD room = Ask(button, BCM_GETNOTELENGTH) + 1;
    std::vector<WCHAR> text(room);
    if (!Ask(button, BCM_GETNOTE, &room, text.data()))
        return false;
    note = text.data();
    return true;
}

} // namespace

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

TCHAR CButton::GetSplitGlyph() const
{
    return static_cast<TCHAR>(reinterpret_cast<UINT_PTR>(ReadSplit(m_hWnd, BCSIF_GLYPH).glyph));
}

BOOL CButton::SetSplitGlyph(TCHAR chGlyph)
{
    afxint::SplitInfo info = {};
    info.mask = BCSIF_GLYPH;
    info.glyph = reinterpret_cast<HIMAGELIST>(static_cast<UINT_PTR>(static_cast<_TUCHAR>(chGlyph)));
    return Ask(m_hWnd, BCM_SETSPLITINFO, 0, &info);
}

CImageList* CButton::GetSplitImageList() const
{
    return CImageList::FromHandle(ReadSplit(m_hWnd, BCSIF_IMAGE).glyph);
}

BOOL CButton::SetSplitImageList(CImageList* pSplitImageList)
{
    afxint::SplitInfo info = {};
    info.mask = BCSIF_IMAGE;
    info.glyph = pSplitImageList->GetSafeHandle();
    return Ask(m_hWnd, BCM_SETSPLITINFO, 0, &info);
}

BOOL CButton::GetSplitInfo(tagBUTTON_SPLITINFO* pInfo) const
{
    return Ask(m_hWnd, BCM_GETSPLITINFO, 0, pInfo);
}

BOOL CButton::SetSplitInfo(tagBUTTON_SPLITINFO* pInfo)
{
    return Ask(m_hWnd, BCM_SETSPLITINFO, 0, pInfo);
}

BOOL CButton::GetSplitSize(LPSIZE pSize) const
{
    afxint::SplitInfo info = {};
    info.mask = BCSIF_SIZE;
    if (!Ask(m_hWnd, BCM_GETSPLITINFO, 0, &info))
        return FALSE;
    *pSize = info.size;
    return TRUE;
}

BOOL CButton::SetSplitSize(LPSIZE pSize)
{
    afxint::SplitInfo info = {};
    info.mask = BCSIF_SIZE;
    info.size = *pSize;
    return Ask(m_hWnd, BCM_SETSPLITINFO, 0, &info);
}

UINT CButton::GetSplitStyle() const
{
    return ReadSplit(m_hWnd, BCSIF_STYLE).style;
}

BOOL CButton::SetSplitStyle(UINT uSplitStyle)
{
    afxint::SplitInfo info = {};
    info.mask = BCSIF_STYLE;
    info.style = uSplitStyle;
    return Ask(m_hWnd, BCM_SETSPLITINFO, 0, &info);
}

BOOL CButton::SetDropDownState(BOOL fDropDown)
{
    return Ask(m_hWnd, BCM_SETDROPDOWNSTATE, fDropDown);
}

CString CButton::GetNote() const
{
    CString note;
    ReadNote(m_hWnd, note);
    return note;
}

BOOL CButton::GetNote(LPTSTR lpszNote, UINT* pcchNote) const
{
    CString note;
    if (!ReadNote(m_hWnd, note))
        return FALSE;
    const UINT room = *pcchNote;
    *pcchNote = note.GetLength() + 1;
    if (*pcchNote > room)
        return FALSE;
    lstrcpy(lpszNote, note);
    return TRUE;
}

BOOL CButton::SetNote(LPCTSTR lpszNote)
{
    const CStringW note(lpszNote);
    return Ask(m_hWnd, BCM_SETNOTE, 0, static_cast<LPCWSTR>(note));
}

UINT CButton::GetNoteLength() const
{
    return Ask(m_hWnd, BCM_GETNOTELENGTH);
}

BOOL CButton::SetElevationRequired(BOOL fElevationRequired)
{
    return Ask(m_hWnd, BCM_SETSHIELD, 0, fElevationRequired) == 1; // Other answers tell an error.
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
