#include "windows/ModalScope.h"

#include <classes/CException.h>
#include <classes/Trace.h>

namespace afxint {

DisabledWindow::DisabledWindow(HWND window)
{
    if (window == NULL || window == ::GetDesktopWindow() || !::IsWindowEnabled(window))
        return;
    window_ = window;
    ::EnableWindow(window, FALSE);
}

void DisabledWindow::Enable()
{
    if (window_ != NULL)
        ::EnableWindow(window_, TRUE);
    window_ = NULL;
}

ModalState::ModalState(CWnd& window) : window_(window)
{
    window.Set(CWnd::modalLoop, true);
    window.Set(CWnd::continueModal, true);
    window.modalResult_ = IDABORT;
}

void ModalState::End()
{
    window_.Set(CWnd::modalLoop, false);
    window_.Set(CWnd::continueModal, false);
}

ModalScope::ModalScope(CWnd& window, CWnd* parent)
    : window_(window), owner_(CWnd::GetSafeOwner(parent, top_.Receive())->GetSafeHwnd()),
      disabledOwner_(owner_), state_(window)
{
}

ModalScope::~ModalScope()
{
    state_.End();
    if (window_.m_hWnd != NULL) {
        ::SetWindowPos(window_.m_hWnd, NULL, 0, 0, 0, 0,
                       SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    }
    // The owner comes first: a window that goes while its owner is disabled leaves the activation
    // to another program.
    disabledOwner_.Enable();
    top_.Enable();
    if (window_.m_hWnd == NULL)
        return;
    if (owner_ != NULL && ::GetActiveWindow() == window_.m_hWnd)
        ::SetActiveWindow(owner_);
    try {
        window_.DestroyWindow();
    } catch (CException* e) {
        e->Delete(); // Another exception may be under way.
    } catch (...) {
        TRACE(_T("A foreign exception came out of DestroyWindow.\n"));
    }
}

} // namespace afxint
