#include <classes/CPrintDialog.h>

#include "dialogs/CommonDialogHook.h"
#include "graphics/PrinterContext.h"

IMPLEMENT_DYNAMIC(CPrintDialog, CCommonDialog)

CPrintDialog::CPrintDialog(BOOL bPrintSetupOnly, DWORD dwFlags, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd), print_{}, m_pd(print_)
{
    m_pd.lStructSize = sizeof(m_pd);
    m_pd.Flags = (dwFlags | PD_ENABLEPRINTHOOK | PD_ENABLESETUPHOOK) & ~PD_RETURNIC;
    m_pd.Flags |= bPrintSetupOnly ? PD_PRINTSETUP : PD_RETURNDC;
    m_pd.lpfnPrintHook = afxint::CommonDialogHook::Procedure;
    m_pd.lpfnSetupHook = afxint::CommonDialogHook::Procedure;
}

INT_PTR CPrintDialog::DoModal()
{
    return ShowSystemDialog([this](HWND owner) {
        m_pd.hwndOwner = owner;
        return ::PrintDlg(&m_pd);
    });
}

BOOL CPrintDialog::GetDefaults()
{
    m_pd.Flags |= PD_RETURNDEFAULT;
    return ::PrintDlg(&m_pd);
}

int CPrintDialog::GetCopies() const
{
    if ((m_pd.Flags & PD_USEDEVMODECOPIES) == 0)
        return m_pd.nCopies;
    const LPDEVMODE mode = GetDevMode();
    if (mode == NULL)
        return m_pd.nCopies;
    const int copies = mode->dmCopies;
    ::GlobalUnlock(m_pd.hDevMode);
    return copies;
}

BOOL CPrintDialog::PrintRange() const
{
    return (m_pd.Flags & PD_PAGENUMS) != 0;
}

BOOL CPrintDialog::PrintSelection() const
{
    return (m_pd.Flags & PD_SELECTION) != 0;
}

BOOL CPrintDialog::PrintAll() const
{
    return !PrintRange() && !PrintSelection();
}

BOOL CPrintDialog::PrintCollate() const
{
    return (m_pd.Flags & PD_COLLATE) != 0;
}

int CPrintDialog::GetFromPage() const
{
    return PrintRange() ? m_pd.nFromPage : -1;
}

int CPrintDialog::GetToPage() const
{
    return PrintRange() ? m_pd.nToPage : -1;
}

LPDEVMODE CPrintDialog::GetDevMode() const
{
    return afxint::LockPrinterMode(m_pd.hDevMode);
}

CString CPrintDialog::GetDriverName() const
{
    return afxint::PrinterDriver(m_pd.hDevNames);
}

CString CPrintDialog::GetDeviceName() const
{
    return afxint::PrinterDevice(m_pd.hDevNames);
}

CString CPrintDialog::GetPortName() const
{
    return afxint::PrinterPort(m_pd.hDevNames);
}

HDC CPrintDialog::GetPrinterDC() const
{
    return m_pd.hDC;
}

HDC CPrintDialog::CreatePrinterDC()
{
    m_pd.hDC = afxint::CreatePrinterContext(m_pd.hDevNames, m_pd.hDevMode);
    return m_pd.hDC;
}
