#include <classes/CColorDialog.h>

#include "dialogs/CommonDialogHook.h"

#include <algorithm>
#include <iterator>

IMPLEMENT_DYNAMIC(CColorDialog, CCommonDialog)

CColorDialog::CColorDialog(COLORREF clrInit, DWORD dwFlags, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd), m_cc{}
{
    m_cc.lStructSize = sizeof(m_cc);
    m_cc.lpCustColors = GetSavedCustomColors();
    m_cc.Flags = dwFlags | CC_ENABLEHOOK;
    m_cc.lpfnHook = afxint::CommonDialogHook::Procedure;
    m_cc.rgbResult = clrInit;
    if (clrInit != 0)
        m_cc.Flags |= CC_RGBINIT;
}

INT_PTR CColorDialog::DoModal()
{
    return ShowSystemDialog([this](HWND owner) {
        m_cc.hwndOwner = owner;
        return ::ChooseColor(&m_cc);
    });
}

COLORREF CColorDialog::GetColor() const
{
    return m_cc.rgbResult;
}

void CColorDialog::SetCurrentColor(COLORREF clr)
{
    static const UINT setColor = ::RegisterWindowMessage(SETRGBSTRING);
    SendMessage(setColor, 0, clr);
}

COLORREF* PASCAL CColorDialog::GetSavedCustomColors()
{
    static COLORREF* const colors = [] {
        static COLORREF values[16];
        std::fill(std::begin(values), std::end(values), RGB(255, 255, 255));
        return values;
    }();
    return colors;
}

BOOL CColorDialog::OnColorOK()
{
    return FALSE;
}
