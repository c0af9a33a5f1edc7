#include <afxdialogex.h>

#include <doctest/doctest.h>

#include "testing/Page.h"
#include "testing/Pump.h"

using namespace umbra::testing;

namespace {

const COLORREF ownColor = RGB(30, 140, 210);
constexpr UINT redBitmap = 9104; // 4 by 4 pixels.
const COLORREF red = RGB(255, 0, 0);

class CPlainDialog : public CDialogEx
{
public:
    CPlainDialog() : CDialogEx(0u) {}
};

DialogTemplate Template()
{
    DialogTemplate page(0, 0, 120, 60);
    page.Label(41, _T(""), 20, 20, 40, 10);
    return page;
}

} // namespace

TEST_CASE("a dialog shows its background colour, also behind its labels")
{
    CPlainDialog dialog;
    dialog.SetBackgroundColor(ownColor, FALSE);
    Page page(dialog, Template());
    REQUIRE(page.IsOpen());
    const Picture picture = page.Show();
    CHECK(picture.CountOf(ownColor) == picture.Width() * picture.Height());

    dialog.SetBackgroundColor((COLORREF)-1);
    CHECK(page.Show().CountOf(ownColor) == 0);
}

TEST_CASE("a dialog shows its background image in a corner or all over")
{
    CPlainDialog dialog;
    Page page(dialog, Template());
    REQUIRE(page.IsOpen());
    REQUIRE(dialog.SetBackgroundImage(redBitmap, CDialogEx::BACKGR_BOTTOMRIGHT));
    Picture picture = page.Show();
    CHECK(picture.CountOf(red) == 16);
    CHECK(picture.At(picture.Width() - 1, picture.Height() - 1) == red);

    REQUIRE(dialog.SetBackgroundImage(redBitmap, CDialogEx::BACKGR_TOPLEFT));
    picture = page.Show();
    CHECK(picture.CountOf(red) == 16);
    CHECK(picture.At(0, 0) == red);

    REQUIRE(dialog.SetBackgroundImage(redBitmap));
    picture = page.Show();
    CHECK(picture.CountOf(red) == picture.Width() * picture.Height());

    dialog.SetBackgroundImage((HBITMAP)NULL);
    CHECK(page.Show().CountOf(red) == 0);
    CHECK_FALSE(dialog.SetBackgroundImage(9199u));
}

TEST_CASE("a derived dialog may name the handlers of the base")
{
    class CDerived : public CDialogEx
    {
    public:
        CDerived() : CDialogEx(0u) {}
        int erased = 0;
        int coloured = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            CDC* dc = message == WM_ERASEBKGND || message == WM_CTLCOLORSTATIC
                          ? CDC::FromHandle(reinterpret_cast<HDC>(wParam))
                          : NULL;
            if (message == WM_ERASEBKGND) {
                ++erased;
                return CDialogEx::OnEraseBkgnd(dc);
            }
            if (message == WM_CTLCOLORSTATIC) {
                ++coloured;
                CWnd* label = CWnd::FromHandle(reinterpret_cast<HWND>(lParam));
                return reinterpret_cast<LRESULT>(CDialogEx::OnCtlColor(dc, label, CTLCOLOR_STATIC));
            }
            return CDialogEx::WindowProc(message, wParam, lParam);
        }
    } dialog;
    dialog.SetBackgroundColor(ownColor, FALSE);
    Page page(dialog, Template());
    REQUIRE(page.IsOpen());
    const Picture picture = page.Show();
    CHECK(picture.CountOf(ownColor) == picture.Width() * picture.Height());
    CHECK(dialog.erased > 0);
    CHECK(dialog.coloured > 0);
}
