// Message maps: the tables that lead from messages and commands to the handlers of a class, and
// the macros that write them.
//
// A handler may be named as OnX, &OnX or &CFoo::OnX; it may be private, inherited, or one of
// several overloads.
#pragma once

#include <classes/Platform.h>

class CCmdTarget;
class CCmdUI;
class CDC;
class CListBox;
class CMenu;
class CPoint;
class CScrollBar;
class CWinThread;
class CWnd;

/// Any handler, whatever its real type.
typedef void (AFX_MSG_CALL CCmdTarget::*AFX_PMSG)();

/// Who handles a command; asked for with the last argument of CCmdTarget::OnCmdMsg.
struct AFX_CMDHANDLERINFO
{
    CCmdTarget* pTarget;
    void (AFX_MSG_CALL CCmdTarget::*pmf)();
};

/// The extra argument of CCmdTarget::OnCmdMsg for a notification with a header.
struct AFX_NOTIFY
{
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

// Codes of CCmdTarget::OnCmdMsg; other codes are notification codes with the message above them.
#define CN_COMMAND 0
#define CN_UPDATE_COMMAND_UI (static_cast<UINT>(-1))

// A message that a parent hands back to the control it came from is sent with this much added.
#define WM_REFLECT_BASE 0xBC00

// The seven colour requests are one message to the map.
#ifndef WM_CTLCOLOR
#define WM_CTLCOLOR 0x0019
#endif
#ifndef WM_MOUSEHWHEEL
#define WM_MOUSEHWHEEL 0x020E
#endif

namespace afxint {

/// What arrives at a handler: a message, or a command with its identifier.
struct Delivery
{
    HWND window;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    UINT id;     ///< Of the command or control.
    void* extra; ///< CCmdUI or AFX_NOTIFY of a command.
};

} // namespace afxint

struct AFX_MSGMAP_ENTRY
{
    UINT nMessage;            ///< 0xC000 for a registered message.
    UINT nCode;               ///< Notification code.
    UINT nID;                 ///< First control or command identifier,
    UINT nLastID;             ///< and last.
    const UINT* pnRegistered; ///< The variable of a registered message.
    UINT nSig;                ///< The handler's signature: afxint::SignatureNumber.
    AFX_PMSG pfn;
};

struct AFX_MSGMAP
{
    /// The map of the base class, asked for through a function because it may lie in another
    /// module; NULL for the outermost.
    const AFX_MSGMAP*(PASCAL* pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

namespace afxint {

// A change of function type is what a table of handlers is about; the caller changes it back.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wcast-function-type"
template <class Handler>
AFX_PMSG AnyHandler(Handler handler)
{
    return reinterpret_cast<AFX_PMSG>(handler);
}

template <class Handler>
Handler HandlerAs(AFX_PMSG handler)
{
    return reinterpret_cast<Handler>(handler);
}
#pragma GCC diagnostic pop

// The signatures of handlers: a name, the class of the handler, what it gives, what it takes. Their
// order is their number in the maps of programs that are built already: new ones go to the end.
// clang-format off
#define AFXINT_SIGNATURES(signature)                                                               \
    signature(Command, CCmdTarget, void)                                                           \
    signature(CommandEx, CCmdTarget, BOOL, UINT)                                                   \
    signature(CommandRange, CCmdTarget, void, UINT)                                                \
    signature(ControlReflectEx, CCmdTarget, BOOL)                                                  \
    signature(UpdateCommandUi, CCmdTarget, void, CCmdUI*)                                          \
    signature(Notify, CCmdTarget, void, NMHDR*, LRESULT*)                                          \
    signature(NotifyEx, CCmdTarget, BOOL, UINT, NMHDR*, LRESULT*)                                  \
    signature(NotifyRange, CCmdTarget, void, UINT, NMHDR*, LRESULT*)                               \
    signature(NotifyReflectEx, CCmdTarget, BOOL, NMHDR*, LRESULT*)                                 \
    signature(Plain, CWnd, void)                                                                   \
    signature(Flag, CWnd, void, BOOL)                                                              \
    signature(Number, CWnd, void, UINT)                                                            \
    signature(NumberPair, CWnd, void, UINT, UINT)                                                  \
    signature(AskFlag, CWnd, BOOL)                                                                 \
    signature(AskNumber, CWnd, UINT)                                                               \
    signature(AskIcon, CWnd, HCURSOR)                                                              \
    signature(WindowInWParam, CWnd, void, CWnd*)                                                   \
    signature(WindowInLParam, CWnd, void, CWnd*)                                                   \
    signature(Activate, CWnd, void, UINT, CWnd*, BOOL)                                             \
    signature(ActivateApp, CWnd, void, BOOL, DWORD)                                                \
    signature(AppCommand, CWnd, void, CWnd*, UINT, UINT, UINT)                                     \
    signature(AskFormatName, CWnd, void, UINT, LPTSTR)                                             \
    signature(ChainChange, CWnd, void, HWND, HWND)                                                 \
    signature(ClipboardMemory, CWnd, void, CWnd*, HGLOBAL)                                         \
    signature(CompareItem, CWnd, int, int, LPCOMPAREITEMSTRUCT)                                    \
    signature(CompareItemReflect, CWnd, int, LPCOMPAREITEMSTRUCT)                                  \
    signature(ContextMenu, CWnd, void, CWnd*, CPoint)                                              \
    signature(CopyData, CWnd, BOOL, CWnd*, COPYDATASTRUCT*)                                        \
    signature(Create, CWnd, int, LPCREATESTRUCT)                                                   \
    signature(CtlColor, CWnd, HBRUSH, CDC*, CWnd*, UINT)                                           \
    signature(CtlColorReflect, CWnd, HBRUSH, CDC*, UINT)                                           \
    signature(DeleteItem, CWnd, void, int, LPDELETEITEMSTRUCT)                                     \
    signature(DeleteItemReflect, CWnd, void, LPDELETEITEMSTRUCT)                                   \
    signature(DeviceChange, CWnd, BOOL, UINT, DWORD_PTR)                                           \
    signature(DevModeChange, CWnd, void, LPTSTR)                                                   \
    signature(DragRect, CWnd, void, UINT, LPRECT)                                                  \
    signature(DrawItem, CWnd, void, int, LPDRAWITEMSTRUCT)                                         \
    signature(DrawItemReflect, CWnd, void, LPDRAWITEMSTRUCT)                                       \
    signature(DropFiles, CWnd, void, HDROP)                                                        \
    signature(EnterIdle, CWnd, void, UINT, CWnd*)                                                  \
    signature(EraseBackground, CWnd, BOOL, CDC*)                                                   \
    signature(EraseIconBackground, CWnd, void, CDC*)                                               \
    signature(HelpInfo, CWnd, BOOL, HELPINFO*)                                                     \
    signature(InitMenu, CWnd, void, CMenu*)                                                        \
    signature(InitMenuPopup, CWnd, void, CMenu*, UINT, BOOL)                                       \
    signature(Key, CWnd, void, UINT, UINT, UINT)                                                   \
    signature(KeyToItem, CWnd, int, UINT, CListBox*, UINT)                                         \
    signature(KeyToItemReflect, CWnd, int, UINT, UINT)                                             \
    signature(MdiActivate, CWnd, void, BOOL, CWnd*, CWnd*)                                         \
    signature(MeasureItem, CWnd, void, int, LPMEASUREITEMSTRUCT)                                   \
    signature(MeasureItemReflect, CWnd, void, LPMEASUREITEMSTRUCT)                                 \
    signature(MenuChar, CWnd, LRESULT, UINT, UINT, CMenu*)                                         \
    signature(MenuDrag, CWnd, UINT, UINT, CMenu*)                                                  \
    signature(MenuGetObject, CWnd, UINT, MENUGETOBJECTINFO*)                                       \
    signature(MenuRButtonUp, CWnd, void, UINT, CMenu*)                                             \
    signature(MenuSelect, CWnd, void, UINT, UINT, HMENU)                                           \
    signature(MinMaxInfo, CWnd, void, MINMAXINFO*)                                                 \
    signature(Mouse, CWnd, void, UINT, CPoint)                                                     \
    signature(MouseActivate, CWnd, int, CWnd*, UINT, UINT)                                         \
    signature(MouseHWheel, CWnd, void, UINT, short, CPoint)                                        \
    signature(MouseWheel, CWnd, BOOL, UINT, short, CPoint)                                         \
    signature(Move, CWnd, void, int, int)                                                          \
    signature(NcActivate, CWnd, BOOL, BOOL)                                                        \
    signature(NcCalcSize, CWnd, void, BOOL, NCCALCSIZE_PARAMS*)                                    \
    signature(NcCreate, CWnd, BOOL, LPCREATESTRUCT)                                                \
    signature(NcHitTest, CWnd, LRESULT, CPoint)                                                    \
    signature(NcXButton, CWnd, void, short, UINT, CPoint)                                          \
    signature(NextMenu, CWnd, void, UINT, LPMDINEXTMENU)                                           \
    signature(NotifyFormat, CWnd, UINT, CWnd*, UINT)                                               \
    signature(ParentNotify, CWnd, void, UINT, LPARAM)                                              \
    signature(PowerBroadcast, CWnd, UINT, UINT, UINT)                                              \
    signature(RawInput, CWnd, void, UINT, HRAWINPUT)                                               \
    signature(Scroll, CWnd, void, UINT, UINT, CScrollBar*)                                         \
    signature(ScrollClipboard, CWnd, void, CWnd*, UINT, UINT)                                      \
    signature(ScrollReflect, CWnd, void, UINT, UINT)                                               \
    signature(SetCursor, CWnd, BOOL, CWnd*, UINT, UINT)                                            \
    signature(SettingChange, CWnd, void, UINT, LPCTSTR)                                            \
    signature(Show, CWnd, void, BOOL, UINT)                                                        \
    signature(Size, CWnd, void, UINT, int, int)                                                    \
    signature(SpoolerStatus, CWnd, void, UINT, UINT)                                               \
    signature(StyleChange, CWnd, void, int, LPSTYLESTRUCT)                                         \
    signature(SysCommand, CWnd, void, UINT, LPARAM)                                                \
    signature(Timer, CWnd, void, UINT_PTR)                                                         \
    signature(TrainingCard, CWnd, void, UINT, DWORD)                                               \
    signature(UiState, CWnd, void, UINT, UINT)                                                     \
    signature(UnInitMenuPopup, CWnd, void, CMenu*, UINT)                                           \
    signature(WindowPos, CWnd, void, WINDOWPOS*)                                                   \
    signature(WinIniChange, CWnd, void, LPCTSTR)                                                   \
    signature(XButton, CWnd, void, UINT, UINT, CPoint)                                             \
    signature(AnyMessage, CWnd, LRESULT, WPARAM, LPARAM)                                           \
    signature(ThreadMessage, CWinThread, void, WPARAM, LPARAM)
// clang-format on

/// The numbers of the signatures in maps. None ends a table.
enum class SignatureNumber : UINT {
    None,
#define AFXINT_NUMBER(name, ...) name,
    AFXINT_SIGNATURES(AFXINT_NUMBER)
#undef AFXINT_NUMBER
};

/// The type of each signature's handlers, and in the library how their arguments come out of a
/// message.
namespace signature {

#define AFXINT_SIGNATURE(name, target, result, ...)                                                \
    struct name                                                                                    \
    {                                                                                              \
        using Handler = result (AFX_MSG_CALL target::*)(__VA_ARGS__);                              \
        static LRESULT Call(CCmdTarget* object, AFX_PMSG handler, const Delivery& delivery);       \
    };
AFXINT_SIGNATURES(AFXINT_SIGNATURE)
#undef AFXINT_SIGNATURE

} // namespace signature
} // namespace afxint

// clang-format off: it takes the halves of a table for blocks.
#define DECLARE_MESSAGE_MAP()                                                                      \
protected:                                                                                         \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();                                           \
    const AFX_MSGMAP* GetMessageMap() const override;

#define AFXINT_BEGIN_ENTRIES(theClass, baseClass)                                                  \
    {                                                                                              \
        using ThisClass [[maybe_unused]] = theClass;                                               \
        using TheBaseClass = baseClass;                                                            \
        static const AFX_MSGMAP_ENTRY messageEntries[] = {

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                     \
    const AFX_MSGMAP* theClass::GetMessageMap() const                                              \
    {                                                                                              \
        return GetThisMessageMap();                                                                \
    }                                                                                              \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap() AFXINT_BEGIN_ENTRIES(theClass, baseClass)

#define BEGIN_TEMPLATE_MESSAGE_MAP(theClass, type_name, baseClass)                                 \
    template <typename type_name>                                                                  \
    const AFX_MSGMAP* theClass<type_name>::GetMessageMap() const                                   \
    {                                                                                              \
        return theClass<type_name>::GetThisMessageMap();                                           \
    }                                                                                              \
    template <typename type_name>                                                                  \
    const AFX_MSGMAP* PASCAL theClass<type_name>::GetThisMessageMap()                              \
        AFXINT_BEGIN_ENTRIES(theClass<type_name>, baseClass)

#define END_MESSAGE_MAP()                                                                          \
    {                                                                                              \
        0, 0, 0, 0, NULL, 0, NULL                                                                  \
    }                                                                                              \
    }                                                                                              \
    ;                                                                                              \
    static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, messageEntries};       \
    return &messageMap;                                                                            \
    }

// One entry of a map.
#define AFXINT_ENTRY(message, code, first, last, registered, kind, handler)                        \
    {message,                                                                                      \
     code,                                                                                         \
     first,                                                                                        \
     last,                                                                                         \
     registered,                                                                                   \
     static_cast<UINT>(afxint::SignatureNumber::kind),                                             \
     afxint::AnyHandler(static_cast<afxint::signature::kind::Handler>(handler))},
#define AFXINT_WM(message, kind, handler) AFXINT_ENTRY(message, 0, 0, 0, NULL, kind, handler)
#define AFXINT_CONTROL(message, code, first, last, kind, handler)                                  \
    AFXINT_ENTRY(message, static_cast<WORD>(code), static_cast<WORD>(first),                       \
                 static_cast<WORD>(last), NULL, kind, handler)
#define AFXINT_REFLECT(message, code, kind, handler)                                               \
    AFXINT_CONTROL(WM_REFLECT_BASE + (message), code, 0, 0, kind, handler)
// clang-format on

// Commands of menus, accelerators and buttons.
#define ON_COMMAND(id, memberFxn) AFXINT_CONTROL(WM_COMMAND, CN_COMMAND, id, id, Command, memberFxn)
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                                    \
    AFXINT_CONTROL(WM_COMMAND, CN_COMMAND, id, idLast, CommandRange, memberFxn)
#define ON_COMMAND_EX(id, memberFxn)                                                               \
    AFXINT_CONTROL(WM_COMMAND, CN_COMMAND, id, id, CommandEx, memberFxn)
#define ON_COMMAND_EX_RANGE(id, idLast, memberFxn)                                                 \
    AFXINT_CONTROL(WM_COMMAND, CN_COMMAND, id, idLast, CommandEx, memberFxn)
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, memberFxn)                                          \
    AFXINT_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, static_cast<WORD>(id),                          \
                 static_cast<WORD>(idLast), NULL, UpdateCommandUi, memberFxn)
#define ON_UPDATE_COMMAND_UI(id, memberFxn) ON_UPDATE_COMMAND_UI_RANGE(id, id, memberFxn)
#define ON_UPDATE_COMMAND_UI_REFLECT(memberFxn)                                                    \
    AFXINT_REFLECT(WM_COMMAND, CN_UPDATE_COMMAND_UI, UpdateCommandUi, memberFxn)

// Notifications of controls.
#define ON_CONTROL(wNotifyCode, id, memberFxn)                                                     \
    AFXINT_CONTROL(WM_COMMAND, wNotifyCode, id, id, Command, memberFxn)
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn)                                       \
    AFXINT_CONTROL(WM_COMMAND, wNotifyCode, id, idLast, CommandRange, memberFxn)
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                                                 \
    AFXINT_REFLECT(WM_COMMAND, wNotifyCode, Command, memberFxn)
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn)                                              \
    AFXINT_REFLECT(WM_COMMAND, wNotifyCode, ControlReflectEx, memberFxn)
#define ON_NOTIFY(wNotifyCode, id, memberFxn)                                                      \
    AFXINT_CONTROL(WM_NOTIFY, wNotifyCode, id, id, Notify, memberFxn)
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn)                                        \
    AFXINT_CONTROL(WM_NOTIFY, wNotifyCode, id, idLast, NotifyRange, memberFxn)
#define ON_NOTIFY_EX(wNotifyCode, id, memberFxn)                                                   \
    AFXINT_CONTROL(WM_NOTIFY, wNotifyCode, id, id, NotifyEx, memberFxn)
#define ON_NOTIFY_EX_RANGE(wNotifyCode, id, idLast, memberFxn)                                     \
    AFXINT_CONTROL(WM_NOTIFY, wNotifyCode, id, idLast, NotifyEx, memberFxn)
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn)                                                  \
    AFXINT_REFLECT(WM_NOTIFY, wNotifyCode, Notify, memberFxn)
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn)                                               \
    AFXINT_REFLECT(WM_NOTIFY, wNotifyCode, NotifyReflectEx, memberFxn)

// Messages by number. The number of a registered message is read from its variable each time.
#define ON_MESSAGE(message, memberFxn) AFXINT_WM(message, AnyMessage, memberFxn)
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn)                                         \
    AFXINT_ENTRY(0xC000, 0, 0, 0, &nMessageVariable, AnyMessage, memberFxn)
#define ON_THREAD_MESSAGE(message, memberFxn) AFXINT_WM(message, ThreadMessage, memberFxn)
#define ON_REGISTERED_THREAD_MESSAGE(nMessageVariable, memberFxn)                                  \
    AFXINT_ENTRY(0xC000, 0, 0, 0, &nMessageVariable, ThreadMessage, memberFxn)

// Notifications of buttons, edit controls, combo boxes, list boxes, check-list boxes and statics.
#ifndef CLBN_CHKCHANGE
#define CLBN_CHKCHANGE 40
#endif
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_BN_SETFOCUS(id, memberFxn) ON_CONTROL(BN_SETFOCUS, id, memberFxn)
#define ON_BN_KILLFOCUS(id, memberFxn) ON_CONTROL(BN_KILLFOCUS, id, memberFxn)
#define ON_BN_PAINT(id, memberFxn) ON_CONTROL(BN_PAINT, id, memberFxn)
#define ON_BN_HILITE(id, memberFxn) ON_CONTROL(BN_HILITE, id, memberFxn)
#define ON_BN_UNHILITE(id, memberFxn) ON_CONTROL(BN_UNHILITE, id, memberFxn)
#define ON_BN_DISABLE(id, memberFxn) ON_CONTROL(BN_DISABLE, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_ERRSPACE(id, memberFxn) ON_CONTROL(EN_ERRSPACE, id, memberFxn)
#define ON_EN_MAXTEXT(id, memberFxn) ON_CONTROL(EN_MAXTEXT, id, memberFxn)
#define ON_EN_HSCROLL(id, memberFxn) ON_CONTROL(EN_HSCROLL, id, memberFxn)
#define ON_EN_VSCROLL(id, memberFxn) ON_CONTROL(EN_VSCROLL, id, memberFxn)
#define ON_EN_ALIGN_LTR_EC(id, memberFxn) ON_CONTROL(EN_ALIGN_LTR_EC, id, memberFxn)
#define ON_EN_ALIGN_RTL_EC(id, memberFxn) ON_CONTROL(EN_ALIGN_RTL_EC, id, memberFxn)
#define ON_CBN_ERRSPACE(id, memberFxn) ON_CONTROL(CBN_ERRSPACE, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_DBLCLK(id, memberFxn) ON_CONTROL(CBN_DBLCLK, id, memberFxn)
#define ON_CBN_SETFOCUS(id, memberFxn) ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_EDITUPDATE(id, memberFxn) ON_CONTROL(CBN_EDITUPDATE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_SELENDCANCEL(id, memberFxn) ON_CONTROL(CBN_SELENDCANCEL, id, memberFxn)
#define ON_LBN_ERRSPACE(id, memberFxn) ON_CONTROL(LBN_ERRSPACE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_SELCANCEL(id, memberFxn) ON_CONTROL(LBN_SELCANCEL, id, memberFxn)
#define ON_LBN_SETFOCUS(id, memberFxn) ON_CONTROL(LBN_SETFOCUS, id, memberFxn)
#define ON_LBN_KILLFOCUS(id, memberFxn) ON_CONTROL(LBN_KILLFOCUS, id, memberFxn)
#define ON_CLBN_CHKCHANGE(id, memberFxn) ON_CONTROL(CLBN_CHKCHANGE, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_STN_DBLCLK(id, memberFxn) ON_CONTROL(STN_DBLCLK, id, memberFxn)
#define ON_STN_ENABLE(id, memberFxn) ON_CONTROL(STN_ENABLE, id, memberFxn)
#define ON_STN_DISABLE(id, memberFxn) ON_CONTROL(STN_DISABLE, id, memberFxn)

// Messages with a handler of a fixed name.
#define ON_WM_ACTIVATE() AFXINT_WM(WM_ACTIVATE, Activate, &ThisClass::OnActivate)
#define ON_WM_ACTIVATEAPP() AFXINT_WM(WM_ACTIVATEAPP, ActivateApp, &ThisClass::OnActivateApp)
#define ON_WM_APPCOMMAND() AFXINT_WM(WM_APPCOMMAND, AppCommand, &ThisClass::OnAppCommand)
#define ON_WM_ASKCBFORMATNAME()                                                                    \
    AFXINT_WM(WM_ASKCBFORMATNAME, AskFormatName, &ThisClass::OnAskCbFormatName)
#define ON_WM_CANCELMODE() AFXINT_WM(WM_CANCELMODE, Plain, &ThisClass::OnCancelMode)
#define ON_WM_CAPTURECHANGED()                                                                     \
    AFXINT_WM(WM_CAPTURECHANGED, WindowInLParam, &ThisClass::OnCaptureChanged)
#define ON_WM_CHANGECBCHAIN() AFXINT_WM(WM_CHANGECBCHAIN, ChainChange, &ThisClass::OnChangeCbChain)
#define ON_WM_CHANGEUISTATE() AFXINT_WM(WM_CHANGEUISTATE, UiState, &ThisClass::OnChangeUIState)
#define ON_WM_CHAR() AFXINT_WM(WM_CHAR, Key, &ThisClass::OnChar)
#define ON_WM_CHARTOITEM() AFXINT_WM(WM_CHARTOITEM, KeyToItem, &ThisClass::OnCharToItem)
#define ON_WM_CHILDACTIVATE() AFXINT_WM(WM_CHILDACTIVATE, Plain, &ThisClass::OnChildActivate)
#define ON_WM_CLOSE() AFXINT_WM(WM_CLOSE, Plain, &ThisClass::OnClose)
#define ON_WM_COMPACTING() AFXINT_WM(WM_COMPACTING, Number, &ThisClass::OnCompacting)
#define ON_WM_COMPAREITEM() AFXINT_WM(WM_COMPAREITEM, CompareItem, &ThisClass::OnCompareItem)
#define ON_WM_CONTEXTMENU() AFXINT_WM(WM_CONTEXTMENU, ContextMenu, &ThisClass::OnContextMenu)
#define ON_WM_COPYDATA() AFXINT_WM(WM_COPYDATA, CopyData, &ThisClass::OnCopyData)
#define ON_WM_CREATE() AFXINT_WM(WM_CREATE, Create, &ThisClass::OnCreate)
#define ON_WM_CTLCOLOR() AFXINT_WM(WM_CTLCOLOR, CtlColor, &ThisClass::OnCtlColor)
#define ON_WM_DEADCHAR() AFXINT_WM(WM_DEADCHAR, Key, &ThisClass::OnDeadChar)
#define ON_WM_DELETEITEM() AFXINT_WM(WM_DELETEITEM, DeleteItem, &ThisClass::OnDeleteItem)
#define ON_WM_DESTROY() AFXINT_WM(WM_DESTROY, Plain, &ThisClass::OnDestroy)
#define ON_WM_DESTROYCLIPBOARD()                                                                   \
    AFXINT_WM(WM_DESTROYCLIPBOARD, Plain, &ThisClass::OnDestroyClipboard)
#define ON_WM_DEVICECHANGE() AFXINT_WM(WM_DEVICECHANGE, DeviceChange, &ThisClass::OnDeviceChange)
#define ON_WM_DEVMODECHANGE()                                                                      \
    AFXINT_WM(WM_DEVMODECHANGE, DevModeChange, &ThisClass::OnDevModeChange)
#define ON_WM_DRAWCLIPBOARD() AFXINT_WM(WM_DRAWCLIPBOARD, Plain, &ThisClass::OnDrawClipboard)
#define ON_WM_DRAWITEM() AFXINT_WM(WM_DRAWITEM, DrawItem, &ThisClass::OnDrawItem)
#define ON_WM_DROPFILES() AFXINT_WM(WM_DROPFILES, DropFiles, &ThisClass::OnDropFiles)
#define ON_WM_ENABLE() AFXINT_WM(WM_ENABLE, Flag, &ThisClass::OnEnable)
#define ON_WM_ENDSESSION() AFXINT_WM(WM_ENDSESSION, Flag, &ThisClass::OnEndSession)
#define ON_WM_ENTERIDLE() AFXINT_WM(WM_ENTERIDLE, EnterIdle, &ThisClass::OnEnterIdle)
#define ON_WM_ENTERMENULOOP() AFXINT_WM(WM_ENTERMENULOOP, Flag, &ThisClass::OnEnterMenuLoop)
#define ON_WM_ENTERSIZEMOVE() AFXINT_WM(WM_ENTERSIZEMOVE, Plain, &ThisClass::OnEnterSizeMove)
#define ON_WM_ERASEBKGND() AFXINT_WM(WM_ERASEBKGND, EraseBackground, &ThisClass::OnEraseBkgnd)
#define ON_WM_EXITMENULOOP() AFXINT_WM(WM_EXITMENULOOP, Flag, &ThisClass::OnExitMenuLoop)
#define ON_WM_EXITSIZEMOVE() AFXINT_WM(WM_EXITSIZEMOVE, Plain, &ThisClass::OnExitSizeMove)
#define ON_WM_FONTCHANGE() AFXINT_WM(WM_FONTCHANGE, Plain, &ThisClass::OnFontChange)
#define ON_WM_GETDLGCODE() AFXINT_WM(WM_GETDLGCODE, AskNumber, &ThisClass::OnGetDlgCode)
#define ON_WM_GETMINMAXINFO() AFXINT_WM(WM_GETMINMAXINFO, MinMaxInfo, &ThisClass::OnGetMinMaxInfo)
#define ON_WM_HELPINFO() AFXINT_WM(WM_HELP, HelpInfo, &ThisClass::OnHelpInfo)
#define ON_WM_HOTKEY() AFXINT_WM(WM_HOTKEY, Key, &ThisClass::OnHotKey)
#define ON_WM_HSCROLL() AFXINT_WM(WM_HSCROLL, Scroll, &ThisClass::OnHScroll)
#define ON_WM_HSCROLLCLIPBOARD()                                                                   \
    AFXINT_WM(WM_HSCROLLCLIPBOARD, ScrollClipboard, &ThisClass::OnHScrollClipboard)
#define ON_WM_ICONERASEBKGND()                                                                     \
    AFXINT_WM(WM_ICONERASEBKGND, EraseIconBackground, &ThisClass::OnIconEraseBkgnd)
#define ON_WM_INITMENU() AFXINT_WM(WM_INITMENU, InitMenu, &ThisClass::OnInitMenu)
#define ON_WM_INITMENUPOPUP()                                                                      \
    AFXINT_WM(WM_INITMENUPOPUP, InitMenuPopup, &ThisClass::OnInitMenuPopup)
#define ON_WM_INPUT() AFXINT_WM(WM_INPUT, RawInput, &ThisClass::OnRawInput)
#define ON_WM_RAWINPUT() ON_WM_INPUT()
#define ON_WM_INPUTLANGCHANGE()                                                                    \
    AFXINT_WM(WM_INPUTLANGCHANGE, NumberPair, &ThisClass::OnInputLangChange)
#define ON_WM_INPUTLANGCHANGEREQUEST()                                                             \
    AFXINT_WM(WM_INPUTLANGCHANGEREQUEST, NumberPair, &ThisClass::OnInputLangChangeRequest)
#define ON_WM_KEYDOWN() AFXINT_WM(WM_KEYDOWN, Key, &ThisClass::OnKeyDown)
#define ON_WM_KEYUP() AFXINT_WM(WM_KEYUP, Key, &ThisClass::OnKeyUp)
#define ON_WM_KILLFOCUS() AFXINT_WM(WM_KILLFOCUS, WindowInWParam, &ThisClass::OnKillFocus)
#define ON_WM_LBUTTONDBLCLK() AFXINT_WM(WM_LBUTTONDBLCLK, Mouse, &ThisClass::OnLButtonDblClk)
#define ON_WM_LBUTTONDOWN() AFXINT_WM(WM_LBUTTONDOWN, Mouse, &ThisClass::OnLButtonDown)
#define ON_WM_LBUTTONUP() AFXINT_WM(WM_LBUTTONUP, Mouse, &ThisClass::OnLButtonUp)
#define ON_WM_MBUTTONDBLCLK() AFXINT_WM(WM_MBUTTONDBLCLK, Mouse, &ThisClass::OnMButtonDblClk)
#define ON_WM_MBUTTONDOWN() AFXINT_WM(WM_MBUTTONDOWN, Mouse, &ThisClass::OnMButtonDown)
#define ON_WM_MBUTTONUP() AFXINT_WM(WM_MBUTTONUP, Mouse, &ThisClass::OnMButtonUp)
#define ON_WM_MDIACTIVATE() AFXINT_WM(WM_MDIACTIVATE, MdiActivate, &ThisClass::OnMDIActivate)
#define ON_WM_MEASUREITEM() AFXINT_WM(WM_MEASUREITEM, MeasureItem, &ThisClass::OnMeasureItem)
#define ON_WM_MENUCHAR() AFXINT_WM(WM_MENUCHAR, MenuChar, &ThisClass::OnMenuChar)
#define ON_WM_MENUDRAG() AFXINT_WM(WM_MENUDRAG, MenuDrag, &ThisClass::OnMenuDrag)
#define ON_WM_MENUGETOBJECT()                                                                      \
    AFXINT_WM(WM_MENUGETOBJECT, MenuGetObject, &ThisClass::OnMenuGetObject)
#define ON_WM_MENURBUTTONUP()                                                                      \
    AFXINT_WM(WM_MENURBUTTONUP, MenuRButtonUp, &ThisClass::OnMenuRButtonUp)
#define ON_WM_MENUSELECT() AFXINT_WM(WM_MENUSELECT, MenuSelect, &ThisClass::OnMenuSelect)
#define ON_WM_MOUSEACTIVATE()                                                                      \
    AFXINT_WM(WM_MOUSEACTIVATE, MouseActivate, &ThisClass::OnMouseActivate)
#define ON_WM_MOUSEHOVER() AFXINT_WM(WM_MOUSEHOVER, Mouse, &ThisClass::OnMouseHover)
#define ON_WM_MOUSEHWHEEL() AFXINT_WM(WM_MOUSEHWHEEL, MouseHWheel, &ThisClass::OnMouseHWheel)
#define ON_WM_MOUSELEAVE() AFXINT_WM(WM_MOUSELEAVE, Plain, &ThisClass::OnMouseLeave)
#define ON_WM_MOUSEMOVE() AFXINT_WM(WM_MOUSEMOVE, Mouse, &ThisClass::OnMouseMove)
#define ON_WM_MOUSEWHEEL() AFXINT_WM(WM_MOUSEWHEEL, MouseWheel, &ThisClass::OnMouseWheel)
#define ON_WM_MOVE() AFXINT_WM(WM_MOVE, Move, &ThisClass::OnMove)
#define ON_WM_MOVING() AFXINT_WM(WM_MOVING, DragRect, &ThisClass::OnMoving)
#define ON_WM_NCACTIVATE() AFXINT_WM(WM_NCACTIVATE, NcActivate, &ThisClass::OnNcActivate)
#define ON_WM_NCCALCSIZE() AFXINT_WM(WM_NCCALCSIZE, NcCalcSize, &ThisClass::OnNcCalcSize)
#define ON_WM_NCCREATE() AFXINT_WM(WM_NCCREATE, NcCreate, &ThisClass::OnNcCreate)
#define ON_WM_NCDESTROY() AFXINT_WM(WM_NCDESTROY, Plain, &ThisClass::OnNcDestroy)
#define ON_WM_NCHITTEST() AFXINT_WM(WM_NCHITTEST, NcHitTest, &ThisClass::OnNcHitTest)
#define ON_WM_NCLBUTTONDBLCLK() AFXINT_WM(WM_NCLBUTTONDBLCLK, Mouse, &ThisClass::OnNcLButtonDblClk)
#define ON_WM_NCLBUTTONDOWN() AFXINT_WM(WM_NCLBUTTONDOWN, Mouse, &ThisClass::OnNcLButtonDown)
#define ON_WM_NCLBUTTONUP() AFXINT_WM(WM_NCLBUTTONUP, Mouse, &ThisClass::OnNcLButtonUp)
#define ON_WM_NCMBUTTONDBLCLK() AFXINT_WM(WM_NCMBUTTONDBLCLK, Mouse, &ThisClass::OnNcMButtonDblClk)
#define ON_WM_NCMBUTTONDOWN() AFXINT_WM(WM_NCMBUTTONDOWN, Mouse, &ThisClass::OnNcMButtonDown)
#define ON_WM_NCMBUTTONUP() AFXINT_WM(WM_NCMBUTTONUP, Mouse, &ThisClass::OnNcMButtonUp)
#define ON_WM_NCMOUSEHOVER() AFXINT_WM(WM_NCMOUSEHOVER, Mouse, &ThisClass::OnNcMouseHover)
#define ON_WM_NCMOUSELEAVE() AFXINT_WM(WM_NCMOUSELEAVE, Plain, &ThisClass::OnNcMouseLeave)
#define ON_WM_NCMOUSEMOVE() AFXINT_WM(WM_NCMOUSEMOVE, Mouse, &ThisClass::OnNcMouseMove)
#define ON_WM_NCPAINT() AFXINT_WM(WM_NCPAINT, Plain, &ThisClass::OnNcPaint)
#define ON_WM_NCRBUTTONDBLCLK() AFXINT_WM(WM_NCRBUTTONDBLCLK, Mouse, &ThisClass::OnNcRButtonDblClk)
#define ON_WM_NCRBUTTONDOWN() AFXINT_WM(WM_NCRBUTTONDOWN, Mouse, &ThisClass::OnNcRButtonDown)
#define ON_WM_NCRBUTTONUP() AFXINT_WM(WM_NCRBUTTONUP, Mouse, &ThisClass::OnNcRButtonUp)
#define ON_WM_NCXBUTTONDBLCLK()                                                                    \
    AFXINT_WM(WM_NCXBUTTONDBLCLK, NcXButton, &ThisClass::OnNcXButtonDblClk)
#define ON_WM_NCXBUTTONDOWN() AFXINT_WM(WM_NCXBUTTONDOWN, NcXButton, &ThisClass::OnNcXButtonDown)
#define ON_WM_NCXBUTTONUP() AFXINT_WM(WM_NCXBUTTONUP, NcXButton, &ThisClass::OnNcXButtonUp)
#define ON_WM_NEXTMENU() AFXINT_WM(WM_NEXTMENU, NextMenu, &ThisClass::OnNextMenu)
#define ON_WM_NOTIFYFORMAT() AFXINT_WM(WM_NOTIFYFORMAT, NotifyFormat, &ThisClass::OnNotifyFormat)
#define ON_WM_PAINT() AFXINT_WM(WM_PAINT, Plain, &ThisClass::OnPaint)
#define ON_WM_PAINTCLIPBOARD()                                                                     \
    AFXINT_WM(WM_PAINTCLIPBOARD, ClipboardMemory, &ThisClass::OnPaintClipboard)
#define ON_WM_PALETTECHANGED()                                                                     \
    AFXINT_WM(WM_PALETTECHANGED, WindowInWParam, &ThisClass::OnPaletteChanged)
#define ON_WM_PALETTEISCHANGING()                                                                  \
    AFXINT_WM(WM_PALETTEISCHANGING, WindowInWParam, &ThisClass::OnPaletteIsChanging)
#define ON_WM_PARENTNOTIFY() AFXINT_WM(WM_PARENTNOTIFY, ParentNotify, &ThisClass::OnParentNotify)
#define ON_WM_POWERBROADCAST()                                                                     \
    AFXINT_WM(WM_POWERBROADCAST, PowerBroadcast, &ThisClass::OnPowerBroadcast)
#define ON_WM_QUERYDRAGICON() AFXINT_WM(WM_QUERYDRAGICON, AskIcon, &ThisClass::OnQueryDragIcon)
#define ON_WM_QUERYENDSESSION()                                                                    \
    AFXINT_WM(WM_QUERYENDSESSION, AskFlag, &ThisClass::OnQueryEndSession)
#define ON_WM_QUERYNEWPALETTE()                                                                    \
    AFXINT_WM(WM_QUERYNEWPALETTE, AskFlag, &ThisClass::OnQueryNewPalette)
#define ON_WM_QUERYOPEN() AFXINT_WM(WM_QUERYOPEN, AskFlag, &ThisClass::OnQueryOpen)
#define ON_WM_QUERYUISTATE() AFXINT_WM(WM_QUERYUISTATE, AskNumber, &ThisClass::OnQueryUIState)
#define ON_WM_RBUTTONDBLCLK() AFXINT_WM(WM_RBUTTONDBLCLK, Mouse, &ThisClass::OnRButtonDblClk)
#define ON_WM_RBUTTONDOWN() AFXINT_WM(WM_RBUTTONDOWN, Mouse, &ThisClass::OnRButtonDown)
#define ON_WM_RBUTTONUP() AFXINT_WM(WM_RBUTTONUP, Mouse, &ThisClass::OnRButtonUp)
#define ON_WM_RENDERALLFORMATS()                                                                   \
    AFXINT_WM(WM_RENDERALLFORMATS, Plain, &ThisClass::OnRenderAllFormats)
#define ON_WM_RENDERFORMAT() AFXINT_WM(WM_RENDERFORMAT, Number, &ThisClass::OnRenderFormat)
#define ON_WM_SESSIONCHANGE()                                                                      \
    AFXINT_WM(WM_WTSSESSION_CHANGE, NumberPair, &ThisClass::OnSessionChange)
#define ON_WM_SETCURSOR() AFXINT_WM(WM_SETCURSOR, SetCursor, &ThisClass::OnSetCursor)
#define ON_WM_SETFOCUS() AFXINT_WM(WM_SETFOCUS, WindowInWParam, &ThisClass::OnSetFocus)
#define ON_WM_SETTINGCHANGE()                                                                      \
    AFXINT_WM(WM_SETTINGCHANGE, SettingChange, &ThisClass::OnSettingChange)
#define ON_WM_SHOWWINDOW() AFXINT_WM(WM_SHOWWINDOW, Show, &ThisClass::OnShowWindow)
#define ON_WM_SIZE() AFXINT_WM(WM_SIZE, Size, &ThisClass::OnSize)
#define ON_WM_SIZECLIPBOARD()                                                                      \
    AFXINT_WM(WM_SIZECLIPBOARD, ClipboardMemory, &ThisClass::OnSizeClipboard)
#define ON_WM_SIZING() AFXINT_WM(WM_SIZING, DragRect, &ThisClass::OnSizing)
#define ON_WM_SPOOLERSTATUS()                                                                      \
    AFXINT_WM(WM_SPOOLERSTATUS, SpoolerStatus, &ThisClass::OnSpoolerStatus)
#define ON_WM_STYLECHANGED() AFXINT_WM(WM_STYLECHANGED, StyleChange, &ThisClass::OnStyleChanged)
#define ON_WM_STYLECHANGING() AFXINT_WM(WM_STYLECHANGING, StyleChange, &ThisClass::OnStyleChanging)
#define ON_WM_SYSCHAR() AFXINT_WM(WM_SYSCHAR, Key, &ThisClass::OnSysChar)
#define ON_WM_SYSCOLORCHANGE() AFXINT_WM(WM_SYSCOLORCHANGE, Plain, &ThisClass::OnSysColorChange)
#define ON_WM_SYSCOMMAND() AFXINT_WM(WM_SYSCOMMAND, SysCommand, &ThisClass::OnSysCommand)
#define ON_WM_SYSDEADCHAR() AFXINT_WM(WM_SYSDEADCHAR, Key, &ThisClass::OnSysDeadChar)
#define ON_WM_SYSKEYDOWN() AFXINT_WM(WM_SYSKEYDOWN, Key, &ThisClass::OnSysKeyDown)
#define ON_WM_SYSKEYUP() AFXINT_WM(WM_SYSKEYUP, Key, &ThisClass::OnSysKeyUp)
#define ON_WM_TCARD() AFXINT_WM(WM_TCARD, TrainingCard, &ThisClass::OnTCard)
#define ON_WM_TIMECHANGE() AFXINT_WM(WM_TIMECHANGE, Plain, &ThisClass::OnTimeChange)
#define ON_WM_TIMER() AFXINT_WM(WM_TIMER, Timer, &ThisClass::OnTimer)
#define ON_WM_UNICHAR() AFXINT_WM(WM_UNICHAR, Key, &ThisClass::OnUniChar)
#define ON_WM_UNINITMENUPOPUP()                                                                    \
    AFXINT_WM(WM_UNINITMENUPOPUP, UnInitMenuPopup, &ThisClass::OnUnInitMenuPopup)
#define ON_WM_UPDATEUISTATE() AFXINT_WM(WM_UPDATEUISTATE, UiState, &ThisClass::OnUpdateUIState)
#define ON_WM_USERCHANGED() AFXINT_WM(WM_USERCHANGED, Plain, &ThisClass::OnUserChanged)
#define ON_WM_VKEYTOITEM() AFXINT_WM(WM_VKEYTOITEM, KeyToItem, &ThisClass::OnVKeyToItem)
#define ON_WM_VSCROLL() AFXINT_WM(WM_VSCROLL, Scroll, &ThisClass::OnVScroll)
#define ON_WM_VSCROLLCLIPBOARD()                                                                   \
    AFXINT_WM(WM_VSCROLLCLIPBOARD, ScrollClipboard, &ThisClass::OnVScrollClipboard)
#define ON_WM_WINDOWPOSCHANGED()                                                                   \
    AFXINT_WM(WM_WINDOWPOSCHANGED, WindowPos, &ThisClass::OnWindowPosChanged)
#define ON_WM_WINDOWPOSCHANGING()                                                                  \
    AFXINT_WM(WM_WINDOWPOSCHANGING, WindowPos, &ThisClass::OnWindowPosChanging)
#define ON_WM_WININICHANGE() AFXINT_WM(WM_WININICHANGE, WinIniChange, &ThisClass::OnWinIniChange)
#define ON_WM_XBUTTONDBLCLK() AFXINT_WM(WM_XBUTTONDBLCLK, XButton, &ThisClass::OnXButtonDblClk)
#define ON_WM_XBUTTONDOWN() AFXINT_WM(WM_XBUTTONDOWN, XButton, &ThisClass::OnXButtonDown)
#define ON_WM_XBUTTONUP() AFXINT_WM(WM_XBUTTONUP, XButton, &ThisClass::OnXButtonUp)

// Messages that the parent reflects to the control they came from.
#define ON_WM_CHARTOITEM_REFLECT()                                                                 \
    AFXINT_WM(WM_REFLECT_BASE + WM_CHARTOITEM, KeyToItemReflect, &ThisClass::CharToItem)
#define ON_WM_COMPAREITEM_REFLECT()                                                                \
    AFXINT_WM(WM_REFLECT_BASE + WM_COMPAREITEM, CompareItemReflect, &ThisClass::CompareItem)
#define ON_WM_CTLCOLOR_REFLECT()                                                                   \
    AFXINT_WM(WM_REFLECT_BASE + WM_CTLCOLOR, CtlColorReflect, &ThisClass::CtlColor)
#define ON_WM_DELETEITEM_REFLECT()                                                                 \
    AFXINT_WM(WM_REFLECT_BASE + WM_DELETEITEM, DeleteItemReflect, &ThisClass::DeleteItem)
#define ON_WM_DRAWITEM_REFLECT()                                                                   \
    AFXINT_WM(WM_REFLECT_BASE + WM_DRAWITEM, DrawItemReflect, &ThisClass::DrawItem)
#define ON_WM_HSCROLL_REFLECT()                                                                    \
    AFXINT_WM(WM_REFLECT_BASE + WM_HSCROLL, ScrollReflect, &ThisClass::HScroll)
#define ON_WM_MEASUREITEM_REFLECT()                                                                \
    AFXINT_WM(WM_REFLECT_BASE + WM_MEASUREITEM, MeasureItemReflect, &ThisClass::MeasureItem)
#define ON_WM_PARENTNOTIFY_REFLECT()                                                               \
    AFXINT_WM(WM_REFLECT_BASE + WM_PARENTNOTIFY, ParentNotify, &ThisClass::ParentNotify)
#define ON_WM_VKEYTOITEM_REFLECT()                                                                 \
    AFXINT_WM(WM_REFLECT_BASE + WM_VKEYTOITEM, KeyToItemReflect, &ThisClass::VKeyToItem)
#define ON_WM_VSCROLL_REFLECT()                                                                    \
    AFXINT_WM(WM_REFLECT_BASE + WM_VSCROLL, ScrollReflect, &ThisClass::VScroll)
