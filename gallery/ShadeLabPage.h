// CShadeLabPage: tries out what SetShade makes of its arguments, and gives the finished call.
#pragma once

#include "gallery/GalleryPage.h"

class CShadeLabPage : public CGalleryPage
{
public:
    explicit CShadeLabPage(CWnd* parent);

    BOOL OnInitDialog() override;

    /// Chooses all arguments at once.
    void Choose(int style, int granularity, int highlight, int coloring, COLORREF tint);

protected:
    enum { sliderCount = IDC_BLUE - IDC_GRANULARITY + 1 };

    CComboBox m_style;
    CSliderCtrl m_sliders[sliderCount];
    CxShadeButton m_live[IDC_LIVE_LAST - IDC_LIVE_FIRST + 1];
    CxShadeButton m_btnCopy;
    CxShadeButton m_btnReset;

    void DoDataExchange(CDataExchange* pDX) override;
    void DrawBackdrop(CDC& dc) override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnStyle();
    afx_msg void OnCopy();
    afx_msg void OnReset();

private:
    int Value(int sliderId) const;
    COLORREF Tint() const;
    CString CallText() const;
    void ApplyShade();
};
