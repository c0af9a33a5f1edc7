// A dialog of several pages under tabs, or a wizard.
#pragma once

#include <classes/CWnd.h>

#include <vector>

class CPropertyPage;
class CTabCtrl;

namespace afxint {
struct PropertySheetHook;
}

// The buttons of a sheet and of a wizard, besides IDOK and IDCANCEL.
#define ID_APPLY_NOW 0x3021
#define ID_WIZBACK 0x3023
#define ID_WIZNEXT 0x3024
#define ID_WIZFINISH 0x3025

/// The system's property sheet. The pages stay the caller's and must outlive the sheet's window.
class AFX_EXPORTED CPropertySheet : public CWnd
{
    DECLARE_DYNAMIC(CPropertySheet)

public:
    CPropertySheet();
    explicit CPropertySheet(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    explicit CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    /// For a wizard with pictures: the watermark of its outer pages, the header of its inner ones.
    /// They stay the caller's.
    CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = NULL, HBITMAP hbmHeader = NULL);
    CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = NULL, HBITMAP hbmHeader = NULL);
    void Construct(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    void Construct(LPCTSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    void Construct(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = NULL, HBITMAP hbmHeader = NULL);
    void Construct(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = NULL, HBITMAP hbmHeader = NULL);

    PROPSHEETHEADER m_psh;

    /// IDOK or IDCANCEL, ID_WIZFINISH for a wizard; -1 on failure.
    virtual INT_PTR DoModal();
    /// Shows the sheet without waiting for its end, and without buttons of its own.
    virtual BOOL Create(CWnd* pParentWnd = NULL, DWORD dwStyle = (DWORD)-1, DWORD dwExStyle = 0);

    void AddPage(CPropertyPage* pPage);
    void RemovePage(CPropertyPage* pPage);
    void RemovePage(int nPage);
    int GetPageCount() const;
    /// NULL when there is no such page.
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
    BOOL ContinueModal() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    DECLARE_MESSAGE_MAP()

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnClose();

private:
    friend struct afxint::PropertySheetHook;

    LRESULT OnInitDialogMessage(WPARAM wParam, LPARAM lParam);
    LRESULT OnPressButtonMessage(WPARAM wParam, LPARAM lParam);
    bool HasPage(int index) const;
    bool ShowSheet(HWND owner);
    void HideButtons();

    std::vector<CPropertyPage*> pages_;
    CString caption_;
    CWnd* parent_ = NULL;
    DWORD style_ = (DWORD)-1; ///< Of a modeless sheet; all bits set leave it to the system.
    DWORD exStyle_ = 0;
    int lastButton_ = IDCANCEL; ///< What a modal sheet answers when it has ended.
    bool stacked_ = true;
};
