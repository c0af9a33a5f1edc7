#include <classes/CSocket.h>

#include "sockets/SocketWindow.h"

#include <utility>

using afxint::SocketWindow;

IMPLEMENT_DYNAMIC(CSocket, CAsyncSocket)

namespace {

constexpr long allEvents = FD_READ | FD_WRITE | FD_OOB | FD_ACCEPT | FD_CONNECT | FD_CLOSE;

} // namespace

/// Stands on the stack of a call that waits; the object itself may be gone at its end.
struct CSocket::BlockingCall
{
    bool cancelled = false;
};

CSocket::CSocket() : blocking_(NULL)
{
}

CSocket::~CSocket()
{
    CancelBlockingCall();
}

BOOL CSocket::Create(UINT nSocketPort, int nSocketType, LPCTSTR lpszSocketAddress)
{
    return CAsyncSocket::Create(nSocketPort, nSocketType, allEvents, lpszSocketAddress);
}

BOOL CSocket::Attach(SOCKET hSocket)
{
    return CAsyncSocket::Attach(hSocket, allEvents);
}

CSocket* PASCAL CSocket::FromHandle(SOCKET hSocket)
{
    return static_cast<CSocket*>(CAsyncSocket::FromHandle(hSocket));
}

BOOL CSocket::IsBlocking()
{
    return blocking_ != NULL;
}

void CSocket::CancelBlockingCall()
{
    if (BlockingCall* call = std::exchange(blocking_, nullptr))
        call->cancelled = true;
}

BOOL CSocket::Accept(CAsyncSocket& rConnectedSocket, SOCKADDR* lpSockAddr, int* lpSockAddrLen)
{
    return Repeat(FD_ACCEPT, [&] {
               return CAsyncSocket::Accept(rConnectedSocket, lpSockAddr, lpSockAddrLen)
                          ? 0
                          : SOCKET_ERROR;
           }) != SOCKET_ERROR;
}

void CSocket::Close()
{
    CancelBlockingCall();
    CAsyncSocket::Close();
}

int CSocket::Receive(void* lpBuf, int nBufLen, int nFlags)
{
    return Repeat(FD_READ, [&] { return CAsyncSocket::Receive(lpBuf, nBufLen, nFlags); });
}

int CSocket::Send(const void* lpBuf, int nBufLen, int nFlags)
{
    const char* data = static_cast<const char*>(lpBuf);
    int sent = 0;
    do {
        const int more = Repeat(
            FD_WRITE, [&] { return CAsyncSocket::Send(data + sent, nBufLen - sent, nFlags); });
        if (more == SOCKET_ERROR)
            return SOCKET_ERROR;
        sent += more;
    } while (sent < nBufLen);
    return sent;
}

BOOL CSocket::OnMessagePending()
{
    MSG message;
    if (!::PeekMessage(&message, NULL, WM_PAINT, WM_PAINT, PM_REMOVE))
        return FALSE;
    ::DispatchMessage(&message);
    return TRUE;
}

BOOL CSocket::ConnectTo(const SOCKADDR* address, int length)
{
    if (blocking_ != NULL) {
        ::WSASetLastError(WSAEINPROGRESS);
        return FALSE;
    }
    if (CAsyncSocket::ConnectTo(address, length))
        return TRUE;
    int error = 0;
    if (GetLastError() != WSAEWOULDBLOCK || !WaitFor(FD_CONNECT, error))
        return FALSE;
    ::WSASetLastError(error);
    return error == 0;
}

int CSocket::ReceiveDatagram(void* buffer, int size, int flags, SOCKADDR* from, int* length)
{
    return Repeat(FD_READ,
                  [&] { return CAsyncSocket::ReceiveDatagram(buffer, size, flags, from, length); });
}

int CSocket::SendDatagram(const void* data, int size, int flags, const SOCKADDR* to, int length)
{
    return Repeat(FD_WRITE,
                  [&] { return CAsyncSocket::SendDatagram(data, size, flags, to, length); });
}

void CSocket::Notify(int event, int error)
{
    if (event == FD_CONNECT || event == FD_WRITE)
        return;
    // A call that waited may have received already what was told.
    DWORD waiting = 0;
    if (event == FD_READ && error == 0 && IOCtl(FIONREAD, &waiting) && waiting == 0)
        return;
    CAsyncSocket::Notify(event, error);
}

/// Makes a call again and again until it has something to do, waiting for the event in between.
/// The object may be gone when it fails.
template <class Call>
auto CSocket::Repeat(long event, Call call) -> decltype(call())
{
    if (blocking_ != NULL) {
        ::WSASetLastError(WSAEINPROGRESS);
        return SOCKET_ERROR;
    }
    for (;;) {
        const auto result = call();
        int error = 0;
        if (result != SOCKET_ERROR || GetLastError() != WSAEWOULDBLOCK || !WaitFor(event, error))
            return result;
    }
}

/// Lets messages pass until the event has come. False when the call was cancelled; the object may
/// be gone then.
bool CSocket::WaitFor(long event, int& error)
{
    SocketWindow& window = SocketWindow::OfThread();
    const SocketWindow::Holding holding(window);
    BlockingCall call;
    blocking_ = &call;
    for (;;) {
        MSG message;
        const bool pending = ::PeekMessage(&message, NULL, 0, 0, PM_NOREMOVE) != FALSE;
        const bool handled = pending && !call.cancelled && OnMessagePending();
        if (call.cancelled)
            break;
        if (window.TakeEvent(m_hSocket, event, error)) {
            blocking_ = NULL;
            return true;
        }
        if (!handled)
            ::MsgWaitForMultipleObjects(0, NULL, FALSE, INFINITE, QS_ALLINPUT);
    }
    ::WSASetLastError(WSAEINTR);
    return false;
}
