// A device context for the client area of a window.
#pragma once

#include <classes/CDC.h>

/// Held for the object's lifetime; the screen's when pWnd is NULL.
class AFX_EXPORTED CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)

public:
    /// Throws a CResourceException when there is no such context.
    explicit CClientDC(CWnd* pWnd);
    virtual ~CClientDC();

protected:
    HWND m_hWnd;
};
