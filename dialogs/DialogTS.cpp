#include "dialogs/DialogTS.h"

#include "units/DialogUnits.h"

#include "controls/Abandon.h"
#include "controls/FollowLayout.h"
#include "controls/KeyedPicture.h"

using umbra::Abandon;

BEGIN_MESSAGE_MAP(CDialogTS, CDialog)
    ON_WM_ERASEBKGND()
    ON_WM_LBUTTONDOWN()
    ON_WM_CREATE()
END_MESSAGE_MAP()

namespace {

// Kept: the caption line has this place whatever the width of the dialog.
const RECT captionLine = {11, 4, 270, 18};
const int captionHeight = 8; // Cell height in device units.

} // namespace

CDialogTS::CDialogTS(UINT nIDTemplate, CWnd* pParent)
    : CDialog(nIDTemplate, pParent), m_hBackBrush(static_cast<HBRUSH>(::GetStockObject(NULL_BRUSH)))
{
}

CDialogTS::~CDialogTS()
{
    FreeBitmaps();
    if (m_hBackBrush != nullptr)
        ::DeleteObject(m_hBackBrush);
}

INT_PTR CDialogTS::DoModal()
{
    return CDialog::DoModal();
}

void CDialogTS::SetBackground(HBITMAP image, HBITMAP mask)
{
    FreeBitmaps();
    m_bmpBack.DeleteObject(); // What the members held on their own.
    m_bmpMask.DeleteObject();
    if (image != nullptr)
        m_bmpBack.Attach(image);
    if (image != nullptr && mask != nullptr)
        m_bmpMask.Attach(mask);
    m_bHasBitmap = image != nullptr;
    m_bShaped = image != nullptr && mask != nullptr;
    m_bMaskBuilt = m_bShaped;
    if (GetSafeHwnd() != nullptr)
        Invalidate();
}

void CDialogTS::FreeBitmaps()
{
    if (m_bHasBitmap) {
        // Kept: a bitmap that was handed in for display stays valid for its supplier.
        Abandon(m_bmpBack);
        Abandon(m_bmpMask);
        m_bMaskBuilt = FALSE;
    }
    m_bHasBitmap = FALSE;
}

void CDialogTS::DrawShaped(CDC* pDC, int cx, int cy)
{
    if (pDC != nullptr)
        DrawKeyedPicture(*pDC, CRect(0, 0, cx, cy), m_bmpMask, m_bmpBack);
}

BOOL CDialogTS::OnEraseBkgnd(CDC* pDC)
{
    if (m_bShaped) {
        // Kept: this paint cycle takes the update region, so nothing else is painted in it.
        PAINTSTRUCT cycle = {};
        BeginPaint(&cycle);
        CRect window;
        GetWindowRect(&window);
        DrawShaped(pDC, window.Width(), window.Height());
        EndPaint(&cycle);
        return TRUE;
    }

    CRect client;
    GetClientRect(&client);
    if (m_bSolidFill) {
        if (pDC != nullptr)
            pDC->FillSolidRect(&client, m_crFill);
        return FALSE; // Kept: the area is filled, yet the system is told it still needs erasing.
    }
    if (!m_bHasBitmap)
        return static_cast<BOOL>(Default());

    if (pDC != nullptr)
        DrawBackground(pDC, client);
    return TRUE;
}

void CDialogTS::OnLButtonDown(UINT, CPoint point)
{
    Default();
    if (m_bDragAnywhere)
        PostMessage(WM_NCLBUTTONDOWN, HTCAPTION, MAKELPARAM(point.x, point.y));
}

int CDialogTS::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    SnapToDialogUnits(*lpCreateStruct);
    if (Default() == -1)
        return -1;
    SetWindowPos(nullptr, lpCreateStruct->x, lpCreateStruct->y, lpCreateStruct->cx,
                 lpCreateStruct->cy, 0);
    return 0;
}

void CDialogTS::DrawBackground(CDC* pDC, const CRect& client)
{
    CDC memory;
    memory.CreateCompatibleDC(pDC);
    BITMAP image = {};
    if (m_bmpBack.GetSafeHandle() != nullptr) {
        memory.SelectObject(&m_bmpBack);
        if (m_bmpBack.GetBitmap(&image) == 0)
            image = {};
        umbra::FollowLayout(memory, *pDC);
    }
    pDC->BitBlt(0, 0, min(image.bmWidth, client.Width()), min(image.bmHeight, client.Height()),
                &memory, 0, 0, SRCCOPY);
    if (m_bCaptionText)
        DrawCaptionLine(pDC);
}

void CDialogTS::DrawCaptionLine(CDC* pDC)
{
    CString text;
    GetWindowText(text);
    CFont font;
    font.CreateFont(captionHeight, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, ANSI_CHARSET,
                    OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, FF_SWISS,
                    _T("Arial"));
    pDC->SetTextColor(RGB(255, 255, 255));
    pDC->SetBkMode(TRANSPARENT);
    // Kept: the font goes away while it is still selected, and the former one is not put back.
    pDC->SelectObject(&font);
    CRect line(captionLine);
    pDC->DrawText(text, text.GetLength(), &line, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}
