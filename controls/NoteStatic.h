// CNoteStatic: a label for short notes and remarks, which can have a font object of its own.
#pragma once

#include "umbra_api.h"

#include "controls/StaticTS.h"

class UMBRA_API CNoteStatic : public CStaticTS
{
public:
    CNoteStatic();
    ~CNoteStatic() override;

    /// Gives the control a font of its own, equal to its current one, which it must have. Call it
    /// once: each call leaves its font objects behind until the process ends, and so does each
    /// paint from then on, unless m_bOwnFont is set again; see SetLabelFont.
    void CopyWindowFont();

protected:
    DECLARE_MESSAGE_MAP()

    virtual const AFX_MSGMAP* GetBaseMessageMap() const; ///< The map of CStaticTS.
};
