#include <afxdlgs.h>

#include <doctest/doctest.h>

#include "testing/GdiObjects.h"

#include "tests/mfc/ControlHost.h"
#include "tests/mfc/dialogs/Printer.h"

using namespace umbra::testing;

TEST_CASE("margins, paper and printer are what the system has filled in")
{
    const BalancedGdi gdi;
    CPageSetupDialog dialog;
    CHECK((dialog.m_psd.Flags & PSD_MARGINS) != 0);
    CHECK(dialog.GetDevMode() == NULL);
    CHECK(dialog.CreatePrinterDC() == NULL);
    dialog.m_psd.rtMargin = {1, 2, 3, 4};
    dialog.m_psd.rtMinMargin = {5, 6, 7, 8};
    dialog.m_psd.ptPaperSize = {2100, 2970};
    CRect margins, least;
    dialog.GetMargins(margins, least);
    CHECK(margins == CRect(1, 2, 3, 4));
    CHECK(least == CRect(5, 6, 7, 8));
    least.SetRectEmpty();
    dialog.GetMargins(NULL, least);
    CHECK(least == CRect(5, 6, 7, 8));
    CHECK(dialog.GetPaperSize() == CSize(2100, 2970));

    dialog.m_psd.hDevNames = MakePrinterNames();
    dialog.m_psd.hDevMode = MakePrinterMode(1);
    CHECK(dialog.GetDriverName() == _T("DISPLAY"));
    CHECK(dialog.GetDeviceName() == _T("Paper"));
    CHECK(dialog.GetPortName() == _T("LPT9:"));
    REQUIRE(dialog.GetDevMode() != NULL);
    ::GlobalUnlock(dialog.m_psd.hDevMode);
    const HDC context = dialog.CreatePrinterDC();
    CHECK(::DeleteDC(context));
    ::GlobalFree(dialog.m_psd.hDevNames);
    ::GlobalFree(dialog.m_psd.hDevMode);
    CHECK_MESSAGE(gdi.IsBalanced(), gdi.Describe());
}

TEST_CASE("the sample page is drawn by the object that the dialog is of")
{
    class CDrawnSetup : public CPageSetupDialog
    {
    public:
        WORD paper = 0, flags = 0;
        UINT message = 0;
        HDC context = NULL;
        CRect area;
        UINT PreDrawPage(WORD wPaper, WORD wFlags, LPPAGESETUPDLG) override
        {
            paper = wPaper;
            flags = wFlags;
            return 0;
        }
        UINT OnDrawPage(CDC* pDC, UINT nMessage, LPRECT lpRect) override
        {
            context = pDC->m_hDC;
            message = nMessage;
            area = *lpRect;
            return 1;
        }
    };
    CDrawnSetup dialog;
    ControlHost box; // Stands for the system's dialog, with the sample page in it.
    CStatic sample;
    REQUIRE(sample.Create(_T(""), shownChild, CRect(0, 0, 50, 50), &box));
    const HWND window = box.Detach();
    REQUIRE(dialog.Attach(window));
    const LPPAGEPAINTHOOK hook = dialog.m_psd.lpfnPagePaintHook;
    REQUIRE(hook != NULL);
    CHECK(hook(window, WM_PSD_PAGESETUPDLG, MAKEWPARAM(9, 3),
               reinterpret_cast<LPARAM>(&dialog.m_psd)) == 0);
    CHECK(dialog.paper == 9);
    CHECK(dialog.flags == 3);
    CRect area(1, 2, 3, 4);
    const CClientDC dc(&sample);
    CHECK(hook(sample, WM_PSD_MARGINRECT, reinterpret_cast<WPARAM>(dc.m_hDC),
               reinterpret_cast<LPARAM>(&area)) == 1);
    CHECK(dialog.message == WM_PSD_MARGINRECT);
    CHECK(dialog.context == dc.m_hDC);
    CHECK(dialog.area == area);
    CHECK(hook(::GetDesktopWindow(), WM_PSD_MARGINRECT, 0, 0) == 0);
    dialog.Detach();
    box.Attach(window);
}

TEST_CASE("without a printer the dialog for the page changes nothing")
{
    if (HasPrinter())
        return;
    ControlHost host;
    CPageSetupDialog dialog(PSD_MARGINS | PSD_NOWARNING, &host);
    dialog.m_psd.rtMargin = {1, 2, 3, 4};
    const LeftDialogs left;
    CHECK(dialog.DoModal() == IDCANCEL);
    CHECK(dialog.GetDeviceName().IsEmpty());
    CHECK(::IsWindowEnabled(host));
}
