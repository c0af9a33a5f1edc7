#include <afxsock.h>

#include <doctest/doctest.h>

#include "tests/mfc/Throws.h"
#include "tests/mfc/sockets/Loopback.h"

#include <thread>

namespace {

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

    CSocket listener, server, client;
};

} // namespace

TEST_CASE("what one file writes the other one reads")
{
    const StartedSockets started;
    Connection ends;
    CSocketFile out(&ends.client);
    CSocketFile in(&ends.server);
    out.Write("words", 5);
    out.Flush();
    char buffer[16] = "";
    REQUIRE(in.Read(buffer, 1) == 1);
    REQUIRE(in.Read(buffer + 1, 4) >= 1);
    CHECK(buffer[0] == 'w');
    CHECK(buffer[1] == 'o');
    CHECK(in.Read(buffer, 0) == 0);
}

TEST_CASE("a file for an archive gives what has come, another one waits for all")
{
    const StartedSockets started;
    Connection ends;
    CSocketFile out(&ends.client);
    out.Write("12345", 5);
    char buffer[16];
    {
        CSocketFile forArchive(&ends.server);
        UINT count = 0;
        while (count < 5) { // More are wanted than ever come.
            const UINT more = forArchive.Read(buffer, sizeof(buffer));
            REQUIRE(more >= 1);
            count += more;
        }
        CHECK(count == 5);
    }

    // The second part is sent by another thread, when the first one has been received.
    CSocketFile alone(&ends.server, FALSE);
    const SOCKET raw = ends.client.Detach();
    out.Close();
    u_long blocking = 0;
    ::ioctlsocket(raw, FIONBIO, &blocking);
    std::thread sender([raw] {
        ::send(raw, "abc", 3, 0);
        ::send(raw, "defgh", 5, 0);
        ::shutdown(raw, SD_SEND);
    });
    CHECK(alone.Read(buffer, 7) == 7);
    CHECK(std::string(buffer, 7) == "abcdefg");
    CHECK(alone.Read(buffer, 7) == 1); // The other end has closed.
    CHECK(alone.Read(buffer, 7) == 0);
    sender.join();
    ::closesocket(raw);
}

TEST_CASE("a broken connection throws, with the reason")
{
    const StartedSockets started;
    Connection ends;
    CSocketFile file(&ends.client);
    ends.client.Close();
    char one = 'x';
    int reason = 0;
    try {
        file.Read(&one, 1);
    } catch (CFileException* e) {
        CHECK(e->m_cause == CFileException::genericException);
        reason = e->m_lOsError;
        e->Delete();
    }
    CHECK(reason == WSAENOTSOCK);
    CHECK(CauseOf([&] { file.Write(&one, 1); }) == CFileException::genericException);
    file.Close();
    CHECK(CauseOf([&] { file.Read(&one, 1); }) == CFileException::invalidFile);
    CHECK(CauseOf([&] { file.Write(&one, 1); }) == CFileException::invalidFile);
}

TEST_CASE("the file leaves the socket open")
{
    const StartedSockets started;
    Connection ends;
    {
        CSocketFile file(&ends.client);
        file.Write("a", 1);
        file.Close();
    }
    CHECK(ends.client.Send("b", 1) == 1);
    CSocketFile in(&ends.server, FALSE);
    char both[2];
    REQUIRE(in.Read(both, 2) == 2);
    CHECK(both[1] == 'b');
}

TEST_CASE("what needs a position or a length is not supported")
{
    const StartedSockets started;
    Connection ends;
    CSocketFile file(&ends.client);
    CHECK(Throws<CNotSupportedException>([&] { file.Seek(0, CFile::begin); }));
    CHECK(Throws<CNotSupportedException>([&] { file.SeekToEnd(); }));
    CHECK(Throws<CNotSupportedException>([&] { file.GetPosition(); }));
    CHECK(Throws<CNotSupportedException>([&] { file.GetLength(); }));
    CHECK(Throws<CNotSupportedException>([&] { file.SetLength(1); }));
    CHECK(Throws<CNotSupportedException>([&] { file.LockRange(0, 1); }));
    CHECK(Throws<CNotSupportedException>([&] { file.UnlockRange(0, 1); }));
    CHECK(Throws<CNotSupportedException>([&] { file.Duplicate(); }));
    CHECK(Throws<CNotSupportedException>([&] { file.Open(_T("x"), CFile::modeRead); }));
}
