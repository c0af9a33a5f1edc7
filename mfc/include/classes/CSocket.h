// A socket whose calls wait until they are done.
#pragma once

#include <classes/CAsyncSocket.h>

/// A socket that an archive can use through a CSocketFile. While a call waits, the thread still
/// paints; what happens to other sockets is told when the call is done. OnConnect and OnSend are
/// never called.
class AFX_EXPORTED CSocket : public CAsyncSocket
{
    DECLARE_DYNAMIC(CSocket)

public:
    CSocket();
    ~CSocket() override;

    BOOL Create(UINT nSocketPort = 0, int nSocketType = SOCK_STREAM,
                LPCTSTR lpszSocketAddress = NULL);
    BOOL Attach(SOCKET hSocket);
    static CSocket* PASCAL FromHandle(SOCKET hSocket);

    /// Whether a call is waiting. Further calls then fail with WSAEINPROGRESS.
    BOOL IsBlocking();
    /// Lets the waiting call fail with WSAEINTR.
    void CancelBlockingCall();

    BOOL Accept(CAsyncSocket& rConnectedSocket, SOCKADDR* lpSockAddr = NULL,
                int* lpSockAddrLen = NULL) override;
    void Close() override;
    int Receive(void* lpBuf, int nBufLen, int nFlags = 0) override;
    /// Sends all of it.
    int Send(const void* lpBuf, int nBufLen, int nFlags = 0) override;

protected:
    /// Called while a call waits and the thread has messages; TRUE when one of them was taken and
    /// handled. Paints unless overridden.
    virtual BOOL OnMessagePending();

private:
    struct BlockingCall;

    BOOL ConnectTo(const SOCKADDR* address, int length) override;
    int ReceiveDatagram(void* buffer, int size, int flags, SOCKADDR* from, int* length) override;
    int SendDatagram(const void* data, int size, int flags, const SOCKADDR* to,
                     int length) override;
    void Notify(int event, int error) override;

    template <class Call>
    auto Repeat(long event, Call call) -> decltype(call());
    bool WaitFor(long event, int& error);

    BlockingCall* blocking_; ///< The call that waits; NULL when none does.
};
