// A label, a box, or a picture.
#pragma once

#include <classes/CWnd.h>

/// The system's "Static" control. Setters of pictures give back the former picture and take no
/// ownership of the new one.
class AFX_EXPORTED CStatic : public CWnd
{
    DECLARE_DYNAMIC(CStatic)

public:
    CStatic();

    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID = 0xffff);

    HBITMAP SetBitmap(HBITMAP hBitmap);
    HBITMAP GetBitmap() const;
    HICON SetIcon(HICON hIcon);
    HICON GetIcon() const;
    HENHMETAFILE SetEnhMetaFile(HENHMETAFILE hMetaFile);
    HENHMETAFILE GetEnhMetaFile() const;
    HCURSOR SetCursor(HCURSOR hCursor);
    HCURSOR GetCursor();

    /// Draws a label of style SS_OWNERDRAW; the base draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
};
