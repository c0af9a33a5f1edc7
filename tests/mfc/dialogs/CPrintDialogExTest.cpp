#include <afxdlgs.h>

#include <doctest/doctest.h>

#include "testing/GdiObjects.h"

#include "tests/mfc/ControlHost.h"
#include "tests/mfc/dialogs/Printer.h"

using namespace umbra::testing;

TEST_CASE("the flags of the newer dialog tell what is to be printed")
{
    CPrintDialogEx dialog;
    CHECK(dialog.m_pdex.nStartPage == START_PAGE_GENERAL);
    CHECK(dialog.PrintAll());
    CHECK_FALSE(dialog.PrintRange());
    dialog.m_pdex.Flags |= PD_CURRENTPAGE | PD_COLLATE;
    CHECK(dialog.PrintCurrentPage());
    CHECK(dialog.PrintCollate());
    CHECK_FALSE(dialog.PrintAll());
    dialog.m_pdex.Flags = PD_SELECTION;
    CHECK(dialog.PrintSelection());
    CHECK_FALSE(dialog.PrintCurrentPage());
    dialog.m_pdex.Flags = PD_PAGENUMS;
    CHECK(dialog.PrintRange());
    CHECK_FALSE(dialog.PrintAll());
}

TEST_CASE("the newer dialog's printer is known by its names, settings and device context")
{
    const BalancedGdi gdi;
    CPrintDialogEx dialog;
    dialog.m_pdex.nCopies = 7;
    CHECK(dialog.GetCopies() == 7);
    CHECK(dialog.GetDriverName().IsEmpty());
    CHECK(dialog.GetDevMode() == NULL);
    CHECK(dialog.CreatePrinterDC() == NULL);
    dialog.m_pdex.hDevNames = MakePrinterNames();
    dialog.m_pdex.hDevMode = MakePrinterMode(4);
    CHECK(dialog.GetDriverName() == _T("DISPLAY"));
    CHECK(dialog.GetDeviceName() == _T("Paper"));
    CHECK(dialog.GetPortName() == _T("LPT9:"));
    CHECK(dialog.GetCopies() == 4);
    const HDC context = dialog.CreatePrinterDC();
    REQUIRE(context != NULL);
    CHECK(dialog.GetPrinterDC() == context);
    CHECK(::DeleteDC(context));
    ::GlobalFree(dialog.m_pdex.hDevNames);
    ::GlobalFree(dialog.m_pdex.hDevMode);
    CHECK_MESSAGE(gdi.IsBalanced(), gdi.Describe());
}

TEST_CASE("without a printer the newer dialog chooses nothing")
{
    CPrintDialogEx defaults(PD_NOWARNING);
    CHECK(defaults.GetDefaults() == HasPrinter());
    if (HasPrinter())
        return;
    ControlHost host;
    CPrintDialogEx dialog(PD_ALLPAGES | PD_NOPAGENUMS | PD_NOWARNING, &host);
    const LeftDialogs left;
    const auto result = static_cast<HRESULT>(dialog.DoModal());
    CHECK((FAILED(result) || dialog.m_pdex.dwResultAction == PD_RESULT_CANCEL));
    CHECK(dialog.GetPrinterDC() == NULL);
    CHECK(::IsWindowEnabled(host));
}
