#include <atlimage.h>

#include <doctest/doctest.h>

#include "testing/GdiObjects.h"

#include "tests/mfc/files/TestFolder.h"

#include <string>

using namespace umbra::testing;

namespace {

constexpr COLORREF red = RGB(255, 0, 0), green = RGB(0, 255, 0), blue = RGB(0, 0, 255);

/// A picture of 4 by 2 pixels: red above, with a green first pixel, and blue below.
void Paint(CImage& image, int bitsPerPixel = 24)
{
    REQUIRE(image.Create(4, 2, bitsPerPixel));
    for (int x = 0; x < 4; ++x) {
        image.SetPixel(x, 0, red);
        image.SetPixelRGB(x, 1, 0, 0, 255);
    }
    image.SetPixel(0, 0, green);
}

void CheckPainted(const CImage& image)
{
    REQUIRE(image.GetWidth() == 4);
    REQUIRE(image.GetHeight() == 2);
    CHECK(image.GetPixel(0, 0) == green);
    CHECK(image.GetPixel(3, 0) == red);
    CHECK(image.GetPixel(3, 1) == blue);
}

/// A stream in memory, released at the end.
struct MemoryStream
{
    explicit MemoryStream(const std::string& content = "")
    {
        REQUIRE(SUCCEEDED(::CreateStreamOnHGlobal(NULL, TRUE, &stream)));
        stream->Write(content.data(), static_cast<ULONG>(content.size()), NULL);
        Rewind();
    }
    ~MemoryStream() { stream->Release(); }
    MemoryStream(const MemoryStream&) = delete;
    MemoryStream& operator=(const MemoryStream&) = delete;

    void Rewind() { stream->Seek({}, STREAM_SEEK_SET, NULL); }

    IStream* stream = NULL;
};

std::string ReadFile(LPCTSTR path)
{
    CFile file(path, CFile::modeRead);
    std::string content(static_cast<size_t>(file.GetLength()), '\0');
    file.Read(content.data(), static_cast<UINT>(content.size()));
    return content;
}

/// A bitmap to draw on, white at first.
struct Target
{
    Target()
    {
        image.Create(8, 4, 32);
        dc = image.GetDC();
        ::PatBlt(dc, 0, 0, 8, 4, WHITENESS);
    }
    ~Target() { image.ReleaseDC(); }
    Target(const Target&) = delete;
    Target& operator=(const Target&) = delete;
    COLORREF At(int x, int y) const { return ::GetPixel(dc, x, y); }

    CImage image;
    HDC dc;
};

constexpr COLORREF white = RGB(255, 255, 255);

} // namespace

TEST_CASE("an object without a picture says so, and draws nothing")
{
    const BalancedGdi gdi;
    {
        CImage image;
        CHECK(image.IsNull());
        CHECK(static_cast<HBITMAP>(image) == NULL);
        CHECK_FALSE(image.IsDIBSection());
        CHECK(image.GetBits() == NULL);
        CHECK(image.GetPixelAddress(0, 0) == NULL);
        CHECK(image.GetMaxColorTableEntries() == 0);
        CHECK(image.GetTransparentColor() == -1);
        const Target target;
        CHECK_FALSE(image.Draw(target.dc, 0, 0));
        CHECK_FALSE(image.BitBlt(target.dc, 0, 0));
        CHECK_FALSE(image.AlphaBlend(target.dc, 0, 0));
        CHECK_FALSE(image.TransparentBlt(target.dc, 0, 0, 4, 4, red));
        CHECK(image.Save(_T("never.bmp")) == E_INVALIDARG);
        image.Destroy();
        CHECK_FALSE(image.Create(0, 4, 24));
        CHECK_FALSE(image.Create(4, 4, 7));
        CHECK_FALSE(image.Create(4, 4, 24, CImage::createAlphaChannel));
        CHECK_FALSE(image.CreateEx(4, 4, 16, BI_BITFIELDS));
        CHECK(image.IsNull());
    }
    CHECK_MESSAGE(gdi.IsBalanced(), gdi.Describe());
}

TEST_CASE("the first row is last in memory, unless the height is negative")
{
    const BalancedGdi gdi;
    {
        CImage image;
        Paint(image);
        CHECK(image.IsDIBSection());
        CHECK(image.GetBPP() == 24);
        CHECK(image.GetPitch() == -12);
        const auto* first = static_cast<const BYTE*>(image.GetBits());
        CHECK(image.GetPixelAddress(0, 0) == first);
        CHECK(first[1] == 255); // Blue, green, red.
        CHECK(image.GetPixelAddress(1, 1) == first - 12 + 3);
        CHECK(image.GetPixelAddress(4, 0) == NULL);
        CHECK(image.GetPixelAddress(0, -1) == NULL);

        REQUIRE(image.Create(4, -2, 32));
        CHECK(image.GetHeight() == 2);
        CHECK(image.GetPitch() == 16);
        const DWORD masks[3] = {0xf800, 0x07e0, 0x001f};
        REQUIRE(image.CreateEx(2, 2, 16, BI_BITFIELDS, masks));
        image.SetPixel(0, 0, green);
        CHECK(*static_cast<WORD*>(image.GetPixelAddress(0, 0)) == 0x07e0);
    }
    CHECK_MESSAGE(gdi.IsBalanced(), gdi.Describe());
}

TEST_CASE("pixels of few bits are set by their colours' indexes")
{
    for (const int bits : {1, 4, 8}) {
        CAPTURE(bits);
        CImage image;
        REQUIRE(image.Create(5, 2, bits));
        CHECK(image.IsIndexed());
        CHECK(image.GetMaxColorTableEntries() == 1 << bits);
        const RGBQUAD colors[2] = {{255, 0, 0, 0}, {0, 255, 0, 0}};
        image.SetColorTable(0, 2, colors);
        RGBQUAD read[2] = {};
        image.GetColorTable(0, 2, read);
        CHECK(read[0].rgbBlue == 255);
        CHECK(read[1].rgbGreen == 255);
        image.SetPixelIndexed(1, 0, 1);
        image.SetPixelIndexed(4, 1, 1);
        image.SetPixelIndexed(4, 1, 1 << bits); // No such colour.
        image.SetPixelIndexed(9, 9, 1);
        CHECK(image.GetPixel(0, 0) == blue);
        CHECK(image.GetPixel(1, 0) == green);
        CHECK(image.GetPixel(4, 1) == green);
        CHECK(image.GetPixel(3, 1) == blue);
    }
}

TEST_CASE("bitmaps are taken and given up")
{
    const BalancedGdi gdi;
    {
        CImage image;
        const HBITMAP plain = ::CreateBitmap(3, 2, 1, 1, NULL);
        image.Attach(plain);
        CHECK(static_cast<HBITMAP>(image) == plain);
        CHECK(image.GetWidth() == 3);
        CHECK(image.GetHeight() == 2);
        CHECK(image.GetBPP() == 1);
        CHECK_FALSE(image.IsDIBSection());
        CHECK_FALSE(image.IsIndexed());
        CHECK(image.GetPitch() == 0);
        CHECK(image.Detach() == plain);
        CHECK(image.IsNull());
        CHECK(image.GetWidth() == 0);
        CHECK(::DeleteObject(plain));

        Paint(image);
        const HBITMAP section = image.Detach();
        image.Attach(section);
        CHECK(image.GetPitch() == -12);
        CheckPainted(image);
        image.Attach(::CreateBitmap(3, 2, 1, 1, NULL)); // The section is deleted.
        CHECK(::GetObjectType(section) == 0);
    }
    CHECK_MESSAGE(gdi.IsBalanced(), gdi.Describe());
}

TEST_CASE("a picture is saved and loaded in the format of the file's name")
{
    const BalancedGdi gdi;
    {
        const TestFolder folder;
        CImage image;
        Paint(image);
        const std::pair<LPCTSTR, std::string> files[] = {
            {_T("picture.bmp"), "BM"}, {_T("picture.PNG"), "\x89PNG"}, {_T("picture"), "BM"}};
        for (const auto& [name, start] : files) {
            CAPTURE(start);
            REQUIRE(image.Save(folder / name) == S_OK);
            CHECK(ReadFile(folder / name).substr(0, start.size()) == start);
            CImage loaded;
            REQUIRE(loaded.Load(folder / name) == S_OK);
            CHECK(loaded.IsDIBSection());
            CheckPainted(loaded);
        }
        REQUIRE(image.Save(folder / _T("photo.jpg"), Gdiplus::ImageFormatJPEG) == S_OK);
        CImage photo;
        REQUIRE(photo.Load(folder / _T("photo.jpg")) == S_OK);
        CHECK(photo.GetWidth() == 4);
        CHECK(photo.GetBPP() == 24);
        CHECK(image.Save(folder / _T("picture.unknown")) == E_FAIL);
        CHECK(image.Save(folder / _T("no folder\\picture.bmp")) != S_OK);
    }
    CHECK_MESSAGE(gdi.IsBalanced(), gdi.Describe());
}

TEST_CASE("a picture goes through a stream, with its colours' indexes and transparent colour")
{
    CImage image;
    Paint(image, 8);
    const RGBQUAD colors[3] = {{0, 0, 255, 0}, {0, 255, 0, 0}, {255, 0, 0, 0}};
    image.SetColorTable(0, 3, colors);
    for (int x = 0; x < 4; ++x) {
        image.SetPixelIndexed(x, 0, x == 0 ? 1 : 0);
        image.SetPixelIndexed(x, 1, 2);
    }
    MemoryStream stream;
    REQUIRE(image.Save(stream.stream, Gdiplus::ImageFormatPNG) == S_OK);
    stream.Rewind();
    CImage loaded;
    REQUIRE(loaded.Load(stream.stream) == S_OK);
    CheckPainted(loaded);
    CHECK(loaded.GetBPP() == 8);
    CHECK(image.Save(stream.stream, GUID_NULL) == E_FAIL);
    CHECK(image.Save(static_cast<IStream*>(NULL), Gdiplus::ImageFormatPNG) == E_INVALIDARG);
}

TEST_CASE("opacity survives a file, and is drawn")
{
    const BalancedGdi gdi;
    {
        CImage image;
        REQUIRE(image.Create(4, 2, 32, CImage::createAlphaChannel));
        for (int y = 0; y < 2; ++y) {
            for (int x = 0; x < 4; ++x) {
                const DWORD halfRed = 0x80800000; // Multiplied by the opacity.
                *static_cast<DWORD*>(image.GetPixelAddress(x, y)) = x == 0 ? 0 : halfRed;
            }
        }
        MemoryStream stream;
        REQUIRE(image.Save(stream.stream, Gdiplus::ImageFormatPNG) == S_OK);
        stream.Rewind();
        CImage loaded;
        REQUIRE(loaded.Load(stream.stream) == S_OK);
        CHECK(loaded.GetBPP() == 32);
        const Target target;
        REQUIRE(loaded.Draw(target.dc, 0, 0));
        CHECK(target.At(0, 0) == white);
        CHECK(target.At(4, 0) == white);
        const COLORREF mixed = target.At(1, 1);
        CHECK(GetRValue(mixed) == 255);
        CHECK(GetGValue(mixed) >= 125);
        CHECK(GetGValue(mixed) <= 130);
    }
    CHECK_MESSAGE(gdi.IsBalanced(), gdi.Describe());
}

TEST_CASE("what is no picture, or is damaged, fails and leaves the object as it was")
{
    const BalancedGdi gdi;
    {
        const TestFolder folder;
        CImage image;
        Paint(image);
        CHECK(FAILED(image.Load(folder / _T("missing.png"))));
        CHECK(image.Load(static_cast<LPCTSTR>(NULL)) == E_INVALIDARG);
        CHECK(image.Load(static_cast<IStream*>(NULL)) == E_INVALIDARG);
        WriteFile(folder / _T("text.bmp"), "This is no picture.");
        CHECK(FAILED(image.Load(folder / _T("text.bmp"))));
        WriteFile(folder / _T("empty.bmp"), "");
        CHECK(FAILED(image.Load(folder / _T("empty.bmp"))));
        REQUIRE(image.Save(folder / _T("whole.png")) == S_OK);
        const std::string whole = ReadFile(folder / _T("whole.png"));
        for (size_t length = 0; length < whole.size(); length += 3) {
            CAPTURE(length);
            const MemoryStream cut(whole.substr(0, length));
            CImage other;
            const HRESULT result = other.Load(cut.stream); // Some systems show what is there.
            CHECK(other.IsNull() == FAILED(result));
            if (length < 8) // Not even the signature.
                CHECK(FAILED(result));
        }
        CheckPainted(image);
    }
    CHECK_MESSAGE(gdi.IsBalanced(), gdi.Describe());
}

TEST_CASE("a picture is drawn as it is, stretched, and in parts")
{
    const BalancedGdi gdi;
    {
        CImage image;
        Paint(image);
        const Target target;
        REQUIRE(image.Draw(target.dc, CPoint(1, 1)));
        CHECK(target.At(0, 1) == white);
        CHECK(target.At(1, 1) == green);
        CHECK(target.At(4, 2) == blue);
        REQUIRE(image.StretchBlt(target.dc, CRect(0, 0, 8, 4)));
        CHECK(target.At(1, 1) == green);
        CHECK(target.At(7, 3) == blue);
        REQUIRE(image.BitBlt(target.dc, CRect(0, 0, 2, 1), CPoint(0, 1)));
        CHECK(target.At(0, 0) == blue);
        CHECK(target.At(1, 1) == green);
        REQUIRE(image.Draw(target.dc, CRect(0, 0, 8, 4), CRect(3, 0, 4, 1)));
        CHECK(target.At(0, 0) == red);
        CHECK(target.At(7, 3) == red);
        REQUIRE(image.BitBlt(target.dc, 0, 0, NOTSRCCOPY));
        CHECK(target.At(0, 0) == (white ^ green));
    }
    CHECK_MESSAGE(gdi.IsBalanced(), gdi.Describe());
}

TEST_CASE("one colour may be transparent")
{
    const BalancedGdi gdi;
    {
        CImage image;
        Paint(image);
        {
            const Target target;
            REQUIRE(image.TransparentBlt(target.dc, CRect(0, 0, 4, 2), red));
            CHECK(target.At(0, 0) == green);
            CHECK(target.At(3, 0) == white);
            CHECK(target.At(3, 1) == blue);
        }
        CHECK(CImage::IsTransparencySupported());
        CImage indexed;
        REQUIRE(indexed.Create(4, 2, 8));
        const RGBQUAD colors[2] = {{0, 0, 255, 0}, {0, 255, 0, 0}};
        indexed.SetColorTable(0, 2, colors);
        indexed.SetPixelIndexed(1, 0, 1);
        CHECK(indexed.SetTransparentColor(0) == -1);
        CHECK(indexed.GetTransparentColor() == 0);
        const Target target;
        REQUIRE(indexed.Draw(target.dc, 0, 0));
        CHECK(target.At(0, 0) == white);
        CHECK(target.At(1, 0) == green);
        CHECK(indexed.SetTransparentColor(-1) == 0);
    }
    CHECK_MESSAGE(gdi.IsBalanced(), gdi.Describe());
}

TEST_CASE("a picture is mixed, masked and slanted")
{
    const BalancedGdi gdi;
    {
        CImage image;
        Paint(image);
        {
            const Target target;
            REQUIRE(image.AlphaBlend(target.dc, 0, 0, 128));
            const COLORREF mixed = target.At(3, 0);
            CHECK(GetRValue(mixed) == 255);
            CHECK(GetGValue(mixed) >= 125);
            CHECK(GetGValue(mixed) <= 130);
        }
        {
            const Target target;
            const WORD rows[2] = {0x0080, 0x0000}; // The first pixel alone.
            const HBITMAP mask = ::CreateBitmap(4, 2, 1, 1, rows);
            constexpr DWORD keepOthers = MAKEROP4(SRCCOPY, 0x00AA0029);
            REQUIRE(image.MaskBlt(target.dc, 0, 0, mask, keepOthers));
            ::DeleteObject(mask);
            CHECK(target.At(0, 0) == green);
            CHECK(target.At(1, 0) == white);
            CHECK(target.At(1, 1) == white);
        }
        const Target target;
        const POINT corners[3] = {{4, 0}, {8, 0}, {4, 2}}; // Moved aside.
        REQUIRE(image.PlgBlt(target.dc, corners));
        CHECK(target.At(0, 0) == white);
        CHECK(target.At(5, 0) == red);
        CHECK(target.At(5, 1) == blue);
    }
    CHECK_MESSAGE(gdi.IsBalanced(), gdi.Describe());
}

TEST_CASE("the context of a picture is one, however often it is asked for")
{
    const BalancedGdi gdi;
    {
        CImage image;
        Paint(image);
        const HDC dc = image.GetDC();
        CHECK(image.GetDC() == dc);
        ::SetPixel(dc, 2, 1, green);
        image.ReleaseDC();
        CHECK(::GetCurrentObject(dc, OBJ_BITMAP) == static_cast<HBITMAP>(image));
        image.ReleaseDC();
        image.ReleaseDC(); // Once too often.
        CHECK(image.GetPixel(2, 1) == green);
        image.GetDC();
        image.Destroy(); // Though the context was not released.
        CHECK(image.IsNull());
    }
    CHECK_MESSAGE(gdi.IsBalanced(), gdi.Describe());
}

TEST_CASE("a resource is loaded, and one that is missing leaves the object empty")
{
    CImage image;
    image.LoadFromResource(AfxGetInstanceHandle(), 65000);
    CHECK(image.IsNull());
    image.LoadFromResource(AfxGetInstanceHandle(), _T("NO_SUCH_PICTURE"));
    CHECK(image.IsNull());
    constexpr UINT systemCheckMark = 32760; // OBM_CHECK.
    image.LoadFromResource(NULL, systemCheckMark);
    CHECK_FALSE(image.IsNull());
    CHECK(image.GetWidth() > 0);
}

TEST_CASE("filters name the formats, and what is excluded is left out")
{
    CString filter;
    CSimpleArray<GUID> formats;
    REQUIRE(CImage::GetExporterFilterString(filter, formats, _T("All")) == S_OK);
    CHECK(filter.Left(4) == _T("All|"));
    CHECK(filter.Right(2) == _T("||"));
    REQUIRE(formats.GetSize() >= 2);
    CHECK(formats[0] == GUID_NULL);
    CHECK(formats.Find(Gdiplus::ImageFormatPNG) > 0);
    int bars = 0;
    for (int i = 0; i < filter.GetLength(); ++i)
        bars += filter[i] == _T('|');
    CHECK(bars == 2 * formats.GetSize() + 1);

    REQUIRE(CImage::GetImporterFilterString(filter, formats, NULL, CImage::excludePNG, _T('#')) ==
            S_OK);
    CHECK(formats.Find(Gdiplus::ImageFormatPNG) == -1);
    CHECK(formats.Find(Gdiplus::ImageFormatBMP) >= 0);
    CHECK(filter.Find(_T('|')) == -1);
    CHECK(filter.Find(_T("*.PNG")) == -1);
    CHECK(CImage::GetImporterFilterString(filter, formats, NULL, CImage::excludeValid) == E_FAIL);
    CHECK(formats.GetSize() == 0);
}

TEST_CASE("imaging that was released starts again")
{
    const TestFolder folder;
    CImage image;
    Paint(image);
    REQUIRE(image.Save(folder / _T("one.png")) == S_OK);
    image.ReleaseGDIPlus();
    image.ReleaseGDIPlus();
    CheckPainted(image);
    CImage loaded;
    REQUIRE(loaded.Load(folder / _T("one.png")) == S_OK);
    CheckPainted(loaded);
}
