#include <classes/CFindReplaceDialog.h>

#include <classes/CWinThread.h>
#include <classes/Modules.h>

#include "dialogs/CommonDialogHook.h"

IMPLEMENT_DYNAMIC(CFindReplaceDialog, CCommonDialog)

CFindReplaceDialog::CFindReplaceDialog() : CCommonDialog(NULL), m_fr{}, findWhat_{}, replaceWith_{}
{
    m_fr.lStructSize = sizeof(m_fr);
    m_fr.Flags = FR_ENABLEHOOK;
    m_fr.lpfnHook = afxint::CommonDialogHook::Procedure;
    m_fr.lpstrFindWhat = findWhat_;
    m_fr.wFindWhatLen = _countof(findWhat_);
    m_fr.lpstrReplaceWith = replaceWith_;
    m_fr.wReplaceWithLen = _countof(replaceWith_);
}

BOOL CFindReplaceDialog::Create(BOOL bFindDialogOnly, LPCTSTR lpszFindWhat, LPCTSTR lpszReplaceWith,
                                DWORD dwFlags, CWnd* pParentWnd)
{
    m_fr.Flags |= dwFlags;
    if (m_fr.Flags & FR_ENABLETEMPLATE)
        m_fr.hInstance = AfxFindResourceHandle(m_fr.lpTemplateName, RT_DIALOG);
    m_fr.hwndOwner = (pParentWnd != NULL ? pParentWnd : AfxGetMainWnd())->GetSafeHwnd();
    if (lpszFindWhat != NULL)
        lstrcpyn(findWhat_, lpszFindWhat, _countof(findWhat_));
    if (lpszReplaceWith != NULL)
        lstrcpyn(replaceWith_, lpszReplaceWith, _countof(replaceWith_));

    const afxint::CommonDialogHook::Awaiting awaiting(this);
    const HWND window = bFindDialogOnly ? ::FindText(&m_fr) : ::ReplaceText(&m_fr);
    if (window == NULL)
        PostNcDestroy();
    return window != NULL;
}

CFindReplaceDialog* PASCAL CFindReplaceDialog::GetNotifier(LPARAM lParam)
{
    ASSERT(lParam != 0);
    return CONTAINING_RECORD(lParam, CFindReplaceDialog, m_fr);
}

CString CFindReplaceDialog::GetFindString() const
{
    return m_fr.lpstrFindWhat;
}

CString CFindReplaceDialog::GetReplaceString() const
{
    return m_fr.lpstrReplaceWith;
}

BOOL CFindReplaceDialog::SearchDown() const
{
    return Has(FR_DOWN);
}

BOOL CFindReplaceDialog::FindNext() const
{
    return Has(FR_FINDNEXT);
}

BOOL CFindReplaceDialog::MatchCase() const
{
    return Has(FR_MATCHCASE);
}

BOOL CFindReplaceDialog::MatchWholeWord() const
{
    return Has(FR_WHOLEWORD);
}

BOOL CFindReplaceDialog::ReplaceCurrent() const
{
    return Has(FR_REPLACE);
}

BOOL CFindReplaceDialog::ReplaceAll() const
{
    return Has(FR_REPLACEALL);
}

BOOL CFindReplaceDialog::IsTerminating() const
{
    return Has(FR_DIALOGTERM);
}

void CFindReplaceDialog::PostNcDestroy()
{
    ASSERT(m_hWnd == NULL);
    delete this;
}

bool CFindReplaceDialog::Has(DWORD flag) const
{
    return (m_fr.Flags & flag) != 0;
}
