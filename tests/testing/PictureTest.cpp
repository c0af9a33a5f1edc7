#include "testing/Picture.h"

#include "tests/Folders.h"

#include "testing/Canvas.h"

#include "tests/Folders.h"

#include <doctest/doctest.h>

#include <cstdio>

using namespace umbra::testing;

namespace {

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);
constexpr COLORREF odd = RGB(1, 2, 3);

} // namespace

TEST_CASE("a canvas shows what was painted on it, colour by colour, rows from the top")
{
    Canvas canvas(6, 4, red);
    ::SetPixelV(canvas.Dc(), 2, 1, odd);
    const Picture picture = canvas.ToPicture();
    CHECK(picture.Width() == 6);
    CHECK(picture.Height() == 4);
    CHECK(picture.At(2, 1) == odd);
    CHECK(picture.At(2, 2) == red);
    CHECK(picture.At(6, 0) == CLR_INVALID);
    CHECK(picture.At(0, -1) == CLR_INVALID);
    CHECK(picture.CountOf(red) == 23);
    CHECK(picture.Contains(odd));
    CHECK_FALSE(picture.Contains(blue));
}

TEST_CASE("pictures compare pixel by pixel and tell the first difference")
{
    const Picture one(5, 5, red);
    Picture two = one;
    CHECK(one == two);
    CHECK(one.Compare(two) == "the same");
    two.Set(3, 2, odd);
    two.Set(4, 4, odd);
    CHECK(one != two);
    CHECK(one.CountDifferences(two) == 2);
    CHECK(one.Compare(two) == "2 pixels differ, first (3, 2): #FF0000 instead of #010203");
    CHECK(one.CountDifferences(Picture(4, 5, red)) == -1);
    CHECK(one != Picture(4, 5, red));
    CHECK(one.Compare(Picture(4, 5, red)) == "5 x 5 instead of 4 x 5 pixels");
}

TEST_CASE("a part of a picture and the bounds of what differs from the ground")
{
    Picture picture(10, 8, red);
    CHECK(picture.BoundsOfOthers(red).right == 0);
    picture.Set(3, 2, blue);
    picture.Set(7, 5, odd);
    const RECT bounds = picture.BoundsOfOthers(red);
    CHECK(bounds.left == 3);
    CHECK(bounds.top == 2);
    CHECK(bounds.right == 8);
    CHECK(bounds.bottom == 6);
    const Picture part = picture.Crop(bounds);
    CHECK(part.Width() == 5);
    CHECK(part.Height() == 4);
    CHECK(part.At(0, 0) == blue);
    CHECK(part.At(4, 3) == odd);
}

TEST_CASE("a picture of a window is what the screen shows")
{
    HWND window = ::CreateWindowA("Static", "", WS_POPUP | WS_VISIBLE | SS_BLACKRECT, 10, 10, 30,
                                  20, nullptr, nullptr, nullptr, nullptr);
    ::UpdateWindow(window);
    const Picture before = Picture::OfWindow(window);
    CHECK(before.Width() == 30);
    CHECK(before.Height() == 20);
    CHECK(before.CountOf(::GetSysColor(COLOR_3DDKSHADOW)) == 600);
    HDC dc = ::GetDC(window);
    ::SetPixelV(dc, 4, 5, odd);
    ::ReleaseDC(window, dc);
    const Picture after = Picture::OfWindow(window);
    CHECK(after.At(4, 5) == odd);
    CHECK(after.CountDifferences(before) == 1);
    ::DestroyWindow(window);
}

TEST_CASE("a picture of a bitmap of few colours has the colours of its palette")
{
    HDC memory = ::CreateCompatibleDC(nullptr);
    HBITMAP bitmap = ::CreateBitmap(3, 3, 1, 1, nullptr);
    HGDIOBJ before = ::SelectObject(memory, bitmap);
    ::PatBlt(memory, 0, 0, 3, 3, BLACKNESS);
    ::SetPixelV(memory, 1, 1, RGB(255, 255, 255));
    ::SelectObject(memory, before);
    ::DeleteDC(memory);
    const Picture picture = Picture::OfBitmap(bitmap);
    ::DeleteObject(bitmap);
    CHECK(picture.At(1, 1) == RGB(255, 255, 255));
    CHECK(picture.CountOf(RGB(0, 0, 0)) == 8);
}

TEST_CASE("an invalid bitmap gives an empty picture, which cannot be saved")
{
    const Picture picture = Picture::OfBitmap(nullptr);
    CHECK(picture.IsEmpty());
    CHECK_FALSE(picture.SavePng(_T("empty.png")));
}

TEST_CASE("a saved picture is a PNG file of its size")
{
    const TString path = TemporaryPath(_T("umbra-picture-test.png"));
    REQUIRE(Picture(300, 7, red).SavePng(path.c_str()));
    unsigned char head[24] = {};
    FILE* file = _tfopen(path.c_str(), _T("rb"));
    REQUIRE(file != nullptr);
    CHECK(std::fread(head, 1, sizeof head, file) == sizeof head);
    std::fclose(file);
    ::DeleteFile(path.c_str());
    CHECK(std::string(reinterpret_cast<char*>(head) + 1, 3) == "PNG");
    CHECK((head[18] << 8 | head[19]) == 300);
    CHECK((head[22] << 8 | head[23]) == 7);
}

TEST_CASE("a picture that is put over another is cut to it")
{
    Picture picture(3, 2, RGB(255, 0, 0));
    picture.Paste(Picture(2, 2, RGB(0, 255, 0)), 2, -1);
    CHECK(picture.At(2, 0) == RGB(0, 255, 0));
    CHECK(picture.CountOf(RGB(0, 255, 0)) == 1);
    CHECK(picture.CountOf(RGB(255, 0, 0)) == 5);
}
