// How the arguments of each handler signature come out of a message, and its result out of the
// handler.
#include <afxmsg_.h>

#include <classes/CDC.h>
#include <classes/CListBox.h>
#include <classes/CMenu.h>
#include <classes/CPoint.h>
#include <classes/CScrollBar.h>
#include <classes/CWinThread.h>
#include <classes/CWnd.h>

namespace afxint::signature {

namespace {

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

CPoint PointOf(LPARAM lParam)
{
    return CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
}

CWnd* WindowOf(WPARAM wParam)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(wParam));
}

CWnd* WindowOf(LPARAM lParam)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(lParam));
}

template <class Control>
Control* ControlOf(LPARAM lParam)
{
    return static_cast<Control*>(WindowOf(lParam));
}

CMenu* MenuOf(WPARAM wParam)
{
    return CMenu::FromHandle(reinterpret_cast<HMENU>(wParam));
}

CMenu* MenuOf(LPARAM lParam)
{
    return CMenu::FromHandle(reinterpret_cast<HMENU>(lParam));
}

CDC* ContextOf(WPARAM wParam)
{
    return CDC::FromHandle(reinterpret_cast<HDC>(wParam));
}

template <class Pointer>
Pointer PointerOf(LPARAM lParam)
{
    return reinterpret_cast<Pointer>(lParam);
}

const AFX_NOTIFY& NotifyOf(const Delivery& d)
{
    return *static_cast<AFX_NOTIFY*>(d.extra);
}

UINT NumberOf(WPARAM wParam)
{
    return static_cast<UINT>(wParam);
}

short WheelDelta(WPARAM wParam)
{
    return static_cast<short>(HIWORD(wParam));
}

} // namespace

// Commands and notifications.

LRESULT Command::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery&)
{
    return Do<Command>(object, handler);
}

LRESULT CommandEx::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<CommandEx>(object, handler, d.id);
}

LRESULT CommandRange::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Do<CommandRange>(object, handler, d.id);
}

LRESULT ControlReflectEx::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery&)
{
    return Ask<ControlReflectEx>(object, handler);
}

LRESULT UpdateCommandUi::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Do<UpdateCommandUi>(object, handler, static_cast<CCmdUI*>(d.extra));
}

LRESULT Notify::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Do<Notify>(object, handler, NotifyOf(d).pNMHDR, NotifyOf(d).pResult);
}

LRESULT NotifyEx::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<NotifyEx>(object, handler, d.id, NotifyOf(d).pNMHDR, NotifyOf(d).pResult);
}

LRESULT NotifyRange::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Do<NotifyRange>(object, handler, d.id, NotifyOf(d).pNMHDR, NotifyOf(d).pResult);
}

LRESULT NotifyReflectEx::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<NotifyReflectEx>(object, handler, NotifyOf(d).pNMHDR, NotifyOf(d).pResult);
}

// Messages.

LRESULT Plain::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery&)
{
    return Tell<Plain>(object, handler);
}

LRESULT Flag::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<Flag>(object, handler, static_cast<BOOL>(d.wParam));
}

LRESULT Number::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<Number>(object, handler, NumberOf(d.wParam));
}

LRESULT NumberPair::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<NumberPair>(object, handler, NumberOf(d.wParam), static_cast<UINT>(d.lParam));
}

LRESULT AskFlag::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery&)
{
    return Ask<AskFlag>(object, handler);
}

LRESULT AskNumber::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery&)
{
    return Ask<AskNumber>(object, handler);
}

LRESULT AskIcon::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery&)
{
    return reinterpret_cast<LRESULT>(Ask<AskIcon>(object, handler));
}

LRESULT WindowInWParam::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<WindowInWParam>(object, handler, WindowOf(d.wParam));
}

LRESULT WindowInLParam::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<WindowInLParam>(object, handler, WindowOf(d.lParam));
}

LRESULT Activate::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<Activate>(object, handler, UINT(LOWORD(d.wParam)), WindowOf(d.lParam),
                          BOOL(HIWORD(d.wParam)));
}

LRESULT ActivateApp::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<ActivateApp>(object, handler, static_cast<BOOL>(d.wParam),
                             static_cast<DWORD>(d.lParam));
}

LRESULT AppCommand::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Do<AppCommand>(object, handler, WindowOf(d.wParam),
                          UINT(GET_APPCOMMAND_LPARAM(d.lParam)), UINT(GET_DEVICE_LPARAM(d.lParam)),
                          UINT(GET_KEYSTATE_LPARAM(d.lParam)));
}

LRESULT AskFormatName::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<AskFormatName>(object, handler, NumberOf(d.wParam), PointerOf<LPTSTR>(d.lParam));
}

LRESULT ChainChange::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<ChainChange>(object, handler, reinterpret_cast<HWND>(d.wParam),
                             reinterpret_cast<HWND>(d.lParam));
}

LRESULT ClipboardMemory::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<ClipboardMemory>(object, handler, WindowOf(d.wParam), PointerOf<HGLOBAL>(d.lParam));
}

LRESULT CompareItem::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<CompareItem>(object, handler, static_cast<int>(d.wParam),
                            PointerOf<LPCOMPAREITEMSTRUCT>(d.lParam));
}

LRESULT CompareItemReflect::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<CompareItemReflect>(object, handler, PointerOf<LPCOMPAREITEMSTRUCT>(d.lParam));
}

LRESULT ContextMenu::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<ContextMenu>(object, handler, WindowOf(d.wParam), PointOf(d.lParam));
}

LRESULT CopyData::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<CopyData>(object, handler, WindowOf(d.wParam), PointerOf<COPYDATASTRUCT*>(d.lParam));
}

LRESULT Create::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<Create>(object, handler, PointerOf<LPCREATESTRUCT>(d.lParam));
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

LRESULT DeviceChange::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<DeviceChange>(object, handler, NumberOf(d.wParam), static_cast<DWORD_PTR>(d.lParam));
}

LRESULT DevModeChange::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<DevModeChange>(object, handler, PointerOf<LPTSTR>(d.lParam));
}

LRESULT DragRect::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Do<DragRect>(object, handler, NumberOf(d.wParam), PointerOf<LPRECT>(d.lParam));
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

LRESULT DropFiles::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<DropFiles>(object, handler, reinterpret_cast<HDROP>(d.wParam));
}

LRESULT EnterIdle::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<EnterIdle>(object, handler, NumberOf(d.wParam), WindowOf(d.lParam));
}

LRESULT EraseBackground::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<EraseBackground>(object, handler, ContextOf(d.wParam));
}

LRESULT EraseIconBackground::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<EraseIconBackground>(object, handler, ContextOf(d.wParam));
}

LRESULT HelpInfo::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<HelpInfo>(object, handler, PointerOf<HELPINFO*>(d.lParam));
}

LRESULT InitMenu::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<InitMenu>(object, handler, MenuOf(d.wParam));
}

LRESULT InitMenuPopup::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<InitMenuPopup>(object, handler, MenuOf(d.wParam), UINT(LOWORD(d.lParam)),
                               BOOL(HIWORD(d.lParam)));
}

LRESULT Key::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<Key>(object, handler, NumberOf(d.wParam), UINT(LOWORD(d.lParam)),
                     UINT(HIWORD(d.lParam)));
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

LRESULT MdiActivate::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<MdiActivate>(object, handler, BOOL(reinterpret_cast<HWND>(d.lParam) == d.window),
                             WindowOf(d.lParam), WindowOf(d.wParam));
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

LRESULT MinMaxInfo::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<MinMaxInfo>(object, handler, PointerOf<MINMAXINFO*>(d.lParam));
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

LRESULT Move::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<Move>(object, handler, GET_X_LPARAM(d.lParam), GET_Y_LPARAM(d.lParam));
}

LRESULT NcActivate::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<NcActivate>(object, handler, static_cast<BOOL>(d.wParam));
}

LRESULT NcCalcSize::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<NcCalcSize>(object, handler, static_cast<BOOL>(d.wParam),
                            PointerOf<NCCALCSIZE_PARAMS*>(d.lParam));
}

LRESULT NcCreate::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<NcCreate>(object, handler, PointerOf<LPCREATESTRUCT>(d.lParam));
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

LRESULT NextMenu::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<NextMenu>(object, handler, NumberOf(d.wParam), PointerOf<LPMDINEXTMENU>(d.lParam));
}

LRESULT NotifyFormat::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<NotifyFormat>(object, handler, WindowOf(d.wParam), static_cast<UINT>(d.lParam));
}

LRESULT ParentNotify::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<ParentNotify>(object, handler, UINT(LOWORD(d.wParam)), d.lParam);
}

LRESULT PowerBroadcast::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<PowerBroadcast>(object, handler, NumberOf(d.wParam), static_cast<UINT>(d.lParam));
}

LRESULT RawInput::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<RawInput>(object, handler, UINT(GET_RAWINPUT_CODE_WPARAM(d.wParam)),
                          PointerOf<HRAWINPUT>(d.lParam));
}

LRESULT Scroll::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<Scroll>(object, handler, UINT(LOWORD(d.wParam)), UINT(HIWORD(d.wParam)),
                        ControlOf<CScrollBar>(d.lParam));
}

LRESULT ScrollClipboard::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<ScrollClipboard>(object, handler, WindowOf(d.wParam), UINT(LOWORD(d.lParam)),
                                 UINT(HIWORD(d.lParam)));
}

LRESULT ScrollReflect::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<ScrollReflect>(object, handler, UINT(LOWORD(d.wParam)), UINT(HIWORD(d.wParam)));
}

LRESULT SetCursor::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<SetCursor>(object, handler, WindowOf(d.wParam), UINT(LOWORD(d.lParam)),
                          UINT(HIWORD(d.lParam)));
}

LRESULT SettingChange::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<SettingChange>(object, handler, NumberOf(d.wParam), PointerOf<LPCTSTR>(d.lParam));
}

LRESULT Show::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<Show>(object, handler, static_cast<BOOL>(d.wParam), static_cast<UINT>(d.lParam));
}

LRESULT Size::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<Size>(object, handler, NumberOf(d.wParam), int(LOWORD(d.lParam)),
                      int(HIWORD(d.lParam)));
}

LRESULT SpoolerStatus::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<SpoolerStatus>(object, handler, NumberOf(d.wParam), UINT(LOWORD(d.lParam)));
}

LRESULT StyleChange::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<StyleChange>(object, handler, static_cast<int>(d.wParam),
                             PointerOf<LPSTYLESTRUCT>(d.lParam));
}

LRESULT SysCommand::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<SysCommand>(object, handler, NumberOf(d.wParam), d.lParam);
}

LRESULT Timer::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<Timer>(object, handler, UINT_PTR(d.wParam));
}

LRESULT TrainingCard::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<TrainingCard>(object, handler, NumberOf(d.wParam), static_cast<DWORD>(d.lParam));
}

LRESULT UiState::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<UiState>(object, handler, UINT(LOWORD(d.wParam)), UINT(HIWORD(d.wParam)));
}

LRESULT UnInitMenuPopup::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<UnInitMenuPopup>(object, handler, MenuOf(d.wParam), UINT(HIWORD(d.lParam)));
}

LRESULT WindowPos::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<WindowPos>(object, handler, PointerOf<WINDOWPOS*>(d.lParam));
}

LRESULT WinIniChange::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<WinIniChange>(object, handler, PointerOf<LPCTSTR>(d.lParam));
}

LRESULT XButton::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Do<XButton>(object, handler, UINT(LOWORD(d.wParam)), UINT(HIWORD(d.wParam)),
                       PointOf(d.lParam));
}

LRESULT AnyMessage::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<AnyMessage>(object, handler, d.wParam, d.lParam);
}

LRESULT ThreadMessage::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<ThreadMessage>(object, handler, d.wParam, d.lParam);
}

} // namespace afxint::signature
