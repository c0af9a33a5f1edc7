#include "gallery/Shoot.h"

#include "gallery/Album.h"
#include "gallery/BackgroundsPage.h"
#include "gallery/ButtonsPage.h"
#include "gallery/GridPage.h"
#include "gallery/Images.h"
#include "gallery/LabelsPage.h"
#include "gallery/LanguagesPage.h"
#include "gallery/Pointer.h"
#include "gallery/ShadeLabPage.h"
#include "gallery/StartPage.h"
#include "gallery/WizardPages.h"
#include "gallery/WorkingPage.h"

#include <vector>

namespace {

const CPoint pagePlace(40, 30);
const DWORD paintTime = 120; // Milliseconds.
const DWORD tipTime = 900;

// A page without its modal loop, for as long as a picture of it is taken.
class CShownPage
{
public:
    CShownPage(CAlbum& album, CDialog& page, UINT templateId) : m_page(page)
    {
        PointAway();
        if (!page.Create(templateId, nullptr)) {
            album.Fail(_T("a page could not be opened"));
            return;
        }
        page.SetWindowPos(nullptr, pagePlace.x, pagePlace.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        page.ShowWindow(SW_SHOW);
        page.SetForegroundWindow();
        Settle(paintTime);
    }
    ~CShownPage()
    {
        if (m_page.GetSafeHwnd() != nullptr)
            m_page.DestroyWindow();
        Settle(paintTime);
    }
    CShownPage(const CShownPage&) = delete;
    CShownPage& operator=(const CShownPage&) = delete;

    bool IsOpen() const { return m_page.GetSafeHwnd() != nullptr; }
    CWnd& Control(int id) { return *m_page.GetDlgItem(id); }

private:
    CDialog& m_page;
};

// System colours for its length.
class CSystemColors
{
public:
    CSystemColors(const int* indices, const COLORREF* colors, int count)
        : m_indices(indices), m_former(count)
    {
        for (int i = 0; i < count; ++i)
            m_former[i] = ::GetSysColor(indices[i]);
        ::SetSysColors(count, indices, colors);
    }
    ~CSystemColors()
    {
        ::SetSysColors(static_cast<int>(m_former.size()), m_indices, m_former.data());
    }
    CSystemColors(const CSystemColors&) = delete;
    CSystemColors& operator=(const CSystemColors&) = delete;

private:
    const int* m_indices;
    std::vector<COLORREF> m_former;
};

void ShootStart(CAlbum& album)
{
    CStartPage page;
    CShownPage shown(album, page, IDD_START);
    if (shown.IsOpen())
        album.Take(page, "start", "The start page lists the rooms.");
}

void ShootStartWithoutImages(CAlbum& album)
{
    const CString folder = g_strImageDir;
    g_strImageDir += _T("missing\\");
    CStartPage page;
    CShownPage shown(album, page, IDD_START);
    if (shown.IsOpen())
        album.Take(page, "start-no-images", "Started without its image folder.");
    g_strImageDir = folder;
}

void ShootBackgrounds(CAlbum& album)
{
    CBackgroundsPage page(nullptr);
    CShownPage shown(album, page, IDD_BACKGROUNDS);
    if (!shown.IsOpen())
        return;
    album.Take(page, "backgrounds", "Backgrounds: the ways in which a dialog paints itself.");

    const struct
    {
        CSampleDialog::Kind kind;
        const char* name;
        const char* caption;
    } samples[] = {
        {CSampleDialog::plain, "background-plain", "Every mode off."},
        {CSampleDialog::solidFill, "background-solid", "Filled with one colour."},
        {CSampleDialog::bitmap, "background-bitmap", "A bitmap, and a caption line over it."},
        {CSampleDialog::shaped, "background-shaped",
         "An image and a mask: no rectangle, here in front of the page."},
    };
    for (const auto& sample : samples) {
        Click(shown.Control(IDC_SAMPLE_FIRST + sample.kind));
        PointAway();
        CSampleDialog& window = page.Sample(sample.kind);
        if (window.GetSafeHwnd() == nullptr) {
            album.Fail(CString(sample.name) + _T(": the window did not open"));
            continue;
        }
        album.Take(window, sample.name, sample.caption);
        window.DestroyWindow();
        Settle(paintTime);
    }
    Click(shown.Control(IDC_DRAG));
    PointAway();
    album.Take(page, "backgrounds-drag", "Dragging by any point is switched on.");
}

void ShootGrid(CAlbum& album)
{
    CGridPage page(nullptr);
    CShownPage shown(album, page, IDD_GRID);
    if (!shown.IsOpen())
        return;
    album.Take(page, "grid", "Grid: a requested rectangle and the one that it becomes.");
    const UINT large[] = {33, 58, 211, 97};
    for (int i = 0; i < 4; ++i)
        page.SetDlgItemInt(IDC_REQUEST_FIRST + i, large[i]);
    album.Take(page, "grid-large", "A larger rectangle; only the lines of whole base units fit.");
}

void ShootButtons(CAlbum& album)
{
    CButtonsPage page(nullptr);
    CShownPage shown(album, page, IDD_BUTTONS);
    if (!shown.IsOpen())
        return;
    album.Take(page, "buttons", "Buttons: nine shade styles and their states.");
    PointAt(shown.Control(IDC_FLAT));
    album.Take(page, "buttons-flat-hot", "The pointer is over the flat button: its edge shows.");
    PointAt(shown.Control(IDC_PICTURE_ABOVE));
    PressPointer();
    album.Take(page, "buttons-pressed", "The button with the picture above is held down.");
    ReleasePointer();
    Click(shown.Control(IDC_CHECK_PLAIN));
    Click(shown.Control(IDC_RADIO_LAST));
    PointAway();
    album.Take(page, "buttons-checked", "A check box switched on, another radio button chosen.");
    PointAt(shown.Control(IDC_TIP));
    Settle(tipTime);
    album.Take(page, "buttons-tip", "A tool tip.");
}

void ShootShadeLab(CAlbum& album)
{
    CShadeLabPage page(nullptr);
    CShownPage shown(album, page, IDD_SHADE_LAB);
    if (!shown.IsOpen())
        return;
    album.Take(page, "shade-lab", "Shade lab: what SetShade makes of its arguments.");
    page.Choose(SHADE_SCRATCHED, 24, 40, 60, RGB(214, 160, 96));
    album.Take(page, "shade-lab-scratched", "Another style and tint.");
    page.Choose(SHADE_ROUNDED_BUMP, 4, 40, 90, RGB(120, 176, 150));
    Click(shown.Control(IDC_COPY));
    PointAt(shown.Control(IDC_LIVE_LAST));
    album.Take(page, "shade-lab-hot", "A hot face; the call has been copied.");
}

void ShootLabels(CAlbum& album)
{
    CLabelsPage page(nullptr);
    CShownPage shown(album, page, IDD_LABELS);
    if (!shown.IsOpen())
        return;
    album.Take(page, "labels", "Labels: text, pictures and links.");
    PointAt(shown.Control(IDC_TIP_LINK));
    Settle(tipTime);
    album.Take(page, "labels-tip", "The tool tip of a link.");
}

void ShootLanguages(CAlbum& album)
{
    CLanguagesPage page(nullptr);
    CShownPage shown(album, page, IDD_LANGUAGES);
    if (!shown.IsOpen())
        return;
    album.Take(page, "languages", "Languages: four scripts in every kind of control.");
    Click(shown.Control(IDC_GREETING_FIRST + 2));
    PointAt(shown.Control(IDC_LANGUAGE_LINK_FIRST + 2));
    Settle(tipTime);
    album.Take(page, "languages-arabic", "Another language, and the tip of a link in it.");
}

void ShootWizard(CAlbum& album)
{
    WizardTask task;
    task.folder = ImageFolder();
    {
        CWizardFolderPage page(task, nullptr);
        CShownPage shown(album, page, IDD_WIZARD_FOLDER);
        if (shown.IsOpen())
            album.Take(page, "wizard-1", "Wizard, step 1: Next and Cancel.");
    }
    task.pictures = FindPictures(task.folder);
    {
        CWizardPicturesPage page(task, nullptr);
        CShownPage shown(album, page, IDD_WIZARD_PICTURES);
        if (shown.IsOpen()) {
            page.Select(_T("large.gif"));
            album.Take(page, "wizard-2", "Step 2: Back, Proceed and Cancel.");
        }
    }
    {
        CWizardConfirmPage page(task, nullptr);
        CShownPage shown(album, page, IDD_WIZARD_CONFIRM);
        if (shown.IsOpen())
            album.Take(page, "wizard-3", "Step 3: Back, Confirm and Cancel.");
    }
    {
        CWizardResultPage page(task, nullptr);
        CShownPage shown(album, page, IDD_WIZARD_RESULT);
        if (shown.IsOpen())
            album.Take(page, "wizard-4-failed", "Step 4 after a failure: Back and Close.");
    }
    task.indexFile = task.folder + _T("pictures.html"); // Shown, not written.
    CWizardResultPage page(task, nullptr);
    CShownPage shown(album, page, IDD_WIZARD_RESULT);
    if (shown.IsOpen())
        album.Take(page, "wizard-4", "Step 4: OK.");
}

void ShootWorking(CAlbum& album)
{
    CWorkingPage page(nullptr);
    CShownPage shown(album, page, IDD_WORKING);
    if (!shown.IsOpen())
        return;
    if (!page.BeginWork()) {
        album.Fail(_T("the working window did not open"));
        return;
    }
    g_pModelessDlg->SetWindowPos(nullptr, pagePlace.x, pagePlace.y, 0, 0,
                                 SWP_NOSIZE | SWP_NOZORDER);
    album.Take(*g_pModelessDlg, "working-begin", "The working window as the job begins.");
    const int pieces = 900;
    for (int i = 0; i < pieces && page.WorkOn(); ++i) {
    }
    album.Take(*g_pModelessDlg, "working-amid", "Amid the job; the host has enabled Cancel.");
    Click(*g_pModelessDlg->GetDlgItem(IDCANCEL));
    if (page.WorkOn())
        album.Fail(_T("the job does not hear the Cancel button"));
    page.EndWork();
    album.Take(page, "working", "Working: the user has cancelled the job.");
}

void ShootDarkColors(CAlbum& album)
{
    const int indices[] = {COLOR_BTNFACE,  COLOR_BTNTEXT, COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT,
                           COLOR_GRAYTEXT, COLOR_WINDOW,  COLOR_WINDOWTEXT};
    const COLORREF colors[] = {RGB(45, 48, 56),   RGB(235, 235, 235), RGB(24, 26, 32),
                               RGB(96, 100, 112), RGB(140, 144, 152), RGB(30, 32, 38),
                               RGB(235, 235, 235)};
    const CSystemColors dark(indices, colors, _countof(indices));
    CButtonsPage page(nullptr);
    CShownPage shown(album, page, IDD_BUTTONS);
    if (shown.IsOpen())
        album.Take(page, "buttons-dark", "Buttons with dark system colours.");
}

void ShootRightToLeft(CAlbum& album)
{
    ::SetProcessDefaultLayout(LAYOUT_RTL); // Of windows that are made from here on.
    {
        CButtonsPage page(nullptr);
        CShownPage shown(album, page, IDD_BUTTONS);
        if (shown.IsOpen())
            album.Take(page, "buttons-right-to-left", "Buttons on a right-to-left page.");
    }
    {
        CLabelsPage page(nullptr);
        CShownPage shown(album, page, IDD_LABELS);
        if (shown.IsOpen())
            album.Take(page, "labels-right-to-left", "Labels on a right-to-left page.");
    }
    ::SetProcessDefaultLayout(0);
}

} // namespace

BOOL ShootGallery(const CString& folder)
{
    CAlbum album(EndWithBackslash(folder));
    // What fails here fails again when the first file is written.
    ::CreateDirectory(folder, nullptr);
    if (!HasImages())
        album.Fail(_T("the image folder ") + ImageFolder() + _T(" is missing"));
    for (const auto shoot : {ShootStart, ShootStartWithoutImages, ShootBackgrounds, ShootGrid,
                             ShootButtons, ShootShadeLab, ShootLabels, ShootLanguages, ShootWizard,
                             ShootWorking, ShootDarkColors, ShootRightToLeft})
        shoot(album);
    album.WriteIndex();
    return album.IsComplete();
}
