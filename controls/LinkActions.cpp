#include "controls/LinkActions.h"

#include "shell/HandCursor.h"

void ShowHandCursor()
{
    if (const HCURSOR hand = LoadHandCursor())
        ::SetCursor(hand);
}

CString TrimTarget(CString target)
{
    target.TrimLeft();
    target.TrimRight();
    return target;
}

void TraceUnreachableLink(const CWnd& label)
{
#ifdef _DEBUG
    if (label.GetSafeHwnd() != nullptr && (label.GetStyle() & SS_NOTIFY) == 0)
        TRACE(_T("Umbra: link label %d lacks SS_NOTIFY and can never be clicked.\n"),
              label.GetDlgCtrlID());
#else
    (void)label;
#endif
}
