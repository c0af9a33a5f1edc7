// A device context for what of a window has to be painted.
#pragma once

#include <classes/CDC.h>

/// BeginPaint in the constructor, EndPaint in the destructor: for WM_PAINT handlers only.
class AFX_EXPORTED CPaintDC : public CDC
{
    DECLARE_DYNAMIC(CPaintDC)

public:
    /// Throws a CResourceException when painting cannot begin.
    explicit CPaintDC(CWnd* pWnd);
    virtual ~CPaintDC();

    PAINTSTRUCT m_ps; ///< What BeginPaint told.

protected:
    HWND m_hWnd;
};
