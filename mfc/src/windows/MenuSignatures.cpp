// The signatures of handlers of menus.
#include "windows/HandlerArguments.h"

namespace afxint::signature {

LRESULT InitMenu::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<InitMenu>(object, handler, MenuOf(d.wParam));
}

LRESULT InitMenuPopup::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<InitMenuPopup>(object, handler, MenuOf(d.wParam), UINT(LOWORD(d.lParam)),
                               BOOL(HIWORD(d.lParam)));
}

LRESULT MenuChar::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<MenuChar>(object, handler, UINT(LOWORD(d.wParam)), UINT(HIWORD(d.wParam)),
                         MenuOf(d.lParam));
}

LRESULT MenuDrag::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<MenuDrag>(object, handler, NumberOf(d.wParam), MenuOf(d.lParam));
}

LRESULT MenuGetObject::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<MenuGetObject>(object, handler, PointerOf<MENUGETOBJECTINFO*>(d.lParam));
}

LRESULT MenuRButtonUp::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<MenuRButtonUp>(object, handler, NumberOf(d.wParam), MenuOf(d.lParam));
}

LRESULT MenuSelect::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<MenuSelect>(object, handler, UINT(LOWORD(d.wParam)), UINT(HIWORD(d.wParam)),
                            PointerOf<HMENU>(d.lParam));
}

LRESULT NextMenu::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<NextMenu>(object, handler, NumberOf(d.wParam), PointerOf<LPMDINEXTMENU>(d.lParam));
}

LRESULT UnInitMenuPopup::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<UnInitMenuPopup>(object, handler, MenuOf(d.wParam), UINT(HIWORD(d.lParam)));
}

} // namespace afxint::signature
