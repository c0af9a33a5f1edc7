#include <classes/CDataExchange.h>

#include <classes/CException.h>
#include <classes/CWnd.h>

CDataExchange::CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
    : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd), m_hWndLastControl(NULL),
      m_bEditLastControl(FALSE)
{
}

HWND CDataExchange::PrepareCtrl(int nIDC)
{
    const HWND control = ::GetDlgItem(m_pDlgWnd->m_hWnd, nIDC);
    if (control == NULL)
        AfxThrowNotSupportedException();
    m_hWndLastControl = control;
    m_bEditLastControl = FALSE;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC)
{
    const HWND control = PrepareCtrl(nIDC);
    m_bEditLastControl = TRUE;
    return control;
}

void CDataExchange::Fail()
{
    if (m_bSaveAndValidate && m_hWndLastControl != NULL) {
        ::SetFocus(m_hWndLastControl);
        if (m_bEditLastControl)
            ::SendMessage(m_hWndLastControl, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}
