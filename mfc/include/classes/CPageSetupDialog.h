// Asks for the paper and its margins.
#pragma once

#include <classes/CCommonDialog.h>
#include <classes/CSize.h>

/// The system's dialog for the page. Set m_psd further before DoModal. The blocks of memory in it
/// are the caller's afterwards.
class AFX_EXPORTED CPageSetupDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CPageSetupDialog)

public:
    explicit CPageSetupDialog(DWORD dwFlags = PSD_MARGINS | PSD_INWININIINTLMEASURE,
                              CWnd* pParentWnd = NULL);

    PAGESETUPDLG m_psd;

    /// IDOK or IDCANCEL; CommDlgExtendedError tells a failure, such as a lack of printers, from the
    /// user's choice.
    INT_PTR DoModal() override;

    /// Locked; the caller calls GlobalUnlock on m_psd.hDevMode. NULL without a printer.
    LPDEVMODE GetDevMode() const;
    CString GetDriverName() const;
    CString GetDeviceName() const;
    CString GetPortName() const;
    /// The caller deletes it. NULL on failure.
    HDC CreatePrinterDC();
    /// In thousandths of inches or hundredths of millimetres, as the flags of m_psd tell.
    CSize GetPaperSize() const;
    /// Either may be NULL.
    void GetMargins(LPRECT lpRectMargins, LPRECT lpRectMinMargins) const;

    /// To be overridden: the sample page is about to be drawn. Other than 0 leaves it empty.
    virtual UINT PreDrawPage(WORD wPaper, WORD wFlags, LPPAGESETUPDLG pPSD);
    /// To be overridden: draws a part of the sample page, which the message names (WM_PSD_...).
    /// Other than 0 keeps the system from drawing that part, or all that is left.
    virtual UINT OnDrawPage(CDC* pDC, UINT nMessage, LPRECT lpRect);

private:
    static UINT_PTR CALLBACK PaintHook(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    UINT AnswerPainting(const MSG& message);
};
