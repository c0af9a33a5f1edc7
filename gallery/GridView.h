// CGridView: a drawing of a rectangle on the dialog-unit grid, enlarged where there is room. The
// static control of the template only gives the place.
#pragma once

#include <umbra.h>

class CGridView : public CStatic
{
public:
    /// Shows a rectangle in pixels, and another one as a dashed outline unless it is empty. Grid
    /// lines stand at each dialog unit. `extent` is the area in pixels that has to be seen.
    void Show(const CRect& rectangle, const CRect& outline, COLORREF color, CSize extent);

protected:
    CRect m_rectangle;
    CRect m_outline;
    COLORREF m_color = RGB(0, 0, 0);
    CSize m_extent;

    DECLARE_MESSAGE_MAP()
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnPaint();

private:
    double Scale(const CRect& client) const;
    void DrawView(CDC& dc, const CRect& client);
    void DrawGrid(CDC& dc, const CRect& client, double scale);
    void DrawOutline(CDC& dc, CRect place);
};
