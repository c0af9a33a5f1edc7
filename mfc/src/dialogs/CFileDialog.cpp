#include <classes/CFileDialog.h>

#include <classes/Conversions.h>
#include <classes/Modules.h>

#include "dialogs/CommonDialogHook.h"

IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt, LPCTSTR lpszFileName,
                         DWORD dwFlags, LPCTSTR lpszFilter, CWnd* pParentWnd, DWORD dwSize, BOOL)
    : CCommonDialog(pParentWnd), m_ofn{}, opens_(bOpenFileDialog), filter_(lpszFilter),
      defaultExtension_(lpszDefExt), fileName_{}, fileTitle_{}
{
    m_ofn.lStructSize = dwSize != 0 ? dwSize : sizeof(m_ofn);
    m_ofn.lpstrFile = fileName_;
    m_ofn.nMaxFile = _countof(fileName_);
    m_ofn.lpstrFileTitle = fileTitle_;
    m_ofn.nMaxFileTitle = _countof(fileTitle_);
    m_ofn.Flags = dwFlags | OFN_EXPLORER | OFN_ENABLEHOOK | OFN_ENABLESIZING;
    m_ofn.lpfnHook = afxint::CommonDialogHook::Procedure;
    if (lpszFileName != NULL)
        lstrcpyn(fileName_, lpszFileName, _countof(fileName_));
    if (lpszDefExt != NULL)
        m_ofn.lpstrDefExt = defaultExtension_;
    if (lpszFilter != NULL) {
        filter_ += _T('|'); // A filter that was not closed with two bars.
        for (int place = 0; place < filter_.GetLength(); ++place) {
            if (filter_[place] == _T('|'))
                filter_.SetAt(place, 0);
        }
        m_ofn.lpstrFilter = filter_;
    }
}

CFileDialog::~CFileDialog() = default;

INT_PTR CFileDialog::DoModal()
{
    if (m_ofn.Flags & OFN_ENABLETEMPLATE)
        m_ofn.hInstance = AfxFindResourceHandle(m_ofn.lpTemplateName, RT_DIALOG);
    return ShowSystemDialog([this](HWND owner) {
        m_ofn.hwndOwner = owner;
        return opens_ ? ::GetOpenFileName(&m_ofn) : ::GetSaveFileName(&m_ofn);
    });
}

CString CFileDialog::GetPathName() const
{
    return m_hWnd != NULL ? AskDialog(CDM_GETFILEPATH) : CString(m_ofn.lpstrFile);
}

CString CFileDialog::GetFileName() const
{
    return m_hWnd != NULL ? AskDialog(CDM_GETSPEC) : CString(m_ofn.lpstrFileTitle);
}

CString CFileDialog::GetFileExt() const
{
    const CString path = GetPathName();
    const LPCTSTR extension = ::PathFindExtension(path);
    return *extension == 0 ? CString() : CString(extension + 1);
}

CString CFileDialog::GetFileTitle() const
{
    const CString name = GetFileName();
    const LPCTSTR start = name;
    return name.Left(static_cast<int>(::PathFindExtension(start) - start));
}

BOOL CFileDialog::GetReadOnlyPref() const
{
    return (m_ofn.Flags & OFN_READONLY) != 0;
}

POSITION CFileDialog::GetStartPosition() const
{
    return reinterpret_cast<POSITION>(m_ofn.lpstrFile);
}

CString CFileDialog::GetNextPathName(POSITION& pos) const
{
    // One file is a path. Several are their folder and then their names, each ended by a zero.
    LPTSTR name = reinterpret_cast<LPTSTR>(pos);
    CString path = m_ofn.lpstrFile;
    if (name == m_ofn.lpstrFile) {
        name += lstrlen(name) + 1;
        if (*name == 0) {
            pos = NULL;
            return path;
        }
    }
    if (path.Right(1) != _T("\\"))
        path += _T('\\');
    path += name;
    name += lstrlen(name) + 1;
    pos = *name == 0 ? NULL : reinterpret_cast<POSITION>(name);
    return path;
}

OPENFILENAME& CFileDialog::GetOFN()
{
    return m_ofn;
}

const OPENFILENAME& CFileDialog::GetOFN() const
{
    return m_ofn;
}

void CFileDialog::SetTemplate(UINT nWin3ID, UINT nWin4ID)
{
    SetTemplate(MAKEINTRESOURCE(nWin3ID), MAKEINTRESOURCE(nWin4ID));
}

void CFileDialog::SetTemplate(LPCTSTR lpWin3ID, LPCTSTR lpWin4ID)
{
    m_ofn.lpTemplateName = (m_ofn.Flags & OFN_EXPLORER) ? lpWin4ID : lpWin3ID;
    m_ofn.Flags |= OFN_ENABLETEMPLATE;
}

CString CFileDialog::GetFolderPath() const
{
    return AskDialog(CDM_GETFOLDERPATH);
}

void CFileDialog::SetControlText(int nID, LPCSTR lpsz)
{
    const CA2CT text(lpsz);
    GetParent()->SendMessage(CDM_SETCONTROLTEXT, nID, reinterpret_cast<LPARAM>(text.m_psz));
}

#ifdef UNICODE
void CFileDialog::SetControlText(int nID, LPCWSTR lpsz)
{
    GetParent()->SendMessage(CDM_SETCONTROLTEXT, nID, reinterpret_cast<LPARAM>(lpsz));
}
#endif

void CFileDialog::HideControl(int nID)
{
    GetParent()->SendMessage(CDM_HIDECONTROL, nID);
}

void CFileDialog::SetDefExt(LPCSTR lpsz)
{
    const CA2CT extension(lpsz);
    GetParent()->SendMessage(CDM_SETDEFEXT, 0, reinterpret_cast<LPARAM>(extension.m_psz));
}

UINT CFileDialog::OnShareViolation(LPCTSTR)
{
    return OFN_SHAREWARN;
}

BOOL CFileDialog::OnFileNameOK()
{
    return FALSE;
}

void CFileDialog::OnLBSelChangedNotify(UINT, UINT, UINT)
{
}

void CFileDialog::OnInitDone()
{
    GetParent()->CenterWindow();
}

void CFileDialog::OnFileNameChange()
{
}

void CFileDialog::OnFolderChange()
{
}

void CFileDialog::OnTypeChange()
{
}

BOOL CFileDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (CCommonDialog::OnNotify(wParam, lParam, pResult))
        return TRUE;

    LRESULT answer = 0;
    const auto* notification = reinterpret_cast<const OFNOTIFY*>(lParam);
    switch (notification->hdr.code) {
    case CDN_INITDONE:
        OnInitDone();
        break;
    case CDN_SELCHANGE:
        OnFileNameChange();
        break;
    case CDN_FOLDERCHANGE:
        OnFolderChange();
        break;
    case CDN_TYPECHANGE:
        OnTypeChange();
        break;
    case CDN_SHAREVIOLATION:
        answer = OnShareViolation(notification->pszFile);
        break;
    case CDN_FILEOK:
        answer = OnFileNameOK();
        break;
    default:
        return FALSE;
    }
    // The system may take the answer of the window procedure or that of a dialog procedure.
    ::SetWindowLongPtr(m_hWnd, DWLP_MSGRESULT, answer);
    *pResult = answer;
    return TRUE;
}

CString CFileDialog::AskDialog(UINT message) const
{
    CString answer;
    GetParent()->SendMessage(message, MAX_PATH,
                             reinterpret_cast<LPARAM>(answer.GetBuffer(MAX_PATH)));
    answer.ReleaseBuffer();
    return answer;
}
