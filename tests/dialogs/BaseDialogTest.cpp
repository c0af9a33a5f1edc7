#include "dialogs/BaseDialog.h"
#include "shell/PictureLoader.h"

#include "tests/ForeignFolder.h"
#include "tests/LibraryFiles.h"
#include "tests/dialogs/DialogChecks.h"
#include "tests/dialogs/PageTemplate.h"

#include "testing/CallFault.h"
#include "testing/Canvas.h"
#include "testing/GdiObjects.h"
#include "testing/ImportHook.h"
#include "testing/Input.h"
#include "testing/NextDialog.h"
#include "testing/Page.h"
#include "testing/Picture.h"
#include "testing/Pump.h"
#include "testing/Text.h"

#include <doctest/doctest.h>

#include <olectl.h>
#include <string>

using namespace umbra::testing;

namespace {

const COLORREF tint = RGB(180, 200, 230);

/// Looks at what a button keeps to itself.
struct ButtonProbe : CxShadeButton
{
    static HBITMAP Picture(const CxShadeButton& button)
    {
        return button.*(&ButtonProbe::m_hBitmap);
    }
    static CRect PicturePlace(const CxShadeButton& button)
    {
        return button.*(&ButtonProbe::m_rcIcon);
    }
    static COLORREF MaskColor(const CxShadeButton& button)
    {
        return button.*(&ButtonProbe::m_maskColor);
    }
    static const PaletteDib& Face(const CxShadeButton& button)
    {
        return button.*(&ButtonProbe::m_dibNormal);
    }
};

/// The arguments of the page's constructor, by name.
struct Flags
{
    bool confirm = false;
    bool ok = false;
    bool cancel = false;
    bool next = false;
    bool back = false;
    bool closeCaption = false;
    bool proceedCaption = false;
    bool cancelIcon = false;

    static Flags Of(int bits)
    {
        const auto bit = [bits](int n) { return (bits >> n & 1) != 0; };
        return {bit(0), bit(1), bit(2), bit(3), bit(4), bit(5), bit(6), bit(7)};
    }
};

/// A page that shows its members.
class TestPage : public CBaseDialog
{
public:
    explicit TestPage(const Flags& flags)
        : CBaseDialog(0, nullptr, flags.confirm, flags.ok, flags.cancel, flags.next, flags.back,
                      flags.closeCaption, flags.proceedCaption, flags.cancelIcon)
    {
    }

    using CBaseDialog::m_bBack;
    using CBaseDialog::m_bCancel;
    using CBaseDialog::m_bCancelIcon;
    using CBaseDialog::m_bCloseCaption;
    using CBaseDialog::m_bConfirm;
    using CBaseDialog::m_bNext;
    using CBaseDialog::m_bOk;
    using CBaseDialog::m_bProceedCaption;
    using CBaseDialog::m_btnBack;
    using CBaseDialog::m_btnCancel;
    using CBaseDialog::m_btnOk;
    using CBaseDialog::m_picture;
    using CBaseDialog::m_strImageDir;
};

CRect pictureAskedFor;

/// Notes where the picture is to be made, and makes it.
HWND WINAPI NotePicture(DWORD exStyle, LPCTSTR className, LPCTSTR text, DWORD style, int x, int y,
                        int width, int height, HWND parent, HMENU menu, HINSTANCE module,
                        LPVOID parameter)
{
    pictureAskedFor = CRect(CPoint(x, y), CSize(width, height));
    return ::CreateWindowEx(exStyle, className, text, style, x, y, width, height, parent, menu,
                            module, parameter);
}

/// What the rules ask of one button: not bound, or its caption ("" is the template's) and the name
/// of its icon's file ("" is none).
struct ExpectedButton
{
    bool bound = false;
    TString caption;
    TString icon;
    bool shaded = false;
};

/// The rules of the three buttons.
ExpectedButton ExpectCancel(const Flags& flags)
{
    ExpectedButton expected;
    expected.bound = true;
    if (flags.ok) {
        expected.caption = _T("OK");
        expected.icon = _T("Ok");
    }
    if (flags.cancel) {
        expected.caption = flags.closeCaption ? _T("Close") : _T("Cancel");
        if (flags.cancelIcon)
            expected.icon = _T("Close");
    }
    expected.shaded = flags.ok || flags.cancel;
    return expected;
}

ExpectedButton ExpectOk(const Flags& flags)
{
    ExpectedButton expected;
    if (!flags.confirm && !flags.next)
        return expected;
    expected.bound = true;
    expected.shaded = true;
    expected.caption =
        flags.next ? flags.proceedCaption ? _T("Proceed") : _T("Next") : _T("Confirm");
    expected.icon = flags.next ? _T("Next") : _T("Confirm");
    return expected;
}

ExpectedButton ExpectBack(const Flags& flags)
{
    ExpectedButton expected;
    if (!flags.back)
        return expected;
    return {true, _T("Back"), _T("Back"), true};
}

/// Compares an icon with its file by its pixels, drawn as the file's own would be.
bool ShowsIcon(const CxShadeButton& button, const TString& name)
{
    const HBITMAP shown = ButtonProbe::Picture(button);
    if (name.empty() || shown == nullptr)
        return name.empty() && shown == nullptr;
    const HBITMAP file = LoadPictureBitmap(ImagePath((name + _T(".gif")).c_str()).c_str());
    if (file == nullptr)
        return false;
    const bool same = Picture::OfBitmap(shown) == Picture::OfBitmap(file);
    ::DeleteObject(file);
    return same && ButtonProbe::MaskColor(button) == 0 &&
           ButtonProbe::PicturePlace(button).Size() == CSize(19, 19);
}

/// Whether the button's face is all of the host's tint.
bool IsTinted(const CxShadeButton& button)
{
    const PaletteDib& face = ButtonProbe::Face(button);
    if (!face.IsValid())
        return false;
    const RGBQUAD* palette = face.GetPalette();
    for (int i = 0; i < 256; ++i) {
        if (RGB(palette[i].rgbRed, palette[i].rgbGreen, palette[i].rgbBlue) != tint)
            return false;
    }
    return true;
}

/// The button is as the rules ask; `templateCaption` is what it has without them.
void CheckButton(const CxShadeButton& button, const ExpectedButton& expected,
                 LPCTSTR templateCaption)
{
    CHECK((button.m_hWnd != nullptr) == expected.bound);
    if (button.m_hWnd == nullptr)
        return;
    CString caption;
    button.GetWindowText(caption);
    CHECK(TString(caption) == (expected.caption.empty() ? templateCaption : expected.caption));
    CHECK(ShowsIcon(button, expected.icon));
    CHECK(IsTinted(button) == expected.shaded);
}

/// The host's settings for the length of a test.
struct HostSettings
{
    explicit HostSettings(const CString& folder = ProgramFolder().c_str())
    {
        g_strImageDir = folder;
        g_crShade = tint;
    }
};

/// The working directory at the last attempt to load a picture, and the attempts since the start.
struct PictureAttempts
{
    CString folder;
    int count = 0;
} attempts;

/// Loads the picture as it was asked for, and notes where the process is.
HRESULT WINAPI NoteAttempt(LPOLESTR path, LPUNKNOWN caller, DWORD reserved, OLE_COLOR color,
                           REFIID id, LPVOID* picture)
{
    attempts.folder = WorkingDirectory();
    ++attempts.count;
    return ::OleLoadPicturePath(path, caller, reserved, color, id, picture);
}

/// The strip as the resource has it.
Picture LoadStrip()
{
    const HBITMAP strip = ::LoadBitmap(FindModule(UMBRA_DLL), MAKEINTRESOURCE(IDB_STRIP));
    const Picture picture = Picture::OfBitmap(strip);
    ::DeleteObject(strip);
    return picture;
}

} // namespace

TEST_CASE("the flags are stored in their members, one by one")
{
    for (int flag = 0; flag < 8; ++flag) {
        const TestPage page(Flags::Of(1 << flag));
        CHECK(page.m_bConfirm == (flag == 0));
        CHECK(page.m_bOk == (flag == 1));
        CHECK(page.m_bCancel == (flag == 2));
        CHECK(page.m_bNext == (flag == 3));
        CHECK(page.m_bBack == (flag == 4));
        CHECK(page.m_bCloseCaption == (flag == 5));
        CHECK(page.m_bProceedCaption == (flag == 6));
        CHECK(page.m_bCancelIcon == (flag == 7));
    }
}

// Kept: this order differs from the order of the constructor's arguments.
TEST_CASE("the flags lie in memory in the order of the members, side by side")
{
    const TestPage page{Flags()};
    const bool* const members[] = {
        &page.m_bBack,    &page.m_bNext,         &page.m_bCancel,         &page.m_bOk,
        &page.m_bConfirm, &page.m_bCloseCaption, &page.m_bProceedCaption, &page.m_bCancelIcon};
    for (size_t i = 0; i < std::size(members); ++i)
        CHECK(members[i] == members[0] + i);
}

TEST_CASE("all 256 combinations of flags bind, caption, shade and decorate as the rules say")
{
    const HostSettings settings;
    for (int bits = 0; bits < 256; ++bits) {
        CAPTURE(bits);
        const Flags flags = Flags::Of(bits);
        TestPage dialog(flags);
        // The template has just the controls that these flags need.
        const Page page(dialog, MakePageTemplate(flags.confirm || flags.next, flags.back));
        REQUIRE(page.IsOpen());
        // Kept: "OK" is a caption of the IDCANCEL button.
        CheckButton(dialog.m_btnCancel, ExpectCancel(flags), _T("template cancel"));
        CheckButton(dialog.m_btnOk, ExpectOk(flags), _T("template ok"));
        CheckButton(dialog.m_btnBack, ExpectBack(flags), _T("template back"));
    }
}

TEST_CASE("a template that lacks a bound control fails in the exchange")
{
    const HostSettings settings;
    Flags flags;
    flags.cancel = true;
    flags.back = true;
    TestPage dialog(flags);
    const DialogTemplate source = MakePageTemplate(true, false);
    NextDialog noMessage([](HWND box) { ::EndDialog(box, IDOK); });
    dialog.CreateIndirect(source.Get());
    CHECK(dialog.m_btnBack.m_hWnd == nullptr);
    if (dialog.m_hWnd != nullptr)
        dialog.DestroyWindow();
}

TEST_CASE("a page whose exchange fails is set up all the same, and answers TRUE")
{
    class FailingPage : public TestPage
    {
    public:
        explicit FailingPage(const Flags& flags) : TestPage(flags) {}
        BOOL m_answer = -1;
        CString m_caption;
        bool m_isTinted = false;

    protected:
        void DoDataExchange(CDataExchange* pDX) override
        {
            TestPage::DoDataExchange(pDX);
            pDX->Fail();
        }
        BOOL OnInitDialog() override
        {
            m_answer = TestPage::OnInitDialog();
            m_btnCancel.GetWindowText(m_caption);
            m_isTinted = IsTinted(m_btnCancel);
            return m_answer;
        }
    };
    const HostSettings settings;
    Flags flags;
    flags.cancel = true;
    FailingPage dialog(flags);
    const DialogTemplate source = MakePageTemplate();
    dialog.CreateIndirect(source.Get());
    CHECK(dialog.m_answer == TRUE);
    CHECK(TString(dialog.m_strImageDir) == ProgramFolder() + _T("\\"));
    CHECK(dialog.m_caption == _T("Cancel"));
    CHECK(dialog.m_isTinted);
    if (dialog.m_hWnd != nullptr)
        dialog.DestroyWindow();
}

TEST_CASE("with all flags off the template's captions stay, without shade or icon")
{
    const HostSettings settings;
    TestPage dialog{Flags()};
    const Page page(dialog, MakePageTemplate());
    REQUIRE(page.IsOpen());
    CHECK(dialog.m_btnCancel.m_hWnd != nullptr);
    CHECK(dialog.m_btnOk.m_hWnd == nullptr);
    CHECK(dialog.m_btnBack.m_hWnd == nullptr);
    CHECK(page.Text(IDCANCEL) == _T("template cancel"));
    CHECK(page.Text(IDOK) == _T("template ok"));
    CHECK_FALSE(ButtonProbe::Face(dialog.m_btnCancel).IsValid());
}

TEST_CASE("the image folder ends with one backslash, given or not")
{
    for (LPCTSTR folder : {_T("C:\\app"), _T("C:\\app\\")}) {
        const HostSettings settings(folder);
        TestPage dialog{Flags()};
        const Page page(dialog, MakePageTemplate());
        REQUIRE(page.IsOpen());
        CHECK(dialog.m_strImageDir == _T("C:\\app\\"));
        CHECK(g_strImageDir == folder);
    }
}

TEST_CASE("missing images leave the buttons without icons and the picture empty")
{
    const HostSettings settings(_T("C:\\no such folder"));
    Flags flags;
    flags.confirm = flags.cancel = flags.back = flags.cancelIcon = true;
    TestPage dialog(flags);
    const Page page(dialog, MakePageTemplate());
    REQUIRE(page.IsOpen());
    CHECK(ButtonProbe::Picture(dialog.m_btnOk) == nullptr);
    CHECK(ButtonProbe::Picture(dialog.m_btnCancel) == nullptr);
    CHECK(ButtonProbe::Picture(dialog.m_btnBack) == nullptr);
    CHECK(IsTinted(dialog.m_btnOk));
    dialog.ShowPicture(IDS_IMAGE_INFO);
    CHECK_FALSE(dialog.m_picture.m_bHasPicture);
    CHECK(dialog.m_picture.IsWindowVisible());
}

TEST_CASE("a shown picture is a visible child near its place, keyed black, with the working "
          "directory put back")
{
    const HostSettings settings;
    TestPage dialog{Flags()};
    const Page page(dialog, MakePageTemplate());
    REQUIRE(page.IsOpen());
    const CString before = WorkingDirectory();
    dialog.ShowPicture(IDS_IMAGE_INFO);
    CHECK(WorkingDirectory() == before);

    CHECK(dialog.m_picture.GetParent() == &dialog);
    CHECK(dialog.m_picture.IsWindowVisible());
    CHECK(dialog.m_picture.GetDlgCtrlID() == 0xFFFF);
    CHECK(dialog.m_picture.m_bHasPicture);
    CHECK(dialog.m_picture.m_crTransparent == 0);
    CHECK((dialog.m_picture.GetStyle() & 0x1FFF) == 0);

    // The label snaps to the dialog-unit grid: each value moves by less than one grid step.
    CRect place;
    dialog.m_picture.GetWindowRect(&place);
    dialog.ScreenToClient(&place);
    CHECK(abs(place.left - 540) < 4);
    CHECK(abs(place.top - 15) < 4);
    CHECK(abs(place.Width() - 80) < 4);
    CHECK(abs(place.Height() - 100) < 4);
}

TEST_CASE("the picture is asked for in its box, before it snaps to the grid")
{
    const HostSettings settings;
    TestPage dialog{Flags()};
    const DialogTemplate source = MakePageTemplate();
    Page page(dialog, source);
    pictureAskedFor.SetRectEmpty();
    const ImportHook creation(FindModule(UMBRA_MFC_DLL), "user32", TEXT_FUNCTION("CreateWindowEx"),
                              NotePicture);
    REQUIRE(creation.IsInstalled());
    dialog.ShowPicture(IDS_IMAGE_INFO);
    CHECK(pictureAskedFor == CRect(540, 15, 620, 115));
}

TEST_CASE("data is exchanged before the image folder is taken over")
{
    const HostSettings settings;
    class Exchanging : public TestPage
    {
    public:
        using TestPage::TestPage;
        void DoDataExchange(CDataExchange* pDX) override
        {
            m_folderThen = m_strImageDir;
            TestPage::DoDataExchange(pDX);
        }
        CString m_folderThen = _T("not exchanged");
    } dialog{Flags()};
    const DialogTemplate source = MakePageTemplate();
    const Page page(dialog, source);
    CHECK(dialog.m_folderThen == _T(""));
    CHECK(dialog.m_strImageDir != _T(""));
}

TEST_CASE("a picture is loaded with the image folder as the working directory")
{
    const HostSettings settings;
    TestPage dialog{Flags()};
    const Page page(dialog, MakePageTemplate());
    REQUIRE(page.IsOpen());
    REQUIRE(TString(WorkingDirectory()) != ProgramFolder());
    const ImportHook loads(FindModule(UMBRA_DLL), "oleaut32", "OleLoadPicturePath", NoteAttempt);
    REQUIRE(loads.IsInstalled());
    attempts = {};
    dialog.ShowPicture(IDS_IMAGE_INFO);
    CHECK(attempts.count == 1);
    CHECK(TString(attempts.folder) == ProgramFolder());
    CHECK(TString(WorkingDirectory()) != ProgramFolder());
}

TEST_CASE("the page shows through the black of a picture, the first and each further one")
{
    const HostSettings settings;
    TestPage dialog{Flags()};
    Page page(dialog, MakePageTemplate());
    REQUIRE(page.IsOpen());
    for (const UINT id : {IDS_IMAGE_INFO, IDS_IMAGE_ERROR}) {
        CAPTURE(id);
        dialog.ShowPicture(id);
        CHECK(dialog.m_picture.m_bmpMask.GetSafeHandle() != nullptr);
        CRect place;
        dialog.m_picture.GetWindowRect(&place);
        dialog.ScreenToClient(&place);
        dialog.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
        const Picture shown = page.Show().Crop(place);
        CHECK_FALSE(shown.Contains(RGB(0, 0, 0)));
        CHECK(shown.Contains(::GetSysColor(COLOR_BTNFACE)));
        CHECK(shown.CountOf(::GetSysColor(COLOR_BTNFACE)) < shown.Width() * shown.Height());
    }
}

TEST_CASE("pictures of buttons and page are found in an image folder beyond ASCII")
{
    const ForeignFolder folder;
    REQUIRE(folder.IsThere());
    const HostSettings settings(folder.Path().c_str());
    Flags flags;
    flags.confirm = flags.cancel = flags.back = flags.cancelIcon = true;
    TestPage dialog(flags);
    const Page page(dialog, MakePageTemplate());
    REQUIRE(page.IsOpen());
    CHECK(ShowsIcon(dialog.m_btnOk, _T("Confirm")));
    CHECK(ShowsIcon(dialog.m_btnCancel, _T("Close")));
    CHECK(ShowsIcon(dialog.m_btnBack, _T("Back")));
    dialog.ShowPicture(IDS_IMAGE_INFO);
    CHECK(dialog.m_picture.m_bHasPicture);
}

TEST_CASE("a second picture of one dialog window goes into the same label")
{
    const HostSettings settings;
    TestPage dialog{Flags()};
    const Page page(dialog, MakePageTemplate());
    REQUIRE(page.IsOpen());
    dialog.ShowPicture(IDS_IMAGE_INFO);
    const HWND label = dialog.m_picture.m_hWnd;
    dialog.ShowPicture(IDS_IMAGE_ERROR);
    CHECK(dialog.m_picture.m_hWnd == label);
}

TEST_CASE("a page shows the strip at its corner, neither stretched nor tiled")
{
    const HostSettings settings;
    TestPage dialog{Flags()};
    Page page(dialog, MakePageTemplate());
    REQUIRE(page.IsOpen());
    const Picture strip = LoadStrip();
    REQUIRE(strip.Width() == 72);
    REQUIRE(strip.Height() == 367);

    const Picture shown = page.Show();
    const int height = min(strip.Height(), shown.Height());
    CHECK(shown.Crop({0, 0, 72, height}).Compare(strip.Crop({0, 0, 72, height})) == "the same");
    // Right of the strip there is only the system's dialog colour.
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    CHECK(shown.Crop({72, 0, 200, height}).CountOf(face) == 128 * height);
}

TEST_CASE("a page's own OnPaint is the one that runs, without a map entry of its own")
{
    class OwnPaint : public TestPage
    {
    public:
        OwnPaint() : TestPage(Flags()) {}
        int m_paints = 0;

    protected:
        void OnPaint() override
        {
            ++m_paints;
            CPaintDC dc(this);
            dc.FillSolidRect(0, 0, 50, 50, RGB(1, 2, 3));
        }
    };
    const HostSettings settings;
    OwnPaint dialog;
    Page page(dialog, MakePageTemplate());
    REQUIRE(page.IsOpen());
    const Picture shown = page.Show();
    CHECK(dialog.m_paints > 0);
    CHECK(shown.At(10, 10) == RGB(1, 2, 3));
    CHECK(shown.At(60, 10) == ::GetSysColor(COLOR_BTNFACE));
}

TEST_CASE("the strip is loaded anew at every paint and leaves nothing behind")
{
    const HostSettings settings;
    TestPage dialog{Flags()};
    Page page(dialog, MakePageTemplate());
    REQUIRE(page.IsOpen());
    page.Show();
    const CountCalls loads(FindModule(UMBRA_MFC_DLL), "user32", TEXT_FUNCTION("LoadBitmap"));
    REQUIRE(loads.IsInstalled());
    CheckNothingStays(
        [&dialog] {
            dialog.Invalidate();
            dialog.UpdateWindow();
        },
        20);
    CHECK(loads.Calls() == 1 + 20);
}

TEST_CASE("a page shades buttons of its own like the standard ones")
{
    const HostSettings settings;
    TestPage dialog{Flags()};
    const Page page(dialog, MakePageTemplate());
    REQUIRE(page.IsOpen());
    CxShadeButton own;
    REQUIRE(own.SubclassDlgItem(IDOK, &dialog));
    dialog.ApplyButtonShade(own);
    CHECK(IsTinted(own));
}

TEST_CASE("the standard buttons end a page as their ids say")
{
    const HostSettings settings;
    Flags flags;
    flags.next = flags.cancel = true;
    for (const int id : {IDOK, IDCANCEL}) {
        TestPage dialog(flags);
        const DialogTemplate source = MakePageTemplate();
        REQUIRE(dialog.InitModalIndirect(source.Get()));
        NextDialog press([id](HWND box) { Page(box).Click(id); });
        CHECK(dialog.DoModal() == id);
        CHECK(press.HasRun());
    }
}

TEST_CASE("a page leaves no graphics object behind")
{
    const HostSettings settings;
    CheckNothingStays([] {
        Flags flags;
        flags.confirm = flags.cancel = flags.back = flags.cancelIcon = true;
        TestPage dialog(flags);
        Page page(dialog, MakePageTemplate());
        page.Show();
    });
}
