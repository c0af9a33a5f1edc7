// CPicturePreview: shows a picture file as large as its control allows, in its proportions.
#pragma once

#include <umbra.h>

class CPicturePreview : public CStatic
{
public:
    /// FALSE when the file cannot be shown.
    BOOL Show(const CString& path);

    CSize PictureSize() const; ///< In pixels; 0 x 0 while there is no picture.

protected:
    CBitmap m_picture;

    DECLARE_MESSAGE_MAP()
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnPaint();

private:
    void DrawPicture(CDC& dc, CRect area);
};
