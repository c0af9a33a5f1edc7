// Pictures in files, streams and resources.
#include <classes/CImage.h>

#include <classes/Conversions.h>

#include "graphics/ImagingSystem.h"

#include <cstring>
#include <memory>
#include <vector>

using namespace Gdiplus;
using namespace Gdiplus::DllExports;

namespace {

struct DisposesOfImage
{
    void operator()(GpBitmap* image) const { GdipDisposeImage(image); }
};
using OwnedPicture = std::unique_ptr<GpBitmap, DisposesOfImage>;

HRESULT ResultOf(GpStatus status)
{
    switch (status) {
    case Ok:
        return S_OK;
    case InvalidParameter:
        return E_INVALIDARG;
    case OutOfMemory:
        return E_OUTOFMEMORY;
    case NotImplemented:
        return E_NOTIMPL;
    case AccessDenied:
        return E_ACCESSDENIED;
    case FileNotFound:
        return HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND);
    default:
        return E_FAIL;
    }
}

/// Lets a picture's rows be read or written, in a format of that many bits.
class LockedRows
{
public:
    LockedRows(GpBitmap* picture, int width, int height, UINT mode, PixelFormat format)
        : picture_(picture)
    {
        const GpRect all(0, 0, width, height);
        status = GdipBitmapLockBits(picture, &all, mode, format, &data_);
    }
    ~LockedRows()
    {
        if (status == Ok)
            GdipBitmapUnlockBits(picture_, &data_);
    }
    LockedRows(const LockedRows&) = delete;
    LockedRows& operator=(const LockedRows&) = delete;

    BYTE* operator[](int y) const
    {
        return static_cast<BYTE*>(data_.Scan0) + static_cast<ptrdiff_t>(data_.Stride) * y;
    }

    GpStatus status;

private:
    GpBitmap* picture_;
    BitmapData data_{};
};

/// The format in which rows of such a bitmap are copied.
PixelFormat FormatOf(int bitsPerPixel, bool alpha)
{
    switch (bitsPerPixel) {
    case 1:
        return PixelFormat1bppIndexed;
    case 4:
        return PixelFormat4bppIndexed;
    case 8:
        return PixelFormat8bppIndexed;
    case 16:
        return PixelFormat16bppRGB555;
    case 24:
        return PixelFormat24bppRGB;
    default:
        return alpha ? PixelFormat32bppPARGB : PixelFormat32bppRGB;
    }
}

/// A format of picture files.
struct Format
{
    CLSID codec;
    GUID id;
    CString description;
    CString patterns; ///< "*.JPG;*.JPEG"
};

/// The formats that the system reads, or those that it writes.
std::vector<Format> ListFormats(bool written)
{
    UINT count = 0;
    UINT size = 0;
    if (!afxint::StartImaging() || (written ? GdipGetImageEncodersSize(&count, &size)
                                            : GdipGetImageDecodersSize(&count, &size)) != Ok)
        return {};
    std::vector<ImageCodecInfo> codecs(size / sizeof(ImageCodecInfo) + 1); // With their texts.
    if ((written ? GdipGetImageEncoders(count, size, codecs.data())
                 : GdipGetImageDecoders(count, size, codecs.data())) != Ok)
        return {};
    std::vector<Format> formats;
    for (UINT i = 0; i < count; ++i) {
        const ImageCodecInfo& codec = codecs[i];
        formats.push_back({codec.Clsid, codec.FormatID, CString(codec.FormatDescription),
                           CString(codec.FilenameExtension)});
    }
    return formats;
}

/// What saves in a format; NULL when nothing does.
const Format* FindFormat(const std::vector<Format>& formats, REFGUID id)
{
    for (const Format& format : formats) {
        if (format.id == id)
            return &format;
    }
    return NULL;
}

const Format* FindFormat(const std::vector<Format>& formats, const CString& fileName)
{
    const LPCTSTR extension = ::PathFindExtension(fileName);
    if (*extension == 0)
        return FindFormat(formats, ImageFormatBMP);
    const CString pattern = CString(_T("*")) + extension;
    for (const Format& format : formats) {
        int start = 0;
        for (CString at = format.patterns.Tokenize(_T(";"), start); !at.IsEmpty();
             at = format.patterns.Tokenize(_T(";"), start)) {
            if (at.CompareNoCase(pattern) == 0)
                return &format;
        }
    }
    return NULL;
}

DWORD ExclusionOf(REFGUID id)
{
    const std::pair<GUID, DWORD> known[] = {
        {ImageFormatGIF, CImage::excludeGIF},   {ImageFormatBMP, CImage::excludeBMP},
        {ImageFormatEMF, CImage::excludeEMF},   {ImageFormatWMF, CImage::excludeWMF},
        {ImageFormatJPEG, CImage::excludeJPEG}, {ImageFormatPNG, CImage::excludePNG},
        {ImageFormatTIFF, CImage::excludeTIFF}, {ImageFormatIcon, CImage::excludeIcon}};
    for (const auto& [format, exclusion] : known) {
        if (format == id)
            return exclusion;
    }
    return CImage::excludeOther;
}

HRESULT MakeFilter(bool written, CString& filter, CSimpleArray<GUID>& formats,
                   LPCTSTR allDescription, DWORD excluded, TCHAR separator)
{
    const afxint::ImagingUser user;
    filter.Empty();
    formats.RemoveAll();
    CString entries, all;
    for (const Format& format : ListFormats(written)) {
        if ((ExclusionOf(format.id) & excluded) != 0)
            continue;
        entries += format.description + _T(" (") + format.patterns + _T(")") + separator +
                   format.patterns + separator;
        all += (all.IsEmpty() ? _T("") : _T(";")) + format.patterns;
        formats.Add(format.id);
    }
    if (allDescription != NULL) {
        CSimpleArray<GUID> listed = formats;
        formats.RemoveAll();
        formats.Add(GUID_NULL);
        for (int i = 0; i < listed.GetSize(); ++i)
            formats.Add(listed[i]);
        filter = CString(allDescription) + separator + all + separator;
    }
    filter += entries + separator;
    return entries.IsEmpty() ? E_FAIL : S_OK;
}

} // namespace

HRESULT CImage::Load(LPCTSTR pszFileName) throw()
{
    if (pszFileName == NULL)
        return E_INVALIDARG;
    if (!afxint::StartImaging())
        return E_FAIL;
    GpBitmap* picture = NULL;
    const GpStatus status = GdipCreateBitmapFromFile(CT2W(pszFileName), &picture);
    const OwnedPicture owned(picture);
    return status == Ok ? TakePicture(picture) : ResultOf(status);
}

HRESULT CImage::Load(IStream* pStream) throw()
{
    if (pStream == NULL)
        return E_INVALIDARG;
    if (!afxint::StartImaging())
        return E_FAIL;
    GpBitmap* picture = NULL;
    const GpStatus status = GdipCreateBitmapFromStream(pStream, &picture);
    const OwnedPicture owned(picture);
    return status == Ok ? TakePicture(picture) : ResultOf(status);
}

void CImage::LoadFromResource(HINSTANCE hInstance, LPCTSTR pszResourceName) throw()
{
    const HANDLE bitmap =
        ::LoadImage(hInstance, pszResourceName, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION);
    if (bitmap != NULL)
        Attach(static_cast<HBITMAP>(bitmap));
}

void CImage::LoadFromResource(HINSTANCE hInstance, UINT nIDResource) throw()
{
    LoadFromResource(hInstance, MAKEINTRESOURCE(nIDResource));
}

HRESULT CImage::Save(IStream* pStream, REFGUID guidFileType) const throw()
{
    if (pStream == NULL || IsNull())
        return E_INVALIDARG;
    const std::vector<Format> formats = ListFormats(true);
    const Format* format = FindFormat(formats, guidFileType);
    if (format == NULL)
        return E_FAIL;
    GpBitmap* picture = NULL;
    const HRESULT made = MakePicture(picture);
    const OwnedPicture owned(picture);
    return FAILED(made) ? made
                        : ResultOf(GdipSaveImageToStream(picture, pStream, &format->codec, NULL));
}

HRESULT CImage::Save(LPCTSTR pszFileName, REFGUID guidFileType) const throw()
{
    if (pszFileName == NULL || IsNull())
        return E_INVALIDARG;
    const std::vector<Format> formats = ListFormats(true);
    const Format* format = guidFileType == GUID_NULL ? FindFormat(formats, CString(pszFileName))
                                                     : FindFormat(formats, guidFileType);
    if (format == NULL)
        return E_FAIL;
    GpBitmap* picture = NULL;
    const HRESULT made = MakePicture(picture);
    const OwnedPicture owned(picture);
    return FAILED(made)
               ? made
               : ResultOf(GdipSaveImageToFile(picture, CT2W(pszFileName), &format->codec, NULL));
}

HRESULT CImage::GetImporterFilterString(CString& strImporters, CSimpleArray<GUID>& aguidFileTypes,
                                        LPCTSTR pszAllFilesDescription, DWORD dwExclude,
                                        TCHAR chSeparator)
{
    return MakeFilter(false, strImporters, aguidFileTypes, pszAllFilesDescription, dwExclude,
                      chSeparator);
}

HRESULT CImage::GetExporterFilterString(CString& strExporters, CSimpleArray<GUID>& aguidFileTypes,
                                        LPCTSTR pszAllFilesDescription, DWORD dwExclude,
                                        TCHAR chSeparator)
{
    return MakeFilter(true, strExporters, aguidFileTypes, pszAllFilesDescription, dwExclude,
                      chSeparator);
}

HRESULT CImage::TakePicture(GpBitmap* picture)
{
    UINT width = 0;
    UINT height = 0;
    PixelFormat format = 0;
    if (GdipGetImageWidth(picture, &width) != Ok || GdipGetImageHeight(picture, &height) != Ok ||
        GdipGetImagePixelFormat(picture, &format) != Ok)
        return E_FAIL;
    const bool indexed = IsIndexedPixelFormat(format);
    const bool alpha = !indexed && IsAlphaPixelFormat(format);
    const int bitsPerPixel = indexed ? static_cast<int>(GetPixelFormatSize(format))
                             : alpha ? 32
                                     : 24;
    CImage copy;
    if (!copy.Create(static_cast<int>(width), static_cast<int>(height), bitsPerPixel,
                     alpha ? createAlphaChannel : 0))
        return E_OUTOFMEMORY;
    if (indexed) {
        const HRESULT copied = copy.CopyPalette(picture);
        if (FAILED(copied))
            return copied;
    }
    const LockedRows rows(picture, copy.width_, copy.height_, ImageLockModeRead,
                          FormatOf(bitsPerPixel, alpha));
    if (rows.status != Ok)
        return ResultOf(rows.status);
    const size_t length = (static_cast<size_t>(width) * bitsPerPixel + 7) / 8;
    for (int y = 0; y < copy.height_; ++y)
        memcpy(copy.Row(y), rows[y], length);

    const LONG transparent = copy.transparentColor_;
    Attach(copy.Detach(), DIBOR_BOTTOMUP);
    hasAlpha_ = alpha;
    transparentColor_ = transparent;
    return S_OK;
}

HRESULT CImage::MakePicture(GpBitmap*& picture) const
{
    if (!IsDIBSection())
        return ResultOf(GdipCreateBitmapFromHBITMAP(bitmap_, NULL, &picture));
    const PixelFormat format = FormatOf(bitsPerPixel_, hasAlpha_);
    const GpStatus status = GdipCreateBitmapFromScan0(width_, height_, 0, format, NULL, &picture);
    if (status != Ok)
        return ResultOf(status);
    if (IsIndexed()) {
        const HRESULT copied = GivePalette(picture);
        if (FAILED(copied))
            return copied;
    }
    ::GdiFlush(); // What was drawn has to be in the bits.
    const LockedRows rows(picture, width_, height_, ImageLockModeWrite, format);
    if (rows.status != Ok)
        return ResultOf(rows.status);
    const size_t length = (static_cast<size_t>(width_) * bitsPerPixel_ + 7) / 8;
    for (int y = 0; y < height_; ++y)
        memcpy(rows[y], Row(y), length);
    return S_OK;
}

HRESULT CImage::GivePalette(GpBitmap* picture) const
{
    const int count = GetMaxColorTableEntries();
    RGBQUAD colors[256] = {};
    GetColorTable(0, count, colors);
    std::vector<ARGB> memory(sizeof(ColorPalette) / sizeof(ARGB) + count);
    auto* palette = reinterpret_cast<ColorPalette*>(memory.data());
    palette->Count = count;
    ARGB* entry = palette->Entries;
    for (int i = 0; i < count; ++i) {
        const BYTE opacity = i == transparentColor_ ? 0 : 255;
        *entry++ =
            Color::MakeARGB(opacity, colors[i].rgbRed, colors[i].rgbGreen, colors[i].rgbBlue);
    }
    return ResultOf(GdipSetImagePalette(picture, palette));
}

/// Copies the colours of a picture, and which of them is transparent.
HRESULT CImage::CopyPalette(GpBitmap* picture)
{
    INT size = 0;
    GpStatus status = GdipGetImagePaletteSize(picture, &size);
    if (status != Ok || size < static_cast<INT>(sizeof(ColorPalette)))
        return status != Ok ? ResultOf(status) : E_FAIL;
    std::vector<ARGB> memory(size / sizeof(ARGB) + 1);
    auto* palette = reinterpret_cast<ColorPalette*>(memory.data());
    status = GdipGetImagePalette(picture, palette, size);
    if (status != Ok)
        return ResultOf(status);
    RGBQUAD colors[256] = {};
    const int count = min(static_cast<int>(palette->Count), GetMaxColorTableEntries());
    for (int i = 0; i < count; ++i) {
        const ARGB color = palette->Entries[i];
        colors[i] = {static_cast<BYTE>(color), static_cast<BYTE>(color >> 8),
                     static_cast<BYTE>(color >> 16), 0};
        if (color >> 24 == 0 && transparentColor_ < 0)
            transparentColor_ = i;
    }
    SetColorTable(0, GetMaxColorTableEntries(), colors);
    return S_OK;
}
