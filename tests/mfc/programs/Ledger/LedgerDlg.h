// LedgerDlg.h : header file
//
#include "resource.h"
#include "Entry.h"

class CLedgerDlg : public CDialog
{
public:
    CLedgerDlg(CWnd* pParent = NULL);
    virtual ~CLedgerDlg();

    //{{AFX_DATA(CLedgerDlg)
    enum { IDD = IDD_LEDGER_DIALOG };
    CListBox m_list;
    CString  m_strFile;
    CString  m_strOwner;
    CString  m_strText;
    CString  m_strCategory;
    double   m_dAmount;
    //}}AFX_DATA

#ifdef _DEBUG
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;
#endif

protected:
    virtual void DoDataExchange(CDataExchange* pDX);    // DDX/DDV support
    virtual BOOL OnInitDialog();
    virtual void OnOK();
    void ShowLedger();

    CLedger* m_pLedger;

    afx_msg void OnAdd();
    afx_msg void OnSave();
    afx_msg void OnOpen();
    DECLARE_MESSAGE_MAP()
};
