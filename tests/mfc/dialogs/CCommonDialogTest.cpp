#include <afxdlgs.h>

#include <doctest/doctest.h>

#include "testing/NextDialog.h"
#include "testing/Page.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

namespace {

/// A common dialog that writes down what reaches it.
class CWatchedDialog : public CColorDialog
{
public:
    using CColorDialog::CColorDialog;
    int starts = 0, confirmations = 0, cancellations = 0;
    HWND window = NULL;

protected:
    BOOL OnInitDialog() override
    {
        ++starts;
        window = m_hWnd;
        return CColorDialog::OnInitDialog();
    }
    void OnOK() override
    {
        ++confirmations;
        CColorDialog::OnOK();
    }
    void OnCancel() override
    {
        ++cancellations;
        CColorDialog::OnCancel();
    }
};

/// Shows the dialog and clicks one of its buttons.
INT_PTR ShowAndClick(CCommonDialog& dialog, int button)
{
    NextDialog answer([button](HWND box) { Page(box).Click(button); });
    const INT_PTR result = dialog.DoModal();
    CHECK(answer.HasRun());
    return result;
}

} // namespace

TEST_CASE("the dialogs of the system are common dialogs, and dialogs")
{
    CColorDialog colour;
    CFontDialog font;
    CFileDialog file(TRUE);
    for (const CObject* dialog : {static_cast<CObject*>(&colour), static_cast<CObject*>(&font),
                                  static_cast<CObject*>(&file)}) {
        CHECK(dialog->IsKindOf(RUNTIME_CLASS(CCommonDialog)));
        CHECK(dialog->IsKindOf(RUNTIME_CLASS(CDialog)));
    }
}

TEST_CASE("OnOK and OnCancel are asked, and leave the end to the system's dialog")
{
    ControlHost host;
    CWatchedDialog dialog(RGB(1, 2, 3), 0, &host);
    CHECK(ShowAndClick(dialog, IDOK) == IDOK);
    CHECK(dialog.confirmations == 1);
    CHECK(dialog.cancellations == 0);
    CHECK(ShowAndClick(dialog, IDCANCEL) == IDCANCEL);
    CHECK(dialog.confirmations == 1);
    CHECK(dialog.cancellations == 1);
    CHECK(dialog.starts == 2);
}

TEST_CASE("what a modal dialog covers is disabled meanwhile")
{
    ControlHost host;
    CWatchedDialog dialog(RGB(1, 2, 3), 0, &host);
    bool enabled = true;
    NextDialog answer([&](HWND box) {
        enabled = host.IsWindowEnabled();
        Page(box).Click(IDCANCEL);
    });
    CHECK(dialog.DoModal() == IDCANCEL);
    REQUIRE(answer.HasRun());
    CHECK_FALSE(enabled);
    CHECK(host.IsWindowEnabled());
}

TEST_CASE("a common dialog shown over another one has a window of its own")
{
    ControlHost host;
    CWatchedDialog below(RGB(1, 2, 3), 0, &host);
    CWatchedDialog above(RGB(4, 5, 6), 0, &below);
    NextDialog answer([&](HWND box) {
        CHECK(below.m_hWnd == box);
        CHECK(ShowAndClick(above, IDOK) == IDOK);
        CHECK(above.starts == 1);
        CHECK(above.window != box);
        CHECK(above.m_hWnd == nullptr);
        CHECK(below.m_hWnd == box);
        Page(box).Click(IDCANCEL);
    });
    CHECK(below.DoModal() == IDCANCEL);
    REQUIRE(answer.HasRun());
    CHECK(below.starts == 1);
}

TEST_CASE("a dialog without its hook gets no window, nor does it take that of the next one")
{
    ControlHost host;
    CWatchedDialog unhooked(RGB(1, 2, 3), 0, &host);
    unhooked.m_cc.Flags &= ~static_cast<DWORD>(CC_ENABLEHOOK);
    CHECK(ShowAndClick(unhooked, IDOK) == IDOK);
    CHECK(unhooked.starts == 0);

    // The same hook, called for a window of which no object waits.
    CWatchedDialog hooked(RGB(4, 5, 6), 0, &host);
    const HWND stranger =
        ::CreateWindow(_T("STATIC"), _T(""), WS_POPUP, 0, 0, 10, 10, NULL, NULL, NULL, NULL);
    CHECK(hooked.m_cc.lpfnHook(stranger, WM_INITDIALOG, 0, 0) == FALSE);
    CHECK(CWnd::FromHandlePermanent(stranger) == nullptr);
    CHECK(unhooked.starts == 0);
    ::DestroyWindow(stranger);
    CHECK(ShowAndClick(hooked, IDOK) == IDOK);
    CHECK(hooked.starts == 1);
    CHECK(unhooked.starts == 0);
}
