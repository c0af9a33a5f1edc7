#include <classes/CCmdTarget.h>

#include <classes/Application.h>
#include <classes/CCmdUI.h>

#include "windows/MessageMap.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

// The outermost map: empty, and without a base.
const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

const AFX_MSGMAP* PASCAL CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY end = {0, 0, 0, 0, NULL, 0, NULL};
    static const AFX_MSGMAP map = {NULL, &end};
    return &map;
}

CCmdTarget::CCmdTarget() = default;

CCmdTarget::~CCmdTarget() = default;

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    const bool update = nCode == static_cast<int>(CN_UPDATE_COMMAND_UI);
    UINT message = WM_COMMAND;
    UINT code = static_cast<UINT>(nCode);
    if (!update) {
        code = LOWORD(nCode);
        if (HIWORD(nCode) != 0)
            message = HIWORD(nCode);
    }
    const AFX_MSGMAP_ENTRY* entry = afxint::FindCommandEntry(GetMessageMap(), message, code, nID);
    if (entry == NULL)
        return FALSE;
    if (pHandlerInfo != NULL) {
        pHandlerInfo->pTarget = this;
        pHandlerInfo->pmf = entry->pfn;
        return TRUE;
    }

    const bool reflectedUpdate =
        message == WM_REFLECT_BASE + WM_COMMAND && code == LOWORD(CN_UPDATE_COMMAND_UI);
    CCmdUI* ui = update || reflectedUpdate ? static_cast<CCmdUI*>(pExtra) : NULL;
    if (ui != NULL)
        ui->continueRouting_ = false;
    const afxint::Delivery delivery{NULL, message, 0, 0, nID, pExtra};
    const LRESULT taken = afxint::CallHandler(*entry, this, delivery);
    return taken != 0 && !(ui != NULL && ui->continueRouting_);
}

void CCmdTarget::BeginWaitCursor()
{
    if (CWinApp* app = AfxGetApp())
        app->DoWaitCursor(1);
}

void CCmdTarget::EndWaitCursor()
{
    if (CWinApp* app = AfxGetApp())
        app->DoWaitCursor(-1);
}

void CCmdTarget::RestoreWaitCursor()
{
    if (CWinApp* app = AfxGetApp())
        app->DoWaitCursor(0);
}

void CCmdTarget::OnFinalRelease()
{
    delete this;
}
