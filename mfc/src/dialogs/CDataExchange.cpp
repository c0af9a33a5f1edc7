#include <classes/CDataExchange.h>

#include <classes/CException.h>
#include <classes/CWnd.h>

CDataExchange::CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
    : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd), lastControl_(NULL),
      editsLastControl_(FALSE)
{
}

HWND CDataExchange::PrepareCtrl(int nIDC)
{
    const HWND control = ::GetDlgItem(m_pDlgWnd->m_hWnd, nIDC);
    if (control == NULL)
        AfxThrowNotSupportedException();
    lastControl_ = control;
    editsLastControl_ = FALSE;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC)
{
    const HWND control = PrepareCtrl(nIDC);
    editsLastControl_ = TRUE;
    return control;
}

void CDataExchange::Fail()
{
    if (m_bSaveAndValidate && lastControl_ != NULL) {
        ::SetFocus(lastControl_);
        if (editsLastControl_)
            ::SendMessage(lastControl_, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}
