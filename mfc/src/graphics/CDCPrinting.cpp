// Documents for a printer, its escapes, and recorded drawing.
#include <afxwin.h>

int CDC::Escape(int nEscape, int nInputSize, LPCSTR lpszInputData, int nOutputSize,
                LPSTR lpszOutputData)
{
    return ::ExtEscape(m_hDC, nEscape, nInputSize, lpszInputData, nOutputSize, lpszOutputData);
}

int CDC::Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData)
{
    return ::Escape(m_hDC, nEscape, nCount, lpszInData, lpOutData);
}

int CDC::DrawEscape(int nEscape, int nInputSize, LPCSTR lpszInputData)
{
    return ::DrawEscape(m_hDC, nEscape, nInputSize, lpszInputData);
}

int CDC::StartDoc(LPCTSTR lpszDocName)
{
    DOCINFO document{};
    document.cbSize = sizeof(document);
    document.lpszDocName = lpszDocName;
    return StartDoc(&document);
}

int CDC::StartDoc(LPDOCINFO lpDocInfo)
{
    return ::StartDoc(m_hDC, lpDocInfo);
}

int CDC::StartPage()
{
    return ::StartPage(m_hDC);
}

int CDC::EndPage()
{
    return ::EndPage(m_hDC);
}

int CDC::SetAbortProc(BOOL(CALLBACK* lpfn)(HDC, int))
{
    return ::SetAbortProc(m_hDC, lpfn);
}

int CDC::AbortDoc()
{
    return ::AbortDoc(m_hDC);
}

int CDC::EndDoc()
{
    return ::EndDoc(m_hDC);
}

BOOL CDC::PlayMetaFile(HMETAFILE hMF)
{
    return ::PlayMetaFile(m_hDC, hMF);
}

BOOL CDC::PlayMetaFile(HENHMETAFILE hEnhMetaFile, LPCRECT lpBounds)
{
    return ::PlayEnhMetaFile(m_hDC, hEnhMetaFile, lpBounds);
}

BOOL CDC::AddMetaFileComment(UINT nDataSize, const BYTE* pCommentData)
{
    return ::GdiComment(m_hDC, nDataSize, pCommentData);
}
