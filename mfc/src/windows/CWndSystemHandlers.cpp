// Default processing of menus, the clipboard, palettes and what the system announces.
#include <classes/CWnd.h>

void CWnd::OnAskCbFormatName(UINT, LPTSTR)
{
    Default();
}

void CWnd::OnChangeCbChain(HWND, HWND)
{
    Default();
}

void CWnd::OnCompacting(UINT)
{
    Default();
}

BOOL CWnd::OnCopyData(CWnd*, COPYDATASTRUCT*)
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnDestroyClipboard()
{
    Default();
}

BOOL CWnd::OnDeviceChange(UINT, DWORD_PTR)
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnDevModeChange(LPTSTR)
{
    Default();
}

void CWnd::OnDrawClipboard()
{
    Default();
}

void CWnd::OnDropFiles(HDROP)
{
    Default();
}

void CWnd::OnEndSession(BOOL)
{
    Default();
}

void CWnd::OnEnterMenuLoop(BOOL)
{
    Default();
}

void CWnd::OnExitMenuLoop(BOOL)
{
    Default();
}

void CWnd::OnFontChange()
{
    Default();
}

void CWnd::OnHScrollClipboard(CWnd*, UINT, UINT)
{
    Default();
}

void CWnd::OnInitMenu(CMenu*)
{
    Default();
}

void CWnd::OnInitMenuPopup(CMenu*, UINT, BOOL)
{
    Default();
}

LRESULT CWnd::OnMenuChar(UINT, UINT, CMenu*)
{
    return Default();
}

UINT CWnd::OnMenuDrag(UINT, CMenu*)
{
    return static_cast<UINT>(Default());
}

UINT CWnd::OnMenuGetObject(MENUGETOBJECTINFO*)
{
    return static_cast<UINT>(Default());
}

void CWnd::OnMenuRButtonUp(UINT, CMenu*)
{
    Default();
}

void CWnd::OnMenuSelect(UINT, UINT, HMENU)
{
    Default();
}

void CWnd::OnNextMenu(UINT, LPMDINEXTMENU)
{
    Default();
}

void CWnd::OnPaintClipboard(CWnd*, HGLOBAL)
{
    Default();
}

void CWnd::OnPaletteChanged(CWnd*)
{
    Default();
}

void CWnd::OnPaletteIsChanging(CWnd*)
{
    Default();
}

UINT CWnd::OnPowerBroadcast(UINT, UINT)
{
    return static_cast<UINT>(Default());
}

BOOL CWnd::OnQueryEndSession()
{
    return static_cast<BOOL>(Default());
}

BOOL CWnd::OnQueryNewPalette()
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnRenderAllFormats()
{
    Default();
}

void CWnd::OnRenderFormat(UINT)
{
    Default();
}

void CWnd::OnSessionChange(UINT, UINT)
{
    Default();
}

void CWnd::OnSettingChange(UINT, LPCTSTR)
{
    Default();
}

void CWnd::OnSizeClipboard(CWnd*, HGLOBAL)
{
    Default();
}

void CWnd::OnSpoolerStatus(UINT, UINT)
{
    Default();
}

void CWnd::OnSysColorChange()
{
    Default();
}

void CWnd::OnTCard(UINT, DWORD)
{
    Default();
}

void CWnd::OnTimeChange()
{
    Default();
}

void CWnd::OnUnInitMenuPopup(CMenu*, UINT)
{
    Default();
}

void CWnd::OnUserChanged()
{
    Default();
}

void CWnd::OnVScrollClipboard(CWnd*, UINT, UINT)
{
    Default();
}

void CWnd::OnWinIniChange(LPCTSTR)
{
    Default();
}
