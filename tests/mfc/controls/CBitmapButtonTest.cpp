#include <afxext.h>

#include <doctest/doctest.h>

#include "testing/Picture.h"
#include "testing/Pump.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

namespace {

constexpr UINT redBitmap = 9104, blueBitmap = 9105, greenBitmap = 9106;
const COLORREF red = RGB(255, 0, 0), blue = RGB(0, 0, 255), green = RGB(0, 255, 0);
const CRect place(10, 10, 60, 40);

COLORREF Shown(CWnd& button)
{
    button.UpdateWindow();
    return Picture::OfWindow(button.m_hWnd).At(1, 1);
}

} // namespace

TEST_CASE("a bitmap button shows the bitmap of its state")
{
    ControlHost host;
    CBitmapButton button;
    REQUIRE(button.Create(_T(""), shownChild | BS_OWNERDRAW, place, &host, 7));
    REQUIRE(button.LoadBitmaps(redBitmap, blueBitmap, 0, greenBitmap));
    button.Invalidate();
    CHECK(Shown(button) == red);
    button.SetState(TRUE);
    CHECK(Shown(button) == blue);
    button.SetState(FALSE);
    CHECK(Shown(button) == red);
    button.EnableWindow(FALSE);
    CHECK(Shown(button) == green);
}

TEST_CASE("a bitmap button falls back on its normal bitmap")
{
    ControlHost host;
    CBitmapButton button;
    REQUIRE(button.Create(_T(""), shownChild | BS_OWNERDRAW, place, &host, 7));
    REQUIRE(button.LoadBitmaps(redBitmap));
    button.SetState(TRUE);
    CHECK(Shown(button) == red);
    button.EnableWindow(FALSE);
    CHECK(Shown(button) == red);
}

TEST_CASE("a bitmap that is missing makes LoadBitmaps fail")
{
    CBitmapButton button;
    CHECK_FALSE(button.LoadBitmaps(9199u));
    CHECK_FALSE(button.LoadBitmaps(redBitmap, 9199));
    CHECK(button.LoadBitmaps(redBitmap));
}

TEST_CASE("a bitmap button takes over a control with bitmaps named after its caption")
{
    ControlHost host;
    CWnd plain;
    REQUIRE(
        plain.CreateEx(0, _T("BUTTON"), _T("SIGNAL"), shownChild | BS_OWNERDRAW, place, &host, 7));
    plain.UnsubclassWindow();
    CBitmapButton button;
    REQUIRE(button.AutoLoad(7, &host));
    CRect size;
    button.GetWindowRect(size);
    CHECK(size.Size() == CSize(4, 4));
    button.Invalidate();
    CHECK(Shown(button) == red);
    button.SetState(TRUE);
    CHECK(Shown(button) == blue);
    CBitmapButton nobody;
    CHECK_FALSE(nobody.AutoLoad(8, &host));
}
