// Asks what to find, and what to put in its place.
#pragma once

#include <classes/CCommonDialog.h>

/// The system's dialogs for finding and replacing, which stay open beside the text. The owner gets
/// the registered message FINDMSGSTRING for each button; GetNotifier makes its lParam the dialog.
/// Made with new; deletes itself with its window, also when Create fails.
class AFX_EXPORTED CFindReplaceDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CFindReplaceDialog)

public:
    CFindReplaceDialog();

    /// Before Create: further flags, or a template of the program's own.
    FINDREPLACE m_fr;

    /// Without a parent, the program's main window is told.
    virtual BOOL Create(BOOL bFindDialogOnly, LPCTSTR lpszFindWhat, LPCTSTR lpszReplaceWith = NULL,
                        DWORD dwFlags = FR_DOWN, CWnd* pParentWnd = NULL);

    static CFindReplaceDialog* PASCAL GetNotifier(LPARAM lParam);

    CString GetFindString() const;
    CString GetReplaceString() const;
    BOOL SearchDown() const;
    BOOL FindNext() const;
    BOOL MatchCase() const;
    BOOL MatchWholeWord() const;
    BOOL ReplaceCurrent() const;
    BOOL ReplaceAll() const;
    /// Whether the dialog is about to close; it is gone afterwards.
    BOOL IsTerminating() const;

protected:
    void PostNcDestroy() override;

private:
    bool Has(DWORD flag) const;

    TCHAR findWhat_[128];
    TCHAR replaceWith_[128];
};
