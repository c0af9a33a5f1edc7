// Asks for a file to open, or for a name to save under.
#pragma once

#include <classes/CCommonDialog.h>

#if _WIN32_WINNT >= 0x0600
#include <shobjidl.h>
#endif

struct IFileDialogCustomize;
struct IFileOpenDialog;
struct IFileSaveDialog;
struct IShellItem;
struct IShellItemArray;

/// The system's dialog for files. Set m_ofn further before DoModal; ask for the names after it.
class AFX_EXPORTED CFileDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CFileDialog)

public:
    /// The filter is pairs of texts and patterns, "Pictures (*.bmp)|*.bmp|All (*.*)|*.*||".
    /// A `dwSize` other than 0 is the size of m_ofn to tell the system. The dialog is always that
    /// of the older style.
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = NULL,
                         LPCTSTR lpszFileName = NULL,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                         LPCTSTR lpszFilter = NULL, CWnd* pParentWnd = NULL, DWORD dwSize = 0,
                         BOOL bVistaStyle = TRUE);
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

    // What only a dialog of the newer style has. Interfaces are NULL and results E_NOTIMPL here.
    IFileOpenDialog* GetIFileOpenDialog();
    IFileSaveDialog* GetIFileSaveDialog();
    IFileDialogCustomize* GetIFileDialogCustomize();
    IShellItem* GetResult();
    IShellItemArray* GetResults();
    BOOL IsPickFoldersMode() const;
    void ApplyOFNToShellDialog();
    void UpdateOFNFromShellDialog();
    BOOL SetProperties(LPCWSTR lpszPropList);
    HRESULT EnableOpenDropDown(DWORD dwIDCtl);
    HRESULT AddMenu(DWORD dwIDCtl, const CString& strLabel);
    HRESULT AddPushButton(DWORD dwIDCtl, const CString& strLabel);
    HRESULT AddComboBox(DWORD dwIDCtl);
    HRESULT AddRadioButtonList(DWORD dwIDCtl);
    HRESULT AddCheckButton(DWORD dwIDCtl, const CString& strLabel, BOOL bChecked);
    HRESULT AddEditBox(DWORD dwIDCtl, const CString& strText);
    HRESULT AddSeparator(DWORD dwIDCtl);
    HRESULT AddText(DWORD dwIDCtl, const CString& strText);
    HRESULT SetControlLabel(DWORD dwIDCtl, const CString& strLabel);
    HRESULT GetEditBoxText(DWORD dwIDCtl, CString& strText);
    HRESULT SetEditBoxText(DWORD dwIDCtl, const CString& strText);
    HRESULT GetCheckButtonState(DWORD dwIDCtl, BOOL& bChecked);
    HRESULT SetCheckButtonState(DWORD dwIDCtl, BOOL bChecked);
    HRESULT AddControlItem(DWORD dwIDCtl, DWORD dwIDItem, const CString& strLabel);
    HRESULT RemoveControlItem(DWORD dwIDCtl, DWORD dwIDItem);
    HRESULT GetSelectedControlItem(DWORD dwIDCtl, DWORD& dwIDItem);
    HRESULT SetSelectedControlItem(DWORD dwIDCtl, DWORD dwIDItem);
    HRESULT StartVisualGroup(DWORD dwIDCtl, const CString& strLabel);
    HRESULT EndVisualGroup();
    HRESULT MakeProminent(DWORD dwIDCtl);
    HRESULT SetControlItemText(DWORD dwIDCtl, DWORD dwIDItem, const CString& strLabel);

#if _WIN32_WINNT >= 0x0600 // With types that older systems' headers lack.
    void AddPlace(LPCWSTR, FDAP = FDAP_TOP)
    {
    }
    void AddPlace(IShellItem*, FDAP = FDAP_TOP)
    {
    }
    HRESULT GetControlState(DWORD, CDCONTROLSTATEF&)
    {
        return E_NOTIMPL;
    }
    HRESULT SetControlState(DWORD, CDCONTROLSTATEF)
    {
        return E_NOTIMPL;
    }
    HRESULT GetControlItemState(DWORD, DWORD, CDCONTROLSTATEF&)
    {
        return E_NOTIMPL;
    }
    HRESULT SetControlItemState(DWORD, DWORD, CDCONTROLSTATEF)
    {
        return E_NOTIMPL;
    }
#endif

protected:
    virtual UINT OnShareViolation(LPCTSTR lpszPathName);
    /// Returning TRUE keeps the dialog open.
    virtual BOOL OnFileNameOK();
    virtual void OnLBSelChangedNotify(UINT nIDBox, UINT iCurSel, UINT nCode);
    virtual void OnInitDone();
    virtual void OnFileNameChange();
    virtual void OnFolderChange();
    virtual void OnTypeChange();
    // Of the newer style.
    virtual void OnItemSelected(DWORD dwIDCtl, DWORD dwIDItem);
    virtual void OnButtonClicked(DWORD dwIDCtl);
    virtual void OnCheckButtonToggled(DWORD dwIDCtl, BOOL bChecked);
    virtual void OnControlActivating(DWORD dwIDCtl);

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
