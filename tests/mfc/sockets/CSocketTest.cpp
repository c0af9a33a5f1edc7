#include <afxsock.h>

#include <doctest/doctest.h>

#include "testing/Pump.h"
#include "testing/Ticker.h"

#include "tests/mfc/ControlHost.h"
#include "tests/mfc/sockets/Loopback.h"

#include <functional>
#include <memory>

using namespace umbra::testing;

namespace {

constexpr std::chrono::seconds longestWait(60); // For what must happen, on however busy a machine.

/// A socket that lets all messages of the thread pass while it waits.
class OpenSocket : public WatchedSocket<CSocket>
{
public:
    std::function<void()> whileWaiting;

protected:
    BOOL OnMessagePending() override
    {
        if (std::function<void()> act = std::exchange(whileWaiting, nullptr)) {
            act();
            return TRUE;
        }
        MSG message;
        if (!::PeekMessage(&message, NULL, WM_TIMER, WM_TIMER, PM_REMOVE))
            return CSocket::OnMessagePending();
        ::DispatchMessage(&message);
        return TRUE;
    }
};

struct Connection
{
    Connection()
    {
        REQUIRE(listener.Create(0, SOCK_STREAM, loopback));
        REQUIRE(listener.Listen());
        REQUIRE(client.Create());
        REQUIRE(client.Connect(loopback, PortOf(listener)));
        REQUIRE(listener.Accept(server));
    }

    OpenSocket listener, server, client;
};

/// Wakes a waiting call, so that it sees a message.
struct Waking
{
    Ticker ticker{[] {}};
};

} // namespace

TEST_CASE("connecting and accepting wait until they are done")
{
    const StartedSockets started;
    Connection ends;
    CString address;
    UINT port = 0;
    REQUIRE(ends.server.GetPeerName(address, port));
    CHECK(port == PortOf(ends.client));
    CHECK(CSocket::FromHandle(ends.server) == &ends.server);
    CHECK_FALSE(ends.client.IsBlocking());
}

TEST_CASE("receiving waits for what another message brings")
{
    const StartedSockets started;
    Connection ends;
    bool blocked = false;
    Ticker later([&] {
        if (std::exchange(blocked, true))
            return;
        CHECK(ends.server.IsBlocking());
        CHECK(ends.client.Send("late", 4) == 4);
    });
    char buffer[8];
    REQUIRE(ends.server.Receive(buffer, sizeof(buffer)) == 4);
    CHECK(std::string(buffer, 4) == "late");
    CHECK(blocked);
    CHECK_FALSE(ends.server.IsBlocking());
}

TEST_CASE("a call while another one waits is refused")
{
    const StartedSockets started;
    Connection ends;
    int sent = 0;
    int error = 0;
    Ticker later([&] {
        if (error != 0)
            return;
        sent = ends.server.Send("x", 1);
        error = CAsyncSocket::GetLastError();
        char one;
        CHECK(ends.server.Receive(&one, 1) == SOCKET_ERROR);
        CHECK(CAsyncSocket::GetLastError() == WSAEINPROGRESS);
        OpenSocket connection;
        CHECK_FALSE(ends.server.Accept(connection));
        CHECK(CAsyncSocket::GetLastError() == WSAEINPROGRESS);
        CHECK_FALSE(ends.server.Connect(loopback, PortOf(ends.listener)));
        CHECK(CAsyncSocket::GetLastError() == WSAEINPROGRESS);
        CHECK(ends.client.Send("y", 1) == 1);
    });
    char buffer[8];
    REQUIRE(ends.server.Receive(buffer, sizeof(buffer)) == 1);
    CHECK(sent == SOCKET_ERROR);
    CHECK(error == WSAEINPROGRESS);
    CHECK(buffer[0] == 'y');
}

TEST_CASE("a waiting call is cancelled")
{
    const StartedSockets started;
    Connection ends;
    ends.server.whileWaiting = [&] { ends.server.CancelBlockingCall(); };
    const Waking waking;
    char buffer[8];
    CHECK(ends.server.Receive(buffer, sizeof(buffer)) == SOCKET_ERROR);
    CHECK(CAsyncSocket::GetLastError() == WSAEINTR);
    CHECK_FALSE(ends.server.IsBlocking());
    REQUIRE(ends.client.Send("on", 2) == 2); // The connection is as before.
    CHECK(ends.server.Receive(buffer, sizeof(buffer)) == 2);
}

TEST_CASE("a socket may be closed, and its object deleted, while a call waits")
{
    const StartedSockets started;
    Connection ends;
    ends.server.whileWaiting = [&] { ends.server.Close(); };
    const Waking waking;
    char buffer[8];
    CHECK(ends.server.Receive(buffer, sizeof(buffer)) == SOCKET_ERROR);
    CHECK(CAsyncSocket::GetLastError() == WSAEINTR);
    CHECK(ends.server.m_hSocket == INVALID_SOCKET);

    auto listener = std::make_unique<OpenSocket>();
    REQUIRE(listener->Create());
    REQUIRE(listener->Listen());
    listener->whileWaiting = [&] { listener.reset(); };
    CSocket connection;
    CHECK_FALSE(listener->Accept(connection));
    CHECK(CAsyncSocket::GetLastError() == WSAEINTR);
    CHECK(listener == nullptr);
}

TEST_CASE("receiving ends with nothing when the other end closes amid")
{
    const StartedSockets started;
    Connection ends;
    bool closed = false;
    Ticker later([&] {
        if (!std::exchange(closed, true))
            ends.client.Close();
    });
    char buffer[8];
    CHECK(ends.server.Receive(buffer, sizeof(buffer)) == 0);
    CHECK(closed);
    CHECK_FALSE(ends.server.Heard('x')); // While the call waited, nothing was told.
    CHECK(WaitUntil([&] { return ends.server.Heard('x'); }, longestWait));
}

TEST_CASE("a refused connection fails with its reason")
{
    const StartedSockets started;
    const UINT port = UnusedPort();
    OpenSocket client;
    REQUIRE(client.Create());
    CHECK_FALSE(client.Connect(loopback, port));
    CHECK(CAsyncSocket::GetLastError() == WSAECONNREFUSED);
    CHECK_FALSE(client.IsBlocking());
}

TEST_CASE("sending more than the connection holds waits until the other end has taken it")
{
    const StartedSockets started;
    Connection ends;
    const std::string much(8 * 1024 * 1024, 'm');
    size_t taken = 0;
    bool waited = false;
    // Bytes are taken as an asynchronous socket does, so that only the sender waits.
    Ticker reader([&] {
        waited = waited || ends.client.IsBlocking();
        std::vector<char> buffer(1 << 20);
        int count = 0;
        while ((count = ends.server.CAsyncSocket::Receive(buffer.data(),
                                                          static_cast<int>(buffer.size()))) > 0)
            taken += count;
    });
    REQUIRE(ends.client.Send(much.data(), static_cast<int>(much.size())) ==
            static_cast<int>(much.size()));
    CHECK(waited);
    CHECK(WaitUntil([&] { return taken == much.size(); }, longestWait));
}

TEST_CASE("sending to an end that was closed fails in the end")
{
    const StartedSockets started;
    Connection ends;
    ends.server.Close();
    REQUIRE(WaitUntil([&] { return ends.client.Heard('x'); }, longestWait));
    bool failed = false;
    REQUIRE(WaitUntil(
        [&] {
            failed = failed || ends.client.Send("x", 1) == SOCKET_ERROR;
            return failed;
        },
        longestWait));
    const int error = CAsyncSocket::GetLastError();
    CHECK((error == WSAECONNRESET || error == WSAECONNABORTED));
}

TEST_CASE("what happens to other sockets is told when the waiting call is done")
{
    const StartedSockets started;
    Connection ends, others;
    bool sent = false;
    Ticker later([&] {
        if (std::exchange(sent, true))
            return;
        CHECK(others.client.Send("other", 5) == 5);
        CHECK(ends.client.Send("own", 3) == 3);
    });
    char buffer[8];
    REQUIRE(ends.server.Receive(buffer, sizeof(buffer)) == 3);
    CHECK_FALSE(others.server.Heard('r'));
    CHECK(WaitUntil([&] { return others.server.Heard('r'); }, longestWait));
}

TEST_CASE("a blocking socket hears of bytes and of the end, not of connecting and sending")
{
    const StartedSockets started;
    Connection ends;
    REQUIRE(ends.client.Send("x", 1) == 1);
    REQUIRE(WaitUntil([&] { return ends.server.Heard('r'); }, longestWait));
    char one;
    REQUIRE(ends.server.Receive(&one, 1) == 1);
    ends.client.Close();
    REQUIRE(WaitUntil([&] { return ends.server.Heard('x'); }, longestWait));
    CHECK_FALSE(ends.server.Heard('s'));
    CHECK_FALSE(ends.client.Heard('c'));
    CHECK_FALSE(ends.client.Heard('s'));
}

TEST_CASE("windows are painted while a call waits")
{
    const StartedSockets started;
    class Painted : public ControlHost
    {
    public:
        std::function<void()> painted;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            const LRESULT result = ControlHost::WindowProc(message, wParam, lParam);
            if (message == WM_PAINT && painted)
                painted();
            return result;
        }
    };
    CSocket listener, client, server;
    REQUIRE(listener.Create(0, SOCK_STREAM, loopback));
    REQUIRE(listener.Listen());
    REQUIRE(client.Create());
    REQUIRE(client.Connect(loopback, PortOf(listener)));
    REQUIRE(listener.Accept(server));
    Painted window;
    window.UpdateWindow();
    int paints = 0;
    window.painted = [&] {
        ++paints;
        client.Send("x", 1);
    };
    window.Invalidate();
    char one;
    REQUIRE(server.Receive(&one, 1) == 1); // Comes from the painting only.
    CHECK(paints == 1);
}

TEST_CASE("datagrams are waited for")
{
    const StartedSockets started;
    OpenSocket receiver, sender;
    REQUIRE(receiver.Create(0, SOCK_DGRAM, loopback));
    REQUIRE(sender.Create(0, SOCK_DGRAM, loopback));
    bool sent = false;
    Ticker later([&] {
        if (!std::exchange(sent, true))
            CHECK(sender.SendTo("gram", 4, PortOf(receiver), loopback) == 4);
    });
    char buffer[8];
    CString address;
    UINT port = 0;
    REQUIRE(receiver.ReceiveFrom(buffer, sizeof(buffer), address, port) == 4);
    CHECK(sent);
    CHECK(port == PortOf(sender));
}
