// The steps by which signatures call a handler: what its arguments are made of, and its result.
#pragma once

#include <afxmsg_.h>

#include <classes/CDC.h>
#include <classes/CListBox.h>
#include <classes/CMenu.h>
#include <classes/CPoint.h>
#include <classes/CScrollBar.h>
#include <classes/CWinThread.h>
#include <classes/CWnd.h>

namespace afxint::signature {

template <class Member>
struct TargetOf;

template <class Target, class Result, class... Arguments>
struct TargetOf<Result (Target::*)(Arguments...)>
{
    using Type = Target;
};

/// Calls the handler, and gives what it gives.
template <class Signature, class... Arguments>
auto Ask(CCmdTarget* object, AFX_PMSG handler, Arguments... arguments)
{
    using Handler = typename Signature::Handler;
    auto* target = static_cast<typename TargetOf<Handler>::Type*>(object);
    return (target->*HandlerAs<Handler>(handler))(arguments...);
}

/// Calls a handler that gives nothing.
template <class Signature, class... Arguments>
LRESULT Tell(CCmdTarget* object, AFX_PMSG handler, Arguments... arguments)
{
    Ask<Signature>(object, handler, arguments...);
    return 0;
}

/// Calls a handler that gives nothing where TRUE says that the matter is dealt with.
template <class Signature, class... Arguments>
LRESULT Do(CCmdTarget* object, AFX_PMSG handler, Arguments... arguments)
{
    Ask<Signature>(object, handler, arguments...);
    return TRUE;
}

inline CPoint PointOf(LPARAM lParam)
{
    return CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
}

inline CWnd* WindowOf(WPARAM wParam)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(wParam));
}

inline CWnd* WindowOf(LPARAM lParam)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(lParam));
}

template <class Control>
Control* ControlOf(LPARAM lParam)
{
    return static_cast<Control*>(WindowOf(lParam));
}

inline CMenu* MenuOf(WPARAM wParam)
{
    return CMenu::FromHandle(reinterpret_cast<HMENU>(wParam));
}

inline CMenu* MenuOf(LPARAM lParam)
{
    return CMenu::FromHandle(reinterpret_cast<HMENU>(lParam));
}

inline CDC* ContextOf(WPARAM wParam)
{
    return CDC::FromHandle(reinterpret_cast<HDC>(wParam));
}

template <class Pointer>
Pointer PointerOf(LPARAM lParam)
{
    return reinterpret_cast<Pointer>(lParam);
}

inline const AFX_NOTIFY& NotifyOf(const Delivery& d)
{
    return *static_cast<AFX_NOTIFY*>(d.extra);
}

inline UINT NumberOf(WPARAM wParam)
{
    return static_cast<UINT>(wParam);
}

inline short WheelDelta(WPARAM wParam)
{
    return static_cast<short>(HIWORD(wParam));
}

} // namespace afxint::signature
