// Asks for a file to open, or for a name to save under.
#pragma once

#include <classes/CCommonDialog.h>

/// The system's dialog for files. Set m_ofn further before DoModal; ask for the names after it.
class AFX_EXPORTED CFileDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CFileDialog)

public:
    /// The filter is pairs of texts and patterns, "Pictures (*.bmp)|*.bmp|All (*.*)|*.*||".
    /// A `dwSize` other than 0 is the size of m_ofn to tell the system.
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = NULL,
                         LPCTSTR lpszFileName = NULL,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                         LPCTSTR lpszFilter = NULL, CWnd* pParentWnd = NULL, DWORD dwSize = 0);
    ~CFileDialog() override;

    OPENFILENAME m_ofn;

    /// IDOK or IDCANCEL; CommDlgExtendedError tells a failure from the user's choice.
    INT_PTR DoModal() override;

    CString GetPathName() const;
    CString GetFileName() const;
    CString GetFileExt() const;
    CString GetFileTitle() const;
    BOOL GetReadOnlyPref() const;
    /// The files of a dialog with OFN_ALLOWMULTISELECT, one after the other.
    POSITION GetStartPosition() const;
    CString GetNextPathName(POSITION& pos) const;
    OPENFILENAME& GetOFN();
    const OPENFILENAME& GetOFN() const;

    void SetTemplate(UINT nWin3ID, UINT nWin4ID);
    void SetTemplate(LPCTSTR lpWin3ID, LPCTSTR lpWin4ID);

    // While the dialog is open.
    CString GetFolderPath() const;
    void SetControlText(int nID, LPCSTR lpsz);
#ifdef UNICODE
    void SetControlText(int nID, LPCWSTR lpsz);
#endif
    void HideControl(int nID);
    void SetDefExt(LPCSTR lpsz);

protected:
    virtual UINT OnShareViolation(LPCTSTR lpszPathName);
    /// Returning TRUE keeps the dialog open.
    virtual BOOL OnFileNameOK();
    virtual void OnLBSelChangedNotify(UINT nIDBox, UINT iCurSel, UINT nCode);
    virtual void OnInitDone();
    virtual void OnFileNameChange();
    virtual void OnFolderChange();
    virtual void OnTypeChange();

    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    friend struct afxint::CommonDialogHook;
    CString AskDialog(UINT message) const;

    BOOL opens_;
    CString filter_; ///< Its parts end with zeros, as the system wants them.
    CString defaultExtension_;
    TCHAR fileName_[MAX_PATH];
    TCHAR fileTitle_[MAX_PATH];
};
