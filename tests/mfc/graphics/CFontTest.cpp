#include <afxwin.h>

#include <doctest/doctest.h>

#include "testing/Canvas.h"
#include "testing/GdiObjects.h"

using namespace umbra::testing;

namespace {

LOGFONT DataOf(CFont& font)
{
    LOGFONT data{};
    CHECK(font.GetLogFont(&data) == sizeof(data));
    return data;
}

int ScreenDotsPerInch()
{
    const HDC screen = ::GetDC(nullptr);
    const int dots = ::GetDeviceCaps(screen, LOGPIXELSY);
    ::ReleaseDC(nullptr, screen);
    return dots;
}

} // namespace

TEST_CASE("a point font counts in tenths of a point of the screen")
{
    BalancedGdi balance;
    {
        CFont font;
        REQUIRE(font.CreatePointFont(80, _T("Tahoma")));
        const LOGFONT data = DataOf(font);
        CHECK(data.lfHeight == -::MulDiv(80, ScreenDotsPerInch(), 720));
        CHECK(data.lfWidth == 0);
        CHECK(data.lfCharSet == DEFAULT_CHARSET);
        CHECK(CString(data.lfFaceName) == "Tahoma");
    }
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("a point font of a scaled context is measured in its logical units")
{
    Canvas canvas(10, 10);
    CDC* dc = CDC::FromHandle(canvas.Dc());
    dc->SetMapMode(MM_ANISOTROPIC);
    dc->SetWindowExt(300, 300);
    dc->SetViewportExt(100, 100);
    dc->SetViewportOrg(5, 7); // The origin has no part in it.
    CFont font;
    REQUIRE(font.CreatePointFont(720, _T("Tahoma"), dc));
    CHECK(DataOf(font).lfHeight == -3 * dc->GetDeviceCaps(LOGPIXELSY));
}

TEST_CASE("a point font by structure leaves the structure as it is")
{
    LOGFONT wanted{};
    wanted.lfHeight = 120;
    wanted.lfWeight = FW_BOLD;
    wanted.lfItalic = TRUE;
    lstrcpy(wanted.lfFaceName, _T("Courier New"));
    CFont font;
    REQUIRE(font.CreatePointFontIndirect(&wanted));
    CHECK(wanted.lfHeight == 120);
    const LOGFONT data = DataOf(font);
    CHECK(data.lfHeight == -::MulDiv(120, ScreenDotsPerInch(), 720));
    CHECK(data.lfWeight == FW_BOLD);
    CHECK(data.lfItalic == TRUE);
}

TEST_CASE("CreateFont puts every argument in its place")
{
    CFont font;
    REQUIRE(font.CreateFont(-20, 5, 100, 200, 600, TRUE, TRUE, TRUE, SYMBOL_CHARSET, OUT_TT_PRECIS,
                            CLIP_LH_ANGLES, ANTIALIASED_QUALITY, FIXED_PITCH | FF_MODERN,
                            _T("Marlett")));
    const LOGFONT data = DataOf(font);
    CHECK(data.lfHeight == -20);
    CHECK(data.lfWidth == 5);
    CHECK(data.lfEscapement == 100);
    CHECK(data.lfOrientation == 200);
    CHECK(data.lfWeight == 600);
    CHECK(data.lfItalic == TRUE);
    CHECK(data.lfUnderline == TRUE);
    CHECK(data.lfStrikeOut == TRUE);
    CHECK(data.lfCharSet == SYMBOL_CHARSET);
    CHECK(data.lfOutPrecision == OUT_TT_PRECIS);
    CHECK(data.lfClipPrecision == CLIP_LH_ANGLES);
    CHECK(data.lfQuality == ANTIALIASED_QUALITY);
    CHECK(data.lfPitchAndFamily == (FIXED_PITCH | FF_MODERN));
    CHECK(CString(data.lfFaceName) == "Marlett");
}

TEST_CASE("a face name that is too long is cut off")
{
    CFont font;
    REQUIRE(
        font.CreatePointFont(100, _T("A name of a face that has more than thirty-one letters")));
    CHECK(_tcslen(DataOf(font).lfFaceName) == LF_FACESIZE - 1);
}
