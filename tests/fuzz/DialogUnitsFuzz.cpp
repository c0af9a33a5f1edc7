// The arithmetic of dialog units, and the snapping of windows. Built from units/DialogUnits.cpp.
#include "tests/fuzz/Input.h"

#include "units/DialogUnits.h"

#include <cmath>

namespace {

Input* input;

} // namespace

HDC GetDC(HWND)
{
    return nullptr;
}
int ReleaseDC(HWND, HDC)
{
    return 1;
}
int GetDeviceCaps(HDC, int)
{
    return input->Between(1, 2000);
}
int MulDiv(int number, int factor, int divisor)
{
    return static_cast<int>(static_cast<long long>(number) * factor / divisor);
}
int EnumFonts(HDC, const char*, FontCallback* callback, LPARAM argument)
{
    return input->Byte() % 2 != 0 ? callback(nullptr, nullptr, 0, argument) : 1;
}
HFONT CreateFontIndirect(const LOGFONT*)
{
    return nullptr;
}
HGDIOBJ SelectObject(HDC, HGDIOBJ object)
{
    return object;
}
BOOL DeleteObject(HGDIOBJ)
{
    return TRUE;
}
BOOL GetTextMetrics(HDC, TEXTMETRIC* metrics)
{
    metrics->tmHeight = input->Between(1, 3000);
    metrics->tmExternalLeading = input->Between(0, 100);
    return TRUE;
}
BOOL GetTextExtentPoint32(HDC, const char*, int length, SIZE* size)
{
    REQUIRE(length == 52);
    size->cx = input->Between(26, 100000); // Less makes a base of zero, which has no result.
    size->cy = 1;
    return TRUE;
}
LONG GetDialogBaseUnits()
{
    return input->Between(1, 500) | input->Between(1, 500) << 16;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input made(data, size);
    input = &made;
    const DialogUnits::Base base = {1 + made.Number() % 1000, 1 + made.Number() % 1000};
    const DialogUnits::Box box = {static_cast<int>(made.Number()), static_cast<int>(made.Number()),
                                  static_cast<int>(made.Number()), static_cast<int>(made.Number())};
    const DialogUnits::Box units = DialogUnits::FromPixels(box, base);
    const DialogUnits::Box pixels = DialogUnits::ToPixels(units, base);

    // Where nothing wraps, the way there and back ends at most a unit away.
    if (box.x >= 0 && box.x < 1000000) {
        REQUIRE(units.x >= 0);
        REQUIRE(std::abs(pixels.x - box.x) <= static_cast<int>(base.horizontal) / 8 + 1);
    }
    if (box.cy >= 0 && box.cy < 1000000) {
        REQUIRE(units.cy >= 0);
        REQUIRE(std::abs(pixels.cy - box.cy) <= static_cast<int>(base.vertical) / 16 + 1);
    }

    const double halves = static_cast<int>(made.Number()) / 2.0;
    const int rounded = RoundHalfDown(halves);
    REQUIRE(rounded <= halves && halves - rounded <= 0.5);
    const double any = static_cast<int>(made.Number()) / 97.0;
    REQUIRE(std::abs(RoundHalfDown(any) - any) <= 0.5);

    CREATESTRUCT creation = {box.cy, box.cx, box.y, box.x};
    SnapToDialogUnits(creation);
    return 0;
}
