// What only the newer style of the system's dialog for files has: the answers of a dialog that is
// of the older one.
#include <classes/CFileDialog.h>

IFileOpenDialog* CFileDialog::GetIFileOpenDialog()
{
    return NULL;
}

IFileSaveDialog* CFileDialog::GetIFileSaveDialog()
{
    return NULL;
}

IFileDialogCustomize* CFileDialog::GetIFileDialogCustomize()
{
    return NULL;
}

IShellItem* CFileDialog::GetResult()
{
    return NULL;
}

IShellItemArray* CFileDialog::GetResults()
{
    return NULL;
}

BOOL CFileDialog::IsPickFoldersMode() const
{
    return FALSE;
}

void CFileDialog::ApplyOFNToShellDialog()
{
}

void CFileDialog::UpdateOFNFromShellDialog()
{
}

BOOL CFileDialog::SetProperties(LPCWSTR)
{
    return FALSE;
}

HRESULT CFileDialog::EnableOpenDropDown(DWORD)
{
    return E_NOTIMPL;
}

HRESULT CFileDialog::AddMenu(DWORD, const CString&)
{
    return E_NOTIMPL;
}

HRESULT CFileDialog::AddPushButton(DWORD, const CString&)
{
    return E_NOTIMPL;
}

HRESULT CFileDialog::AddComboBox(DWORD)
{
    return E_NOTIMPL;
}

HRESULT CFileDialog::AddRadioButtonList(DWORD)
{
    return E_NOTIMPL;
}

HRESULT CFileDialog::AddCheckButton(DWORD, const CString&, BOOL)
{
    return E_NOTIMPL;
}

HRESULT CFileDialog::AddEditBox(DWORD, const CString&)
{
    return E_NOTIMPL;
}

HRESULT CFileDialog::AddSeparator(DWORD)
{
    return E_NOTIMPL;
}

HRESULT CFileDialog::AddText(DWORD, const CString&)
{
    return E_NOTIMPL;
}

HRESULT CFileDialog::SetControlLabel(DWORD, const CString&)
{
    return E_NOTIMPL;
}

HRESULT CFileDialog::GetEditBoxText(DWORD, CString&)
{
    return E_NOTIMPL;
}

HRESULT CFileDialog::SetEditBoxText(DWORD, const CString&)
{
    return E_NOTIMPL;
}

HRESULT CFileDialog::GetCheckButtonState(DWORD, BOOL&)
{
    return E_NOTIMPL;
}

HRESULT CFileDialog::SetCheckButtonState(DWORD, BOOL)
{
    return E_NOTIMPL;
}

HRESULT CFileDialog::AddControlItem(DWORD, DWORD, const CString&)
{
    return E_NOTIMPL;
}

HRESULT CFileDialog::RemoveControlItem(DWORD, DWORD)
{
    return E_NOTIMPL;
}

HRESULT CFileDialog::GetSelectedControlItem(DWORD, DWORD&)
{
    return E_NOTIMPL;
}

HRESULT CFileDialog::SetSelectedControlItem(DWORD, DWORD)
{
    return E_NOTIMPL;
}

HRESULT CFileDialog::StartVisualGroup(DWORD, const CString&)
{
    return E_NOTIMPL;
}

HRESULT CFileDialog::EndVisualGroup()
{
    return E_NOTIMPL;
}

HRESULT CFileDialog::MakeProminent(DWORD)
{
    return E_NOTIMPL;
}

HRESULT CFileDialog::SetControlItemText(DWORD, DWORD, const CString&)
{
    return E_NOTIMPL;
}

void CFileDialog::OnItemSelected(DWORD, DWORD)
{
}

void CFileDialog::OnButtonClicked(DWORD)
{
}

void CFileDialog::OnCheckButtonToggled(DWORD, BOOL)
{
}

void CFileDialog::OnControlActivating(DWORD)
{
}
