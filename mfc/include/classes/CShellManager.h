// The shell's names of files and folders.
#pragma once

#include <classes/CObject.h>
#include <classes/CString.h>

#include <shlobj.h>

class CWnd;

/// Makes, copies and takes apart the lists of item identifiers (PIDLs) by which the shell names
/// files, folders and everything else that it shows. Programs with lists or trees of the shell make
/// one object at their start; of these controls the subset has none.
class AFX_EXPORTED CShellManager : public CObject
{
    DECLARE_DYNAMIC(CShellManager)

public:
    CShellManager();

    /// Lets the user choose a folder; TRUE when one was chosen. `piFolderImage` gets the index of
    /// its picture among those of the system.
    BOOL BrowseForFolder(CString& strOutFolder, CWnd* pWndParent = NULL,
                         LPCTSTR lplszInitialFolder = NULL, LPCTSTR lpszTitle = NULL,
                         UINT ulFlags = BIF_RETURNONLYFSDIRS, LPINT piFolderImage = NULL);

    // The caller frees with FreeItem what these return; NULL when there is no memory.
    LPITEMIDLIST CreateItem(UINT cbSize);
    LPITEMIDLIST CopyItem(LPCITEMIDLIST pidlSource);
    LPITEMIDLIST ConcatenateItem(LPCITEMIDLIST pidl1, LPCITEMIDLIST pidl2);
    void FreeItem(LPITEMIDLIST pidl);

    /// The parent of an item, which the caller frees. The result is the number of its identifiers;
    /// -1 for the desktop, which has no parent.
    int GetParentItem(LPCITEMIDLIST lpidl, LPITEMIDLIST& lpidlParent);
    /// The item of a path, which the caller frees.
    HRESULT ItemFromPath(LPCTSTR lpszPath, LPITEMIDLIST& pidl);

    UINT GetItemCount(LPCITEMIDLIST pidl);
    /// In bytes, with the end mark.
    UINT GetItemSize(LPCITEMIDLIST pidl);
    /// What follows the first identifier, in the same list; NULL at its end.
    LPITEMIDLIST GetNextItem(LPCITEMIDLIST pidl);
};
