#include "controls/StaticTS.h"

#include "controls/Abandon.h"
#include "controls/FollowLayout.h"
#include "controls/KeyedPicture.h"
#include "controls/LinkActions.h"
#include "controls/PrintClient.h"
#include "controls/ScopedSelect.h"

#include "units/DialogUnits.h"
#include "shell/PictureLoader.h"
#include "shell/ShellOpen.h"

using umbra::Abandon;

BEGIN_MESSAGE_MAP(CStaticTS, CStatic)
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_WM_CREATE()
    ON_WM_SETCURSOR()
    ON_WM_LBUTTONDOWN()
    ON_MESSAGE(WM_PRINTCLIENT, &CStaticTS::OnPrintClient)
END_MESSAGE_MAP()

namespace {

const COLORREF linkColor = RGB(0, 0, 255);
// Kept: links of this class fall back to this type's program, web addresses included.
const TCHAR fallbackExtension[] = _T(".QVXLog");
// Kept: a keyed picture is drawn through a block of this size, whatever its own.
const int keyedExtent = 200;

} // namespace

CStaticTS::CStaticTS()
{
}

CStaticTS::~CStaticTS()
{
    FreeBitmaps();
    m_brBack.DeleteObject();
}

LRESULT CStaticTS::SetLink(BOOL bLink)
{
    m_bLink = bLink ? TRUE : FALSE;
    LOGFONT description = DescribeFont();
    description.lfUnderline = m_bLink;
    if (m_bLink) {
        m_crText = linkColor;
        TraceUnreachableLink(*this);
    }
    // Kept: the font stays the control's for good; nobody deletes it.
    const HFONT font = ::CreateFontIndirect(&description);
    return SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

void CStaticTS::SetLabelFont(HFONT hFont)
{
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(hFont), TRUE);
    SetLink(m_bLink);
    m_bOwnFont = FALSE;
}

void CStaticTS::SetLabelTextColor(COLORREF color)
{
    m_crText = color;
    InvalidateParentArea();
}

void CStaticTS::SetTransparentColor(COLORREF color)
{
    m_crTransparent = color;
}

BOOL CStaticTS::LoadPicture(CString path)
{
    const HBITMAP picture = LoadPictureBitmap(path);
    if (picture == nullptr)
        return TRUE;
    Abandon(m_bmpPicture); // Kept: the former picture is not deleted.
    m_bmpPicture.Attach(picture);
    m_bHasPicture = TRUE;
    if (m_crTransparent != CLR_NONE)
        BuildMask();
    return TRUE;
}

void CStaticTS::SetLinkTarget(const CString& target)
{
    m_strLinkTarget = target;
    m_bUseLinkTarget = TRUE;
}

HBRUSH CStaticTS::CtlColor(CDC* pDC, UINT)
{
    m_brBack.DeleteObject();
    if (pDC == nullptr)
        return nullptr; // What asks has run out of device contexts.
    if (m_bTransparent) {
        m_brBack.Attach(::GetStockObject(NULL_BRUSH));
        pDC->SetBkMode(TRANSPARENT);
    } else if (m_crBack != CLR_NONE) {
        m_brBack.CreateSolidBrush(m_crBack);
        pDC->SetBkColor(m_crBack);
    }
    if (m_bLink)
        pDC->SetTextColor(linkColor);
    return static_cast<HBRUSH>(m_brBack.GetSafeHandle());
}

BOOL CStaticTS::OnEraseBkgnd(CDC*)
{
    return TRUE;
}

void CStaticTS::OnPaint()
{
    CPaintDC dc(this);
    DrawLabel(&dc);
}

int CStaticTS::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    SnapToDialogUnits(*lpCreateStruct);
    if (Default() == -1)
        return -1;
    SetWindowPos(nullptr, lpCreateStruct->x, lpCreateStruct->y, lpCreateStruct->cx,
                 lpCreateStruct->cy, 0);
    return 0;
}

BOOL CStaticTS::OnSetCursor(CWnd*, UINT, UINT)
{
    if (!m_bLink || GetWindowTextLength() == 0)
        return FALSE;
    ShowHandCursor();
    return TRUE; // Kept: handled, though there may be no hand to show.
}

void CStaticTS::OnLButtonDown(UINT, CPoint)
{
    InvalidateParentArea();
    if (m_bLink) {
        CString target = m_strLinkTarget;
        if (!m_bUseLinkTarget)
            GetWindowText(target);
        const HWND window = m_hWnd;
        if (!target.IsEmpty())
            ShellOpen(TrimTarget(target), SW_SHOWNORMAL);
        if (!::IsWindow(window))
            return; // The shell works off messages, so the host may have ended the label.
    }
    Default();
}

LRESULT CStaticTS::OnPrintClient(WPARAM wParam, LPARAM)
{
    return umbra::PrintClient(wParam, [this](CDC& dc) { DrawLabel(&dc); });
}

void CStaticTS::FreeBitmaps()
{
    if (m_bHasPicture) {
        // Kept: the bitmaps outlive the label.
        Abandon(m_bmpPicture);
        Abandon(m_bmpMask);
    }
    m_bHasPicture = FALSE;
}

void CStaticTS::BuildMask()
{
    BuildKeyMask(m_bmpPicture, m_bmpMask, m_crTransparent);
}

void CStaticTS::InvalidateParentArea()
{
    CWnd* parent = GetParent();
    if (parent == nullptr)
        return;
    CRect area;
    GetWindowRect(&area);
    parent->ScreenToClient(&area);
    parent->InvalidateRect(&area, FALSE);
}

void CStaticTS::DrawMasked(CDC* pDC, int cx, int cy)
{
    DrawKeyedPicture(*pDC, CRect(0, 0, cx, cy), m_bmpMask, m_bmpPicture);
}

void CStaticTS::DrawLabelText(CDC* pDC)
{
    CString text;
    GetWindowText(text);
    if (text.IsEmpty())
        return;
    CRect area;
    GetWindowRect(&area);
    ScreenToClient(&area);
    SelectLabelFont(pDC);
    area.OffsetRect(1, 1);
    if (m_bStyleAlign) {
        // Kept: the style is taken bit by bit, not as a type of static control.
        const DWORD style = GetStyle();
        m_nTextFormat = (style & SS_CENTER) != 0 ? DT_CENTER : style & SS_RIGHT;
    }
    pDC->SetBkMode(TRANSPARENT);

    const UINT format = m_nTextFormat | DT_WORDBREAK;
    if (m_bEmbossed) {
        area.OffsetRect(1, 1);
        pDC->SetTextColor(::GetSysColor(COLOR_BTNHIGHLIGHT));
        pDC->DrawText(text, -1, &area, format);
        area.OffsetRect(-1, -1);
        pDC->SetTextColor(::GetSysColor(COLOR_BTNSHADOW));
    } else {
        pDC->SetTextColor(m_crText);
    }
    pDC->DrawText(text, -1, &area, format);
}

UINT CStaticTS::ShellOpen(CString target, int showCommand)
{
    return ::ShellOpen(target, showCommand, fallbackExtension);
}

LONG CStaticTS::QueryRegistryDefault(HKEY root, LPCTSTR subKey, LPTSTR out)
{
    return ::QueryRegistryDefault(root, subKey, out);
}

void CStaticTS::DrawLabel(CDC* pDC)
{
    if (m_bHasPicture) {
        if (m_crTransparent == CLR_NONE)
            DrawOpaquePicture(pDC);
        else
            DrawMasked(pDC, keyedExtent, keyedExtent);
    }
    DrawLabelText(pDC);
}

void CStaticTS::DrawOpaquePicture(CDC* pDC)
{
    CRect client;
    GetClientRect(&client);
    CDC memory;
    memory.CreateCompatibleDC(pDC);
    const ScopedSelect selected(memory, m_bmpPicture.GetSafeHandle());
    umbra::FollowLayout(memory, *pDC);
    pDC->BitBlt(0, 0, client.Width(), client.Height(), &memory, 0, 0, SRCCOPY);
}

void CStaticTS::SelectLabelFont(CDC* pDC)
{
    if (m_bOwnFont) {
        if (CFont* font = GetFont())
            pDC->SelectObject(font);
        return;
    }
    LOGFONT description = DescribeFont();
    description.lfUnderline = m_bLink;
    if (m_bLink)
        m_crText = linkColor;
    // Kept: made anew at every paint and never deleted.
    if (const HFONT font = ::CreateFontIndirect(&description))
        ::SelectObject(pDC->GetSafeHdc(), font);
}

LOGFONT CStaticTS::DescribeFont() const
{
    LOGFONT description = {};
    const LRESULT font = ::SendMessage(m_hWnd, WM_GETFONT, 0, 0);
    ::GetObject(reinterpret_cast<HGDIOBJ>(font), sizeof(description), &description);
    return description;
}
