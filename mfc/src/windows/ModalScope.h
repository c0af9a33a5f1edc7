// What a modal window changes outside of itself, and puts back however its loop ends.
#pragma once

#include <classes/CWnd.h>

namespace afxint {

/// Keeps the user away from a window while this lives. One that was disabled before stays so.
class DisabledWindow
{
public:
    DisabledWindow() = default;
    explicit DisabledWindow(HWND window);
    ~DisabledWindow() { Enable(); }
    DisabledWindow(const DisabledWindow&) = delete;
    DisabledWindow& operator=(const DisabledWindow&) = delete;

    /// Where a function that disables a window itself tells which one.
    HWND* Receive() { return &window_; }
    void Enable();

private:
    HWND window_ = NULL; ///< NULL when there is nothing to enable again.
};

/// Marks a window object as one that runs a modal loop, or is about to.
class ModalState
{
public:
    explicit ModalState(CWnd& window);
    ~ModalState() { End(); }
    ModalState(const ModalState&) = delete;
    ModalState& operator=(const ModalState&) = delete;

    static bool IsRunning(const CWnd& window) { return window.Has(CWnd::modalLoop); }
    /// Whether EndModalLoop has not been called yet.
    static bool MayGoOn(const CWnd& window) { return window.Has(CWnd::continueModal); }
    int Result() const { return window_.modalResult_; }
    void End();

private:
    CWnd& window_;
};

/// All that DoModal does around its loop. At the end the owner is usable and active again, and
/// then the window of the object is destroyed.
class ModalScope
{
public:
    ModalScope(CWnd& window, CWnd* parent);
    ~ModalScope();
    ModalScope(const ModalScope&) = delete;
    ModalScope& operator=(const ModalScope&) = delete;

    HWND Owner() const { return owner_; }
    /// What EndModalLoop was given.
    int Result() const { return state_.Result(); }

private:
    CWnd& window_;
    DisabledWindow top_;
    HWND owner_;
    DisabledWindow disabledOwner_;
    ModalState state_;
};

} // namespace afxint
