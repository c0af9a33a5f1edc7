// Listens to what a control relays to its tool tip.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <utility>
#include <vector>

/// Stands before a tool tip's procedure while it lives and notes the mouse messages that come with
/// TTM_RELAYEVENT. `onRelay`, a host's notification for instance, runs before the tool tip looks at
/// one, and may end it.
class RelayLog
{
public:
    explicit RelayLog(HWND toolTip, std::function<void()> onRelay = {})
        : m_toolTip(toolTip), m_onRelay(std::move(onRelay))
    {
        ::SetWindowSubclass(toolTip, Watch, Id(), reinterpret_cast<DWORD_PTR>(this));
    }
    ~RelayLog() { ::RemoveWindowSubclass(m_toolTip, Watch, Id()); }
    RelayLog(const RelayLog&) = delete;
    RelayLog& operator=(const RelayLog&) = delete;

    const std::vector<MSG>& Relayed() const { return m_relayed; }
    /// The first parameter of the last TTM_RELAYEVENT.
    WPARAM Parameter() const { return m_parameter; }

private:
    UINT_PTR Id() const { return reinterpret_cast<UINT_PTR>(this); }

    static LRESULT CALLBACK Watch(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                  DWORD_PTR self)
    {
        if (message == TTM_RELAYEVENT) {
            auto* log = reinterpret_cast<RelayLog*>(self);
            log->m_parameter = wParam;
            log->m_relayed.push_back(*reinterpret_cast<const MSG*>(lParam));
            if (log->m_onRelay)
                log->m_onRelay();
            if (!::IsWindow(window))
                return 0;
        }
        return ::DefSubclassProc(window, message, wParam, lParam);
    }

    HWND m_toolTip;
    std::function<void()> m_onRelay;
    mutable std::vector<MSG> m_relayed; // Noted also while the log itself is constant.
    mutable WPARAM m_parameter = 1;
};
