#include <afxdlgs.h>

#include <doctest/doctest.h>

#include "testing/MessageLog.h"
#include "testing/NextDialog.h"
#include "testing/Page.h"

#include "tests/mfc/ControlHost.h"
#include "tests/mfc/FailureCount.h"

using namespace umbra::testing;

namespace {

class CWatchedColorDialog : public CColorDialog
{
public:
    using CColorDialog::CColorDialog;
    int starts = 0, questions = 0;
    bool refusesOnce = false;
    bool fails = false; ///< Its functions throw, in turn the library's and a foreign exception.
    HWND window = NULL;

protected:
    BOOL OnInitDialog() override
    {
        ++starts;
        window = m_hWnd;
        if (fails)
            AfxThrowResourceException();
        return CColorDialog::OnInitDialog();
    }
    BOOL OnColorOK() override
    {
        ++questions;
        if (fails)
            throw 42;
        return refusesOnce && questions == 1;
    }
};

} // namespace

TEST_CASE("the colour dialog gives back the colour it began with")
{
    ControlHost host;
    CWatchedColorDialog dialog(RGB(0, 128, 255), 0, &host);
    bool ownerDisabled = false;
    HWND shown = NULL;
    NextDialog answer([&](HWND box) {
        ownerDisabled = !host.IsWindowEnabled();
        shown = box;
        Page(box).Click(IDOK);
    });
    CHECK(dialog.DoModal() == IDOK);
    REQUIRE(answer.HasRun());
    CHECK(ownerDisabled);
    CHECK(host.IsWindowEnabled());
    CHECK(dialog.starts == 1);
    CHECK(dialog.window == shown);
    CHECK(dialog.GetColor() == RGB(0, 128, 255));
    CHECK(dialog.m_hWnd == NULL);
}

TEST_CASE("exceptions in the functions of a common dialog do not go through the system's code")
{
    ControlHost host;
    CWatchedColorDialog dialog(RGB(1, 2, 3), 0, &host);
    dialog.fails = true;
    const FailureCount count;
    const UINT colorOk = ::RegisterWindowMessage(COLOROKSTRING);
    NextDialog answer([&](HWND box) {
        CHECK(count.failures == 1);
        CHECK(count.lastMessage == WM_INITDIALOG);
        CHECK(dialog.m_cc.lpfnHook(box, colorOk, 0, (LPARAM)&dialog.m_cc) == 0);
        CHECK(count.failures == 2);
        Page(box).Click(IDCANCEL);
    });
    CHECK(dialog.DoModal() == IDCANCEL);
    CHECK(answer.HasRun());
    CHECK(host.IsWindowEnabled());
    CHECK(dialog.m_hWnd == NULL);
}

TEST_CASE("Cancel leaves the colour dialog with IDCANCEL")
{
    ControlHost host;
    CColorDialog dialog(RGB(1, 2, 3), 0, &host);
    NextDialog answer([](HWND box) { Page(box).Click(IDCANCEL); });
    CHECK(dialog.DoModal() == IDCANCEL);
    CHECK(answer.HasRun());
}

TEST_CASE("the open colour dialog is told another colour, and OnColorOK may keep it open")
{
    // Wine's dialog does not take the colour and asks nobody, so the hook is asked directly.
    ControlHost host;
    CWatchedColorDialog dialog(RGB(1, 2, 3), CC_FULLOPEN, &host);
    dialog.refusesOnce = true;
    const UINT setColor = ::RegisterWindowMessage(SETRGBSTRING);
    const UINT colorOk = ::RegisterWindowMessage(COLOROKSTRING);
    NextDialog answer([&](HWND box) {
        {
            MessageLog log(box);
            dialog.SetCurrentColor(RGB(255, 255, 0));
            REQUIRE(log.Contains(setColor));
            CHECK(log.Last(setColor)->lParam == (LPARAM)RGB(255, 255, 0));
        }
        const LPARAM choice = (LPARAM)&dialog.m_cc;
        CHECK(dialog.m_cc.lpfnHook(box, colorOk, 0, choice) != 0);
        CHECK(dialog.m_cc.lpfnHook(box, colorOk, 0, choice) == 0);
        CHECK(dialog.questions == 2);
        Page(box).Click(IDCANCEL);
    });
    CHECK(dialog.DoModal() == IDCANCEL);
    CHECK(answer.HasRun());
}

TEST_CASE("the user's own colours are shared by all colour dialogs")
{
    COLORREF* const colors = CColorDialog::GetSavedCustomColors();
    REQUIRE(colors != NULL);
    CColorDialog dialog;
    CHECK(dialog.m_cc.lpCustColors == colors);
    const COLORREF former = colors[15];
    colors[15] = RGB(9, 8, 7);
    CHECK(CColorDialog::GetSavedCustomColors()[15] == RGB(9, 8, 7));
    colors[15] = former;
}
