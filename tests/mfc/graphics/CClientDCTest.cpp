#include "tests/mfc/graphics/WindowContext.h"

TEST_CASE("a client context paints on the client area and goes back with its object")
{
    CheckThatItPaints<CClientDC>(::GetClientRect);
}

TEST_CASE("a client context without a window is the screen's")
{
    CheckThatItIsTheScreens<CClientDC>();
}

TEST_CASE("a client context of a window that is gone throws a resource exception")
{
    CheckThatItNeedsItsWindow<CClientDC>();
}
