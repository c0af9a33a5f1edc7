// Asks for a font.
#pragma once

#include <classes/CCommonDialog.h>

#include <richedit.h>

class CDC;

/// The system's dialog for fonts. Set m_cf further before DoModal.
class AFX_EXPORTED CFontDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CFontDialog)

public:
    /// With `lplfInitial` the dialog starts with that font and writes the user's choice back.
    explicit CFontDialog(LPLOGFONT lplfInitial = NULL, DWORD dwFlags = CF_EFFECTS | CF_SCREENFONTS,
                         CDC* pdcPrinter = NULL, CWnd* pParentWnd = NULL);
    explicit CFontDialog(const CHARFORMAT& charformat, DWORD dwFlags = CF_SCREENFONTS,
                         CDC* pdcPrinter = NULL, CWnd* pParentWnd = NULL);

    CHOOSEFONT m_cf;

    /// IDOK or IDCANCEL; CommDlgExtendedError tells a failure from the user's choice.
    INT_PTR DoModal() override;

    void GetCurrentFont(LPLOGFONT lplf);
    void GetCharFormat(CHARFORMAT& cf) const;
    CString GetFaceName() const;
    CString GetStyleName() const;
    /// In tenths of a point.
    int GetSize() const;
    COLORREF GetColor() const;
    int GetWeight() const;
    BOOL IsStrikeOut() const;
    BOOL IsUnderline() const;
    BOOL IsBold() const;
    BOOL IsItalic() const;

private:
    LOGFONT font_;
    TCHAR styleName_[64];
};
