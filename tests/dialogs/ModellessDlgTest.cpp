#include "dialogs/ModellessDlg.h"

#include "tests/ForeignFolder.h"
#include "tests/dialogs/PageTemplate.h"

#include "testing/GdiObjects.h"
#include "testing/Input.h"
#include "testing/Page.h"
#include "testing/Picture.h"
#include "testing/Pump.h"

#include <doctest/doctest.h>

#include <memory>
#include <vector>

using namespace umbra::testing;

namespace {

/// A dialog that shows its members.
class TestModeless : public CModellessDlg
{
public:
    TestModeless() : CModellessDlg(nullptr) {}
    using CModellessDlg::m_btnBack;
    using CModellessDlg::m_btnCancel;
    using CModellessDlg::m_btnOk;
    using CModellessDlg::m_picture;
};

/// Looks at what a label keeps to itself.
struct LabelProbe : CHyperLink
{
    static COLORREF TextColor(const CHyperLink& label) { return label.*(&LabelProbe::m_crText); }
    static COLORREF Key(const CHyperLink& label) { return label.*(&LabelProbe::m_crTransparent); }
    static BOOL HasPicture(const CHyperLink& label)
    {
        return label.*(&LabelProbe::m_bBitmapLoaded);
    }
    static CSize PictureSize(const CHyperLink& label)
    {
        return CSize(label.*(&LabelProbe::m_nBitmapWidth), label.*(&LabelProbe::m_nBitmapHeight));
    }
};

/// Shows a modeless dialog as a host does, and ends it as a host does.
class Shown
{
public:
    Shown()
    {
        g_strImageDir = ProgramFolder().c_str();
        g_crShade = RGB(180, 200, 230);
        Show();
    }

    ~Shown()
    {
        g_pModelessDlg->DestroyWindow();
        delete g_pModelessDlg;
        g_pModelessDlg = nullptr;
        AfxGetApp()->EndWaitCursor();
    }

    static void Show()
    {
        if (g_pModelessDlg != nullptr)
            return;
        g_pModelessDlg = new TestModeless;
        g_pModelessDlg->Create(CModellessDlg::IDD, nullptr);
        g_pModelessDlg->ShowWindow(SW_SHOW);
        g_pModelessDlg->InvalidateRect(nullptr, TRUE);
        g_pModelessDlg->PumpMessages();
    }

    TestModeless* operator->() const { return static_cast<TestModeless*>(g_pModelessDlg); }
};

/// A dialog of its own, made with the image folder given and not shown.
class Unshown
{
public:
    explicit Unshown(LPCTSTR folder)
    {
        g_strImageDir = folder;
        REQUIRE(m_dialog.Create(CModellessDlg::IDD, nullptr));
    }
    ~Unshown()
    {
        m_dialog.DestroyWindow();
        AfxGetApp()->EndWaitCursor();
    }
    Unshown(const Unshown&) = delete;
    Unshown& operator=(const Unshown&) = delete;

    const TestModeless* operator->() const { return &m_dialog; }

private:
    TestModeless m_dialog;
};

/// Two edits on the dialog; the first one has the focus.
struct TwoEdits
{
    explicit TwoEdits(const Shown& dialog)
    {
        const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
        REQUIRE(first.Create(style, CRect(100, 150, 160, 170), g_pModelessDlg, 501));
        REQUIRE(second.Create(style, CRect(170, 150, 230, 170), g_pModelessDlg, 502));
        dialog->SetForegroundWindow();
        first.SetFocus();
        dialog->PumpMessages();
        REQUIRE(::GetFocus() == first.m_hWnd);
    }

    CEdit first, second;
};

/// A window that notes what reaches it.
class Listener : public CWnd
{
public:
    std::vector<UINT> m_seen;

    Listener()
    {
        CreateEx(0, AfxRegisterWndClass(0), _T(""), WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
    }
    ~Listener() override { DestroyWindow(); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        m_seen.push_back(message);
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

/// Whether the message is among those.
bool Contains(const std::vector<UINT>& messages, UINT message)
{
    for (const UINT seen : messages) {
        if (seen == message)
            return true;
    }
    return false;
}

} // namespace

TEST_CASE("the modeless page has one button, disabled, captioned Cancel")
{
    const Shown dialog;
    REQUIRE(dialog->m_hWnd != nullptr);
    CHECK(dialog->IsWindowVisible());
    CHECK(dialog->m_btnCancel.m_hWnd != nullptr);
    CHECK(dialog->m_btnOk.m_hWnd == nullptr);
    CHECK(dialog->m_btnBack.m_hWnd == nullptr);
    CString caption;
    dialog->m_btnCancel.GetWindowText(caption);
    CHECK(caption == _T("Cancel"));
    CHECK_FALSE(dialog->m_btnCancel.IsWindowEnabled());
}

TEST_CASE("its labels are blue, and one carries the information icon with black as its key")
{
    const Shown dialog;
    for (const CHyperLink* label :
         {&dialog->m_icon, &dialog->m_title, &dialog->m_detail, &dialog->m_hint}) {
        CHECK(label->m_hWnd != nullptr);
        CHECK(LabelProbe::TextColor(*label) == 0x00FF0000);
    }
    CHECK(LabelProbe::Key(dialog->m_icon) == 0);
    CHECK(LabelProbe::HasPicture(dialog->m_icon));
    CHECK(LabelProbe::PictureSize(dialog->m_icon) == CSize(32, 32));
    CHECK_FALSE(LabelProbe::HasPicture(dialog->m_title));
}

TEST_CASE("its picture is shown, and the working directory is the one it was")
{
    const CString before = WorkingDirectory();
    const Shown dialog;
    CHECK(dialog->m_picture.m_bHasPicture);
    CHECK(dialog->m_picture.IsWindowVisible());
    CHECK(WorkingDirectory() == before);
}

TEST_CASE("the first pump has painted the window before the host goes on")
{
    const Shown dialog;
    CHECK_FALSE(dialog->GetUpdateRect(nullptr));
    CHECK_FALSE(dialog->m_btnCancel.GetUpdateRect(nullptr));
}

TEST_CASE("missing images leave the labels without pictures")
{
    const Unshown dialog(_T("C:\\no such folder"));
    CHECK_FALSE(LabelProbe::HasPicture(dialog->m_icon));
    CHECK_FALSE(dialog->m_picture.m_bHasPicture);
}

TEST_CASE("pumping an empty queue returns at once and only restores the wait cursor")
{
    const Shown dialog;
    dialog->PumpMessages();
    ::SetCursor(::LoadCursor(nullptr, IDC_ARROW));
    dialog->PumpMessages();
    CHECK(::GetCursor() == ::LoadCursor(nullptr, IDC_WAIT));
}

TEST_CASE("the wait cursor shows from construction on, counted once")
{
    ::SetCursor(::LoadCursor(nullptr, IDC_ARROW));
    TestModeless dialog;
    CHECK(::GetCursor() == ::LoadCursor(nullptr, IDC_WAIT));
    AfxGetApp()->EndWaitCursor();
    CHECK(::GetCursor() == ::LoadCursor(nullptr, IDC_ARROW));
}

TEST_CASE("a second show request creates, shows and pumps nothing")
{
    const Shown dialog;
    CModellessDlg* const first = g_pModelessDlg;
    Listener listener;
    listener.m_seen.clear();
    listener.PostMessage(WM_APP + 1);
    Shown::Show();
    CHECK(g_pModelessDlg == first);
    CHECK_FALSE(Contains(listener.m_seen, WM_APP + 1));
    dialog->PumpMessages();
    CHECK(Contains(listener.m_seen, WM_APP + 1));
}

TEST_CASE("a pump dispatches messages of the host's other windows")
{
    const Shown dialog;
    Listener listener;
    listener.PostMessage(WM_APP + 7, 1, 2);
    dialog->PumpMessages();
    CHECK(Contains(listener.m_seen, WM_APP + 7));
}

TEST_CASE("with nothing else to take the focus, Tab is handled and goes no further while pumping")
{
    const Shown dialog;
    dialog->PostMessage(WM_KEYDOWN, VK_TAB, 0x000F0001);
    dialog->PumpMessages();
    CHECK_FALSE(dialog->m_btnCancel.IsWindowEnabled());
}

TEST_CASE("Tab moves the focus between the controls while the host pumps, and is not translated")
{
    const Shown dialog;
    TwoEdits edits(dialog);
    edits.first.PostMessage(WM_KEYDOWN, VK_TAB, 0x000F0001);
    dialog->PumpMessages();
    CHECK(::GetFocus() == edits.second.m_hWnd);
    CString text;
    edits.first.GetWindowText(text);
    CHECK(text.IsEmpty());
    edits.second.GetWindowText(text);
    CHECK(text.IsEmpty());
}

TEST_CASE("the real Tab key moves the focus while the host pumps")
{
    const Shown dialog;
    TwoEdits edits(dialog);
    INPUT keys[2] = {};
    keys[0].type = keys[1].type = INPUT_KEYBOARD;
    keys[0].ki.wVk = keys[1].ki.wVk = VK_TAB;
    keys[1].ki.dwFlags = KEYEVENTF_KEYUP;
    ::SendInput(2, keys, sizeof(INPUT));
    CHECK(WaitUntil([&] {
        dialog->PumpMessages();
        return ::GetFocus() == edits.second.m_hWnd;
    }));
}

TEST_CASE("a typed key reaches the focused control through translation and dispatch")
{
    const Shown dialog;
    CEdit edit;
    REQUIRE(edit.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(100, 150, 160, 170),
                        g_pModelessDlg, 501));
    edit.SetFocus();
    edit.PostMessage(WM_CHAR, 'x', 1);
    dialog->PumpMessages();
    CString text;
    edit.GetWindowText(text);
    CHECK(text == _T("x"));
}

TEST_CASE("a pump takes WM_QUIT like any other message and does not end the program")
{
    const Shown dialog;
    ::PostQuitMessage(5);
    Listener listener;
    listener.PostMessage(WM_APP + 2);
    dialog->PumpMessages();
    CHECK(Contains(listener.m_seen, WM_APP + 2));
    MSG message;
    CHECK_FALSE(::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_CASE("a pump works on behind WM_QUIT, which waiting paints come after")
{
    const Shown dialog;
    dialog->InvalidateRect(nullptr, TRUE);
    REQUIRE(dialog->GetUpdateRect(nullptr));
    ::PostQuitMessage(5);
    dialog->PumpMessages();
    CHECK_FALSE(dialog->GetUpdateRect(nullptr));
    MSG message;
    CHECK_FALSE(::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_CASE("a pump works off the thread's own messages, one posted as WM_QUIT among them")
{
    const Shown dialog;
    Listener listener;
    ::PostThreadMessage(::GetCurrentThreadId(), WM_APP + 5, 0, 0);
    ::PostThreadMessage(::GetCurrentThreadId(), WM_QUIT, 0, 0);
    listener.PostMessage(WM_APP + 2);
    dialog->PumpMessages();
    CHECK(Contains(listener.m_seen, WM_APP + 2));
    MSG message;
    CHECK_FALSE(::PeekMessage(&message, nullptr, WM_APP + 5, WM_APP + 5, PM_NOREMOVE));
}

TEST_CASE("the pictures are found in an image folder beyond ASCII")
{
    const ForeignFolder folder;
    REQUIRE(folder.IsThere());
    const Unshown dialog(folder.Path().c_str());
    CHECK(LabelProbe::HasPicture(dialog->m_icon));
    CHECK(dialog->m_picture.m_bHasPicture);
}

TEST_CASE("a handler that runs inside a pump may end the window")
{
    g_strImageDir = ProgramFolder().c_str();
    class Ender : public CWnd
    {
    public:
        CModellessDlg* m_victim = nullptr;
        Ender()
        {
            CreateEx(0, AfxRegisterWndClass(0), _T(""), WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
        }
        ~Ender() override { DestroyWindow(); }

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_APP + 3) {
                m_victim->DestroyWindow();
                delete m_victim;
                g_pModelessDlg = nullptr;
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    Shown::Show();
    REQUIRE(g_pModelessDlg != nullptr);
    Ender ender;
    ender.m_victim = g_pModelessDlg;
    ender.PostMessage(WM_APP + 3);
    ender.PostMessage(WM_APP + 4);
    g_pModelessDlg->PumpMessages();
    CHECK(g_pModelessDlg == nullptr);
    AfxGetApp()->EndWaitCursor();
}

TEST_CASE("a host enables Cancel, and a real click reaches it while it pumps")
{
    class Cancellable : public TestModeless
    {
    public:
        bool m_cancelled = false;

    protected:
        void OnCancel() override { m_cancelled = true; }
    };
    g_strImageDir = ProgramFolder().c_str();
    Cancellable dialog;
    REQUIRE(dialog.Create(CModellessDlg::IDD, nullptr));
    dialog.ShowWindow(SW_SHOW);
    dialog.m_btnCancel.EnableWindow(TRUE);
    dialog.PumpMessages();
    CHECK(Click(dialog.m_btnCancel.m_hWnd));
    CHECK(dialog.m_cancelled);
    dialog.DestroyWindow();
    AfxGetApp()->EndWaitCursor();
}
