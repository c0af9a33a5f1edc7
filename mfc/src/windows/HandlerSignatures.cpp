// How the arguments of each handler signature come out of a message, and its result out of the
// handler: commands, and messages of windows in general.
#include "windows/HandlerArguments.h"

namespace afxint::signature {

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

LRESULT MdiActivate::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<MdiActivate>(object, handler, BOOL(reinterpret_cast<HWND>(d.lParam) == d.window),
                             WindowOf(d.lParam), WindowOf(d.wParam));
}

LRESULT MinMaxInfo::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<MinMaxInfo>(object, handler, PointerOf<MINMAXINFO*>(d.lParam));
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

LRESULT PowerBroadcast::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Ask<PowerBroadcast>(object, handler, NumberOf(d.wParam), static_cast<UINT>(d.lParam));
}

LRESULT ScrollClipboard::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<ScrollClipboard>(object, handler, WindowOf(d.wParam), UINT(LOWORD(d.lParam)),
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

LRESULT WindowPos::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<WindowPos>(object, handler, PointerOf<WINDOWPOS*>(d.lParam));
}

LRESULT WinIniChange::Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& d)
{
    return Tell<WinIniChange>(object, handler, PointerOf<LPCTSTR>(d.lParam));
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
