#include <classes/CFontDialog.h>

#include <classes/CDC.h>

#include "dialogs/CommonDialogHook.h"

namespace {

constexpr int twipsPerInch = 1440;

/// The vertical resolution, of the screen when there is no printer.
int DotsPerInch(HDC printer)
{
    if (printer != NULL)
        return ::GetDeviceCaps(printer, LOGPIXELSY);
    const HDC screen = ::GetDC(NULL);
    const int dots = ::GetDeviceCaps(screen, LOGPIXELSY);
    ::ReleaseDC(NULL, screen);
    return dots;
}

LOGFONT FontOfFormat(const CHARFORMAT& format, HDC printer)
{
    LOGFONT font = {};
    if (format.dwMask & CFM_SIZE)
        font.lfHeight = -::MulDiv(format.yHeight, DotsPerInch(printer), twipsPerInch);
    font.lfWeight = FW_NORMAL;
    if ((format.dwMask & CFM_BOLD) && (format.dwEffects & CFE_BOLD))
        font.lfWeight = FW_BOLD;
    font.lfItalic = (format.dwMask & CFM_ITALIC) && (format.dwEffects & CFE_ITALIC);
    font.lfUnderline = (format.dwMask & CFM_UNDERLINE) && (format.dwEffects & CFE_UNDERLINE);
    font.lfStrikeOut = (format.dwMask & CFM_STRIKEOUT) && (format.dwEffects & CFE_STRIKEOUT);
    font.lfCharSet = DEFAULT_CHARSET;
    if (format.dwMask & CFM_FACE) {
        font.lfCharSet = format.bCharSet;
        font.lfPitchAndFamily = format.bPitchAndFamily;
        lstrcpyn(font.lfFaceName, format.szFaceName, LF_FACESIZE);
    }
    return font;
}

} // namespace

IMPLEMENT_DYNAMIC(CFontDialog, CCommonDialog)

CFontDialog::CFontDialog(LPLOGFONT lplfInitial, DWORD dwFlags, CDC* pdcPrinter, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd), m_cf{}, font_{}, styleName_{}
{
    m_cf.lStructSize = sizeof(m_cf);
    m_cf.Flags = dwFlags | CF_ENABLEHOOK;
    m_cf.lpfnHook = afxint::CommonDialogHook::Procedure;
    m_cf.lpszStyle = styleName_;
    m_cf.lpLogFont = &font_;
    if (lplfInitial != NULL) {
        m_cf.lpLogFont = lplfInitial;
        m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
    }
    if (pdcPrinter != NULL) {
        m_cf.hDC = pdcPrinter->GetSafeHdc();
        m_cf.Flags |= CF_PRINTERFONTS;
    }
}

CFontDialog::CFontDialog(const CHARFORMAT& charformat, DWORD dwFlags, CDC* pdcPrinter,
                         CWnd* pParentWnd)
    : CFontDialog(static_cast<LPLOGFONT>(NULL), dwFlags, pdcPrinter, pParentWnd)
{
    font_ = FontOfFormat(charformat, m_cf.hDC);
    m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
    if ((charformat.dwMask & CFM_COLOR) && !(charformat.dwEffects & CFE_AUTOCOLOR))
        m_cf.rgbColors = charformat.crTextColor;
}

INT_PTR CFontDialog::DoModal()
{
    return ShowSystemDialog([this](HWND owner) {
        m_cf.hwndOwner = owner;
        return ::ChooseFont(&m_cf);
    });
}

void CFontDialog::GetCurrentFont(LPLOGFONT lplf)
{
    if (m_hWnd != NULL)
        SendMessage(WM_CHOOSEFONT_GETLOGFONT, 0, reinterpret_cast<LPARAM>(lplf));
    else
        *lplf = *m_cf.lpLogFont;
}

void CFontDialog::GetCharFormat(CHARFORMAT& cf) const
{
    cf = {};
    cf.cbSize = sizeof(cf);
    cf.dwMask = CFM_SIZE | CFM_FACE | CFM_BOLD | CFM_ITALIC | CFM_UNDERLINE | CFM_STRIKEOUT;
    cf.yHeight = GetSize() * 2; // Tenths of a point to twips.
    if (IsBold())
        cf.dwEffects |= CFE_BOLD;
    if (IsItalic())
        cf.dwEffects |= CFE_ITALIC;
    if (IsUnderline())
        cf.dwEffects |= CFE_UNDERLINE;
    if (IsStrikeOut())
        cf.dwEffects |= CFE_STRIKEOUT;
    if (m_cf.Flags & CF_EFFECTS) {
        cf.dwMask |= CFM_COLOR;
        cf.crTextColor = GetColor();
    }
    cf.bCharSet = m_cf.lpLogFont->lfCharSet;
    cf.bPitchAndFamily = m_cf.lpLogFont->lfPitchAndFamily;
    lstrcpyn(cf.szFaceName, m_cf.lpLogFont->lfFaceName, LF_FACESIZE);
}

CString CFontDialog::GetFaceName() const
{
    return m_cf.lpLogFont->lfFaceName;
}

CString CFontDialog::GetStyleName() const
{
    return m_cf.lpszStyle;
}

int CFontDialog::GetSize() const
{
    return m_cf.iPointSize;
}

COLORREF CFontDialog::GetColor() const
{
    return m_cf.rgbColors;
}

int CFontDialog::GetWeight() const
{
    return m_cf.lpLogFont->lfWeight;
}

BOOL CFontDialog::IsStrikeOut() const
{
    return m_cf.lpLogFont->lfStrikeOut;
}

BOOL CFontDialog::IsUnderline() const
{
    return m_cf.lpLogFont->lfUnderline;
}

BOOL CFontDialog::IsBold() const
{
    return m_cf.lpLogFont->lfWeight > FW_MEDIUM;
}

BOOL CFontDialog::IsItalic() const
{
    return m_cf.lpLogFont->lfItalic;
}
