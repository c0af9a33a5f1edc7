// LedgerDlg.cpp : implementation file
//
#include "StdAfx.h"
#include "LedgerDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

CLedgerDlg::CLedgerDlg(CWnd* pParent /*=NULL*/)
    : CDialog(CLedgerDlg::IDD, pParent)
{
    m_dAmount = 0;
    m_pLedger = new CLedger;
}

CLedgerDlg::~CLedgerDlg()
{
    delete m_pLedger;
}

void CLedgerDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_ENTRIES, m_list);
    DDX_Text(pDX, IDC_FILE, m_strFile);
    DDX_Text(pDX, IDC_OWNER, m_strOwner);
    DDX_Text(pDX, IDC_TEXT, m_strText);
    DDX_Text(pDX, IDC_AMOUNT, m_dAmount);
    DDX_Text(pDX, IDC_CATEGORY, m_strCategory);
}

BEGIN_MESSAGE_MAP(CLedgerDlg, CDialog)
    ON_BN_CLICKED(IDC_ADD, OnAdd)
    ON_BN_CLICKED(IDC_SAVE, OnSave)
    ON_BN_CLICKED(IDC_OPEN, OnOpen)
END_MESSAGE_MAP()

BOOL CLedgerDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    ShowLedger();
    return TRUE;
}

void CLedgerDlg::OnOK()
{
    // Enter does not close the ledger.
}

void CLedgerDlg::ShowLedger()
{
    ASSERT_VALID(this);
    m_list.ResetContent();
    POSITION pos = m_pLedger->m_entries.GetHeadPosition();
    while (pos != NULL)
        m_list.AddString(m_pLedger->m_entries.GetNext(pos)->GetLine());
    CString strTotal;
    long lTotal = m_pLedger->GetTotal();
    strTotal.Format(_T("Total %ld.%02ld"), lTotal / 100, lTotal % 100);
    if (m_pLedger->m_pLargest != NULL)
        strTotal += _T(", largest ") + m_pLedger->m_pLargest->m_strText;
    SetDlgItemText(IDC_TOTAL, strTotal);
    m_strOwner = m_pLedger->m_strOwner;
    UpdateData(FALSE);
}

void CLedgerDlg::OnAdd()
{
    if (!UpdateData())
        return;
    if (m_strCategory.IsEmpty())
        m_strCategory = _T("general");
    m_pLedger->m_strOwner = m_strOwner;
    m_pLedger->Add(new CEntry(m_strText, (long)(m_dAmount * 100 + 0.5), m_strCategory));
    m_strText.Empty();
    m_strCategory.Empty();
    m_dAmount = 0;
    ShowLedger();
    GotoDlgCtrl(GetDlgItem(IDC_TEXT));
}

void CLedgerDlg::OnSave()
{
    if (!UpdateData())
        return;
    m_pLedger->m_strOwner = m_strOwner;
    CFile file;
    CFileException fe;
    if (!file.Open(m_strFile, CFile::modeCreate | CFile::modeWrite | CFile::shareExclusive, &fe))
    {
        fe.ReportError();
        return;
    }
    TRY
    {
        CArchive ar(&file, CArchive::store);
        ar << m_pLedger;
        ar.Close();
        file.Close();
    }
    CATCH_ALL(e)
    {
        file.Abort();
        e->ReportError();
        return;
    }
    END_CATCH_ALL
    SetDlgItemText(IDC_TOTAL, _T("Saved"));
}

void CLedgerDlg::OnOpen()
{
    if (!UpdateData())
        return;
    CFile file;
    CFileException fe;
    if (!file.Open(m_strFile, CFile::modeRead | CFile::shareDenyWrite, &fe))
    {
        fe.ReportError();
        return;
    }
    CLedger* pLedger = NULL;
    TRY
    {
        CArchive ar(&file, CArchive::load);
        ar >> pLedger;
        ar.Close();
        file.Close();
    }
    CATCH(CArchiveException, e)
    {
        file.Abort();
        e->ReportError(MB_ICONEXCLAMATION);
        return;
    }
    AND_CATCH_ALL(e)
    {
        file.Abort();
        e->ReportError();
        return;
    }
    END_CATCH_ALL
    if (pLedger == NULL)
        return;
    ASSERT_VALID(pLedger);
#ifdef _DEBUG
    afxDump << pLedger;
#endif
    TRACE1("Opened a ledger of %d entries\n", (int)pLedger->m_entries.GetCount());
    delete m_pLedger;
    m_pLedger = pLedger;
    ShowLedger();
}

#ifdef _DEBUG
void CLedgerDlg::AssertValid() const
{
    CDialog::AssertValid();
    ASSERT_VALID(m_pLedger);
}

void CLedgerDlg::Dump(CDumpContext& dc) const
{
    CDialog::Dump(dc);
    dc << m_pLedger;
}
#endif
