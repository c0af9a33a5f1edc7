#include <afxdlgs.h>

#include <doctest/doctest.h>

#include "testing/GdiObjects.h"

#include "tests/mfc/ControlHost.h"
#include "tests/mfc/dialogs/Printer.h"

using namespace umbra::testing;

TEST_CASE("the flags tell what is to be printed")
{
    CPrintDialog dialog(FALSE);
    CHECK((dialog.m_pd.Flags & PD_RETURNDC) != 0);
    CHECK((dialog.m_pd.Flags & PD_PRINTSETUP) == 0);
    CHECK(dialog.PrintAll());
    CHECK_FALSE(dialog.PrintCollate());
    CHECK(dialog.GetFromPage() == -1);
    CHECK(dialog.GetToPage() == -1);

    dialog.m_pd.Flags |= PD_PAGENUMS | PD_COLLATE;
    dialog.m_pd.nFromPage = 2;
    dialog.m_pd.nToPage = 5;
    CHECK(dialog.PrintRange());
    CHECK_FALSE(dialog.PrintAll());
    CHECK(dialog.PrintCollate());
    CHECK(dialog.GetFromPage() == 2);
    CHECK(dialog.GetToPage() == 5);
    dialog.m_pd.Flags = PD_SELECTION;
    CHECK(dialog.PrintSelection());
    CHECK_FALSE(dialog.PrintAll());

    const CPrintDialog setup(TRUE);
    CHECK((setup.m_pd.Flags & PD_PRINTSETUP) != 0);
    CHECK((setup.m_pd.Flags & PD_RETURNDC) == 0);
}

TEST_CASE("the chosen printer is known by its names, settings and device context")
{
    const BalancedGdi gdi;
    CPrintDialog dialog(FALSE);
    dialog.m_pd.nCopies = 7;
    CHECK(dialog.GetDevMode() == NULL);
    CHECK(dialog.GetCopies() == 7);
    CHECK(dialog.GetDeviceName().IsEmpty());
    CHECK(dialog.CreatePrinterDC() == NULL);

    dialog.m_pd.hDevNames = MakePrinterNames();
    dialog.m_pd.hDevMode = MakePrinterMode(3);
    CHECK(dialog.GetDriverName() == _T("DISPLAY"));
    CHECK(dialog.GetDeviceName() == _T("Paper"));
    CHECK(dialog.GetPortName() == _T("LPT9:"));
    CHECK(dialog.GetCopies() == 3);
    dialog.m_pd.Flags &= ~PD_USEDEVMODECOPIES;
    CHECK(dialog.GetCopies() == 7);
    const LPDEVMODE mode = dialog.GetDevMode();
    REQUIRE(mode != NULL);
    CHECK(mode->dmCopies == 3);
    ::GlobalUnlock(dialog.m_pd.hDevMode);

    const HDC context = dialog.CreatePrinterDC();
    REQUIRE(context != NULL);
    CHECK(dialog.GetPrinterDC() == context);
    CHECK(::DeleteDC(context));
    ::GlobalFree(dialog.m_pd.hDevNames);
    ::GlobalFree(dialog.m_pd.hDevMode);
    CHECK_MESSAGE(gdi.IsBalanced(), gdi.Describe());
}

TEST_CASE("without a printer there are no defaults, and the dialog chooses nothing")
{
    CPrintDialog defaults(FALSE, PD_NOWARNING);
    CHECK(defaults.GetDefaults() == HasPrinter());
    if (HasPrinter()) {
        CHECK_FALSE(defaults.GetDeviceName().IsEmpty());
        return;
    }
    CHECK(::CommDlgExtendedError() == PDERR_NODEFAULTPRN);
    CHECK(defaults.m_pd.hDevNames == NULL);
    ControlHost host;
    CPrintDialog dialog(FALSE, PD_ALLPAGES | PD_NOWARNING, &host);
    const LeftDialogs left;
    CHECK(dialog.DoModal() == IDCANCEL);
    CHECK(::IsWindowEnabled(host));
}
