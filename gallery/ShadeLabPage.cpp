#include "gallery/ShadeLabPage.h"

#include "gallery/Images.h"
#include "gallery/ShadeStyles.h"

#include <string.h>

BEGIN_MESSAGE_MAP(CShadeLabPage, CGalleryPage)
    ON_WM_HSCROLL()
    ON_CBN_SELCHANGE(IDC_STYLE, &CShadeLabPage::OnStyle)
    ON_BN_CLICKED(IDC_COPY, &CShadeLabPage::OnCopy)
    ON_BN_CLICKED(IDC_RESET, &CShadeLabPage::OnReset)
END_MESSAGE_MAP()

namespace {

const int byteMax = 255;
const int percentMax = 100;
const int sliderMaxima[] = {byteMax, percentMax, percentMax, byteMax, byteMax, byteMax};
const int pictureSize = 19; // Pixels.
#ifdef UNICODE
const UINT textFormat = CF_UNICODETEXT;
#else
const UINT textFormat = CF_TEXT;
#endif

bool CopyText(CWnd& owner, const CString& text)
{
    if (!owner.OpenClipboard())
        return false;
    bool copied = false;
    const size_t size = (text.GetLength() + 1) * sizeof(TCHAR);
    if (const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, size)) {
        memcpy(::GlobalLock(block), static_cast<LPCTSTR>(text), size);
        ::GlobalUnlock(block);
        ::EmptyClipboard();
        copied = ::SetClipboardData(textFormat, block) != nullptr;
        if (!copied)
            ::GlobalFree(block);
    }
    ::CloseClipboard();
    return copied;
}

} // namespace

CShadeLabPage::CShadeLabPage(CWnd* parent) : CGalleryPage(IDD_SHADE_LAB, parent)
{
}

BOOL CShadeLabPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    ApplyButtonShade(m_btnCopy);
    ApplyButtonShade(m_btnReset);
    for (const ShadeStyleName& style : shadeStyles) {
        CString item;
        item.Format(_T("%d  %s"), static_cast<int>(style.style), style.text);
        m_style.AddString(item);
    }
    for (int i = 0; i < sliderCount; ++i)
        m_sliders[i].SetRange(0, sliderMaxima[i]);
    m_live[2].SetPicture(PictureFile(_T("Ok.gif")), CxShadeButton::alignLeft, pictureSize,
                         pictureSize, RGB(0, 0, 0));
    OnReset();
    return TRUE;
}

void CShadeLabPage::Choose(int style, int granularity, int highlight, int coloring, COLORREF tint)
{
    m_style.SetCurSel(style);
    const int values[] = {granularity,     highlight,       coloring,
                          GetRValue(tint), GetGValue(tint), GetBValue(tint)};
    for (int i = 0; i < sliderCount; ++i)
        m_sliders[i].SetPos(values[i]);
    ApplyShade();
}

void CShadeLabPage::DoDataExchange(CDataExchange* pDX)
{
    CGalleryPage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_STYLE, m_style);
    for (int i = 0; i < sliderCount; ++i)
        DDX_Control(pDX, IDC_GRANULARITY + i, m_sliders[i]);
    for (int i = 0; i < static_cast<int>(_countof(m_live)); ++i)
        DDX_Control(pDX, IDC_LIVE_FIRST + i, m_live[i]);
    DDX_Control(pDX, IDC_COPY, m_btnCopy);
    DDX_Control(pDX, IDC_RESET, m_btnReset);
}

void CShadeLabPage::DrawBackdrop(CDC& dc)
{
    CGalleryPage::DrawBackdrop(dc);
    CRect swatch = PlaceOf(IDC_SWATCH);
    dc.FillSolidRect(&swatch, palette::line);
    swatch.DeflateRect(1, 1);
    dc.FillSolidRect(&swatch, Tint());
}

void CShadeLabPage::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    CGalleryPage::OnHScroll(nSBCode, nPos, pScrollBar);
    ApplyShade();
}

void CShadeLabPage::OnStyle()
{
    ApplyShade();
}

void CShadeLabPage::OnCopy()
{
    SetLabelText(m_footnote, CopyText(*this, CallText())
                                 ? _T("The call is on the clipboard.")
                                 : _T("The clipboard is not to be had at the moment."));
}

void CShadeLabPage::OnReset()
{
    Choose(SHADE_DIAGONAL, 8, 30, 50, g_crShade);
}

int CShadeLabPage::Value(int sliderId) const
{
    return m_sliders[sliderId - IDC_GRANULARITY].GetPos();
}

COLORREF CShadeLabPage::Tint() const
{
    return RGB(Value(IDC_RED), Value(IDC_GREEN), Value(IDC_BLUE));
}

CString CShadeLabPage::CallText() const
{
    const int style = max(0, m_style.GetCurSel());
    CString text;
    text.Format(_T("SetShade(%s, %d, %d, %d, RGB(%d, %d, %d));"), shadeStyles[style].name,
                Value(IDC_GRANULARITY), Value(IDC_HIGHLIGHT), Value(IDC_COLORING), Value(IDC_RED),
                Value(IDC_GREEN), Value(IDC_BLUE));
    return text;
}

void CShadeLabPage::ApplyShade()
{
    const int style = max(0, m_style.GetCurSel());
    for (CxShadeButton& live : m_live) {
        live.SetShade(shadeStyles[style].style, static_cast<BYTE>(Value(IDC_GRANULARITY)),
                      static_cast<BYTE>(Value(IDC_HIGHLIGHT)),
                      static_cast<BYTE>(Value(IDC_COLORING)), Tint());
        live.Invalidate(FALSE);
    }
    for (int i = 0; i < sliderCount; ++i)
        SetDlgItemInt(IDC_VALUE_FIRST + i, m_sliders[i].GetPos());
    SetDlgItemText(IDC_CALL, CallText());
    InvalidateRect(PlaceOf(IDC_SWATCH), TRUE);
}
