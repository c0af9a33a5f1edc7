// CModellessDlg: a page that stays on screen, without a modal loop, while its host works. From its
// construction on the application's wait cursor shows; the host ends the window, frees the object
// (made with new), and calls EndWaitCursor if it wishes to.
//
//     if (g_pModelessDlg == NULL) {
//         g_pModelessDlg = new CModellessDlg(NULL);
//         g_pModelessDlg->Create(CModellessDlg::IDD, NULL);
//         g_pModelessDlg->ShowWindow(SW_SHOW);
//         g_pModelessDlg->InvalidateRect(NULL, TRUE);
//         g_pModelessDlg->PumpMessages();
//     }
#pragma once

#include "umbra_api.h"

#include "dialogs/BaseDialog.h"

#include "controls/HyperLink.h"

class UMBRA_API CModellessDlg : public CBaseDialog
{
public:
    enum { IDD = 3040 }; ///< Its template.

    explicit CModellessDlg(CWnd* parent);
    ~CModellessDlg() override;

    BOOL OnInitDialog() override;

    /// Handles every message that waits for this thread, of any of its windows, and shows the wait
    /// cursor again. Never waits. The host calls it between steps of its work; its own handlers may
    /// run meanwhile.
    void PumpMessages();

    CHyperLink m_icon;   ///< The information icon.
    CHyperLink m_title;  ///< What is going on.
    CHyperLink m_detail; ///< More about it.
    CHyperLink m_hint;   ///< What the user may do.

protected:
    void DoDataExchange(CDataExchange* pDX) override;

    DECLARE_MESSAGE_MAP()
};

/// The one modeless dialog; NULL while there is none. Set and cleared by the host.
extern UMBRA_API CModellessDlg* g_pModelessDlg;
