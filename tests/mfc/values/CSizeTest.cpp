#include <atltypes.h>

#include <doctest/doctest.h>

TEST_CASE("sizes are made from numbers, structures and packed words")
{
    CHECK(CSize() == CSize(0, 0));
    CHECK(CSize(SIZE{1, 2}) == CSize(1, 2));
    CHECK(CSize(POINT{3, 4}) == CSize(3, 4));
    CHECK(CSize(static_cast<DWORD>(MAKELONG(5, 6))) == CSize(5, 6));
    CHECK(CSize(static_cast<DWORD>(MAKELONG(-5, -6))) == CSize(-5, -6));
    CHECK(sizeof(CSize) == sizeof(SIZE));
}

TEST_CASE("sizes are compared, added and subtracted")
{
    CSize s(10, 20);
    CHECK(s != CSize(10, 21));
    CHECK(s != CSize(11, 20));
    s += CSize(1, 2);
    CHECK(s == CSize(11, 22));
    s -= CSize(2, 4);
    CHECK(s == CSize(9, 18));
    CHECK(s + CSize(1, 2) == CSize(10, 20));
    CHECK(s - CSize(1, 2) == CSize(8, 16));
    CHECK(-s == CSize(-9, -18));
    CHECK(s + CPoint(1, 2) == CPoint(10, 20));
    CHECK(s - CPoint(1, 2) == CPoint(8, 16));
}

TEST_CASE("a size moves a rectangle")
{
    const CRect rect(1, 2, 3, 4);
    CHECK(CSize(10, 20) + &rect == CRect(11, 22, 13, 24));
    CHECK(CSize(1, 2) - &rect == CRect(0, 0, 2, 2));
}
