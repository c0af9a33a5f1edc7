// The signatures of handlers of what controls ask and tell their parents, and of its reflection.
#include "windows/HandlerArguments.h"

namespace afxint::signature {

LRESULT CompareItem::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<CompareItem>(object, handler, static_cast<int>(d.wParam),
                            PointerOf<LPCOMPAREITEMSTRUCT>(d.lParam));
}

LRESULT CompareItemReflect::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<CompareItemReflect>(object, handler, PointerOf<LPCOMPAREITEMSTRUCT>(d.lParam));
}

LRESULT CtlColor::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return reinterpret_cast<LRESULT>(Ask<CtlColor>(
        object, handler, ContextOf(d.wParam), WindowOf(d.lParam), d.message - WM_CTLCOLORMSGBOX));
}

LRESULT CtlColorReflect::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return reinterpret_cast<LRESULT>(Ask<CtlColorReflect>(
        object, handler, ContextOf(d.wParam), d.message - WM_REFLECT_BASE - WM_CTLCOLORMSGBOX));
}

LRESULT DeleteItem::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Do<DeleteItem>(object, handler, static_cast<int>(d.wParam),
                          PointerOf<LPDELETEITEMSTRUCT>(d.lParam));
}

LRESULT DeleteItemReflect::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Do<DeleteItemReflect>(object, handler, PointerOf<LPDELETEITEMSTRUCT>(d.lParam));
}

LRESULT DrawItem::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Do<DrawItem>(object, handler, static_cast<int>(d.wParam),
                        PointerOf<LPDRAWITEMSTRUCT>(d.lParam));
}

LRESULT DrawItemReflect::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Do<DrawItemReflect>(object, handler, PointerOf<LPDRAWITEMSTRUCT>(d.lParam));
}

LRESULT KeyToItem::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<KeyToItem>(object, handler, UINT(LOWORD(d.wParam)), ControlOf<CListBox>(d.lParam),
                          UINT(HIWORD(d.wParam)));
}

LRESULT KeyToItemReflect::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<KeyToItemReflect>(object, handler, UINT(LOWORD(d.wParam)), UINT(HIWORD(d.wParam)));
}

LRESULT MeasureItem::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Do<MeasureItem>(object, handler, static_cast<int>(d.wParam),
                           PointerOf<LPMEASUREITEMSTRUCT>(d.lParam));
}

LRESULT MeasureItemReflect::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Do<MeasureItemReflect>(object, handler, PointerOf<LPMEASUREITEMSTRUCT>(d.lParam));
}

LRESULT NotifyFormat::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<NotifyFormat>(object, handler, WindowOf(d.wParam), static_cast<UINT>(d.lParam));
}

LRESULT ParentNotify::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<ParentNotify>(object, handler, UINT(LOWORD(d.wParam)), d.lParam);
}

LRESULT Scroll::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<Scroll>(object, handler, UINT(LOWORD(d.wParam)), UINT(HIWORD(d.wParam)),
                        ControlOf<CScrollBar>(d.lParam));
}

LRESULT ScrollReflect::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<ScrollReflect>(object, handler, UINT(LOWORD(d.wParam)), UINT(HIWORD(d.wParam)));
}

} // namespace afxint::signature
