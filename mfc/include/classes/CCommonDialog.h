// The base of the system's common dialogs.
#pragma once

#include <classes/CDialog.h>

namespace afxint {
struct CommonDialogHook;
}

/// What the dialogs for files, colours and fonts share.
class CCommonDialog : public CDialog
{
    DECLARE_DYNAMIC(CCommonDialog)

public:
    explicit CCommonDialog(CWnd* pParentWnd);

protected:
    // The system's dialog ends by itself.
    void OnOK() override;
    void OnCancel() override;
};
