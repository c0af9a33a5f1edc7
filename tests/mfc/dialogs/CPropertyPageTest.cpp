#include <afxdlgs.h>
#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/MessageLog.h"
#include "testing/NextDialog.h"
#include "testing/Page.h"

#include "tests/mfc/ControlHost.h"
#include "tests/mfc/Resources.h"

#include <functional>
#include <utility>

using namespace umbra::testing;

namespace {

/// A page of the resources that counts what it is asked, and answers as it is told.
class CCountingPage : public CPropertyPage
{
public:
    CCountingPage() : CPropertyPage(IDD_PAGE) {}

    int exchanges = 0, applications = 0, backs = 0;
    BOOL applies = TRUE;
    LRESULT back = 0;

    BOOL OnApply() override
    {
        ++applications;
        return applies;
    }
    LRESULT OnWizardBack() override
    {
        ++backs;
        return back;
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        ++exchanges;
        CPropertyPage::DoDataExchange(pDX);
    }
};

/// Opens a sheet, runs the steps in it and cancels what they leave open.
INT_PTR Run(CPropertySheet& sheet, const std::function<void(Page&)>& steps)
{
    NextDialog answer([&](HWND box) {
        Page page(box);
        steps(page);
        if (page.IsOpen())
            sheet.PressButton(PSBTN_CANCEL);
    });
    const INT_PTR result = sheet.DoModal();
    CHECK(answer.HasRun());
    return result;
}

CString TabOf(CPropertySheet& sheet, int page)
{
    TCHAR text[64] = _T("");
    TCITEM item{};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = _countof(text);
    REQUIRE(sheet.GetTabControl() != nullptr);
    CHECK(sheet.GetTabControl()->GetItem(page, &item));
    return item.pszText;
}

} // namespace

TEST_CASE("a page is captioned by its template, by a string, or by its description")
{
    ControlHost host;
    CPropertyPage plain(IDD_PAGE);
    CPropertyPage named(MAKEINTRESOURCE(IDD_PAGE), IDS_PAGE);
    CPropertyPage described;
    described.Construct(IDD_PAGE);
    described.GetPSP().dwFlags |= PSP_USETITLE;
    described.GetPSP().pszTitle = _T("From the description");
    CHECK(&std::as_const(described).GetPSP() == &described.m_psp);

    CPropertySheet sheet(_T("Sheet"), &host);
    for (CPropertyPage* page : {&plain, &named, &described})
        sheet.AddPage(page);
    Run(sheet, [&](Page&) {
        CHECK(TabOf(sheet, 0) == "From the template");
        CHECK(TabOf(sheet, 1) == "From the strings");
        CHECK(TabOf(sheet, 2) == "From the description");
        CHECK(plain.GetDlgItem(IDC_NAME) != nullptr);
    });
}

TEST_CASE("by itself a page lets everything pass")
{
    CPropertyPage page(IDD_PAGE);
    CHECK(page.OnApply());
    CHECK(page.OnQueryCancel());
    CHECK(page.OnWizardBack() == 0);
    CHECK(page.OnWizardNext() == 0);
    CHECK(page.OnWizardFinish());
    page.SetModified(); // Without a window there is nobody to tell.
    CHECK(page.m_hWnd == nullptr);
}

TEST_CASE("the controls are filled once when the page opens, and again each time it comes back")
{
    ControlHost host;
    CCountingPage first;
    CCountingPage second;
    CPropertySheet sheet(_T("Sheet"), &host);
    sheet.AddPage(&first);
    sheet.AddPage(&second);
    Run(sheet, [&](Page&) {
        CHECK(first.exchanges == 1);
        sheet.SetActivePage(1);
        CHECK(first.exchanges == 2); // What is left is saved.
        CHECK(second.exchanges == 1);
        sheet.SetActivePage(0);
        CHECK(first.exchanges == 3);
    });
}

TEST_CASE("a page that does not apply keeps the sheet open")
{
    ControlHost host;
    CCountingPage page;
    page.applies = FALSE;
    CPropertySheet sheet(_T("Sheet"), &host);
    sheet.AddPage(&page);
    const INT_PTR result = Run(sheet, [&](Page& box) {
        box.Click(IDOK);
        CHECK(page.applications == 1);
        CHECK(::IsWindowVisible(box.Handle()));
        page.applies = TRUE;
        box.Click(IDOK);
    });
    CHECK(page.applications == 2);
    CHECK(result == IDOK);
}

TEST_CASE("only the sheet itself asks the page to apply")
{
    ControlHost host;
    CCountingPage page;
    CPropertySheet sheet(_T("Sheet"), &host);
    sheet.AddPage(&page);
    Run(sheet, [&](Page& box) {
        NMHDR note{};
        note.code = PSN_APPLY;
        note.hwndFrom = page.GetDlgItem(IDC_NAME)->m_hWnd;
        note.idFrom = IDC_NAME;
        page.SendMessage(WM_NOTIFY, IDC_NAME, reinterpret_cast<LPARAM>(&note));
        CHECK(page.applications == 0);
        note.hwndFrom = box.Handle();
        note.idFrom = 0;
        page.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&note));
        CHECK(page.applications == 1);
    });
}

TEST_CASE("a page tells its sheet of changes, and that there is no way back")
{
    ControlHost host;
    CCountingPage page;
    CPropertySheet sheet(_T("Sheet"), &host);
    sheet.AddPage(&page);
    Run(sheet, [&](Page& box) {
        MessageLog log(box.Handle());
        page.SetModified();
        REQUIRE(log.Contains(PSM_CHANGED));
        CHECK(log.Last(PSM_CHANGED)->wParam == reinterpret_cast<WPARAM>(page.m_hWnd));
        CHECK_FALSE(log.Contains(PSM_UNCHANGED));
        page.SetModified(FALSE);
        CHECK(log.Contains(PSM_UNCHANGED));
        CHECK_FALSE(log.Contains(PSM_CANCELTOCLOSE));
        page.CancelToClose();
        CHECK(log.Contains(PSM_CANCELTOCLOSE));
    });
}

TEST_CASE("a page of a wizard stays or goes back, as it answers")
{
    ControlHost host;
    CCountingPage first;
    CCountingPage second;
    CPropertySheet sheet(_T("Wizard"), &host);
    sheet.AddPage(&first);
    sheet.AddPage(&second);
    sheet.SetWizardMode();
    sheet.SetActivePage(1);
    Run(sheet, [&](Page& box) {
        sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_NEXT);
        PumpMessages();
        second.back = -1;
        box.Click(ID_WIZBACK);
        CHECK(sheet.GetActivePage() == &second);
        second.back = 0;
        box.Click(ID_WIZBACK);
        CHECK(sheet.GetActivePage() == &first);
        CHECK(second.backs == 2);
        CHECK(first.backs == 0);
    });
}

TEST_CASE("a wizard's inner page has a title and a subtitle of its own")
{
    CPropertyPage page(IDD_PAGE, 0, IDS_PAGE, IDS_PAGE);
    const DWORD both = PSP_USEHEADERTITLE | PSP_USEHEADERSUBTITLE;
    CHECK((page.m_psp.dwFlags & both) == both);
    CHECK(CString(page.m_psp.pszHeaderTitle) == _T("From the strings"));
    CHECK(CString(page.m_psp.pszHeaderSubTitle) == _T("From the strings"));
    page.Construct(MAKEINTRESOURCE(IDD_PAGE), 0, IDS_PAGE);
    CHECK((page.m_psp.dwFlags & both) == PSP_USEHEADERTITLE);
    page.Construct(IDD_PAGE);
    CHECK((page.m_psp.dwFlags & both) == 0);
    constexpr UINT missing = 9;
    const CPropertyPage without(IDD_PAGE, 0, missing, missing);
    CHECK((without.m_psp.dwFlags & both) == 0);
}
