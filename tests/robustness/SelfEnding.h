// A modal dialog that is used and closed from within its own loop, however often closing it takes.
#pragma once

#include <afxwin.h>

#include <functional>
#include <utility>

template <class Dialog>
class SelfEnding : public Dialog
{
public:
    /// `use` is called once, with the window, when the loop has begun.
    template <class... Arguments>
    explicit SelfEnding(std::function<void(HWND)> use, Arguments&&... arguments)
        : Dialog(std::forward<Arguments>(arguments)...), m_use(std::move(use))
    {
    }

    BOOL OnInitDialog() override
    {
        ::PostMessage(this->m_hWnd, WM_APP, 0, 0);
        return Dialog::OnInitDialog();
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != WM_APP)
            return Dialog::WindowProc(message, wParam, lParam);
        const HWND window = this->m_hWnd;
        if (wParam == 0) {
            ::ShowWindow(window, SW_SHOW); // As the loop does when there are no messages.
            ::UpdateWindow(window);
            m_use(window);
        }
        ::PostMessage(window, WM_APP, wParam + 1, 0);
        this->EndDialog(IDCANCEL);
        return 0;
    }

private:
    std::function<void(HWND)> m_use;
};
