#include <afxwin.h>

#include <doctest/doctest.h>

#include "testing/Input.h"
#include "testing/NextDialog.h"
#include "testing/Page.h"
#include "testing/Pump.h"

#include <afxres.h>

#include <new>
#include <string>

#include "tests/mfc/LittleMemory.h"
#include "tests/mfc/Resources.h"

using namespace umbra::testing;

namespace {

int living = 0;

class CTestFrame : public CFrameWnd
{
    DECLARE_DYNCREATE(CTestFrame)

public:
    int actions = 0;
    bool failsClient = false;
    CStatic pane;

    CTestFrame() { ++living; }
    ~CTestFrame() override { --living; }

    BOOL PreCreateWindow(CREATESTRUCT& cs) override
    {
        cs.cx = 300;
        cs.cy = 200;
        return CFrameWnd::PreCreateWindow(cs);
    }

protected:
    BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext) override
    {
        pane.Create(_T(""), WS_CHILD | WS_VISIBLE, CRect(0, 0, 1, 1), this, AFX_IDW_PANE_FIRST);
        return !failsClient && CFrameWnd::OnCreateClient(lpcs, pContext);
    }
    void OnAction() { ++actions; }
    void OnUpdateChecked(CCmdUI* ui) { ui->SetCheck(1); }
    DECLARE_MESSAGE_MAP()
};
IMPLEMENT_DYNCREATE(CTestFrame, CFrameWnd)
BEGIN_MESSAGE_MAP(CTestFrame, CFrameWnd)
    ON_COMMAND(ID_ACTION, OnAction)
    ON_COMMAND(ID_CHECKED, OnAction)
    ON_UPDATE_COMMAND_UI(ID_CHECKED, OnUpdateChecked)
END_MESSAGE_MAP()

/// A frame with the resources of the test, destroyed at the end of the scope.
class ScopedFrame
{
public:
    ScopedFrame() : frame_(new CTestFrame) { made = frame_->LoadFrame(IDR_FRAME) != FALSE; }
    ~ScopedFrame()
    {
        if (made)
            frame_->DestroyWindow();
    }
    CTestFrame* operator->() const { return frame_; }
    CTestFrame* Get() const { return frame_; }
    bool made;

private:
    CTestFrame* frame_;
};

} // namespace

TEST_CASE("a frame takes title, menu and keys from one resource id")
{
    ScopedFrame frame;
    REQUIRE(frame.made);
    CString title;
    frame->GetWindowText(title);
    CHECK(title == "Frame of the test");
    CHECK(frame->GetTitle() == title);
    REQUIRE(frame->GetMenu() != NULL);
    CHECK(frame->GetMenu()->GetMenuItemCount() == 1);
    CHECK((frame->GetStyle() & WS_CAPTION) == WS_CAPTION);
    frame->SetTitle(_T("other"));
    frame->GetWindowText(title);
    CHECK(title == "other");
}

TEST_CASE("a frame deletes itself when its window is gone, also after a failed creation")
{
    living = 0;
    {
        ScopedFrame frame;
        CHECK(living == 1);
    }
    CHECK(living == 0);

    auto* failing = new CTestFrame;
    failing->failsClient = true;
    CHECK(failing->Create(NULL, _T("failing")) == FALSE);
    CHECK(living == 0);

    auto* menuless = new CTestFrame;
    CHECK(menuless->Create(NULL, _T(""), WS_OVERLAPPEDWINDOW, CFrameWnd::rectDefault, NULL,
                           _T("No menu of this name")) == FALSE);
    CHECK(living == 0);
}

TEST_CASE("a frame on the stack is destroyed like any window")
{
    living = 0;
    {
        CTestFrame frame;
        REQUIRE(frame.Create(NULL, _T("stack")));
    }
    CHECK(living == 0);
}

TEST_CASE("rectDefault leaves the place to the system")
{
    CHECK(CFrameWnd::rectDefault.left == CW_USEDEFAULT);
    auto* frame = new CFrameWnd;
    REQUIRE(frame->Create(NULL, _T("default")));
    CRect place;
    frame->GetWindowRect(&place);
    CHECK(place.Width() > 50);
    CHECK(place.Height() > 50);
    frame->DestroyWindow();
}

TEST_CASE("the accelerators of a frame send their commands")
{
    ScopedFrame frame;
    REQUIRE(frame.made);
    frame->ShowWindow(SW_SHOW);
    frame->SetForegroundWindow();
    CHECK(PressKey('A', VK_CONTROL));
    PumpMessages();
    CHECK(frame->actions == 1);
    CHECK(PressKey('A'));
    CHECK(frame->actions == 1);
}

TEST_CASE("menu items are stated before their menu opens")
{
    ScopedFrame frame;
    REQUIRE(frame.made);
    CMenu* popup = frame->GetMenu()->GetSubMenu(0);
    REQUIRE(popup != NULL);
    const auto handle = reinterpret_cast<WPARAM>(popup->m_hMenu);
    frame->SendMessage(WM_INITMENUPOPUP, handle, MAKELPARAM(0, FALSE));
    CHECK((popup->GetMenuState(ID_ACTION, MF_BYCOMMAND) & MF_GRAYED) == 0);
    CHECK((popup->GetMenuState(ID_UNHANDLED, MF_BYCOMMAND) & MF_GRAYED) != 0);
    CHECK((popup->GetMenuState(ID_CHECKED, MF_BYCOMMAND) & MF_CHECKED) != 0);

    popup->EnableMenuItem(ID_UNHANDLED, MF_BYCOMMAND | MF_ENABLED);
    frame->m_bAutoMenuEnable = FALSE;
    frame->SendMessage(WM_INITMENUPOPUP, handle, MAKELPARAM(0, FALSE));
    CHECK((popup->GetMenuState(ID_UNHANDLED, MF_BYCOMMAND) & MF_GRAYED) == 0);
}

TEST_CASE("the pane fills the client area, and follows it")
{
    ScopedFrame frame;
    REQUIRE(frame.made);
    const auto pane = [&] {
        CRect place;
        frame->pane.GetWindowRect(&place);
        frame->ScreenToClient(&place);
        return place;
    };
    CRect client;
    frame->GetClientRect(&client);
    CHECK(client.Width() > 0);
    CHECK(pane() == client);
    frame->MoveWindow(0, 0, 500, 400);
    frame->GetClientRect(&client);
    CHECK(pane() == client);
}

TEST_CASE("a modal state disables the frame and what it owns, and nests")
{
    ScopedFrame frame;
    REQUIRE(frame.made);
    CWnd popup;
    CWnd disabled;
    REQUIRE(popup.CreateEx(0, NULL, _T(""), WS_POPUP, CRect(0, 0, 9, 9), frame.Get(), 0));
    REQUIRE(disabled.CreateEx(0, NULL, _T(""), WS_POPUP | WS_DISABLED, CRect(0, 0, 9, 9),
                              frame.Get(), 0));
    frame->BeginModalState();
    frame->BeginModalState();
    CHECK(frame->InModalState());
    CHECK_FALSE(frame->IsWindowEnabled());
    CHECK_FALSE(popup.IsWindowEnabled());
    frame->EndModalState();
    CHECK_FALSE(popup.IsWindowEnabled());
    frame->EndModalState();
    CHECK_FALSE(frame->InModalState());
    CHECK(frame->IsWindowEnabled());
    CHECK(popup.IsWindowEnabled());
    CHECK_FALSE(disabled.IsWindowEnabled());
    popup.DestroyWindow();
    disabled.DestroyWindow();
}

TEST_CASE("a modal state for which there is too little memory leaves frame and windows in order")
{
    ScopedFrame frame;
    REQUIRE(frame.made);
    CWnd popup;
    REQUIRE(popup.CreateEx(0, NULL, _T(""), WS_POPUP, CRect(0, 0, 9, 9), frame.Get(), 0));
    int reported = 0;
    for (int block = 1, missing = 1; missing != 0; ++block) {
        const NextDialog answer([](HWND box) { Page(box).Click(IDOK); });
        bool begun = true;
        {
            const OneBlockMissing memory(block);
            try {
                frame->BeginModalState();
            } catch (const std::bad_alloc&) {
                begun = false;
            }
            missing = memory.Failed();
        }
        // What failed inside a call of the system's is told; it does not come out of that call.
        reported += answer.HasRun();
        CHECK((begun || !answer.HasRun()));
        CHECK(frame->InModalState() == begun);
        if (begun)
            frame->EndModalState();
        CHECK(frame->IsWindowEnabled());
        CHECK(popup.IsWindowEnabled());
    }
    CHECK(reported > 0);
    popup.DestroyWindow();
}

TEST_CASE("a child finds the frame it is in")
{
    ScopedFrame frame;
    REQUIRE(frame.made);
    CHECK(frame->pane.GetParentFrame() == frame.Get());
    CHECK(frame->pane.GetTopLevelFrame() == frame.Get());
    CHECK(frame->GetTopLevelFrame() == frame.Get());
    CHECK(frame->GetParentFrame() == NULL);
    CHECK(frame->GetActiveFrame() == frame.Get());
}

TEST_CASE("the prompt of a command is the first line of its string")
{
    ScopedFrame frame;
    REQUIRE(frame.made);
    CString prompt;
    frame->GetMessageString(ID_ACTION, prompt);
    CHECK(prompt == "Acts at once");
    frame->GetMessageString(ID_UNHANDLED, prompt);
    CHECK(prompt.IsEmpty());
}

TEST_CASE("frames are made through their run-time class")
{
    auto* frame = static_cast<CFrameWnd*>(RUNTIME_CLASS(CTestFrame)->CreateObject());
    REQUIRE(frame != NULL);
    CHECK(frame->IsKindOf(RUNTIME_CLASS(CFrameWnd)));
    CHECK(frame->IsKindOf(RUNTIME_CLASS(CWnd)));
    delete frame;
}
