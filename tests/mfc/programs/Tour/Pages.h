// Pages.h : the pages of the sheet
//
#pragma once

// Numbers: a slider with a bar that follows it, and a field with arrows.
class CValuesPage : public CPropertyPage
{
    DECLARE_DYNCREATE(CValuesPage)

public:
    CValuesPage();
    virtual BOOL OnApply();

protected:
    int m_nLevel;
    int m_nCount;
    CSliderCtrl m_slider;
    CSpinButtonCtrl m_spin;
    CProgressCtrl m_progress;

    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();
    void ShowLevel();

    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnChangeCount();
    DECLARE_MESSAGE_MAP()
};

// A date, a day, an address and a hot key.
class CDatesPage : public CPropertyPage
{
    DECLARE_DYNCREATE(CDatesPage)

public:
    CDatesPage();
    virtual BOOL OnApply();

protected:
    CTime m_date;
    CTime m_day;
    DWORD m_dwAddress;
    CHotKeyCtrl m_hotKey;
    CIPAddressCtrl m_address;
    CDateTimeCtrl m_picker;

    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();

    afx_msg void OnChangeDate(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnChangeDay(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnChangeAddress(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnChangeHotKey();
    DECLARE_MESSAGE_MAP()
};

// A list with red rows, and a tree, behind tabs.
class CListsPage : public CPropertyPage
{
    DECLARE_DYNCREATE(CListsPage)

public:
    CListsPage();

protected:
    CTabCtrl m_tab;
    CListCtrl m_list;
    CTreeCtrl m_tree;
    int m_nPainted;

    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();
    void ShowChosenTab();

    afx_msg void OnSelectTab(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnSelectRow(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnSelectNode(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnCustomDraw(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()
};
