#include <classes/CAsyncSocket.h>

#include <classes/Conversions.h>

#include "sockets/SocketWindow.h"

#include <memory>
#include <utility>

using afxint::SocketWindow;

IMPLEMENT_DYNAMIC(CAsyncSocket, CObject)

namespace {

volatile LONG starts = 0; ///< Calls of AfxSocketInit that are not taken back.

/// Fails a call before the system is asked.
int Refuse(int error)
{
    ::WSASetLastError(error);
    return SOCKET_ERROR;
}

/// An address of the Internet's fourth version. `host` is a name or a dotted address.
bool MakeAddress(LPCTSTR host, UINT port, sockaddr_in& address)
{
    const CT2A name(host);
    address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<u_short>(port));
    if (name.m_psz == NULL || *name.m_psz == '\0')
        return false;
    address.sin_addr.s_addr = ::inet_addr(name);
    if (address.sin_addr.s_addr != INADDR_NONE)
        return true;
    const hostent* entry = ::gethostbyname(name);
    if (entry == NULL || entry->h_addrtype != AF_INET)
        return false;
    memcpy(&address.sin_addr, entry->h_addr_list[0], sizeof(address.sin_addr));
    return true;
}

void ReadAddress(const sockaddr_in& address, CString& host, UINT& port)
{
    host = ::inet_ntoa(address.sin_addr);
    port = ntohs(address.sin_port);
}

/// The same for addresses of all families.
BOOL ReadAddress(const sockaddr_storage& address, int length, CString& host, UINT& port)
{
    char name[NI_MAXHOST];
    char service[NI_MAXSERV];
    const int error =
        ::getnameinfo(reinterpret_cast<const SOCKADDR*>(&address), length, name, sizeof(name),
                      service, sizeof(service), NI_NUMERICHOST | NI_NUMERICSERV);
    if (error != 0)
        return Refuse(error) == 0;
    host = name;
    port = static_cast<UINT>(atoi(service));
    return TRUE;
}

struct FreesAddresses
{
    void operator()(addrinfo* addresses) const { ::freeaddrinfo(addresses); }
};

} // namespace

BOOL AFXAPI AfxSocketInit(WSADATA* lpwsaData)
{
    WSADATA data{};
    if (::WSAStartup(MAKEWORD(2, 2), &data) != 0)
        return FALSE;
    if (data.wVersion == 0) // There is no such library.
        return FALSE;
    ::InterlockedIncrement(&starts);
    if (lpwsaData != NULL)
        *lpwsaData = data;
    return TRUE;
}

void AFXAPI AfxSocketTerm()
{
    for (LONG left = ::InterlockedExchange(&starts, 0); left > 0; --left)
        ::WSACleanup();
}

CAsyncSocket::CAsyncSocket() : m_hSocket(INVALID_SOCKET)
{
}

CAsyncSocket::~CAsyncSocket()
{
    CAsyncSocket::Close();
}

BOOL CAsyncSocket::Create(UINT nSocketPort, int nSocketType, long lEvent, LPCTSTR lpszSocketAddress)
{
    if (!Socket(nSocketType, lEvent))
        return FALSE;
    if (Bind(nSocketPort, lpszSocketAddress))
        return TRUE;
    const int error = GetLastError();
    CAsyncSocket::Close();
    ::WSASetLastError(error);
    return FALSE;
}

BOOL CAsyncSocket::CreateEx(ADDRINFOT* pAI, long lEvent)
{
    if (pAI == NULL)
        return Refuse(WSAEINVAL) == 0;
    if (!Socket(pAI->ai_socktype, lEvent, pAI->ai_protocol, pAI->ai_family))
        return FALSE;
    if (Bind(pAI->ai_addr, static_cast<int>(pAI->ai_addrlen)))
        return TRUE;
    const int error = GetLastError();
    CAsyncSocket::Close();
    ::WSASetLastError(error);
    return FALSE;
}

BOOL CAsyncSocket::Socket(int nSocketType, long lEvent, int nProtocolType, int nAddressFormat)
{
    if (m_hSocket != INVALID_SOCKET)
        return Refuse(WSAEINVAL) == 0;
    const SOCKET made = ::socket(nAddressFormat, nSocketType, nProtocolType);
    return made != INVALID_SOCKET && TakeSocket(made, lEvent);
}

BOOL CAsyncSocket::Attach(SOCKET hSocket, long lEvent)
{
    if (hSocket == INVALID_SOCKET)
        return Refuse(WSAENOTSOCK) == 0;
    if (m_hSocket != INVALID_SOCKET)
        return Refuse(WSAEINVAL) == 0;
    if (!SocketWindow::OfThread().Add(hSocket, this))
        return FALSE;
    m_hSocket = hSocket;
    if (AsyncSelect(lEvent))
        return TRUE;
    const int error = GetLastError();
    Detach(); // It stays the caller's.
    ::WSASetLastError(error);
    return FALSE;
}

SOCKET CAsyncSocket::Detach()
{
    const SOCKET socket = std::exchange(m_hSocket, INVALID_SOCKET);
    if (socket != INVALID_SOCKET)
        SocketWindow::OfThread().Remove(socket);
    return socket;
}

CAsyncSocket* PASCAL CAsyncSocket::FromHandle(SOCKET hSocket)
{
    return SocketWindow::OfThread().Find(hSocket);
}

CAsyncSocket::operator SOCKET() const
{
    return m_hSocket;
}

int PASCAL CAsyncSocket::GetLastError()
{
    return ::WSAGetLastError();
}

BOOL CAsyncSocket::GetPeerName(CString& rPeerAddress, UINT& rPeerPort)
{
    sockaddr_in address{};
    int length = sizeof(address);
    if (!GetPeerName(reinterpret_cast<SOCKADDR*>(&address), &length))
        return FALSE;
    ReadAddress(address, rPeerAddress, rPeerPort);
    return TRUE;
}

BOOL CAsyncSocket::GetPeerName(SOCKADDR* lpSockAddr, int* lpSockAddrLen)
{
    return ::getpeername(m_hSocket, lpSockAddr, lpSockAddrLen) != SOCKET_ERROR;
}

BOOL CAsyncSocket::GetPeerNameEx(CString& rPeerAddress, UINT& rPeerPort)
{
    sockaddr_storage address{};
    int length = sizeof(address);
    return GetPeerName(reinterpret_cast<SOCKADDR*>(&address), &length) &&
           ReadAddress(address, length, rPeerAddress, rPeerPort);
}

BOOL CAsyncSocket::GetSockName(CString& rSocketAddress, UINT& rSocketPort)
{
    sockaddr_in address{};
    int length = sizeof(address);
    if (!GetSockName(reinterpret_cast<SOCKADDR*>(&address), &length))
        return FALSE;
    ReadAddress(address, rSocketAddress, rSocketPort);
    return TRUE;
}

BOOL CAsyncSocket::GetSockName(SOCKADDR* lpSockAddr, int* lpSockAddrLen)
{
    return ::getsockname(m_hSocket, lpSockAddr, lpSockAddrLen) != SOCKET_ERROR;
}

BOOL CAsyncSocket::GetSockNameEx(CString& rSocketAddress, UINT& rSocketPort)
{
    sockaddr_storage address{};
    int length = sizeof(address);
    return GetSockName(reinterpret_cast<SOCKADDR*>(&address), &length) &&
           ReadAddress(address, length, rSocketAddress, rSocketPort);
}

BOOL CAsyncSocket::SetSockOpt(int nOptionName, const void* lpOptionValue, int nOptionLen,
                              int nLevel)
{
    return ::setsockopt(m_hSocket, nLevel, nOptionName, static_cast<const char*>(lpOptionValue),
                        nOptionLen) != SOCKET_ERROR;
}

BOOL CAsyncSocket::GetSockOpt(int nOptionName, void* lpOptionValue, int* lpOptionLen, int nLevel)
{
    return ::getsockopt(m_hSocket, nLevel, nOptionName, static_cast<char*>(lpOptionValue),
                        lpOptionLen) != SOCKET_ERROR;
}

BOOL CAsyncSocket::Accept(CAsyncSocket& rConnectedSocket, SOCKADDR* lpSockAddr, int* lpSockAddrLen)
{
    if (rConnectedSocket.m_hSocket != INVALID_SOCKET)
        return Refuse(WSAEINVAL) == 0;
    const SOCKET connection = ::accept(m_hSocket, lpSockAddr, lpSockAddrLen);
    return connection != INVALID_SOCKET &&
           rConnectedSocket.TakeSocket(connection, SocketWindow::OfThread().EventsOf(m_hSocket));
}

BOOL CAsyncSocket::AsyncSelect(long lEvent)
{
    return SocketWindow::OfThread().Select(m_hSocket, lEvent);
}

BOOL CAsyncSocket::Bind(UINT nSocketPort, LPCTSTR lpszSocketAddress)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<u_short>(nSocketPort));
    address.sin_addr.s_addr = htonl(INADDR_ANY);
    if (lpszSocketAddress != NULL && !MakeAddress(lpszSocketAddress, nSocketPort, address))
        return Refuse(WSAEINVAL) == 0;
    return Bind(reinterpret_cast<const SOCKADDR*>(&address), sizeof(address));
}

BOOL CAsyncSocket::Bind(const SOCKADDR* lpSockAddr, int nSockAddrLen)
{
    return ::bind(m_hSocket, lpSockAddr, nSockAddrLen) != SOCKET_ERROR;
}

void CAsyncSocket::Close()
{
    const SOCKET socket = Detach();
    if (socket != INVALID_SOCKET)
        ::closesocket(socket);
}

BOOL CAsyncSocket::Connect(LPCTSTR lpszHostAddress, UINT nHostPort)
{
    sockaddr_in address;
    if (!MakeAddress(lpszHostAddress, nHostPort, address))
        return Refuse(WSAEINVAL) == 0;
    return Connect(reinterpret_cast<const SOCKADDR*>(&address), sizeof(address));
}

BOOL CAsyncSocket::Connect(const SOCKADDR* lpSockAddr, int nSockAddrLen)
{
    return ConnectTo(lpSockAddr, nSockAddrLen);
}

BOOL CAsyncSocket::IOCtl(long lCommand, DWORD* lpArgument)
{
    return ::ioctlsocket(m_hSocket, lCommand, reinterpret_cast<u_long*>(lpArgument)) !=
           SOCKET_ERROR;
}

BOOL CAsyncSocket::Listen(int nConnectionBacklog)
{
    return ::listen(m_hSocket, nConnectionBacklog) != SOCKET_ERROR;
}

int CAsyncSocket::Receive(void* lpBuf, int nBufLen, int nFlags)
{
    return ::recv(m_hSocket, static_cast<char*>(lpBuf), nBufLen, nFlags);
}

int CAsyncSocket::ReceiveFrom(void* lpBuf, int nBufLen, CString& rSocketAddress, UINT& rSocketPort,
                              int nFlags)
{
    sockaddr_in address{};
    int length = sizeof(address);
    const int received =
        ReceiveFrom(lpBuf, nBufLen, reinterpret_cast<SOCKADDR*>(&address), &length, nFlags);
    if (received != SOCKET_ERROR)
        ReadAddress(address, rSocketAddress, rSocketPort);
    return received;
}

int CAsyncSocket::ReceiveFrom(void* lpBuf, int nBufLen, SOCKADDR* lpSockAddr, int* lpSockAddrLen,
                              int nFlags)
{
    return ReceiveDatagram(lpBuf, nBufLen, nFlags, lpSockAddr, lpSockAddrLen);
}

int CAsyncSocket::ReceiveFromEx(void* lpBuf, int nBufLen, CString& rSocketAddress,
                                UINT& rSocketPort, int nFlags)
{
    sockaddr_storage address{};
    int length = sizeof(address);
    const int received =
        ReceiveFrom(lpBuf, nBufLen, reinterpret_cast<SOCKADDR*>(&address), &length, nFlags);
    if (received == SOCKET_ERROR || !ReadAddress(address, length, rSocketAddress, rSocketPort))
        return SOCKET_ERROR;
    return received;
}

int CAsyncSocket::Send(const void* lpBuf, int nBufLen, int nFlags)
{
    return ::send(m_hSocket, static_cast<const char*>(lpBuf), nBufLen, nFlags);
}

int CAsyncSocket::SendTo(const void* lpBuf, int nBufLen, UINT nHostPort, LPCTSTR lpszHostAddress,
                         int nFlags)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<u_short>(nHostPort));
    address.sin_addr.s_addr = htonl(INADDR_BROADCAST);
    if (lpszHostAddress != NULL && !MakeAddress(lpszHostAddress, nHostPort, address))
        return Refuse(WSAEINVAL);
    return SendTo(lpBuf, nBufLen, reinterpret_cast<const SOCKADDR*>(&address), sizeof(address),
                  nFlags);
}

int CAsyncSocket::SendTo(const void* lpBuf, int nBufLen, const SOCKADDR* lpSockAddr,
                         int nSockAddrLen, int nFlags)
{
    return SendDatagram(lpBuf, nBufLen, nFlags, lpSockAddr, nSockAddrLen);
}

int CAsyncSocket::SendToEx(const void* lpBuf, int nBufLen, UINT nHostPort, LPCTSTR lpszHostAddress,
                           int nFlags)
{
    // The family of the host's address has to be that of the socket.
    sockaddr_storage own{};
    int length = sizeof(own);
    addrinfo wanted{};
    if (GetSockName(reinterpret_cast<SOCKADDR*>(&own), &length))
        wanted.ai_family = own.ss_family;
    wanted.ai_socktype = SOCK_DGRAM;
    char service[16];
    sprintf(service, "%u", nHostPort);
    addrinfo* found = NULL;
    const int error = ::getaddrinfo(CT2A(lpszHostAddress), service, &wanted, &found);
    if (error != 0)
        return Refuse(error);
    const std::unique_ptr<addrinfo, FreesAddresses> addresses(found);
    return SendTo(lpBuf, nBufLen, found->ai_addr, static_cast<int>(found->ai_addrlen), nFlags);
}

BOOL CAsyncSocket::ShutDown(int nHow)
{
    return ::shutdown(m_hSocket, nHow) != SOCKET_ERROR;
}

void CAsyncSocket::OnReceive(int)
{
}

void CAsyncSocket::OnSend(int)
{
}

void CAsyncSocket::OnOutOfBandData(int)
{
}

void CAsyncSocket::OnAccept(int)
{
}

void CAsyncSocket::OnConnect(int)
{
}

void CAsyncSocket::OnClose(int)
{
}

BOOL CAsyncSocket::ConnectTo(const SOCKADDR* address, int length)
{
    return ::connect(m_hSocket, address, length) != SOCKET_ERROR;
}

int CAsyncSocket::ReceiveDatagram(void* buffer, int size, int flags, SOCKADDR* from, int* length)
{
    return ::recvfrom(m_hSocket, static_cast<char*>(buffer), size, flags, from, length);
}

int CAsyncSocket::SendDatagram(const void* data, int size, int flags, const SOCKADDR* to,
                               int length)
{
    return ::sendto(m_hSocket, static_cast<const char*>(data), size, flags, to, length);
}

void CAsyncSocket::Notify(int event, int error)
{
    switch (event) {
    case FD_READ:
        return OnReceive(error);
    case FD_WRITE:
        return OnSend(error);
    case FD_OOB:
        return OnOutOfBandData(error);
    case FD_ACCEPT:
        return OnAccept(error);
    case FD_CONNECT:
        return OnConnect(error);
    case FD_CLOSE:
        return OnClose(error);
    }
}

/// Makes the socket the object's own. Closes it when that fails.
BOOL CAsyncSocket::TakeSocket(SOCKET socket, long events)
{
    if (CAsyncSocket::Attach(socket, events))
        return TRUE;
    const int error = GetLastError();
    ::closesocket(socket);
    ::WSASetLastError(error);
    return FALSE;
}
