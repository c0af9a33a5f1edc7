#include <classes/CPrintDialogEx.h>

#include "graphics/PrinterContext.h"

IMPLEMENT_DYNAMIC(CPrintDialogEx, CCommonDialog)

CPrintDialogEx::CPrintDialogEx(DWORD dwFlags, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd), m_pdex{}
{
    m_pdex.lStructSize = sizeof(m_pdex);
    m_pdex.Flags = dwFlags;
    m_pdex.nStartPage = START_PAGE_GENERAL;
}

INT_PTR CPrintDialogEx::DoModal()
{
    HRESULT result = E_FAIL;
    ShowSystemDialog([this, &result](HWND owner) {
        m_pdex.hwndOwner = owner;
        result = ::PrintDlgEx(&m_pdex);
        return result == S_OK;
    });
    return result;
}

BOOL CPrintDialogEx::GetDefaults()
{
    m_pdex.Flags |= PD_RETURNDEFAULT;
    if (m_pdex.hwndOwner == NULL) // Required, though nothing is shown.
        m_pdex.hwndOwner = ::GetDesktopWindow();
    return ::PrintDlgEx(&m_pdex) == S_OK;
}

int CPrintDialogEx::GetCopies() const
{
    if ((m_pdex.Flags & PD_USEDEVMODECOPIES) == 0)
        return static_cast<int>(m_pdex.nCopies);
    const LPDEVMODE mode = GetDevMode();
    if (mode == NULL)
        return static_cast<int>(m_pdex.nCopies);
    const int copies = mode->dmCopies;
    ::GlobalUnlock(m_pdex.hDevMode);
    return copies;
}

BOOL CPrintDialogEx::PrintCurrentPage() const
{
    return (m_pdex.Flags & PD_CURRENTPAGE) != 0;
}

BOOL CPrintDialogEx::PrintRange() const
{
    return (m_pdex.Flags & PD_PAGENUMS) != 0;
}

BOOL CPrintDialogEx::PrintSelection() const
{
    return (m_pdex.Flags & PD_SELECTION) != 0;
}

BOOL CPrintDialogEx::PrintAll() const
{
    return !PrintRange() && !PrintSelection() && !PrintCurrentPage();
}

BOOL CPrintDialogEx::PrintCollate() const
{
    return (m_pdex.Flags & PD_COLLATE) != 0;
}

LPDEVMODE CPrintDialogEx::GetDevMode() const
{
    return afxint::LockPrinterMode(m_pdex.hDevMode);
}

CString CPrintDialogEx::GetDriverName() const
{
    return afxint::PrinterDriver(m_pdex.hDevNames);
}

CString CPrintDialogEx::GetDeviceName() const
{
    return afxint::PrinterDevice(m_pdex.hDevNames);
}

CString CPrintDialogEx::GetPortName() const
{
    return afxint::PrinterPort(m_pdex.hDevNames);
}

HDC CPrintDialogEx::GetPrinterDC() const
{
    return m_pdex.hDC;
}

HDC CPrintDialogEx::CreatePrinterDC()
{
    m_pdex.hDC = afxint::CreatePrinterContext(m_pdex.hDevNames, m_pdex.hDevMode);
    return m_pdex.hDC;
}
