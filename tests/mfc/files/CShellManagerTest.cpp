#include <afxcontrolbars.h>

#include <doctest/doctest.h>

#include "testing/NextDialog.h"
#include "testing/Page.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

namespace {

CString PathOf(LPCITEMIDLIST item)
{
    TCHAR path[MAX_PATH] = _T("");
    return SHGetPathFromIDList(item, path) ? CString(path) : CString(_T("no path"));
}

CString WindowsFolder()
{
    TCHAR path[MAX_PATH];
    GetWindowsDirectory(path, MAX_PATH);
    return path;
}

} // namespace

TEST_CASE("the shell's name of a folder leads back to it, and from there to its parent")
{
    CShellManager shell;
    LPITEMIDLIST item = NULL;
    REQUIRE(SUCCEEDED(shell.ItemFromPath(WindowsFolder(), item)));
    CHECK(PathOf(item).CompareNoCase(WindowsFolder()) == 0);

    const UINT count = shell.GetItemCount(item);
    REQUIRE(count > 1);
    LPITEMIDLIST parent = NULL;
    CHECK(shell.GetParentItem(item, parent) == static_cast<int>(count) - 1);
    CHECK(shell.GetItemCount(parent) == count - 1);
    CHECK(PathOf(parent).CompareNoCase(WindowsFolder().Left(3)) == 0);
    shell.FreeItem(parent);
    shell.FreeItem(item);
}

TEST_CASE("a path that there is not has no name in the shell")
{
    CShellManager shell;
    LPITEMIDLIST item = reinterpret_cast<LPITEMIDLIST>(&shell);
    CHECK(FAILED(shell.ItemFromPath(_T("C:\\no such folder\\at all"), item)));
    CHECK(item == NULL);
    CHECK(FAILED(shell.ItemFromPath(NULL, item)));
}

TEST_CASE("the parts of a name make the whole again")
{
    CShellManager shell;
    LPITEMIDLIST whole = NULL;
    REQUIRE(SUCCEEDED(shell.ItemFromPath(WindowsFolder(), whole)));
    LPITEMIDLIST parent = NULL;
    shell.GetParentItem(whole, parent);
    LPITEMIDLIST last = whole;
    while (shell.GetNextItem(last) != NULL)
        last = shell.GetNextItem(last);

    const LPITEMIDLIST joined = shell.ConcatenateItem(parent, last);
    REQUIRE(shell.GetItemSize(joined) == shell.GetItemSize(whole));
    CHECK(memcmp(joined, whole, shell.GetItemSize(whole)) == 0);
    const LPITEMIDLIST copy = shell.CopyItem(whole);
    CHECK(copy != whole);
    CHECK(memcmp(copy, whole, shell.GetItemSize(whole)) == 0);
    const LPITEMIDLIST alone = shell.ConcatenateItem(NULL, last);
    CHECK(shell.GetItemCount(alone) == 1);
    for (LPITEMIDLIST item : {joined, copy, alone, parent, whole})
        shell.FreeItem(item);
}

TEST_CASE("nothing and the desktop have no parts")
{
    CShellManager shell;
    const LPITEMIDLIST desktop = shell.CreateItem(sizeof(USHORT));
    REQUIRE(desktop != NULL);
    LPITEMIDLIST parent = desktop;
    CHECK(shell.GetParentItem(desktop, parent) == -1);
    CHECK(parent == NULL);
    CHECK(shell.GetItemCount(desktop) == 0);
    CHECK(shell.GetItemSize(desktop) == sizeof(USHORT));
    CHECK(shell.GetNextItem(desktop) == NULL);
    shell.FreeItem(desktop);

    CHECK(shell.GetItemCount(NULL) == 0);
    CHECK(shell.GetItemSize(NULL) == 0);
    CHECK(shell.GetNextItem(NULL) == NULL);
    CHECK(shell.CopyItem(NULL) == NULL);
    CHECK(shell.ConcatenateItem(NULL, NULL) == NULL);
    shell.FreeItem(NULL);
}

TEST_CASE("the user chooses a folder, beginning with the one that was named")
{
    ControlHost host;
    CShellManager shell;
    CString folder = _T("as before");
    NextDialog choose([](HWND box) { Page(box).Click(IDOK); });
    int picture = -1;
    CHECK(shell.BrowseForFolder(folder, &host, WindowsFolder(), _T("Which one?"),
                                BIF_RETURNONLYFSDIRS, &picture));
    REQUIRE(choose.HasRun());
    CHECK(folder.CompareNoCase(WindowsFolder()) == 0);
    CHECK(picture >= 0);
}

TEST_CASE("without the user's choice the folder stays as it was")
{
    ControlHost host;
    CShellManager shell;
    CString folder = _T("as before");
    NextDialog cancel([](HWND box) { Page(box).Click(IDCANCEL); });
    CHECK_FALSE(shell.BrowseForFolder(folder, &host));
    REQUIRE(cancel.HasRun());
    CHECK(folder == _T("as before"));
}
