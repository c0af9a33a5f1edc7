#include "gallery/LabelText.h"

void SetLabelText(CWnd& label, const CString& text)
{
    if (label.GetSafeHwnd() == nullptr)
        return; // It could not be bound.
    CString before;
    label.GetWindowText(before);
    if (text == before)
        return;
    label.SetWindowText(text);
    CWnd* page = label.GetParent();
    if (page == nullptr)
        return;
    CRect place;
    label.GetWindowRect(&place);
    page->ScreenToClient(&place);
    page->InvalidateRect(&place, TRUE);
}
