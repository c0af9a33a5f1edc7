#include <atltypes.h>

#include <doctest/doctest.h>

TEST_CASE("points are made from numbers, structures and messages")
{
    CHECK(CPoint() == CPoint(0, 0));
    CHECK(CPoint(POINT{1, 2}) == CPoint(1, 2));
    CHECK(CPoint(SIZE{3, 4}) == CPoint(3, 4));
    CHECK(CPoint(static_cast<LPARAM>(MAKELPARAM(5, 6))) == CPoint(5, 6));
    CHECK(CPoint(static_cast<LPARAM>(MAKELPARAM(-7, -8))) == CPoint(-7, -8));
    CHECK(sizeof(CPoint) == sizeof(POINT));
}

TEST_CASE("points are compared, moved and subtracted")
{
    CPoint p(10, 20);
    CHECK(p != CPoint(10, 21));
    CHECK(p != CPoint(11, 20));
    p.Offset(1, 2);
    CHECK(p == CPoint(11, 22));
    p.Offset(CPoint(1, 1));
    p.Offset(CSize(-2, -3));
    CHECK(p == CPoint(10, 20));
    p += CSize(1, 2);
    p += CPoint(3, 4);
    CHECK(p == CPoint(14, 26));
    p -= CSize(4, 6);
    CHECK(p == CPoint(10, 20));
    p -= CPoint(1, 2);
    CHECK(p == CPoint(9, 18));

    CHECK(p + CSize(1, 2) == CPoint(10, 20));
    CHECK(p - CSize(1, 2) == CPoint(8, 16));
    CHECK(p + CPoint(1, 2) == CPoint(10, 20));
    CHECK(p - CPoint(10, 20) == CSize(-1, -2));
    CHECK(-p == CPoint(-9, -18));
}

TEST_CASE("a point moves a rectangle")
{
    const CRect rect(1, 2, 3, 4);
    CHECK(CPoint(10, 20) + &rect == CRect(11, 22, 13, 24));
    CHECK(CPoint(1, 2) - &rect == CRect(0, 0, 2, 2));
}
