#include "testing/Canvas.h"
#include "testing/GdiObjects.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

namespace {

constexpr COLORREF mark = RGB(9, 90, 200);

/// A parent's procedure that paints an owner-drawn button in a colour by its state.
LRESULT CALLBACK PaintItem(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_DRAWITEM)
        return ::DefWindowProcA(window, message, wParam, lParam);
    const auto* item = reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
    HBRUSH brush = ::CreateSolidBrush(item->itemState & ODS_SELECTED ? mark : RGB(1, 1, 1));
    ::FillRect(item->hDC, &item->rcItem, brush);
    ::DeleteObject(brush);
    return TRUE;
}

} // namespace

TEST_CASE("a canvas gives back all that it took")
{
    const BalancedGdi balance;
    {
        Canvas canvas(40, 40);
        canvas.Fill(mark);
        CHECK(canvas.ToPicture().CountOf(mark) == 1600);
    }
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("a control prints itself without being on the screen")
{
    HWND label = ::CreateWindowA("Static", "MMMM", WS_POPUP, 0, 0, 60, 30, nullptr, nullptr,
                                 nullptr, nullptr);
    const Picture picture = PrintControl(label, mark);
    CHECK(picture.Width() == 60);
    CHECK(picture.CountOf(mark) < 60 * 30);
    ::DestroyWindow(label);
}

TEST_CASE("an owner-drawn button is painted in the state that is asked for")
{
    HWND parent =
        ::CreateWindowA("Static", "", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr, nullptr, nullptr);
    ::SetWindowLongPtrA(parent, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(PaintItem));
    HWND button = ::CreateWindowA("Button", "", WS_CHILD | BS_OWNERDRAW, 0, 0, 20, 10, parent,
                                  nullptr, nullptr, nullptr);
    CHECK(DrawOwnerDrawnButton(button, ODS_SELECTED).CountOf(mark) == 200);
    CHECK(DrawOwnerDrawnButton(button, 0).CountOf(RGB(1, 1, 1)) == 200);
    ::DestroyWindow(parent);
}
