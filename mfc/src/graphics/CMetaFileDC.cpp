#include <afxext.h>

IMPLEMENT_DYNAMIC(CMetaFileDC, CDC)

CMetaFileDC::CMetaFileDC()
{
}

CMetaFileDC::~CMetaFileDC()
{
    if (m_hDC == NULL)
        return;
    if (::GetObjectType(m_hDC) == OBJ_ENHMETADC)
        ::DeleteEnhMetaFile(CloseEnhanced());
    else
        ::DeleteMetaFile(Close());
}

BOOL CMetaFileDC::Create(LPCTSTR lpszFilename)
{
    if (!Attach(::CreateMetaFile(lpszFilename)))
        return FALSE;
    CDC::ReleaseAttribDC();
    return TRUE;
}

BOOL CMetaFileDC::CreateEnhanced(CDC* pDCRef, LPCTSTR lpszFileName, LPCRECT lpBounds,
                                 LPCTSTR lpszDescription)
{
    const HDC reference = pDCRef->GetSafeHdc();
    if (!Attach(::CreateEnhMetaFile(reference, lpszFileName, lpBounds, lpszDescription)))
        return FALSE;
    CDC::ReleaseAttribDC();
    return TRUE;
}

HMETAFILE CMetaFileDC::Close()
{
    return ::CloseMetaFile(Detach());
}

HENHMETAFILE CMetaFileDC::CloseEnhanced()
{
    return ::CloseEnhMetaFile(Detach());
}
