// The way of a message from the window procedure to the handler.
#include <classes/CWnd.h>

#include <classes/Application.h>
#include <classes/CCmdUI.h>

#include "windows/DragListMessage.h"
#include "windows/MessageMap.h"
#include "threads/SystemCall.h"
#include "threads/ThreadState.h"
#include "windows/WindowMessages.h"

using afxint::CurrentThread;

namespace {

/// Makes a message the current one of the thread while it is handled.
class MessageScope
{
public:
    explicit MessageScope(const MSG& message)
        : thread_(CurrentThread()), outer_(thread_.currentMessage)
    {
        thread_.currentMessage = message;
        ++thread_.handlerDepth;
    }
    ~MessageScope()
    {
        --thread_.handlerDepth;
        thread_.currentMessage = outer_;
    }
    MessageScope(const MessageScope&) = delete;
    MessageScope& operator=(const MessageScope&) = delete;

private:
    afxint::ThreadState& thread_;
    MSG outer_;
};

MSG MakeMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    MSG made{};
    made.hwnd = window;
    made.message = message;
    made.wParam = wParam;
    made.lParam = lParam;
    made.time = static_cast<DWORD>(GetMessageTime());
    const DWORD position = GetMessagePos();
    made.pt = {GET_X_LPARAM(position), GET_Y_LPARAM(position)};
    return made;
}

constexpr TCHAR formerProperty[] = _T("afx.former");

/// Takes the state that an update handler gives a command, where there is no item to show it.
class EnabledTest : public CCmdUI
{
public:
    explicit EnabledTest(UINT id) { m_nID = id; }
    void Enable(BOOL bOn) override { enabled = bOn != FALSE; }
    void SetCheck(int) override {}
    void SetRadio(BOOL) override {}
    void SetText(LPCTSTR) override {}

    bool enabled = true;
};

} // namespace

namespace afxint {

LRESULT CALLBACK WindowMessages::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    ThreadState& thread = CurrentThread();
    CWnd* object = thread.windows.FindPermanent(window);
    if (object == NULL) {
        // The object let go of the window without giving it its procedure back.
        const auto former =
            reinterpret_cast<WNDPROC>(reinterpret_cast<LONG_PTR>(GetProp(window, formerProperty)));
        if (message == WM_NCDESTROY)
            RemoveProp(window, formerProperty);
        return former == NULL ? ::DefWindowProc(window, message, wParam, lParam)
                              : CallWindowProc(former, window, message, wParam, lParam);
    }

    const MSG current = MakeMessage(window, message, wParam, lParam);
    const MessageScope scope(current);
    LRESULT result = 0;
    try {
        result = object->WindowProc(message, wParam, lParam);
    } catch (...) {
        result = AnswerException(current);
    }
    // A handler of WM_NCDESTROY that did not call the base leaves the object without a window all
    // the same.
    if (message == WM_NCDESTROY && thread.windows.FindPermanent(window) == object)
        Forget(object);
    return result;
}

bool WindowMessages::TakeOver(CWnd* object, HWND window)
{
    if (!object->Attach(window))
        return false;
    try {
        object->PreSubclassWindow();
    } catch (...) {
        object->Detach(); // It would stay attached and see no message.
        throw;
    }
    // A kept procedure tells that ours never left the window; a second time in the same chain, it
    // would call itself for ever.
    if (object->superProc_ != NULL)
        return true;
    const auto former = reinterpret_cast<WNDPROC>(
        SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure)));
    if (former == NULL) {
        Forget(object); // The window of another process, for one.
        return false;
    }
    if (former != &Procedure)
        object->superProc_ = former;
    return true;
}

void WindowMessages::GiveBack(HWND window, WNDPROC former)
{
    const auto current = reinterpret_cast<WNDPROC>(GetWindowLongPtr(window, GWLP_WNDPROC));
    if (former != NULL && current == &Procedure)
        SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(former));
    else
        KeepFormer(window, former); // Somebody else in front still calls this procedure.
}

void WindowMessages::KeepFormer(HWND window, WNDPROC former)
{
    if (former != NULL)
        SetProp(window, formerProperty,
                reinterpret_cast<HANDLE>(reinterpret_cast<LONG_PTR>(former)));
}

WNDPROC WindowMessages::TakeKeptFormer(HWND window)
{
    return reinterpret_cast<WNDPROC>(
        reinterpret_cast<LONG_PTR>(RemoveProp(window, formerProperty)));
}

void WindowMessages::Forget(CWnd* object)
{
    CurrentThread().windows.Remove(object->m_hWnd);
    object->m_hWnd = NULL;
    object->superProc_ = NULL;
}

} // namespace afxint

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (OnWndMsg(message, wParam, lParam, &result))
        return result;
    return DefWindowProc(message, wParam, lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    switch (message) {
    case WM_COMMAND:
        if (!OnCommand(wParam, lParam))
            return FALSE;
        *pResult = TRUE;
        return TRUE;
    case WM_NOTIFY:
        return reinterpret_cast<NMHDR*>(lParam)->hwndFrom != NULL &&
               OnNotify(wParam, lParam, pResult);
    case WM_INITMENU:
    case WM_INITMENUPOPUP:
        CurrentThread().openedMenu = reinterpret_cast<HMENU>(wParam);
        break;
    }

    const AFX_MSGMAP_ENTRY* entry = afxint::FindMessageEntry(GetMessageMap(), message);
    if (entry == NULL) {
        return afxint::IsDragListMessage(message) &&
               ReflectLastMsg(reinterpret_cast<DRAGLISTINFO*>(lParam)->hWnd, pResult);
    }
    const afxint::Delivery delivery{m_hWnd, message, wParam, lParam, 0, NULL};
    *pResult = afxint::CallHandler(*entry, this, delivery);
    return TRUE;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (superProc_ != NULL)
        return CallWindowProc(superProc_, m_hWnd, message, wParam, lParam);
    return ::DefWindowProc(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default()
{
    const MSG current = CurrentThread().currentMessage;
    return DefWindowProc(current.message, current.wParam, current.lParam);
}

const MSG* PASCAL CWnd::GetCurrentMessage()
{
    return &CurrentThread().currentMessage;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const UINT id = LOWORD(wParam);
    const HWND control = reinterpret_cast<HWND>(lParam);
    if (control == NULL) {
        // An accelerator works although its menu item is disabled; not so its command.
        EnabledTest state(id);
        OnCmdMsg(id, static_cast<int>(CN_UPDATE_COMMAND_UI), &state, NULL);
        return !state.enabled || OnCmdMsg(id, CN_COMMAND, NULL, NULL);
    }
    if (Has(exchanging))
        return TRUE;
    return OnCmdMsg(id, HIWORD(wParam), NULL, NULL) || ReflectLastMsg(control);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult)
{
    auto* header = reinterpret_cast<NMHDR*>(lParam);
    if (Has(exchanging))
        return TRUE;
    if (ReflectLastMsg(header->hwndFrom, pResult))
        return TRUE;
    // Not the header's id: a tool tip puts the window of the tool there.
    const UINT id = LOWORD(::GetDlgCtrlID(header->hwndFrom));
    AFX_NOTIFY notify{pResult, header};
    return OnCmdMsg(id, MAKELONG(header->code, WM_NOTIFY), &notify, NULL);
}
