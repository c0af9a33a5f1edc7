#include "gallery/Images.h"

CString GalleryFolder()
{
    CString path;
    ::GetModuleFileName(nullptr, path.GetBuffer(MAX_PATH), MAX_PATH);
    path.ReleaseBuffer();
    return path.Left(path.ReverseFind('\\') + 1);
}

CString ImageFolder()
{
    CString folder = g_strImageDir;
    if (folder.Right(1) != "\\")
        folder += "\\";
    return folder + "images\\";
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
