// A socket that tells what happens to it.
#pragma once

#include <classes/CObject.h>
#include <classes/CString.h>

// <windows.h> has brought the older interface, which the newer one takes in.
#ifndef _WINSOCK2API_
#undef _WINSOCKAPI_
#include <winsock2.h>
#endif
#include <ws2tcpip.h>

namespace afxint {
class SocketWindow;
}

/// Starts the system's sockets; to be called before any other use of them, in InitInstance.
AFX_EXPORTED BOOL AFXAPI AfxSocketInit(WSADATA* lpwsaData = NULL);
/// Takes back all calls of AfxSocketInit. The end of the program does so, too.
AFX_EXPORTED void AFXAPI AfxSocketTerm();

/// A socket whose calls return at once. Calls that fail say FALSE or SOCKET_ERROR, and
/// GetLastError why, WSAEWOULDBLOCK among the reasons; a handler is called when to try again. The
/// object belongs to the thread that has made or attached the socket, and that thread has to take
/// its messages: notifications come with them.
class AFX_EXPORTED CAsyncSocket : public CObject
{
    DECLARE_DYNAMIC(CAsyncSocket)

public:
    enum { receives = 0, sends = 1, both = 2 }; ///< What ShutDown ends.

    CAsyncSocket();
    ~CAsyncSocket() override;

    SOCKET m_hSocket; ///< INVALID_SOCKET when there is none.

    /// Makes a socket and binds it. The object must have none.
    BOOL Create(UINT nSocketPort = 0, int nSocketType = SOCK_STREAM,
                long lEvent = FD_READ | FD_WRITE | FD_OOB | FD_ACCEPT | FD_CONNECT | FD_CLOSE,
                LPCTSTR lpszSocketAddress = NULL);
    /// The same for an address of any family.
    BOOL CreateEx(ADDRINFOT* pAI,
                  long lEvent = FD_READ | FD_WRITE | FD_OOB | FD_ACCEPT | FD_CONNECT | FD_CLOSE);
    /// Makes a socket without binding it.
    BOOL Socket(int nSocketType = SOCK_STREAM,
                long lEvent = FD_READ | FD_WRITE | FD_OOB | FD_ACCEPT | FD_CONNECT | FD_CLOSE,
                int nProtocolType = 0, int nAddressFormat = PF_INET);
    BOOL Attach(SOCKET hSocket,
                long lEvent = FD_READ | FD_WRITE | FD_OOB | FD_ACCEPT | FD_CONNECT | FD_CLOSE);
    /// The caller owns the socket, which no longer tells anything.
    SOCKET Detach();
    /// The object of a socket of the calling thread's; NULL when there is none.
    static CAsyncSocket* PASCAL FromHandle(SOCKET hSocket);
    operator SOCKET() const;

    /// Of the calling thread's last call.
    static int PASCAL GetLastError();

    BOOL GetPeerName(CString& rPeerAddress, UINT& rPeerPort);
    BOOL GetPeerName(SOCKADDR* lpSockAddr, int* lpSockAddrLen);
    BOOL GetPeerNameEx(CString& rPeerAddress, UINT& rPeerPort);
    BOOL GetSockName(CString& rSocketAddress, UINT& rSocketPort);
    BOOL GetSockName(SOCKADDR* lpSockAddr, int* lpSockAddrLen);
    BOOL GetSockNameEx(CString& rSocketAddress, UINT& rSocketPort);
    BOOL SetSockOpt(int nOptionName, const void* lpOptionValue, int nOptionLen,
                    int nLevel = SOL_SOCKET);
    BOOL GetSockOpt(int nOptionName, void* lpOptionValue, int* lpOptionLen,
                    int nLevel = SOL_SOCKET);

    /// The new connection has the properties of this socket. The object given must have no socket.
    virtual BOOL Accept(CAsyncSocket& rConnectedSocket, SOCKADDR* lpSockAddr = NULL,
                        int* lpSockAddrLen = NULL);
    /// Says which events are told from now on.
    BOOL AsyncSelect(long lEvent = FD_READ | FD_WRITE | FD_OOB | FD_ACCEPT | FD_CONNECT | FD_CLOSE);
    BOOL Bind(UINT nSocketPort, LPCTSTR lpszSocketAddress = NULL);
    BOOL Bind(const SOCKADDR* lpSockAddr, int nSockAddrLen);
    virtual void Close();
    /// The host is a name or a dotted address.
    BOOL Connect(LPCTSTR lpszHostAddress, UINT nHostPort);
    BOOL Connect(const SOCKADDR* lpSockAddr, int nSockAddrLen);
    BOOL IOCtl(long lCommand, DWORD* lpArgument);
    BOOL Listen(int nConnectionBacklog = 5);
    /// The bytes received; 0 when the other end has closed the connection.
    virtual int Receive(void* lpBuf, int nBufLen, int nFlags = 0);
    int ReceiveFrom(void* lpBuf, int nBufLen, CString& rSocketAddress, UINT& rSocketPort,
                    int nFlags = 0);
    int ReceiveFrom(void* lpBuf, int nBufLen, SOCKADDR* lpSockAddr, int* lpSockAddrLen,
                    int nFlags = 0);
    int ReceiveFromEx(void* lpBuf, int nBufLen, CString& rSocketAddress, UINT& rSocketPort,
                      int nFlags = 0);
    /// The bytes sent, which may be fewer than given.
    virtual int Send(const void* lpBuf, int nBufLen, int nFlags = 0);
    /// Without a host to all computers of the network.
    int SendTo(const void* lpBuf, int nBufLen, UINT nHostPort, LPCTSTR lpszHostAddress = NULL,
               int nFlags = 0);
    int SendTo(const void* lpBuf, int nBufLen, const SOCKADDR* lpSockAddr, int nSockAddrLen,
               int nFlags = 0);
    int SendToEx(const void* lpBuf, int nBufLen, UINT nHostPort, LPCTSTR lpszHostAddress = NULL,
                 int nFlags = 0);
    BOOL ShutDown(int nHow = sends);

protected:
    // To be overridden; each is given 0 or the reason of a failure.
    virtual void OnReceive(int nErrorCode);
    virtual void OnSend(int nErrorCode);
    virtual void OnOutOfBandData(int nErrorCode);
    virtual void OnAccept(int nErrorCode);
    virtual void OnConnect(int nErrorCode);
    virtual void OnClose(int nErrorCode);

private:
    friend class CSocket;
    friend class afxint::SocketWindow;

    // What of the calls above a blocking socket does otherwise.
    virtual BOOL ConnectTo(const SOCKADDR* address, int length);
    virtual int ReceiveDatagram(void* buffer, int size, int flags, SOCKADDR* from, int* length);
    virtual int SendDatagram(const void* data, int size, int flags, const SOCKADDR* to, int length);
    /// Calls the handler of an event.
    virtual void Notify(int event, int error);

    BOOL TakeSocket(SOCKET socket, long events);
};
