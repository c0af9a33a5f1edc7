// Sockets that talk to each other within one thread.
#pragma once

#include <afxsock.h>

#include <string>
#include <vector>

/// The address at which a computer reaches itself.
constexpr TCHAR loopback[] = _T("127.0.0.1");

/// The system's sockets, for the time of one test.
struct StartedSockets
{
    StartedSockets() { ok = AfxSocketInit() != FALSE; }
    ~StartedSockets() { AfxSocketTerm(); }
    StartedSockets(const StartedSockets&) = delete;
    StartedSockets& operator=(const StartedSockets&) = delete;

    bool ok;
};

/// The port that a socket was given.
inline UINT PortOf(CAsyncSocket& socket)
{
    CString address;
    UINT port = 0;
    socket.GetSockName(address, port);
    return port;
}

/// A port of the loopback address that nobody listens at.
inline UINT UnusedPort()
{
    CAsyncSocket socket;
    socket.Create(0, SOCK_STREAM, 0, loopback);
    return PortOf(socket);
}

/// Remembers what a socket is told: the letters of its handlers, and the last error.
template <class Base>
class WatchedSocket : public Base
{
public:
    std::string heard; ///< r receive, s send, a accept, c connect, x close.
    int lastError = 0;

    bool Heard(char event) const { return heard.find(event) != std::string::npos; }

protected:
    void OnReceive(int error) override { Remember('r', error); }
    void OnSend(int error) override { Remember('s', error); }
    void OnAccept(int error) override { Remember('a', error); }
    void OnConnect(int error) override { Remember('c', error); }
    void OnClose(int error) override { Remember('x', error); }

private:
    void Remember(char event, int error)
    {
        heard += event;
        lastError = error;
    }
};
