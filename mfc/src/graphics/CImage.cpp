// A picture's bitmap, its bits and its colours.
#include <classes/CImage.h>

#include "graphics/ImagingSystem.h"

#include <cstdlib>
#include <utility>

namespace {

constexpr LONG noColor = -1;

/// A bitmap's header with the masks that may follow it.
struct MaskedHeader
{
    BITMAPINFOHEADER header;
    DWORD masks[3];
};

} // namespace

// They have their values in the class; here they get a place, for those who ask for their address.
const DWORD CImage::createAlphaChannel;
const DWORD CImage::excludeGIF;
const DWORD CImage::excludeBMP;
const DWORD CImage::excludeEMF;
const DWORD CImage::excludeWMF;
const DWORD CImage::excludeJPEG;
const DWORD CImage::excludePNG;
const DWORD CImage::excludeTIFF;
const DWORD CImage::excludeIcon;
const DWORD CImage::excludeOther;
const DWORD CImage::excludeDefaultLoad;
const DWORD CImage::excludeDefaultSave;
const DWORD CImage::excludeValid;

CImage::CImage() throw()
    : bitmap_(NULL), bits_(NULL), width_(0), height_(0), bitsPerPixel_(0), pitch_(0),
      transparentColor_(noColor), hasAlpha_(false), context_(NULL), formerBitmap_(NULL),
      contextUsers_(0)
{
    afxint::ImagingUser::Enter();
}

CImage::~CImage()
{
    Destroy();
    afxint::ImagingUser::Leave();
}

CImage::operator HBITMAP() const throw()
{
    return bitmap_;
}

bool CImage::IsNull() const throw()
{
    return bitmap_ == NULL;
}

BOOL CImage::Create(int nWidth, int nHeight, int nBPP, DWORD dwFlags) throw()
{
    return CreateEx(nWidth, nHeight, nBPP, BI_RGB, NULL, dwFlags);
}

BOOL CImage::CreateEx(int nWidth, int nHeight, int nBPP, DWORD eCompression,
                      const DWORD* pdwBitmasks, DWORD dwFlags) throw()
{
    const bool alpha = (dwFlags & createAlphaChannel) != 0;
    const bool masked = eCompression == BI_BITFIELDS;
    if (nWidth <= 0 || nHeight == 0 || (!masked && eCompression != BI_RGB) ||
        (masked && pdwBitmasks == NULL) || (alpha && (nBPP != 32 || masked)))
        return FALSE;
    MaskedHeader information{};
    information.header.biSize = sizeof(information.header);
    information.header.biWidth = nWidth;
    information.header.biHeight = nHeight;
    information.header.biPlanes = 1;
    information.header.biBitCount = static_cast<WORD>(nBPP);
    information.header.biCompression = eCompression;
    for (int i = 0; masked && i < 3; ++i)
        information.masks[i] = pdwBitmasks[i];
    void* bits = NULL;
    const HBITMAP bitmap = ::CreateDIBSection(
        NULL, reinterpret_cast<const BITMAPINFO*>(&information), DIB_RGB_COLORS, &bits, NULL, 0);
    if (bitmap == NULL)
        return FALSE;
    Attach(bitmap, nHeight < 0 ? DIBOR_TOPDOWN : DIBOR_BOTTOMUP);
    hasAlpha_ = alpha;
    return TRUE;
}

void CImage::Attach(HBITMAP hBitmap, DIBOrientation eOrientation) throw()
{
    Destroy();
    DIBSECTION section{};
    const int size = ::GetObject(hBitmap, sizeof(section), &section);
    if (size == 0)
        return;
    bitmap_ = hBitmap;
    width_ = section.dsBm.bmWidth;
    height_ = std::abs(section.dsBm.bmHeight);
    bitsPerPixel_ = section.dsBm.bmBitsPixel * section.dsBm.bmPlanes;
    if (size != sizeof(section))
        return;
    bits_ = static_cast<BYTE*>(section.dsBm.bmBits);
    pitch_ = (width_ * bitsPerPixel_ + 31) / 32 * 4;
    const bool topDown = eOrientation == DIBOR_TOPDOWN ||
                         (eOrientation == DIBOR_DEFAULT && section.dsBmih.biHeight < 0);
    if (!topDown) {
        bits_ += static_cast<ptrdiff_t>(pitch_) * (height_ - 1);
        pitch_ = -pitch_;
    }
}

HBITMAP CImage::Detach() throw()
{
    ASSERT(contextUsers_ == 0);
    bits_ = NULL;
    width_ = height_ = bitsPerPixel_ = pitch_ = 0;
    transparentColor_ = noColor;
    hasAlpha_ = false;
    return std::exchange(bitmap_, nullptr);
}

void CImage::Destroy() throw()
{
    while (contextUsers_ > 0) // A bitmap that a context holds cannot be deleted.
        ReleaseDC();
    if (bitmap_ != NULL)
        ::DeleteObject(Detach());
}

int CImage::GetWidth() const throw()
{
    return width_;
}

int CImage::GetHeight() const throw()
{
    return height_;
}

int CImage::GetBPP() const throw()
{
    return bitsPerPixel_;
}

bool CImage::IsDIBSection() const throw()
{
    return bits_ != NULL;
}

bool CImage::IsIndexed() const throw()
{
    return IsDIBSection() && bitsPerPixel_ <= 8;
}

void* CImage::GetBits() throw()
{
    return bits_;
}

int CImage::GetPitch() const throw()
{
    return pitch_;
}

void* CImage::GetPixelAddress(int x, int y) throw()
{
    const bool inside = x >= 0 && x < width_ && y >= 0 && y < height_;
    return bits_ != NULL && inside ? Row(y) + x * bitsPerPixel_ / 8 : NULL;
}

COLORREF CImage::GetPixel(int x, int y) const throw()
{
    const COLORREF color = ::GetPixel(GetDC(), x, y);
    ReleaseDC();
    return color;
}

void CImage::SetPixel(int x, int y, COLORREF color) throw()
{
    ::SetPixel(GetDC(), x, y, color);
    ReleaseDC();
}

void CImage::SetPixelIndexed(int x, int y, int iIndex) throw()
{
    auto* place = static_cast<BYTE*>(GetPixelAddress(x, y));
    if (place == NULL || !IsIndexed() || iIndex < 0 || iIndex >= GetMaxColorTableEntries())
        return;
    ::GdiFlush();                               // What was drawn before comes before.
    const int pixelsOfByte = 8 / bitsPerPixel_; // The first one has the highest bits.
    const int shift = 8 - bitsPerPixel_ * (x % pixelsOfByte + 1);
    const int mask = (GetMaxColorTableEntries() - 1) << shift;
    *place = static_cast<BYTE>((*place & ~mask) | iIndex << shift);
}

void CImage::SetPixelRGB(int x, int y, BYTE r, BYTE g, BYTE b) throw()
{
    SetPixel(x, y, RGB(r, g, b));
}

int CImage::GetMaxColorTableEntries() const throw()
{
    return IsIndexed() ? 1 << bitsPerPixel_ : 0;
}

void CImage::GetColorTable(UINT iFirstColor, UINT nColors, RGBQUAD* prgbColors) const throw()
{
    ::GetDIBColorTable(GetDC(), iFirstColor, nColors, prgbColors);
    ReleaseDC();
}

void CImage::SetColorTable(UINT iFirstColor, UINT nColors, const RGBQUAD* prgbColors) throw()
{
    ::SetDIBColorTable(GetDC(), iFirstColor, nColors, prgbColors);
    ReleaseDC();
}

LONG CImage::GetTransparentColor() const throw()
{
    return transparentColor_;
}

LONG CImage::SetTransparentColor(LONG iTransparentColor) throw()
{
    ASSERT(iTransparentColor == noColor || iTransparentColor < GetMaxColorTableEntries());
    return std::exchange(transparentColor_, iTransparentColor);
}

BOOL CImage::IsTransparencySupported() throw()
{
    return TRUE;
}

HDC CImage::GetDC() const throw()
{
    if (contextUsers_++ == 0) {
        context_ = ::CreateCompatibleDC(NULL);
        formerBitmap_ = bitmap_ != NULL ? ::SelectObject(context_, bitmap_) : NULL;
    }
    return context_;
}

void CImage::ReleaseDC() const throw()
{
    if (contextUsers_ == 0 || --contextUsers_ > 0)
        return;
    if (formerBitmap_ != NULL)
        ::SelectObject(context_, formerBitmap_);
    ::DeleteDC(std::exchange(context_, nullptr));
}

void CImage::ReleaseGDIPlus() throw()
{
    afxint::EndImaging();
}

BYTE* CImage::Row(int y) const
{
    return bits_ + static_cast<ptrdiff_t>(pitch_) * y;
}
