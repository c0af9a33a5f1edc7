#include <afxwin.h>

#include <doctest/doctest.h>

#include "testing/Canvas.h"
#include "testing/GdiObjects.h"

#include <vector>

using namespace umbra::testing;

namespace {

CRect BoxOf(const CRgn& region)
{
    CRect box;
    region.GetRgnBox(&box);
    return box;
}

} // namespace

TEST_CASE("regions combine into others")
{
    BalancedGdi balance;
    {
        CRgn left;
        CRgn right;
        CRgn result;
        REQUIRE(left.CreateRectRgn(0, 0, 10, 10));
        REQUIRE(right.CreateRectRgn(5, 0, 15, 10));
        REQUIRE(result.CreateRectRgn(0, 0, 0, 0));
        CHECK(result.CombineRgn(&left, &right, RGN_AND) == SIMPLEREGION);
        CHECK(BoxOf(result) == CRect(5, 0, 10, 10));
        CHECK(result.CombineRgn(&left, &right, RGN_OR) == SIMPLEREGION);
        CHECK(BoxOf(result) == CRect(0, 0, 15, 10));
        CHECK(result.CombineRgn(&left, &right, RGN_XOR) == COMPLEXREGION);
        CHECK_FALSE(result.PtInRegion(7, 5));
        CHECK(result.PtInRegion(CPoint(12, 5)));
        CHECK(result.CombineRgn(&left, &left, RGN_DIFF) == NULLREGION);
        CHECK(result.CopyRgn(&right) == SIMPLEREGION);
        CHECK(result.EqualRgn(&right));
        CHECK_FALSE(result.EqualRgn(&left));
    }
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("a region moves, is set anew and is asked for points and rectangles")
{
    CRgn region;
    const CRect start(0, 0, 10, 10);
    REQUIRE(region.CreateRectRgnIndirect(&start));
    CHECK(region.OffsetRgn(5, 6) == SIMPLEREGION);
    CHECK(BoxOf(region) == CRect(5, 6, 15, 16));
    CHECK(region.OffsetRgn(CPoint(-5, -6)) == SIMPLEREGION);
    CHECK(BoxOf(region) == start);
    region.SetRectRgn(1, 2, 3, 4);
    CHECK(BoxOf(region) == CRect(1, 2, 3, 4));
    const CRect other(20, 20, 30, 30);
    region.SetRectRgn(&other);
    const CRect touching(29, 29, 40, 40);
    CHECK(region.RectInRegion(&touching));
    CHECK_FALSE(region.RectInRegion(&start));
}

TEST_CASE("round and polygonal regions leave their corners out")
{
    const CRect box(0, 0, 40, 40);
    CRgn ellipse;
    REQUIRE(ellipse.CreateEllipticRgnIndirect(&box));
    CRgn same;
    REQUIRE(same.CreateEllipticRgn(0, 0, 40, 40));
    CHECK(ellipse.EqualRgn(&same));
    CHECK(ellipse.PtInRegion(20, 20));
    CHECK_FALSE(ellipse.PtInRegion(1, 1));

    CRgn round;
    REQUIRE(round.CreateRoundRectRgn(0, 0, 40, 40, 10, 10));
    CHECK(round.PtInRegion(20, 1));
    CHECK_FALSE(round.PtInRegion(0, 0));

    POINT triangle[] = {{0, 0}, {40, 0}, {0, 40}};
    CRgn polygon;
    REQUIRE(polygon.CreatePolygonRgn(triangle, 3, ALTERNATE));
    CHECK(polygon.PtInRegion(5, 5));
    CHECK_FALSE(polygon.PtInRegion(39, 39));

    POINT two[] = {{0, 0}, {10, 0}, {10, 10}, {0, 10}, {20, 0}, {30, 0}, {30, 10}, {20, 10}};
    int counts[] = {4, 4};
    CRgn pair;
    REQUIRE(pair.CreatePolyPolygonRgn(two, counts, 2, ALTERNATE));
    CHECK(pair.PtInRegion(5, 5));
    CHECK_FALSE(pair.PtInRegion(15, 5));
    CHECK(pair.PtInRegion(25, 5));
}

TEST_CASE("the data of a region makes the same region again")
{
    CRgn region;
    REQUIRE(region.CreateRectRgn(0, 0, 20, 20));
    CRgn hole;
    REQUIRE(hole.CreateRectRgn(5, 5, 10, 10));
    CHECK(region.CombineRgn(&region, &hole, RGN_DIFF) == COMPLEXREGION);
    const int size = region.GetRegionData(nullptr, 0);
    REQUIRE(size > 0);
    std::vector<char> buffer(size);
    auto* data = reinterpret_cast<RGNDATA*>(buffer.data());
    CHECK(region.GetRegionData(data, size) == size);
    CRgn copy;
    REQUIRE(copy.CreateFromData(nullptr, size, data));
    CHECK(copy.EqualRgn(&region));
    CHECK_FALSE(copy.PtInRegion(7, 7));
}

TEST_CASE("a path becomes a region")
{
    Canvas canvas(20, 20);
    CDC* dc = CDC::FromHandle(canvas.Dc());
    dc->BeginPath();
    dc->Rectangle(2, 3, 12, 13);
    dc->EndPath();
    CRgn region;
    REQUIRE(region.CreateFromPath(dc));
    CHECK(BoxOf(region) == CRect(2, 3, 11, 12));
}
