// Records the messages that a window gets.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace umbra::testing {

/// "WM_PAINT"; "WM_USER+3", "WM_APP+1" or "0x1234" for messages without a name of their own, and
/// "registered 'text'" for registered ones.
std::string MessageName(UINT message);

/// Listens to one window of the calling thread, from its construction to its end. It stands before
/// the window's procedure at that moment and lets every message through.
class MessageLog
{
public:
    struct Entry
    {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        LRESULT result; ///< 0 while the message is still under way.
        int depth;      ///< 0, or the number of logged messages that this one is nested in.
    };

    explicit MessageLog(HWND window);
    MessageLog(const MessageLog&) = delete;
    MessageLog& operator=(const MessageLog&) = delete;
    ~MessageLog();

    const std::vector<Entry>& Entries() const { return m_entries; }
    int Count(UINT message) const;
    bool Contains(UINT message) const { return Count(message) > 0; }
    /// The last such message; NULL when there was none. Valid until the next message comes.
    const Entry* Last(UINT message) const;
    void Clear() { m_entries.clear(); }
    /// The names in the order of arrival, a space between.
    std::string Names() const;

private:
    static LRESULT CALLBACK Record(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                   UINT_PTR id, DWORD_PTR log);

    HWND m_window;
    std::vector<Entry> m_entries;
    int m_depth = 0;
};

} // namespace umbra::testing
