// The shell's names of files and folders.
#include <classes/CShellManager.h>

#include <classes/CWnd.h>
#include <classes/Conversions.h>

IMPLEMENT_DYNAMIC(CShellManager, CObject)

namespace {

/// Selects the folder to begin with when the dialog for folders has appeared.
int CALLBACK SelectFolder(HWND dialog, UINT message, LPARAM, LPARAM folder)
{
    if (message == BFFM_INITIALIZED && folder != 0)
        SendMessage(dialog, BFFM_SETSELECTION, TRUE, folder);
    return 0;
}

/// The bytes before the end mark.
UINT GetLength(LPCITEMIDLIST pidl)
{
    if (pidl == NULL)
        return 0;
    const BYTE* const begin = reinterpret_cast<const BYTE*>(pidl);
    const BYTE* end = begin;
    while (const USHORT size = reinterpret_cast<LPCITEMIDLIST>(end)->mkid.cb)
        end += size;
    return static_cast<UINT>(end - begin);
}

} // namespace

CShellManager::CShellManager() = default;

BOOL CShellManager::BrowseForFolder(CString& strOutFolder, CWnd* pWndParent,
                                    LPCTSTR lplszInitialFolder, LPCTSTR lpszTitle, UINT ulFlags,
                                    LPINT piFolderImage)
{
    TCHAR path[MAX_PATH] = _T("");
    BROWSEINFO info{};
    info.hwndOwner = pWndParent->GetSafeHwnd();
    info.pszDisplayName = path;
    info.lpszTitle = lpszTitle;
    info.ulFlags = ulFlags;
    info.lpfn = SelectFolder;
    info.lParam = reinterpret_cast<LPARAM>(lplszInitialFolder);
    const LPITEMIDLIST chosen = SHBrowseForFolder(&info);
    if (chosen == NULL)
        return FALSE;
    const BOOL isFolder = SHGetPathFromIDList(chosen, path);
    FreeItem(chosen);
    if (!isFolder)
        return FALSE;
    strOutFolder = path;
    if (piFolderImage != NULL)
        *piFolderImage = info.iImage;
    return TRUE;
}

LPITEMIDLIST CShellManager::CreateItem(UINT cbSize)
{
    void* const item = CoTaskMemAlloc(cbSize);
    if (item != NULL)
        memset(item, 0, cbSize);
    return static_cast<LPITEMIDLIST>(item);
}

LPITEMIDLIST CShellManager::CopyItem(LPCITEMIDLIST pidlSource)
{
    if (pidlSource == NULL)
        return NULL;
    const UINT size = GetItemSize(pidlSource);
    const LPITEMIDLIST copy = CreateItem(size);
    if (copy != NULL)
        memcpy(copy, pidlSource, size);
    return copy;
}

LPITEMIDLIST CShellManager::ConcatenateItem(LPCITEMIDLIST pidl1, LPCITEMIDLIST pidl2)
{
    if (pidl1 == NULL && pidl2 == NULL)
        return NULL;
    const UINT first = GetLength(pidl1);
    const UINT second = GetLength(pidl2);
    const LPITEMIDLIST both = CreateItem(first + second + sizeof(USHORT));
    if (both == NULL)
        return NULL;
    BYTE* const bytes = reinterpret_cast<BYTE*>(both);
    if (first > 0)
        memcpy(bytes, pidl1, first);
    if (second > 0)
        memcpy(bytes + first, pidl2, second);
    return both;
}

void CShellManager::FreeItem(LPITEMIDLIST pidl)
{
    CoTaskMemFree(pidl);
}

int CShellManager::GetParentItem(LPCITEMIDLIST lpidl, LPITEMIDLIST& lpidlParent)
{
    lpidlParent = NULL;
    const UINT count = GetItemCount(lpidl);
    if (count == 0)
        return -1;
    lpidlParent = CopyItem(lpidl);
    if (lpidlParent == NULL)
        return -1;
    LPITEMIDLIST last = lpidlParent;
    for (UINT i = 1; i < count; ++i)
        last = GetNextItem(last);
    last->mkid.cb = 0;
    return static_cast<int>(count) - 1;
}

HRESULT CShellManager::ItemFromPath(LPCTSTR lpszPath, LPITEMIDLIST& pidl)
{
    pidl = NULL;
    if (lpszPath == NULL)
        return E_INVALIDARG;
    IShellFolder* desktop = NULL;
    HRESULT result = SHGetDesktopFolder(&desktop);
    if (FAILED(result))
        return result;
    CT2W path(lpszPath);
    result = desktop->ParseDisplayName(NULL, NULL, path, NULL, &pidl, NULL);
    desktop->Release();
    return result;
}

UINT CShellManager::GetItemCount(LPCITEMIDLIST pidl)
{
    UINT count = 0;
    for (; pidl != NULL && pidl->mkid.cb != 0; pidl = GetNextItem(pidl))
        ++count;
    return count;
}

UINT CShellManager::GetItemSize(LPCITEMIDLIST pidl)
{
    return pidl == NULL ? 0 : GetLength(pidl) + static_cast<UINT>(sizeof(USHORT));
}

LPITEMIDLIST CShellManager::GetNextItem(LPCITEMIDLIST pidl)
{
    if (pidl == NULL || pidl->mkid.cb == 0)
        return NULL;
    const BYTE* const next = reinterpret_cast<const BYTE*>(pidl) + pidl->mkid.cb;
    const LPITEMIDLIST item = reinterpret_cast<LPITEMIDLIST>(const_cast<BYTE*>(next));
    return item->mkid.cb == 0 ? NULL : item;
}
