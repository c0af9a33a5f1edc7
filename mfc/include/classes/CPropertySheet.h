// A dialog of several pages under tabs, or a wizard.
#pragma once

#include <classes/CWnd.h>

#include <vector>

class CPropertyPage;
class CTabCtrl;

/// The system's property sheet. The pages stay the caller's and must outlive the sheet's window.
class CPropertySheet : public CWnd
{
    DECLARE_DYNAMIC(CPropertySheet)

public:
    CPropertySheet();
    explicit CPropertySheet(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    explicit CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    void Construct(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    void Construct(LPCTSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);

    PROPSHEETHEADER m_psh;

    /// IDOK or IDCANCEL, ID_WIZFINISH for a wizard; -1 on failure.
    virtual INT_PTR DoModal();
    /// Shows the sheet without waiting for its end, and without buttons of its own.
    virtual BOOL Create(CWnd* pParentWnd = NULL, DWORD dwStyle = (DWORD)-1, DWORD dwExStyle = 0);

    void AddPage(CPropertyPage* pPage);
    void RemovePage(CPropertyPage* pPage);
    void RemovePage(int nPage);
    int GetPageCount() const;
    CPropertyPage* GetPage(int nPage) const;
    /// -1 when the page is not of this sheet.
    int GetPageIndex(CPropertyPage* pPage);
    CPropertyPage* GetActivePage() const;
    int GetActiveIndex() const;
    BOOL SetActivePage(int nPage);
    BOOL SetActivePage(CPropertyPage* pPage);
    CTabCtrl* GetTabControl() const;

    /// `nStyle` may be PSH_PROPTITLE.
    void SetTitle(LPCTSTR lpszText, UINT nStyle = 0);
    void EnableStackedTabs(BOOL bStacked);
    void SetWizardMode();
    void SetFinishText(LPCTSTR lpszText);
    void SetWizardButtons(DWORD dwFlags);
    void PressButton(int nButton);
    void EndDialog(int nEndID);
    void MapDialogRect(LPRECT lpRect) const;

    virtual BOOL OnInitDialog();
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    DECLARE_MESSAGE_MAP()

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

private:
    LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg void OnClose();
    bool ShowSheet(CWnd* owner, bool modeless);
    void EndModal(int result);

    std::vector<CPropertyPage*> pages_;
    CString caption_;
    CWnd* parent_ = nullptr;
    bool modal_ = false;
    bool stacked_ = true;
};
