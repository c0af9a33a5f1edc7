#include <afxdlgs.h>

#include <doctest/doctest.h>

#include "testing/GdiObjects.h"

#include "tests/mfc/dialogs/Printer.h"

using namespace umbra::testing;

TEST_CASE("the selected printer is the one that the program prints on")
{
    const BalancedGdi gdi;
    {
        CWinApp app(_T("Printing"));
        const HGLOBAL names = MakePrinterNames();
        const HGLOBAL mode = MakePrinterMode(2);
        app.SelectPrinter(names, mode);
        PRINTDLG printer{};
        REQUIRE(app.GetPrinterDeviceDefaults(&printer));
        CHECK(printer.hDevNames == names);
        CHECK(printer.hDevMode == mode);
        CDC dc;
        REQUIRE(app.CreatePrinterDC(dc));
        CHECK(dc.GetDeviceCaps(TECHNOLOGY) == DT_RASDISPLAY);

        app.SelectPrinter(MakePrinterNames(), NULL, FALSE);
        CHECK(::GlobalSize(names) > 0); // Not freed.
        ::GlobalFree(names);
        ::GlobalFree(mode);
    }
    CHECK_MESSAGE(gdi.IsBalanced(), gdi.Describe());
}

TEST_CASE("a program without a printer is told so")
{
    CWinApp app(_T("Printing"));
    PRINTDLG printer{};
    CHECK(app.GetPrinterDeviceDefaults(&printer) == HasPrinter());
    CDC dc;
    CHECK(app.CreatePrinterDC(dc) == HasPrinter());
}

TEST_CASE("the dialog for printing starts with the selected printer and leaves it selected")
{
    CWinApp app(_T("Printing"));
    const HGLOBAL names = MakePrinterNames();
    app.SelectPrinter(names, NULL);
    CPrintDialog dialog(TRUE);
    dialog.m_pd.Flags |= PD_RETURNDEFAULT; // Fails where a printer is named already.
    CHECK(app.DoPrintDialog(&dialog) == IDCANCEL);
    CHECK(::CommDlgExtendedError() == PDERR_RETDEFFAILURE);
    CHECK(dialog.m_pd.hDevNames == names);
    PRINTDLG printer{};
    REQUIRE(app.GetPrinterDeviceDefaults(&printer));
    CHECK(printer.hDevNames == names);
}
