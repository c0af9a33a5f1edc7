// The hidden window of a thread that hears what happens to the thread's sockets.
#pragma once

#include <classes/CAsyncSocket.h>

#include <map>
#include <vector>

namespace afxint {

class SocketWindow
{
public:
    /// That of the calling thread, without a window until there is a socket.
    static SocketWindow& OfThread();

    /// NULL for a socket that this thread has no object for.
    CAsyncSocket* Find(SOCKET socket) const;
    bool Add(SOCKET socket, CAsyncSocket* object);
    /// The socket no longer tells anything, nor does what it has told already.
    void Remove(SOCKET socket);
    /// Says which events the socket tells; it must have been added.
    BOOL Select(SOCKET socket, long events);
    long EventsOf(SOCKET socket) const;

    /// Keeps notifications back while a call waits. The end of the last such call sends them on.
    class Holding
    {
    public:
        explicit Holding(SocketWindow& window) : window_(window) { ++window_.waitingCalls_; }
        ~Holding() { window_.EndWaiting(); }
        Holding(const Holding&) = delete;
        Holding& operator=(const Holding&) = delete;

    private:
        SocketWindow& window_;
    };

    /// Takes an event of a socket out of those that have come, with its error. The other end's
    /// closing counts once as whatever is awaited, and stays to be told later.
    bool TakeEvent(SOCKET socket, long event, int& error);

private:
    struct Entry
    {
        CAsyncSocket* object;
        UINT message; ///< Its own, so that late notifications of an older socket are recognised.
        long events;
    };
    struct Notification
    {
        UINT message;
        WPARAM wParam; ///< The socket.
        LPARAM lParam; ///< The event and its error.
        bool counted;  ///< A closing that has ended a wait.
    };

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    bool CreateHiddenWindow();
    void Deliver(const MSG& message);
    bool IsCurrent(UINT message, SOCKET socket) const;
    void FetchAll();
    void EndWaiting();

    HWND window_ = NULL;
    std::map<SOCKET, Entry> entries_;
    int waitingCalls_ = 0;
    std::vector<Notification> held_;
};

} // namespace afxint
