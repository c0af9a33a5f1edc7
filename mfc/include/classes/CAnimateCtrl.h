// A silent clip that plays in a window.
#pragma once

#include <classes/CWnd.h>

/// The common control "SysAnimate32".
class AFX_EXPORTED CAnimateCtrl : public CWnd
{
    DECLARE_DYNAMIC(CAnimateCtrl)

public:
    CAnimateCtrl();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    /// Opens a file, or a resource of type AVI, and shows the first frame; NULL closes.
    BOOL Open(LPCTSTR lpszFileName);
    BOOL Open(UINT nID);
    /// Plays from frame to frame (-1 is the last one), so many times (-1 is forever).
    BOOL Play(UINT nFrom, UINT nTo, UINT nRep);
    BOOL Stop();
    BOOL Seek(UINT nTo);
    BOOL Close();
    BOOL IsPlaying() const;
};
