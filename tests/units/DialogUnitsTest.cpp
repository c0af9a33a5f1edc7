#include "units/DialogUnits.h"

#include "testing/CallFault.h"
#include "testing/GdiObjects.h"
#include "testing/ImportHook.h"
#include "testing/Text.h"

#include "tests/LibraryFiles.h"

#include <doctest/doctest.h>

#include <limits.h>
#include <math.h>
#include <stdlib.h>
#include <string>

using namespace umbra::testing;

namespace {

const DialogUnits::Base worked = {7, 13};

/// Whether this run has the toolkit's reference font.
bool HasReferenceFont()
{
    const char* font = getenv("UMBRA_TEST_FONT");
    return font != nullptr && std::string(font) == "mincho";
}

/// One value each way, with the bases worked by hand.
int ToUnits(int x)
{
    return DialogUnits::FromPixels({x, 0, 0, 0}, worked).x;
}

int ToPixels(int x)
{
    return DialogUnits::ToPixels({x, 0, 0, 0}, worked).x;
}

int ToVerticalUnits(int y)
{
    return DialogUnits::FromPixels({0, y, 0, 0}, worked).y;
}

int ToVerticalPixels(int y)
{
    return DialogUnits::ToPixels({0, y, 0, 0}, worked).y;
}

/// Stands in for the list of fonts: there is none.
int CALLBACK EnumerateNothing(HDC, LPCTSTR, FONTENUMPROCA, LPARAM)
{
    return 0;
}

/// Stands in for the system's own base units.
LONG WINAPI AnswerWorkedBase()
{
    return MAKELONG(worked.horizontal, worked.vertical);
}

/// What a font is to say of its heights.
TEXTMETRIC leadingMetrics;

/// Stands in for the measuring of a font.
BOOL WINAPI AnswerLeading(HDC, LPTEXTMETRIC metrics)
{
    *metrics = leadingMetrics;
    return TRUE;
}

/// How large the alphabet is to be.
SIZE answeredExtent;

/// Stands in for the measuring of a text.
BOOL WINAPI AnswerExtent(HDC, LPCTSTR, int, LPSIZE extent)
{
    *extent = answeredExtent;
    return TRUE;
}

/// Measures as if the reference font were absent and the system's base units were 7 and 13.
struct WorkedBase
{
    HMODULE umbra = FindModule(UMBRA_DLL);
    ImportHook enumeration{umbra, "gdi32", TEXT_FUNCTION("EnumFonts"), EnumerateNothing};
    ImportHook systemBase{umbra, "user32", "GetDialogBaseUnits", AnswerWorkedBase};
};

LOGFONT notedFont;

HFONT WINAPI NoteFont(const LOGFONT* font)
{
    notedFont = *font;
    return ::CreateFontIndirect(font);
}

} // namespace

TEST_CASE("an exact half is rounded down, towards minus infinity")
{
    CHECK(RoundHalfDown(2.5) == 2);
    CHECK(RoundHalfDown(-2.5) == -3);
    CHECK(RoundHalfDown(0.5) == 0);
    CHECK(RoundHalfDown(-0.5) == -1);
}

TEST_CASE("everything but a half is rounded to the nearest whole number")
{
    CHECK(RoundHalfDown(2.51) == 3);
    CHECK(RoundHalfDown(-2.49) == -2);
    CHECK(RoundHalfDown(2.49) == 2);
    CHECK(RoundHalfDown(-2.51) == -3);
    CHECK(RoundHalfDown(7.0) == 7);
    CHECK(RoundHalfDown(-7.0) == -7);
    CHECK(RoundHalfDown(0.0) == 0);
}

TEST_CASE("a number that does not fit 32 bits has a result all the same")
{
    for (const double number : {2147483648.0, 1e10, 1e300, -1e10, -1e300, double(NAN)})
        CHECK(RoundHalfDown(number) == INT_MIN);
    CHECK(RoundHalfDown(2147483647.0) == INT_MAX);
    CHECK(RoundHalfDown(-2147483648.0) == INT_MIN);
    // An x of thousands of millions of dialog units, as a font of one pixel has it.
    CHECK(DialogUnits::FromPixels({INT_MAX, 0, 0, 0}, {1, 1}).x == INT_MIN);
}

TEST_CASE("the sum of both neighbours wraps at 32 bits")
{
    // 1073741824 + 1073741825 wraps to a negative sum, so the half of it is below: rounded up.
    CHECK(RoundHalfDown(1073741824.25) == 1073741825);
    // One less does not wrap.
    CHECK(RoundHalfDown(1073741822.25) == 1073741822);
}

TEST_CASE("with bases of 7 and 13, pixels and dialog units come out as worked by hand")
{
    CHECK(ToUnits(11) == 6);
    CHECK(ToPixels(6) == 10);
    CHECK(ToUnits(10) == 6);
    CHECK(ToUnits(100) == 57);
    CHECK(ToPixels(57) == 100);
    CHECK(ToVerticalUnits(20) == 12);
    CHECK(ToVerticalPixels(12) == 19);
    CHECK(ToVerticalUnits(100) == 62);
    CHECK(ToVerticalPixels(62) == 101);
    CHECK(ToUnits(0) == 0);
    CHECK(ToPixels(0) == 0);
}

// Kept: a negative value in dialog units becomes a very large positive one in pixels.
TEST_CASE("a negative value in dialog units becomes a very large one in pixels")
{
    CHECK(ToUnits(-2) == -1);
    CHECK(ToPixels(-1) == 1073741822);
}

TEST_CASE("all four values of a box are converted, each with its own base")
{
    const DialogUnits::Box units = DialogUnits::FromPixels({11, 20, 100, 100}, worked);
    CHECK(units.x == 6);
    CHECK(units.y == 12);
    CHECK(units.cx == 57);
    CHECK(units.cy == 62);
    const DialogUnits::Box pixels = DialogUnits::ToPixels(units, worked);
    CHECK(pixels.x == 10);
    CHECK(pixels.y == 19);
    CHECK(pixels.cx == 100);
    CHECK(pixels.cy == 101);
}

TEST_CASE("without the reference font the system's dialog base units are used")
{
    const WorkedBase base;
    REQUIRE(base.enumeration.IsInstalled());
    REQUIRE(base.systemBase.IsInstalled());

    unsigned int horizontal = 0, vertical = 0;
    GetFontBaseUnits(&horizontal, &vertical);
    CHECK(horizontal == 7);
    CHECK(vertical == 13);

    int x, y, cx, cy;
    PixelsToDialogUnits(11, 20, 100, 100, &x, &y, &cx, &cy);
    CHECK(x == 6);
    CHECK(y == 12);
    CHECK(cx == 57);
    CHECK(cy == 62);
    DialogUnitsToPixels(x, y, cx, cy, &x, &y, &cx, &cy);
    CHECK(x == 10);
    CHECK(y == 19);
    CHECK(cx == 100);
    CHECK(cy == 101);
}

TEST_CASE("the system's base units are asked for twice")
{
    const WorkedBase base;
    const CountCalls calls(FindModule(UMBRA_DLL), "user32", "GetDialogBaseUnits");
    unsigned int horizontal, vertical;
    GetFontBaseUnits(&horizontal, &vertical);
    CHECK(calls.Calls() == 2);
}

TEST_CASE("a creation record is moved onto the grid in place")
{
    const WorkedBase base;
    CREATESTRUCT creation = {};
    creation.x = 11;
    creation.y = 20;
    creation.cx = 100;
    creation.cy = 100;
    SnapToDialogUnits(creation);
    CHECK(creation.x == 10);
    CHECK(creation.y == 19);
    CHECK(creation.cx == 100);
    CHECK(creation.cy == 101);
}

TEST_CASE("the base units are those of the reference font where it is installed, else the system's")
{
    unsigned int horizontal = 0, vertical = 0;
    GetFontBaseUnits(&horizontal, &vertical);
    MESSAGE("base units ", horizontal, _T(" x "), vertical);
    if (!HasReferenceFont()) {
        CHECK(horizontal == LOWORD(::GetDialogBaseUnits()));
        CHECK(vertical == HIWORD(::GetDialogBaseUnits()));
        return;
    }

    // Measured here by other means: the text metrics' own average and the font's cell.
    const HDC screen = ::GetDC(nullptr);
    const HFONT font = ::CreateFont(-::MulDiv(8, ::GetDeviceCaps(screen, LOGPIXELSY), 72), 0, 0, 0,
                                    400, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, _T("MS Mincho"));
    const HGDIOBJ former = ::SelectObject(screen, font);
    TEXTMETRIC metrics;
    ::GetTextMetrics(screen, &metrics);
    int alphabet = 0;
    for (TCHAR letter = 'A'; letter <= 'Z'; ++letter) {
        const TCHAR both[] = {letter, static_cast<TCHAR>(letter - 'A' + 'a')};
        SIZE extent;
        ::GetTextExtentPoint32(screen, both, 2, &extent);
        alphabet += extent.cx;
    }
    ::SelectObject(screen, former);
    ::DeleteObject(font);
    ::ReleaseDC(nullptr, screen);
    CHECK(horizontal == static_cast<unsigned int>((alphabet + 26) / 52));
    CHECK(vertical == static_cast<unsigned int>(metrics.tmHeight + metrics.tmExternalLeading));
}

TEST_CASE("the reference font is asked for in its size and weight, in any character set")
{
    if (!HasReferenceFont())
        return; // The other run of this file has the font.
    const ImportHook creation(FindModule(UMBRA_DLL), "gdi32", TEXT_FUNCTION("CreateFontIndirect"),
                              NoteFont);
    REQUIRE(creation.IsInstalled());
    unsigned int horizontal, vertical;
    GetFontBaseUnits(&horizontal, &vertical);
    CHECK(notedFont.lfHeight < 0);
    CHECK(notedFont.lfWeight == FW_NORMAL);
    CHECK(notedFont.lfCharSet == DEFAULT_CHARSET);
    CHECK(lstrcmp(notedFont.lfFaceName, _T("MS Mincho")) == 0);
}

TEST_CASE("the vertical base includes the external leading")
{
    if (!HasReferenceFont())
        return; // The other run of this file has the font.
    leadingMetrics = {};
    leadingMetrics.tmHeight = 12;
    leadingMetrics.tmExternalLeading = 3;
    const ImportHook metrics(FindModule(UMBRA_DLL), "gdi32", TEXT_FUNCTION("GetTextMetrics"),
                             AnswerLeading);
    REQUIRE(metrics.IsInstalled());
    unsigned int horizontal, vertical;
    GetFontBaseUnits(&horizontal, &vertical);
    CHECK(vertical == 15);
}

TEST_CASE("the horizontal base is the average width of the alphabet, rounded to nearest")
{
    if (!HasReferenceFont())
        return; // The other run of this file has the font.
    const ImportHook extent(FindModule(UMBRA_DLL), "gdi32", TEXT_FUNCTION("GetTextExtentPoint32"),
                            AnswerExtent);
    REQUIRE(extent.IsInstalled());
    unsigned int horizontal, vertical;
    answeredExtent = {52 * 6 + 25, 12};
    GetFontBaseUnits(&horizontal, &vertical);
    CHECK(horizontal == 6);
    answeredExtent = {52 * 6 + 26, 12};
    GetFontBaseUnits(&horizontal, &vertical);
    CHECK(horizontal == 7);
}

TEST_CASE("nothing is cached: every conversion measures anew")
{
    const CountCalls calls(FindModule(UMBRA_DLL), "gdi32", TEXT_FUNCTION("EnumFonts"));
    REQUIRE(calls.IsInstalled());
    int x, y, cx, cy;
    PixelsToDialogUnits(1, 2, 3, 4, &x, &y, &cx, &cy);
    DialogUnitsToPixels(1, 2, 3, 4, &x, &y, &cx, &cy);
    CHECK(calls.Calls() == 2);
}

TEST_CASE("measuring leaves no graphics object behind")
{
    unsigned int horizontal, vertical;
    GetFontBaseUnits(&horizontal, &vertical);
    const BalancedGdi objects;
    for (int i = 0; i < 100; ++i)
        GetFontBaseUnits(&horizontal, &vertical);
    CHECK_MESSAGE(objects.IsBalanced(), objects.Describe());
}
