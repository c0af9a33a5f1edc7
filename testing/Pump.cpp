#include "testing/OpenDialogs.h"
#include "testing/Pump.h"

namespace umbra::testing {

namespace {

// A window that never validates its client area would keep the queue filled for ever.
constexpr int mostMessages = 20000;
constexpr DWORD pollingMilliseconds = 10;

bool PreTranslate(MSG& message)
{
    CWinThread* thread = AfxGetThread();
    return thread != nullptr && thread->PreTranslateMessage(&message);
}

/// As the system's loop of a message box does. Pages of the class library have had their turn.
bool IsKeyOfSystemDialog(MSG& message)
{
    if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST)
        return false;
    HWND dialog = ::GetAncestor(message.hwnd, GA_ROOT);
    return IsDialog(dialog) && CWnd::FromHandlePermanent(dialog) == nullptr &&
           ::IsDialogMessage(dialog, &message);
}

} // namespace

int PumpMessages()
{
    int taken = 0;
    MSG message;
    while (taken < mostMessages && ::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            ::PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        ++taken;
        if (PreTranslate(message) || IsKeyOfSystemDialog(message))
            continue;
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
    return taken;
}

bool WaitUntil(const std::function<bool()>& predicate, std::chrono::milliseconds timeout)
{
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    for (;;) {
        PumpMessages();
        if (predicate())
            return true;
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, pollingMilliseconds, QS_ALLINPUT);
    }
}

} // namespace umbra::testing
