// CSampleButton: a shaded button that can be held in one look, for showing it. Held, it does not
// answer to the mouse.
#pragma once

#include <umbra.h>

class CSampleButton : public CxShadeButton
{
public:
    /// Holds the hot look, which otherwise shows only under the mouse.
    void HoldHot();
    /// Holds the pressed look.
    void HoldPressed();

protected:
    bool m_held = false;

    DECLARE_MESSAGE_MAP()
    afx_msg LRESULT OnNcHitTest(CPoint point);
};
