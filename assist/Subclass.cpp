#include "assist/Subclass.h"

#include <new>

namespace umbra {

BOOL Subclassing::Serve(HWND window)
{
    if (Serves(window))
        return TRUE;
    const auto previous = reinterpret_cast<WNDPROC>(::GetWindowLongPtr(window, GWLP_WNDPROC));
    if (previous == nullptr || !Remember(window, previous))
        return FALSE;
    if (::SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_procedure)) != 0)
        return TRUE;
    Forget(window);
    return FALSE;
}

LRESULT Subclassing::PassOn(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const WNDPROC previous = FindPrevious(window);
    if (message == WM_NCDESTROY)
        Forget(window);
    return ::CallWindowProc(previous, window, message, wParam, lParam);
}

WNDPROC Subclassing::FindPrevious(HWND window)
{
    const CSingleLock lock(&m_lock, TRUE);
    const auto found = m_previous.find(window);
    return found == m_previous.end() ? nullptr : found->second;
}

BOOL Subclassing::Remember(HWND window, WNDPROC previous)
{
    const CSingleLock lock(&m_lock, TRUE);
    try {
        m_previous[window] = previous;
    } catch (const std::bad_alloc&) {
        return FALSE;
    }
    return TRUE;
}

void Subclassing::Forget(HWND window)
{
    const CSingleLock lock(&m_lock, TRUE);
    m_previous.erase(window);
}

} // namespace umbra
