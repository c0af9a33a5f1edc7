// A picture: a bitmap that is loaded from files of many kinds, drawn and saved.
#pragma once

#include <classes/CPoint.h>
#include <classes/CSimpleArray.h>
#include <classes/CString.h>

#include <objidl.h>

#include <gdiplus.h> // Its names of formats are what Save takes.

/// A bitmap, as a rule one whose bits the program can reach (a DIB section). Where there are no
/// bits or no bitmap, calls that need them fail, or answer 0 or NULL.
class AFX_EXPORTED CImage
{
public:
    static const DWORD createAlphaChannel = 0x01; ///< For Create: 32 bits with opacity.

    enum DIBOrientation { DIBOR_DEFAULT, DIBOR_TOPDOWN, DIBOR_BOTTOMUP };

    // Formats that the filter strings leave out.
    static const DWORD excludeGIF = 0x01;
    static const DWORD excludeBMP = 0x02;
    static const DWORD excludeEMF = 0x04;
    static const DWORD excludeWMF = 0x08;
    static const DWORD excludeJPEG = 0x10;
    static const DWORD excludePNG = 0x20;
    static const DWORD excludeTIFF = 0x40;
    static const DWORD excludeIcon = 0x80;
    static const DWORD excludeOther = 0x80000000;
    static const DWORD excludeDefaultLoad = 0;
    static const DWORD excludeDefaultSave = excludeIcon | excludeEMF | excludeWMF;
    static const DWORD excludeValid = 0x800000ff;

    CImage() throw();
    ~CImage();
    CImage(const CImage&) = delete;
    CImage& operator=(const CImage&) = delete;

    operator HBITMAP() const throw();
    bool IsNull() const throw();

    /// A positive height makes the last row the first in memory.
    BOOL Create(int nWidth, int nHeight, int nBPP, DWORD dwFlags = 0) throw();
    /// With BI_BITFIELDS the masks tell where red, green and blue are.
    BOOL CreateEx(int nWidth, int nHeight, int nBPP, DWORD eCompression,
                  const DWORD* pdwBitmasks = NULL, DWORD dwFlags = 0) throw();
    void Attach(HBITMAP hBitmap, DIBOrientation eOrientation = DIBOR_DEFAULT) throw();
    /// The caller owns the bitmap.
    HBITMAP Detach() throw();
    void Destroy() throw();

    /// Replaces what the object holds, unless it fails. Pictures with opacity get 32 bits, their
    /// colours multiplied by the opacity as the system's drawing wants it.
    HRESULT Load(LPCTSTR pszFileName) throw();
    HRESULT Load(IStream* pStream) throw();
    /// Loads a bitmap resource.
    void LoadFromResource(HINSTANCE hInstance, LPCTSTR pszResourceName) throw();
    void LoadFromResource(HINSTANCE hInstance, UINT nIDResource) throw();
    HRESULT Save(IStream* pStream, REFGUID guidFileType) const throw();
    /// Without a format the extension tells it, and without an extension it is BMP.
    HRESULT Save(LPCTSTR pszFileName, REFGUID guidFileType = GUID_NULL) const throw();

    int GetWidth() const throw();
    int GetHeight() const throw();
    int GetBPP() const throw();
    bool IsDIBSection() const throw();
    bool IsIndexed() const throw();
    /// The first row; with GetPitch it leads to all others.
    void* GetBits() throw();
    /// Bytes from one row to the next; negative when the last row is the first in memory.
    int GetPitch() const throw();
    void* GetPixelAddress(int x, int y) throw();
    COLORREF GetPixel(int x, int y) const throw();
    void SetPixel(int x, int y, COLORREF color) throw();
    void SetPixelIndexed(int x, int y, int iIndex) throw();
    void SetPixelRGB(int x, int y, BYTE r, BYTE g, BYTE b) throw();
    int GetMaxColorTableEntries() const throw();
    void GetColorTable(UINT iFirstColor, UINT nColors, RGBQUAD* prgbColors) const throw();
    void SetColorTable(UINT iFirstColor, UINT nColors, const RGBQUAD* prgbColors) throw();
    /// An index of the colour table; -1 when no colour is transparent.
    LONG GetTransparentColor() const throw();
    /// Returns the former one.
    LONG SetTransparentColor(LONG iTransparentColor) throw();
    static BOOL IsTransparencySupported() throw();

    /// A context that draws into the picture. Each call needs one of ReleaseDC.
    HDC GetDC() const throw();
    void ReleaseDC() const throw();

    /// Draws with opacity or the transparent colour, whichever the picture has.
    BOOL Draw(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc,
              int ySrc, int nSrcWidth, int nSrcHeight) const throw();
    BOOL Draw(HDC hDestDC, const RECT& rectDest, const RECT& rectSrc) const throw();
    BOOL Draw(HDC hDestDC, int xDest, int yDest) const throw();
    BOOL Draw(HDC hDestDC, const POINT& pointDest) const throw();
    BOOL Draw(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight) const throw();
    BOOL Draw(HDC hDestDC, const RECT& rectDest) const throw();

    BOOL BitBlt(HDC hDestDC, int xDest, int yDest, DWORD dwROP = SRCCOPY) const throw();
    BOOL BitBlt(HDC hDestDC, const POINT& pointDest, DWORD dwROP = SRCCOPY) const throw();
    BOOL BitBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc,
                int ySrc, DWORD dwROP = SRCCOPY) const throw();
    BOOL BitBlt(HDC hDestDC, const RECT& rectDest, const POINT& pointSrc,
                DWORD dwROP = SRCCOPY) const throw();

    BOOL StretchBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                    DWORD dwROP = SRCCOPY) const throw();
    BOOL StretchBlt(HDC hDestDC, const RECT& rectDest, DWORD dwROP = SRCCOPY) const throw();
    BOOL StretchBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc,
                    int ySrc, int nSrcWidth, int nSrcHeight, DWORD dwROP = SRCCOPY) const throw();
    BOOL StretchBlt(HDC hDestDC, const RECT& rectDest, const RECT& rectSrc,
                    DWORD dwROP = SRCCOPY) const throw();

    /// CLR_INVALID stands for the picture's own transparent colour.
    BOOL TransparentBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                        UINT crTransparent = CLR_INVALID) const throw();
    BOOL TransparentBlt(HDC hDestDC, const RECT& rectDest, UINT crTransparent = CLR_INVALID) const
        throw();
    BOOL TransparentBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                        int xSrc, int ySrc, int nSrcWidth, int nSrcHeight,
                        UINT crTransparent = CLR_INVALID) const throw();
    BOOL TransparentBlt(HDC hDestDC, const RECT& rectDest, const RECT& rectSrc,
                        UINT crTransparent = CLR_INVALID) const throw();

    BOOL AlphaBlend(HDC hDestDC, int xDest, int yDest, BYTE bSrcAlpha = 0xff,
                    BYTE bBlendOp = AC_SRC_OVER) const throw();
    BOOL AlphaBlend(HDC hDestDC, const POINT& pointDest, BYTE bSrcAlpha = 0xff,
                    BYTE bBlendOp = AC_SRC_OVER) const throw();
    BOOL AlphaBlend(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc,
                    int ySrc, int nSrcWidth, int nSrcHeight, BYTE bSrcAlpha = 0xff,
                    BYTE bBlendOp = AC_SRC_OVER) const throw();
    BOOL AlphaBlend(HDC hDestDC, const RECT& rectDest, const RECT& rectSrc, BYTE bSrcAlpha = 0xff,
                    BYTE bBlendOp = AC_SRC_OVER) const throw();

    BOOL MaskBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc,
                 int ySrc, HBITMAP hbmMask, int xMask, int yMask, DWORD dwROP = SRCCOPY) const
        throw();
    BOOL MaskBlt(HDC hDestDC, const RECT& rectDest, const POINT& pointSrc, HBITMAP hbmMask,
                 const POINT& pointMask, DWORD dwROP = SRCCOPY) const throw();
    BOOL MaskBlt(HDC hDestDC, int xDest, int yDest, HBITMAP hbmMask, DWORD dwROP = SRCCOPY) const
        throw();
    BOOL MaskBlt(HDC hDestDC, const POINT& pointDest, HBITMAP hbmMask, DWORD dwROP = SRCCOPY) const
        throw();

    BOOL PlgBlt(HDC hDestDC, const POINT* pPoints, HBITMAP hbmMask = NULL) const throw();
    BOOL PlgBlt(HDC hDestDC, const POINT* pPoints, int xSrc, int ySrc, int nSrcWidth,
                int nSrcHeight, HBITMAP hbmMask = NULL, int xMask = 0, int yMask = 0) const throw();
    BOOL PlgBlt(HDC hDestDC, const POINT* pPoints, const RECT& rectSrc, HBITMAP hbmMask = NULL,
                const POINT& pointMask = CPoint(0, 0)) const throw();

    /// The filter for a CFileDialog, and the formats of its entries in their order. With a
    /// description for all files, the first entry is for all formats, and its format GUID_NULL.
    static HRESULT GetImporterFilterString(CString& strImporters,
                                           CSimpleArray<GUID>& aguidFileTypes,
                                           LPCTSTR pszAllFilesDescription = NULL,
                                           DWORD dwExclude = excludeDefaultLoad,
                                           TCHAR chSeparator = _T('|'));
    static HRESULT GetExporterFilterString(CString& strExporters,
                                           CSimpleArray<GUID>& aguidFileTypes,
                                           LPCTSTR pszAllFilesDescription = NULL,
                                           DWORD dwExclude = excludeDefaultSave,
                                           TCHAR chSeparator = _T('|'));

    /// Ends the system's imaging, which the end of the last picture does, too. For pictures that
    /// live as long as the program.
    void ReleaseGDIPlus() throw();

private:
    /// Copies one of the imaging system's pictures.
    HRESULT TakePicture(Gdiplus::GpBitmap* picture);
    /// Makes one for the imaging system, which the caller disposes of.
    HRESULT MakePicture(Gdiplus::GpBitmap*& picture) const;
    HRESULT CopyPalette(Gdiplus::GpBitmap* picture);
    HRESULT GivePalette(Gdiplus::GpBitmap* picture) const;
    bool HasAlpha() const { return hasAlpha_; }
    BYTE* Row(int y) const;

    HBITMAP bitmap_;
    BYTE* bits_; ///< The first row; NULL for a bitmap without bits.
    int width_, height_, bitsPerPixel_, pitch_;
    LONG transparentColor_;
    bool hasAlpha_;
    mutable HDC context_;
    mutable HGDIOBJ formerBitmap_; ///< What the context held before.
    mutable int contextUsers_;
};
