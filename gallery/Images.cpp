#include "gallery/Images.h"

CString EndWithBackslash(const CString& folder)
{
    // The last byte may be the second one of a character, which a backslash looks like.
    return folder.ReverseFind(_T('\\')) == folder.GetLength() - 1 ? folder : folder + _T("\\");
}

CString GalleryFolder()
{
    CString path;
    ::GetModuleFileName(nullptr, path.GetBuffer(MAX_PATH), MAX_PATH);
    path.ReleaseBuffer();
    return path.Left(path.ReverseFind(_T('\\')) + 1);
}

CString ImageFolder()
{
    return EndWithBackslash(g_strImageDir) + _T("images\\");
}

bool HasImages()
{
    const DWORD attributes = ::GetFileAttributes(ImageFolder());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

CString PictureFile(LPCTSTR fileName)
{
    return ImageFolder() + fileName;
}
