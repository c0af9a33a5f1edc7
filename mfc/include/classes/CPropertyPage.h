// One page of a property sheet.
#pragma once

#include <classes/CDialog.h>

#include <memory>

class CPropertySheet;

namespace afxint {
class WindowCreation;
struct PropertyPageHook;
} // namespace afxint

/// A dialog that a property sheet shows as one of its pages.
class AFX_EXPORTED CPropertyPage : public CDialog
{
    DECLARE_DYNAMIC(CPropertyPage)

public:
    CPropertyPage();
    /// The caption's string id 0 leaves the caption of the template.
    explicit CPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0,
                           DWORD dwSize = sizeof(PROPSHEETPAGE));
    explicit CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption = 0,
                           DWORD dwSize = sizeof(PROPSHEETPAGE));
    /// With the title and the subtitle of a wizard's inner page.
    CPropertyPage(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle,
                  UINT nIDHeaderSubTitle = 0, DWORD dwSize = sizeof(PROPSHEETPAGE));
    CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle,
                  UINT nIDHeaderSubTitle = 0, DWORD dwSize = sizeof(PROPSHEETPAGE));
    ~CPropertyPage() override;
    void Construct(UINT nIDTemplate, UINT nIDCaption = 0);
    void Construct(LPCTSTR lpszTemplateName, UINT nIDCaption = 0);
    void Construct(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle,
                   UINT nIDHeaderSubTitle = 0);
    void Construct(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle,
                   UINT nIDHeaderSubTitle = 0);

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
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    friend class CPropertySheet;
    friend struct afxint::PropertyPageHook;

    void Initialize(LPCTSTR templateName, UINT captionId, DWORD size);
    void SetHeader(UINT titleId, UINT subTitleId);
    HPROPSHEETPAGE MakeSystemPage();
    bool AnswerSheet(UINT code, LRESULT& answer);

    CString caption_;
    CString headerTitle_;
    CString headerSubTitle_;
    bool firstActivation_ = true; ///< The controls are filled by OnInitDialog then.
    std::unique_ptr<afxint::WindowCreation> creation_; ///< From the sheet's call to the window.
};
