// Asks for a colour.
#pragma once

#include <classes/CCommonDialog.h>

/// The system's dialog for colours. Set m_cc further before DoModal.
class AFX_EXPORTED CColorDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CColorDialog)

public:
    explicit CColorDialog(COLORREF clrInit = 0, DWORD dwFlags = 0, CWnd* pParentWnd = NULL);

    CHOOSECOLOR m_cc;

    /// IDOK or IDCANCEL; CommDlgExtendedError tells a failure from the user's choice.
    INT_PTR DoModal() override;

    COLORREF GetColor() const;
    /// While the dialog is open.
    void SetCurrentColor(COLORREF clr);
    /// The sixteen colours of the user's own; they live as long as the program.
    static COLORREF* PASCAL GetSavedCustomColors();

protected:
    /// Returning TRUE keeps the dialog open.
    virtual BOOL OnColorOK();

private:
    friend struct afxint::CommonDialogHook;
};
