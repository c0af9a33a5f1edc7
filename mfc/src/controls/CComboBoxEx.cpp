#include <classes/CComboBoxEx.h>

#include <classes/CEdit.h>

#include "controls/ControlMessages.h"

using afxint::Ask;
using afxint::AskForImageList;
using afxint::AskForWindow;

namespace {

constexpr afxint::CommonControl kind = {WC_COMBOBOXEX, ICC_USEREX_CLASSES};

} // namespace

IMPLEMENT_DYNAMIC(CComboBoxEx, CComboBox)

CComboBoxEx::CComboBoxEx() = default;

BOOL CComboBoxEx::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return afxint::CreateControl(*this, kind, dwStyle, rect, pParentWnd, nID);
}

BOOL CComboBoxEx::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                           UINT nID)
{
    return afxint::CreateControlEx(*this, kind, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

int CComboBoxEx::InsertItem(const COMBOBOXEXITEM* pCBItem)
{
    return Ask(m_hWnd, CBEM_INSERTITEM, 0, pCBItem);
}

int CComboBoxEx::DeleteItem(int iIndex)
{
    return Ask(m_hWnd, CBEM_DELETEITEM, iIndex);
}

BOOL CComboBoxEx::GetItem(COMBOBOXEXITEM* pCBItem)
{
    return Ask(m_hWnd, CBEM_GETITEM, 0, pCBItem);
}

BOOL CComboBoxEx::SetItem(const COMBOBOXEXITEM* pCBItem)
{
    return Ask(m_hWnd, CBEM_SETITEM, 0, pCBItem);
}

DWORD CComboBoxEx::GetExtendedStyle() const
{
    return Ask(m_hWnd, CBEM_GETEXTENDEDSTYLE);
}

DWORD CComboBoxEx::SetExtendedStyle(DWORD dwExMask, DWORD dwExStyles)
{
    return Ask(m_hWnd, CBEM_SETEXTENDEDSTYLE, dwExMask, dwExStyles);
}

BOOL CComboBoxEx::HasEditChanged()
{
    return Ask(m_hWnd, CBEM_HASEDITCHANGED);
}

CEdit* CComboBoxEx::GetEditCtrl()
{
    return AskForWindow<CEdit>(m_hWnd, CBEM_GETEDITCONTROL);
}

CComboBox* CComboBoxEx::GetComboBoxCtrl()
{
    return AskForWindow<CComboBox>(m_hWnd, CBEM_GETCOMBOCONTROL);
}

CImageList* CComboBoxEx::GetImageList() const
{
    return AskForImageList(m_hWnd, CBEM_GETIMAGELIST);
}

CImageList* CComboBoxEx::SetImageList(CImageList* pImageList)
{
    return AskForImageList(m_hWnd, CBEM_SETIMAGELIST, 0, pImageList->GetSafeHandle());
}

HRESULT CComboBoxEx::SetWindowTheme(LPCWSTR pszSubAppName)
{
    return Ask(m_hWnd, CBEM_SETWINDOWTHEME, 0, pszSubAppName);
}
