#include "gallery/Shoot.h"

#include "gallery/BackgroundsPage.h"
#include "gallery/ButtonsPage.h"
#include "gallery/GridPage.h"
#include "gallery/Images.h"
#include "gallery/LabelsPage.h"
#include "gallery/Pointer.h"
#include "gallery/ShadeLabPage.h"
#include "gallery/StartPage.h"
#include "gallery/WizardPages.h"
#include "gallery/WorkingPage.h"

#include <testing/Picture.h>

#include <stdio.h>

#include <vector>

using umbra::testing::Picture;

namespace {

const CPoint pagePlace(40, 30);
const DWORD paintTime = 120; // Milliseconds.
const DWORD tipTime = 900;
const COLORREF behindColor = palette::page; // As the index page has it.

// Copies a window, its frame included, to its place in a picture of `area` of the screen.
void DrawWindow(CDC& target, HWND window, const CRect& area)
{
    CRect place;
    ::GetWindowRect(window, &place);
    CRgn shape;
    shape.CreateRectRgn(0, 0, 0, 0);
    const bool shaped = ::GetWindowRgn(window, shape) != ERROR;
    if (shaped) {
        shape.OffsetRgn(place.left - area.left, place.top - area.top);
        target.SelectClipRgn(&shape);
    }
    CWindowDC source(CWnd::FromHandle(window));
    target.BitBlt(place.left - area.left, place.top - area.top, place.Width(), place.Height(),
                  &source, 0, 0, SRCCOPY);
    if (shaped)
        target.SelectClipRgn(nullptr);
}

// A window and those of this program above it: a tool tip, an open list.
std::vector<HWND> WindowsFrom(const CWnd& window)
{
    std::vector<HWND> windows = {window.GetSafeHwnd()};
    for (HWND above = ::GetWindow(window.GetSafeHwnd(), GW_HWNDPREV); above != nullptr;
         above = ::GetWindow(above, GW_HWNDPREV)) {
        const bool ours = ::GetWindowThreadProcessId(above, nullptr) == ::GetCurrentThreadId();
        if (ours && ::IsWindowVisible(above))
            windows.push_back(above);
    }
    return windows;
}

CRect AreaOf(const std::vector<HWND>& windows)
{
    CRect area;
    for (HWND window : windows) {
        CRect place;
        ::GetWindowRect(window, &place);
        area.UnionRect(&area, &place);
    }
    return area;
}

// Whether all points of a coarse grid have one colour.
bool IsBlank(CDC& dc, CSize size)
{
    const int step = 7; // Pixels.
    const COLORREF first = dc.GetPixel(0, 0);
    for (int y = 0; y < size.cy; y += step) {
        for (int x = 0; x < size.cx; x += step) {
            if (dc.GetPixel(x, y) != first)
                return false;
        }
    }
    return true;
}

// Takes the pictures and remembers what the index has to show.
class CAlbum
{
public:
    explicit CAlbum(const CString& folder) : m_folder(folder) {}

    /// A picture of a window as the screen shows it.
    void Take(CWnd& window, const char* name, const char* caption);
    void WriteIndex();
    void Fail(const CString& what);
    BOOL IsComplete() const { return m_complete; }

private:
    struct Entry
    {
        CString name;
        CString caption;
    };

    CString m_folder;
    std::vector<Entry> m_entries;
    BOOL m_complete = TRUE;
};

void CAlbum::Take(CWnd& window, const char* name, const char* caption)
{
    Settle(paintTime);
    // Window by window, because a screen that nobody looks at may have no picture as a whole.
    const std::vector<HWND> windows = WindowsFrom(window);
    const CRect area = AreaOf(windows);
    CClientDC screen(nullptr);
    CDC memory;
    CBitmap picture;
    if (!memory.CreateCompatibleDC(&screen) ||
        !picture.CreateCompatibleBitmap(&screen, area.Width(), area.Height())) {
        Fail(CString(name) + ": no memory for the picture");
        return;
    }
    CBitmap* before = memory.SelectObject(&picture);
    memory.FillSolidRect(0, 0, area.Width(), area.Height(), behindColor);
    for (HWND each : windows)
        DrawWindow(memory, each, area);
    const bool blank = IsBlank(memory, area.Size());
    memory.SelectObject(before);

    const CString file = CString(name) + ".png";
    if (blank) {
        Fail(file + ": the window shows nothing");
        return;
    }
    const Picture shot = Picture::OfBitmap(static_cast<HBITMAP>(picture.GetSafeHandle()));
    if (!shot.SavePng(m_folder + file)) {
        Fail(m_folder + file + " could not be written");
        return;
    }
    m_entries.push_back({name, caption});
    printf("%s\n", static_cast<LPCTSTR>(file));
    fflush(stdout);
}

void CAlbum::WriteIndex()
{
    CString page = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                   "<title>Umbra gallery</title>\n<style>\n"
                   "body { font: 15px/1.5 sans-serif; background: #f0f3f8; color: #2b3852;"
                   " margin: 32px; }\n"
                   "h1 { color: #1c263b; }\n"
                   "figure { display: inline-block; margin: 0 28px 32px 0;"
                   " vertical-align: top; }\n"
                   "img { display: block; border: 1px solid #becadb; }\n"
                   "figcaption { margin-top: 6px; color: #54637e; max-width: 640px; }\n"
                   "</style>\n</head>\n<body>\n<h1>Umbra gallery</h1>\n";
    for (const Entry& entry : m_entries) {
        page += "<figure><img src=\"" + entry.name + ".png\" alt=\"" + entry.caption +
                "\"><figcaption>" + entry.caption + "</figcaption></figure>\n";
    }
    page += "</body>\n</html>\n";

    CFile file;
    const CString path = m_folder + "index.html";
    if (!file.Open(path, CFile::modeCreate | CFile::modeWrite)) {
        Fail(path + " could not be written");
        return;
    }
    try {
        file.Write(static_cast<LPCTSTR>(page), page.GetLength());
        file.Close();
    } catch (CFileException* exception) {
        exception->Delete();
        Fail(path + " could not be written");
    }
}

void CAlbum::Fail(const CString& what)
{
    fprintf(stderr, "umbra-gallery: %s\n", static_cast<LPCTSTR>(what));
    m_complete = FALSE;
}

// A page without its modal loop, for as long as a picture of it is taken.
class CShownPage
{
public:
    CShownPage(CAlbum& album, CDialog& page, UINT templateId) : m_page(page)
    {
        PointAway();
        if (!page.Create(templateId, nullptr)) {
            album.Fail("a page could not be opened");
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
    g_strImageDir += "missing\\";
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
            album.Fail(CString(sample.name) + ": the window did not open");
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
            page.Select("large.gif");
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
    task.indexFile = task.folder + "pictures.html"; // Shown, not written.
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
        album.Fail("the working window did not open");
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
        album.Fail("the job does not hear the Cancel button");
    page.EndWork();
    album.Take(page, "working", "Working: the user has cancelled the job.");
}

} // namespace

BOOL ShootGallery(const CString& folder)
{
    CAlbum album(EndWithBackslash(folder));
    // What fails here fails again when the first file is written.
    ::CreateDirectory(folder, nullptr);
    if (!HasImages())
        album.Fail("the image folder " + ImageFolder() + " is missing");
    for (const auto shoot : {ShootStart, ShootStartWithoutImages, ShootBackgrounds, ShootGrid,
                             ShootButtons, ShootShadeLab, ShootLabels, ShootWizard, ShootWorking})
        shoot(album);
    album.WriteIndex();
    return album.IsComplete();
}
