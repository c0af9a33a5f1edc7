// PlannerDlg.h : header file
//
#pragma once

class CPlannerDlg : public CDialog
{
public:
    CPlannerDlg(CWnd* pParent = NULL);

    enum { IDD = IDD_PLANNER_DIALOG };

    CString m_strFile;
    CString m_strTitle;
    CTime m_timeDue;
    CTime m_timeShown;
    int m_nDone;

protected:
    CCheckListBox m_tasks;
    CDateTimeCtrl m_due;
    CMonthCalCtrl m_month;
    CRichEditCtrl m_notes;

    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();

    afx_msg void OnCheckTask();
    afx_msg void OnSelectDay(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnBold();
    afx_msg void OnFind();
    afx_msg void OnSave();
    DECLARE_MESSAGE_MAP()
};
