// The base of everything that can handle commands and messages.
#pragma once

#include <classes/CObject.h>
#include <afxmsg_.h>

/// An object with a message map.
class AFX_EXPORTED CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)

public:
    CCmdTarget();
    ~CCmdTarget() override;

    /// Routes a command, an update of its user interface, or a notification. TRUE when a handler
    /// took it. With pHandlerInfo the handler is not called but named there.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    // The hourglass of the application object.
    void BeginWaitCursor();
    void EndWaitCursor();
    /// Shows the hourglass again after something else changed the cursor.
    void RestoreWaitCursor();

    /// Called when the last reference of an automation client goes; deletes the object.
    virtual void OnFinalRelease();

protected:
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
};
