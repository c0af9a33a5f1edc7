#include "assist/Keyboard.h"

#include "assist/LinkKeys.h"
#include "assist/PushButtonKeys.h"
#include "assist/RadioButtonKeys.h"
#include "assist/Subclass.h"

#include "controls/HyperLink.h"
#include "controls/ShadeButton.h"
#include "controls/StaticTS.h"
#include "resources/resource.h"

namespace {

LRESULT CALLBACK ServePage(HWND page, UINT message, WPARAM wParam, LPARAM lParam);

umbra::Subclassing keys(ServePage);

/// The standard captions that have a mnemonic; the others are pressed by Enter and Esc.
constexpr struct
{
    LPCTSTR plain;
    LPCTSTR withMnemonic;
} captions[] = {{_T("Confirm"), _T("&Confirm")},
                {_T("Next"), _T("&Next")},
                {_T("Proceed"), _T("&Proceed")},
                {_T("Back"), _T("&Back")},
                {_T("Close"), _T("C&lose")}};

void GiveMnemonic(HWND button)
{
    if (button == nullptr)
        return;
    TCHAR text[16] = _T("");
    ::GetWindowText(button, text, _countof(text));
    for (const auto& caption : captions) {
        if (lstrcmp(text, caption.plain) == 0)
            ::SetWindowText(button, caption.withMnemonic);
    }
}

void Serve(HWND control)
{
    CWnd* object = CWnd::FromHandlePermanent(control);
    if (const auto* button = dynamic_cast<CxShadeButton*>(object)) {
        if (button->GetKind() == CxShadeButton::kindPush)
            umbra::ServePushButton(control);
        else if (button->GetKind() == CxShadeButton::kindRadio)
            umbra::ServeRadioButton(control);
    } else if (dynamic_cast<CHyperLink*>(object) != nullptr ||
               dynamic_cast<CStaticTS*>(object) != nullptr) {
        umbra::ServeLink(control);
    }
}

void ServeControls(HWND page)
{
    for (HWND control = ::GetWindow(page, GW_CHILD); control != nullptr;
         control = ::GetWindow(control, GW_HWNDNEXT))
        Serve(control);
}

/// Lets a button know that it is the default one, which the system does not tell it.
LRESULT DrawMarked(HWND page, WPARAM id, DRAWITEMSTRUCT item)
{
    if (item.CtlType == ODT_BUTTON && umbra::IsDefaultButton(item.hwndItem))
        item.itemState |= ODS_DEFAULT;
    return keys.PassOn(page, WM_DRAWITEM, id, reinterpret_cast<LPARAM>(&item));
}

LRESULT CALLBACK ServePage(HWND page, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_PARENTNOTIFY && LOWORD(wParam) == WM_CREATE)
        Serve(reinterpret_cast<HWND>(lParam));
    if (message == WM_DRAWITEM)
        return DrawMarked(page, wParam, *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
    if (message != DM_SETDEFID)
        return keys.PassOn(page, message, wParam, lParam);
    umbra::RepaintDefaultButton(page);
    const LRESULT result = keys.PassOn(page, message, wParam, lParam);
    umbra::RepaintDefaultButton(page);
    return result;
}

} // namespace

BOOL AssistKeyboard(CWnd& page)
{
    const HWND window = page.GetSafeHwnd();
    if (window == nullptr)
        return FALSE;
    ServeControls(window);
    for (const int id : {IDOK, IDCANCEL, IDC_BACK})
        GiveMnemonic(::GetDlgItem(window, id));
    return keys.Serve(window);
}
