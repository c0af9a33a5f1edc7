#include <classes/CCommonDialog.h>

#include <classes/CColorDialog.h>
#include <classes/CFileDialog.h>

#include "dialogs/CommonDialogHook.h"

#include <utility>

namespace {

/// The object whose window is still to come.
thread_local CCommonDialog* awaitingWindow = NULL;

} // namespace

UINT_PTR CALLBACK afxint::CommonDialogHook::Procedure(HWND window, UINT message, WPARAM wParam,
                                                      LPARAM lParam)
{
    static const UINT colorOk = ::RegisterWindowMessage(COLOROKSTRING);
    static const UINT listSelection = ::RegisterWindowMessage(LBSELCHSTRING);

    if (message == WM_INITDIALOG) {
        CCommonDialog* dialog = std::exchange(awaitingWindow, nullptr);
        if (dialog == NULL || !dialog->SubclassWindow(window))
            return FALSE;
        return dialog->OnInitDialog();
    }
    CWnd* object = CWnd::FromHandlePermanent(window);
    if (message == colorOk) {
        CColorDialog* dialog = DYNAMIC_DOWNCAST(CColorDialog, object);
        return dialog != NULL && dialog->OnColorOK();
    }
    if (message == listSelection) {
        if (CFileDialog* dialog = DYNAMIC_DOWNCAST(CFileDialog, object))
            dialog->OnLBSelChangedNotify(wParam, LOWORD(lParam), HIWORD(lParam));
    }
    return FALSE;
}

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)

CCommonDialog::CCommonDialog(CWnd* pParentWnd) : CDialog(static_cast<UINT>(0), pParentWnd)
{
}

void CCommonDialog::OnOK()
{
    Default();
}

void CCommonDialog::OnCancel()
{
    Default();
}

INT_PTR CCommonDialog::ShowSystemDialog(BOOL (*show)(CCommonDialog* dialog, HWND owner))
{
    const HWND owner = PreModal();
    awaitingWindow = this;
    const BOOL confirmed = show(this, owner);
    awaitingWindow = NULL; // A dialog that failed, or whose hook was taken out, left it there.
    PostModal();
    return confirmed ? IDOK : IDCANCEL;
}
