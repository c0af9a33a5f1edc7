#include "controls/KeyedPicture.h"

#include "controls/FollowLayout.h"
#include "controls/ScopedSelect.h"

#include <memory>
#include <new>

namespace {

const int rowsAtOnce = 64; // Bounds the memory that a huge picture takes.

/// GIF, PNG and JPEG files may arrive with 255 in the fourth byte of every pixel. The comparison
/// with the key colour sees that byte, so it has to go.
void ClearFourthBytes(HBITMAP bitmap, const BITMAP& record)
{
    if (record.bmBitsPixel != 32)
        return;
    CDC screen;
    screen.CreateCompatibleDC(nullptr);
    const size_t pixels = static_cast<size_t>(record.bmWidth) * rowsAtOnce;
    const std::unique_ptr<DWORD[]> rows(new (std::nothrow) DWORD[pixels]);
    if (rows == nullptr)
        return;
    BITMAPINFO format = {};
    format.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    format.bmiHeader.biWidth = record.bmWidth;
    format.bmiHeader.biHeight = record.bmHeight;
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    format.bmiHeader.biCompression = BI_RGB;

    for (int first = 0; first < record.bmHeight; first += rowsAtOnce) {
        const int count = min(rowsAtOnce, record.bmHeight - first);
        if (::GetDIBits(screen.GetSafeHdc(), bitmap, first, count, rows.get(), &format,
                        DIB_RGB_COLORS) != count)
            return;
        for (size_t i = 0; i < static_cast<size_t>(record.bmWidth) * count; ++i)
            rows[i] &= 0x00FFFFFF;
        ::SetDIBits(screen.GetSafeHdc(), bitmap, first, count, rows.get(), &format, DIB_RGB_COLORS);
    }
}

} // namespace

void BuildKeyMask(CBitmap& picture, CBitmap& mask, COLORREF key)
{
    mask.DeleteObject();
    BITMAP record = {};
    if (picture.GetSafeHandle() == nullptr || picture.GetBitmap(&record) == 0)
        return;
    if (!mask.CreateBitmap(record.bmWidth, record.bmHeight, 1, 1, nullptr))
        return;
    ClearFourthBytes(static_cast<HBITMAP>(picture.GetSafeHandle()), record);

    CDC pictureDC, maskDC;
    pictureDC.CreateCompatibleDC(nullptr);
    maskDC.CreateCompatibleDC(nullptr);
    const ScopedSelect pictureSelected(pictureDC, picture.GetSafeHandle());
    const ScopedSelect maskSelected(maskDC, mask.GetSafeHandle());

    // From colour to monochrome, pixels of the background colour become white.
    pictureDC.SetBkColor(key);
    maskDC.BitBlt(0, 0, record.bmWidth, record.bmHeight, &pictureDC, 0, 0, SRCCOPY);

    // From monochrome to colour, black takes the text colour and white the background colour.
    pictureDC.SetTextColor(RGB(255, 255, 255));
    pictureDC.SetBkColor(RGB(0, 0, 0));
    pictureDC.BitBlt(0, 0, record.bmWidth, record.bmHeight, &maskDC, 0, 0, SRCAND);
}

void DrawKeyedPicture(CDC& target, const CRect& place, CBitmap& mask, CBitmap& picture)
{
    CDC memory;
    memory.CreateCompatibleDC(nullptr);
    {
        const ScopedSelect selected(memory, mask.GetSafeHandle());
        umbra::FollowLayout(memory, target);
        // A monochrome bitmap is copied in the target's colours, whatever its owner left there.
        const COLORREF text = target.SetTextColor(RGB(0, 0, 0));
        const COLORREF background = target.SetBkColor(RGB(255, 255, 255));
        target.BitBlt(place.left, place.top, place.Width(), place.Height(), &memory, 0, 0, SRCAND);
        target.SetTextColor(text);
        target.SetBkColor(background);
    }
    if (picture.GetSafeHandle() == nullptr)
        return;
    const ScopedSelect selected(memory, picture.GetSafeHandle());
    target.BitBlt(place.left, place.top, place.Width(), place.Height(), &memory, 0, 0, SRCPAINT);
}
