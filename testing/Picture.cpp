#include "testing/Canvas.h"
#include "testing/Picture.h"

#include <objidl.h>
// The header of GDI+ takes these from the global namespace.
#include <algorithm>
#include <cstdio>
using std::max;
using std::min;
#include <gdiplus.h>

namespace umbra::testing {

namespace {

DWORD ToPixel(COLORREF color)
{
    return static_cast<DWORD>(GetRValue(color)) << 16 | static_cast<DWORD>(GetGValue(color)) << 8 |
           GetBValue(color);
}

COLORREF ToColor(DWORD pixel)
{
    return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
}

} // namespace

Picture::Picture(int width, int height, COLORREF fill)
    : width_(width), height_(height),
      pixels_(static_cast<size_t>(width) * static_cast<size_t>(height), ToPixel(fill))
{
}

Picture Picture::OfWindow(HWND window)
{
    RECT client{};
    ::GetClientRect(window, &client);
    HDC dc = ::GetDC(window);
    const Picture picture = OfDc(dc, client);
    ::ReleaseDC(window, dc);
    return picture;
}

Picture Picture::OfDc(HDC dc, const RECT& area)
{
    Canvas copy(area.right - area.left, area.bottom - area.top);
    if (!::BitBlt(copy.Dc(), 0, 0, copy.Width(), copy.Height(), dc, area.left, area.top, SRCCOPY))
        return {};
    return copy.ToPicture();
}

Picture Picture::OfBitmap(HBITMAP bitmap)
{
    BITMAP size{};
    if (::GetObject(bitmap, sizeof size, &size) == 0)
        return {};
    Picture picture(size.bmWidth, size.bmHeight);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.bmWidth;
    info.bmiHeader.biHeight = -size.bmHeight; // Rows from the top.
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    HDC screen = ::GetDC(nullptr);
    const int rows = ::GetDIBits(screen, bitmap, 0, static_cast<UINT>(size.bmHeight),
                                 picture.pixels_.data(), &info, DIB_RGB_COLORS);
    ::ReleaseDC(nullptr, screen);
    if (rows != size.bmHeight)
        return {};
    for (DWORD& pixel : picture.pixels_)
        pixel &= 0xFFFFFF;
    return picture;
}

COLORREF Picture::At(int x, int y) const
{
    if (x < 0 || y < 0 || x >= width_ || y >= height_)
        return CLR_INVALID;
    return ToColor(pixels_[static_cast<size_t>(y) * width_ + x]);
}

void Picture::Set(int x, int y, COLORREF color)
{
    if (x < 0 || y < 0 || x >= width_ || y >= height_)
        return;
    pixels_[static_cast<size_t>(y) * width_ + x] = ToPixel(color);
}

Picture Picture::Crop(const RECT& area) const
{
    Picture part(area.right - area.left, area.bottom - area.top);
    for (int y = 0; y < part.height_; ++y) {
        for (int x = 0; x < part.width_; ++x)
            part.Set(x, y, At(area.left + x, area.top + y));
    }
    return part;
}

int Picture::CountOf(COLORREF color) const
{
    return static_cast<int>(std::count(pixels_.begin(), pixels_.end(), ToPixel(color)));
}

RECT Picture::BoundsOfOthers(COLORREF background) const
{
    const DWORD backgroundPixel = ToPixel(background);
    RECT bounds{width_, height_, 0, 0};
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            if (pixels_[static_cast<size_t>(y) * width_ + x] == backgroundPixel)
                continue;
            bounds.left = std::min<LONG>(bounds.left, x);
            bounds.top = std::min<LONG>(bounds.top, y);
            bounds.right = std::max<LONG>(bounds.right, x + 1);
            bounds.bottom = std::max<LONG>(bounds.bottom, y + 1);
        }
    }
    return bounds.right == 0 ? RECT{} : bounds;
}

int Picture::CountDifferences(const Picture& other) const
{
    if (width_ != other.width_ || height_ != other.height_)
        return -1;
    int differences = 0;
    for (size_t i = 0; i < pixels_.size(); ++i)
        differences += pixels_[i] != other.pixels_[i];
    return differences;
}

std::string Picture::Compare(const Picture& other) const
{
    char text[160];
    const int differences = CountDifferences(other);
    if (differences == 0)
        return "the same";
    if (differences < 0) {
        std::snprintf(text, sizeof text, "%d x %d instead of %d x %d pixels", width_, height_,
                      other.width_, other.height_);
        return text;
    }
    size_t first = 0;
    while (pixels_[first] == other.pixels_[first])
        ++first;
    std::snprintf(text, sizeof text, "%d pixels differ, first (%d, %d): #%06lX instead of #%06lX",
                  differences, static_cast<int>(first) % width_, static_cast<int>(first) / width_,
                  static_cast<unsigned long>(pixels_[first]),
                  static_cast<unsigned long>(other.pixels_[first]));
    return text;
}

bool Picture::SavePng(const char* path) const
{
    constexpr CLSID pngEncoder = {
        0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
    if (IsEmpty())
        return false;
    ULONG_PTR session = 0;
    const Gdiplus::GdiplusStartupInput startup;
    if (Gdiplus::GdiplusStartup(&session, &startup, nullptr) != Gdiplus::Ok)
        return false;
    bool saved = false;
    {
        auto* bytes = reinterpret_cast<BYTE*>(const_cast<DWORD*>(pixels_.data()));
        Gdiplus::Bitmap bitmap(width_, height_, width_ * 4, PixelFormat32bppRGB, bytes);
        wchar_t widePath[MAX_PATH] = L"";
        ::MultiByteToWideChar(CP_ACP, 0, path, -1, widePath, MAX_PATH);
        saved = bitmap.Save(widePath, &pngEncoder, nullptr) == Gdiplus::Ok;
    }
    Gdiplus::GdiplusShutdown(session);
    return saved;
}

} // namespace umbra::testing
