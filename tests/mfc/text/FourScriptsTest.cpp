// Text that no code page holds as a whole, through the library and back; in the narrow flavour,
// text of its code page.
#include <afxcmn.h>
#include <afxdd_.h>
#include <afxwin.h>

#include <doctest/doctest.h>

#include "testing/DialogTemplate.h"
#include "testing/MessageBoxAnswer.h"

#include "tests/FourScripts.h"
#include "tests/mfc/ControlHost.h"
#include "tests/mfc/files/TestFolder.h"

using namespace umbra::testing;

namespace {

constexpr int fieldId = 100;

/// A page whose only field is exchanged with a string.
class CTextPage : public CDialog
{
public:
    CString text = fourScripts;

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CDialog::DoDataExchange(pDX);
        DDX_Text(pDX, fieldId, text);
        DDV_MaxChars(pDX, text, fourScripts.GetLength());
    }
};

void CheckProfile(CWinApp& app)
{
    CHECK(app.WriteProfileString(fourScripts, fourScripts, fourScripts));
    CHECK(app.GetProfileString(fourScripts, fourScripts) == fourScripts);
    CHECK(app.WriteProfileInt(fourScripts, _T("Number"), 42));
    CHECK(app.GetProfileInt(fourScripts, _T("Number"), 0) == 42);
}

class CSettingsApp : public CWinApp
{
public:
    CSettingsApp() : CWinApp(_T("Scripts")) {}
    using CWinApp::SetRegistryKey;
};

} // namespace

TEST_CASE("windows and controls give back text of four scripts")
{
    ControlHost host;
    host.SetWindowText(fourScripts);
    CString text;
    host.GetWindowText(text);
    CHECK(text == fourScripts);

    CListBox list;
    REQUIRE(list.Create(shownChild | LBS_HASSTRINGS, CRect(0, 0, 100, 100), &host, 1));
    list.AddString(fourScripts);
    list.GetText(0, text);
    CHECK(text == fourScripts);
    CHECK(list.FindStringExact(-1, fourScripts) == 0);

    CComboBox combo;
    REQUIRE(combo.Create(shownChild | CBS_DROPDOWN, CRect(0, 0, 100, 100), &host, 2));
    combo.AddString(fourScripts);
    combo.GetLBText(0, text);
    CHECK(text == fourScripts);

    CListCtrl report;
    REQUIRE(report.Create(shownChild | LVS_REPORT, CRect(0, 0, 100, 100), &host, 3));
    report.InsertColumn(0, fourScripts, LVCFMT_LEFT, 90);
    report.InsertItem(0, fourScripts);
    CHECK(report.GetItemText(0, 0) == fourScripts);

    CTreeCtrl tree;
    REQUIRE(tree.Create(shownChild, CRect(0, 0, 100, 100), &host, 4));
    CHECK(tree.GetItemText(tree.InsertItem(fourScripts)) == fourScripts);

    CToolTipCtrl tip;
    REQUIRE(tip.Create(&host));
    REQUIRE(tip.AddTool(&list, fourScripts));
    tip.GetText(text, &list);
    CHECK(text == fourScripts);

    CMenu menu;
    REQUIRE(menu.CreatePopupMenu());
    menu.AppendMenu(MF_STRING, 1, fourScripts);
    menu.GetMenuString(1, text, MF_BYCOMMAND);
    CHECK(text == fourScripts);
}

TEST_CASE("a dialog exchanges text of four scripts, from its template on")
{
    DialogTemplate page(0, 0, 100, 50, DialogTemplate::popup, fourScripts);
    page.Edit(fieldId, _T(""), 5, 5, 80, 12);
    CTextPage dialog;
    REQUIRE(dialog.CreateIndirect(page.Get()));
    CString title;
    dialog.GetWindowText(title);
    CHECK(title == fourScripts);
    CString shown;
    dialog.GetDlgItemText(fieldId, shown);
    CHECK(shown == fourScripts);
    dialog.text.Empty();
    CHECK(dialog.UpdateData(TRUE));
    CHECK(dialog.text == fourScripts);
    dialog.DestroyWindow();
}

TEST_CASE("a message box shows text of four scripts")
{
    const MessageBoxAnswer answer(IDOK);
    CHECK(AfxMessageBox(fourScripts) == IDOK);
    CHECK(answer.Text() == fourScripts.GetString());
}

TEST_CASE("settings keep text of four scripts, in the registry and in a file")
{
    const TestFolder folder;
    CSettingsApp inFile;
    free(const_cast<LPTSTR>(inFile.m_pszProfileName));
    inFile.m_pszProfileName = _tcsdup(folder / _T("scripts.ini"));
    CheckProfile(inFile);

    CSettingsApp inRegistry;
    inRegistry.SetRegistryKey(_T("Umbra Scripts"));
    CheckProfile(inRegistry);
    inRegistry.DelRegTree(HKEY_CURRENT_USER, _T("Software\\Umbra Scripts"));
}

TEST_CASE("files have names of four scripts")
{
    const TestFolder folder;
    const CString path = folder / fourScripts;
    WriteFile(path, "content");
    CFile file(path, CFile::modeRead);
    CHECK(file.GetFileName() == fourScripts);
    CHECK(file.GetLength() == 7);
    file.Close();
    CFileFind finder;
    REQUIRE(finder.FindFile(folder / _T("*")));
    bool found = false;
    for (BOOL more = TRUE; more;) {
        more = finder.FindNextFile();
        found = found || finder.GetFileName() == fourScripts;
    }
    CHECK(found);
    CFileException error(CFileException::fileNotFound, ERROR_FILE_NOT_FOUND, fourScripts);
    TCHAR message[256] = _T("");
    CHECK(error.GetErrorMessage(message, _countof(message)));
    CHECK(CString(message).Find(fourScripts) == 0);
}
