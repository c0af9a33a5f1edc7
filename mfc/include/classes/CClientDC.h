#pragma once

#include <classes/CDC.h>

/// The client area of a window for the object's lifetime; of the screen when pWnd is NULL.
class CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)

public:
    /// Throws a CResourceException when there is no such context.
    explicit CClientDC(CWnd* pWnd);
    virtual ~CClientDC();

protected:
    HWND m_hWnd;
};
