#include "controls/ShadeButton.h"

#include "controls/Abandon.h"
#include "controls/BufferTarget.h"
#include "controls/DialogGroup.h"
#include "controls/FollowLayout.h"
#include "controls/KeyedPicture.h"
#include "controls/MemoryCanvas.h"
#include "controls/ScopedSelect.h"
#include "faces/ShadeGenerator.h"
#include "controls/ToolTipRelay.h"

#include "shell/PictureLoader.h"

#include <stdlib.h>

#include <algorithm>

using umbra::Abandon;

BEGIN_MESSAGE_MAP(CxShadeButton, CButton)
    ON_WM_ERASEBKGND()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_KILLFOCUS()
    ON_WM_KEYDOWN()
    ON_MESSAGE(WM_MOUSELEAVE, &CxShadeButton::OnMouseLeave)
    ON_MESSAGE(WM_SHADE_UNCHECK, &CxShadeButton::OnShadeUncheck)
    ON_MESSAGE(BM_SETCHECK, &CxShadeButton::OnSetCheck)
    ON_MESSAGE(BM_GETCHECK, &CxShadeButton::OnGetCheck)
END_MESSAGE_MAP()

namespace {

const int captionGap = 2; // Between the focus lines and the caption, in pixels.

void FillWithFaceColor(CDC& dc, const CRect& area)
{
    ::FillRect(dc.GetSafeHdc(), &area, ::GetSysColorBrush(COLOR_BTNFACE));
}

bool IsAmong(HICON icon, const HICON* first, const HICON* end)
{
    return std::find(first, end, icon) != end;
}

void DrawRectangle(CDC& dc, const CRect& area, int topLeft, int bottomRight)
{
    dc.Draw3dRect(&area, ::GetSysColor(topLeft), ::GetSysColor(bottomRight));
}

} // namespace

CxShadeButton::CxShadeButton() : m_textColor(::GetSysColor(COLOR_BTNTEXT)), m_rcIcon(0, 0, 0, 0)
{
}

CxShadeButton::~CxShadeButton()
{
    m_font.DeleteObject();
    free(m_pictureData);
    ReplaceIcons(nullptr, nullptr, nullptr);
    DeletePicture();
    if (m_pictureOwned) {
        m_bmpImage.DeleteObject();
        m_bmpMask.DeleteObject();
        m_pictureOwned = FALSE;
    }
}

BOOL CxShadeButton::SetShade(UINT shade, BYTE granularity, BYTE highlight, BYTE coloring,
                             COLORREF color)
{
    m_shade = {TRUE, shade, granularity, highlight, coloring, color};
    MakeFaces();
    return TRUE;
}

BOOL CxShadeButton::UpdateShade()
{
    if (!m_shade.isSet)
        return FALSE;
    MakeFaces();
    Invalidate();
    return TRUE;
}

BOOL CxShadeButton::SetPicture(CString path, UINT align, int width, int height, COLORREF maskColor)
{
    m_hBitmap = LoadPictureBitmap(path);
    if (m_hBitmap != nullptr) {
        m_maskColor = maskColor;
        PlacePicture(align, width, height);
        Abandon(m_bmpImage); // Kept: the former picture is not deleted.
        m_bmpImage.Attach(m_hBitmap);
        BuildKeyMask(m_bmpImage, m_bmpMask, maskColor == CLR_NONE ? RGB(0, 0, 0) : maskColor);
    }
    ReplaceIcons(nullptr, nullptr, nullptr);
    return TRUE;
}

void CxShadeButton::SetIcons(HICON hIcon, UINT align, int width, int height, HICON hIconDown,
                             HICON hIconOver)
{
    ReplaceIcons(hIcon, hIconDown != nullptr ? hIconDown : hIcon,
                 hIconOver != nullptr ? hIconOver : hIcon);
    if (hIcon != nullptr)
        DeletePicture();
    PlacePicture(align, width, height);
    Invalidate();
}

void CxShadeButton::SetTextColor(COLORREF color)
{
    m_textColor = color;
    Invalidate();
}

BOOL CxShadeButton::SetTextFont(const LOGFONT& font)
{
    m_font.DeleteObject();
    const BOOL created = m_font.CreateFontIndirect(&font);
    Invalidate();
    return created;
}

void CxShadeButton::SetBorder(int border)
{
    m_border = border;
    Invalidate();
}

void CxShadeButton::SetFlat(BOOL bFlat)
{
    m_flat = bFlat ? TRUE : FALSE;
    Invalidate();
}

void CxShadeButton::Set3dBorder(BOOL b3dBorder)
{
    m_3dBorder = b3dBorder ? 1 : 0;
    Invalidate();
}

BOOL CxShadeButton::SetToolTipText(const CString& text, const CString& textChecked)
{
    m_toolTipText = text;
    m_toolTipTextChecked = textChecked;
    if (m_toolTip.GetSafeHwnd() == nullptr) {
        if (!m_toolTip.Create(this))
            return FALSE;
        m_toolTip.AddTool(this, text);
        m_toolTip.Activate(TRUE);
    }
    UpdateToolTipText();
    return TRUE;
}

void CxShadeButton::PreSubclassWindow()
{
    ReadStyle(GetStyle());
    CButton::PreSubclassWindow();
    ModifyStyle(0, BS_OWNERDRAW);
}

void CxShadeButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    if (CorrectCapture())
        return;
    CDC* target = CDC::FromHandle(lpDrawItemStruct->hDC);
    if (target == nullptr)
        return;

    const CRect item(lpDrawItemStruct->rcItem);
    if (lpDrawItemStruct->hDC == umbra::BufferTarget()) {
        target->PatBlt(0, 0, item.Width(), item.Height(), BLACKNESS); // As new bitmaps are.
        DrawButton(*target, item, lpDrawItemStruct->itemState);
    } else {
        umbra::MemoryCanvas canvas(*target, item.Size());
        DrawButton(canvas.Dc(), item, lpDrawItemStruct->itemState);
        target->BitBlt(0, 0, item.Width(), item.Height(), &canvas.Dc(), 0, 0, SRCCOPY);
    }
    if (m_maskColor != CLR_NONE && m_hBitmap != nullptr)
        DrawMaskedPicture(*target, lpDrawItemStruct->itemState);
}

BOOL CxShadeButton::OnEraseBkgnd(CDC*)
{
    return TRUE;
}

void CxShadeButton::OnLButtonDown(UINT nFlags, CPoint point)
{
    if (!RelayToolTipEvent(WM_LBUTTONDOWN, nFlags, MAKELPARAM(point.x, point.y)))
        return;
    if (m_hover) {
        TRACKMOUSEEVENT leaving = {sizeof(leaving), TME_CANCEL | TME_LEAVE, m_hWnd, 0};
        if (_TrackMouseEvent(&leaving))
            m_hover = FALSE;
    }
    const HWND window = m_hWnd;
    Default();
    if (::IsWindow(window))
        m_pressing = TRUE;
}

void CxShadeButton::OnLButtonUp(UINT nFlags, CPoint point)
{
    CPoint screen = point;
    ClientToScreen(&screen);
    if (m_buttonKind != kindPush && m_pressing && IsOver(screen) && !Toggle())
        return;
    if (!RelayToolTipEvent(WM_LBUTTONUP, nFlags, MAKELPARAM(point.x, point.y)))
        return;
    m_pressing = FALSE;
    Default();
}

void CxShadeButton::OnMouseMove(UINT nFlags, CPoint point)
{
    if (!RelayToolTipEvent(WM_MOUSEMOVE, nFlags, MAKELPARAM(point.x, point.y)))
        return;
    if (m_pressing && HasCapture()) {
        const BOOL over = IsCursorOver();
        if (IsPushed() != over) {
            if (!Send(BM_SETSTATE, over))
                return;
            Invalidate();
        }
    } else if (!m_hover) {
        TrackLeaving();
    }
    Default();
}

void CxShadeButton::OnLButtonDblClk(UINT nFlags, CPoint point)
{
    SendMessage(WM_LBUTTONDOWN, nFlags, MAKELPARAM(point.x, point.y));
}

void CxShadeButton::OnKillFocus(CWnd*)
{
    if (HasCapture()) {
        const HWND window = m_hWnd;
        ::ReleaseCapture();
        if (!::IsWindow(window))
            return;
        m_pressing = FALSE;
    }
    Default();
}

void CxShadeButton::OnKeyDown(UINT nChar, UINT, UINT)
{
    if (nChar == VK_SPACE && m_buttonKind != kindPush && !Toggle())
        return;
    Default();
}

LRESULT CxShadeButton::OnMouseLeave(WPARAM, LPARAM)
{
    m_hover = FALSE;
    Invalidate();
    return 0;
}

LRESULT CxShadeButton::OnShadeUncheck(WPARAM, LPARAM)
{
    if (m_checked) {
        m_checked = FALSE;
        Invalidate();
        UpdateToolTipText();
    }
    return 0;
}

LRESULT CxShadeButton::OnSetCheck(WPARAM wParam, LPARAM)
{
    m_checked = wParam != 0 && m_buttonKind != kindPush;
    if (m_buttonKind == kindRadio && m_checked)
        UncheckGroup();
    Invalidate();
    const HWND window = m_hWnd;
    if (m_toolTip.GetSafeHwnd() != nullptr)
        m_toolTip.Pop();
    if (::IsWindow(window))
        UpdateToolTipText();
    return 0;
}

LRESULT CxShadeButton::OnGetCheck(WPARAM, LPARAM)
{
    return m_checked;
}

HBITMAP CxShadeButton::LoadPictureBitmap(LPCTSTR path)
{
    return ::LoadPictureBitmap(path);
}

void CxShadeButton::MakeFaces()
{
    CRect window;
    GetWindowRect(&window);
    const ShadeLook look = {m_shade.style, m_shade.granularity, m_shade.highlight, m_shade.coloring,
                            m_shade.color};
    FillShadeFaces({m_dibNormal, m_dibDown, m_dibDisabled, m_dibOver, m_dibFocusH, m_dibFocusV},
                   window.Width(), window.Height(), m_border, look, ShadeColors::OfSystem(),
                   ShadeRandom::OfProcess());
}

void CxShadeButton::ReadStyle(DWORD style)
{
    m_pushLike = (style & BS_PUSHLIKE) != 0;
    m_flat = (style & BS_FLAT) != 0;

    const DWORD alignment = style & BS_CENTER; // Both bits.
    m_textFormat = DT_VCENTER | DT_SINGLELINE;
    m_textFormat |= alignment == BS_LEFT ? DT_LEFT : alignment == BS_RIGHT ? DT_RIGHT : DT_CENTER;

    // Kept: the style is taken bit by bit, not as a type of button.
    if ((style & BS_AUTOCHECKBOX) == BS_AUTOCHECKBOX) {
        m_buttonKind = kindCheck;
    } else if ((style & BS_AUTORADIOBUTTON) == BS_AUTORADIOBUTTON) {
        m_buttonKind = kindRadio;
    } else {
        m_buttonKind = kindPush;
        m_pushLike = TRUE;
    }
    if (!m_pushLike)
        m_3dBorder = 0;
}

void CxShadeButton::PlacePicture(UINT align, int width, int height)
{
    CRect window;
    GetWindowRect(&window);
    const int middle = max(window.Height() / 2 - height / 2, 0);
    m_rcIcon.SetRect(0, 0, width, height);
    switch (align) {
    case alignLeft:
        m_iconAlign = alignLeft;
        m_rcIcon.OffsetRect(m_border, middle);
        break;
    case alignRight:
        m_iconAlign = alignRight;
        m_rcIcon.OffsetRect(window.Width() - m_border - width, middle);
        break;
    default:
        m_iconAlign = alignTop;
        m_rcIcon.OffsetRect(max(window.Width() / 2 - width / 2, 0),
                            max(window.Height() / 2 - height, 0));
        break;
    }
}

/// Destroys the former icons, each once, save those that go on being shown.
void CxShadeButton::ReplaceIcons(HICON normal, HICON down, HICON over)
{
    const HICON former[] = {m_hIconDown, m_hIconOver, m_hIcon};
    const HICON next[] = {normal, down, over};
    for (size_t i = 0; i < _countof(former); ++i) {
        const bool shared = IsAmong(former[i], former + i + 1, former + _countof(former));
        if (former[i] != nullptr && !shared && !IsAmong(former[i], next, next + _countof(next)))
            ::DestroyIcon(former[i]);
    }
    m_hIcon = normal;
    m_hIconDown = down;
    m_hIconOver = over;
}

void CxShadeButton::DeletePicture()
{
    if (m_bmpImage.GetSafeHandle() == m_hBitmap)
        m_bmpImage.Detach(); // They share the handle, which is deleted once.
    if (m_hBitmap != nullptr)
        ::DeleteObject(m_hBitmap);
    m_hBitmap = nullptr;
}

/// While the button is held, it is down only under the mouse. TRUE when its state had to change:
/// the change repaints, and this paint is void.
BOOL CxShadeButton::CorrectCapture()
{
    POINT cursor;
    if (!m_pressing || !HasCapture() || !::GetCursorPos(&cursor))
        return FALSE;
    const BOOL over = IsOver(cursor);
    if (IsPushed() == over)
        return FALSE;
    SendMessage(BM_SETSTATE, over);
    return TRUE;
}

CRect CxShadeButton::GetCaptionArea(const CRect& item) const
{
    CRect area = item;
    area.DeflateRect(m_border + captionGap, 0);
    if (m_hIcon == nullptr && m_hBitmap == nullptr)
        return area;
    if (m_iconAlign == alignLeft) {
        area.left += m_rcIcon.Width();
    } else if (m_iconAlign == alignRight) {
        area.right -= m_rcIcon.Width();
    } else {
        area.top += m_rcIcon.bottom;
        area.bottom -= m_border + 1;
    }
    return area;
}

void CxShadeButton::DrawButton(CDC& dc, const CRect& item, UINT state)
{
    const HGDIOBJ font = m_font.GetSafeHandle() != nullptr ? m_font.GetSafeHandle()
                                                           : ::GetStockObject(DEFAULT_GUI_FONT);
    const ScopedSelect fontSelected(dc, font);
    dc.SetBkMode(TRANSPARENT);

    Face face = {dc, item, GetCaptionArea(item), CString(), state};
    GetWindowText(face.text);
    DrawFace(face);
}

void CxShadeButton::DrawFace(Face& face)
{
    if ((face.state & ODS_DISABLED) != 0) {
        DrawDisabledFace(face);
        return;
    }
    if ((face.state & ODS_SELECTED) == 0 && !m_checked)
        DrawRaisedFace(face);
    else
        DrawPressedFace(face);
    DrawFocus(face);
    DrawCaption(face);
}

void CxShadeButton::DrawDisabledFace(Face& face)
{
    if (!m_dibDisabled.Draw(face.dc.GetSafeHdc(), 0, 0))
        FillWithFaceColor(face.dc, face.item);
    DrawIcon(face, m_hIcon, 0, DSS_DISABLED);
    if (m_3dBorder && !m_flat)
        face.dc.DrawEdge(&face.item, EDGE_RAISED, BF_RECT);

    // Embossed: a light copy below and right of a grey one.
    face.dc.SetTextColor(::GetSysColor(COLOR_BTNHIGHLIGHT));
    face.dc.DrawText(face.text, -1, &face.caption, m_textFormat);
    face.dc.SetTextColor(::GetSysColor(COLOR_GRAYTEXT));
    face.caption.OffsetRect(-1, -1);
    face.dc.DrawText(face.text, -1, &face.caption, m_textFormat);
}

void CxShadeButton::DrawRaisedFace(Face& face)
{
    const HDC dc = face.dc.GetSafeHdc();
    if (!m_dibNormal.IsValid())
        FillWithFaceColor(face.dc, face.item);
    else if (!m_hover || !m_dibOver.Draw(dc, 0, 0))
        m_dibNormal.Draw(dc, 0, 0);

    const HICON icon = m_hover && m_hIconOver != nullptr ? m_hIconOver : m_hIcon;
    DrawIcon(face, icon, 0, DSS_NORMAL);

    if (!m_3dBorder || (m_flat && !m_hover))
        return;
    if ((face.state & ODS_DEFAULT) != 0) {
        face.dc.DrawEdge(&face.item, EDGE_SUNKEN, BF_RECT);
        face.item.DeflateRect(1, 1);
        face.dc.DrawEdge(&face.item, EDGE_RAISED, BF_RECT);
    } else if (m_flat) {
        DrawRectangle(face.dc, face.item, COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW);
    } else {
        face.dc.DrawEdge(&face.item, EDGE_RAISED, BF_RECT);
    }
}

void CxShadeButton::DrawPressedFace(Face& face)
{
    if (!m_dibDown.Draw(face.dc.GetSafeHdc(), m_3dBorder, m_3dBorder))
        FillWithFaceColor(face.dc, face.item);

    const int shift = m_pushLike ? 1 : 0;
    DrawIcon(face, m_hIconDown, shift, DSS_NORMAL);
    face.caption.OffsetRect(shift, shift);

    if (!m_3dBorder)
        return;
    if (m_flat)
        DrawRectangle(face.dc, face.item, COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT);
    else
        face.dc.DrawEdge(&face.item, EDGE_SUNKEN, BF_RECT);
}

void CxShadeButton::DrawFocus(Face& face)
{
    if ((face.state & ODS_FOCUS) == 0 || m_border < 1)
        return;
    face.item.DeflateRect(m_border, m_border);
    const HDC dc = face.dc.GetSafeHdc();
    m_dibFocusH.Draw(dc, face.item.left + 1, face.item.top);
    m_dibFocusH.Draw(dc, face.item.left + 1, face.item.bottom);
    m_dibFocusV.Draw(dc, face.item.left, face.item.top + 1);
    m_dibFocusV.Draw(dc, face.item.right, face.item.top + 1);
}

void CxShadeButton::DrawCaption(Face& face)
{
    face.dc.SetTextColor(m_textColor);
    face.dc.DrawText(face.text, -1, &face.caption, m_textFormat);
}

/// Draws the icon, or without one the picture, when it has no mask colour, `shift` pixels down and
/// right of its place.
void CxShadeButton::DrawIcon(Face& face, HICON icon, int shift, UINT look)
{
    CRect place = m_rcIcon;
    place.OffsetRect(shift, shift);
    const umbra::LeftToRight leftToRight(face.dc);
    if (leftToRight.WasMirrored())
        place.MoveToX(face.item.right - place.right);
    if (icon != nullptr)
        face.dc.DrawState(place.TopLeft(), place.Size(), icon, look, static_cast<HBRUSH>(nullptr));
    else if (m_hBitmap != nullptr && m_maskColor == CLR_NONE)
        face.dc.DrawState(place.TopLeft(), place.Size(), m_hBitmap, look);
}

void CxShadeButton::DrawMaskedPicture(CDC& target, UINT state)
{
    CRect place = m_rcIcon;
    if (m_pushLike && (state & ODS_SELECTED) != 0)
        place.OffsetRect(1, 1);
    DrawKeyedPicture(target, place, m_bmpMask, m_bmpImage);
}

BOOL CxShadeButton::IsOver(CPoint screen) const
{
    return ::WindowFromPoint(screen) == m_hWnd;
}

BOOL CxShadeButton::IsCursorOver() const
{
    POINT cursor;
    return ::GetCursorPos(&cursor) && IsOver(cursor);
}

BOOL CxShadeButton::IsPushed()
{
    return (SendMessage(BM_GETSTATE) & BST_PUSHED) != 0;
}

BOOL CxShadeButton::HasCapture() const
{
    return ::GetCapture() == m_hWnd;
}

void CxShadeButton::TrackLeaving()
{
    TRACKMOUSEEVENT leaving = {sizeof(leaving), TME_LEAVE, m_hWnd, 0};
    if (!_TrackMouseEvent(&leaving))
        return;
    m_hover = TRUE;
    Invalidate();
}

/// What a click or the space bar does to a check box or radio button. Answers as Send.
BOOL CxShadeButton::Toggle()
{
    return Send(BM_SETCHECK, m_buttonKind == kindRadio || !m_checked);
}

/// Sends this button a message. FALSE: a handler of the host has ended the button meanwhile, and
/// perhaps this object with it.
BOOL CxShadeButton::Send(UINT message, WPARAM wParam)
{
    const HWND window = m_hWnd;
    SendMessage(message, wParam);
    return ::IsWindow(window);
}

/// Has the other buttons of the dialog group unchecked once the current message is done.
void CxShadeButton::UncheckGroup()
{
    umbra::ForEachOtherOfGroup(m_hWnd,
                               [](HWND other) { ::PostMessage(other, WM_SHADE_UNCHECK, 0, 0); });
}

void CxShadeButton::UpdateToolTipText()
{
    if (m_toolTip.GetSafeHwnd() == nullptr)
        return;
    const BOOL ownText = m_checked && !m_toolTipTextChecked.IsEmpty();
    m_toolTip.UpdateTipText(ownText ? m_toolTipTextChecked : m_toolTipText, this);
}

/// Passes a mouse message on to the tool tip, which may notify the host. Answers as Send.
BOOL CxShadeButton::RelayToolTipEvent(UINT message, WPARAM wParam, LPARAM lParam)
{
    return m_toolTip.GetSafeHwnd() == nullptr ||
           RelayToToolTip(m_toolTip, *this, message, wParam, lParam);
}
