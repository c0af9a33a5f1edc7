#include "tests/gallery/GalleryLives.h"

#include "tests/FourScripts.h"
#include "tests/robustness/SelfEnding.h"
#include "tests/robustness/Stage.h"

#include "gallery/BackgroundsPage.h"
#include "gallery/ButtonsPage.h"
#include "gallery/GridPage.h"
#include "gallery/Images.h"
#include "gallery/LabelsPage.h"
#include "gallery/LanguagesPage.h"
#include "gallery/ShadeLabPage.h"
#include "gallery/StartPage.h"
#include "gallery/WizardPages.h"
#include "gallery/WorkingPage.h"

#include <algorithm>
#include <iterator>

namespace {

// These open windows of the system that nobody here would close, or work for seconds.
const int notPressed[] = {IDC_BROWSE, IDC_START_WORK};

bool IsRoom(int id)
{
    return id >= IDC_ROOM_FIRST && id <= IDC_ROOM_LAST;
}

bool IsPressed(int id)
{
    return !IsRoom(id) &&
           std::find(std::begin(notPressed), std::end(notPressed), id) == std::end(notPressed);
}

bool EndsPage(int id)
{
    return id == IDOK || id == IDCANCEL || id == IDC_BACK;
}

/// Of the many alike on the page of buttons, the first row does.
bool IsRepetition(int id)
{
    return id >= IDC_MATRIX_FIRST + CButtonsPage::stateCount &&
           id < IDC_MATRIX_FIRST + CButtonsPage::styleCount * CButtonsPage::stateCount;
}

bool IsOfClass(HWND window, LPCTSTR className)
{
    TCHAR name[32] = _T("");
    ::GetClassName(window, name, _countof(name));
    return lstrcmpi(name, className) == 0;
}

std::vector<HWND> ControlsOf(HWND page)
{
    std::vector<HWND> controls;
    for (HWND child = ::GetWindow(page, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        const bool drawsItself = IsOfClass(child, _T("Button")) || IsOfClass(child, _T("Static"));
        if (drawsItself && ::IsWindowVisible(child))
            controls.push_back(child);
    }
    return controls;
}

/// Everything that a user does with a page, apart from closing it.
void Use(HWND page)
{
    Stage::Paint(page);
    for (const HWND control : ControlsOf(page)) {
        const int id = ::GetDlgCtrlID(control);
        if (EndsPage(id) || IsRepetition(id))
            continue;
        if (IsPressed(id))
            Stage::HoverAndPress(control);
        else
            Stage::Hover(control);
    }
    ::SendMessage(page, WM_NEXTDLGCTL, FALSE, FALSE);
    ::MoveWindow(page, 30, 30, 560, 400, TRUE);
    Stage::Paint(page);
}

void Press(HWND page, int id)
{
    if (const HWND control = ::GetDlgItem(page, id))
        Stage::HoverAndPress(control);
}

/// Runs a page as the gallery does, with its own modal loop. Beyond what all pages have, it is used
/// by `more`.
template <class Page, class... Arguments>
void Run(std::function<void(Page&)> more, Arguments&&... arguments)
{
    g_strImageDir = GalleryFolder();
    SelfEnding<Page> page(
        [&](HWND window) {
            Use(window);
            more(page);
            Stage::Paint(window);
            Press(window, IDCANCEL);
        },
        std::forward<Arguments>(arguments)...);
    page.DoModal();
}

const auto nothingMore = [](auto&) {};

void RunStart()
{
    Run<CStartPage>(
        [](CStartPage& start) {
            Run<CGridPage>(nothingMore, &start); // A room over it.
        },
        nullptr);
}

void RunBackgrounds()
{
    Run<CBackgroundsPage>(
        [](CBackgroundsPage& page) {
            for (const CSampleDialog::Kind kind : {CSampleDialog::plain, CSampleDialog::solidFill,
                                                   CSampleDialog::bitmap, CSampleDialog::shaped}) {
                const HWND sample = page.Sample(kind).GetSafeHwnd(); // Opened by its button.
                if (sample == nullptr)
                    continue;
                Use(sample);
                Press(sample, IDCANCEL);
            }
        },
        nullptr);
}

void RunGrid()
{
    Run<CGridPage>(
        [](CGridPage& page) { ::SetDlgItemText(page.m_hWnd, IDC_REQUEST_FIRST, _T("211")); },
        nullptr);
}

void RunButtons()
{
    Run<CButtonsPage>(nothingMore, nullptr);
}

void RunShadeLab()
{
    Run<CShadeLabPage>(
        [](CShadeLabPage& page) {
            page.Choose(SHADE_SCRATCHED, 24, 40, 60, RGB(214, 160, 96));
            ::SendDlgItemMessage(page.m_hWnd, IDC_RED, WM_KEYDOWN, VK_RIGHT, 0);
        },
        nullptr);
}

void RunLabels()
{
    Run<CLabelsPage>(nothingMore, nullptr);
}

void RunLanguages()
{
    Run<CLanguagesPage>(
        [](CLanguagesPage& page) {
            ::SendDlgItemMessage(page.m_hWnd, IDC_LANGUAGES, WM_KEYDOWN, VK_DOWN, 0);
            ::SetDlgItemText(page.m_hWnd, IDC_TYPED, fourScripts);
        },
        nullptr);
}

void RunWizardFolder()
{
    WizardTask task = MakeTask();
    Run<CWizardFolderPage>(
        [](CWizardFolderPage& page) {
            ::SetDlgItemText(page.m_hWnd, IDC_FOLDER, _T("C:\\nowhere"));
        },
        task, nullptr);
}

void RunWizardPictures()
{
    WizardTask task = MakeTask();
    Run<CWizardPicturesPage>([](CWizardPicturesPage& page) { page.Select(_T("large.gif")); }, task,
                             nullptr);
}

void RunWizardConfirm()
{
    WizardTask task = MakeTask();
    Run<CWizardConfirmPage>(nothingMore, task, nullptr);
}

void RunWizardResult()
{
    WizardTask task = MakeTask(); // Not carried out.
    Run<CWizardResultPage>(nothingMore, task, nullptr);
    task.indexFile = task.folder + _T("pictures.html");
    Run<CWizardResultPage>(nothingMore, task, nullptr);
}

void RunWorking()
{
    Run<CWorkingPage>(
        [](CWorkingPage& page) {
            if (!page.BeginWork())
                return;
            page.WorkOn();
            if (const HWND working = g_pModelessDlg->GetSafeHwnd())
                Use(working);
            page.WorkOn();
            page.EndWork();
        },
        nullptr);
}

} // namespace

WizardTask MakeTask()
{
    WizardTask task;
    task.folder = ImageFolder();
    task.pictures = {_T("Info.gif"), _T("large.gif"), _T("panel.bmp")};
    return task;
}

const std::vector<Life>& LivesOfGallery()
{
    static const std::vector<Life> lives = {
        {"start page", RunStart},
        {"backgrounds", RunBackgrounds},
        {"grid", RunGrid},
        {"buttons", RunButtons},
        {"shade lab", RunShadeLab},
        {"labels", RunLabels},
        {"languages", RunLanguages},
        {"wizard, folder", RunWizardFolder},
        {"wizard, pictures", RunWizardPictures},
        {"wizard, confirm", RunWizardConfirm},
        {"wizard, result", RunWizardResult},
        {"working", RunWorking},
    };
    return lives;
}
