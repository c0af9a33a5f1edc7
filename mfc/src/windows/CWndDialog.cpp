// What a window does with the controls in it.
#include <classes/CWnd.h>

#include <classes/Application.h>
#include <classes/CCmdUI.h>
#include <classes/CDataExchange.h>
#include <classes/CException.h>

#include <afxres.h>

namespace {

/// The head of each entry of a DLGINIT resource; the data follows. An id of 0 ends the resource.
#pragma pack(push, 1)
struct InitEntry
{
    WORD control;
    WORD message;
    DWORD size;
};
#pragma pack(pop)

const LPCTSTR dialogInitType = MAKEINTRESOURCE(240); // RT_DLGINIT

// The resource counts list box and combo box messages as 16-bit Windows did.
constexpr UINT oldAddToList = 0x0401;
constexpr UINT oldAddToCombo = 0x0403;

UINT MessageOfToday(UINT message)
{
    switch (message) {
    case oldAddToList:
        return LB_ADDSTRING;
    case oldAddToCombo:
        return CB_ADDSTRING;
    }
    return message;
}

/// Applies the entries; without a known size the final entry has to end them.
BOOL ApplyInit(HWND dialog, const BYTE* at, DWORD size)
{
    const BYTE* end = at + size;
    while (static_cast<size_t>(end - at) >= sizeof(WORD)) {
        InitEntry entry{};
        memcpy(&entry.control, at, sizeof entry.control);
        if (entry.control == 0)
            return TRUE;
        if (static_cast<size_t>(end - at) < sizeof entry)
            return FALSE;
        memcpy(&entry, at, sizeof entry);
        at += sizeof entry;
        if (static_cast<size_t>(end - at) < entry.size)
            return FALSE;
        const UINT message = MessageOfToday(entry.message);
        const bool text = message == LB_ADDSTRING || message == CB_ADDSTRING;
        if (text && (entry.size == 0 || at[entry.size - 1] != '\0'))
            return FALSE;
        const LRESULT answer =
            SendDlgItemMessageA(dialog, entry.control, message, 0, reinterpret_cast<LPARAM>(at));
        if (text && answer < 0)
            return FALSE;
        at += entry.size;
    }
    return TRUE;
}

bool IsPushButton(HWND control)
{
    const LRESULT code = SendMessage(control, WM_GETDLGCODE, 0, 0);
    return (code & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
}

} // namespace

CWnd* CWnd::GetDlgItem(int nID) const
{
    return FromHandle(::GetDlgItem(m_hWnd, nID));
}

void CWnd::GetDlgItem(int nID, HWND* phWnd) const
{
    *phWnd = ::GetDlgItem(m_hWnd, nID);
}

void CWnd::CheckDlgButton(int nIDButton, UINT nCheck)
{
    ::CheckDlgButton(m_hWnd, nIDButton, nCheck);
}

void CWnd::CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton)
{
    ::CheckRadioButton(m_hWnd, nIDFirstButton, nIDLastButton, nIDCheckButton);
}

int CWnd::GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton)
{
    for (int id = nIDFirstButton; id <= nIDLastButton; ++id) {
        if (IsDlgButtonChecked(id) != BST_UNCHECKED)
            return id;
    }
    return 0;
}

UINT CWnd::IsDlgButtonChecked(int nIDButton) const
{
    return ::IsDlgButtonChecked(m_hWnd, nIDButton);
}

UINT CWnd::GetDlgItemInt(int nID, BOOL* lpTrans, BOOL bSigned) const
{
    return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
}

void CWnd::SetDlgItemInt(int nID, UINT nValue, BOOL bSigned)
{
    ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned);
}

int CWnd::GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const
{
    return static_cast<int>(::GetDlgItemText(m_hWnd, nID, lpStr, nMaxCount));
}

int CWnd::GetDlgItemText(int nID, CString& rString) const
{
    CWnd* control = GetDlgItem(nID);
    if (control == NULL)
        rString.Empty();
    else
        control->GetWindowText(rString);
    return rString.GetLength();
}

void CWnd::SetDlgItemText(int nID, LPCTSTR lpszString)
{
    ::SetDlgItemText(m_hWnd, nID, lpszString);
}

LRESULT CWnd::SendDlgItemMessage(int nID, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendDlgItemMessage(m_hWnd, nID, message, wParam, lParam);
}

CWnd* CWnd::GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious) const
{
    return FromHandle(::GetNextDlgGroupItem(m_hWnd, pWndCtl->GetSafeHwnd(), bPrevious));
}

CWnd* CWnd::GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious) const
{
    return FromHandle(::GetNextDlgTabItem(m_hWnd, pWndCtl->GetSafeHwnd(), bPrevious));
}

int CWnd::DlgDirList(LPTSTR lpPathSpec, int nIDListBox, int nIDStaticPath, UINT nFileType)
{
    return ::DlgDirList(m_hWnd, lpPathSpec, nIDListBox, nIDStaticPath, nFileType);
}

int CWnd::DlgDirListComboBox(LPTSTR lpPathSpec, int nIDComboBox, int nIDStaticPath, UINT nFileType)
{
    return ::DlgDirListComboBox(m_hWnd, lpPathSpec, nIDComboBox, nIDStaticPath, nFileType);
}

BOOL CWnd::DlgDirSelect(LPTSTR lpString, int nIDListBox)
{
    return ::DlgDirSelectEx(m_hWnd, lpString, MAX_PATH, nIDListBox);
}

BOOL CWnd::DlgDirSelectComboBox(LPTSTR lpString, int nIDComboBox)
{
    return ::DlgDirSelectComboBoxEx(m_hWnd, lpString, MAX_PATH, nIDComboBox);
}

BOOL CWnd::ExecuteDlgInit(LPCTSTR lpszResourceName)
{
    if (lpszResourceName == NULL)
        return TRUE;
    const HINSTANCE module = AfxFindResourceHandle(lpszResourceName, dialogInitType);
    const HRSRC found = FindResource(module, lpszResourceName, dialogInitType);
    if (found == NULL)
        return TRUE; // Most dialogs have none.
    const auto* data = static_cast<const BYTE*>(LockResource(LoadResource(module, found)));
    return data != NULL && ApplyInit(m_hWnd, data, SizeofResource(module, found));
}

BOOL CWnd::ExecuteDlgInit(LPVOID lpResource)
{
    constexpr DWORD unknownSize = 0x7FFFFFFF;
    return lpResource == NULL ||
           ApplyInit(m_hWnd, static_cast<const BYTE*>(lpResource), unknownSize);
}

BOOL CWnd::UpdateData(BOOL bSaveAndValidate)
{
    if (Has(exchanging)) {
        TRACE(_T("UpdateData was called from within UpdateData.\n"));
        return FALSE;
    }
    struct Scope
    {
        CWnd& window;
        explicit Scope(CWnd& exchanger) : window(exchanger) { window.Set(exchanging, true); }
        ~Scope() { window.Set(exchanging, false); }
    } scope(*this);

    CDataExchange exchange(this, bSaveAndValidate);
    try {
        DoDataExchange(&exchange);
        return TRUE;
    } catch (CUserException* e) {
        e->Delete(); // The user knows already.
    } catch (CException* e) {
        e->ReportError(MB_ICONEXCLAMATION, AFX_IDP_INTERNAL_FAILURE);
        e->Delete();
    }
    return FALSE;
}

void CWnd::DoDataExchange(CDataExchange*)
{
}

void CWnd::UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler)
{
    CCmdUI state;
    for (HWND child = ::GetTopWindow(m_hWnd); child != NULL;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        CWnd* control = FromHandle(child);
        state.m_pOther = control;
        state.m_nID = LOWORD(::GetDlgCtrlID(child));
        ++state.m_nIndex;
        const int reflected = MAKELONG(LOWORD(CN_UPDATE_COMMAND_UI), WM_REFLECT_BASE + WM_COMMAND);
        if (control->OnCmdMsg(0, reflected, &state, NULL))
            continue;
        if (OnCmdMsg(state.m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &state, NULL))
            continue;
        state.DoUpdate(pTarget, bDisableIfNoHndler && IsPushButton(child));
    }
}
