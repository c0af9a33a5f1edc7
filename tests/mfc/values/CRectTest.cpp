#include <atltypes.h>

#include <doctest/doctest.h>

TEST_CASE("rectangles are made from sides, structures, points and sizes")
{
    const RECT sides = {1, 2, 30, 40};
    CHECK(CRect() == CRect(0, 0, 0, 0));
    CHECK(CRect(sides) == CRect(1, 2, 30, 40));
    CHECK(CRect(&sides) == CRect(1, 2, 30, 40));
    CHECK(CRect(CPoint(1, 2), CSize(3, 4)) == CRect(1, 2, 4, 6));
    CHECK(CRect(CPoint(1, 2), CPoint(3, 4)) == CRect(1, 2, 3, 4));
    CHECK(sizeof(CRect) == sizeof(RECT));
}

TEST_CASE("a rectangle tells its measures")
{
    const CRect r(10, 20, 40, 30);
    CHECK(r.Width() == 30);
    CHECK(r.Height() == 10);
    CHECK(r.Size() == CSize(30, 10));
    CHECK(r.TopLeft() == CPoint(10, 20));
    CHECK(r.BottomRight() == CPoint(40, 30));
    CHECK(r.CenterPoint() == CPoint(25, 25));
    CHECK(CRect(0, 0, 5, 5).CenterPoint() == CPoint(2, 2));
    CHECK(CRect(40, 30, 10, 20).Size() == CSize(-30, -10));
}

TEST_CASE("the corners of a rectangle may be written")
{
    CRect r(1, 2, 3, 4);
    r.TopLeft() = CPoint(-1, -2);
    r.BottomRight().Offset(10, 20);
    CHECK(r == CRect(-1, -2, 13, 24));
}

TEST_CASE("a rectangle goes where the system wants a pointer")
{
    CRect r;
    REQUIRE(::SetRect(r, 1, 2, 3, 4));
    CHECK(r == CRect(1, 2, 3, 4));
    const CRect constant(r);
    CHECK(::EqualRect(constant, r));
}

TEST_CASE("empty, null and hit rectangles")
{
    CHECK(CRect(1, 1, 1, 5).IsRectEmpty());
    CHECK(CRect(5, 1, 1, 5).IsRectEmpty());
    CHECK_FALSE(CRect(1, 1, 2, 2).IsRectEmpty());
    CHECK(CRect().IsRectNull());
    CHECK_FALSE(CRect(1, 1, 1, 1).IsRectNull());
    const CRect r(10, 10, 20, 20);
    CHECK(r.PtInRect(CPoint(10, 10)));
    CHECK(r.PtInRect(CPoint(19, 19)));
    CHECK_FALSE(r.PtInRect(CPoint(20, 19)));
    CHECK_FALSE(r.PtInRect(CPoint(19, 20)));
    CHECK_FALSE(r.PtInRect(CPoint(9, 10)));
}

TEST_CASE("rectangles are set, copied and compared")
{
    CRect r;
    r.SetRect(1, 2, 3, 4);
    CHECK(r == CRect(1, 2, 3, 4));
    CRect copy;
    copy.CopyRect(&r);
    CHECK(copy.EqualRect(&r));
    CHECK_FALSE(copy != r);
    copy = RECT{1, 2, 3, 5};
    CHECK(copy != r);
    CHECK_FALSE(copy == r);
    CHECK_FALSE(copy.EqualRect(&r));
    copy.SetRectEmpty();
    CHECK(copy.IsRectNull());
}

TEST_CASE("rectangles grow and shrink at their sides")
{
    const CRect start(10, 20, 30, 40);
    const auto changed = [&](auto change) {
        CRect r(start);
        change(r);
        return r;
    };
    const RECT sides = {1, 2, 3, 4};
    CHECK(changed([](CRect& r) { r.InflateRect(1, 2); }) == CRect(9, 18, 31, 42));
    CHECK(changed([](CRect& r) { r.InflateRect(CSize(1, 2)); }) == CRect(9, 18, 31, 42));
    CHECK(changed([&](CRect& r) { r.InflateRect(&sides); }) == CRect(9, 18, 33, 44));
    CHECK(changed([](CRect& r) { r.InflateRect(1, 2, 3, 4); }) == CRect(9, 18, 33, 44));
    CHECK(changed([](CRect& r) { r.DeflateRect(1, 2); }) == CRect(11, 22, 29, 38));
    CHECK(changed([](CRect& r) { r.DeflateRect(CSize(1, 2)); }) == CRect(11, 22, 29, 38));
    CHECK(changed([&](CRect& r) { r.DeflateRect(&sides); }) == CRect(11, 22, 27, 36));
    CHECK(changed([](CRect& r) { r.DeflateRect(1, 2, 3, 4); }) == CRect(11, 22, 27, 36));
    CHECK(changed([&](CRect& r) { r += &sides; }) == CRect(9, 18, 33, 44));
    CHECK(changed([&](CRect& r) { r -= &sides; }) == CRect(11, 22, 27, 36));
    CHECK(start + &sides == CRect(9, 18, 33, 44));
    CHECK(start - &sides == CRect(11, 22, 27, 36));
}

TEST_CASE("rectangles move")
{
    const CRect start(10, 20, 30, 40);
    const auto changed = [&](auto change) {
        CRect r(start);
        change(r);
        return r;
    };
    const CRect moved(11, 22, 31, 42);
    CHECK(changed([](CRect& r) { r.OffsetRect(1, 2); }) == moved);
    CHECK(changed([](CRect& r) { r.OffsetRect(CPoint(1, 2)); }) == moved);
    CHECK(changed([](CRect& r) { r.OffsetRect(CSize(1, 2)); }) == moved);
    CHECK(changed([](CRect& r) { r += CPoint(1, 2); }) == moved);
    CHECK(changed([](CRect& r) { r += CSize(1, 2); }) == moved);
    CHECK(changed([](CRect& r) { r -= CPoint(-1, -2); }) == moved);
    CHECK(changed([](CRect& r) { r -= CSize(-1, -2); }) == moved);
    CHECK(start + CPoint(1, 2) == moved);
    CHECK(start + CSize(1, 2) == moved);
    CHECK(start - CPoint(-1, -2) == moved);
    CHECK(start - CSize(-1, -2) == moved);
    CHECK(changed([](CRect& r) { r.MoveToX(0); }) == CRect(0, 20, 20, 40));
    CHECK(changed([](CRect& r) { r.MoveToY(0); }) == CRect(10, 0, 30, 20));
    CHECK(changed([](CRect& r) { r.MoveToXY(1, 2); }) == CRect(1, 2, 21, 22));
    CHECK(changed([](CRect& r) { r.MoveToXY(CPoint(1, 2)); }) == CRect(1, 2, 21, 22));
}

TEST_CASE("normalising swaps sides that are the wrong way round")
{
    CRect r(30, 40, 10, 20);
    r.NormalizeRect();
    CHECK(r == CRect(10, 20, 30, 40));
    r.NormalizeRect();
    CHECK(r == CRect(10, 20, 30, 40));
}

TEST_CASE("rectangles are intersected, united and subtracted")
{
    const CRect a(0, 0, 10, 10);
    const CRect b(5, 5, 15, 15);
    const CRect distant(100, 100, 110, 110);
    CHECK((a & b) == CRect(5, 5, 10, 10));
    CHECK((a | b) == CRect(0, 0, 15, 15));
    CHECK((a & distant).IsRectNull());
    CHECK((a | CRect()) == a);

    CRect r;
    CHECK(r.IntersectRect(&a, &b));
    CHECK(r == CRect(5, 5, 10, 10));
    CHECK_FALSE(r.IntersectRect(&a, &distant));
    CHECK(r.IsRectNull());
    CHECK(r.UnionRect(&a, &b));
    CHECK(r == CRect(0, 0, 15, 15));
    CHECK_FALSE(r.UnionRect(CRect(), CRect()));
    const CRect rightHalf(5, 0, 10, 10);
    CHECK(r.SubtractRect(&a, &rightHalf));
    CHECK(r == CRect(0, 0, 5, 10));
    CHECK(r.SubtractRect(&a, &b));
    CHECK(r == a);
    CHECK_FALSE(r.SubtractRect(&a, &a));

    r = a;
    r &= b;
    CHECK(r == CRect(5, 5, 10, 10));
    r |= distant;
    CHECK(r == CRect(5, 5, 110, 110));
}
