#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/Canvas.h"
#include "testing/GdiObjects.h"

using namespace umbra::testing;

namespace {

constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);
constexpr COLORREF magenta = RGB(255, 0, 255);

/// A list of the two images of the resource, 4 by 4 pixels, with magenta left out.
void LoadRedAndBlue(CImageList& list)
{
    REQUIRE(list.Create(9101, 4, 1, magenta));
}

Picture PictureOf(CImageList& list, int image)
{
    Canvas canvas(8, 8);
    CHECK(list.Draw(CDC::FromHandle(canvas.Dc()), image, CPoint(0, 0), ILD_TRANSPARENT));
    return canvas.ToPicture();
}

} // namespace

TEST_CASE("the destructor of an image list destroys what it still holds")
{
    BalancedGdi balance;
    {
        CImageList list;
        REQUIRE(list.Create(16, 16, ILC_COLOR24 | ILC_MASK, 4, 4));
        CHECK(CImageList::FromHandle(list) == &list);
        CHECK(CImageList::FromHandlePermanent(list) == &list);
        CHECK(list.DeleteImageList());
        CHECK_FALSE(list.DeleteImageList());
        CHECK(list.Create(16, 16, ILC_COLOR24, 4, 4));
    }
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("a temporary image list owns nothing")
{
    const HIMAGELIST handle = ::ImageList_Create(4, 4, ILC_COLOR24, 1, 1);
    CImageList* temporary = CImageList::FromHandle(handle);
    CHECK(temporary->GetSafeHandle() == handle);
    CHECK(CImageList::FromHandlePermanent(handle) == nullptr);
    CImageList::DeleteTempMap();
    CImageList owner;
    CHECK(owner.Attach(handle));
    CHECK(owner.SetImageCount(2));
    CHECK(owner.GetImageCount() == 2);
    CHECK(owner.Detach() == handle);
    CHECK(::ImageList_Destroy(handle));
    CHECK(CImageList::FromHandle(nullptr) == nullptr);
}

TEST_CASE("a bitmap resource becomes images with a mask")
{
    BalancedGdi balance;
    {
        CImageList list;
        LoadRedAndBlue(list);
        CHECK(list.GetImageCount() == 2);
        const Picture first = PictureOf(list, 0);
        CHECK(first.CountOf(red) == 12);
        CHECK(first.At(0, 0) == white); // Magenta is left out.
        CHECK(PictureOf(list, 1).CountOf(blue) == 12);
        IMAGEINFO info{};
        CHECK(list.GetImageInfo(1, &info));
        CHECK(CRect(info.rcImage).Size() == CSize(4, 4));
    }
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("a missing bitmap resource makes no list")
{
    CImageList list;
    CHECK_FALSE(list.Create(9199, 4, 1, magenta));
    CHECK(list.m_hImageList == nullptr);
}

TEST_CASE("bitmaps and icons are added, replaced, copied and removed")
{
    BalancedGdi balance;
    {
        CBitmap bitmap;
        REQUIRE(bitmap.LoadBitmap(9101));
        CImageList list;
        REQUIRE(list.Create(4, 4, ILC_COLOR24 | ILC_MASK, 0, 4));
        CHECK(list.Add(&bitmap, magenta) == 0);
        CHECK(list.GetImageCount() == 2);
        CHECK(PictureOf(list, 1).CountOf(blue) == 12);

        CBitmap opaque;
        REQUIRE(opaque.LoadBitmap(9101));
        CHECK(list.Add(&opaque, static_cast<CBitmap*>(nullptr)) == 2);
        CHECK(PictureOf(list, 2).CountOf(magenta) == 4);

        const HICON icon = list.ExtractIcon(1);
        REQUIRE(icon != nullptr);
        CHECK(list.Replace(0, icon) == 0);
        CHECK(PictureOf(list, 0).CountOf(blue) == 12);
        CHECK(list.Add(icon) == 4);
        ::DestroyIcon(icon);

        CHECK(list.Copy(0, 2, ILCF_SWAP));
        CHECK(PictureOf(list, 0).CountOf(magenta) == 4);
        CHECK(list.Remove(0));
        CHECK(list.GetImageCount() == 4);
    }
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("lists are duplicated and images merged")
{
    BalancedGdi balance;
    {
        CImageList list;
        LoadRedAndBlue(list);
        CImageList twin;
        REQUIRE(twin.Create(&list));
        CHECK(twin.GetImageCount() == 2);
        CHECK(PictureOf(twin, 0) == PictureOf(list, 0));

        CImageList merged;
        REQUIRE(merged.Create(list, 0, twin, 1, 4, 0));
        const Picture picture = PictureOf(merged, 0);
        CHECK(picture.CountOf(red) == 12);
        CHECK(picture.CountOf(blue) == 12);
    }
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("images are drawn on a background and in part")
{
    CImageList list;
    LoadRedAndBlue(list);
    CHECK(list.GetBkColor() == CLR_NONE);
    CHECK(list.SetBkColor(RGB(0, 128, 0)) == CLR_NONE);
    CHECK(list.GetBkColor() == RGB(0, 128, 0));

    Canvas canvas(8, 8);
    CDC* dc = CDC::FromHandle(canvas.Dc());
    CHECK(list.Draw(dc, 0, CPoint(0, 0), ILD_NORMAL));
    CHECK(canvas.ToPicture().CountOf(RGB(0, 128, 0)) == 4);

    canvas.Fill(white);
    CHECK(list.DrawEx(dc, 0, CPoint(2, 2), CSize(2, 4), RGB(1, 2, 3), CLR_NONE, ILD_NORMAL));
    CHECK(canvas.ToPicture().CountOf(red) == 6);
    CHECK(canvas.ToPicture().CountOf(RGB(1, 2, 3)) == 2);

    canvas.Fill(white);
    CHECK(list.DrawIndirect(dc, 1, CPoint(1, 1), CSize(2, 2), CPoint(0, 1), ILD_TRANSPARENT));
    CHECK(canvas.ToPicture().CountOf(blue) == 4);
    CHECK(canvas.ToPicture().At(1, 1) == blue);
}

TEST_CASE("an overlay is drawn over an image")
{
    CImageList list;
    LoadRedAndBlue(list);
    CHECK(list.SetOverlayImage(1, 1));
    Canvas canvas(8, 8);
    CHECK(list.Draw(CDC::FromHandle(canvas.Dc()), 0, CPoint(0, 0),
                    ILD_TRANSPARENT | INDEXTOOVERLAYMASK(1)));
    CHECK(canvas.ToPicture().CountOf(blue) == 12);
}

TEST_CASE("an image is dragged over a window")
{
    const HWND window = ::CreateWindow(_T("STATIC"), _T(""), WS_POPUP | WS_VISIBLE, 10, 10, 60, 40,
                                       NULL, NULL, NULL, NULL);
    CImageList list;
    LoadRedAndBlue(list);
    CHECK(list.BeginDrag(0, CPoint(1, 1)));
    CHECK(CImageList::DragEnter(CWnd::FromHandle(window), CPoint(10, 10)));
    CHECK(CImageList::DragMove(CPoint(20, 20)));
    POINT at{};
    POINT hotSpot{};
    CImageList* dragged = CImageList::GetDragImage(&at, &hotSpot);
    REQUIRE(dragged != nullptr);
    CHECK(CPoint(at) == CPoint(20, 20));
    CHECK(CPoint(hotSpot) == CPoint(1, 1));
    CHECK(CImageList::DragShowNolock(FALSE));
    CHECK(CImageList::DragLeave(CWnd::FromHandle(window)));
    CImageList::EndDrag();
    CHECK_FALSE(list.BeginDrag(5, CPoint(0, 0)));
    ::DestroyWindow(window);
}
