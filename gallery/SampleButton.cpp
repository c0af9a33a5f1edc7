#include "gallery/SampleButton.h"

BEGIN_MESSAGE_MAP(CSampleButton, CxShadeButton)
    ON_WM_NCHITTEST()
END_MESSAGE_MAP()

void CSampleButton::HoldHot()
{
    m_held = true;
    m_hover = TRUE;
    Invalidate(FALSE);
}

void CSampleButton::HoldPressed()
{
    m_held = true;
    SetState(TRUE);
}

LRESULT CSampleButton::OnNcHitTest(CPoint point)
{
    return m_held ? HTTRANSPARENT : CxShadeButton::OnNcHitTest(point);
}
