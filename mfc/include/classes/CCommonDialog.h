// The base of the system's common dialogs.
#pragma once

#include <classes/CDialog.h>

#include <functional>

namespace afxint {
struct CommonDialogHook;
}

/// What the dialogs for files, colours, fonts, printing and finding share. The object is put around
/// the system's dialog when that is about to appear; OnInitDialog is called then.
class AFX_EXPORTED CCommonDialog : public CDialog
{
    DECLARE_DYNAMIC(CCommonDialog)

public:
    explicit CCommonDialog(CWnd* pParentWnd);

protected:
    // The system's dialog ends by itself.
    void OnOK() override;
    void OnCancel() override;

private:
    friend class CColorDialog;
    friend class CFileDialog;
    friend class CFindReplaceDialog;
    friend class CFontDialog;
    friend class CPageSetupDialog;
    friend class CPrintDialog;
    friend class CPrintDialogEx;
    friend struct afxint::CommonDialogHook;

    /// Shows the system's dialog with what a modal dialog covers disabled.
    INT_PTR ShowSystemDialog(const std::function<BOOL(HWND owner)>& show);
};
