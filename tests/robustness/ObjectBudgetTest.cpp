// Holds the figures of docs/object-budget.md.
#include "tests/robustness/GdiSweeper.h"
#include "tests/robustness/Stage.h"

#include "tests/dialogs/PageTemplate.h"

#include "controls/HyperLink.h"
#include "controls/NoteStatic.h"
#include "controls/ShadeButton.h"
#include "units/DialogUnits.h"
#include "dialogs/ModellessDlg.h"
#include "shell/HandCursor.h"
#include "shell/PictureLoader.h"

#include "testing/Picture.h"

#include <doctest/doctest.h>

#include <functional>
#include <stdlib.h>
#include <string>

using namespace umbra::testing;

namespace {

/// What the document says of one operation.
struct Budget
{
    int fontsOfEach = 0; ///< Left by each object, once the operation was called.
    int bitmapsOfEach = 0;
    int fontsOfCall = 0; ///< Left by each call.
    int bitmapsOfCall = 0;
};

/// Counts in words.
std::string Describe(const GdiSweeper::Left& left)
{
    return std::to_string(left.fonts) + " fonts, " + std::to_string(left.bitmaps) + " bitmaps, " +
           std::to_string(left.others) + " others";
}

/// How often an object is made, used and destroyed.
int CountCycles()
{
    const char* wanted = getenv("UMBRA_CYCLES");
    return wanted != nullptr ? atoi(wanted) : 100;
}

/// One object that makes so many calls of the operation.
using Cycle = std::function<void(int calls)>;

/// So many cycles leave exactly what the budget says.
void CheckCycles(int cycles, int calls, const Budget& budget, const Cycle& cycle)
{
    const int batch = 200; // Even the class that leaves most does not fill the table.
    cycle(calls);          // What the system keeps for itself is there afterwards.
    cycle(calls);
    GdiSweeper sweeper;
    int cached = 0;
    for (int done = 0; done < cycles;) {
        const int count = min(batch, cycles - done);
        for (int i = 0; i < count; ++i)
            cycle(calls);
        GdiSweeper::Left expected;
        expected.fonts = count * (budget.fontsOfEach + calls * budget.fontsOfCall);
        expected.bitmaps = count * (budget.bitmapsOfEach + calls * budget.bitmapsOfCall);
        const GdiSweeper::Left left = sweeper.Sweep();
        INFO("left ", Describe(left), " in ", count, " cycles, expected ", Describe(expected));
        REQUIRE(left.fonts == expected.fonts);
        REQUIRE(left.bitmaps == expected.bitmaps);
        cached += left.others;
        REQUIRE(cached <= GdiSweeper::systemCache);
        if (left.others == 0)
            done += count; // Otherwise once more: what the system caches does not come again.
    }
}

/// A few cycles with one call and with several, so that what an object leaves and what a call
/// leaves can be told apart.
void CheckOperation(const std::string& name, const Budget& budget, const Cycle& cycle)
{
    INFO(name);
    CheckCycles(3, 1, budget, cycle);
    CheckCycles(3, 3, budget, cycle);
}

/// A label over a window, made, given so many calls, and destroyed.
template <class Label>
Cycle OnLabel(const std::function<void(Label&)>& call)
{
    return [call](int calls) {
        Stage stage;
        Label label;
        label.SubclassWindow(stage.AddLabel());
        stage.Show();
        for (int i = 0; i < calls; ++i)
            call(label);
        stage.Close();
    };
}

/// A button over a window, made, given so many calls, and destroyed.
Cycle OnButton(const std::function<void(CxShadeButton&)>& call, DWORD style = BS_AUTOCHECKBOX)
{
    return [call, style](int calls) {
        Stage stage;
        CxShadeButton button;
        button.SubclassWindow(stage.AddButton(style));
        button.SetShade(SHADE_DIAGONAL, 0, 0, 100, RGB(180, 200, 230));
        stage.Show();
        for (int i = 0; i < calls; ++i)
            call(button);
        stage.Show();
        stage.Close();
    };
}

const Budget nothing;
const Budget oneFontACall = {0, 0, 1, 0};
const Budget oneBitmapACall = {0, 0, 0, 1};
const Budget oneBitmapACallAndTheMask = {0, 1, 0, 1};

/// An icon of its own.
HICON MakeIcon()
{
    return ::CopyIcon(::LoadIcon(nullptr, IDI_ASTERISK));
}

/// A page that is shown while it lives.
class Page : public CBaseDialog
{
public:
    Page(bool confirm, bool ok, bool cancel, bool next, bool back, bool cancelIcon)
        : CBaseDialog(0U, nullptr, confirm, ok, cancel, next, back, false, false, cancelIcon)
    {
        g_strImageDir = ProgramFolder().c_str();
        CreateIndirect(MakePageTemplate().Get());
        Stage::Paint(m_hWnd);
    }
    ~Page() override { DestroyWindow(); }
};

/// One life of the modeless dialog.
void ShowModeless()
{
    g_strImageDir = ProgramFolder().c_str();
    CModellessDlg dialog(nullptr);
    dialog.Create(CModellessDlg::IDD, nullptr);
    dialog.ShowWindow(SW_SHOW);
    dialog.PumpMessages();
    Stage::Paint(dialog.m_hWnd);
    dialog.DestroyWindow();
    AfxGetApp()->EndWaitCursor();
}

/// One life of a dialog that was set up before.
void ShowDialog(const std::function<void(CDialogTS&)>& setUp)
{
    CDialogTS dialog(0U);
    setUp(dialog);
    dialog.CreateIndirect(
        DialogTemplate(20, 20, 150, 100, WS_POPUP | WS_VISIBLE, _T("A caption")).Get());
    Stage::Paint(dialog.m_hWnd);
    dialog.DestroyWindow();
}

} // namespace

TEST_CASE("what each operation of CStaticTS leaves for good")
{
    using Label = CStaticTS;
    CheckOperation("painting", nothing, OnLabel<Label>([](Label& l) { Stage::Paint(l.m_hWnd); }));
    CheckOperation("SetLink", oneFontACall, OnLabel<Label>([](Label& l) { l.SetLink(TRUE); }));
    CheckOperation("SetLabelFont", oneFontACall, OnLabel<Label>([](Label& l) {
                       l.ShowWindow(SW_HIDE); // It repaints.
                       l.SetLabelFont(static_cast<HFONT>(::GetStockObject(ANSI_VAR_FONT)));
                   }));
    CheckOperation("painting while m_bOwnFont is 0", oneFontACall, OnLabel<Label>([](Label& l) {
                       l.m_bOwnFont = FALSE;
                       Stage::Paint(l.m_hWnd);
                   }));
    CheckOperation("painting no text while m_bOwnFont is 0", nothing, OnLabel<Label>([](Label& l) {
                       l.m_bOwnFont = FALSE;
                       l.SetWindowText(_T(""));
                       Stage::Paint(l.m_hWnd);
                   }));
    CheckOperation("LoadPicture, opaque", oneBitmapACall,
                   OnLabel<Label>([](Label& l) { l.LoadPicture(ImageFile(_T("Info.gif"))); }));
    CheckOperation("LoadPicture, keyed", oneBitmapACallAndTheMask, OnLabel<Label>([](Label& l) {
                       l.SetTransparentColor(RGB(0, 0, 0));
                       l.LoadPicture(ImageFile(_T("Info.gif")));
                       Stage::Paint(l.m_hWnd);
                   }));
    CheckOperation("LoadPicture, no such file", nothing,
                   OnLabel<Label>([](Label& l) { l.LoadPicture(_T("no such.gif")); }));
    CheckOperation("colour requests", nothing, OnLabel<Label>([](Label& l) {
                       const HDC dc = ::GetDC(l.m_hWnd);
                       for (const COLORREF color : {RGB(1, 2, 3), RGB(4, 5, 6)}) {
                           l.SetBackColor(color);
                           ::SendMessage(::GetParent(l.m_hWnd), WM_CTLCOLORSTATIC,
                                         reinterpret_cast<WPARAM>(dc),
                                         reinterpret_cast<LPARAM>(l.m_hWnd));
                       }
                       ::ReleaseDC(l.m_hWnd, dc);
                   }));
    CheckOperation("everything else", nothing, OnLabel<Label>([](Label& l) {
                       l.SetLabelTextColor(RGB(1, 2, 3));
                       l.SetLinkTarget(_T("target"));
                       l.SetEmbossed(TRUE);
                       l.SetTransparent(TRUE);
                       Stage::Paint(l.m_hWnd);
                   }));
}

TEST_CASE("what each operation of CNoteStatic leaves for good")
{
    // A copy, and what SetLabelFont derives from it.
    CheckOperation("CopyWindowFont", {0, 0, 2, 0}, OnLabel<CNoteStatic>([](CNoteStatic& note) {
                       note.ShowWindow(SW_HIDE); // It repaints.
                       note.CopyWindowFont();
                   }));
    CheckOperation("painting after CopyWindowFont", {2, 0, 1, 0}, [](int calls) {
        Stage stage;
        CNoteStatic note;
        note.SubclassWindow(stage.AddLabel());
        note.CopyWindowFont();
        for (int i = 0; i < calls; ++i)
            Stage::Paint(note.m_hWnd);
        stage.Close();
    });
    CheckOperation("painting after CopyWindowFont with m_bOwnFont set again", {2, 0, 0, 0},
                   [](int calls) {
                       Stage stage;
                       CNoteStatic note;
                       note.SubclassWindow(stage.AddLabel());
                       note.CopyWindowFont();
                       note.m_bOwnFont = TRUE;
                       for (int i = 0; i < calls; ++i)
                           Stage::Paint(note.m_hWnd);
                       stage.Close();
                   });
}

TEST_CASE("a note looks the same when it need not derive its font at each paint")
{
    GdiSweeper sweeper;
    Stage stage;
    CNoteStatic note;
    note.SubclassWindow(stage.AddLabel());
    note.CopyWindowFont();
    REQUIRE_FALSE(note.m_bOwnFont);
    stage.Show();
    const Picture derived = Picture::OfWindow(stage.m_hWnd);
    REQUIRE(derived.CountOf(derived.At(0, 0)) < derived.Width() * derived.Height());
    note.m_bOwnFont = TRUE;
    stage.Show();
    CHECK(Picture::OfWindow(stage.m_hWnd).Compare(derived) == "the same");
    stage.Close();
    sweeper.Sweep();
}

TEST_CASE("what each operation of CHyperLink leaves for good")
{
    using Link = CHyperLink;
    CheckOperation("painting", nothing, OnLabel<Link>([](Link& l) { Stage::Paint(l.m_hWnd); }));
    CheckOperation("SetURL", oneFontACall, OnLabel<Link>([](Link& l) { l.SetURL(_T("target")); }));
    CheckOperation("ApplyLinkFont", oneFontACall, OnLabel<Link>([](Link& l) {
                       l.ApplyLinkFont();
                       Stage::Paint(l.m_hWnd);
                   }));
    CheckOperation("SetBitmapFile without a key colour", oneBitmapACall,
                   OnLabel<Link>([](Link& l) { l.SetBitmapFile(ImageFile(_T("Info.gif"))); }));
    CheckOperation("SetBitmapFile", oneBitmapACallAndTheMask, OnLabel<Link>([](Link& l) {
                       l.SetTransparentColor(RGB(0, 0, 0));
                       l.SetBitmapFile(ImageFile(_T("Info.gif")));
                       Stage::Paint(l.m_hWnd);
                   }));
    CheckOperation("SetBitmapFile, no such file", nothing,
                   OnLabel<Link>([](Link& l) { l.SetBitmapFile(_T("no such.gif")); }));
    CheckOperation("SetToolTipText", nothing, OnLabel<Link>([](Link& l) {
                       l.SetToolTipText(_T("A tip"));
                       l.RelayToolTipEvent(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
                   }));
}

TEST_CASE("what each operation of CxShadeButton leaves for good")
{
    using Button = CxShadeButton;
    CheckOperation("painting", nothing, OnButton([](Button& b) { Stage::Paint(b.m_hWnd); }));
    CheckOperation("SetShade", nothing, OnButton([](Button& b) {
                       b.SetShade(SHADE_SCRATCHED, 20, 30, 40, RGB(1, 2, 3));
                   }));
    // The last picture goes with the button; those that it replaced stay.
    CheckOperation("SetPicture", {0, -1, 0, 1}, OnButton([](Button& b) {
                       b.SetPicture(ImageFile(_T("Info.gif")), Button::alignLeft, 19, 19,
                                    RGB(0, 0, 0));
                       Stage::Paint(b.m_hWnd);
                   }));
    CheckOperation("SetPicture, no such file", nothing, OnButton([](Button& b) {
                       b.SetPicture(_T("no such.gif"), Button::alignLeft, 19, 19, RGB(0, 0, 0));
                   }));
    CheckOperation("SetIcons", nothing, OnButton([](Button& b) {
                       b.SetIcons(MakeIcon(), Button::alignLeft, 32, 32, MakeIcon(), MakeIcon());
                       Stage::Paint(b.m_hWnd);
                   }));
    // A picture takes the place of the icons, and icons that of a picture: both end.
    CheckOperation("SetIcons, one icon, then SetPicture", nothing, OnButton([](Button& b) {
                       b.SetIcons(MakeIcon(), Button::alignLeft, 32, 32);
                       b.SetPicture(ImageFile(_T("Info.gif")), Button::alignLeft, 19, 19,
                                    RGB(0, 0, 0));
                   }));
    CheckOperation("SetIcons, three icons, then SetPicture", nothing, OnButton([](Button& b) {
                       b.SetIcons(MakeIcon(), Button::alignLeft, 32, 32, MakeIcon(), MakeIcon());
                       b.SetPicture(ImageFile(_T("Info.gif")), Button::alignLeft, 19, 19,
                                    RGB(0, 0, 0));
                   }));
    CheckOperation("everything else", nothing, OnButton([](Button& b) {
                       LOGFONT font = {};
                       font.lfHeight = -12;
                       b.SetTextFont(font);
                       b.SetTextColor(RGB(1, 2, 3));
                       b.SetBorder(3);
                       b.SetFlat(TRUE);
                       b.Set3dBorder(FALSE);
                       b.SetToolTipText(_T("A tip"), "Checked");
                       b.SetCheck(BST_CHECKED);
                       Stage::Paint(b.m_hWnd);
                   }));
}

TEST_CASE("what the dialogs leave for good")
{
    CheckCycles(3, 1, nothing, [](int) { ShowDialog([](CDialogTS&) {}); });
    CheckCycles(3, 1, nothing,
                [](int) { ShowDialog([](CDialogTS& dialog) { dialog.m_bSolidFill = TRUE; }); });
    CheckCycles(3, 1, nothing, [](int) {
        ShowDialog([](CDialogTS& dialog) {
            dialog.m_bShaped = TRUE;
            dialog.m_bmpBack.Attach(LoadPictureBitmap(ImageFile(_T("Info.gif"))));
            dialog.m_bmpMask.CreateBitmap(10, 10, 1, 1, nullptr);
        });
    });
    // The supplier's bitmap stays the supplier's.
    CheckCycles(3, 1, oneBitmapACall, [](int) {
        ShowDialog([](CDialogTS& dialog) {
            dialog.m_bHasBitmap = TRUE;
            dialog.m_bCaptionText = TRUE;
            dialog.m_bmpBack.Attach(LoadPictureBitmap(ImageFile(_T("Info.gif"))));
        });
    });
    CheckCycles(3, 1, nothing, [](int) { Page(false, false, true, true, true, true); });
    CheckCycles(3, 1, nothing, [](int) { Page(true, true, false, false, false, false); });
    // The icon of a flag that another flag overrides.
    CheckCycles(3, 1, oneBitmapACall, [](int) { Page(true, false, false, true, false, false); });
    CheckCycles(3, 1, oneBitmapACall, [](int) { Page(false, true, true, false, false, true); });
    CheckOperation("ShowPicture", oneBitmapACallAndTheMask, [](int calls) {
        Page page(false, false, true, false, false, false);
        for (int i = 0; i < calls; ++i)
            page.ShowPicture(IDS_IMAGE_INFO);
        Stage::Paint(page.m_hWnd);
    });
    // The semibold label's font; two pictures and their masks.
    CheckCycles(3, 1, {1, 4, 0, 0}, [](int) { ShowModeless(); });
}

TEST_CASE("what the services leave for good")
{
    CheckCycles(50, 1, oneBitmapACall, [](int) { LoadPictureBitmap(ImageFile(_T("Info.gif"))); });
    CheckCycles(50, 1, nothing, [](int) { LoadPictureBitmap(_T("no such.gif")); });
    CheckCycles(50, 1, nothing, [](int) { LoadHandCursor(); });
    CheckCycles(50, 1, nothing, [](int) {
        int x, y, cx, cy;
        PixelsToDialogUnits(11, 20, 100, 100, &x, &y, &cx, &cy);
        DialogUnitsToPixels(6, 12, 57, 62, &x, &y, &cx, &cy);
    });
}

TEST_CASE("thousands of labels are made, painted, hovered over, pressed and destroyed")
{
    const Cycle live = OnLabel<CStaticTS>([](CStaticTS& l) { Stage::HoverAndPress(l.m_hWnd); });
    CheckCycles(CountCycles(), 1, nothing, live);
}

TEST_CASE("thousands of notes are made, painted, hovered over, pressed and destroyed")
{
    const Cycle live = OnLabel<CNoteStatic>([](CNoteStatic& l) { Stage::HoverAndPress(l.m_hWnd); });
    CheckCycles(CountCycles(), 1, nothing, live);
}

TEST_CASE("thousands of hyperlinks are made, painted, hovered over, pressed and destroyed")
{
    const Cycle live = OnLabel<CHyperLink>([](CHyperLink& l) {
        l.SetToolTipText(_T("A tip"));
        Stage::HoverAndPress(l.m_hWnd);
    });
    CheckCycles(CountCycles(), 1, nothing, live);
}

TEST_CASE("thousands of buttons are made, painted, hovered over, pressed and destroyed")
{
    const Cycle live = OnButton([](CxShadeButton& b) {
        b.SetPicture(ImageFile(_T("Info.gif")), CxShadeButton::alignLeft, 19, 19, RGB(0, 0, 0));
        Stage::HoverAndPress(b.m_hWnd);
    });
    CheckCycles(CountCycles(), 1, nothing, live);
}

TEST_CASE("thousands of dialogs are made, painted, pressed and destroyed")
{
    CheckCycles(CountCycles(), 1, nothing,
                [](int) { ShowDialog([](CDialogTS& dialog) { dialog.m_bSolidFill = TRUE; }); });
}

TEST_CASE("thousands of pages are made, painted, hovered over, pressed and destroyed")
{
    CheckCycles(CountCycles(), 1, nothing, [](int) {
        const Page page(false, false, true, true, true, true);
        Stage::HoverAndPress(::GetDlgItem(page.m_hWnd, IDC_BACK));
    });
}

TEST_CASE("thousands of modeless dialogs are made, painted and destroyed")
{
    CheckCycles(CountCycles(), 1, {1, 4, 0, 0}, [](int) { ShowModeless(); });
}
