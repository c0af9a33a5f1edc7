#include <afxwin.h>

#include <doctest/doctest.h>

#include "testing/Canvas.h"
#include "testing/GdiObjects.h"

using namespace umbra::testing;

namespace {

constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF black = RGB(0, 0, 0);
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 255, 0);
constexpr COLORREF blue = RGB(0, 0, 255);

/// A white canvas with a context object over it.
struct Paper : Canvas
{
    Paper(int width, int height) : Canvas(width, height), dc(*CDC::FromHandle(Dc())) {}
    CDC& dc;
};

HICON MakeIcon(COLORREF color)
{
    DWORD pixels[16 * 16];
    for (DWORD& pixel : pixels)
        pixel = 0xFF000000 | GetRValue(color) << 16 | GetGValue(color) << 8 | GetBValue(color);
    const BYTE opaque[16 * 2] = {};
    ICONINFO icon{};
    icon.fIcon = TRUE;
    icon.hbmColor = ::CreateBitmap(16, 16, 1, 32, pixels);
    icon.hbmMask = ::CreateBitmap(16, 16, 1, 1, opaque);
    const HICON made = ::CreateIconIndirect(&icon);
    ::DeleteObject(icon.hbmColor);
    ::DeleteObject(icon.hbmMask);
    return made;
}

BOOL CALLBACK FillByState(HDC dc, LPARAM color, WPARAM, int cx, int cy)
{
    const CRect rect(0, 0, cx, cy);
    CDC::FromHandle(dc)->FillSolidRect(&rect, static_cast<COLORREF>(color));
    return TRUE;
}

int CALLBACK CountPens(LPVOID, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    return 1;
}

} // namespace

// Ownership

TEST_CASE("the destructor of a context deletes what it still holds")
{
    BalancedGdi balance;
    HDC handle;
    {
        CDC dc;
        REQUIRE(dc.CreateCompatibleDC(nullptr));
        handle = dc;
        CHECK(dc.m_hAttribDC == handle);
        CHECK(CDC::FromHandle(handle) == &dc);
    }
    CHECK(::GetObjectType(handle) == 0);
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("a temporary context does not delete its handle")
{
    const HDC handle = ::CreateCompatibleDC(nullptr);
    CDC* temporary = CDC::FromHandle(handle);
    CHECK(CDC::FromHandle(handle) == temporary);
    CDC::DeleteTempMap();
    CHECK(::GetObjectType(handle) == OBJ_MEMDC);

    CDC::FromHandle(handle)->Detach();
    CHECK(CDC::FromHandle(handle)->m_hDC == handle); // Filled again when asked for.
    CHECK(CDC::FromHandle(handle)->m_hAttribDC == handle);
    CDC::DeleteTempMap();
    ::DeleteDC(handle);
}

TEST_CASE("a context is deleted once and detached without being deleted")
{
    CDC dc;
    REQUIRE(dc.CreateCompatibleDC(nullptr));
    CHECK(dc.DeleteDC());
    CHECK_FALSE(dc.DeleteDC());
    CHECK(dc.m_hAttribDC == nullptr);

    REQUIRE(dc.CreateCompatibleDC(nullptr));
    const HDC handle = dc.Detach();
    CHECK(dc.GetSafeHdc() == nullptr);
    CHECK(dc.m_hAttribDC == nullptr);
    CHECK(::DeleteDC(handle));

    static CDC* volatile none = nullptr;
    CHECK(none->GetSafeHdc() == nullptr);
}

TEST_CASE("contexts of the display are made by name")
{
    CDC output;
    CHECK(output.CreateDC(_T("DISPLAY"), nullptr, nullptr, nullptr));
    CHECK(output.GetDeviceCaps(TECHNOLOGY) == DT_RASDISPLAY);
    CHECK_FALSE(output.IsPrinting());
    CDC information;
    CHECK(information.CreateIC(_T("DISPLAY"), nullptr, nullptr, nullptr));
}

TEST_CASE("settings go to both contexts, questions to the attribute context")
{
    BalancedGdi balance;
    {
        CDC output;
        CDC attributes;
        REQUIRE(output.CreateCompatibleDC(nullptr));
        REQUIRE(attributes.CreateCompatibleDC(nullptr));
        output.SetAttribDC(attributes);
        output.SetTextColor(red);
        CHECK(::GetTextColor(output) == red);
        CHECK(::GetTextColor(attributes) == red);
        ::SetTextColor(attributes, blue);
        CHECK(output.GetTextColor() == blue);
        CHECK(output.SetTextColor(green) == blue);

        output.MoveTo(3, 4);
        output.LineTo(7, 8);
        CHECK(output.GetCurrentPosition() == CPoint(7, 8));
        CHECK(attributes.GetCurrentPosition() == CPoint(7, 8));

        output.ReleaseAttribDC();
        CHECK(output.m_hAttribDC == nullptr);
        output.SetAttribDC(output);
    }
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("the output context is set and released without being owned")
{
    const HDC handle = ::CreateCompatibleDC(nullptr);
    CDC dc;
    dc.SetOutputDC(handle);
    CHECK(dc.m_hDC == handle);
    CHECK(CDC::FromHandle(handle) != &dc);
    dc.ReleaseOutputDC();
    CHECK(dc.m_hDC == nullptr);
    CDC::DeleteTempMap();
    ::DeleteDC(handle);
}

// Selection

TEST_CASE("selecting an object returns the former one")
{
    BalancedGdi balance;
    {
        Paper paper(10, 10);
        CPen pen(PS_SOLID, 1, red);
        CPen* stock = paper.dc.SelectObject(&pen);
        REQUIRE(stock != nullptr);
        CHECK(stock->m_hObject == ::GetStockObject(BLACK_PEN));
        CHECK(paper.dc.GetCurrentPen() == &pen);
        CHECK(paper.dc.SelectObject(stock) == &pen);

        CBrush brush(red);
        CBrush* formerBrush = paper.dc.SelectObject(&brush);
        CHECK(paper.dc.GetCurrentBrush() == &brush);
        CHECK(paper.dc.SelectObject(formerBrush) == &brush);

        CFont font;
        font.CreatePointFont(120, _T("Tahoma"));
        CFont* formerFont = paper.dc.SelectObject(&font);
        CHECK(paper.dc.GetCurrentFont() == &font);
        CHECK(paper.dc.SelectStockObject(SYSTEM_FONT) == &font);
        CHECK(formerFont != nullptr);

        CGdiObject* asBase = &brush;
        CHECK(paper.dc.SelectObject(asBase) == formerBrush);
        paper.dc.SelectObject(formerBrush);
        CHECK(paper.dc.SelectObject(static_cast<CPen*>(nullptr)) == nullptr);
    }
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("a bitmap is selected and given back")
{
    BalancedGdi balance;
    {
        CDC dc;
        REQUIRE(dc.CreateCompatibleDC(nullptr));
        CBitmap bitmap;
        REQUIRE(bitmap.CreateBitmap(8, 8, 1, 32, nullptr));
        CBitmap* former = dc.SelectObject(&bitmap);
        REQUIRE(former != nullptr);
        CHECK(dc.GetCurrentBitmap() == &bitmap);
        CHECK(dc.SetPixel(CPoint(2, 3), red) == red);
        CHECK(dc.GetPixel(CPoint(2, 3)) == red);
        CHECK(dc.SelectObject(former) == &bitmap);
    }
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("selecting a region clips and tells its kind")
{
    Paper paper(20, 20);
    CRgn region;
    region.CreateRectRgn(5, 5, 10, 10);
    CHECK(paper.dc.SelectObject(&region) == SIMPLEREGION);
    paper.dc.FillSolidRect(0, 0, 20, 20, red);
    CHECK(paper.ToPicture().CountOf(red) == 25);
    CHECK(paper.dc.SelectClipRgn(nullptr) == SIMPLEREGION);
    CGdiObject* asBase = &region;
    CHECK(paper.dc.SelectObject(asBase) == nullptr);
    paper.dc.FillSolidRect(0, 0, 20, 20, blue);
    CHECK(paper.ToPicture().CountOf(blue) == 25);
}

TEST_CASE("a saved state comes back")
{
    Paper paper(10, 10);
    paper.dc.SetTextColor(red);
    const int saved = paper.dc.SaveDC();
    CHECK(saved > 0);
    paper.dc.SetTextColor(blue);
    CHECK(paper.dc.RestoreDC(saved));
    CHECK(paper.dc.GetTextColor() == red);
}

// Attributes and mapping

TEST_CASE("each attribute is set, read, and its former value returned")
{
    Paper paper(10, 10);
    CDC& dc = paper.dc;
    dc.SetBkColor(red);
    CHECK(dc.SetBkColor(blue) == red);
    CHECK(dc.GetBkColor() == blue);
    dc.SetBkMode(TRANSPARENT);
    CHECK(dc.SetBkMode(OPAQUE) == TRANSPARENT);
    CHECK(dc.GetBkMode() == OPAQUE);
    dc.SetPolyFillMode(WINDING);
    CHECK(dc.SetPolyFillMode(ALTERNATE) == WINDING);
    CHECK(dc.GetPolyFillMode() == ALTERNATE);
    CHECK(dc.SetROP2(R2_XORPEN) == R2_COPYPEN);
    CHECK(dc.GetROP2() == R2_XORPEN);
    dc.SetStretchBltMode(COLORONCOLOR);
    CHECK(dc.GetStretchBltMode() == COLORONCOLOR);
    CHECK(dc.SetTextAlign(TA_RIGHT) == TA_LEFT);
    CHECK(dc.GetTextAlign() == TA_RIGHT);
    dc.SetTextCharacterExtra(3);
    CHECK(dc.GetTextCharacterExtra() == 3);
    dc.SetDCBrushColor(red);
    CHECK(dc.SetDCBrushColor(blue) == red);
    CHECK(dc.GetDCBrushColor() == blue);
    dc.SetDCPenColor(red);
    CHECK(dc.GetDCPenColor() == red);
    CHECK(dc.SetBrushOrg(3, 4) == CPoint(0, 0));
    CHECK(dc.GetBrushOrg() == CPoint(3, 4));
    CHECK(dc.SetArcDirection(AD_CLOCKWISE) == AD_COUNTERCLOCKWISE);
    CHECK(dc.GetArcDirection() == AD_CLOCKWISE);
    CHECK(dc.SetMiterLimit(4));
    CHECK(dc.GetMiterLimit() == 4);
    CHECK(dc.SetGraphicsMode(GM_ADVANCED) == GM_COMPATIBLE);
    const XFORM twice = {2, 0, 0, 2, 0, 0};
    CHECK(dc.SetWorldTransform(twice));
    XFORM read{};
    CHECK(dc.GetWorldTransform(read));
    CHECK(read.eM11 == 2);
}

TEST_CASE("origins and extents are set, moved and scaled")
{
    Paper paper(10, 10);
    CDC& dc = paper.dc;
    CHECK(dc.SetMapMode(MM_ANISOTROPIC) == MM_TEXT);
    CHECK(dc.GetMapMode() == MM_ANISOTROPIC);
    CHECK(dc.SetViewportOrg(3, 4) == CPoint(0, 0));
    CHECK(dc.OffsetViewportOrg(1, 1) == CPoint(3, 4));
    CHECK(dc.GetViewportOrg() == CPoint(4, 5));
    CHECK(dc.SetWindowOrg(CPoint(7, 8)) == CPoint(0, 0));
    CHECK(dc.OffsetWindowOrg(-7, -8) == CPoint(7, 8));
    CHECK(dc.GetWindowOrg() == CPoint(0, 0));
    dc.SetWindowExt(CSize(100, 100));
    CHECK(dc.SetViewportExt(CSize(200, 50)).cx != 0);
    CHECK(dc.ScaleViewportExt(3, 2, 2, 1) == CSize(200, 50));
    CHECK(dc.GetViewportExt() == CSize(300, 100));
    CHECK(dc.ScaleWindowExt(1, 2, 1, 4) == CSize(100, 100));
    CHECK(dc.GetWindowExt() == CSize(50, 25));

    CPoint point(10, 10);
    dc.LPtoDP(&point);
    CHECK(point == CPoint(64, 45));
    dc.DPtoLP(&point);
    CHECK(point == CPoint(10, 10));
    CRect rect(0, 0, 10, 10);
    dc.LPtoDP(&rect);
    CHECK(rect == CRect(4, 5, 64, 45));
    CSize size(10, 10); // A size knows no origin.
    dc.LPtoDP(&size);
    CHECK(size == CSize(60, 40));
    dc.DPtoLP(&size);
    CHECK(size == CSize(10, 10));
}

TEST_CASE("hundredths of a millimetre are converted by logical inches")
{
    Paper paper(10, 10);
    CSize size(2540, 5080);
    paper.dc.HIMETRICtoDP(&size);
    CHECK(size ==
          CSize(paper.dc.GetDeviceCaps(LOGPIXELSX), 2 * paper.dc.GetDeviceCaps(LOGPIXELSY)));
    paper.dc.DPtoHIMETRIC(&size);
    CHECK(size == CSize(2540, 5080));
    paper.dc.HIMETRICtoLP(&size);
    paper.dc.LPtoHIMETRIC(&size);
    CHECK(size == CSize(2540, 5080));
}

TEST_CASE("hundredths of a millimetre are logical units of a metric mapping mode")
{
    Paper paper(10, 10);
    paper.dc.SetMapMode(MM_HIMETRIC);
    CSize size(10000, 20000);
    paper.dc.LPtoHIMETRIC(&size);
    CHECK(abs(size.cx - 10000) < 60); // The conversion passes through whole pixels.
    CHECK(abs(size.cy - 20000) < 60);
}

// Clipping

TEST_CASE("clipping limits what is painted")
{
    Paper paper(20, 20);
    CDC& dc = paper.dc;
    CHECK(dc.IntersectClipRect(0, 0, 10, 10) == SIMPLEREGION);
    const CRect corner(0, 0, 5, 5);
    CHECK(dc.ExcludeClipRect(&corner) == COMPLEXREGION);
    CRect box;
    CHECK(dc.GetClipBox(&box) == COMPLEXREGION);
    CHECK(box == CRect(0, 0, 10, 10));
    CHECK_FALSE(dc.PtVisible(2, 2));
    CHECK(dc.PtVisible(CPoint(7, 7)));
    CHECK_FALSE(dc.RectVisible(&corner));
    dc.FillSolidRect(0, 0, 20, 20, red);
    CHECK(paper.ToPicture().CountOf(red) == 75);

    CRgn region;
    region.CreateRectRgn(12, 12, 14, 14);
    dc.SelectClipRgn(&region);
    dc.SelectClipRgn(&region, RGN_OR);
    CHECK(dc.OffsetClipRgn(CSize(1, 1)) == SIMPLEREGION);
    dc.GetClipBox(&box);
    CHECK(box == CRect(13, 13, 15, 15));
    dc.SelectClipRgn(nullptr);
    dc.GetClipBox(&box);
    CHECK(box == CRect(0, 0, 20, 20));
}

TEST_CASE("regions are filled, framed, inverted and painted")
{
    Paper paper(20, 20);
    CDC& dc = paper.dc;
    CRgn region;
    region.CreateRectRgn(5, 5, 15, 15);
    CBrush brush(red);
    CHECK(dc.FillRgn(&region, &brush));
    CHECK(paper.ToPicture().CountOf(red) == 100);
    CHECK(dc.InvertRgn(&region));
    CHECK(paper.ToPicture().CountOf(RGB(0, 255, 255)) == 100);
    CBrush frame(blue);
    CHECK(dc.FrameRgn(&region, &frame, 1, 1));
    CHECK(paper.ToPicture().CountOf(blue) == 36);
    CBrush* former = dc.SelectObject(&brush);
    CHECK(dc.PaintRgn(&region));
    dc.SelectObject(former);
    CHECK(paper.ToPicture().CountOf(red) == 100);
}

// Drawing

TEST_CASE("a line leaves its last point out and moves the position")
{
    Paper paper(20, 20);
    CDC& dc = paper.dc;
    dc.MoveTo(2, 5);
    CHECK(dc.LineTo(CPoint(8, 5)));
    CHECK(dc.MoveTo(CPoint(0, 0)) == CPoint(8, 5));
    const Picture picture = paper.ToPicture();
    CHECK(picture.CountOf(black) == 6);
    CHECK(picture.At(2, 5) == black);
    CHECK(picture.At(8, 5) == white);
}

TEST_CASE("shapes are filled by the brush and drawn by the pen")
{
    Paper paper(40, 40);
    CDC& dc = paper.dc;
    CBrush brush(red);
    CBrush* former = dc.SelectObject(&brush);
    const CRect rect(10, 10, 30, 30);
    CHECK(dc.Rectangle(&rect));
    CHECK(paper.ToPicture().CountOf(red) == 18 * 18);
    CHECK(paper.ToPicture().CountOf(black) == 4 * 19);

    paper.Fill(white);
    CHECK(dc.Ellipse(&rect));
    CHECK(dc.GetPixel(20, 20) == red);
    CHECK(dc.GetPixel(10, 10) == white);

    paper.Fill(white);
    CHECK(dc.RoundRect(&rect, CPoint(8, 8)));
    CHECK(dc.GetPixel(20, 20) == red);
    CHECK(dc.GetPixel(10, 10) == white);

    paper.Fill(white);
    CHECK(dc.Pie(&rect, CPoint(40, 20), CPoint(20, 0))); // Counterclockwise: the upper right.
    CHECK(dc.GetPixel(23, 17) == red);
    CHECK(dc.GetPixel(15, 25) == white);

    paper.Fill(white);
    CHECK(dc.Chord(&rect, CPoint(40, 20), CPoint(0, 20)));
    CHECK(dc.GetPixel(20, 14) == red);
    CHECK(dc.GetPixel(20, 26) == white);

    paper.Fill(white);
    POINT triangle[] = {{0, 0}, {39, 0}, {0, 39}};
    CHECK(dc.Polygon(triangle, 3));
    CHECK(dc.GetPixel(5, 5) == red);
    CHECK(dc.GetPixel(35, 35) == white);
    dc.SelectObject(former);
}

TEST_CASE("curves and lines of several points")
{
    Paper paper(40, 40);
    CDC& dc = paper.dc;
    POINT corner[] = {{0, 0}, {10, 0}, {10, 10}};
    CHECK(dc.Polyline(corner, 3));
    CHECK(paper.ToPicture().CountOf(black) == 20);
    dc.MoveTo(20, 20);
    const POINT onward[] = {{30, 20}, {30, 30}};
    CHECK(dc.PolylineTo(onward, 2));
    CHECK(dc.GetCurrentPosition() == CPoint(30, 30));
    const POINT curve[] = {{30, 35}, {35, 39}, {39, 39}};
    CHECK(dc.PolyBezierTo(curve, 3));
    CHECK(dc.GetCurrentPosition() == CPoint(39, 39));
    paper.Fill(white);
    const CRect rect(10, 10, 30, 30);
    CHECK(dc.Arc(&rect, CPoint(40, 20), CPoint(40, 20)));
    CHECK(dc.GetPixel(20, 20) == white);
    CHECK(paper.ToPicture().Contains(black));
}

TEST_CASE("FillRect and FrameRect take a brush and leave the background colour")
{
    Paper paper(10, 10);
    CDC& dc = paper.dc;
    dc.SetBkColor(green);
    CBrush brush(red);
    const CRect rect(2, 2, 6, 6);
    dc.FillRect(&rect, &brush);
    CHECK(paper.ToPicture().CountOf(red) == 16);
    CBrush frame(blue);
    dc.FrameRect(&rect, &frame);
    CHECK(paper.ToPicture().CountOf(blue) == 12);
    dc.InvertRect(&rect);
    CHECK(paper.ToPicture().CountOf(RGB(255, 255, 0)) == 12);
    CHECK(dc.GetBkColor() == green);
}

TEST_CASE("FillSolidRect leaves the background colour changed")
{
    Paper paper(10, 10);
    paper.dc.SetBkColor(green);
    const CRect rect(2, 2, 6, 6);
    paper.dc.FillSolidRect(&rect, red);
    CHECK(paper.ToPicture().CountOf(red) == 16);
    CHECK(paper.dc.GetBkColor() == red);
    paper.dc.FillSolidRect(0, 0, 1, 2, blue);
    CHECK(paper.ToPicture().CountOf(blue) == 2);
    CHECK(paper.dc.GetBkColor() == blue);
}

TEST_CASE("a 3D rectangle gives both loose corners to the lower right colour")
{
    Paper paper(10, 10);
    const CRect rect(1, 1, 9, 9);
    paper.dc.Draw3dRect(&rect, red, blue);
    const Picture picture = paper.ToPicture();
    CHECK(picture.CountOf(red) == 13);
    CHECK(picture.CountOf(blue) == 15);
    CHECK(picture.At(1, 1) == red);
    CHECK(picture.At(8, 1) == blue);
    CHECK(picture.At(1, 8) == blue);
    CHECK(picture.At(8, 8) == blue);
    CHECK(picture.At(2, 2) == white);
    CHECK(paper.dc.GetBkColor() == blue);
}

TEST_CASE("an edge is drawn in the system's colours")
{
    Paper paper(10, 10);
    CRect rect(0, 0, 10, 10);
    CHECK(paper.dc.DrawEdge(&rect, BDR_SUNKENOUTER, BF_RECT | BF_ADJUST));
    CHECK(paper.dc.GetPixel(0, 0) == ::GetSysColor(COLOR_3DSHADOW));
    CHECK(paper.dc.GetPixel(9, 9) == ::GetSysColor(COLOR_3DHILIGHT));
    CHECK(rect == CRect(1, 1, 9, 9));
}

TEST_CASE("a frame control and a focus rectangle leave their marks")
{
    Paper paper(20, 20);
    CRect rect(2, 2, 15, 15);
    CHECK(paper.dc.DrawFrameControl(&rect, DFC_BUTTON, DFCS_BUTTONCHECK | DFCS_CHECKED));
    CHECK(paper.ToPicture().CountOf(white) < 400);

    paper.Fill(white);
    paper.dc.SetTextColor(black);
    paper.dc.SetBkColor(white);
    paper.dc.DrawFocusRect(&rect);
    CHECK(paper.ToPicture().Contains(black));
    paper.dc.DrawFocusRect(&rect);
    CHECK(paper.ToPicture().CountOf(white) == 400);
}

TEST_CASE("the halftone brush alternates from pixel to pixel")
{
    BalancedGdi balance;
    Paper paper(8, 8);
    CBrush* brush = CDC::GetHalftoneBrush();
    REQUIRE(brush != nullptr);
    CHECK(CDC::GetHalftoneBrush()->m_hObject == brush->m_hObject);
    paper.dc.SetTextColor(black);
    paper.dc.SetBkColor(white);
    const CRect all(0, 0, 8, 8);
    paper.dc.FillRect(&all, brush);
    const Picture picture = paper.ToPicture();
    CHECK(picture.CountOf(black) == 32);
    CHECK(picture.At(0, 0) != picture.At(1, 0));
    CHECK(picture.At(0, 0) != picture.At(0, 1));
    CHECK(picture.At(0, 0) == picture.At(1, 1));
}

TEST_CASE("a drag rectangle moves without a trace")
{
    Paper paper(40, 40);
    CDC& dc = paper.dc;
    CBrush invert(white); // Inverted by white: every pixel of the frame.
    const CRect first(5, 5, 20, 20);
    const CRect second(10, 10, 25, 25);
    const CSize thickness(2, 2);
    dc.DrawDragRect(&first, thickness, nullptr, thickness, &invert);
    CHECK(paper.ToPicture().CountOf(black) == 15 * 15 - 11 * 11);
    CHECK(dc.GetPixel(5, 5) == black);
    dc.DrawDragRect(&second, thickness, &first, thickness, &invert);
    CHECK(dc.GetPixel(5, 5) == white);
    CHECK(paper.ToPicture().CountOf(black) == 15 * 15 - 11 * 11);
    CBrush same(white); // Another brush: the old frame is taken away by itself.
    dc.DrawDragRect(&first, thickness, &second, thickness, &same, &invert);
    CHECK(dc.GetPixel(5, 5) == black);
    dc.DrawDragRect(&first, thickness, nullptr, thickness, &invert);
    CHECK(paper.ToPicture().CountOf(white) == 1600);

    CRect box;
    dc.GetClipBox(&box); // The clipping of before is in force again.
    CHECK(box == CRect(0, 0, 40, 40));
}

// States

TEST_CASE("an icon is drawn plain, or embossed when it is disabled")
{
    BalancedGdi balance;
    const HICON icon = MakeIcon(red);
    {
        Paper paper(20, 20);
        CHECK(paper.dc.DrawIcon(CPoint(0, 0), icon));
        CHECK(paper.ToPicture().Contains(red));

        paper.Fill(white);
        const CSize size(16, 16);
        CHECK(paper.dc.DrawState(CPoint(2, 2), size, icon, DSS_NORMAL, static_cast<HBRUSH>(NULL)));
        CHECK(paper.ToPicture().CountOf(red) == 256);

        paper.Fill(white);
        CHECK(
            paper.dc.DrawState(CPoint(2, 2), size, icon, DSS_DISABLED, static_cast<CBrush*>(NULL)));
        CHECK_FALSE(paper.ToPicture().Contains(red));
        CHECK(paper.ToPicture().Contains(::GetSysColor(COLOR_3DSHADOW)));
    }
    ::DestroyIcon(icon);
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("a bitmap is drawn by state, from an object or from a handle")
{
    Paper paper(20, 20);
    DWORD pixels[16];
    for (DWORD& pixel : pixels)
        pixel = 0x00FF0000;
    CBitmap bitmap;
    bitmap.CreateBitmap(4, 4, 1, 32, pixels);
    CHECK(paper.dc.DrawState(CPoint(1, 1), CSize(4, 4), &bitmap, DSS_NORMAL));
    CHECK(paper.ToPicture().CountOf(red) == 16);
    paper.Fill(white);
    CHECK(paper.dc.DrawState(CPoint(1, 1), CSize(4, 4), static_cast<HBITMAP>(bitmap), DSS_NORMAL));
    CHECK(paper.ToPicture().CountOf(red) == 16);
    CBrush brush(blue);
    paper.Fill(white);
    CHECK(paper.dc.DrawState(CPoint(1, 1), CSize(4, 4), &bitmap, DSS_MONO, &brush));
    CHECK_FALSE(paper.ToPicture().Contains(red));
}

TEST_CASE("a text is drawn by state, with and without prefixes")
{
    Paper paper(80, 20);
    paper.dc.SetBkMode(TRANSPARENT);
    const CSize size(80, 20);
    CHECK(paper.dc.DrawState(CPoint(0, 0), size, _T("&Text"), DSS_NORMAL, TRUE, 0,
                             static_cast<HBRUSH>(NULL)));
    const Picture prefixed = paper.ToPicture();
    paper.Fill(white);
    CHECK(paper.dc.DrawState(CPoint(0, 0), size, _T("&Text"), DSS_NORMAL, FALSE, 0,
                             static_cast<CBrush*>(NULL)));
    const Picture plain = paper.ToPicture();
    CHECK(prefixed.CountOf(white) < 1600);
    CHECK(plain != prefixed);
    paper.Fill(white);
    CHECK(paper.dc.DrawState(CPoint(0, 0), size, _T("&Text"), DSS_NORMAL, FALSE, 2,
                             static_cast<HBRUSH>(NULL)));
    CHECK(paper.ToPicture().CountOf(white) > plain.CountOf(white)); // Two letters only.
}

TEST_CASE("a procedure draws an image by state")
{
    Paper paper(20, 20);
    CHECK(paper.dc.DrawState(CPoint(3, 3), CSize(5, 5), &FillByState, red, DSS_NORMAL,
                             static_cast<HBRUSH>(NULL)));
    CHECK(paper.ToPicture().CountOf(red) == 25);
    CHECK(paper.ToPicture().At(3, 3) == red);
    CHECK(paper.dc.DrawState(CPoint(3, 3), CSize(5, 5), &FillByState, blue, DSS_NORMAL,
                             static_cast<CBrush*>(NULL)));
    CHECK(paper.ToPicture().CountOf(blue) == 25);
}

// Bitmaps

TEST_CASE("pixels are copied, stretched, masked and blended")
{
    BalancedGdi balance;
    {
        Paper source(4, 4);
        Paper paper(20, 20);
        source.Fill(red);
        source.dc.SetPixelV(0, 0, green);
        CHECK(paper.dc.BitBlt(0, 0, 4, 4, &source.dc, 0, 0, SRCCOPY));
        CHECK(paper.ToPicture().CountOf(red) == 15);

        paper.Fill(white);
        CHECK(paper.dc.StretchBlt(0, 0, 8, 8, &source.dc, 0, 0, 4, 4, SRCCOPY));
        CHECK(paper.ToPicture().CountOf(red) == 60);
        CHECK(paper.ToPicture().CountOf(green) == 4);

        paper.Fill(white);
        CHECK(paper.dc.TransparentBlt(0, 0, 4, 4, &source.dc, 0, 0, 4, 4, red));
        CHECK(paper.ToPicture().CountOf(green) == 1);
        CHECK(paper.ToPicture().CountOf(red) == 0);

        paper.Fill(white);
        CHECK(paper.dc.AlphaBlend(0, 0, 4, 4, &source.dc, 0, 0, 4, 4, {AC_SRC_OVER, 0, 128, 0}));
        const COLORREF half = paper.dc.GetPixel(2, 2);
        CHECK(GetRValue(half) == 255);
        CHECK(abs(GetGValue(half) - 127) <= 1);

        CBitmap mask;
        const WORD rows[4] = {0x80, 0, 0, 0};
        mask.CreateBitmap(4, 4, 1, 1, rows);
        paper.Fill(white);
        CHECK(paper.dc.MaskBlt(0, 0, 4, 4, &source.dc, 0, 0, mask, 0, 0,
                               MAKEROP4(SRCCOPY, 0x00AA0029)));
        CHECK(paper.ToPicture().CountOf(green) == 1);
        CHECK(paper.ToPicture().CountOf(red) == 0);
    }
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("patterns, floods and gradients fill")
{
    Paper paper(20, 20);
    CDC& dc = paper.dc;
    CHECK(dc.PatBlt(0, 0, 10, 10, BLACKNESS));
    CHECK(paper.ToPicture().CountOf(black) == 100);
    CBrush brush(red);
    CBrush* former = dc.SelectObject(&brush);
    CHECK(dc.ExtFloodFill(2, 2, black, FLOODFILLSURFACE));
    CHECK(paper.ToPicture().CountOf(red) == 100);
    CHECK(dc.FloodFill(15, 15, red));
    CHECK(paper.ToPicture().CountOf(red) == 400);
    dc.SelectObject(former);

    TRIVERTEX ends[] = {{0, 0, 0, 0, 0, 0}, {20, 20, 0xFF00, 0, 0, 0}};
    GRADIENT_RECT mesh = {0, 1};
    CHECK(dc.GradientFill(ends, 2, &mesh, 1, GRADIENT_FILL_RECT_H));
    CHECK(GetRValue(dc.GetPixel(1, 5)) < 40);
    CHECK(GetRValue(dc.GetPixel(18, 5)) > 200);
}

TEST_CASE("a part of a window scrolls and tells what it uncovered")
{
    const HWND window = ::CreateWindow(_T("STATIC"), _T(""), WS_POPUP | WS_VISIBLE, 10, 10, 60, 40,
                                       NULL, NULL, NULL, NULL);
    {
        CClientDC dc(CWnd::FromHandle(window));
        dc.FillSolidRect(0, 0, 5, 5, red);
        const CRect area(0, 0, 60, 40);
        CRgn uncovered;
        uncovered.CreateRectRgn(0, 0, 0, 0);
        CRect update;
        CHECK(dc.ScrollDC(10, 0, &area, &area, &uncovered, &update));
        CHECK(dc.GetPixel(12, 2) == red);
        CHECK(update == CRect(0, 0, 10, 40));
        CHECK(uncovered.PtInRegion(2, 2));
        CHECK_FALSE(uncovered.PtInRegion(12, 2));
    }
    ::DestroyWindow(window);
}

// Text

TEST_CASE("text is drawn from strings and from characters")
{
    Paper paper(100, 30);
    CDC& dc = paper.dc;
    CHECK(dc.TextOut(0, 0, _T("Text"), 4));
    const Picture first = paper.ToPicture();
    CHECK(first.CountOf(white) < 3000);
    paper.Fill(white);
    CHECK(dc.TextOut(0, 0, CString("Text")));
    CHECK(first.Compare(paper.ToPicture()) == "the same");
    paper.Fill(white);
    CHECK(dc.ExtTextOut(0, 0, 0, nullptr, CString("Text"), nullptr));
    CHECK(first.Compare(paper.ToPicture()) == "the same");
}

TEST_CASE("DrawText takes a length of -1 and answers the height")
{
    Paper paper(100, 40);
    CDC& dc = paper.dc;
    TEXTMETRIC metrics{};
    CHECK(dc.GetTextMetrics(&metrics));
    CRect byLength(0, 0, 100, 40);
    CRect toEnd(0, 0, 100, 40);
    CRect byString(0, 0, 100, 40);
    CHECK(dc.DrawText(_T("Two\nlines"), 9, &byLength, DT_CALCRECT) == 2 * metrics.tmHeight);
    CHECK(dc.DrawText(_T("Two\nlines"), -1, &toEnd, DT_CALCRECT) == 2 * metrics.tmHeight);
    CHECK(dc.DrawText(CString("Two\nlines"), &byString, DT_CALCRECT) == 2 * metrics.tmHeight);
    CHECK(byLength == toEnd);
    CHECK(byLength == byString);
    CHECK(byLength.Width() == dc.GetTextExtent(_T("lines"), 5).cx);
    dc.DrawText(_T("Two\nlines"), -1, &toEnd, DT_LEFT);
    CHECK(paper.ToPicture().CountOf(white) < 4000);
}

TEST_CASE("a constant string is not modified by DrawText")
{
    Paper paper(40, 40);
    const CString text("A text that is much too long");
    const CString sharing = text;
    CRect rect(0, 0, 40, 40);
    paper.dc.DrawText(text, &rect, DT_END_ELLIPSIS | DT_MODIFYSTRING);
    paper.dc.DrawTextEx(text, &rect, DT_END_ELLIPSIS | DT_MODIFYSTRING, nullptr);
    CHECK(sharing == "A text that is much too long");

    TCHAR buffer[64] = _T("A text that is much too long");
    paper.dc.DrawTextEx(buffer, -1, &rect, DT_END_ELLIPSIS | DT_MODIFYSTRING, nullptr);
    CHECK(CString(buffer).Right(3) == "...");
}

TEST_CASE("extents of text agree with each other")
{
    Paper paper(100, 30);
    CDC& dc = paper.dc;
    const CSize extent = dc.GetTextExtent(_T("Extent"), 6);
    CHECK(extent.cx > 0);
    CHECK(dc.GetTextExtent(CString("Extent")) == extent);
    CHECK(dc.GetOutputTextExtent(_T("Extent"), 6) == extent);
    CHECK(dc.GetTabbedTextExtent(CString("Extent"), 0, nullptr) == extent);

    int tabStop = 60;
    const CSize tabbed = dc.GetTabbedTextExtent(_T("a\tb"), 3, 1, &tabStop);
    CHECK(tabbed.cx == 60 + dc.GetTextExtent(_T("b"), 1).cx);
    CHECK(dc.TabbedTextOut(0, 0, CString("a\tb"), 1, &tabStop, 0) == tabbed);
    CHECK(dc.GetOutputTabbedTextExtent(CString("a\tb"), 1, &tabStop) == tabbed);

    int width = 0;
    CHECK(dc.GetCharWidth('E', 'E', &width));
    CHECK(width == dc.GetTextExtent(_T("E"), 1).cx);
    CHECK(dc.GetOutputCharWidth('E', 'E', &width));
    CHECK(width == dc.GetTextExtent(_T("E"), 1).cx);
}

TEST_CASE("the face name of the selected font is told")
{
    Paper paper(10, 10);
    TCHAR face[LF_FACESIZE] = _T("");
    CHECK(paper.dc.GetTextFace(LF_FACESIZE, face) > 0);
    CString name;
    CHECK(paper.dc.GetTextFace(name) > 0);
    CHECK(name == face);
    CHECK_FALSE(name.IsEmpty());
}

// The rest

TEST_CASE("paths are filled, stroked and read")
{
    Paper paper(20, 20);
    CDC& dc = paper.dc;
    CBrush brush(red);
    CBrush* former = dc.SelectObject(&brush);
    CHECK(dc.BeginPath());
    dc.MoveTo(0, 0);
    dc.LineTo(10, 0);
    dc.LineTo(10, 10);
    dc.LineTo(0, 10);
    CHECK(dc.CloseFigure());
    CHECK(dc.EndPath());
    POINT points[8];
    BYTE kinds[8];
    CHECK(dc.GetPath(points, kinds, 8) == 4);
    CHECK(points[2].x == 10);
    CHECK(dc.FillPath());
    CHECK(paper.ToPicture().CountOf(red) == 100);
    dc.SelectObject(former);

    dc.BeginPath();
    dc.Rectangle(2, 2, 8, 8);
    dc.EndPath();
    CHECK(dc.SelectClipPath(RGN_COPY));
    CRect box;
    dc.GetClipBox(&box);
    CHECK(box == CRect(2, 2, 7, 7));
    CHECK_FALSE(dc.StrokePath()); // The path is used up.
}

TEST_CASE("the context enumerates its pens")
{
    Paper paper(10, 10);
    int count = 0;
    paper.dc.EnumObjects(OBJ_PEN, &CountPens, reinterpret_cast<LPARAM>(&count));
    CHECK(count > 0);
}

TEST_CASE("only what a printer draws on is printing")
{
    CDC none;
    CHECK_FALSE(none.IsPrinting());
    Paper paper(10, 10);
    CHECK_FALSE(paper.dc.IsPrinting());
    CHECK(paper.dc.StartDoc(_T("Title")) <= 0); // No printer behind it.
}
