// One transfer of values between a dialog's controls and the members of its object.
#pragma once

#include <classes/Platform.h>

class CWnd;

namespace afxint {
struct ExchangeAccess;
}

/// Passed to DoDataExchange: tells the direction and which control is in work.
class AFX_EXPORTED CDataExchange
{
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate);

    BOOL m_bSaveAndValidate; ///< TRUE from the controls to the members, FALSE the other way.
    CWnd* m_pDlgWnd;

    /// The control the next exchange is about. A missing one throws CNotSupportedException.
    HWND PrepareCtrl(int nIDC);
    /// The same for a control with text to edit.
    HWND PrepareEditCtrl(int nIDC);
    /// Ends the exchange: puts the focus into the last control and throws CUserException.
    [[noreturn]] void Fail();

private:
    friend struct afxint::ExchangeAccess;
    HWND lastControl_;
    BOOL editsLastControl_;
};
