// Pages.cpp : implementation file
//
#include "StdAfx.h"
#include "Tour.h"
#include "Pages.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

/////////////////////////////////////////////////////////////////////////////
// CValuesPage

IMPLEMENT_DYNCREATE(CValuesPage, CPropertyPage)

CValuesPage::CValuesPage() : CPropertyPage(IDD_VALUES), m_nLevel(20), m_nCount(5)
{
}

void CValuesPage::DoDataExchange(CDataExchange* pDX)
{
    CPropertyPage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_SLIDER, m_slider);
    DDX_Control(pDX, IDC_COUNT_SPIN, m_spin);
    DDX_Control(pDX, IDC_PROGRESS, m_progress);
    DDX_Slider(pDX, IDC_SLIDER, m_nLevel);
    DDV_MinMaxSlider(pDX, m_nLevel, 0, 50);
    DDX_Text(pDX, IDC_COUNT, m_nCount);
    DDV_MinMaxInt(pDX, m_nCount, 1, 9);
}

BEGIN_MESSAGE_MAP(CValuesPage, CPropertyPage)
    ON_WM_HSCROLL()
    ON_EN_CHANGE(IDC_COUNT, &CValuesPage::OnChangeCount)
END_MESSAGE_MAP()

BOOL CValuesPage::OnInitDialog()
{
    CPropertyPage::OnInitDialog();
    m_slider.SetTicFreq(10);
    m_slider.SetPageSize(10);
    m_spin.SetRange(1, 9);
    m_progress.SetRange(0, 50);
    ShowLevel();
    SetModified(FALSE);
    return TRUE;
}

void CValuesPage::ShowLevel()
{
    m_progress.SetPos(m_slider.GetPos());
    CString strLevel;
    strLevel.Format(_T("%d"), m_slider.GetPos());
    SetDlgItemText(IDC_SLIDER_TEXT, strLevel);
}

void CValuesPage::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    if ((CWnd*)pScrollBar == &m_slider)
    {
        ShowLevel();
        SetModified();
    }
    CPropertyPage::OnHScroll(nSBCode, nPos, pScrollBar);
}

void CValuesPage::OnChangeCount()
{
    SetModified();
}

BOOL CValuesPage::OnApply()
{
    theApp.WriteProfileInt(_T("Tour"), _T("Level"), m_nLevel);
    theApp.WriteProfileInt(_T("Tour"), _T("Count"), m_nCount);
    return CPropertyPage::OnApply();
}

/////////////////////////////////////////////////////////////////////////////
// CDatesPage

IMPLEMENT_DYNCREATE(CDatesPage, CPropertyPage)

CDatesPage::CDatesPage()
    : CPropertyPage(IDD_DATES)
    , m_date(2005, 11, 23, 0, 0, 0)
    , m_day(2005, 11, 23, 0, 0, 0)
    , m_dwAddress(0)
{
}

void CDatesPage::DoDataExchange(CDataExchange* pDX)
{
    CPropertyPage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_DATE, m_picker);
    DDX_Control(pDX, IDC_HOTKEY, m_hotKey);
    DDX_Control(pDX, IDC_ADDRESS, m_address);
    DDX_DateTimeCtrl(pDX, IDC_DATE, m_date);
    DDX_MonthCalCtrl(pDX, IDC_CALENDAR, m_day);
    DDX_IPAddress(pDX, IDC_ADDRESS, m_dwAddress);
}

BEGIN_MESSAGE_MAP(CDatesPage, CPropertyPage)
    ON_NOTIFY(DTN_DATETIMECHANGE, IDC_DATE, &CDatesPage::OnChangeDate)
    ON_NOTIFY(MCN_SELECT, IDC_CALENDAR, &CDatesPage::OnChangeDay)
    ON_NOTIFY(IPN_FIELDCHANGED, IDC_ADDRESS, &CDatesPage::OnChangeAddress)
    ON_EN_CHANGE(IDC_HOTKEY, &CDatesPage::OnChangeHotKey)
END_MESSAGE_MAP()

BOOL CDatesPage::OnInitDialog()
{
    CPropertyPage::OnInitDialog();
    m_picker.SetFormat(_T("dd'.'MM'.'yyyy"));
    m_address.ClearAddress();
    m_hotKey.SetRules(HKCOMB_NONE | HKCOMB_S, HOTKEYF_CONTROL);
    return TRUE;
}

void CDatesPage::OnChangeDate(NMHDR* /*pNMHDR*/, LRESULT* pResult)
{
    SetModified();
    *pResult = 0;
}

void CDatesPage::OnChangeDay(NMHDR* pNMHDR, LRESULT* pResult)
{
    CTime day(((NMSELCHANGE*)pNMHDR)->stSelStart);
    SetDlgItemText(IDC_DATES_TEXT, day.Format(_T("%Y-%m-%d")));
    SetModified();
    *pResult = 0;
}

void CDatesPage::OnChangeAddress(NMHDR* /*pNMHDR*/, LRESULT* pResult)
{
    SetModified();
    *pResult = 0;
}

void CDatesPage::OnChangeHotKey()
{
    SetDlgItemText(IDC_DATES_TEXT, m_hotKey.GetHotKeyName());
    SetModified();
}

BOOL CDatesPage::OnApply()
{
    theApp.WriteProfileString(_T("Tour"), _T("Date"), m_date.Format(_T("%Y-%m-%d")));
    theApp.WriteProfileString(_T("Tour"), _T("Day"), m_day.Format(_T("%Y-%m-%d")));
    theApp.WriteProfileInt(_T("Tour"), _T("Address"), (int)m_dwAddress);
    theApp.WriteProfileInt(_T("Tour"), _T("HotKey"), (int)m_hotKey.GetHotKey());
    return CPropertyPage::OnApply();
}

/////////////////////////////////////////////////////////////////////////////
// CListsPage

IMPLEMENT_DYNCREATE(CListsPage, CPropertyPage)

CListsPage::CListsPage() : CPropertyPage(IDD_LISTS), m_nPainted(0)
{
}

void CListsPage::DoDataExchange(CDataExchange* pDX)
{
    CPropertyPage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_TAB, m_tab);
    DDX_Control(pDX, IDC_LIST, m_list);
    DDX_Control(pDX, IDC_TREE, m_tree);
}

BEGIN_MESSAGE_MAP(CListsPage, CPropertyPage)
    ON_NOTIFY(TCN_SELCHANGE, IDC_TAB, &CListsPage::OnSelectTab)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_LIST, &CListsPage::OnSelectRow)
    ON_NOTIFY(TVN_SELCHANGED, IDC_TREE, &CListsPage::OnSelectNode)
    ON_NOTIFY(NM_CUSTOMDRAW, IDC_LIST, &CListsPage::OnCustomDraw)
END_MESSAGE_MAP()

BOOL CListsPage::OnInitDialog()
{
    CPropertyPage::OnInitDialog();

    m_tab.InsertItem(0, _T("List"));
    m_tab.InsertItem(1, _T("Tree"));

    m_list.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES);
    m_list.InsertColumn(0, _T("Name"), LVCFMT_LEFT, 90);
    m_list.InsertColumn(1, _T("Balance"), LVCFMT_RIGHT, 90);
    LPCTSTR names[] = { _T("Ann"), _T("Bob"), _T("Cid") };
    int balances[] = { 120, -45, -3 };
    for (int i = 0; i < 3; i++)
    {
        CString strBalance;
        strBalance.Format(_T("%d"), balances[i]);
        int nItem = m_list.InsertItem(i, names[i]);
        m_list.SetItemText(nItem, 1, strBalance);
        m_list.SetItemData(nItem, balances[i]);
    }

    HTREEITEM hRoot = m_tree.InsertItem(_T("Plants"));
    m_tree.InsertItem(_T("Moss"), hRoot);
    m_tree.InsertItem(_T("Fern"), hRoot);
    m_tree.Expand(hRoot, TVE_EXPAND);

    ShowChosenTab();
    return TRUE;
}

void CListsPage::ShowChosenTab()
{
    m_list.ShowWindow(m_tab.GetCurSel() == 0 ? SW_SHOW : SW_HIDE);
    m_tree.ShowWindow(m_tab.GetCurSel() == 1 ? SW_SHOW : SW_HIDE);
}

void CListsPage::OnSelectTab(NMHDR* /*pNMHDR*/, LRESULT* pResult)
{
    ShowChosenTab();
    *pResult = 0;
}

void CListsPage::OnSelectRow(NMHDR* pNMHDR, LRESULT* pResult)
{
    NMLISTVIEW* pNMListView = (NMLISTVIEW*)pNMHDR;
    if (pNMListView->uNewState & LVIS_SELECTED)
        SetDlgItemText(IDC_CHOICE, m_list.GetItemText(pNMListView->iItem, 0));
    *pResult = 0;
}

void CListsPage::OnSelectNode(NMHDR* pNMHDR, LRESULT* pResult)
{
    NMTREEVIEW* pNMTreeView = (NMTREEVIEW*)pNMHDR;
    SetDlgItemText(IDC_CHOICE, m_tree.GetItemText(pNMTreeView->itemNew.hItem));
    *pResult = 0;
}

void CListsPage::OnCustomDraw(NMHDR* pNMHDR, LRESULT* pResult)
{
    NMLVCUSTOMDRAW* pLVCD = (NMLVCUSTOMDRAW*)pNMHDR;
    *pResult = CDRF_DODEFAULT;
    switch (pLVCD->nmcd.dwDrawStage)
    {
    case CDDS_PREPAINT:
        m_nPainted = 0;
        *pResult = CDRF_NOTIFYITEMDRAW;
        break;
    case CDDS_ITEMPREPAINT:
        if ((int)pLVCD->nmcd.lItemlParam < 0)
        {
            pLVCD->clrText = RGB(255, 0, 0);
            CString strPainted;
            strPainted.Format(_T("%d red"), ++m_nPainted);
            SetDlgItemText(IDC_PAINTED, strPainted);
        }
        *pResult = CDRF_NEWFONT;
        break;
    }
}
