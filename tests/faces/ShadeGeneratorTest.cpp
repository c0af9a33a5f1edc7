#include "faces/ShadeGenerator.h"

#include "tests/faces/FacesModule.h"
#include "tests/faces/PlainShade.h"

#include <doctest/doctest.h>

#include "testing/CallFault.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>

using namespace umbra::testing;

namespace {

const ShadeColors plainColors = {RGB(128, 100, 7), RGB(212, 208, 200), RGB(255, 250, 255)};
const COLORREF tint = RGB(180, 20, 230);

/// The six bitmaps of a button.
struct Faces
{
    PaletteDib normal, down, disabled, over, focusH, focusV;

    ShadeFaces Get() { return {normal, down, disabled, over, focusH, focusV}; }
    void Fill(int width, int height, const ShadeLook& look, ShadeRandom& random, int border = 4)
    {
        FillShadeFaces(Get(), width, height, border, look, plainColors, random);
    }
    void Fill(int width, int height, const ShadeLook& look)
    {
        ShadeRandom random;
        Fill(width, height, look, random);
    }
};

/// A colour by its channels, which may be added and divided.
struct Channels
{
    int red, green, blue;
    bool operator==(const Channels&) const = default;
};

/// A plain colour taken apart.
Channels ChannelsOf(COLORREF color)
{
    return {GetRValue(color), GetGValue(color), GetBValue(color)};
}

/// An entry of a bitmap's colour table.
Channels ColorOf(const PaletteDib& dib, int index)
{
    const RGBQUAD& entry = dib.GetPalette()[index];
    CHECK(int{entry.rgbReserved} == 0);
    return {entry.rgbRed, entry.rgbGreen, entry.rgbBlue};
}

/// The colour that many parts of the whole way between two.
Channels Mix(Channels from, Channels to, int part, int whole)
{
    const auto mix = [=](int a, int b) { return (a * (whole - part) + b * part) / whole; };
    return {mix(from.red, to.red), mix(from.green, to.green), mix(from.blue, to.blue)};
}

// Entry by entry, in the order in which they are written.
Channels PlainColor(const ShadeColors& colors, int index)
{
    Channels palette[256];
    for (int i = 0; i <= 128; ++i)
        palette[i] = Mix(ChannelsOf(colors.shadow), ChannelsOf(colors.face), i, 128);
    for (int j = 1; j <= 128; ++j)
        palette[j + 127] = Mix(ChannelsOf(colors.face), ChannelsOf(colors.highlight), j, 128);
    return palette[index];
}

/// Whether two bitmaps have one size and the same palette indexes.
bool HaveSamePixels(const PaletteDib& a, const PaletteDib& b)
{
    if (!a.IsValid() || !b.IsValid() || a.GetWidth() != b.GetWidth() ||
        a.GetHeight() != b.GetHeight())
        return false;
    for (int r = 0; r < a.GetHeight(); ++r) {
        if (std::memcmp(a.GetBits() + r * a.GetStride(), b.GetBits() + r * b.GetStride(),
                        a.GetWidth()) != 0)
            return false;
    }
    return true;
}

} // namespace

TEST_CASE("the plain palette runs from the shadow through the face to the highlight colour")
{
    Faces faces;
    faces.Fill(50, 20, {SHADE_NOISE, 20, 0, 0, tint});
    for (const PaletteDib* dib : {&faces.normal, &faces.focusH, &faces.focusV}) {
        for (int i = 0; i < 256; ++i) {
            CAPTURE(i);
            CHECK(ColorOf(*dib, i) == PlainColor(plainColors, i));
        }
        CHECK(ColorOf(*dib, 0) == ChannelsOf(plainColors.shadow));
        // Kept: the second half begins one step on the way to the highlight colour, so that entry
        // 128 is a touch lighter than the face colour, which no entry is, and entry 255 is the
        // highlight itself.
        CHECK(ColorOf(*dib, 127) == Channels{211, 207, 198});
        CHECK(ColorOf(*dib, 128) == Channels{212, 208, 200});
        CHECK(ColorOf(*dib, 255) == ChannelsOf(plainColors.highlight));
    }
}

TEST_CASE("palettes between extreme colours stay within their channels")
{
    const COLORREF black = RGB(0, 0, 0);
    const COLORREF white = RGB(255, 255, 255);
    for (const ShadeColors& colors : {ShadeColors{black, white, black}, {white, black, white}}) {
        Faces faces;
        ShadeRandom random;
        FillShadeFaces(faces.Get(), 5, 5, 4, {SHADE_ROWS, 0, 0, 0, 0}, colors, random);
        for (int i = 0; i < 256; ++i)
            CHECK(ColorOf(faces.normal, i) == PlainColor(colors, i));
    }
}

TEST_CASE("colouring blends the faces' palettes and leaves the focus lines plain")
{
    for (int percent : {0, 1, 30, 99, 100, 101, 255}) {
        CAPTURE(percent);
        const int part = percent > 100 ? 100 : percent;
        Faces faces;
        faces.Fill(30, 20, {SHADE_ROWS, 10, 0, static_cast<BYTE>(percent), tint});
        for (int i = 0; i < 256; ++i) {
            CHECK(ColorOf(faces.normal, i) ==
                  Mix(PlainColor(plainColors, i), ChannelsOf(tint), part, 100));
            CHECK(ColorOf(faces.focusH, i) == PlainColor(plainColors, i));
            CHECK(ColorOf(faces.focusV, i) == PlainColor(plainColors, i));
        }
    }
}

TEST_CASE("full colouring without highlight makes four faces of one colour")
{
    // What the standard buttons of the dialogs are given.
    Faces faces;
    faces.Fill(72, 23, {SHADE_DIAGONAL, 0, 0, 100, tint});
    for (const PaletteDib* face : {&faces.normal, &faces.over, &faces.down, &faces.disabled})
        for (int i = 0; i < 256; ++i)
            CHECK(ColorOf(*face, i) == ChannelsOf(tint));
}

TEST_CASE("the hot and the pressed face are the normal one, lighter")
{
    for (int percent : {0, 20, 100, 200}) {
        CAPTURE(percent);
        const int part = percent > 100 ? 100 : percent;
        Faces faces;
        faces.Fill(61, 23, {SHADE_CROSS_BUMP, 33, static_cast<BYTE>(percent), 40, tint});
        for (int i = 0; i < 256; ++i) {
            const Channels normal = ColorOf(faces.normal, i);
            const Channels hot = Mix(normal, ChannelsOf(plainColors.highlight), part, 100);
            CHECK(ColorOf(faces.over, i) == hot);
            CHECK(ColorOf(faces.down, i) == hot);
            CHECK(ColorOf(faces.disabled, i) == normal);
        }
        for (const PaletteDib* face : {&faces.over, &faces.down, &faces.disabled})
            CHECK(HaveSamePixels(*face, faces.normal));
    }
}

TEST_CASE("focus lines alternate shadow and highlight, inside the border")
{
    Faces faces;
    faces.Fill(50, 21, {SHADE_NOISE, 20, 0, 0, tint});
    CHECK(faces.focusH.GetWidth() == 41);
    CHECK(faces.focusH.GetHeight() == 1);
    CHECK(faces.focusV.GetWidth() == 1);
    CHECK(faces.focusV.GetHeight() == 12);
    for (int i = 0; i < 41; ++i)
        CHECK(int{faces.focusH.GetBits()[i]} == (i % 2 == 0 ? 0 : 255));
    for (int i = 0; i < 12; ++i)
        CHECK(int{faces.focusV.GetBits()[i * 4]} == (i % 2 == 0 ? 0 : 255));
}

TEST_CASE("focus lines are never shorter than one pixel")
{
    for (const auto& [side, length] : {std::pair{1, 1}, {8, 1}, {9, 1}, {10, 1}, {11, 2}}) {
        CAPTURE(side);
        Faces faces;
        faces.Fill(side, side, {SHADE_NOISE, 20, 0, 0, tint});
        CHECK(faces.focusH.GetWidth() == length);
        CHECK(faces.focusV.GetHeight() == length);
    }
}

TEST_CASE("borders of any size are borne")
{
    ShadeRandom random;
    Faces faces;
    faces.Fill(20, 20, {SHADE_NOISE, 20, 0, 0, tint}, random, INT_MAX);
    CHECK(faces.focusH.GetWidth() == 1);
    faces.Fill(20, 20, {SHADE_NOISE, 20, 0, 0, tint}, random, 0);
    CHECK(faces.focusH.GetWidth() == 19);
    faces.Fill(20, 20, {SHADE_NOISE, 20, 0, 0, tint}, random, INT_MIN);
    CHECK_FALSE(faces.focusH.IsValid());
    CHECK(faces.normal.IsValid());
}

TEST_CASE("the face has the pixels of its style, taken from the stream")
{
    for (unsigned style = 0; style <= 9; ++style) {
        CAPTURE(style);
        PlainShade plain(83, 29, 40, 4711);
        plain.Fill(style);
        Faces faces;
        ShadeRandom random(4711);
        faces.Fill(83, 29, {style, 40, 10, 50, tint}, random);
        for (int r = 0; r < 29; ++r)
            CHECK(std::memcmp(faces.normal.GetBits() + r * 84, plain.Row(r), 83) == 0);
        CHECK(random.GetState() == plain.GetState());
    }
}

TEST_CASE("two fills give different grain, in the same memory")
{
    Faces faces;
    ShadeRandom random;
    const ShadeLook look = {SHADE_NOISE, 50, 10, 10, tint};
    faces.Fill(80, 30, look, random);
    const BYTE* bits = faces.normal.GetBits();
    const BYTE* downBits = faces.down.GetBits();
    PaletteDib before;
    before.Clone(faces.normal);
    faces.Fill(80, 30, look, random);
    CHECK_FALSE(HaveSamePixels(faces.normal, before));
    CHECK(faces.normal.GetBits() == bits);
    CHECK(faces.down.GetBits() == downBits);
}

TEST_CASE("faces follow a new size")
{
    Faces faces;
    faces.Fill(80, 30, {SHADE_NOISE, 50, 10, 10, tint});
    faces.Fill(31, 47, {SHADE_NOISE, 50, 10, 10, tint});
    for (const PaletteDib* face : {&faces.normal, &faces.over, &faces.down, &faces.disabled}) {
        CHECK(face->GetWidth() == 31);
        CHECK(face->GetHeight() == 47);
    }
}

TEST_CASE("a window without area has faces without pixels")
{
    for (const auto& [width, height] : {std::pair{0, 0}, {0, 20}, {20, 0}}) {
        for (unsigned style = 0; style <= 8; ++style) {
            Faces faces;
            faces.Fill(width, height, {style, 20, 10, 10, tint});
            CHECK(faces.normal.IsValid());
            CHECK(faces.normal.GetSize() == 40 + 1024);
            CHECK(faces.focusH.IsValid());
        }
    }
}

TEST_CASE("an impossible size leaves the faces empty and takes no random number")
{
    Faces faces;
    ShadeRandom random(3);
    faces.Fill(20, 20, {SHADE_NOISE, 20, 0, 0, tint}, random);
    const auto state = random.GetState();
    faces.Fill(-1, 20, {SHADE_NOISE, 20, 0, 0, tint}, random);
    for (const PaletteDib* face : {&faces.normal, &faces.over, &faces.down, &faces.disabled})
        CHECK_FALSE(face->IsValid());
    CHECK(faces.focusH.IsValid());
    CHECK(random.GetState() == state);
}

TEST_CASE("whichever allocation fails, faces are whole or empty")
{
    const ShadeLook look = {SHADE_CROSS_BUMP, 20, 10, 10, tint};
    bool failed = true;
    int nth = 0;
    while (failed) {
        ++nth;
        CAPTURE(nth);
        Faces faces;
        ShadeRandom random;
        {
            FailNth noMemory(FacesModule(), "msvcrt", "malloc", nth);
            faces.Fill(60, 20, look, random);
            failed = noMemory.Failed() != 0;
        }
        for (const PaletteDib* face : {&faces.over, &faces.down, &faces.disabled}) {
            if (face->IsValid())
                CHECK(HaveSamePixels(*face, faces.normal));
        }
        if (!faces.normal.IsValid())
            CHECK_FALSE(faces.disabled.IsValid());
    }
    // Six bitmaps and the rows to work in.
    CHECK(nth > 7);
}

TEST_CASE("the run-time's own random numbers are neither used nor disturbed")
{
    std::srand(99);
    const int first = std::rand();
    const int second = std::rand();
    std::srand(99);
    CHECK(std::rand() == first);
    Faces faces;
    faces.Fill(80, 30, {SHADE_SCRATCHED, 50, 10, 10, tint}, ShadeRandom::OfProcess());
    CHECK(std::rand() == second);

    CountCalls calls(FacesModule(), "msvcrt", "rand");
    faces.Fill(80, 30, {SHADE_SCRATCHED, 50, 10, 10, tint}, ShadeRandom::OfProcess());
    CHECK(calls.Calls() == 0);
}

TEST_CASE("the system's colours are those of its buttons")
{
    const ShadeColors colors = ShadeColors::OfSystem();
    CHECK(colors.shadow == ::GetSysColor(COLOR_BTNSHADOW));
    CHECK(colors.face == ::GetSysColor(COLOR_BTNFACE));
    CHECK(colors.highlight == ::GetSysColor(COLOR_BTNHIGHLIGHT));
}

#ifndef _WIN64

namespace {

/// The arguments of FillShadeFaces.
using FillArguments = std::array<std::uintptr_t, 8>;

template <class Argument>
std::uintptr_t AddressOf(const Argument& argument)
{
    return reinterpret_cast<std::uintptr_t>(&argument);
}

/// Calls it as 32-bit Windows calls windows: with a stack that is aligned to 4 bytes only.
void FillWithStackAt(unsigned offset, const FillArguments& arguments)
{
    auto* function = &FillShadeFaces;
    asm volatile("movl %%esp, %%edi\n\t"
                 "andl $-16, %%esp\n\t"
                 "subl %[offset], %%esp\n\t"
                 "pushl 28(%[list])\n\t"
                 "pushl 24(%[list])\n\t"
                 "pushl 20(%[list])\n\t"
                 "pushl 16(%[list])\n\t"
                 "pushl 12(%[list])\n\t"
                 "pushl 8(%[list])\n\t"
                 "pushl 4(%[list])\n\t"
                 "pushl (%[list])\n\t"
                 "call *%[function]\n\t"
                 "movl %%edi, %%esp"
                 : [function] "+a"(function)
                 : [offset] "b"(offset), [list] "S"(arguments.data())
                 : "edi", "ecx", "edx", "memory", "cc");
}

} // namespace

TEST_CASE("a stack that the caller has not aligned does no harm")
{
    for (const ShadeEngine engine : {ShadeEngine::Sse2, ShadeEngine::Avx2}) {
        if (!HasShadeEngine(engine))
            continue;
        for (unsigned style = 0; style <= 9; ++style) {
            CAPTURE(style);
            const ShadeLook look = {style, 40, 10, 50, tint};
            Faces expected;
            ShadeRandom random(4711);
            expected.Fill(83, 29, look, random);
            for (const unsigned offset : {4u, 8u, 12u}) {
                CAPTURE(offset);
                Faces faces;
                const ShadeFaces bitmaps = faces.Get();
                ShadeRandom again(4711);
                FillWithStackAt(offset, {AddressOf(bitmaps), 83, 29, 4, AddressOf(look),
                                         AddressOf(plainColors), AddressOf(again),
                                         static_cast<std::uintptr_t>(engine)});
                CHECK(HaveSamePixels(faces.normal, expected.normal));
            }
        }
    }
}

#endif
