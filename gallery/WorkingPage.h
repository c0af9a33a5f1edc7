// CWorkingPage: a long job of the host's own, with the modeless dialog up.
#pragma once

#include "gallery/GalleryPage.h"

/// The modeless dialog with a bar of progress, and with an ear for its Cancel button.
class CWorkingDialog : public CModellessDlg
{
public:
    CWorkingDialog();

    BOOL OnInitDialog() override;

    /// Lets the user cancel from here on.
    void AllowCancel();
    bool IsCancelled() const { return m_cancelled; }

    void ShowProgress(int percent, const CString& detail);

protected:
    CProgressCtrl m_progress;
    bool m_cancelled = false;

    void OnOK() override;
    void OnCancel() override;

    DECLARE_MESSAGE_MAP()

private:
};

class CWorkingPage : public CGalleryPage
{
public:
    explicit CWorkingPage(CWnd* parent);

    BOOL OnInitDialog() override;

    // The job, in pieces: begin, work until there is nothing left to do, end.
    bool BeginWork();
    bool WorkOn(); ///< One piece; false when the job is done or was cancelled.
    void EndWork();

protected:
    CxShadeButton m_btnStart;
    CxShadeButton m_btnAllowCancel;
    CNoteStatic m_result;

    void DoDataExchange(CDataExchange* pDX) override;
    void OnCancel() override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnStart();

private:
    unsigned m_next = 0;    ///< The number to be tested next.
    unsigned m_primes = 0;  ///< Found so far.
    DWORD m_lastReport = 0; ///< In the milliseconds of the system.

    int Percent() const;
    void Report();
    CWorkingDialog* Dialog() const { return static_cast<CWorkingDialog*>(g_pModelessDlg); }
};
