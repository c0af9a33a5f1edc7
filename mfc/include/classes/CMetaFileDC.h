// A device context that records drawing into a metafile.
#pragma once

#include <classes/CDC.h>

/// It has no attribute context until SetAttribDC names one.
class AFX_EXPORTED CMetaFileDC : public CDC
{
    DECLARE_DYNAMIC(CMetaFileDC)

public:
    CMetaFileDC();
    /// Throws the recording away if Close was not called.
    virtual ~CMetaFileDC();

    BOOL Create(LPCTSTR lpszFilename = NULL);
    BOOL CreateEnhanced(CDC* pDCRef, LPCTSTR lpszFileName, LPCRECT lpBounds,
                        LPCTSTR lpszDescription);
    /// Ends the recording; the caller owns the metafile. NULL on failure.
    HMETAFILE Close();
    HENHMETAFILE CloseEnhanced();
};
