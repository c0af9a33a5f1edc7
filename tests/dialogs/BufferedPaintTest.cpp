// Pages painted through a buffer show what they show without it, and their controls have nothing
// left to paint.
#include "controls/HyperLink.h"
#include "controls/NoteStatic.h"
#include "dialogs/BaseDialog.h"

#include "tests/LibraryFiles.h"
#include "tests/dialogs/DialogChecks.h"
#include "tests/dialogs/PageTemplate.h"

#include "testing/CallFault.h"
#include "testing/ImportHook.h"
#include "testing/Input.h"
#include "testing/MessageLog.h"
#include "testing/Page.h"
#include "testing/Pump.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

namespace {

enum { textId = 101, etchedId, linkId, noteId, pictureId, buttonId, editId, frameId };

/// A page with everything that paints itself, and two controls of the system.
class RichPage : public CBaseDialog
{
public:
    explicit RichPage(bool native = true)
        : CBaseDialog(0, nullptr, true, false, true, false, true, false, false, true)
    {
        g_strImageDir = ProgramFolder().c_str();
        g_crShade = RGB(180, 200, 230);
        m_template.Label(textId, _T("A text"), 60, 10, 90, 12, labelStyle)
            .Label(etchedId, _T("Etched"), 60, 24, 90, 12, labelStyle)
            .Label(linkId, _T("A link"), 60, 38, 90, 12, labelStyle)
            .Label(noteId, _T("A note"), 60, 52, 90, 20, labelStyle)
            .Label(pictureId, _T(""), 60, 74, 40, 30, labelStyle)
            .Button(buttonId, _T("A check box"), 160, 10, 90, 16,
                    DialogTemplate::tabStop | BS_AUTOCHECKBOX | BS_PUSHLIKE);
        if (native) {
            m_template.Edit(editId, _T("An edit"), 160, 40, 90, 14);
            m_template.Button(frameId, _T("A frame"), 155, 30, 100, 30,
                              DialogTemplate::visibleChild | BS_GROUPBOX);
        }
    }

    BOOL OnInitDialog() override
    {
        CBaseDialog::OnInitDialog();
        m_etched.SetEmbossed(TRUE);
        m_link.SetURL(_T("target"));
        m_note.SetLabelTextColor(RGB(40, 60, 110));
        m_image.SetTransparentColor(0);
        m_image.LoadPicture(ImagePath(_T("Info.gif")).c_str());
        ApplyButtonShade(m_button);
        return TRUE;
    }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CBaseDialog::DoDataExchange(pDX);
        DDX_Control(pDX, textId, m_text);
        DDX_Control(pDX, etchedId, m_etched);
        DDX_Control(pDX, linkId, m_link);
        DDX_Control(pDX, noteId, m_note);
        DDX_Control(pDX, pictureId, m_image);
        DDX_Control(pDX, buttonId, m_button);
    }

    /// All of it painted anew.
    Picture ShowAnew()
    {
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
        PumpMessages();
        return Picture::OfWindow(m_hWnd);
    }

    static constexpr DWORD labelStyle = WS_CHILD | WS_VISIBLE | SS_NOTIFY;

    DialogTemplate m_template = MakePageTemplate();
    CStaticTS m_text, m_etched, m_image;
    CHyperLink m_link;
    CNoteStatic m_note;
    CxShadeButton m_button;
};

int copiesToScreen;

/// Counts what is copied to a window, in place of the system's function.
BOOL WINAPI CountCopy(HDC target, int x, int y, int width, int height, HDC source, int left,
                      int top, DWORD operation)
{
    if (::WindowFromDC(target) != nullptr)
        ++copiesToScreen;
    return ::BitBlt(target, x, y, width, height, source, left, top, operation);
}

int Differences(RichPage& page)
{
    page.SetBufferedPainting(false);
    const Picture direct = page.ShowAnew();
    page.SetBufferedPainting(true);
    const Picture buffered = page.ShowAnew();
    CHECK(buffered.Compare(direct) == "the same");
    REQUIRE(direct.Width() > 100);
    return buffered.CountDifferences(Picture(direct.Width(), direct.Height(), direct.At(0, 0)));
}

} // namespace

TEST_CASE("a buffered page shows what it shows without the buffer")
{
    RichPage page;
    Page shown(page, page.m_template);
    SUBCASE("as it is")
    {
    }
    SUBCASE("filled with a colour")
    {
        page.m_bSolidFill = TRUE;
        page.m_crFill = RGB(250, 240, 200);
    }
    SUBCASE("over a bitmap with a caption line")
    {
        CBitmap panel;
        panel.Attach(::CreateBitmap(300, 200, 1, 1, nullptr));
        page.SetBackground(panel);
        page.m_bCaptionText = TRUE;
        CHECK(Differences(page) > 1000);
        page.FreeBitmaps();
        return;
    }
    SUBCASE("right to left")
    {
        page.ModifyStyleEx(0, WS_EX_LAYOUTRTL);
        page.SetWindowPos(nullptr, 0, 0, 0, 0,
                          SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_FRAMECHANGED);
    }
    SUBCASE("with clipped children")
    {
        page.ModifyStyle(0, WS_CLIPCHILDREN);
    }
    SUBCASE("with a hot, a checked, a disabled and a hidden control")
    {
        page.m_button.SetCheck(TRUE);
        page.GetDlgItem(IDOK)->EnableWindow(FALSE);
        page.m_etched.ShowWindow(SW_HIDE);
        MovePointer(page.GetDlgItem(IDCANCEL)->m_hWnd);
    }
    SUBCASE("without room for a buffer")
    {
        const Picture direct = page.ShowAnew();
        page.SetBufferedPainting(true);
        const FailNth fault(FindModule(UMBRA_MFC_DLL), "gdi32", "CreateCompatibleBitmap", 1);
        REQUIRE(fault.IsInstalled());
        CHECK(page.ShowAnew().Compare(direct) == "the same");
        CHECK(fault.Failed() == 1);
        return;
    }
    CHECK(Differences(page) > 1000);
}

TEST_CASE("what a buffered page has painted is not painted again by its controls")
{
    RichPage page;
    Page shown(page, page.m_template);
    page.SetBufferedPainting(true);
    page.ShowAnew();
    const MessageLog label(page.m_text), link(page.m_link), button(page.m_button);
    const MessageLog edit(::GetDlgItem(page, editId));
    page.Invalidate();
    ::UpdateWindow(page);
    PumpMessages();
    CHECK(label.Count(WM_PAINT) == 0);
    CHECK(link.Count(WM_PAINT) == 0);
    CHECK(button.Count(WM_PAINT) == 0);
    CHECK(label.Count(WM_PRINTCLIENT) == 1);
    CHECK(button.Count(WM_PRINTCLIENT) == 1);
    CHECK(edit.Count(WM_PAINT) == 1); // It paints itself as ever.
}

TEST_CASE("a page without controls of the system is told painted with all its controls")
{
    RichPage page(false);
    Page shown(page, page.m_template);
    page.SetBufferedPainting(true);
    page.ShowAnew();
    const MessageLog label(page.m_text), button(page.m_button);
    page.Invalidate();
    PumpMessages();
    CHECK(label.Count(WM_PAINT) == 0);
    CHECK(button.Count(WM_PAINT) == 0);
    CHECK(::GetUpdateRect(page, nullptr, FALSE) == FALSE);
    CHECK(::GetUpdateRect(page.m_text, nullptr, FALSE) == FALSE);
}

TEST_CASE("a part of a buffered page is painted like the whole of it")
{
    RichPage page;
    Page shown(page, page.m_template);
    page.SetBufferedPainting(true);
    const Picture whole = page.ShowAnew();
    const MessageLog distant(page.GetDlgItem(IDCANCEL)->m_hWnd);
    for (const CRect& part :
         {CRect(100, 20, 150, 40), CRect(0, 0, 30, 300), CRect(200, 10, 210, 60)}) {
        CClientDC screen(&page);
        screen.FillSolidRect(&part, RGB(255, 0, 255));
        page.InvalidateRect(&part, TRUE);
        PumpMessages();
        CHECK(Picture::OfWindow(page).Compare(whole) == "the same");
    }
    CHECK(distant.Count(WM_PRINTCLIENT) == 0); // It had no part in it.
}

TEST_CASE("what is not erased shows through a buffered page")
{
    RichPage page;
    Page shown(page, page.m_template);
    page.SetBufferedPainting(true);
    page.ShowAnew();
    const CRect spot(300, 200, 310, 210);
    CClientDC screen(&page);
    screen.FillSolidRect(&spot, RGB(255, 0, 255));
    page.InvalidateRect(&spot, FALSE);
    PumpMessages();
    CHECK(Picture::OfWindow(page).At(305, 205) == RGB(255, 0, 255));
}

TEST_CASE("a control that is painted alone paints itself")
{
    RichPage page;
    Page shown(page, page.m_template);
    page.SetBufferedPainting(true);
    page.ShowAnew();
    const MessageLog button(page.m_button), whole(page);
    page.m_button.Invalidate();
    PumpMessages();
    CHECK(button.Count(WM_PAINT) == 1);
    CHECK(whole.Count(WM_PAINT) == 0);
}

TEST_CASE("a held button paints itself, so that its state can follow the pointer")
{
    RichPage page;
    Page shown(page, page.m_template);
    page.SetBufferedPainting(true);
    page.ShowAnew();
    const HWND button = page.GetDlgItem(IDCANCEL)->m_hWnd;
    REQUIRE(MovePointer(button));
    PressLeft();
    const MessageLog log(button);
    page.Invalidate();
    PumpMessages();
    CHECK(log.Count(WM_PRINTCLIENT) == 0);
    CHECK(log.Count(WM_PAINT) == 1);
    MovePointerAway(); // So that nothing is clicked.
    ReleaseLeft();
}

TEST_CASE("a new text shows in one step, without a moment of an empty label")
{
    RichPage page;
    Page shown(page, page.m_template);
    page.SetBufferedPainting(true);
    page.ShowAnew();
    CRect area;
    page.m_text.GetWindowRect(&area);
    page.ScreenToClient(&area);
    copiesToScreen = 0;
    const ImportHook copies(FindModule(UMBRA_MFC_DLL), "gdi32", "BitBlt", CountCopy);
    REQUIRE(copies.IsInstalled());
    page.m_text.SetRedraw(FALSE);
    page.m_text.SetWindowText(_T("Another text"));
    page.m_text.SetRedraw(TRUE);
    page.InvalidateRect(&area, TRUE);
    PumpMessages();
    CHECK(copiesToScreen == 1);
    const Picture now = Picture::OfWindow(page);
    CHECK(page.ShowAnew().Compare(now) == "the same");
}

TEST_CASE("buffered painting can be switched on and off at any time and leaves nothing behind")
{
    RichPage early;
    early.SetBufferedPainting(true); // Before there is a window.
    early.SetBufferedPainting(true);
    early.SetBufferedPainting(false);
    RichPage page(false);
    Page shown(page, page.m_template);
    // The labels' fonts stay for good, with and without the buffer; they are let out.
    for (CStaticTS* label : {&page.m_text, &page.m_etched, &page.m_image})
        label->ShowWindow(SW_HIDE);
    page.m_note.ShowWindow(SW_HIDE);
    CheckNothingStays([&] {
        page.SetBufferedPainting(true);
        page.ShowAnew();
        page.SetBufferedPainting(false);
        page.ShowAnew();
    });
}
