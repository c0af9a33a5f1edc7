// CBackgroundsPage: the ways in which a dialog paints its own background.
#pragma once

#include "gallery/GalleryPage.h"
#include "gallery/SampleDialog.h"

class CBackgroundsPage : public CGalleryPage
{
public:
    explicit CBackgroundsPage(CWnd* parent);

    BOOL OnInitDialog() override;

    CSampleDialog& Sample(CSampleDialog::Kind kind) { return m_samples[kind]; }

protected:
    CxShadeButton m_buttons[IDC_SAMPLE_LAST - IDC_SAMPLE_FIRST + 1];
    CxShadeButton m_btnDrag;
    CNoteStatic m_dragState;

    void DoDataExchange(CDataExchange* pDX) override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnSample(UINT buttonId);
    afx_msg void OnDrag();
    afx_msg void OnDestroy();

private:
    CSampleDialog m_samples[4]; ///< By their kind.
};
