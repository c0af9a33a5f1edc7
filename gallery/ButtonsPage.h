// CButtonsPage: shaded buttons of every style, state and kind.
#pragma once

#include "gallery/GalleryPage.h"
#include "gallery/SampleButton.h"

class CButtonsPage : public CGalleryPage
{
public:
    enum { styleCount = 9, stateCount = 4 }; // Live, hot, pressed, disabled.

    explicit CButtonsPage(CWnd* parent);

    BOOL OnInitDialog() override;

protected:
    CSampleButton m_matrix[styleCount][stateCount];
    CxShadeButton m_flat;
    CxShadeButton m_default;
    CxShadeButton m_pictureLeft;
    CxShadeButton m_pictureRight;
    CxShadeButton m_pictureAbove;
    CxShadeButton m_checkPlain;
    CxShadeButton m_checkPush;
    CxShadeButton m_radios[IDC_RADIO_LAST - IDC_RADIO_FIRST + 1];
    CxShadeButton m_tip;

    void DoDataExchange(CDataExchange* pDX) override;

    DECLARE_MESSAGE_MAP()

private:
    void CreateMatrix();
    void ShadeOthers();
};
