// Shows a dialog page and drives it as a user would.
#pragma once

#include <afxwin.h>

#include "testing/DialogTemplate.h"
#include "testing/Input.h"
#include "testing/Picture.h"
#include "testing/Text.h"

#include <string>

namespace umbra::testing {

/// A page on the screen, modeless, in front and with its messages worked off. Destroys the
/// window at its end when it is still there; the dialog object stays its owner's.
class Page
{
public:
    /// IsOpen tells whether the window could be made.
    Page(CDialog& dialog, UINT templateId, CWnd* parent = nullptr);
    Page(CDialog& dialog, const DialogTemplate& source, CWnd* parent = nullptr);
    /// A window that exists already, such as a modal dialog's (see NextDialog); left open.
    explicit Page(HWND window);
    Page(const Page&) = delete;
    Page& operator=(const Page&) = delete;
    ~Page();

    HWND Handle() const { return m_window; }
    /// Whether the user sees it: it is not destroyed, nor hidden, as EndDialog does at once.
    bool IsOpen() const { return m_window != nullptr && ::IsWindowVisible(m_window); }
    HWND Control(int id) const { return ::GetDlgItem(m_window, id); }

    /// With the real pointer and keyboard; false when the input did not arrive.
    bool Click(int id);
    bool DoubleClick(int id);
    bool Hover(int id);
    /// Gives the control the focus and types in place of its text.
    bool Type(int id, LPCTSTR text);
    /// Goes to the control that has the focus.
    KeyResult PressKey(WORD virtualKey, WORD modifier = 0);

    TString Text(int id) const;
    TString Title() const;
    bool IsChecked(int id) const { return ::IsDlgButtonChecked(m_window, id) == BST_CHECKED; }

    /// What the screen shows of the page, or of one control.
    Picture Show();
    Picture Show(int id);

    /// Shows it where no pixel is on the screen: for tests that must not get in the way.
    void MoveOffScreen();

private:
    void BringToFront();

    HWND m_window = nullptr;
    bool m_isOwn = false;
};

} // namespace umbra::testing
