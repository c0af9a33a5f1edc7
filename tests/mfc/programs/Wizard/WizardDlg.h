// WizardDlg.h : header file
//

class CWizardDlg : public CDialog
{
// Construction
public:
    CWizardDlg(CWnd* pParent = NULL);   // standard constructor

// Dialog Data
    //{{AFX_DATA(CWizardDlg)
    enum { IDD = IDD_WIZARD_DIALOG };
    CStatic m_result;
    CString m_strName;
    int     m_nCount;
    BOOL    m_bLoud;
    //}}AFX_DATA

    //{{AFX_VIRTUAL(CWizardDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);    // DDX/DDV support
    //}}AFX_VIRTUAL

// Implementation
protected:
    HICON m_hIcon;

    //{{AFX_MSG(CWizardDlg)
    virtual BOOL OnInitDialog();
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    afx_msg void OnPaint();
    afx_msg HCURSOR OnQueryDragIcon();
    afx_msg void OnGreet();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};
