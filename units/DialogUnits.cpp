#include "units/DialogUnits.h"

#include <limits.h>
#include <math.h>

namespace {

const TCHAR referenceFace[] = _T("MS Mincho");
const int referencePoints = 8;
const int faceFound = 10;

// The average character width is taken over both cases of the alphabet, rounded to nearest.
const TCHAR alphabet[] = _T("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
const int alphabetLength = 52;

/// Answers the argument that EnumFonts was given, so that one enumerated font ends it with that.
int CALLBACK AnswerArgument(const LOGFONT*, const TEXTMETRIC*, DWORD, LPARAM argument)
{
    return static_cast<int>(argument);
}

LOGFONT DescribeReferenceFont(HDC screen)
{
    LOGFONT font = {};
    font.lfHeight = -MulDiv(referencePoints, GetDeviceCaps(screen, LOGPIXELSY), 72);
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    lstrcpy(font.lfFaceName, referenceFace);
    return font;
}

DialogUnits::Base MeasureFont(HDC screen, const LOGFONT& description)
{
    const HFONT font = CreateFontIndirect(&description);
    const HGDIOBJ previous = SelectObject(screen, font);

    TEXTMETRIC metrics = {};
    GetTextMetrics(screen, &metrics);
    SIZE extent = {};
    GetTextExtentPoint32(screen, alphabet, alphabetLength, &extent);

    SelectObject(screen, previous);
    DeleteObject(font);
    return {static_cast<unsigned int>((extent.cx + alphabetLength / 2) / alphabetLength),
            static_cast<unsigned int>(metrics.tmHeight + metrics.tmExternalLeading)};
}

/// A whole number in 32 bits; one that does not fit gives the least of them.
int Truncate(double whole)
{
    return whole >= INT_MIN && whole <= INT_MAX ? static_cast<int>(whole) : INT_MIN;
}

DialogUnits::Base MeasureBase()
{
    DialogUnits::Base base;
    GetFontBaseUnits(&base.horizontal, &base.vertical);
    return base;
}

/// One coordinate in pixels. The product is unsigned and wraps.
int ScaleToPixels(unsigned int base, int units, double unit)
{
    // Kept: a negative value in dialog units becomes a very large positive one in pixels.
    const unsigned int product = base * static_cast<unsigned int>(units);
    return RoundHalfDown(static_cast<double>(product) * unit);
}

} // namespace

void GetFontBaseUnits(unsigned int* pHorizontal, unsigned int* pVertical)
{
    const HDC screen = ::GetDC(nullptr);
    const LOGFONT description = DescribeReferenceFont(screen);
    if (EnumFonts(screen, referenceFace, AnswerArgument, faceFound) == faceFound) {
        const DialogUnits::Base base = MeasureFont(screen, description);
        *pHorizontal = base.horizontal;
        *pVertical = base.vertical;
    } else {
        *pHorizontal = LOWORD(GetDialogBaseUnits());
        *pVertical = HIWORD(GetDialogBaseUnits());
    }
    ::ReleaseDC(nullptr, screen);
}

int RoundHalfDown(double x)
{
    const int above = Truncate(ceil(x));
    const int below = Truncate(floor(x));
    // The sum wraps, which only unsigned arithmetic may.
    const int sum =
        static_cast<int>(static_cast<unsigned int>(below) + static_cast<unsigned int>(above));
    return x > sum * 0.5 ? above : below;
}

void PixelsToDialogUnits(int x, int y, int cx, int cy, int* pX, int* pY, int* pCx, int* pCy)
{
    const DialogUnits::Box units = DialogUnits::FromPixels({x, y, cx, cy}, MeasureBase());
    *pX = units.x;
    *pY = units.y;
    *pCx = units.cx;
    *pCy = units.cy;
}

void DialogUnitsToPixels(int x, int y, int cx, int cy, int* pX, int* pY, int* pCx, int* pCy)
{
    const DialogUnits::Box pixels = DialogUnits::ToPixels({x, y, cx, cy}, MeasureBase());
    *pX = pixels.x;
    *pY = pixels.y;
    *pCx = pixels.cx;
    *pCy = pixels.cy;
}

void SnapToDialogUnits(CREATESTRUCT& creation)
{
    int x, y, cx, cy;
    PixelsToDialogUnits(creation.x, creation.y, creation.cx, creation.cy, &x, &y, &cx, &cy);
    DialogUnitsToPixels(x, y, cx, cy, &creation.x, &creation.y, &creation.cx, &creation.cy);
}

namespace DialogUnits {

Box FromPixels(const Box& pixels, const Base& base)
{
    return {RoundHalfDown(pixels.x * 4.0 / base.horizontal),
            RoundHalfDown(pixels.y * 8.0 / base.vertical),
            RoundHalfDown(pixels.cx * 4.0 / base.horizontal),
            RoundHalfDown(pixels.cy * 8.0 / base.vertical)};
}

Box ToPixels(const Box& units, const Base& base)
{
    return {ScaleToPixels(base.horizontal, units.x, 0.25),
            ScaleToPixels(base.vertical, units.y, 0.125),
            ScaleToPixels(base.horizontal, units.cx, 0.25),
            ScaleToPixels(base.vertical, units.cy, 0.125)};
}

} // namespace DialogUnits
