// Asks for a printer and what to print, in the newer dialog with pages.
#pragma once

#include <classes/CCommonDialog.h>

/// The system's property sheet for printing. Set m_pdex further before DoModal. The blocks of
/// memory in it and the device context are the caller's afterwards.
class AFX_EXPORTED CPrintDialogEx : public CCommonDialog
{
    DECLARE_DYNAMIC(CPrintDialogEx)

public:
    explicit CPrintDialogEx(DWORD dwFlags = PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOPAGENUMS |
                                            PD_HIDEPRINTTOFILE | PD_NOSELECTION | PD_NOCURRENTPAGE,
                            CWnd* pParentWnd = NULL);

    PRINTDLGEX m_pdex;

    /// An HRESULT. After S_OK, m_pdex.dwResultAction tells which button ended the dialog.
    INT_PTR DoModal() override;
    /// Fills m_pdex for the default printer, without a dialog; FALSE when there is none.
    BOOL GetDefaults();

    int GetCopies() const;
    BOOL PrintCurrentPage() const;
    BOOL PrintRange() const;
    BOOL PrintSelection() const;
    BOOL PrintAll() const;
    BOOL PrintCollate() const;

    /// Locked; the caller calls GlobalUnlock on m_pdex.hDevMode. NULL without a printer.
    LPDEVMODE GetDevMode() const;
    CString GetDriverName() const;
    CString GetDeviceName() const;
    CString GetPortName() const;
    HDC GetPrinterDC() const;
    /// Makes the device context of the chosen printer and keeps it in m_pdex. NULL on failure.
    HDC CreatePrinterDC();
};
