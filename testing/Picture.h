// What a window or a device context shows, pixel by pixel.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace umbra::testing {

/// A copy of pixels, rows from the top.
class Picture
{
public:
    Picture() = default;
    Picture(int width, int height, COLORREF fill = 0);

    /// The client area as the screen shows it; what covers the window covers the picture.
    static Picture OfWindow(HWND window);
    /// A part of a device context. Empty when it cannot be read.
    static Picture OfDc(HDC dc, const RECT& area);
    static Picture OfBitmap(HBITMAP bitmap);

    int Width() const { return m_width; }
    int Height() const { return m_height; }
    bool IsEmpty() const { return m_pixels.empty(); }

    /// CLR_INVALID outside.
    COLORREF At(int x, int y) const;
    void Set(int x, int y, COLORREF color);
    Picture Crop(const RECT& area) const;
    /// Puts another picture over this one; what does not fit is cut.
    void Paste(const Picture& other, int left, int top);

    int CountOf(COLORREF color) const;
    bool Contains(COLORREF color) const { return CountOf(color) > 0; }
    /// The smallest rectangle that holds every pixel of another colour; empty when there is none.
    RECT BoundsOfOthers(COLORREF background) const;

    /// How many pixels differ; -1 when the sizes do.
    int CountDifferences(const Picture& other) const;
    /// "the same", or the sizes, or the first pixel that differs and how many do.
    std::string Compare(const Picture& other) const;
    friend bool operator==(const Picture& a, const Picture& b)
    {
        return a.CountDifferences(b) == 0;
    }
    friend bool operator!=(const Picture& a, const Picture& b) { return !(a == b); }

    /// Writes a PNG file, for a person to look at. Returns false when that fails.
    bool SavePng(LPCTSTR path) const;

private:
    int m_width = 0;
    int m_height = 0;
    std::vector<DWORD> m_pixels; // 0x00RRGGBB, as in a 32-bit bitmap.
};

} // namespace umbra::testing
