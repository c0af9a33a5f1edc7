#include "controls/Abandon.h"
#include "controls/KeyedPicture.h"

#include "tests/controls/LabelHost.h"

#include "shell/PictureLoader.h"

#include "testing/Canvas.h"
#include "testing/GdiObjects.h"
#include "testing/Picture.h"

#include <doctest/doctest.h>

using namespace umbra;
using namespace umbra::testing;

namespace {

const COLORREF green = RGB(20, 160, 60);
const COLORREF red = RGB(200, 30, 40);
const COLORREF black = RGB(0, 0, 0);
const COLORREF white = RGB(255, 255, 255);

/// A bitmap of 8 by 4 pixels: the left half in the key colour, the right half red. 32-bit ones have
/// `fourth` in their fourth bytes.
HBITMAP MakePicture(int bitsPerPixel, COLORREF key, BYTE fourth = 0)
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = 8;
    info.bmiHeader.biHeight = -4;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = static_cast<WORD>(bitsPerPixel);
    void* bits = nullptr;
    const HBITMAP bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const int bytes = bitsPerPixel / 8;
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 8; ++x) {
            const COLORREF color = x < 4 ? key : red;
            BYTE* pixel = static_cast<BYTE*>(bits) + (y * 8 + x) * bytes;
            pixel[0] = GetBValue(color);
            pixel[1] = GetGValue(color);
            pixel[2] = GetRValue(color);
            if (bytes == 4)
                pixel[3] = fourth;
        }
    }
    return bitmap;
}

/// What a part of the keyed picture gives over a background.
Picture Draw(CBitmap& picture, CBitmap& mask)
{
    const Canvas canvas(20, 10, green);
    DrawKeyedPicture(*CDC::FromHandle(canvas.Dc()), CRect(2, 3, 10, 7), mask, picture);
    return canvas.ToPicture();
}

} // namespace

TEST_CASE("pixels of the key colour let the background through, all others show")
{
    for (const COLORREF key : {black, RGB(255, 0, 255), RGB(1, 2, 3), white}) {
        for (const int depth : {24, 32}) {
            CAPTURE(key);
            CAPTURE(depth);
            CBitmap picture, mask;
            picture.Attach(MakePicture(depth, key));
            BuildKeyMask(picture, mask, key);
            const Picture shown = Draw(picture, mask);
            CHECK(shown.CountOf(red) == 4 * 4);
            CHECK(shown.At(6, 3) == red);
            CHECK(shown.At(9, 6) == red);
            CHECK(shown.At(5, 3) == green);
            CHECK(shown.CountOf(green) == 20 * 10 - 4 * 4);
        }
    }
}

TEST_CASE("the mask is right whatever stands in the fourth byte of a pixel")
{
    for (const BYTE fourth : {0, 1, 128, 255}) {
        CAPTURE(fourth);
        CBitmap picture, mask;
        picture.Attach(MakePicture(32, black, fourth));
        BuildKeyMask(picture, mask, black);
        const Picture shown = Draw(picture, mask);
        CHECK(shown.CountOf(red) == 4 * 4);
        CHECK(shown.CountOf(green) == 20 * 10 - 4 * 4);
    }
}

TEST_CASE("a loaded GIF is keyed by its black pixels")
{
    const HBITMAP loaded = LoadPictureBitmap(ImagePath(_T("Next.gif")).c_str());
    REQUIRE(loaded != nullptr);
    const Picture file = Picture::OfBitmap(loaded);
    CBitmap picture, mask;
    picture.Attach(loaded);
    BuildKeyMask(picture, mask, black);
    const Canvas canvas(19, 19, green);
    DrawKeyedPicture(*CDC::FromHandle(canvas.Dc()), CRect(0, 0, 19, 19), mask, picture);
    const Picture shown = canvas.ToPicture();
    int keyed = 0;
    for (int y = 0; y < 19; ++y) {
        for (int x = 0; x < 19; ++x) {
            const COLORREF expected = file.At(x, y) == black ? green : file.At(x, y);
            keyed += file.At(x, y) == black;
            CHECK(shown.At(x, y) == expected);
        }
    }
    CHECK(keyed > 20);
    CHECK(keyed < 19 * 19 - 20);
}

TEST_CASE("the mask is monochrome and of the picture's size, and the picture is black under it")
{
    CBitmap picture, mask;
    picture.Attach(MakePicture(24, RGB(255, 0, 255)));
    BuildKeyMask(picture, mask, RGB(255, 0, 255));
    BITMAP record = {};
    mask.GetBitmap(&record);
    CHECK(record.bmBitsPixel == 1);
    CHECK(record.bmPlanes == 1);
    CHECK(record.bmWidth == 8);
    CHECK(record.bmHeight == 4);
    CHECK(Picture::OfBitmap(picture).CountOf(black) == 4 * 4);
    CHECK(Picture::OfBitmap(picture).CountOf(red) == 4 * 4);
    CHECK(Picture::OfBitmap(mask).CountOf(white) == 4 * 4);
}

TEST_CASE("a former mask is deleted, a former picture is not touched")
{
    CBitmap picture, mask;
    picture.Attach(MakePicture(24, black));
    BuildKeyMask(picture, mask, black);
    const HGDIOBJ former = mask.GetSafeHandle();
    const BalancedGdi objects;
    for (int i = 0; i < 10; ++i)
        BuildKeyMask(picture, mask, black);
    CHECK_MESSAGE(objects.IsBalanced(), objects.Describe());
    CHECK(former != nullptr);
}

TEST_CASE("without a picture there is no mask, and drawing does no harm")
{
    CBitmap picture, mask;
    BuildKeyMask(picture, mask, black);
    CHECK(mask.GetSafeHandle() == nullptr);
    Draw(picture, mask);
}

TEST_CASE("a picture higher than one band of rows is keyed to its last row")
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = 3;
    info.bmiHeader.biHeight = -200;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    CBitmap picture, mask;
    picture.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    memset(bits, 0, 3 * 200 * 4);
    for (int pixel = 0; pixel < 3 * 200; ++pixel)
        static_cast<DWORD*>(bits)[pixel] = 0xFF000000;
    static_cast<DWORD*>(bits)[3 * 150 + 1] = 0xFFC81E28; // One red pixel.
    BuildKeyMask(picture, mask, black);
    const Canvas canvas(3, 200, green);
    DrawKeyedPicture(*CDC::FromHandle(canvas.Dc()), CRect(0, 0, 3, 200), mask, picture);
    CHECK(canvas.ToPicture().CountOf(green) == 3 * 200 - 1);
    CHECK(canvas.ToPicture().At(1, 150) == red);
}

TEST_CASE("an abandoned bitmap outlives its wrapper")
{
    const HBITMAP bitmap = MakePicture(24, black);
    {
        CBitmap wrapper;
        wrapper.Attach(bitmap);
        Abandon(wrapper);
        CHECK(wrapper.GetSafeHandle() == nullptr);
    }
    CHECK(::GetObjectType(bitmap) == OBJ_BITMAP);
    ::DeleteObject(bitmap);
}

TEST_CASE("a handle that is no bitmap any more makes no mask")
{
    const HBITMAP bitmap = MakePicture(24, black);
    CBitmap picture, mask;
    picture.Attach(bitmap);
    BuildKeyMask(picture, mask, black);
    CHECK(mask.GetSafeHandle() != nullptr);
    ::DeleteObject(bitmap);
    BuildKeyMask(picture, mask, black);
    CHECK(mask.GetSafeHandle() == nullptr);
    picture.Detach();
}
