// Text of four scripts through the toolkit: what labels, links, buttons, tips and pictures are
// given comes back whole, and is shown.
#include "controls/HyperLink.h"
#include "controls/NoteStatic.h"
#include "dialogs/BaseDialog.h"
#include "shell/PictureLoader.h"

#include "tests/Folders.h"
#include "tests/FourScripts.h"
#include "tests/controls/LabelHost.h"
#include "tests/controls/ShellSpy.h"
#include "tests/dialogs/PageTemplate.h"

#include "testing/Page.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

namespace {

const CRect place(20, 20, 420, 60);
const COLORREF background = RGB(20, 160, 60);

CString TextOf(const CWnd& window)
{
    CString text;
    window.GetWindowText(text);
    return text;
}

class TipButton : public CxShadeButton
{
public:
    CString TipText()
    {
        CString text;
        m_toolTip.GetText(text, this);
        return text;
    }
};

/// A folder below the temporary one, removed at the end with the picture in it.
class PictureFolder
{
public:
    PictureFolder()
        : m_folder((TemporaryPath(_T("")) + static_cast<LPCTSTR>(fourScripts)).c_str()),
          m_picture(m_folder + _T("\\") + fourScripts + _T(".gif"))
    {
        ::CreateDirectory(m_folder, nullptr);
        ::CopyFile(ImagePath(_T("Info.gif")).c_str(), m_picture, FALSE);
    }
    ~PictureFolder()
    {
        ::DeleteFile(m_picture);
        ::RemoveDirectory(m_folder);
    }
    PictureFolder(const PictureFolder&) = delete;
    PictureFolder& operator=(const PictureFolder&) = delete;

    const CString& Folder() const { return m_folder; }
    const CString& Picture() const { return m_picture; }

private:
    CString m_folder;
    CString m_picture;
};

} // namespace

TEST_CASE("labels, notes and links keep text of four scripts, and show it")
{
    LabelHost host(background);
    CStaticTS label;
    CNoteStatic note;
    CHyperLink link;
    for (CWnd* control :
         {static_cast<CWnd*>(&label), static_cast<CWnd*>(&note), static_cast<CWnd*>(&link)}) {
        control->SubclassWindow(host.AddStatic(place, _T("")));
        control->SetWindowText(fourScripts);
        CHECK(TextOf(*control) == fourScripts);
        CHECK(host.Show().Crop(place).CountOf(background) < place.Width() * place.Height());
        control->DestroyWindow();
    }
}

TEST_CASE("links open targets of four scripts")
{
    LabelHost host;
    CStaticTS label;
    label.SubclassWindow(host.AddStatic(place, _T("A link")));
    label.SetLink(TRUE);
    CHyperLink link;
    link.SubclassWindow(host.AddStatic(place, _T("A link")));
    const ShellSpy shell;
    REQUIRE(shell.IsInstalled());
    label.SetLinkTarget(fourScripts);
    label.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
    link.SetURL(fourScripts);
    link.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
    REQUIRE(shell.Asked().size() == 2);
    CHECK(shell.Asked()[0].target.c_str() == fourScripts);
    CHECK(shell.Asked()[1].target.c_str() == fourScripts);
}

TEST_CASE("a button keeps a caption and a tip of four scripts")
{
    LabelHost host;
    TipButton button;
    REQUIRE(button.Create(fourScripts, WS_CHILD | WS_VISIBLE, place, &host, 7));
    REQUIRE(button.SetToolTipText(fourScripts, CString()));
    CHECK(TextOf(button) == fourScripts);
    CHECK(button.TipText() == fourScripts);
}

TEST_CASE("a picture is found under a name of four scripts, whole or below the working folder")
{
    const PictureFolder pictures;
    const HBITMAP whole = LoadPictureBitmap(pictures.Picture());
    CHECK(whole != nullptr);
    ::DeleteObject(whole);
    TCHAR former[MAX_PATH + 1];
    ::GetCurrentDirectory(MAX_PATH, former);
    REQUIRE(::SetCurrentDirectory(pictures.Folder()));
    const HBITMAP relative = LoadPictureBitmap(fourScripts + _T(".gif"));
    ::SetCurrentDirectory(former);
    CHECK(relative != nullptr);
    ::DeleteObject(relative);
}

TEST_CASE("a page takes its images from a folder of four scripts")
{
    const PictureFolder pictures;
    const CString before = g_strImageDir;
    g_strImageDir = pictures.Folder();
    class FolderPage : public CBaseDialog
    {
    public:
        FolderPage() : CBaseDialog(0, nullptr, false, false, true, false, false, false, false, true)
        {
        }
        using CBaseDialog::m_strImageDir;
    } page;
    const DialogTemplate source = MakePageTemplate();
    Page shown(page, source);
    CHECK(page.m_strImageDir == pictures.Folder() + _T('\\'));
    g_strImageDir = before;
}
