#include "tests/mfc/graphics/WindowContext.h"

TEST_CASE("a window context paints on the whole window and goes back with its object")
{
    CheckThatItPaints<CWindowDC>(::GetWindowRect);
}

TEST_CASE("a window context without a window is the screen's")
{
    CheckThatItIsTheScreens<CWindowDC>();
}

TEST_CASE("a window context of a window that is gone throws a resource exception")
{
    CheckThatItNeedsItsWindow<CWindowDC>();
}
