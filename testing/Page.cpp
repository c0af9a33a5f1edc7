#include "testing/Page.h"
#include "testing/Pump.h"
#include "testing/ThreadWindows.h"

namespace umbra::testing {

Page::Page(CDialog& dialog, UINT templateId, CWnd* parent) : m_isOwn(true)
{
    if (!dialog.Create(templateId, parent))
        return;
    m_window = dialog.GetSafeHwnd();
    BringToFront();
}

Page::Page(CDialog& dialog, const DialogTemplate& source, CWnd* parent) : m_isOwn(true)
{
    if (!dialog.CreateIndirect(source.Get(), parent))
        return;
    m_window = dialog.GetSafeHwnd();
    BringToFront();
}

Page::Page(HWND window) : m_window(window)
{
    BringToFront();
}

Page::~Page()
{
    if (m_isOwn && m_window != nullptr && ::IsWindow(m_window))
        ::DestroyWindow(m_window);
}

bool Page::Click(int id)
{
    return testing::Click(Control(id));
}

bool Page::DoubleClick(int id)
{
    return testing::DoubleClick(Control(id));
}

bool Page::Hover(int id)
{
    return MovePointer(Control(id));
}

bool Page::Type(int id, LPCTSTR text)
{
    ::SendMessage(m_window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(id)), TRUE);
    ::SendMessage(Control(id), EM_SETSEL, 0, -1);
    return TypeText(text);
}

KeyResult Page::PressKey(WORD virtualKey, WORD modifier)
{
    return testing::PressKey(virtualKey, modifier);
}

TString Page::Text(int id) const
{
    return TextOf(Control(id));
}

TString Page::Title() const
{
    return TextOf(m_window);
}

Picture Page::Show()
{
    PumpMessages();
    return Picture::OfWindow(m_window);
}

Picture Page::Show(int id)
{
    PumpMessages();
    return Picture::OfWindow(Control(id));
}

void Page::MoveOffScreen()
{
    RECT place{};
    ::GetWindowRect(m_window, &place);
    ::SetWindowPos(m_window, nullptr, place.left - place.right - 100, 0, 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    PumpMessages();
}

void Page::BringToFront()
{
    ::ShowWindow(m_window, SW_SHOW);
    ::SetForegroundWindow(m_window);
    ::UpdateWindow(m_window);
    PumpMessages();
}

} // namespace umbra::testing
