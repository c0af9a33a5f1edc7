// The signatures of handlers of keys and of the mouse.
#include "windows/HandlerArguments.h"

namespace afxint::signature {

LRESULT Key::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<Key>(object, handler, NumberOf(d.wParam), UINT(LOWORD(d.lParam)),
                     UINT(HIWORD(d.lParam)));
}

LRESULT Mouse::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<Mouse>(object, handler, NumberOf(d.wParam), PointOf(d.lParam));
}

LRESULT MouseActivate::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<MouseActivate>(object, handler, WindowOf(d.wParam), UINT(LOWORD(d.lParam)),
                              UINT(HIWORD(d.lParam)));
}

LRESULT MouseHWheel::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<MouseHWheel>(object, handler, UINT(LOWORD(d.wParam)), WheelDelta(d.wParam),
                             PointOf(d.lParam));
}

LRESULT MouseWheel::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<MouseWheel>(object, handler, UINT(LOWORD(d.wParam)), WheelDelta(d.wParam),
                           PointOf(d.lParam));
}

LRESULT NcHitTest::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<NcHitTest>(object, handler, PointOf(d.lParam));
}

LRESULT NcXButton::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Do<NcXButton>(object, handler, static_cast<short>(LOWORD(d.wParam)),
                         UINT(HIWORD(d.wParam)), PointOf(d.lParam));
}

LRESULT RawInput::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<RawInput>(object, handler, UINT(GET_RAWINPUT_CODE_WPARAM(d.wParam)),
                          PointerOf<HRAWINPUT>(d.lParam));
}

LRESULT SetCursor::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<SetCursor>(object, handler, WindowOf(d.wParam), UINT(LOWORD(d.lParam)),
                          UINT(HIWORD(d.lParam)));
}

LRESULT XButton::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Do<XButton>(object, handler, UINT(LOWORD(d.wParam)), UINT(HIWORD(d.wParam)),
                       PointOf(d.lParam));
}

} // namespace afxint::signature
