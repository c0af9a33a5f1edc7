// A device context for a whole window with its frame.
#pragma once

#include <classes/CDC.h>

/// Held for the object's lifetime; the screen's when pWnd is NULL.
class AFX_EXPORTED CWindowDC : public CDC
{
    DECLARE_DYNAMIC(CWindowDC)

public:
    /// Throws a CResourceException when there is no such context.
    explicit CWindowDC(CWnd* pWnd);
    virtual ~CWindowDC();

protected:
    HWND m_hWnd;
};
