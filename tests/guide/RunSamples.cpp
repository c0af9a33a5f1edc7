// Runs the samples of the guide and of the test kit: opens each page, uses it and closes it, calls
// each function. samples.cpp is made from the documents by scripts/guide-test, as is the template
// of each page.
#include "samples.cpp"

#include <testing/Canvas.h>
#include <testing/CrashReport.h>
#include <testing/Pump.h>

#include <string>

using umbra::testing::Canvas;
using umbra::testing::DoModal;
using umbra::testing::keyNotTaken;
using umbra::testing::ModalOutcome;
using umbra::testing::Page;
using umbra::testing::Picture;
using umbra::testing::Steps;

namespace {

/// What its DoModal returned.
INT_PTR Drive(const char* name, CDialog& dialog, Steps steps)
{
    const ModalOutcome outcome = DoModal(dialog, std::move(steps));
    if (!outcome.failure.empty())
        printf("%s: %s\n", name, outcome.failure.c_str());
    CHECK(outcome.failure.empty());
    return outcome.result;
}

void Cancel(Page& page)
{
    CHECK(page.Click(IDCANCEL));
}

void RunFolderPage()
{
    CFolderPage dialog(NULL);
    const INT_PTR result =
        Drive("CFolderPage", dialog,
              {
                  [](Page& page) { CHECK(page.Type(IDC_FOLDER, _T("C:\\data"))); },
                  [](Page& page) {
                      CHECK(page.Show().Contains(RGB(190, 203, 222))); // Its own OnPaint.
                      CHECK(page.Text(IDOK) == _T("Proceed"));
                  },
                  [](Page& page) { CHECK(page.Click(IDC_BACK)); },
              });
    CHECK(result == IDC_BACK);
}

void RunPanelDialog()
{
    CPanelDialog dialog;
    HBITMAP panel = LoadPictureBitmap(g_strImageDir + _T("\\images\\panel.bmp"));
    const COLORREF expected = Picture::OfBitmap(panel).At(30, 60);
    ::DeleteObject(panel);
    for (int i = 0; i < 2; ++i) { // It may be opened again.
        Drive("CPanelDialog", dialog,
              {
                  [&](Page& page) { CHECK(page.Show().At(30, 60) == expected); },
                  [](Page& page) { // Any point of it is one to drag it by.
                      ::SendMessage(page.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(30, 60));
                      MSG posted{};
                      CHECK(::PeekMessage(&posted, page.Handle(), WM_NCLBUTTONDOWN,
                                          WM_NCLBUTTONDOWN, PM_REMOVE));
                      CHECK(posted.wParam == HTCAPTION);
                  },
                  Cancel,
              });
    }
}

void RunMoveOntoGrid()
{
    CMyPage dialog;
    Page page(dialog, IDD_MY_PAGE);
    CWnd* edit = dialog.GetDlgItem(IDC_NAME);
    MoveOntoGrid(*edit, CRect(11, 5, 45, 22));
    CRect place;
    edit->GetWindowRect(&place);
    dialog.ScreenToClient(&place);
    int x, y, cx, cy;
    PixelsToDialogUnits(11, 5, 34, 17, &x, &y, &cx, &cy);
    DialogUnitsToPixels(x, y, cx, cy, &x, &y, &cx, &cy);
    CHECK(place == CRect(CPoint(x, y), CSize(cx, cy)));
}

void RunSavePage()
{
    struct Opened : CSavePage
    {
        Opened() : CSavePage(NULL) {}
        using CSavePage::m_btnPrint;
        using CSavePage::m_btnSave;
        using CSavePage::m_chkBackup;
    } dialog;
    const INT_PTR result = Drive("CSavePage", dialog,
                                 {
                                     [&](Page& page) {
                                         CHECK(dialog.m_chkBackup.GetCheck() == BST_CHECKED);
                                         CHECK(page.Click(IDC_BACKUP));
                                         CHECK(dialog.m_chkBackup.GetCheck() == BST_UNCHECKED);
                                     },
                                     [](Page& page) {
                                         const Picture plain = page.Show(IDC_SAVE);
                                         CHECK(page.Hover(IDC_SAVE));
                                         CHECK(page.Show(IDC_SAVE) != plain); // The hot face.
                                         CHECK(page.Click(IDC_PRINT));
                                     },
                                     Cancel,
                                 });
    CHECK(result == IDCANCEL);
}

void RunAskPage()
{
    CAskPage dialog(NULL);
    const INT_PTR result = Drive("CAskPage", dialog,
                                 {
                                     [](Page& page) {
                                         CHECK(page.Text(IDOK) == "&Confirm");
                                         ::SetFocus(page.Control(IDCANCEL));
                                         // Without the assistance it would mean Confirm.
                                         CHECK(page.PressKey(VK_RETURN) != keyNotTaken);
                                     },
                                 });
    CHECK(result == IDCANCEL);
}

void RunAboutPage()
{
    CAboutPage dialog(NULL);
    Drive("CAboutPage", dialog,
          {
              [&](Page& page) {
                  const Picture before = page.Show(IDC_VERSION);
                  dialog.ShowVersion(_T("2.0"));
                  CHECK(page.Text(IDC_VERSION) == _T("2.0"));
                  CHECK(page.Show(IDC_VERSION) != before);
                  CHECK(page.Show(IDC_PRODUCT_NAME).Contains(RGB(28, 38, 59)));
              },
              Cancel,
          });
}

void RunHintPage()
{
    CHintPage dialog(NULL);
    Drive("CHintPage", dialog,
          {
              [](Page& page) { CHECK(page.Show(IDC_NOTE).Contains(RGB(112, 74, 20))); },
              Cancel,
          });
}

void RunWelcomePage()
{
    CWelcomePage dialog(NULL);
    const INT_PTR result = Drive(
        "CWelcomePage", dialog,
        {
            [](Page& page) {
                CHECK(page.Show(IDC_MORE).Contains(RGB(0, 0, 255)));
                CHECK(page.Text(IDC_MORE) == _T("Read more")); // The control that the guide shows.
                CHECK(page.Hover(IDC_MORE));
            },
            [](Page& page) { CHECK(page.Click(IDOK)); },
        });
    CHECK(result == IDOK);
}

int converted = 0;

void Convert(const CString& file)
{
    ++converted;
    CString shown;
    g_pModelessDlg->m_detail.GetWindowText(shown);
    CHECK(shown == file);
    CHECK(g_pModelessDlg->IsWindowVisible());
    CStringArray none;
    CHECK_FALSE(ConvertAll(none, Convert)); // It is under way.
}

void RunConvertAll()
{
    CStringArray files;
    files.Add(_T("one.txt"));
    files.Add(_T("two.txt"));
    CHECK(ConvertAll(files, Convert));
    CHECK(converted == 2);
    CHECK(g_pModelessDlg == NULL);
}

void RunShowText()
{
    CAboutPage dialog(NULL);
    Page page(dialog, IDD_ABOUT);
    ShowText(*dialog.GetDlgItem(IDC_PRODUCT_NAME), _T("Another name"));
    CHECK(page.Text(IDC_PRODUCT_NAME) == _T("Another name"));
}

void RunWorkWindow()
{
    CWorkWindow window;
    Page page(window, CModellessDlg::IDD);
    CHECK_FALSE(window.IsCancelled());
    CHECK(page.PressKey(VK_ESCAPE) == umbra::testing::keyTaken);
    CHECK(window.IsCancelled());
    CHECK(page.IsOpen());
}

void RunDrawPictureFile()
{
    Canvas canvas(40, 40, RGB(255, 255, 255));
    CDC* dc = CDC::FromHandle(canvas.Dc());
    CHECK_FALSE(DrawPictureFile(*dc, g_strImageDir + _T("\\images\\none.gif"), CPoint(5, 5)));
    CHECK(canvas.ToPicture() == Picture(40, 40, RGB(255, 255, 255)));
    CHECK(DrawPictureFile(*dc, g_strImageDir + _T("\\images\\badge.gif"), CPoint(5, 5)));
    CHECK(canvas.ToPicture() != Picture(40, 40, RGB(255, 255, 255)));
}

class CSampleApp : public CWinApp
{
} theSampleApp;

} // namespace

int main()
{
    constexpr DWORD longestRun = 45000; // Milliseconds; the launcher allows more.
    setvbuf(stdout, NULL, _IONBF, 0);
    umbra::testing::InstallCrashReport();
    umbra::testing::LimitRunTime(longestRun);
    if (!AfxWinInit(::GetModuleHandle(NULL), NULL, ::GetCommandLine(), SW_SHOWNORMAL))
        return 2;
    TCHAR program[MAX_PATH];
    ::GetModuleFileName(NULL, program, MAX_PATH);
    CString folder(program);
    g_strImageDir = folder.Left(folder.ReverseFind(_T('\\')));
    g_crShade = RGB(180, 200, 230);

    RunFolderPage();
    RunPanelDialog();
    RunMoveOntoGrid();
    RunSavePage();
    RunAskPage();
    RunAboutPage();
    RunHintPage();
    RunWelcomePage();
    RunConvertAll();
    RunShowText();
    RunWorkWindow();
    RunDrawPictureFile();
    RunTestKitSamples();
    return failedChecks == 0 ? 0 : 1;
}
