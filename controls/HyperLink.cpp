#include "controls/HyperLink.h"

#include "controls/Abandon.h"
#include "controls/KeyedPicture.h"
#include "controls/LinkActions.h"
#include "controls/PrintClient.h"
#include "controls/ScopedSelect.h"
#include "controls/ToolTipRelay.h"

#include "shell/PictureLoader.h"
#include "shell/ShellOpen.h"

using umbra::Abandon;

BEGIN_MESSAGE_MAP(CHyperLink, CStatic)
    ON_WM_LBUTTONDOWN()
    ON_WM_SETCURSOR()
    ON_WM_PAINT()
    ON_WM_MOUSEMOVE()
    ON_MESSAGE(WM_PRINTCLIENT, &CHyperLink::OnPrintClient)
END_MESSAGE_MAP()

namespace {

const TCHAR fallbackExtension[] = _T(".htm");
const UINT toolId = 1;
const int tipWidth = 100; // Pixels.
const LONG plainLabelWeight = FW_SEMIBOLD;

} // namespace

CHyperLink::CHyperLink()
{
}

CHyperLink::~CHyperLink()
{
    if (m_bBitmapLoaded) {
        // Kept: the bitmaps outlive the label.
        Abandon(m_bmpPicture);
        Abandon(m_bmpMask);
    }
}

void CHyperLink::SetTextColor(COLORREF color)
{
    m_crText = color;
}

void CHyperLink::SetTransparentColor(COLORREF color)
{
    m_crTransparent = color;
}

BOOL CHyperLink::SetBitmapFile(CString path)
{
    const HBITMAP picture = LoadPictureBitmap(path);
    if (picture == nullptr)
        return TRUE;
    Abandon(m_bmpPicture); // Kept: the former picture is not deleted.
    m_bmpPicture.Attach(picture);
    BITMAP record = {};
    m_bmpPicture.GetBitmap(&record);
    m_nBitmapWidth = record.bmWidth;
    m_nBitmapHeight = record.bmHeight;
    m_bBitmapLoaded = TRUE;
    if (m_crTransparent != CLR_NONE)
        BuildTransparencyMask();
    return TRUE;
}

BOOL CHyperLink::SetToolTipText(CString text)
{
    m_bToolTip = true;
    if (m_ToolTip.GetSafeHwnd() == nullptr)
        CreateToolTip();
    if (m_ToolTip.GetToolCount() == 0) {
        CRect client;
        GetClientRect(&client);
        m_ToolTip.AddTool(this, text, &client, toolId);
    }
    m_ToolTip.UpdateTipText(text, this, toolId);
    m_ToolTip.Activate(TRUE);
    return TRUE;
}

void CHyperLink::SetURL(CString target)
{
    m_strURL = target;
    m_bIsLink = true;
    ApplyLinkFont();
    TraceUnreachableLink(*this);
}

void CHyperLink::ApplyLinkFont()
{
    LRESULT font = SendMessage(WM_GETFONT);
    if (font == 0)
        font = reinterpret_cast<LRESULT>(::GetStockObject(DEFAULT_GUI_FONT));
    LOGFONT description = {};
    ::GetObject(reinterpret_cast<HGDIOBJ>(font), sizeof(description), &description);
    if (m_bIsLink)
        description.lfUnderline = TRUE;
    else
        description.lfWeight = plainLabelWeight;
    // Kept: the font stays the control's for good; nobody deletes it.
    const HFONT derived = ::CreateFontIndirect(&description);
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(derived), TRUE);
}

void CHyperLink::RelayToolTipEvent(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_bToolTip)
        RelayToToolTip(m_ToolTip, *this, message, wParam, lParam);
}

void CHyperLink::OnLButtonDown(UINT, CPoint)
{
    if (m_bIsLink) {
        CString target = m_strURL;
        if (target.IsEmpty())
            GetWindowText(target);
        // Kept: the test comes before the trimming, so a target of blanks opens an empty string.
        const HWND window = m_hWnd;
        if (!target.IsEmpty())
            ShellOpen(TrimTarget(target), SW_SHOWNORMAL, fallbackExtension);
        if (!::IsWindow(window))
            return; // The shell works off messages, so the host may have ended the label.
    }
    Default();
}

BOOL CHyperLink::OnSetCursor(CWnd*, UINT, UINT)
{
    // Kept: the window text decides, not the target.
    if (!m_bIsLink || GetWindowTextLength() == 0)
        return static_cast<BOOL>(Default());
    ShowHandCursor();
    return TRUE;
}

void CHyperLink::OnPaint()
{
    CPaintDC dc(this);
    DrawLabel(dc);
}

void CHyperLink::OnMouseMove(UINT nFlags, CPoint point)
{
    const HWND window = m_hWnd;
    RelayToolTipEvent(WM_MOUSEMOVE, nFlags, MAKELPARAM(point.x, point.y));
    if (::IsWindow(window)) // The host is notified of tool tips, and may have ended the label.
        Default();
}

LRESULT CHyperLink::OnPrintClient(WPARAM wParam, LPARAM)
{
    return umbra::PrintClient(wParam, [this](CDC& dc) { DrawLabel(dc); });
}

void CHyperLink::BuildTransparencyMask()
{
    BuildKeyMask(m_bmpPicture, m_bmpMask, m_crTransparent);
}

LONG CHyperLink::QueryRegistryDefault(HKEY root, LPCTSTR subKey, LPTSTR out)
{
    return ::QueryRegistryDefault(root, subKey, out);
}

void CHyperLink::DrawLabel(CDC& dc)
{
    if (m_crTransparent != CLR_NONE)
        DrawKeyedPicture(dc, CRect(0, 0, m_nBitmapWidth, m_nBitmapHeight), m_bmpMask, m_bmpPicture);
    CString text;
    GetWindowText(text);
    CRect area;
    GetWindowRect(&area);
    ScreenToClient(&area);
    const LRESULT font = SendMessage(WM_GETFONT);
    const ScopedSelect selected(dc, reinterpret_cast<HGDIOBJ>(font));
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(m_crText);
    dc.DrawText(text, -1, &area, DT_CENTER | DT_WORDBREAK);
}

void CHyperLink::CreateToolTip()
{
    m_ToolTip.Create(this, 0);
    m_ToolTip.Activate(FALSE);
    // Kept: the message takes its width from the second number; the first one means nothing.
    m_ToolTip.SendMessage(TTM_SETMAXTIPWIDTH, 400, tipWidth);
}
