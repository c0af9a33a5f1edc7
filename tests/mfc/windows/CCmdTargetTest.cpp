#include <afxwin.h>

#include <doctest/doctest.h>

#include "testing/DialogTemplate.h"

#include <string>

using umbra::testing::DialogTemplate;

namespace {

const UINT commandId = 0x8001;
const UINT threadCommandId = 0x8005;
const UINT controlId = 101;
std::string calls;

/// Not a window, and a target all the same.
class CDocumentLike : public CCmdTarget
{
public:
    int done = 0;
    bool checked = false;
    bool routesOn = false;
    BOOL enabled = TRUE;

protected:
    void OnDo() { ++done; }
    void OnUpdate(CCmdUI* ui)
    {
        ui->Enable(enabled);
        ui->SetCheck(checked ? 1 : 0);
        ui->SetText(_T("updated"));
        if (routesOn)
            ui->ContinueRouting();
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CDocumentLike, CCmdTarget)
    ON_COMMAND(commandId, OnDo)
    ON_UPDATE_COMMAND_UI(commandId, OnUpdate)
END_MESSAGE_MAP()

class COwner : public CWnd
{
public:
    COwner() { CreateEx(0, NULL, _T(""), WS_POPUP, CRect(0, 0, 100, 100), NULL, 0); }

protected:
    void OnCommandOfOwner() { calls += "owner "; }
    void OnControlOfOwner() { calls += "owner-control "; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(COwner, CWnd)
    ON_COMMAND(commandId, OnCommandOfOwner)
    ON_BN_CLICKED(controlId, OnControlOfOwner)
END_MESSAGE_MAP()

/// Enables and disables its own commands.
class CUpdating : public CWnd
{
public:
    BOOL enabled = TRUE;
    int done = 0;

    CUpdating() { CreateEx(0, NULL, _T(""), WS_POPUP, CRect(0, 0, 100, 100), NULL, 0); }

protected:
    void OnDo() { ++done; }
    void OnUpdate(CCmdUI* ui) { ui->Enable(enabled); }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CUpdating, CWnd)
    ON_COMMAND(commandId, OnDo)
    ON_UPDATE_COMMAND_UI(commandId, OnUpdate)
END_MESSAGE_MAP()

class CPage : public CDialog
{
public:
    explicit CPage(CWnd* owner)
    {
        DialogTemplate page(5, 5, 100, 60);
        page.Button(controlId, _T("control"), 0, 0, 40, 12);
        CreateIndirect(page.Get(), owner);
        calls.clear();
    }
    ~CPage() override { DestroyWindow(); }
};

/// A thread with a page; the page's commands end at the thread.
class CPageThread : public CWinThread
{
    DECLARE_DYNCREATE(CPageThread)

public:
    std::string heard;
    LRESULT unhandled = -1;

    BOOL InitInstance() override
    {
        CPage page(NULL);
        page.SendMessage(WM_COMMAND, threadCommandId, 0);
        unhandled = page.SendMessage(WM_COMMAND, threadCommandId + 1, 0);
        return FALSE;
    }

protected:
    void OnCommandOfThread() { heard += "thread "; }
    DECLARE_MESSAGE_MAP()
};
IMPLEMENT_DYNCREATE(CPageThread, CWinThread)
BEGIN_MESSAGE_MAP(CPageThread, CWinThread)
    ON_COMMAND(threadCommandId, OnCommandOfThread)
END_MESSAGE_MAP()

} // namespace

TEST_CASE("a target that is no window handles commands")
{
    CDocumentLike target;
    CHECK(target.OnCmdMsg(commandId, CN_COMMAND, NULL, NULL) == TRUE);
    CHECK(target.done == 1);
    CHECK(target.OnCmdMsg(commandId + 1, CN_COMMAND, NULL, NULL) == FALSE);
    CHECK(target.IsKindOf(RUNTIME_CLASS(CCmdTarget)));
}

TEST_CASE("with a place for it the handler is named and not called")
{
    CDocumentLike target;
    AFX_CMDHANDLERINFO info{};
    CHECK(target.OnCmdMsg(commandId, CN_COMMAND, NULL, &info) == TRUE);
    CHECK(info.pTarget == &target);
    CHECK(info.pmf != NULL);
    CHECK(target.done == 0);
}

TEST_CASE("an update handler sets the state of a menu item")
{
    CDocumentLike target;
    CMenu menu;
    REQUIRE(menu.CreatePopupMenu());
    menu.AppendMenu(MF_STRING, commandId, _T("before"));
    CCmdUI ui;
    ui.m_nID = commandId;
    ui.m_pMenu = &menu;
    ui.m_nIndex = 0;
    const int update = static_cast<int>(CN_UPDATE_COMMAND_UI);

    target.enabled = FALSE;
    target.checked = true;
    CHECK(target.OnCmdMsg(commandId, update, &ui, NULL) == TRUE);
    const UINT state = menu.GetMenuState(0, MF_BYPOSITION);
    CHECK((state & MF_GRAYED) != 0);
    CHECK((state & MF_CHECKED) != 0);
    CString text;
    menu.GetMenuString(0, text, MF_BYPOSITION);
    CHECK(text == "updated");

    target.routesOn = true;
    CHECK(target.OnCmdMsg(commandId, update, &ui, NULL) == FALSE);
}

TEST_CASE("an update handler sets the state of a control")
{
    CDocumentLike target;
    COwner window;
    CButton box;
    REQUIRE(
        box.Create(_T("before"), WS_CHILD | BS_CHECKBOX, CRect(0, 0, 50, 20), &window, commandId));
    target.checked = true;
    target.enabled = FALSE;
    window.UpdateDialogControls(&target, FALSE);
    CHECK(box.GetCheck() == BST_CHECKED);
    CHECK_FALSE(box.IsWindowEnabled());
    CString text;
    box.GetWindowText(text);
    CHECK(text == "updated");
}

TEST_CASE("push buttons without a handler are disabled on demand")
{
    CDocumentLike target;
    COwner window;
    CButton known;
    CButton unknown;
    REQUIRE(known.Create(_T(""), WS_CHILD, CRect(0, 0, 50, 20), &window, commandId));
    REQUIRE(unknown.Create(_T(""), WS_CHILD, CRect(0, 20, 50, 40), &window, commandId + 7));
    window.UpdateDialogControls(&target, FALSE);
    CHECK(unknown.IsWindowEnabled());
    window.UpdateDialogControls(&target, TRUE);
    CHECK(known.IsWindowEnabled());
    CHECK_FALSE(unknown.IsWindowEnabled());
}

TEST_CASE("a disabled command is not carried out, though its accelerator is pressed")
{
    CUpdating window;
    window.SendMessage(WM_COMMAND, MAKEWPARAM(commandId, 1));
    CHECK(window.done == 1);
    window.enabled = FALSE;
    CHECK(window.SendMessage(WM_COMMAND, MAKEWPARAM(commandId, 1)) == TRUE);
    CHECK(window.done == 1);
}

TEST_CASE("a command that a dialog lacks goes on to its owner")
{
    COwner owner;
    CPage page(&owner);
    CHECK(page.SendMessage(WM_COMMAND, commandId, 0) == TRUE);
    CHECK(calls == "owner ");
}

TEST_CASE("a command that neither dialog nor owner handles goes on to the thread's object")
{
    auto* thread = static_cast<CPageThread*>(
        AfxBeginThread(RUNTIME_CLASS(CPageThread), THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED));
    REQUIRE(thread != NULL);
    thread->m_bAutoDelete = FALSE;
    thread->ResumeThread();
    REQUIRE(::WaitForSingleObject(thread->m_hThread, 10000) == WAIT_OBJECT_0);
    CHECK(thread->heard == "thread ");
    CHECK(thread->unhandled == 0);
    delete thread;
}

TEST_CASE("a click of a dialog's control is nobody else's business")
{
    COwner owner;
    CPage page(&owner);
    page.SendMessage(WM_COMMAND, MAKEWPARAM(controlId, BN_CLICKED),
                     reinterpret_cast<LPARAM>(page.GetDlgItem(controlId)->m_hWnd));
    CHECK(calls.empty());
}
