// Asks for a printer and what to print.
#pragma once

#include <classes/CCommonDialog.h>

/// The system's dialog for printing, or the one for the printer alone. Set m_pd further before
/// DoModal. The blocks of memory in it and the device context are the caller's afterwards.
class AFX_EXPORTED CPrintDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CPrintDialog)

public:
    explicit CPrintDialog(BOOL bPrintSetupOnly,
                          DWORD dwFlags = PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOPAGENUMS |
                                          PD_HIDEPRINTTOFILE | PD_NOSELECTION,
                          CWnd* pParentWnd = NULL);

private:
    PRINTDLG print_; // Before the reference to it.

public:
    PRINTDLG& m_pd;

    /// IDOK or IDCANCEL; CommDlgExtendedError tells a failure, such as a lack of printers, from the
    /// user's choice.
    INT_PTR DoModal() override;
    /// Fills m_pd for the default printer, without a dialog; FALSE when there is none.
    BOOL GetDefaults();

    int GetCopies() const;
    BOOL PrintRange() const;
    BOOL PrintSelection() const;
    BOOL PrintAll() const;
    BOOL PrintCollate() const;
    /// -1 when no range is to be printed.
    int GetFromPage() const;
    int GetToPage() const;

    /// Locked; the caller calls GlobalUnlock on m_pd.hDevMode. NULL without a printer.
    LPDEVMODE GetDevMode() const;
    CString GetDriverName() const;
    CString GetDeviceName() const;
    CString GetPortName() const;
    HDC GetPrinterDC() const;
    /// Makes the device context of the chosen printer and keeps it in m_pd. NULL on failure.
    HDC CreatePrinterDC();
};
