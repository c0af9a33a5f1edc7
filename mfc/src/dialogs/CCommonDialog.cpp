#include <classes/CCommonDialog.h>

#include <classes/CColorDialog.h>
#include <classes/CFileDialog.h>

#include "dialogs/CommonDialogHook.h"
#include "threads/SystemCall.h"
#include "threads/ThreadState.h"
#include "windows/ModalScope.h"

#include <utility>

afxint::CommonDialogHook::Awaiting::Awaiting(CCommonDialog* dialog)
{
    CurrentThread().awaited = dialog;
}

afxint::CommonDialogHook::Awaiting::~Awaiting()
{
    CurrentThread().awaited =
        NULL; // A dialog that failed, or whose hook was taken out, left it there.
}

UINT_PTR CALLBACK afxint::CommonDialogHook::Procedure(HWND window, UINT message, WPARAM wParam,
                                                      LPARAM lParam)
{
    MSG current{};
    current.hwnd = window;
    current.message = message;
    current.wParam = wParam;
    current.lParam = lParam;
    return CalledBySystem(current, UINT_PTR{0}, [&] { return Handle(current); });
}

UINT_PTR afxint::CommonDialogHook::Handle(const MSG& message)
{
    static const UINT colorOk = ::RegisterWindowMessage(COLOROKSTRING);
    static const UINT listSelection = ::RegisterWindowMessage(LBSELCHSTRING);

    if (message.message == WM_INITDIALOG) {
        CCommonDialog* dialog = std::exchange(CurrentThread().awaited, nullptr);
        if (dialog == NULL || !dialog->SubclassWindow(message.hwnd))
            return FALSE;
        return dialog->OnInitDialog();
    }
    CWnd* object = CWnd::FromHandlePermanent(message.hwnd);
    if (message.message == colorOk) {
        CColorDialog* dialog = DYNAMIC_DOWNCAST(CColorDialog, object);
        return dialog != NULL && dialog->OnColorOK();
    }
    if (message.message == listSelection) {
        if (CFileDialog* dialog = DYNAMIC_DOWNCAST(CFileDialog, object))
            dialog->OnLBSelChangedNotify(message.wParam, LOWORD(message.lParam),
                                         HIWORD(message.lParam));
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

INT_PTR CCommonDialog::ShowSystemDialog(const std::function<BOOL(HWND owner)>& show)
{
    afxint::DisabledWindow top;
    const HWND owner = GetSafeOwner(parent_, top.Receive())->GetSafeHwnd();
    const afxint::CommonDialogHook::Awaiting awaiting(this);
    return show(owner) ? IDOK : IDCANCEL;
}
