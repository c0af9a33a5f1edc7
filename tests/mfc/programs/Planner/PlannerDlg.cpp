// PlannerDlg.cpp : implementation file
//
#include "StdAfx.h"
#include "Planner.h"
#include "PlannerDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

CPlannerDlg::CPlannerDlg(CWnd* pParent /*=NULL*/)
    : CDialog(CPlannerDlg::IDD, pParent)
    , m_strTitle(_T("My week"))
    , m_timeShown(2005, 11, 23, 0, 0, 0)
    , m_nDone(0)
{
}

void CPlannerDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_TASKS, m_tasks);
    DDX_Control(pDX, IDC_DUE, m_due);
    DDX_Control(pDX, IDC_MONTH, m_month);
    DDX_Control(pDX, IDC_NOTES, m_notes);
    DDX_Text(pDX, IDC_TITLE, m_strTitle);
    DDV_MaxChars(pDX, m_strTitle, 30);
    DDX_DateTimeCtrl(pDX, IDC_DUE, m_timeDue);
    DDX_MonthCalCtrl(pDX, IDC_MONTH, m_timeShown);
}

BEGIN_MESSAGE_MAP(CPlannerDlg, CDialog)
    ON_CLBN_CHKCHANGE(IDC_TASKS, &CPlannerDlg::OnCheckTask)
    ON_NOTIFY(MCN_SELECT, IDC_MONTH, &CPlannerDlg::OnSelectDay)
    ON_BN_CLICKED(IDC_BOLD, &CPlannerDlg::OnBold)
    ON_BN_CLICKED(IDC_FIND, &CPlannerDlg::OnFind)
    ON_BN_CLICKED(IDC_SAVE, &CPlannerDlg::OnSave)
END_MESSAGE_MAP()

BOOL CPlannerDlg::OnInitDialog()
{
    CDialog::OnInitDialog();

    LPCTSTR tasks[] = { _T("Write"), _T("Read"), _T("Rest"), _T("Ship") };
    for (int i = 0; i < 4; i++)
        m_tasks.AddString(tasks[i]);
    m_tasks.Enable(3, FALSE);
    m_due.SetFormat(_T("dd'.'MM'.'yyyy"));
    m_notes.SetEventMask(m_notes.GetEventMask() | ENM_CHANGE);
    OnCheckTask();
    return TRUE;
}

void CPlannerDlg::OnCheckTask()
{
    m_nDone = 0;
    for (int i = 0; i < m_tasks.GetCount(); i++)
    {
        if (m_tasks.GetCheck(i) == 1)
            m_nDone++;
    }
    CString strDone;
    strDone.Format(_T("%d of %d done"), m_nDone, m_tasks.GetCount());
    SetDlgItemText(IDC_DONE, strDone);
}

void CPlannerDlg::OnSelectDay(NMHDR* /*pNMHDR*/, LRESULT* pResult)
{
    CTime day;
    m_month.GetCurSel(day);
    SetDlgItemText(IDC_SHOWN, day.Format(_T("%Y-%m-%d")));
    *pResult = 0;
}

void CPlannerDlg::OnBold()
{
    CHARFORMAT cf;
    cf.cbSize = sizeof(cf);
    m_notes.GetSelectionCharFormat(cf);
    BOOL bBold = (cf.dwMask & CFM_BOLD) && (cf.dwEffects & CFE_BOLD);
    cf.dwMask = CFM_BOLD;
    cf.dwEffects = bBold ? 0 : CFE_BOLD;
    m_notes.SetSelectionCharFormat(cf);
    m_notes.SetFocus();
}

void CPlannerDlg::OnFind()
{
    CString strText;
    GetDlgItemText(IDC_FIND_TEXT, strText);
    FINDTEXTEX ft;
    ft.chrg.cpMin = 0;
    ft.chrg.cpMax = -1;
    ft.lpstrText = strText.GetBuffer(0);
    CString strFound = _T("Not found");
    if (m_notes.FindText(FR_DOWN, &ft) != -1)
    {
        m_notes.SetSel(ft.chrgText);
        strFound.Format(_T("Found %s at %d"), (LPCTSTR)m_notes.GetSelText(), (int)ft.chrgText.cpMin);
    }
    strText.ReleaseBuffer();
    SetDlgItemText(IDC_FOUND, strFound);
}

static DWORD CALLBACK SaveCallback(DWORD_PTR dwCookie, LPBYTE pbBuff, LONG cb, LONG* pcb)
{
    CFile* pFile = (CFile*)dwCookie;
    pFile->Write(pbBuff, cb);
    *pcb = cb;
    return 0;
}

void CPlannerDlg::OnSave()
{
    CFile file;
    if (!file.Open(m_strFile, CFile::modeCreate | CFile::modeWrite))
    {
        AfxMessageBox(_T("The file cannot be written."));
        return;
    }
    EDITSTREAM es;
    es.dwCookie = (DWORD_PTR)&file;
    es.dwError = 0;
    es.pfnCallback = SaveCallback;
    m_notes.StreamOut(SF_RTF, es);
    file.Close();
    SetDlgItemText(IDC_FOUND, es.dwError == 0 ? _T("Saved") : _T("Not saved"));
}
