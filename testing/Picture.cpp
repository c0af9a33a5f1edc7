#include "testing/Canvas.h"
#include "testing/Picture.h"
#include "testing/Text.h"

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
    : m_width(width), m_height(height),
      m_pixels(static_cast<size_t>(width) * static_cast<size_t>(height), ToPixel(fill))
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
    ::SetLayout(copy.Dc(), ::GetLayout(dc)); // Between contexts of one layout nothing is mirrored.
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
                                 picture.m_pixels.data(), &info, DIB_RGB_COLORS);
    ::ReleaseDC(nullptr, screen);
    if (rows != size.bmHeight)
        return {};
    for (DWORD& pixel : picture.m_pixels)
        pixel &= 0xFFFFFF;
    return picture;
}

COLORREF Picture::At(int x, int y) const
{
    if (x < 0 || y < 0 || x >= m_width || y >= m_height)
        return CLR_INVALID;
    return ToColor(m_pixels[static_cast<size_t>(y) * m_width + x]);
}

void Picture::Set(int x, int y, COLORREF color)
{
    if (x < 0 || y < 0 || x >= m_width || y >= m_height)
        return;
    m_pixels[static_cast<size_t>(y) * m_width + x] = ToPixel(color);
}

Picture Picture::Crop(const RECT& area) const
{
    Picture part(area.right - area.left, area.bottom - area.top);
    for (int y = 0; y < part.m_height; ++y) {
        for (int x = 0; x < part.m_width; ++x)
            part.Set(x, y, At(area.left + x, area.top + y));
    }
    return part;
}

void Picture::Paste(const Picture& other, int left, int top)
{
    for (int y = 0; y < other.m_height; ++y) {
        for (int x = 0; x < other.m_width; ++x)
            Set(left + x, top + y, other.At(x, y));
    }
}

int Picture::CountOf(COLORREF color) const
{
    return static_cast<int>(std::count(m_pixels.begin(), m_pixels.end(), ToPixel(color)));
}

RECT Picture::BoundsOfOthers(COLORREF background) const
{
    const DWORD backgroundPixel = ToPixel(background);
    RECT bounds{m_width, m_height, 0, 0};
    for (int y = 0; y < m_height; ++y) {
        for (int x = 0; x < m_width; ++x) {
            if (m_pixels[static_cast<size_t>(y) * m_width + x] == backgroundPixel)
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
    if (m_width != other.m_width || m_height != other.m_height)
        return -1;
    int differences = 0;
    for (size_t i = 0; i < m_pixels.size(); ++i)
        differences += m_pixels[i] != other.m_pixels[i];
    return differences;
}

std::string Picture::Compare(const Picture& other) const
{
    char text[160];
    const int differences = CountDifferences(other);
    if (differences == 0)
        return "the same";
    if (differences < 0) {
        std::snprintf(text, sizeof text, "%d x %d instead of %d x %d pixels", m_width, m_height,
                      other.m_width, other.m_height);
        return text;
    }
    size_t first = 0;
    while (m_pixels[first] == other.m_pixels[first])
        ++first;
    std::snprintf(text, sizeof text, "%d pixels differ, first (%d, %d): #%06lX instead of #%06lX",
                  differences, static_cast<int>(first) % m_width, static_cast<int>(first) / m_width,
                  static_cast<unsigned long>(m_pixels[first]),
                  static_cast<unsigned long>(other.m_pixels[first]));
    return text;
}

bool Picture::SavePng(LPCTSTR path) const
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
        auto* bytes = reinterpret_cast<BYTE*>(const_cast<DWORD*>(m_pixels.data()));
        Gdiplus::Bitmap bitmap(m_width, m_height, m_width * 4, PixelFormat32bppRGB, bytes);
        saved = bitmap.Save(Widened(path).c_str(), &pngEncoder, nullptr) == Gdiplus::Ok;
    }
    Gdiplus::GdiplusShutdown(session);
    return saved;
}

} // namespace umbra::testing
