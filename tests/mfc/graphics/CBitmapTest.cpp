#include <afxwin.h>

#include <doctest/doctest.h>

#include "testing/Canvas.h"
#include "testing/GdiObjects.h"

using namespace umbra::testing;

TEST_CASE("a bitmap resource is loaded by number")
{
    BalancedGdi balance;
    {
        CBitmap bitmap;
        REQUIRE(bitmap.LoadBitmap(9101));
        BITMAP data{};
        CHECK(bitmap.GetBitmap(&data) == sizeof(data));
        CHECK(data.bmWidth == 8);
        CHECK(data.bmHeight == 4);
        const Picture picture = Picture::OfBitmap(bitmap);
        CHECK(picture.At(0, 0) == RGB(255, 0, 255));
        CHECK(picture.At(0, 1) == RGB(255, 0, 0));
        CHECK(picture.At(7, 3) == RGB(0, 0, 255));
    }
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("a bitmap resource that does not exist leaves the object empty")
{
    CBitmap bitmap;
    CHECK_FALSE(bitmap.LoadBitmap(9199));
    CHECK_FALSE(bitmap.LoadBitmap(_T("NoSuchBitmap")));
    CHECK(bitmap.m_hObject == nullptr);
}

TEST_CASE("a mapped bitmap has its colours exchanged")
{
    COLORMAP exchange = {RGB(255, 0, 0), RGB(0, 128, 0)};
    CBitmap mapped;
    REQUIRE(mapped.LoadMappedBitmap(9103, 0, &exchange, 1));
    const Picture picture = Picture::OfBitmap(mapped);
    CHECK(picture.At(0, 0) == RGB(0, 128, 0));
    CHECK(picture.At(1, 0) == RGB(0, 0, 255));
}

TEST_CASE("the bits of a bitmap are set and read")
{
    CBitmap bitmap;
    REQUIRE(bitmap.CreateBitmap(2, 2, 1, 32, nullptr));
    const DWORD written[] = {0x00112233, 0x00445566, 0x00778899, 0x00AABBCC};
    CHECK(bitmap.SetBitmapBits(sizeof(written), written) == sizeof(written));
    DWORD read[4] = {};
    CHECK(bitmap.GetBitmapBits(sizeof(read), read) == sizeof(read));
    CHECK(memcmp(read, written, sizeof(read)) == 0);

    BITMAP data{};
    bitmap.GetBitmap(&data);
    CBitmap twin;
    CHECK(twin.CreateBitmapIndirect(&data));
    CHECK(twin != bitmap);
}

TEST_CASE("a compatible bitmap has the format of its context")
{
    Canvas canvas(5, 5);
    CDC* dc = CDC::FromHandle(canvas.Dc());
    CBitmap bitmap;
    REQUIRE(bitmap.CreateCompatibleBitmap(dc, 7, 3));
    BITMAP data{};
    bitmap.GetBitmap(&data);
    CHECK(data.bmWidth == 7);
    CHECK(data.bmHeight == 3);
    CHECK(data.bmBitsPixel == 32);
    CBitmap discardable;
    CHECK(discardable.CreateDiscardableBitmap(dc, 7, 3));
}

TEST_CASE("a bitmap remembers its dimension")
{
    CBitmap bitmap;
    REQUIRE(bitmap.CreateBitmap(2, 2, 1, 32, nullptr));
    CHECK(bitmap.SetBitmapDimension(120, 80) == CSize(0, 0));
    CHECK(bitmap.GetBitmapDimension() == CSize(120, 80));
    CHECK(bitmap.SetBitmapDimension(1, 2) == CSize(120, 80));
}
