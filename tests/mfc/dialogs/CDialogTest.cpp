#include <afxwin.h>

#include <doctest/doctest.h>

#include "tests/ThreadStandIn.h"

#include "testing/DialogTemplate.h"
#include "testing/Input.h"
#include "testing/NextDialog.h"
#include "testing/Page.h"
#include "testing/Pump.h"

#include <functional>
#include <new>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "tests/mfc/LittleMemory.h"
#include "tests/mfc/Resources.h"
#include "tests/mfc/Throws.h"

using namespace umbra::testing;

namespace {

const UINT editId = 11;
const UINT secondId = 12;
const UINT buttonId = 13;
const UINT laterMessage = WM_APP + 1;

/// A page with two edits and the usual buttons.
DialogTemplate MakeTemplate(DWORD style = DialogTemplate::popup)
{
    DialogTemplate page(20, 20, 140, 80, style, _T("Recorded"));
    page.Edit(editId, _T(""), 5, 5, 60, 12).Edit(secondId, _T(""), 70, 5, 60, 12);
    page.Button(buttonId, _T("Act"), 5, 25, 40, 14);
    page.Button(IDOK, _T("OK"), 5, 50, 40, 14, DialogTemplate::tabStop | BS_DEFPUSHBUTTON);
    page.Button(IDCANCEL, _T("Cancel"), 50, 50, 40, 14);
    return page;
}

CString TextOf(const CWnd& dialog, UINT id)
{
    CString text;
    if (dialog.m_hWnd != NULL)
        dialog.GetDlgItemText(static_cast<int>(id), text);
    return text;
}

/// Tells what is called, and lets a test act inside.
class CRecorded : public CDialog
{
public:
    using CDialog::CDialog;

    std::string calls;
    CString name;
    int number = 0;
    int exchanges = 0;
    int changes = 0;
    BOOL initResult = TRUE;
    std::function<void(CRecorded&)> inInit;
    std::function<void(CRecorded&)> later; ///< Runs in the dialog's loop.
    HWND activeAtEnd = NULL;               ///< The active window when the dialog's is destroyed.
    CString textAtEnd;                     ///< What the first edit holds then.
    std::vector<WPARAM> shown;

    std::function<void()>
        whenOffered; ///< Acts when PreTranslateMessage is asked about laterMessage.
    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        if (whenOffered && pMsg->message == laterMessage)
            whenOffered();
        return CDialog::PreTranslateMessage(pMsg);
    }
    BOOL DestroyWindow() override
    {
        activeAtEnd = ::GetActiveWindow();
        textAtEnd = TextOf(*this, editId);
        return CDialog::DestroyWindow();
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CDialog::DoDataExchange(pDX);
        ++exchanges;
        DDX_Text(pDX, editId, name);
        DDX_Text(pDX, secondId, number);
        DDV_MinMaxInt(pDX, number, 0, 100);
    }
    BOOL OnInitDialog() override
    {
        calls += "init ";
        if (later)
            PostMessage(laterMessage);
        if (!CDialog::OnInitDialog())
            return FALSE;
        if (inInit)
            inInit(*this);
        return initResult;
    }
    void OnOK() override
    {
        calls += "ok ";
        CDialog::OnOK();
    }
    void OnCancel() override
    {
        calls += "cancel ";
        CDialog::OnCancel();
    }
    void PostNcDestroy() override { calls += "gone "; }
    void OnSetFont(CFont* pFont) override { font = pFont->GetSafeHandle(); }
    void OnChange()
    {
        ++changes;
        UpdateData(TRUE);
    }
    afx_msg void OnTimer(UINT_PTR)
    {
        if (until_())
            EndDialog(IDOK);
        else if (++looks_ == mostLooks)
            EndDialog(IDABORT);
    }
    LRESULT OnLater(WPARAM, LPARAM)
    {
        const auto step = later; // The step may set the next one.
        step(*this);
        return 0;
    }
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus)
    {
        shown.push_back(bShow);
        CDialog::OnShowWindow(bShow, nStatus);
    }
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
    {
        if (nCtlColor == CTLCOLOR_EDIT)
            return static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH));
        return CDialog::OnCtlColor(pDC, pWnd, nCtlColor);
    }
    DECLARE_MESSAGE_MAP()

public:
    HGDIOBJ font = NULL;

    /// Leaves the loop to itself until something is so; ends the dialog with IDOK then, with
    /// IDABORT when that never comes.
    void EndAsSoonAs(std::function<bool()> until)
    {
        until_ = std::move(until);
        SetTimer(1, 10, NULL);
    }

private:
    static constexpr int mostLooks = 500;
    std::function<bool()> until_;
    int looks_ = 0;
};
BEGIN_MESSAGE_MAP(CRecorded, CDialog)
    ON_EN_CHANGE(editId, OnChange)
    ON_MESSAGE(laterMessage, OnLater)
    ON_WM_TIMER()
    ON_WM_SHOWWINDOW()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

class COwnerWindow : public CWnd
{
public:
    explicit COwnerWindow(CWnd* owner = NULL)
    {
        CreateEx(0, NULL, _T("Owner"), WS_POPUP | WS_VISIBLE, CRect(50, 50, 450, 350), owner, 0);
        SetActiveWindow();
    }
    ~COwnerWindow() override { DestroyWindow(); }
    int idleMessages = 0;

protected:
    afx_msg void OnEnterIdle(UINT nWhy, CWnd*)
    {
        if (nWhy == MSGF_DIALOGBOX)
            ++idleMessages;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(COwnerWindow, CWnd)
    ON_WM_ENTERIDLE()
END_MESSAGE_MAP()

/// Makes the window the main window of the program for a scope.
class MainWindow
{
public:
    explicit MainWindow(CWnd* window) { AfxGetApp()->m_pMainWnd = window; }
    ~MainWindow() { AfxGetApp()->m_pMainWnd = NULL; }
};

INT_PTR Run(CRecorded& dialog, std::function<void(CRecorded&)> later, CWnd* owner = NULL)
{
    const DialogTemplate page = MakeTemplate();
    dialog.later = std::move(later);
    dialog.InitModalIndirect(page.Get(), owner);
    return dialog.DoModal();
}

/// Whether the action throws an exception of that type by value.
template <class Exception>
bool ThrowsForeign(const std::function<void()>& action)
{
    try {
        action();
    } catch (const Exception&) {
        return true;
    }
    return false;
}

/// A thread object whose idle time fails.
class FailingIdle : public ThreadStandIn
{
public:
    BOOL OnIdle(LONG) override { AfxThrowResourceException(); }
};

/// A key whose release nobody waits for: the dialog is gone by then.
void Press(WORD key)
{
    ::PostMessage(::GetFocus(), WM_KEYDOWN, key, 0);
}

} // namespace

TEST_CASE("a modal dialog disables its owner and gives it back enabled and active")
{
    COwnerWindow owner;
    CRecorded dialog(static_cast<UINT>(0), &owner);
    bool enabledMeanwhile = true;
    const INT_PTR result = Run(
        dialog,
        [&](CRecorded& self) {
            enabledMeanwhile = owner.IsWindowEnabled() != FALSE;
            CHECK(self.GetParent() == &owner);
            self.EndDialog(42);
        },
        &owner);
    CHECK(result == 42);
    CHECK_FALSE(enabledMeanwhile);
    CHECK(owner.IsWindowEnabled());
    CHECK(CWnd::GetActiveWindow() == &owner);
    CHECK(dialog.m_hWnd == NULL);
    CHECK(dialog.calls == "init gone ");
}

TEST_CASE("a modal dialog hands the activation to its owner before its window goes")
{
    COwnerWindow owner;
    CRecorded dialog;
    CHECK(Run(
              dialog,
              [](CRecorded& self) {
                  // Not with EndDialog, where the system does it.
                  self.EndAsSoonAs([&] {
                      if (CWnd::GetActiveWindow() == &self)
                          self.EndModalLoop(42);
                      return false;
                  });
              },
              &owner) == 42);
    CHECK(owner.IsWindowEnabled());
    CHECK(dialog.activeAtEnd == owner.m_hWnd);
    CHECK(CWnd::GetActiveWindow() == &owner);
}

TEST_CASE("an exception that ends the loop of a modal dialog leaves owner and dialog usable")
{
    COwnerWindow above;
    COwnerWindow owner(&above);
    CRecorded dialog;
    const auto run = [&] {
        Run(
            dialog, [](CRecorded& self) { self.EndDialog(1); }, &owner);
    };
    const auto checkAfterwards = [&] {
        CHECK(owner.IsWindowEnabled());
        CHECK(above.IsWindowEnabled());
        CHECK(CWnd::GetActiveWindow() == &owner);
        CHECK(dialog.m_hWnd == NULL);
    };
    dialog.whenOffered = [] { AfxThrowResourceException(); };
    CHECK(Throws<CResourceException>(run));
    checkAfterwards();
    dialog.whenOffered = [] { throw std::bad_alloc(); };
    CHECK(ThrowsForeign<std::bad_alloc>(run));
    checkAfterwards();
    dialog.whenOffered = nullptr;
    {
        const DialogTemplate page = MakeTemplate();
        const FailingIdle thread;
        dialog.later = nullptr;
        dialog.InitModalIndirect(page.Get(), &owner);
        CHECK(Throws<CResourceException>([&] { dialog.DoModal(); }));
        checkAfterwards();
    }
    CHECK(Run(
              dialog, [](CRecorded& self) { self.EndDialog(5); }, &owner) == 5);
    checkAfterwards();
}

TEST_CASE("a template for which there is not enough memory leaves the owner usable")
{
    COwnerWindow owner;
    DialogTemplate page(20, 20, 140, 80);
    page.Label(99, TString(LittleMemory::bigBlock, 'x').c_str(), 5, 5, 60, 12);
    CRecorded dialog;
    dialog.InitModalIndirect(page.Get(), &owner);
    {
        const LittleMemory memory;
        REQUIRE(memory.IsInstalled());
        CHECK(ThrowsForeign<std::bad_alloc>([&] { dialog.DoModal(); }));
    }
    CHECK(owner.IsWindowEnabled());
    CHECK(CWnd::GetActiveWindow() == &owner);
}

TEST_CASE("the window above the owner is disabled, too, and enabled again")
{
    COwnerWindow above;
    COwnerWindow owner(&above);
    CRecorded dialog;
    bool enabledMeanwhile = true;
    CHECK(Run(
              dialog,
              [&](CRecorded& self) {
                  enabledMeanwhile = above.IsWindowEnabled() || owner.IsWindowEnabled();
                  self.EndDialog(1);
              },
              &owner) == 1);
    CHECK_FALSE(enabledMeanwhile);
    CHECK(above.IsWindowEnabled());
    CHECK(owner.IsWindowEnabled());
}

TEST_CASE("a dialog object is good for another DoModal")
{
    CRecorded dialog;
    for (int round : {1, 2, 3})
        CHECK(Run(dialog, [round](CRecorded& self) { self.EndDialog(round); }) == round);
    CHECK(dialog.calls == "init gone init gone init gone ");
}

TEST_CASE("DoModal gives -1 when the window cannot be made")
{
    CRecorded missing(60999);
    CHECK(missing.DoModal() == -1);
    CRecorded unnamed(_T("No dialog of this name"));
    CHECK(unnamed.DoModal() == -1);
    CHECK(missing.Create(60999) == FALSE);

    COwnerWindow owner;
    DialogTemplate unknown(0, 0, 50, 50);
    unknown.Add(_T("No class of this name"), 1, _T(""), 0, 0, 5, 5);
    CDialog dialog;
    dialog.InitModalIndirect(unknown.Get(), &owner);
    CHECK(dialog.DoModal() == -1);
    CHECK(owner.IsWindowEnabled());
}

TEST_CASE("DoModal gives IDABORT when the window goes without EndDialog")
{
    COwnerWindow owner;
    CRecorded dialog;
    CHECK(Run(
              dialog, [](CRecorded& self) { self.DestroyWindow(); }, &owner) == IDABORT);
    CHECK(owner.IsWindowEnabled());
    CHECK(dialog.m_hWnd == NULL);
}

TEST_CASE("WM_QUIT ends a modal dialog and stays for the loop outside")
{
    CRecorded dialog;
    CHECK(Run(dialog, [](CRecorded&) { ::PostQuitMessage(9); }) == IDABORT);
    MSG message{};
    REQUIRE(::PeekMessage(&message, NULL, 0, 0, PM_REMOVE));
    while (message.message != WM_QUIT && ::PeekMessage(&message, NULL, 0, 0, PM_REMOVE)) {
    }
    CHECK(message.message == WM_QUIT);
    CHECK(message.wParam == 9);
}

TEST_CASE("EndDialog only marks the end: the running handler goes on")
{
    CRecorded dialog;
    bool wentOn = false;
    Run(dialog, [&](CRecorded& self) {
        self.EndDialog(1);
        wentOn = ::IsWindow(self.m_hWnd) != FALSE;
    });
    CHECK(wentOn);
}

TEST_CASE("a dialog ended in OnInitDialog never shows")
{
    CRecorded dialog;
    dialog.inInit = [](CRecorded& self) { self.EndDialog(7); };
    const DialogTemplate page = MakeTemplate(DialogTemplate::popup | WS_VISIBLE);
    dialog.InitModalIndirect(page.Get());
    CHECK(dialog.DoModal() == 7);
    for (const WPARAM shown : dialog.shown)
        CHECK(shown == FALSE);
}

TEST_CASE("a modal dialog shows although its template does not say so")
{
    CRecorded dialog;
    CHECK(Run(dialog, [](CRecorded& self) {
              CHECK_FALSE(self.IsWindowVisible());
              self.EndAsSoonAs([&] { return self.IsWindowVisible() != FALSE; });
          }) == IDOK);
}

TEST_CASE("OnInitDialog is called without a map entry and fills the controls")
{
    CRecorded dialog;
    dialog.name = "a name";
    dialog.number = 17;
    CString shown;
    Run(dialog, [&](CRecorded& self) {
        CString text;
        self.GetDlgItemText(editId, text);
        shown = text;
        self.GetDlgItemText(secondId, text);
        shown += _T(" ") + text;
        self.EndDialog(1);
    });
    CHECK(shown == "a name 17");
    CHECK(dialog.exchanges == 1);
}

TEST_CASE("OnInitDialog with TRUE lets the system set the focus, with FALSE not")
{
    for (const BOOL systemFocus : {TRUE, FALSE}) {
        CAPTURE(systemFocus);
        CRecorded dialog;
        dialog.initResult = systemFocus;
        dialog.inInit = [](CRecorded& self) { self.GetDlgItem(buttonId)->SetFocus(); };
        const DialogTemplate page = MakeTemplate(DialogTemplate::popup | WS_VISIBLE);
        REQUIRE(dialog.CreateIndirect(page.Get()));
        CHECK(CWnd::GetFocus() == dialog.GetDlgItem(systemFocus ? editId : buttonId));
        dialog.DestroyWindow();
    }
}

TEST_CASE("OK saves the data and ends the dialog")
{
    CRecorded dialog;
    CHECK(Run(dialog, [](CRecorded& self) {
              self.SetDlgItemText(editId, _T("typed"));
              self.SetDlgItemText(secondId, _T("55"));
              self.SendMessage(WM_COMMAND, IDOK,
                               reinterpret_cast<LPARAM>(self.GetDlgItem(IDOK)->m_hWnd));
          }) == IDOK);
    CHECK(dialog.name == "typed");
    CHECK(dialog.number == 55);
    CHECK(dialog.calls == "init ok gone ");
}

TEST_CASE("OK with bad data tells the user and leaves the dialog open")
{
    CRecorded dialog;
    CHECK(Run(dialog, [](CRecorded& self) {
              self.ShowWindow(SW_SHOW);
              self.SetDlgItemText(secondId, _T("500"));
              NextDialog answer([](HWND box) { ::SendMessage(box, WM_COMMAND, IDOK, 0); });
              self.SendMessage(WM_COMMAND, IDOK);
              CHECK(answer.HasRun());
              CHECK(CWnd::GetFocus() == self.GetDlgItem(secondId));
              self.SendMessage(WM_COMMAND, IDCANCEL);
          }) == IDCANCEL);
    CHECK(dialog.calls == "init ok cancel gone ");
    CHECK(dialog.number == 500); // The exchange came to this member before its check failed.
}

TEST_CASE("Cancel ends the dialog without an exchange")
{
    CRecorded dialog;
    dialog.name = "kept";
    CHECK(Run(dialog, [](CRecorded& self) {
              self.SendDlgItemMessage(secondId, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(_T("8")));
              self.SendMessage(WM_COMMAND, IDCANCEL);
          }) == IDCANCEL);
    CHECK(dialog.name == "kept");
    CHECK(dialog.number == 0);
}

TEST_CASE("Enter, Esc and the close box reach OnOK and OnCancel")
{
    const auto run = [](void (*act)(CRecorded&)) {
        CRecorded dialog;
        const INT_PTR result = Run(dialog, [act](CRecorded& self) {
            self.ShowWindow(SW_SHOW);
            self.SetForegroundWindow();
            act(self);
        });
        return dialog.calls + std::to_string(result);
    };
    CHECK(run([](CRecorded&) { Press(VK_RETURN); }) == "init ok gone 1");
    CHECK(run([](CRecorded&) { Press(VK_ESCAPE); }) == "init cancel gone 2");
    CHECK(run([](CRecorded& self) { self.PostMessage(WM_CLOSE); }) == "init cancel gone 2");
    CHECK(run([](CRecorded& self) { self.PostMessage(WM_SYSCOMMAND, SC_CLOSE); }) ==
          "init cancel gone 2");
}

TEST_CASE("Tab and arrows move the focus in modal and modeless dialogs")
{
    CRecorded modal;
    Run(modal, [](CRecorded& self) {
        self.ShowWindow(SW_SHOW);
        self.GetDlgItem(editId)->SetFocus();
        CHECK(PressKey(VK_TAB));
        CHECK(CWnd::GetFocus() == self.GetDlgItem(secondId));
        self.EndDialog(1);
    });

    CRecorded modeless;
    const DialogTemplate page = MakeTemplate(DialogTemplate::popup | WS_VISIBLE);
    REQUIRE(modeless.CreateIndirect(page.Get()));
    modeless.GetDlgItem(buttonId)->SetFocus();
    CHECK(PressKey(VK_RIGHT));
    CHECK(CWnd::GetFocus() == modeless.GetDlgItem(IDOK));
    CHECK(PressKey(VK_TAB, VK_SHIFT));
    CHECK(CWnd::GetFocus() == modeless.GetDlgItem(buttonId));
    modeless.DestroyWindow();
}

TEST_CASE("a key that the dialog has dealt with is not dealt with again")
{
    CRecorded modal;
    CHECK(Run(modal, [](CRecorded& self) {
              ::PostMessage(self.GetDlgItem(editId)->m_hWnd, WM_CHAR, 'a', 0);
              self.EndAsSoonAs([&] { return TextOf(self, editId) != ""; });
          }) == IDOK);
    CHECK(modal.textAtEnd == "a");

    CRecorded modeless;
    const DialogTemplate page = MakeTemplate(DialogTemplate::popup | WS_VISIBLE);
    REQUIRE(modeless.CreateIndirect(page.Get()));
    modeless.GetDlgItem(editId)->SetFocus();
    CHECK(TypeText(_T("b")));
    CHECK(TextOf(modeless, editId) == "b");
    modeless.DestroyWindow();
}

TEST_CASE("a modal dialog works in a thread that has no object of the library")
{
    CString text;
    std::thread([&] {
        CRecorded dialog;
        Run(dialog, [](CRecorded& self) {
            ::PostMessage(self.GetDlgItem(editId)->m_hWnd, WM_CHAR, 'a', 0);
            self.EndAsSoonAs([&] { return TextOf(self, editId) != ""; });
        });
        text = dialog.textAtEnd;
    }).join();
    CHECK(text == "a");
}

TEST_CASE("in a modeless dialog OK and Cancel only hide the window")
{
    const DialogTemplate page = MakeTemplate(DialogTemplate::popup | WS_VISIBLE);
    for (const UINT id : {IDOK, IDCANCEL}) {
        CRecorded dialog;
        REQUIRE(dialog.CreateIndirect(page.Get()));
        CHECK(dialog.IsWindowVisible());
        dialog.SendMessage(WM_COMMAND, id);
        CHECK(::IsWindow(dialog.m_hWnd));
        CHECK_FALSE(dialog.IsWindowVisible());
        dialog.DestroyWindow();
    }
}

TEST_CASE("notifications sent by the exchange itself start no other exchange")
{
    const DialogTemplate page = MakeTemplate();
    CRecorded dialog;
    REQUIRE(dialog.CreateIndirect(page.Get()));
    dialog.exchanges = 0;
    dialog.changes = 0;
    dialog.name = "set by the exchange";
    CHECK(dialog.UpdateData(FALSE));
    CHECK(dialog.exchanges == 1);
    CHECK(dialog.changes == 0);
    dialog.SetDlgItemText(editId, _T("set from outside"));
    CHECK(dialog.changes == 1);
    CHECK(dialog.name == "set from outside");
    dialog.DestroyWindow();
}

TEST_CASE("a dialog without a parent belongs to the main window")
{
    COwnerWindow main;
    const MainWindow scope(&main);
    const DialogTemplate page = MakeTemplate();
    CRecorded modeless;
    REQUIRE(modeless.CreateIndirect(page.Get()));
    CHECK(modeless.GetParent() == &main);
    modeless.DestroyWindow();

    CRecorded modal;
    bool enabled = true;
    Run(modal, [&](CRecorded& self) {
        CHECK(self.GetParent() == &main);
        enabled = main.IsWindowEnabled() != FALSE;
        self.EndDialog(1);
    });
    CHECK_FALSE(enabled);
    CHECK(main.IsWindowEnabled());
}

TEST_CASE("a dialog that is the main window itself has no owner, and its end ends the loop")
{
    CRecorded dialog;
    {
        const MainWindow scope(&dialog);
        CHECK(Run(dialog, [](CRecorded& self) {
                  CHECK(self.GetParent() == NULL);
                  self.EndDialog(3);
              }) == 3);
        CHECK(AfxGetApp()->m_pMainWnd == NULL);
    }
    MSG message{};
    while (message.message != WM_QUIT && ::PeekMessage(&message, NULL, 0, 0, PM_REMOVE)) {
    }
    CHECK(message.message == WM_QUIT);
}

TEST_CASE("the owner hears that a modal dialog is idle")
{
    COwnerWindow owner;
    CRecorded dialog;
    CHECK(Run(
              dialog,
              [&](CRecorded& self) { self.EndAsSoonAs([&] { return owner.idleMessages > 0; }); },
              &owner) == IDOK);
}

TEST_CASE("a handler's result is the sender's result in a dialog, too")
{
    const DialogTemplate page = MakeTemplate();
    CRecorded dialog;
    REQUIRE(dialog.CreateIndirect(page.Get()));
    CWnd* edit = dialog.GetDlgItem(editId);
    CClientDC dc(edit);
    CHECK(dialog.SendMessage(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc.m_hDC),
                             reinterpret_cast<LPARAM>(edit->m_hWnd)) ==
          reinterpret_cast<LRESULT>(::GetStockObject(BLACK_BRUSH)));
    dialog.DestroyWindow();
}

TEST_CASE("dialogs are made by id, by name, from memory and from a memory handle")
{
    CDialog byId;
    REQUIRE(byId.Create(IDD_PLAIN));
    CString title;
    byId.GetWindowText(title);
    CHECK(title == "Plain");
    byId.DestroyWindow();

    CDialog byName;
    REQUIRE(byName.Create(_T("NamedDialog")));
    byName.GetWindowText(title);
    CHECK(title == "Named");
    byName.DestroyWindow();

    const DialogTemplate page = MakeTemplate();
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, 2000);
    memcpy(::GlobalLock(memory), page.Get(), 1000);
    ::GlobalUnlock(memory);
    CDialog byHandle;
    REQUIRE(byHandle.CreateIndirect(memory));
    byHandle.GetWindowText(title);
    CHECK(title == "Recorded");
    byHandle.DestroyWindow();

    CRecorded modal;
    modal.later = [](CRecorded& self) { self.EndDialog(6); };
    modal.InitModalIndirect(memory);
    CHECK(modal.DoModal() == 6);
    ::GlobalFree(memory);

    CRecorded modalById(IDD_PLAIN);
    CHECK(modalById.IsKindOf(RUNTIME_CLASS(CDialog)));
}

TEST_CASE("a dialog of the resources whose place is left open is centred over its owner")
{
    COwnerWindow owner;
    CDialog dialog;
    REQUIRE(dialog.Create(IDD_PLAIN, &owner));
    CRect place;
    CRect over;
    dialog.GetWindowRect(&place);
    owner.GetWindowRect(&over);
    CHECK(abs(place.CenterPoint().x - over.CenterPoint().x) <= 1);
    CHECK(abs(place.CenterPoint().y - over.CenterPoint().y) <= 1);
    dialog.DestroyWindow();

    const DialogTemplate placed = MakeTemplate();
    CDialog other;
    REQUIRE(other.CreateIndirect(placed.Get(), &owner));
    other.GetWindowRect(&place);
    CHECK(abs(place.CenterPoint().x - over.CenterPoint().x) > 1);
    other.DestroyWindow();
}

TEST_CASE("a dialog that moves itself at its start is not centred any more")
{
    COwnerWindow owner;
    DialogTemplate open(0, 0, 140, 80);
    open.Edit(editId, _T(""), 5, 5, 60, 12).Edit(secondId, _T("0"), 70, 5, 60, 12);
    CRect place;
    const auto show = [&](std::function<void(CRecorded&)> inInit) {
        CRecorded dialog;
        dialog.inInit = std::move(inInit);
        REQUIRE(dialog.CreateIndirect(open.Get(), &owner));
        dialog.GetWindowRect(&place);
        dialog.DestroyWindow();
        return place.TopLeft();
    };
    CHECK(show({}) != CPoint(31, 17));
    CHECK(show([](CRecorded& self) {
              self.SetWindowPos(NULL, 31, 17, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
          }) == CPoint(31, 17));
}

TEST_CASE("the font of the template is told before the controls are filled")
{
    DialogTemplate page = MakeTemplate();
    page.Font(9, _T("Tahoma"));
    CRecorded dialog;
    REQUIRE(dialog.CreateIndirect(page.Get()));
    CHECK(dialog.font != NULL);
    CHECK(dialog.GetDlgItem(editId)->GetFont()->GetSafeHandle() == dialog.font);
    dialog.DestroyWindow();
}

TEST_CASE("the default button and the focus are moved by the dialog's functions")
{
    const DialogTemplate page = MakeTemplate(DialogTemplate::popup | WS_VISIBLE);
    CDialog dialog;
    REQUIRE(dialog.CreateIndirect(page.Get()));
    CHECK(LOWORD(dialog.GetDefID()) == IDOK);
    dialog.SetDefID(buttonId);
    CHECK(LOWORD(dialog.GetDefID()) == buttonId);
    dialog.GotoDlgCtrl(dialog.GetDlgItem(editId));
    CHECK(CWnd::GetFocus() == dialog.GetDlgItem(editId));
    dialog.NextDlgCtrl();
    CHECK(CWnd::GetFocus() == dialog.GetDlgItem(secondId));
    dialog.PrevDlgCtrl();
    CHECK(CWnd::GetFocus() == dialog.GetDlgItem(editId));
    CRect units(0, 0, 4, 8);
    dialog.MapDialogRect(&units);
    CHECK(units.right > 0);
    CHECK(units.bottom > units.right);
    dialog.DestroyWindow();
}
