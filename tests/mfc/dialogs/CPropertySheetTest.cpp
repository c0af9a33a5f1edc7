#include <afxdlgs.h>
#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/Input.h"
#include "testing/NextDialog.h"
#include "testing/Page.h"
#include "testing/Pump.h"

#include "tests/mfc/ControlHost.h"
#include "tests/mfc/LittleMemory.h"
#include "tests/mfc/Throws.h"

#include <new>
#include <string>
#include <vector>

using namespace umbra::testing;

namespace {

constexpr int fieldId = 501;

/// A page with a field for a number from 0 to 9, that writes down what happens.
class CNumberPage : public CPropertyPage
{
public:
    explicit CNumberPage(LPCTSTR title)
        : template_(0, 0, 150, 80, WS_CHILD | WS_CAPTION | DS_3DLOOK | WS_TABSTOP, title)
    {
        template_.Edit(fieldId, _T(""), 10, 10, 60, 14);
        m_psp.dwFlags |= PSP_DLGINDIRECT;
        m_psp.pResource = template_.Get();
    }

    int number = 3;
    bool acceptsCancel = true;
    LRESULT next = 0;
    std::vector<std::string> events;

    int CountOf(const char* event) const
    {
        return static_cast<int>(std::count(events.begin(), events.end(), event));
    }
    void Enter(LPCTSTR text) { SetDlgItemText(fieldId, text); }

    BOOL OnSetActive() override
    {
        events.push_back("active");
        return CPropertyPage::OnSetActive();
    }
    BOOL OnKillActive() override
    {
        events.push_back("kill");
        return CPropertyPage::OnKillActive();
    }
    BOOL OnApply() override
    {
        events.push_back("apply");
        return CPropertyPage::OnApply();
    }
    void OnOK() override { events.push_back("ok"); }
    void OnReset() override
    {
        events.push_back("reset");
        CPropertyPage::OnReset();
    }
    void OnCancel() override { events.push_back("cancel"); }
    BOOL OnQueryCancel() override { return acceptsCancel; }
    LRESULT OnWizardNext() override
    {
        events.push_back("next");
        return next;
    }
    BOOL OnWizardFinish() override
    {
        events.push_back("finish");
        return TRUE;
    }
    BOOL OnInitDialog() override
    {
        events.push_back("init");
        return CPropertyPage::OnInitDialog();
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CPropertyPage::DoDataExchange(pDX);
        DDX_Text(pDX, fieldId, number);
        DDV_MinMaxInt(pDX, number, 0, 9);
    }
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct)
    {
        events.push_back("create");
        return CPropertyPage::OnCreate(lpCreateStruct);
    }
    afx_msg LRESULT OnSiblingQuestion(WPARAM wParam, LPARAM) { return wParam == 7 ? 77 : 0; }
    DECLARE_MESSAGE_MAP()

private:
    DialogTemplate template_;
};
BEGIN_MESSAGE_MAP(CNumberPage, CPropertyPage)
    ON_WM_CREATE()
    ON_MESSAGE(PSM_QUERYSIBLINGS, &CNumberPage::OnSiblingQuestion)
END_MESSAGE_MAP()

/// A sheet that sees whether its owner is back before its window goes.
class CWatchedSheet : public CPropertySheet
{
public:
    using CPropertySheet::CPropertySheet;
    HWND owner = NULL;
    bool ownerEnabledAtEnd = false;
    HWND activeAtEnd = NULL;
    bool fails = false; ///< An exception comes out of its loop.

    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        if (fails)
            AfxThrowResourceException();
        return CPropertySheet::PreTranslateMessage(pMsg);
    }
    BOOL DestroyWindow() override
    {
        ownerEnabledAtEnd = ::IsWindowEnabled(owner) != FALSE;
        activeAtEnd = ::GetActiveWindow();
        return CPropertySheet::DestroyWindow();
    }
};

struct TwoPages
{
    ControlHost host;
    CNumberPage first{_T("First")}, second{_T("Second")};
    CWatchedSheet sheet{_T("The sheet"), &host};

    TwoPages()
    {
        sheet.AddPage(&first);
        sheet.AddPage(&second);
        sheet.owner = host.m_hWnd;
    }
    /// Runs the steps in the open sheet.
    INT_PTR Run(const std::function<void(Page&)>& steps)
    {
        bool hasRun = false;
        NextDialog answer([&](HWND box) {
            hasRun = true;
            Page page(box);
            steps(page);
        });
        const INT_PTR result = sheet.DoModal();
        CHECK(hasRun);
        return result;
    }
};

} // namespace

TEST_CASE("a sheet shows its first page, and OK applies what was entered")
{
    TwoPages two;
    CHECK(two.sheet.GetPageCount() == 2);
    bool ownerDisabled = false;
    const INT_PTR result = two.Run([&](Page& box) {
        ownerDisabled = !two.host.IsWindowEnabled();
        CHECK(two.sheet.m_hWnd == box.Handle());
        CHECK(box.Title() == _T("The sheet"));
        CHECK(two.sheet.GetActivePage() == &two.first);
        CHECK(two.first.GetDlgItemInt(fieldId) == 3);
        CHECK(two.second.m_hWnd == NULL);
        two.first.Enter(_T("8"));
        box.Click(IDOK);
    });
    CHECK(result == IDOK);
    CHECK(ownerDisabled);
    CHECK(two.host.IsWindowEnabled());
    CHECK(two.sheet.ownerEnabledAtEnd);
    CHECK(two.sheet.activeAtEnd == two.host.m_hWnd);
    CHECK(two.first.number == 8);
    CHECK(two.first.CountOf("create") == 1);
    CHECK(two.first.CountOf("init") == 1);
    CHECK(two.first.CountOf("apply") == 1);
    CHECK(two.first.CountOf("ok") == 1);
    CHECK(two.first.m_hWnd == NULL);
    CHECK(two.sheet.m_hWnd == NULL);
}

TEST_CASE("an exception that ends the loop of a sheet leaves owner and sheet usable")
{
    TwoPages two;
    two.sheet.fails = true;
    {
        // Where another message comes first, nobody waits for a dialog afterwards.
        const NextDialog wake([](HWND box) { ::PostMessage(box, WM_NULL, 0, 0); });
        CHECK(Throws<CResourceException>([&] { two.sheet.DoModal(); }));
    }
    CHECK(two.host.IsWindowEnabled());
    CHECK(CWnd::GetActiveWindow() == &two.host);
    CHECK(two.sheet.m_hWnd == NULL);
    CHECK(two.first.m_hWnd == NULL);
    two.sheet.fails = false;
    CHECK(two.Run([](Page& box) { box.Click(IDCANCEL); }) == IDCANCEL);
}

TEST_CASE("a sheet for which there is too little memory leaves its owner usable")
{
    TwoPages two;
    int sheetsWithoutPage = 0;
    for (int block = 1, missing = 1; missing != 0; ++block) {
        CAPTURE(block);
        two.first.events.clear();
        INT_PTR result = -1;
        {
            const auto close = [](HWND box) { ::PostMessage(box, WM_CLOSE, 0, 0); };
            const NextDialog first(close), second(close); // One may tell what has failed.
            const OneBlockMissing memory(block);
            try {
                result = two.sheet.DoModal();
            } catch (const std::bad_alloc&) {
            }
            missing = memory.Failed();
        }
        CHECK(two.host.IsWindowEnabled());
        CHECK(two.sheet.m_hWnd == NULL);
        CHECK(two.first.m_hWnd == NULL);
        // What fails while the system makes a page does not come out of the system's call.
        sheetsWithoutPage += result == IDCANCEL && two.first.CountOf("create") == 0;
    }
    CHECK(sheetsWithoutPage > 0);
}

TEST_CASE("a sheet that is ended while it is made has no loop")
{
    ControlHost host;
    CNumberPage page(_T("page"));
    struct CEnding : CPropertySheet
    {
        using CPropertySheet::CPropertySheet;
        BOOL OnInitDialog() override
        {
            const BOOL result = CPropertySheet::OnInitDialog();
            EndDialog(17);
            return result;
        }
    } sheet(_T("sheet"), &host);
    sheet.AddPage(&page);
    CHECK(sheet.DoModal() == 17);
    CHECK(host.IsWindowEnabled());
    CHECK(sheet.m_hWnd == NULL);
}

TEST_CASE("the window above the owner of a sheet is disabled, too, and enabled again")
{
    TwoPages two;
    CWnd popup;
    REQUIRE(popup.CreateEx(0, AfxRegisterWndClass(0), _T("owner"), WS_POPUP | WS_VISIBLE, 60, 60,
                           200, 100, two.host.m_hWnd, NULL));
    CPropertySheet sheet(_T("sheet"), &popup);
    sheet.AddPage(&two.first);
    bool enabledMeanwhile = true;
    NextDialog answer([&](HWND box) {
        enabledMeanwhile = popup.IsWindowEnabled() || two.host.IsWindowEnabled();
        Page(box).Click(IDCANCEL);
    });
    CHECK(sheet.DoModal() == IDCANCEL);
    CHECK_FALSE(enabledMeanwhile);
    CHECK(popup.IsWindowEnabled());
    CHECK(two.host.IsWindowEnabled());
    popup.DestroyWindow();
}

TEST_CASE("Cancel resets the pages and leaves the data alone")
{
    TwoPages two;
    const INT_PTR result = two.Run([&](Page& box) {
        two.first.Enter(_T("8"));
        box.Click(IDCANCEL);
    });
    CHECK(result == IDCANCEL);
    CHECK(two.first.number == 3);
    CHECK(two.first.CountOf("reset") == 1);
    CHECK(two.first.CountOf("cancel") == 1);
    CHECK(two.first.CountOf("apply") == 0);
}

TEST_CASE("a page may refuse Cancel")
{
    TwoPages two;
    two.first.acceptsCancel = false;
    bool stayed = false;
    const INT_PTR result = two.Run([&](Page& box) {
        box.Click(IDCANCEL);
        stayed = ::IsWindowVisible(box.Handle()) && two.sheet.GetActivePage() == &two.first;
        two.first.acceptsCancel = true;
        box.Click(IDCANCEL);
    });
    CHECK(stayed);
    CHECK(result == IDCANCEL);
}

TEST_CASE("the close box is Cancel")
{
    TwoPages two;
    const INT_PTR result = two.Run([&](Page& box) { ::SendMessage(box.Handle(), WM_CLOSE, 0, 0); });
    CHECK(result == IDCANCEL);
    CHECK(two.first.CountOf("reset") == 1);
}

TEST_CASE("a page with wrong data does not let go")
{
    TwoPages two;
    const INT_PTR result = two.Run([&](Page& box) {
        two.first.Enter(_T("12"));
        NextDialog complaint([](HWND message) { Page(message).Click(IDOK); });
        two.sheet.SetActivePage(1);
        CHECK(complaint.HasRun());
        CHECK(two.sheet.GetActiveIndex() == 0);
        two.first.Enter(_T("5"));
        CHECK(two.sheet.SetActivePage(&two.second));
        CHECK(two.sheet.GetActiveIndex() == 1);
        CHECK(two.sheet.GetActivePage() == &two.second);
        box.Click(IDOK);
    });
    CHECK(result == IDOK);
    CHECK(two.first.number == 5);
    CHECK(two.second.CountOf("init") == 1);
    CHECK(two.second.CountOf("apply") == 1);
}

TEST_CASE("a page that is shown again shows the data of now")
{
    TwoPages two;
    two.Run([&](Page& box) {
        two.sheet.SetActivePage(1);
        two.first.number = 6;
        two.sheet.SetActivePage(0);
        CHECK(two.first.GetDlgItemInt(fieldId) == 6);
        box.Click(IDCANCEL);
    });
    CHECK(two.first.CountOf("active") == 2);
}

TEST_CASE("a modified page enables Apply, which applies and stays")
{
    TwoPages two;
    two.Run([&](Page& box) {
        const HWND apply = box.Control(ID_APPLY_NOW);
        CHECK_FALSE(::IsWindowEnabled(apply));
        two.first.SetModified();
        CHECK(::IsWindowEnabled(apply));
        two.first.Enter(_T("7"));
        box.Click(ID_APPLY_NOW);
        CHECK(two.first.number == 7);
        CHECK(::IsWindowVisible(box.Handle()));
        CHECK_FALSE(::IsWindowEnabled(apply));
        two.first.SetModified();
        two.first.SetModified(FALSE);
        CHECK_FALSE(::IsWindowEnabled(apply));
        box.Click(IDCANCEL);
    });
}

TEST_CASE("a page asks its siblings")
{
    TwoPages two;
    two.Run([&](Page& box) {
        two.sheet.SetActivePage(1);
        CHECK(two.second.QuerySiblings(7, 0) == 77);
        CHECK(two.second.QuerySiblings(8, 0) == 0);
        box.Click(IDCANCEL);
    });
}

TEST_CASE("Tab walks through the controls of the page, Escape is Cancel")
{
    TwoPages two;
    const INT_PTR result = two.Run([&](Page& box) {
        ::SetFocus(::GetDlgItem(two.first.m_hWnd, fieldId));
        PressKey(VK_TAB);
        CHECK(::GetFocus() != ::GetDlgItem(two.first.m_hWnd, fieldId));
        CHECK(::IsChild(box.Handle(), ::GetFocus()));
        PressKey(VK_ESCAPE);
    });
    CHECK(result == IDCANCEL);
}

TEST_CASE("pages are added and removed while the sheet is open")
{
    TwoPages two;
    CNumberPage third(_T("Third"));
    two.Run([&](Page& box) {
        two.sheet.AddPage(&third);
        CHECK(two.sheet.GetPageCount() == 3);
        REQUIRE(two.sheet.GetTabControl() != NULL);
        CHECK(two.sheet.GetTabControl()->GetItemCount() == 3);
        CHECK(two.sheet.GetPageIndex(&third) == 2);
        CHECK(two.sheet.GetPage(2) == &third);
        two.sheet.RemovePage(&third);
        CHECK(two.sheet.GetTabControl()->GetItemCount() == 2);
        CHECK(two.sheet.GetPageIndex(&third) == -1);
        box.Click(IDCANCEL);
    });
}

TEST_CASE("a page that there is not is neither given, shown nor removed")
{
    TwoPages two;
    const auto check = [&] {
        for (const int index : {-1, 2, INT_MAX}) {
            CAPTURE(index);
            CHECK(two.sheet.GetPage(index) == NULL);
            CHECK_FALSE(two.sheet.SetActivePage(index));
            two.sheet.RemovePage(index);
            CHECK(two.sheet.GetPageCount() == 2);
            CHECK(two.sheet.GetActivePage() == &two.first);
        }
    };
    check();
    two.Run([&](Page& box) {
        check();
        box.Click(IDCANCEL);
    });
}

TEST_CASE("a derived sheet may leave closing to the base")
{
    class CAsking : public CPropertySheet
    {
    public:
        using CPropertySheet::CPropertySheet;
        int closings = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message != WM_CLOSE)
                return CPropertySheet::WindowProc(message, wParam, lParam);
            ++closings;
            CPropertySheet::OnClose();
            return 0;
        }
    };
    ControlHost host;
    CNumberPage page(_T("page"));
    CAsking sheet(_T("sheet"), &host);
    sheet.AddPage(&page);
    NextDialog answer([](HWND box) { ::SendMessage(box, WM_CLOSE, 0, 0); });
    CHECK(sheet.DoModal() == IDCANCEL);
    CHECK(sheet.closings == 1);
}

TEST_CASE("EndDialog and PressButton end a sheet")
{
    TwoPages two;
    CHECK(two.Run([&](Page&) { two.sheet.EndDialog(4711); }) == 4711);
    CHECK(two.Run([&](Page&) { two.sheet.PressButton(PSBTN_OK); }) == IDOK);
}

TEST_CASE("a sheet starts with the page that was chosen, and with its title")
{
    TwoPages two;
    two.sheet.SetActivePage(1);
    two.sheet.SetTitle(_T("Another"));
    two.Run([&](Page& box) {
        CHECK(two.sheet.GetActivePage() == &two.second);
        CHECK(box.Title() == _T("Another"));
        two.sheet.SetTitle(_T("A third"));
        CHECK(box.Title() == _T("A third"));
        box.Click(IDCANCEL);
    });
}

TEST_CASE("a wizard goes from page to page and ends with Finish")
{
    TwoPages two;
    two.sheet.SetWizardMode();
    const INT_PTR result = two.Run([&](Page& box) {
        two.sheet.SetWizardButtons(PSWIZB_NEXT);
        PumpMessages();
        two.first.next = -1;
        box.Click(ID_WIZNEXT);
        CHECK(two.sheet.GetActivePage() == &two.first);
        two.first.next = 0;
        box.Click(ID_WIZNEXT);
        CHECK(two.sheet.GetActivePage() == &two.second);
        two.sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_FINISH);
        PumpMessages();
        box.Click(ID_WIZFINISH);
    });
    CHECK(result == ID_WIZFINISH);
    CHECK(two.first.CountOf("next") == 2);
    CHECK(two.second.CountOf("finish") == 1);
}

TEST_CASE("a modeless sheet has no buttons and is closed by EndDialog")
{
    TwoPages two;
    REQUIRE(two.sheet.Create(&two.host));
    PumpMessages();
    CHECK(two.sheet.IsWindowVisible());
    CHECK(two.host.IsWindowEnabled());
    CHECK_FALSE(two.sheet.GetDlgItem(IDOK)->IsWindowVisible());
    CHECK_FALSE(two.sheet.GetDlgItem(IDCANCEL)->IsWindowVisible());
    CHECK(two.sheet.GetActivePage() == &two.first);
    two.sheet.EndDialog(0);
    CHECK(two.sheet.m_hWnd == NULL);
    CHECK(two.first.m_hWnd == NULL);
}

TEST_CASE("a modeless sheet may be a child of another window")
{
    TwoPages two;
    REQUIRE(two.sheet.Create(&two.host, WS_CHILD | WS_VISIBLE, 0));
    CHECK((two.sheet.GetStyle() & WS_CHILD) != 0);
    CHECK(::GetParent(two.sheet.m_hWnd) == two.host.m_hWnd);
    two.sheet.DestroyWindow();
}

TEST_CASE("a sheet takes the pictures of a wizard")
{
    const auto watermark = reinterpret_cast<HBITMAP>(1);
    const auto palette = reinterpret_cast<HPALETTE>(2);
    const auto header = reinterpret_cast<HBITMAP>(3);
    const CPropertySheet plain(_T("Plain"), NULL, 1, NULL);
    CHECK(plain.m_psh.nStartPage == 1);
    CHECK((plain.m_psh.dwFlags & (PSH_WATERMARK | PSH_HEADER)) == 0);
    CPropertySheet sheet(_T("Pictures"), NULL, 2, watermark, palette, header);
    CHECK(sheet.m_psh.nStartPage == 2);
    CHECK(sheet.m_psh.hbmWatermark == watermark);
    CHECK(sheet.m_psh.hplWatermark == palette);
    CHECK(sheet.m_psh.hbmHeader == header);
    const DWORD wanted =
        PSH_WATERMARK | PSH_USEHBMWATERMARK | PSH_USEHPLWATERMARK | PSH_HEADER | PSH_USEHBMHEADER;
    CHECK((sheet.m_psh.dwFlags & wanted) == wanted);
    sheet.Construct(_T("Plain again"));
    CHECK(sheet.m_psh.hbmWatermark == NULL);
    CHECK((sheet.m_psh.dwFlags & wanted) == 0);
}
