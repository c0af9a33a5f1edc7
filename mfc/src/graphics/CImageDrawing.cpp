// A picture drawn onto something else.
#include <classes/CImage.h>

#include <classes/CRect.h>

namespace {

/// The picture's own context for one call.
class SourceContext
{
public:
    explicit SourceContext(const CImage& image) : image_(image), context_(image.GetDC()) {}
    ~SourceContext() { image_.ReleaseDC(); }
    SourceContext(const SourceContext&) = delete;
    SourceContext& operator=(const SourceContext&) = delete;
    operator HDC() const { return context_; }

private:
    const CImage& image_;
    HDC context_;
};

int Width(const RECT& area)
{
    return area.right - area.left;
}

int Height(const RECT& area)
{
    return area.bottom - area.top;
}

} // namespace

BOOL CImage::Draw(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc,
                  int ySrc, int nSrcWidth, int nSrcHeight) const throw()
{
    if (HasAlpha())
        return AlphaBlend(hDestDC, xDest, yDest, nDestWidth, nDestHeight, xSrc, ySrc, nSrcWidth,
                          nSrcHeight);
    if (transparentColor_ >= 0)
        return TransparentBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, xSrc, ySrc, nSrcWidth,
                              nSrcHeight);
    return StretchBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, xSrc, ySrc, nSrcWidth,
                      nSrcHeight);
}

BOOL CImage::Draw(HDC hDestDC, const RECT& rectDest, const RECT& rectSrc) const throw()
{
    return Draw(hDestDC, rectDest.left, rectDest.top, Width(rectDest), Height(rectDest),
                rectSrc.left, rectSrc.top, Width(rectSrc), Height(rectSrc));
}

BOOL CImage::Draw(HDC hDestDC, int xDest, int yDest) const throw()
{
    return Draw(hDestDC, xDest, yDest, width_, height_);
}

BOOL CImage::Draw(HDC hDestDC, const POINT& pointDest) const throw()
{
    return Draw(hDestDC, pointDest.x, pointDest.y);
}

BOOL CImage::Draw(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight) const throw()
{
    return Draw(hDestDC, xDest, yDest, nDestWidth, nDestHeight, 0, 0, width_, height_);
}

BOOL CImage::Draw(HDC hDestDC, const RECT& rectDest) const throw()
{
    return Draw(hDestDC, rectDest.left, rectDest.top, Width(rectDest), Height(rectDest));
}

BOOL CImage::BitBlt(HDC hDestDC, int xDest, int yDest, DWORD dwROP) const throw()
{
    return BitBlt(hDestDC, xDest, yDest, width_, height_, 0, 0, dwROP);
}

BOOL CImage::BitBlt(HDC hDestDC, const POINT& pointDest, DWORD dwROP) const throw()
{
    return BitBlt(hDestDC, pointDest.x, pointDest.y, dwROP);
}

BOOL CImage::BitBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc,
                    int ySrc, DWORD dwROP) const throw()
{
    return !IsNull() && ::BitBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight,
                                 SourceContext(*this), xSrc, ySrc, dwROP);
}

BOOL CImage::BitBlt(HDC hDestDC, const RECT& rectDest, const POINT& pointSrc, DWORD dwROP) const
    throw()
{
    return BitBlt(hDestDC, rectDest.left, rectDest.top, Width(rectDest), Height(rectDest),
                  pointSrc.x, pointSrc.y, dwROP);
}

BOOL CImage::StretchBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                        DWORD dwROP) const throw()
{
    return StretchBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, 0, 0, width_, height_, dwROP);
}

BOOL CImage::StretchBlt(HDC hDestDC, const RECT& rectDest, DWORD dwROP) const throw()
{
    return StretchBlt(hDestDC, rectDest, CRect(0, 0, width_, height_), dwROP);
}

BOOL CImage::StretchBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                        int xSrc, int ySrc, int nSrcWidth, int nSrcHeight, DWORD dwROP) const
    throw()
{
    return !IsNull() &&
           ::StretchBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, SourceContext(*this), xSrc,
                        ySrc, nSrcWidth, nSrcHeight, dwROP);
}

BOOL CImage::StretchBlt(HDC hDestDC, const RECT& rectDest, const RECT& rectSrc, DWORD dwROP) const
    throw()
{
    return StretchBlt(hDestDC, rectDest.left, rectDest.top, Width(rectDest), Height(rectDest),
                      rectSrc.left, rectSrc.top, Width(rectSrc), Height(rectSrc), dwROP);
}

BOOL CImage::TransparentBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                            UINT crTransparent) const throw()
{
    return TransparentBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, 0, 0, width_, height_,
                          crTransparent);
}

BOOL CImage::TransparentBlt(HDC hDestDC, const RECT& rectDest, UINT crTransparent) const throw()
{
    return TransparentBlt(hDestDC, rectDest, CRect(0, 0, width_, height_), crTransparent);
}

BOOL CImage::TransparentBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                            int xSrc, int ySrc, int nSrcWidth, int nSrcHeight,
                            UINT crTransparent) const throw()
{
    if (IsNull())
        return FALSE;
    if (crTransparent == CLR_INVALID && transparentColor_ >= 0) {
        RGBQUAD own{};
        GetColorTable(transparentColor_, 1, &own);
        crTransparent = RGB(own.rgbRed, own.rgbGreen, own.rgbBlue);
    }
    return ::TransparentBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, SourceContext(*this),
                            xSrc, ySrc, nSrcWidth, nSrcHeight, crTransparent);
}

BOOL CImage::TransparentBlt(HDC hDestDC, const RECT& rectDest, const RECT& rectSrc,
                            UINT crTransparent) const throw()
{
    return TransparentBlt(hDestDC, rectDest.left, rectDest.top, Width(rectDest), Height(rectDest),
                          rectSrc.left, rectSrc.top, Width(rectSrc), Height(rectSrc),
                          crTransparent);
}

BOOL CImage::AlphaBlend(HDC hDestDC, int xDest, int yDest, BYTE bSrcAlpha, BYTE bBlendOp) const
    throw()
{
    return AlphaBlend(hDestDC, xDest, yDest, width_, height_, 0, 0, width_, height_, bSrcAlpha,
                      bBlendOp);
}

BOOL CImage::AlphaBlend(HDC hDestDC, const POINT& pointDest, BYTE bSrcAlpha, BYTE bBlendOp) const
    throw()
{
    return AlphaBlend(hDestDC, pointDest.x, pointDest.y, bSrcAlpha, bBlendOp);
}

BOOL CImage::AlphaBlend(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                        int xSrc, int ySrc, int nSrcWidth, int nSrcHeight, BYTE bSrcAlpha,
                        BYTE bBlendOp) const throw()
{
    const BYTE format = HasAlpha() ? AC_SRC_ALPHA : 0;
    const BLENDFUNCTION blend = {bBlendOp, 0, bSrcAlpha, format};
    return !IsNull() &&
           ::AlphaBlend(hDestDC, xDest, yDest, nDestWidth, nDestHeight, SourceContext(*this), xSrc,
                        ySrc, nSrcWidth, nSrcHeight, blend);
}

BOOL CImage::AlphaBlend(HDC hDestDC, const RECT& rectDest, const RECT& rectSrc, BYTE bSrcAlpha,
                        BYTE bBlendOp) const throw()
{
    return AlphaBlend(hDestDC, rectDest.left, rectDest.top, Width(rectDest), Height(rectDest),
                      rectSrc.left, rectSrc.top, Width(rectSrc), Height(rectSrc), bSrcAlpha,
                      bBlendOp);
}

BOOL CImage::MaskBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc,
                     int ySrc, HBITMAP hbmMask, int xMask, int yMask, DWORD dwROP) const throw()
{
    return !IsNull() && ::MaskBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight,
                                  SourceContext(*this), xSrc, ySrc, hbmMask, xMask, yMask, dwROP);
}

BOOL CImage::MaskBlt(HDC hDestDC, const RECT& rectDest, const POINT& pointSrc, HBITMAP hbmMask,
                     const POINT& pointMask, DWORD dwROP) const throw()
{
    return MaskBlt(hDestDC, rectDest.left, rectDest.top, Width(rectDest), Height(rectDest),
                   pointSrc.x, pointSrc.y, hbmMask, pointMask.x, pointMask.y, dwROP);
}

BOOL CImage::MaskBlt(HDC hDestDC, int xDest, int yDest, HBITMAP hbmMask, DWORD dwROP) const throw()
{
    return MaskBlt(hDestDC, xDest, yDest, width_, height_, 0, 0, hbmMask, 0, 0, dwROP);
}

BOOL CImage::MaskBlt(HDC hDestDC, const POINT& pointDest, HBITMAP hbmMask, DWORD dwROP) const
    throw()
{
    return MaskBlt(hDestDC, pointDest.x, pointDest.y, hbmMask, dwROP);
}

BOOL CImage::PlgBlt(HDC hDestDC, const POINT* pPoints, HBITMAP hbmMask) const throw()
{
    return PlgBlt(hDestDC, pPoints, 0, 0, width_, height_, hbmMask);
}

BOOL CImage::PlgBlt(HDC hDestDC, const POINT* pPoints, int xSrc, int ySrc, int nSrcWidth,
                    int nSrcHeight, HBITMAP hbmMask, int xMask, int yMask) const throw()
{
    return !IsNull() && ::PlgBlt(hDestDC, pPoints, SourceContext(*this), xSrc, ySrc, nSrcWidth,
                                 nSrcHeight, hbmMask, xMask, yMask);
}

BOOL CImage::PlgBlt(HDC hDestDC, const POINT* pPoints, const RECT& rectSrc, HBITMAP hbmMask,
                    const POINT& pointMask) const throw()
{
    return PlgBlt(hDestDC, pPoints, rectSrc.left, rectSrc.top, Width(rectSrc), Height(rectSrc),
                  hbmMask, pointMask.x, pointMask.y);
}
