#include "sockets/SocketWindow.h"

#include <classes/Application.h>

#include "threads/SystemCall.h"
#include "threads/ThreadState.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace afxint {

namespace {

constexpr UINT firstMessage = WM_USER;
constexpr UINT lastMessage = 0x7fff;

/// A number that no other socket of the thread has had for long.
UINT NextMessage()
{
    thread_local UINT message = lastMessage;
    message = message == lastMessage ? firstMessage : message + 1;
    return message;
}

} // namespace

SocketWindow& SocketWindow::OfThread()
{
    std::shared_ptr<SocketWindow>& window = CurrentThread().sockets;
    if (window == NULL)
        window = std::make_shared<SocketWindow>();
    return *window;
}

CAsyncSocket* SocketWindow::Find(SOCKET socket) const
{
    const auto found = entries_.find(socket);
    return found == entries_.end() ? NULL : found->second.object;
}

bool SocketWindow::Add(SOCKET socket, CAsyncSocket* object)
{
    if (window_ == NULL && !CreateHiddenWindow())
        return false;
    entries_[socket] = {object, NextMessage(), 0};
    return true;
}

void SocketWindow::Remove(SOCKET socket)
{
    if (entries_.erase(socket) == 0)
        return;
    ::WSAAsyncSelect(socket, window_, 0, 0);
    if (entries_.empty() && waitingCalls_ == 0)
        ::DestroyWindow(std::exchange(window_, nullptr));
}

BOOL SocketWindow::Select(SOCKET socket, long events)
{
    const auto found = entries_.find(socket);
    if (found == entries_.end()) {
        ::WSASetLastError(WSAENOTSOCK);
        return FALSE;
    }
    found->second.events = events;
    return ::WSAAsyncSelect(socket, window_, found->second.message, events) != SOCKET_ERROR;
}

long SocketWindow::EventsOf(SOCKET socket) const
{
    const auto found = entries_.find(socket);
    return found == entries_.end() ? 0 : found->second.events;
}

bool SocketWindow::TakeEvent(SOCKET socket, long event, int& error)
{
    FetchAll();
    for (auto at = held_.begin(); at != held_.end(); ++at) {
        if (at->wParam != socket || !IsCurrent(at->message, socket))
            continue;
        const long told = WSAGETSELECTEVENT(at->lParam);
        error = WSAGETSELECTERROR(at->lParam);
        if (told == event) {
            held_.erase(at);
            return true;
        }
        if (told == FD_CLOSE && !std::exchange(at->counted, true))
            return true;
    }
    return false;
}

LRESULT CALLBACK SocketWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message < firstMessage || message > lastMessage)
        return ::DefWindowProc(window, message, wParam, lParam);
    MSG current{};
    current.hwnd = window;
    current.message = message;
    current.wParam = wParam;
    current.lParam = lParam;
    return CalledBySystem(current, LRESULT{0}, [&] {
        OfThread().Deliver(current);
        return LRESULT{0};
    });
}

bool SocketWindow::CreateHiddenWindow()
{
    WNDCLASS windowClass{};
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = AfxGetInstanceHandle();
    windowClass.lpszClassName = _T("AfxSocketNotifySink");
    if (AfxRegisterClass(&windowClass)) {
        window_ = ::CreateWindowEx(0, windowClass.lpszClassName, NULL, 0, 0, 0, 0, 0, HWND_MESSAGE,
                                   NULL, windowClass.hInstance, NULL);
    }
    if (window_ == NULL)
        ::WSASetLastError(WSAENOBUFS);
    return window_ != NULL;
}

void SocketWindow::Deliver(const MSG& message)
{
    if (waitingCalls_ > 0) {
        held_.push_back({message.message, message.wParam, message.lParam, false});
        return;
    }
    const auto found = entries_.find(message.wParam);
    if (found == entries_.end() || found->second.message != message.message)
        return;
    found->second.object->Notify(WSAGETSELECTEVENT(message.lParam),
                                 WSAGETSELECTERROR(message.lParam));
}

bool SocketWindow::IsCurrent(UINT message, SOCKET socket) const
{
    const auto found = entries_.find(socket);
    return found != entries_.end() && found->second.message == message;
}

/// Takes the notifications that have come out of the thread's queue.
void SocketWindow::FetchAll()
{
    MSG message;
    while (window_ != NULL &&
           ::PeekMessage(&message, window_, firstMessage, lastMessage, PM_REMOVE))
        held_.push_back({message.message, message.wParam, message.lParam, false});
}

void SocketWindow::EndWaiting()
{
    if (--waitingCalls_ > 0)
        return;
    for (const Notification& held : std::exchange(held_, {}))
        ::PostMessage(window_, held.message, held.wParam, held.lParam);
    if (entries_.empty() && window_ != NULL)
        ::DestroyWindow(std::exchange(window_, nullptr));
}

} // namespace afxint
