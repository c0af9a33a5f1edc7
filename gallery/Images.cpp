#include "gallery/Images.h"

CString EndWithBackslash(const CString& folder)
{
    // The last byte may be the second one of a character, which a backslash looks like.
    return folder.ReverseFind('\\') == folder.GetLength() - 1 ? folder : folder + "\\";
}

CString GalleryFolder()
{
    CString path;
    ::GetModuleFileName(nullptr, path.GetBuffer(MAX_PATH), MAX_PATH);
    path.ReleaseBuffer();
    return path.Left(path.ReverseFind('\\') + 1);
}

CString ImageFolder()
{
    return EndWithBackslash(g_strImageDir) + "images\\";
}

bool HasImages()
{
    const DWORD attributes = ::GetFileAttributes(ImageFolder());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

CString PictureFile(const char* fileName)
{
    return ImageFolder() + fileName;
}
