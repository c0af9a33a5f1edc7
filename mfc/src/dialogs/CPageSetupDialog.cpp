#include <classes/CPageSetupDialog.h>

#include <classes/CDC.h>

#include "dialogs/CommonDialogHook.h"
#include "graphics/PrinterContext.h"
#include "threads/SystemCall.h"

IMPLEMENT_DYNAMIC(CPageSetupDialog, CCommonDialog)

CPageSetupDialog::CPageSetupDialog(DWORD dwFlags, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd), m_psd{}
{
    m_psd.lStructSize = sizeof(m_psd);
    m_psd.Flags = dwFlags | PSD_ENABLEPAGESETUPHOOK | PSD_ENABLEPAGEPAINTHOOK;
    m_psd.lpfnPageSetupHook = afxint::CommonDialogHook::Procedure;
    m_psd.lpfnPagePaintHook = PaintHook;
}

INT_PTR CPageSetupDialog::DoModal()
{
    return ShowSystemDialog([this](HWND owner) {
        m_psd.hwndOwner = owner;
        return ::PageSetupDlg(&m_psd);
    });
}

LPDEVMODE CPageSetupDialog::GetDevMode() const
{
    return afxint::LockPrinterMode(m_psd.hDevMode);
}

CString CPageSetupDialog::GetDriverName() const
{
    return afxint::PrinterDriver(m_psd.hDevNames);
}

CString CPageSetupDialog::GetDeviceName() const
{
    return afxint::PrinterDevice(m_psd.hDevNames);
}

CString CPageSetupDialog::GetPortName() const
{
    return afxint::PrinterPort(m_psd.hDevNames);
}

HDC CPageSetupDialog::CreatePrinterDC()
{
    return afxint::CreatePrinterContext(m_psd.hDevNames, m_psd.hDevMode);
}

CSize CPageSetupDialog::GetPaperSize() const
{
    return CSize(m_psd.ptPaperSize);
}

void CPageSetupDialog::GetMargins(LPRECT lpRectMargins, LPRECT lpRectMinMargins) const
{
    if (lpRectMargins != NULL)
        *lpRectMargins = m_psd.rtMargin;
    if (lpRectMinMargins != NULL)
        *lpRectMinMargins = m_psd.rtMinMargin;
}

UINT CPageSetupDialog::PreDrawPage(WORD, WORD, LPPAGESETUPDLG)
{
    return 0;
}

UINT CPageSetupDialog::OnDrawPage(CDC*, UINT, LPRECT)
{
    return 0;
}

UINT_PTR CALLBACK CPageSetupDialog::PaintHook(HWND window, UINT message, WPARAM wParam,
                                              LPARAM lParam)
{
    // Systems give the dialog, or the sample page in it.
    CPageSetupDialog* dialog = NULL;
    for (HWND at = window; at != NULL && dialog == NULL; at = ::GetParent(at))
        dialog = DYNAMIC_DOWNCAST(CPageSetupDialog, CWnd::FromHandlePermanent(at));
    if (dialog == NULL)
        return 0;
    MSG current{};
    current.hwnd = window;
    current.message = message;
    current.wParam = wParam;
    current.lParam = lParam;
    return afxint::CalledBySystem(current, UINT{0},
                                  [&] { return dialog->AnswerPainting(current); });
}

UINT CPageSetupDialog::AnswerPainting(const MSG& message)
{
    switch (message.message) {
    case WM_PSD_PAGESETUPDLG:
        return PreDrawPage(LOWORD(message.wParam), HIWORD(message.wParam),
                           reinterpret_cast<LPPAGESETUPDLG>(message.lParam));
    case WM_PSD_FULLPAGERECT:
    case WM_PSD_MINMARGINRECT:
    case WM_PSD_MARGINRECT:
    case WM_PSD_GREEKTEXTRECT:
    case WM_PSD_ENVSTAMPRECT:
    case WM_PSD_YAFULLPAGERECT:
        return OnDrawPage(CDC::FromHandle(reinterpret_cast<HDC>(message.wParam)), message.message,
                          reinterpret_cast<LPRECT>(message.lParam));
    default:
        return 0;
    }
}
