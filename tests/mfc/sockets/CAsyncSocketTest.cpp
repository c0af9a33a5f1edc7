#include <afxsock.h>

#include <doctest/doctest.h>

#include "testing/Pump.h"

#include "tests/mfc/sockets/Loopback.h"

#include <memory>

using namespace umbra::testing;

namespace {

using Watched = WatchedSocket<CAsyncSocket>;

constexpr std::chrono::seconds longestWait(60); // For what must happen, on however busy a machine.

/// A listener, and a connection to it from both ends.
struct Connection
{
    Connection()
    {
        REQUIRE(
            listener.Create(0, SOCK_STREAM, FD_READ | FD_WRITE | FD_ACCEPT | FD_CLOSE, loopback));
        REQUIRE(listener.Listen());
        REQUIRE(client.Create());
        const BOOL connected = client.Connect(loopback, PortOf(listener));
        REQUIRE((connected || CAsyncSocket::GetLastError() == WSAEWOULDBLOCK));
        REQUIRE(WaitUntil([&] { return listener.Heard('a') && client.Heard('c'); }, longestWait));
        REQUIRE(listener.Accept(server));
    }

    Watched listener, server, client;
};

/// Receives until that many bytes have come.
std::string ReceiveAll(Watched& socket, size_t length)
{
    std::string text;
    WaitUntil(
        [&] {
            char buffer[64];
            const int count = socket.Receive(buffer, sizeof(buffer));
            if (count > 0)
                text.append(buffer, count);
            return text.size() >= length;
        },
        longestWait);
    return text;
}

} // namespace

TEST_CASE("a socket cannot be made before the system's sockets were started")
{
    CAsyncSocket socket;
    CHECK_FALSE(socket.Create());
    CHECK(CAsyncSocket::GetLastError() == WSANOTINITIALISED);
    CHECK(socket.m_hSocket == INVALID_SOCKET);
}

TEST_CASE("AfxSocketInit tells which sockets the system has")
{
    WSADATA data{};
    REQUIRE(AfxSocketInit(&data));
    CHECK(LOBYTE(data.wVersion) >= 1);
    REQUIRE(AfxSocketInit());
    AfxSocketTerm(); // For both.
    CAsyncSocket socket;
    CHECK_FALSE(socket.Create());
    CHECK(CAsyncSocket::GetLastError() == WSANOTINITIALISED);
}

TEST_CASE("two ends of a connection tell of each other and talk")
{
    const StartedSockets started;
    Connection ends;
    CHECK(ends.client.lastError == 0);
    CHECK(WaitUntil([&] { return ends.client.Heard('s') && ends.server.Heard('s'); }, longestWait));

    REQUIRE(ends.client.Send("question", 8) == 8);
    REQUIRE(WaitUntil([&] { return ends.server.Heard('r'); }, longestWait));
    CHECK(ReceiveAll(ends.server, 8) == "question");
    char rest;
    CHECK(ends.server.Receive(&rest, 1) == SOCKET_ERROR);
    CHECK(CAsyncSocket::GetLastError() == WSAEWOULDBLOCK);
    REQUIRE(ends.server.Send("answer", 6) == 6);
    REQUIRE(WaitUntil([&] { return ends.client.Heard('r'); }, longestWait));
    CHECK(ReceiveAll(ends.client, 6) == "answer");
}

TEST_CASE("both ends know their own and each other's address")
{
    const StartedSockets started;
    Connection ends;
    CString address, sameAddress;
    UINT port = 0, samePort = 0;
    REQUIRE(ends.client.GetPeerName(address, port));
    CHECK(address == loopback);
    CHECK(port == PortOf(ends.listener));
    REQUIRE(ends.client.GetPeerNameEx(sameAddress, samePort));
    CHECK(sameAddress == address);
    CHECK(samePort == port);
    REQUIRE(ends.server.GetSockNameEx(sameAddress, samePort));
    CHECK(sameAddress == address);
    CHECK(samePort == port);
    REQUIRE(ends.server.GetPeerName(address, port));
    CHECK(port == PortOf(ends.client));

    CAsyncSocket unconnected;
    REQUIRE(unconnected.Create());
    CHECK_FALSE(unconnected.GetPeerName(address, port));
    CHECK(CAsyncSocket::GetLastError() == WSAENOTCONN);
}

TEST_CASE("the end that is left hears that the other one has closed, after the last bytes")
{
    const StartedSockets started;
    Connection ends;
    REQUIRE(ends.client.Send("bye", 3) == 3);
    ends.client.Close();
    CHECK(ends.client.m_hSocket == INVALID_SOCKET);
    CHECK(ReceiveAll(ends.server, 3) == "bye");
    REQUIRE(WaitUntil([&] { return ends.server.Heard('x'); }, longestWait));
    CHECK(ends.server.lastError == 0);
    char rest;
    CHECK(ends.server.Receive(&rest, 1) == 0);
}

TEST_CASE("options are set and read")
{
    const StartedSockets started;
    CAsyncSocket socket;
    REQUIRE(socket.Create());
    const linger wanted = {1, 3};
    REQUIRE(socket.SetSockOpt(SO_LINGER, &wanted, sizeof(wanted)));
    linger present{};
    int size = sizeof(present);
    REQUIRE(socket.GetSockOpt(SO_LINGER, &present, &size));
    CHECK(present.l_onoff == 1);
    CHECK(present.l_linger == 3);
    CHECK_FALSE(socket.SetSockOpt(-1, &wanted, sizeof(wanted)));
    CHECK(CAsyncSocket::GetLastError() == WSAENOPROTOOPT);
}

TEST_CASE("a connection that is refused is told with its error")
{
    const StartedSockets started;
    const UINT port = UnusedPort();
    Watched client;
    REQUIRE(client.Create());
    if (!client.Connect(loopback, port) && CAsyncSocket::GetLastError() == WSAEWOULDBLOCK) {
        REQUIRE(WaitUntil([&] { return client.Heard('c'); }, longestWait));
        CHECK(client.lastError == WSAECONNREFUSED);
    } else {
        CHECK(CAsyncSocket::GetLastError() == WSAECONNREFUSED);
    }
}

TEST_CASE("a host that no name stands for is refused at once")
{
    const StartedSockets started;
    CAsyncSocket client;
    REQUIRE(client.Create());
    CHECK_FALSE(client.Connect(_T(""), 80));
    CHECK(CAsyncSocket::GetLastError() == WSAEINVAL);
    CHECK_FALSE(client.Connect(static_cast<LPCTSTR>(NULL), 80));
    CHECK(CAsyncSocket::GetLastError() == WSAEINVAL);
}

TEST_CASE("a second Create leaves the first socket alone")
{
    const StartedSockets started;
    CAsyncSocket socket;
    REQUIRE(socket.Create());
    const SOCKET first = socket.m_hSocket;
    CHECK_FALSE(socket.Create());
    CHECK(CAsyncSocket::GetLastError() == WSAEINVAL);
    CHECK(socket.m_hSocket == first);
    CHECK_FALSE(socket.Attach(first));
    CHECK(socket.m_hSocket == first);
    CHECK(PortOf(socket) != 0);
}

TEST_CASE("a socket that cannot be bound is not kept")
{
    const StartedSockets started;
    CAsyncSocket first, second;
    REQUIRE(first.Create(0, SOCK_STREAM, 0, loopback));
    REQUIRE(first.Listen());
    CHECK_FALSE(second.Create(PortOf(first), SOCK_STREAM, 0, loopback));
    CHECK(CAsyncSocket::GetLastError() == WSAEADDRINUSE);
    CHECK(second.m_hSocket == INVALID_SOCKET);
    CHECK_FALSE(second.Create(0, SOCK_STREAM, 0, _T("")));
    CHECK(CAsyncSocket::GetLastError() == WSAEINVAL);
    CHECK(second.m_hSocket == INVALID_SOCKET);
}

TEST_CASE("an object is found by its socket as long as it has one")
{
    const StartedSockets started;
    Watched socket, other;
    REQUIRE(socket.Create());
    const SOCKET handle = socket;
    CHECK(CAsyncSocket::FromHandle(handle) == &socket);
    CHECK(CAsyncSocket::FromHandle(INVALID_SOCKET) == NULL);
    CHECK(socket.Detach() == handle);
    CHECK(socket.m_hSocket == INVALID_SOCKET);
    CHECK(CAsyncSocket::FromHandle(handle) == NULL);
    REQUIRE(other.Attach(handle));
    CHECK(CAsyncSocket::FromHandle(handle) == &other);
    other.Close();
    CHECK(CAsyncSocket::FromHandle(handle) == NULL);
    CHECK_FALSE(other.Attach(INVALID_SOCKET));
    CHECK(CAsyncSocket::GetLastError() == WSAENOTSOCK);
}

TEST_CASE("a detached socket tells its former object nothing more")
{
    const StartedSockets started;
    Connection ends;
    REQUIRE(WaitUntil([&] { return ends.server.Heard('s'); }, longestWait));
    const SOCKET handle = ends.server.Detach();
    ends.server.heard.clear();
    Watched taker;
    REQUIRE(taker.Attach(handle));
    REQUIRE(ends.client.Send("x", 1) == 1);
    REQUIRE(WaitUntil([&] { return taker.Heard('r'); }, longestWait));
    CHECK(ends.server.heard.empty());
}

TEST_CASE("events that are not selected are not told")
{
    const StartedSockets started;
    Connection ends;
    REQUIRE(WaitUntil([&] { return ends.server.Heard('s'); }, longestWait));
    REQUIRE(ends.server.AsyncSelect(FD_CLOSE));
    REQUIRE(ends.client.Send("x", 1) == 1);
    ends.client.Close();
    CHECK(ReceiveAll(ends.server, 1) == "x");
    REQUIRE(WaitUntil([&] { return ends.server.Heard('x'); }, longestWait));
    CHECK_FALSE(ends.server.Heard('r'));
    CAsyncSocket none;
    CHECK_FALSE(none.AsyncSelect());
    CHECK(CAsyncSocket::GetLastError() == WSAENOTSOCK);
}

TEST_CASE("datagrams come with the address of their sender")
{
    const StartedSockets started;
    Watched sender, receiver;
    REQUIRE(sender.Create(0, SOCK_DGRAM, FD_WRITE, loopback));
    REQUIRE(receiver.Create(0, SOCK_DGRAM, FD_READ, loopback));
    REQUIRE(sender.SendTo("one", 3, PortOf(receiver), loopback) == 3);
    REQUIRE(WaitUntil([&] { return receiver.Heard('r'); }, longestWait));
    char buffer[16];
    CString address;
    UINT port = 0;
    REQUIRE(receiver.ReceiveFrom(buffer, sizeof(buffer), address, port) == 3);
    CHECK(std::string(buffer, 3) == "one");
    CHECK(address == loopback);
    CHECK(port == PortOf(sender));

    receiver.heard.clear();
    REQUIRE(sender.SendToEx("four", 4, PortOf(receiver), loopback) == 4);
    REQUIRE(WaitUntil([&] { return receiver.Heard('r'); }, longestWait));
    address.Empty();
    REQUIRE(receiver.ReceiveFromEx(buffer, sizeof(buffer), address, port) == 4);
    CHECK(address == loopback);
    CHECK(port == PortOf(sender));
    CHECK(sender.SendTo("x", 1, PortOf(receiver), _T("")) == SOCKET_ERROR);
    CHECK(CAsyncSocket::GetLastError() == WSAEINVAL);
}

TEST_CASE("a socket is made for an address that the system has given")
{
    const StartedSockets started;
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    ADDRINFOT info{};
    info.ai_family = AF_INET;
    info.ai_socktype = SOCK_STREAM;
    info.ai_addr = reinterpret_cast<SOCKADDR*>(&address);
    info.ai_addrlen = sizeof(address);
    CAsyncSocket socket;
    REQUIRE(socket.CreateEx(&info));
    CString name;
    UINT port = 0;
    REQUIRE(socket.GetSockNameEx(name, port));
    CHECK(name == loopback);
    CHECK(port != 0);
    socket.Close();
    CHECK_FALSE(socket.CreateEx(NULL));
    CHECK(CAsyncSocket::GetLastError() == WSAEINVAL);
}

TEST_CASE("what waits to be received can be asked for, and an end that is shut down sends no more")
{
    const StartedSockets started;
    Connection ends;
    REQUIRE(ends.client.Send("abc", 3) == 3);
    REQUIRE(WaitUntil([&] { return ends.server.Heard('r'); }, longestWait));
    DWORD waiting = 0;
    REQUIRE(WaitUntil([&] { return ends.server.IOCtl(FIONREAD, &waiting) && waiting == 3; },
                      longestWait));
    REQUIRE(ends.client.ShutDown());
    CHECK(ends.client.Send("d", 1) == SOCKET_ERROR);
    CHECK(CAsyncSocket::GetLastError() == WSAESHUTDOWN);
    REQUIRE(ends.server.Send("e", 1) == 1); // The other direction stays open.
    CHECK(ReceiveAll(ends.client, 1) == "e");
}

TEST_CASE("a socket may be closed, and its object deleted, in a handler")
{
    const StartedSockets started;
    class Short : public CAsyncSocket
    {
    public:
        explicit Short(int& deleted) : deleted_(deleted) {}

    private:
        void OnReceive(int) override
        {
            ++deleted_;
            delete this;
        }
        int& deleted_;
    };
    Connection ends;
    int deleted = 0;
    auto* taker = new Short(deleted);
    REQUIRE(taker->Attach(ends.server.Detach(), FD_READ));
    REQUIRE(ends.client.Send("x", 1) == 1);
    REQUIRE(WaitUntil([&] { return ends.client.Heard('x'); }, longestWait));
    CHECK(deleted == 1);
}

TEST_CASE("an exception that leaves a handler ends there")
{
    const StartedSockets started;
    class Throwing : public CAsyncSocket
    {
    public:
        bool reached = false;

    private:
        void OnReceive(int) override
        {
            reached = true;
            AfxThrowUserException();
        }
    };
    Connection ends;
    Throwing taker;
    REQUIRE(taker.Attach(ends.server.Detach(), FD_READ));
    REQUIRE(ends.client.Send("x", 1) == 1);
    CHECK(WaitUntil([&] { return taker.reached; }, longestWait));
}
