#include <afxdlgs.h>

#include <doctest/doctest.h>

#include "testing/NextDialog.h"
#include "testing/Page.h"

#include "tests/mfc/ControlHost.h"

#include <string>
#include <vector>

using namespace umbra::testing;

namespace {

constexpr int typeBox = 0x470; // cmb1 of the system's dialog.

class CWatchedFileDialog : public CFileDialog
{
public:
    using CFileDialog::CFileDialog;
    std::vector<std::string> events;
    bool refusesOnce = false;
    CString pathAtOk, folder;

protected:
    BOOL OnInitDialog() override
    {
        events.push_back("init");
        return CFileDialog::OnInitDialog();
    }
    void OnInitDone() override
    {
        events.push_back("done");
        CFileDialog::OnInitDone();
        HideControl(typeBox);
        SetControlText(IDOK, "Take");
    }
    void OnFolderChange() override
    {
        events.push_back("folder");
        folder = GetFolderPath();
    }
    BOOL OnFileNameOK() override
    {
        events.push_back("ok");
        pathAtOk = GetPathName();
        if (!refusesOnce)
            return FALSE;
        refusesOnce = false;
        return TRUE;
    }
};

int CountOf(const std::vector<std::string>& events, const char* event)
{
    return static_cast<int>(std::count(events.begin(), events.end(), event));
}

} // namespace

TEST_CASE("the filter's parts and the name are handed to the system")
{
    CFileDialog dialog(TRUE, _T("bmp"), _T("start.bmp"), OFN_HIDEREADONLY,
                       _T("Pictures (*.bmp)|*.bmp|All (*.*)|*.*||"));
    const TString filter(dialog.m_ofn.lpstrFilter, 38);
    CHECK(filter == TString(_T("Pictures (*.bmp)\0*.bmp\0All (*.*)\0*.*\0\0"), 39).substr(0, 38));
    CHECK(CString(dialog.m_ofn.lpstrDefExt) == _T("bmp"));
    CHECK(dialog.GetPathName() == "start.bmp");
    CHECK((dialog.m_ofn.Flags & OFN_HIDEREADONLY) != 0);
    CHECK(&dialog.GetOFN() == &dialog.m_ofn);
    CHECK_FALSE(dialog.GetReadOnlyPref());
}

TEST_CASE("the save dialog gives back path, name, title and extension")
{
    ControlHost host;
    CWatchedFileDialog dialog(FALSE, _T("txt"), _T("C:\\windows\\new name"), OFN_HIDEREADONLY,
                              _T("Texts (*.txt)|*.txt||"), &host);
    bool hidden = false;
    TString button;
    NextDialog answer([&](HWND box) {
        Page page(box);
        hidden = !::IsWindowVisible(page.Control(typeBox));
        button = page.Text(IDOK);
        page.Click(IDOK);
    });
    REQUIRE(dialog.DoModal() == IDOK);
    REQUIRE(answer.HasRun());
    CHECK(hidden);
    CHECK(button == _T("Take"));
    CHECK(dialog.folder.CompareNoCase(_T("C:\\windows")) == 0);
    CHECK(dialog.GetPathName().CompareNoCase(_T("C:\\windows\\new name.txt")) == 0);
    CHECK(dialog.GetFileName().CompareNoCase(_T("new name.txt")) == 0);
    CHECK(dialog.GetFileTitle().CompareNoCase(_T("new name")) == 0);
    CHECK(dialog.GetFileExt().CompareNoCase(_T("txt")) == 0);
    POSITION place = dialog.GetStartPosition();
    CHECK(dialog.GetNextPathName(place) == dialog.GetPathName());
    CHECK(place == NULL);
    CHECK(CountOf(dialog.events, "init") == 1);
    CHECK(CountOf(dialog.events, "done") == 1);
    CHECK(CountOf(dialog.events, "folder") >= 1);
    CHECK(CountOf(dialog.events, "ok") == 1);
}

TEST_CASE("OnFileNameOK may keep the dialog open")
{
    ControlHost host;
    CWatchedFileDialog dialog(FALSE, _T("txt"), _T("C:\\windows\\new"), OFN_HIDEREADONLY, NULL,
                              &host);
    dialog.refusesOnce = true;
    bool stayed = false;
    NextDialog answer([&](HWND box) {
        Page page(box);
        page.Click(IDOK);
        stayed = ::IsWindowVisible(box);
        page.Click(IDCANCEL);
    });
    CHECK(dialog.DoModal() == IDCANCEL);
    CHECK(stayed);
    CHECK(CountOf(dialog.events, "ok") == 1);
}

TEST_CASE("several chosen files are met one after the other")
{
    CFileDialog dialog(TRUE, NULL, NULL, OFN_ALLOWMULTISELECT);
    static TCHAR chosen[] = _T("C:\\folder\0one.txt\0two.txt\0");
    dialog.m_ofn.lpstrFile = chosen;
    POSITION place = dialog.GetStartPosition();
    CHECK(dialog.GetNextPathName(place) == "C:\\folder\\one.txt");
    REQUIRE(place != NULL);
    CHECK(dialog.GetNextPathName(place) == "C:\\folder\\two.txt");
    CHECK(place == NULL);

    static TCHAR inRoot[] = _T("C:\\\0one.txt\0two.txt\0");
    dialog.m_ofn.lpstrFile = inRoot;
    place = dialog.GetStartPosition();
    CHECK(dialog.GetNextPathName(place) == "C:\\one.txt");
}

TEST_CASE("what only the newer style has is answered with a refusal")
{
    CFileDialog dialog(TRUE, NULL, NULL, OFN_HIDEREADONLY, NULL, NULL, 0, TRUE);
    CHECK(dialog.GetIFileOpenDialog() == NULL);
    CHECK(dialog.GetIFileSaveDialog() == NULL);
    CHECK(dialog.GetIFileDialogCustomize() == NULL);
    CHECK(dialog.GetResult() == NULL);
    CHECK(dialog.GetResults() == NULL);
    CHECK_FALSE(dialog.IsPickFoldersMode());
    CHECK(FAILED(dialog.AddCheckButton(1, _T("Check"), TRUE)));
    BOOL checked = FALSE;
    CHECK(FAILED(dialog.GetCheckButtonState(1, checked)));
    CHECK(FAILED(dialog.AddComboBox(2)));
    CHECK(FAILED(dialog.AddControlItem(2, 1, _T("Item"))));
    DWORD item = 7;
    CHECK(FAILED(dialog.GetSelectedControlItem(2, item)));
    CHECK(item == 7);
    CString text(_T("kept"));
    CHECK(FAILED(dialog.GetEditBoxText(3, text)));
    CHECK(text == _T("kept"));
    CHECK(FAILED(dialog.StartVisualGroup(4, _T("Group"))));
    CHECK(FAILED(dialog.EndVisualGroup()));
    CHECK(FAILED(dialog.MakeProminent(4)));
}
