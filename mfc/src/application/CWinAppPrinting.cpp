// The printer that the program uses.
#include <classes/CWinApp.h>

#include <classes/CDC.h>
#include <classes/CPrintDialog.h>

#include "graphics/PrinterContext.h"

BOOL CWinApp::GetPrinterDeviceDefaults(PRINTDLG* pPrintDlg)
{
    if (printerNames_ == NULL) {
        CPrintDialog dialog(TRUE, PD_NOWARNING); // A program may start where there is no printer.
        if (dialog.GetDefaults())
            SelectPrinter(dialog.m_pd.hDevNames, dialog.m_pd.hDevMode);
    }
    pPrintDlg->hDevNames = printerNames_;
    pPrintDlg->hDevMode = printerMode_;
    return printerNames_ != NULL;
}

BOOL CWinApp::CreatePrinterDC(CDC& dc)
{
    PRINTDLG printer{};
    if (!GetPrinterDeviceDefaults(&printer))
        return FALSE;
    const HDC context = afxint::CreatePrinterContext(printer.hDevNames, printer.hDevMode);
    return context != NULL && dc.Attach(context);
}

void CWinApp::SelectPrinter(HANDLE hDevNames, HANDLE hDevMode, BOOL bFreeOld)
{
    if (printerNames_ != hDevNames && printerNames_ != NULL && bFreeOld)
        ::GlobalFree(printerNames_);
    if (printerMode_ != hDevMode && printerMode_ != NULL && bFreeOld)
        ::GlobalFree(printerMode_);
    printerNames_ = hDevNames;
    printerMode_ = hDevMode;
}

INT_PTR CWinApp::DoPrintDialog(CPrintDialog* pPD)
{
    GetPrinterDeviceDefaults(&pPD->m_pd);
    const INT_PTR answer = pPD->DoModal();
    // The dialog may have changed or replaced the blocks, also when it was cancelled.
    printerNames_ = pPD->m_pd.hDevNames;
    printerMode_ = pPD->m_pd.hDevMode;
    return answer;
}

void CWinApp::OnFilePrintSetup()
{
    CPrintDialog dialog(TRUE);
    DoPrintDialog(&dialog);
}
