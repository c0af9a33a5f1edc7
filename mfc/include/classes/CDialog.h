// Modal and modeless dialogs.
#pragma once

#include <classes/CWnd.h>

/// A dialog window made from a template. The object stays usable after the window is gone, also
/// for another DoModal; a modeless dialog that is to delete itself does so in PostNcDestroy.
class AFX_EXPORTED CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)

public:
    /// For a modeless dialog, or for InitModalIndirect.
    CDialog();
    // For a modal dialog; without a parent the application's main window is the owner.
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = NULL);
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = NULL);
    ~CDialog() override;

    // Makes the window of a modeless dialog; FALSE when that fails.
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = NULL);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = NULL);
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = NULL,
                                void* lpDialogInit = NULL);
    virtual BOOL CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = NULL);

    // Sets the template, in memory, for the next DoModal. It must live until then.
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = NULL,
                           void* lpDialogInit = NULL);
    BOOL InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = NULL);
    /// Shows the dialog until EndDialog and returns its argument; -1 when the window could not be
    /// made, IDABORT when the dialog ended in another way.
    virtual INT_PTR DoModal();
    /// Marks the end of a modal dialog; DoModal returns after the running handler.
    void EndDialog(int nResult);

    void MapDialogRect(LPRECT lpRect) const;
    void SetHelpID(UINT nIDR);
    void NextDlgCtrl() const;
    void PrevDlgCtrl() const;
    void GotoDlgCtrl(CWnd* pWndCtrl);
    void SetDefID(UINT nID);
    DWORD GetDefID() const;

    /// Fills the controls from DoDataExchange. TRUE lets the system choose the focus.
    virtual BOOL OnInitDialog();
    /// Told the font that the template asks for, before the controls exist.
    virtual void OnSetFont(CFont* pFont);

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    /// Ends with IDOK if the exchange of data succeeds.
    virtual void OnOK();
    /// Ends with IDCANCEL.
    virtual void OnCancel();

    DECLARE_MESSAGE_MAP()

private:
    friend class CCommonDialog;
    friend class CPropertyPage;
    friend class CPropertySheet;

    BOOL CreateFromTemplate(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, HINSTANCE module);

    LRESULT OnInitDialogMessage(WPARAM wParam, LPARAM lParam);
    LRESULT OnSetFontMessage(WPARAM wParam, LPARAM lParam);
    LRESULT OnCommandHelpMessage(WPARAM wParam, LPARAM lParam);

    LPCTSTR templateName_ = NULL;          ///< A name or MAKEINTRESOURCE; for DLGINIT as well.
    LPCDLGTEMPLATE dialogTemplate_ = NULL; ///< Of InitModalIndirect.
    HGLOBAL dialogTemplateMemory_ = NULL;  ///< Of InitModalIndirect.
    void* dialogInit_ = NULL;              ///< DLGINIT data that comes with a template in memory.
    CWnd* parent_ = NULL;                  ///< The constructor's; may be NULL.
    UINT helpId_ = 0;
    bool centred_ = false; ///< The template leaves the place open.
};
