// One page of a property sheet.
#pragma once

#include <classes/CDialog.h>

class CPropertySheet;

/// A dialog that a property sheet shows as one of its pages.
class CPropertyPage : public CDialog
{
    DECLARE_DYNAMIC(CPropertyPage)

public:
    CPropertyPage();
    /// The caption's string id 0 leaves the caption of the template.
    explicit CPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0,
                           DWORD dwSize = sizeof(PROPSHEETPAGE));
    explicit CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption = 0,
                           DWORD dwSize = sizeof(PROPSHEETPAGE));
    void Construct(UINT nIDTemplate, UINT nIDCaption = 0);
    void Construct(LPCTSTR lpszTemplateName, UINT nIDCaption = 0);

    PROPSHEETPAGE m_psp;
    const PROPSHEETPAGE& GetPSP() const;
    PROPSHEETPAGE& GetPSP();

    /// Turns the Cancel button into Close after a change that cannot be undone.
    void CancelToClose();
    /// Enables the Apply button, or disables it when no page is modified any more.
    void SetModified(BOOL bChanged = TRUE);
    /// Asks the pages in turn (PSM_QUERYSIBLINGS) until one answers other than 0.
    LRESULT QuerySiblings(WPARAM wParam, LPARAM lParam);

    virtual BOOL OnApply();
    virtual void OnReset();
    void OnOK() override;
    void OnCancel() override;
    virtual BOOL OnSetActive();
    virtual BOOL OnKillActive();
    virtual BOOL OnQueryCancel();

    // The buttons of a wizard: 0 goes on, -1 stays, a dialog's id goes to that page.
    virtual LRESULT OnWizardBack();
    virtual LRESULT OnWizardNext();
    virtual BOOL OnWizardFinish();

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    friend class CPropertySheet;

    void Construct(LPCTSTR templateName, UINT captionId, DWORD size);
    PROPSHEETPAGE PreparePage();

    CString caption_;
    bool firstActivation_ = true;
};
