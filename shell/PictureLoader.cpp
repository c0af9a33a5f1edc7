#include "shell/PictureLoader.h"

#include "shell/PicturePath.h"

#include <direct.h>
#include <ocidl.h>
#include <olectl.h>
#include <tchar.h>

#include <memory>
#include <new>

namespace {

const int workingPathCapacity = 256;   // Characters.
const size_t longestPath = 0x40000000; // Characters, with the terminator; refused from here on.

#ifdef UNICODE

/// The path as it is; NULL when it is too long.
LPCWSTR WidenPath(LPCWSTR path)
{
    return wcslen(path) + 1 < longestPath ? path : nullptr;
}

LPOLESTR AddressOf(LPCWSTR path)
{
    return const_cast<LPOLESTR>(path); // The loader only reads it.
}

#else

/// The path in UTF-16; NULL when it cannot be converted.
std::unique_ptr<wchar_t[]> WidenPath(LPCSTR path)
{
    const size_t length = strlen(path) + 1;
    if (length >= longestPath)
        return nullptr;
    std::unique_ptr<wchar_t[]> wide(new (std::nothrow) wchar_t[length]);
    if (wide == nullptr || ::MultiByteToWideChar(CP_THREAD_ACP, 0, path, -1, wide.get(),
                                                 static_cast<int>(length)) == 0)
        return nullptr;
    return wide;
}

LPOLESTR AddressOf(const std::unique_ptr<wchar_t[]>& path)
{
    return path.get();
}

#endif

/// The picture of the file, to be released by the caller; NULL when there is none. The returned
/// code of the loader is of no interest: what counts is whether a picture came back.
IPicture* OpenPicture(LPCTSTR path)
{
    const auto wide = WidenPath(path);
    void* picture = nullptr;
    ::OleLoadPicturePath(AddressOf(wide), nullptr, 0, 0, IID_IPicture, &picture);
    return static_cast<IPicture*>(picture);
}

IPicture* OpenPictureBelowWorkingDirectory(LPCTSTR path)
{
    TCHAR directory[workingPathCapacity];
    TCHAR joined[workingPathCapacity];
    if (_tgetcwd(directory, workingPathCapacity) == nullptr)
        return nullptr;
    if (!umbra::JoinPicturePath(directory, path, joined, workingPathCapacity))
        return nullptr;
    return OpenPicture(joined);
}

/// The picture's own handle: GDI handles carry 32 bits, sign-extended in a 64-bit program.
HBITMAP GetPictureHandle(IPicture* picture)
{
    OLE_HANDLE handle = 0;
    picture->get_Handle(&handle);
    return static_cast<HBITMAP>(LongToHandle(static_cast<long>(handle)));
}

/// A copy that does not share the source's fate. The first call may answer the source itself.
HBITMAP CopyBitmap(HBITMAP source)
{
    HANDLE copy = ::CopyImage(source, IMAGE_BITMAP, 0, 0, LR_COPYRETURNORG);
    if (copy == source)
        copy = ::CopyImage(source, IMAGE_BITMAP, 0, 0, 0);
    return static_cast<HBITMAP>(copy);
}

/// A copy of the picture's bitmap; releases the picture, and what it may have left behind.
HBITMAP TakeBitmap(IPicture* picture)
{
    const HBITMAP source = GetPictureHandle(picture);
    const HBITMAP copy = source != nullptr ? CopyBitmap(source) : nullptr;
    picture->Release();
    if (source != nullptr)
        ::DeleteObject(source);
    return copy;
}

} // namespace

HBITMAP LoadPictureBitmap(LPCTSTR path)
{
    if (path == nullptr)
        return nullptr;
    IPicture* picture = OpenPicture(path);
    if (picture == nullptr)
        picture = OpenPictureBelowWorkingDirectory(path);
    const HBITMAP bitmap = picture != nullptr ? TakeBitmap(picture) : nullptr;
    if (bitmap == nullptr)
        TRACE(_T("Umbra: no picture could be loaded from '%.260s'.\n"), path);
    return bitmap;
}
