#include "controls/StaticTS.h"

#include "tests/BitmapFile.h"
#include "tests/controls/LabelChecks.h"

#include "units/DialogUnits.h"
#include "shell/HandCursor.h"

#include "testing/MessageLog.h"
#include "testing/Pump.h"
#include "testing/Text.h"

using namespace umbra::testing;

namespace {

using Label = LabelOver<CStaticTS>;

/// A bitmap file of `width` by `height` pixels; the left half black, the right half red.
TString WriteHalfBlackBmp(LPCTSTR name, int width, int height)
{
    const TString path = TemporaryPath(name);
    const auto colorAt = [=](int x, int) { return x < width / 2 ? black : red; };
    REQUIRE(WriteBytes(path, MakeBitmapFile(width, height, colorAt, height)));
    return path;
}

/// How many pixels of the area have the colour.
int CountIn(const Picture& picture, COLORREF color, const CRect& area)
{
    return picture.Crop(area).CountOf(color);
}

} // namespace

TEST_CASE("a new label is plain: black centred text, no link, no picture, no colours of its own")
{
    const CStaticTS label;
    CHECK(label.m_strLinkTarget.IsEmpty());
    CHECK_FALSE(label.m_bTransparent);
    CHECK_FALSE(label.m_bHasPicture);
    CHECK_FALSE(label.m_bEmbossed);
    CHECK(label.m_bOwnFont == 1);
    CHECK(label.m_bStyleAlign == 1);
    CHECK(label.m_crText == RGB(0, 0, 0));
    CHECK(label.m_crBack == 0xFFFFFFFF);
    CHECK(label.m_crTransparent == 0xFFFFFFFF);
    CHECK(label.m_brBack.GetSafeHandle() == nullptr);
    CHECK(label.m_bmpPicture.GetSafeHandle() == nullptr);
    CHECK(label.m_bmpMask.GetSafeHandle() == nullptr);
    CHECK(label.m_nTextFormat == 1);
    CHECK_FALSE(label.m_bLink);
    CHECK_FALSE(label.m_bUseLinkTarget);
}

TEST_CASE("text is drawn in its colour over what the parent drew")
{
    Label label(_T("Hello there"));
    label.control.SetLabelTextColor(red);
    const Picture shown = label.host.Show();
    CHECK(CountIn(shown, red, labelPlace) > 20);
    CHECK(CountIn(shown, green, labelPlace) > labelPlace.Width() * labelPlace.Height() / 2);
    CHECK(CountIn(shown, red, CRect(0, 0, 500, 400)) == CountIn(shown, red, labelPlace));
}

TEST_CASE("an empty label paints nothing")
{
    Label label(_T(""));
    const Picture shown = label.host.Show();
    CHECK(shown.CountOf(green) == shown.Width() * shown.Height());
}

TEST_CASE(
    "text starts one pixel right of and below the corner of the label's window, border or not")
{
    for (const DWORD style : {DWORD{0}, DWORD{WS_BORDER}, DWORD{WS_DLGFRAME}}) {
        CAPTURE(style);
        Label label(_T("Left text"), SS_NOTIFY | SS_LEFT | style);
        label.control.SetLabelTextColor(red);
        CheckTextIsDrawnAs(label, FontOf(label.control), red, CSize(1, 1), DT_LEFT | DT_WORDBREAK);
    }
}

// Kept: the style is taken bit by bit, not as a type of static control.
TEST_CASE("the alignment follows the style, bit by bit")
{
    struct Case
    {
        DWORD style;
        UINT format;
    };
    for (const Case& expected :
         {Case{SS_LEFT, DT_LEFT}, Case{SS_CENTER, DT_CENTER}, Case{SS_RIGHT, DT_RIGHT},
          Case{SS_ICON, DT_CENTER}, Case{0xE, DT_RIGHT}, Case{SS_LEFTNOWORDWRAP, DT_LEFT}}) {
        CAPTURE(expected.style);
        Label label(_T("Text"), SS_NOTIFY);
        label.control.ModifyStyle(SS_TYPEMASK, expected.style);
        label.control.SetWindowText(_T("Text"));
        label.host.Show();
        CString text;
        label.control.GetWindowText(text);
        if (text.IsEmpty())
            continue; // The system's own icon control keeps no text.
        CHECK(label.control.m_nTextFormat == expected.format);
    }
}

TEST_CASE("left, centred and right text stand at their sides")
{
    const auto bounds = [](DWORD style) {
        Label label(_T("Text"), SS_NOTIFY | style);
        const Picture shown = label.host.Show();
        return CRect(shown.BoundsOfOthers(green));
    };
    const CRect left = bounds(SS_LEFT), centre = bounds(SS_CENTER), right = bounds(SS_RIGHT);
    CHECK(left.left - labelPlace.left < 6);
    CHECK(labelPlace.right + 1 - right.right < 6);
    CHECK(abs((centre.left + centre.right) - (labelPlace.left + labelPlace.right + 2)) < 6);
}

TEST_CASE("an alignment that was set by hand stays when the style is not to decide")
{
    Label label(_T("Text"), SS_NOTIFY | SS_LEFT);
    label.control.m_bStyleAlign = FALSE;
    label.control.m_nTextFormat = DT_RIGHT;
    const CRect text = CRect(label.host.Show().BoundsOfOthers(green));
    CHECK(labelPlace.right + 1 - text.right < 6);
}

TEST_CASE("etched text is a shadow with a light copy one pixel right of and below it")
{
    Label label(_T("I"), SS_NOTIFY | SS_LEFT);
    label.control.SetEmbossed(TRUE);
    label.control.SetLabelTextColor(red);
    const Picture shown = label.host.Show();
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF shadow = ::GetSysColor(COLOR_BTNSHADOW);
    CHECK_FALSE(shown.Contains(red));
    REQUIRE(shown.Contains(shadow));
    REQUIRE(shown.Contains(light));
    for (int y = 0; y + 1 < shown.Height(); ++y) {
        for (int x = 0; x + 1 < shown.Width(); ++x) {
            if (shown.At(x, y) != shadow)
                continue;
            const COLORREF behind = shown.At(x + 1, y + 1);
            CHECK((behind == light || behind == shadow));
        }
    }
}

TEST_CASE("etched text ignores the text colour, for a link as well")
{
    Label label(_T("Etched"), SS_NOTIFY);
    label.control.SetLink(TRUE);
    label.control.SetEmbossed(TRUE);
    CHECK_FALSE(label.host.Show().Contains(blue));
}

TEST_CASE("a link is underlined and blue; made plain again it stays blue")
{
    Label label(_T("Link"));
    const HFONT before = FontOf(label.control);
    label.control.SetLink(TRUE);
    CHECK(label.control.m_bLink);
    CHECK(FontOf(label.control) != before);
    CHECK(DescribeFont(label.control).lfUnderline != 0);
    CHECK(label.control.m_crText == blue);
    CHECK(label.host.Show().Contains(blue));

    label.control.SetLink(FALSE);
    CHECK_FALSE(label.control.m_bLink);
    CHECK(DescribeFont(label.control).lfUnderline == 0);
    CHECK(label.control.m_crText == blue);
}

TEST_CASE("making a link changes nothing but the underline of the font")
{
    Label label(_T("Link"));
    const LOGFONT before = DescribeFont(label.control);
    label.control.SetLink(TRUE);
    CheckOnlyUnderlineDiffers(before, DescribeFont(label.control));
}

// Kept: the font stays the control's for good; nobody deletes it.
TEST_CASE("each change between link and plain label leaves one font behind")
{
    Label label(_T("Text"));
    label.control.SetLink(TRUE);
    const HFONT first = FontOf(label.control);
    const BalancedGdi objects;
    for (int i = 0; i < 4; ++i)
        label.control.SetLink(i % 2);
    CHECK(objects.Describe() == "fonts +4");
    CHECK(::GetObjectType(first) == OBJ_FONT);
}

TEST_CASE("a font given to a label is copied with the label's underline, and paints derive theirs")
{
    Label label(_T("Text"));
    label.control.SetLink(TRUE);
    CFont font;
    font.CreateFont(-20, 0, 0, 0, FW_BOLD, FALSE, FALSE, FALSE, ANSI_CHARSET, 0, 0, 0, 0,
                    _T("Arial"));
    label.control.SetLabelFont(font);
    CHECK_FALSE(label.control.m_bOwnFont);
    const LOGFONT shown = DescribeFont(label.control);
    CHECK(shown.lfHeight == -20);
    CHECK(shown.lfWeight == FW_BOLD);
    CHECK(shown.lfUnderline != 0);
    CHECK(FontOf(label.control) != static_cast<HFONT>(font));
}

TEST_CASE(
    "with a font of its own each paint decides the underline, whatever the control's font has")
{
    CFont plain, underlined;
    plain.CreateFont(-20, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, ANSI_CHARSET, 0, 0, 0, 0,
                     _T("Arial"));
    underlined.CreateFont(-20, 0, 0, 0, FW_NORMAL, FALSE, TRUE, FALSE, ANSI_CHARSET, 0, 0, 0, 0,
                          _T("Arial"));
    Label label(_T("Text"), SS_NOTIFY | SS_LEFT);
    label.control.SetLink(TRUE);
    label.control.SetLabelFont(plain);
    label.control.SetFont(&plain); // The host's own word, past the label.
    CheckTextIsDrawnAs(label, underlined, blue, CSize(1, 1), DT_LEFT | DT_WORDBREAK);

    Label other(_T("Text"), SS_NOTIFY | SS_LEFT);
    other.control.SetLabelFont(underlined);
    other.control.SetFont(&underlined);
    other.control.SetLabelTextColor(red);
    CheckTextIsDrawnAs(other, plain, red, CSize(1, 1), DT_LEFT | DT_WORDBREAK);
}

// Kept: made anew at every paint and never deleted.
TEST_CASE("each paint of a label with a given font leaves one font behind, others leave nothing")
{
    Label label(_T("Text"));
    label.host.Show();
    CheckPaintsLeaveNothing(label);
    label.control.SetLabelFont(label.host.m_font);
    label.host.Show();
    const BalancedGdi objects;
    for (int i = 0; i < 10; ++i)
        label.Repaint();
    CHECK(objects.Growth() == 10);
    CHECK(objects.Describe() == "fonts +10");
}

TEST_CASE("setting the text colour repaints the parent under the label, without erasing")
{
    Label label(_T("Text"));
    label.host.ModifyStyle(WS_CLIPCHILDREN, 0); // An erase would not reach what lies under it.
    label.host.Show();
    REQUIRE_FALSE(label.host.GetUpdateRect(nullptr));
    label.control.SetLabelTextColor(red);
    CRect update;
    CHECK(label.host.GetUpdateRect(&update));
    CHECK(labelPlace.PtInRect(update.TopLeft()));
    const MessageLog log(label.host.m_hWnd);
    label.host.UpdateWindow();
    CHECK(log.Contains(WM_PAINT));
    CHECK_FALSE(log.Contains(WM_ERASEBKGND));
}

TEST_CASE("an opaque picture is copied unscaled into the label, with the text over it")
{
    const TString path = WriteHalfBlackBmp(_T("umbra-label.bmp"), 60, 300);
    Label label(_T("Text"), SS_NOTIFY | SS_RIGHT);
    label.control.SetLabelTextColor(blue);
    CHECK(label.control.LoadPicture(path.c_str()) == TRUE);
    CHECK(label.control.m_bHasPicture);
    CHECK(label.control.m_bmpMask.GetSafeHandle() == nullptr);
    const Picture shown = label.host.Show().Crop(labelPlace);
    CHECK(shown.Crop(CRect(0, 0, 30, 40)).CountOf(black) == 30 * 40);
    CHECK(shown.Crop(CRect(30, 0, 60, 40)).CountOf(red) == 30 * 40);
    CHECK(shown.Contains(blue));
    ::DeleteFile(path.c_str());
}

TEST_CASE("a keyed picture lets the parent show through its key colour")
{
    const TString path = WriteHalfBlackBmp(_T("umbra-label.bmp"), 48, 30);
    Label label(_T(""));
    label.control.SetTransparentColor(black);
    CHECK(label.control.LoadPicture(path.c_str()) == TRUE);
    CHECK(label.control.m_bmpMask.GetSafeHandle() != nullptr);
    const Picture shown = label.host.Show().Crop(labelPlace);
    CHECK(shown.CountOf(red) == 24 * 30);
    CHECK(shown.Crop(CRect(0, 0, 24, 30)).CountOf(green) == 24 * 30);
    ::DeleteFile(path.c_str());
}

TEST_CASE("a picture is found under a path beyond ASCII")
{
    CheckPictureBeyondAscii<CStaticTS>(&CStaticTS::LoadPicture);
}

// Kept: a keyed picture is drawn through a block of this size, whatever its own.
TEST_CASE("a keyed picture larger than 200 pixels is cut there")
{
    const TString path = WriteHalfBlackBmp(_T("umbra-label.bmp"), 260, 240);
    Label label(_T(""), SS_NOTIFY, CRect(10, 10, 310, 310));
    label.control.SetTransparentColor(black);
    label.control.LoadPicture(path.c_str());
    const Picture shown = label.host.Show().Crop(CRect(10, 10, 310, 310));
    CHECK(shown.CountOf(red) == (200 - 130) * 200);
    CHECK(shown.At(199, 199) == red);
    CHECK(shown.At(200, 0) == green);
    CHECK(shown.At(199, 200) == green);
    ::DeleteFile(path.c_str());
}

TEST_CASE("a key colour set after the picture builds no mask, it waits for the next one")
{
    CheckLaterKeyWaits<CStaticTS>(&CStaticTS::LoadPicture);
}

TEST_CASE("a picture that does not load changes nothing and still answers TRUE")
{
    CheckMissingPictureChangesNothing<CStaticTS>(&CStaticTS::LoadPicture);
}

TEST_CASE("a picture needs its file no more once it is loaded")
{
    const TString path = WriteHalfBlackBmp(_T("umbra-label.bmp"), 48, 30);
    Label label(_T(""));
    label.control.LoadPicture(path.c_str());
    REQUIRE(::DeleteFile(path.c_str()));
    CHECK(label.control.m_bHasPicture);
    CHECK(label.host.Show().Contains(red));
}

TEST_CASE("a replaced picture and the bitmaps of a label that is gone are left")
{
    CheckBitmapsOutlive<CStaticTS>(&CStaticTS::LoadPicture);
}

TEST_CASE("colour requests are answered with the null brush, a solid one, or nothing")
{
    Label label(_T("Text"));
    CClientDC dc(&label.host);
    const auto ask = [&] {
        return reinterpret_cast<HBRUSH>(
            label.host.SendMessage(WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.GetSafeHdc()),
                                   reinterpret_cast<LPARAM>(label.control.m_hWnd)));
    };
    const HBRUSH parents = ask();
    CHECK(label.control.m_brBack.GetSafeHandle() == nullptr);
    CHECK(parents != nullptr);

    label.control.SetBackColor(red);
    const HBRUSH solid = ask();
    LOGBRUSH description = {};
    ::GetObject(solid, sizeof(description), &description);
    CHECK(description.lbStyle == BS_SOLID);
    CHECK(description.lbColor == red);
    CHECK(dc.GetBkColor() == red);

    label.control.SetTransparent(TRUE);
    CHECK(ask() == ::GetStockObject(NULL_BRUSH));
    CHECK(dc.GetBkMode() == TRANSPARENT);
    CHECK(::GetObjectType(solid) != OBJ_BRUSH); // The former brush is gone.

    label.control.SetLink(TRUE);
    ask();
    CHECK(dc.GetTextColor() == blue);
}

TEST_CASE("erasing is claimed done without drawing")
{
    Label label(_T("Text"));
    CClientDC dc(&label.host);
    CHECK(label.control.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.GetSafeHdc())) == 1);
}

TEST_CASE("a click on a link opens its trimmed text, shown normally")
{
    const ShellSpy shell;
    REQUIRE(shell.IsInstalled());
    Label label(_T("  http://example.invalid/a b \t"));
    label.control.SetLink(TRUE);
    label.host.Show();
    CHECK(Click(label.control.m_hWnd));
    REQUIRE(shell.Asked().size() == 1);
    CHECK(shell.Asked()[0].target == _T("http://example.invalid/a b"));
    CHECK(shell.Asked()[0].show == SW_SHOWNORMAL);
}

TEST_CASE("a stored target is opened instead of the text once it is to be used")
{
    const ShellSpy shell;
    Label label(_T("The text"));
    label.control.SetLink(TRUE);
    label.control.m_strLinkTarget = _T("stored");
    label.Press();
    label.control.SetLinkTarget(_T(" the target "));
    label.Press();
    REQUIRE(shell.Asked().size() == 2);
    CHECK(shell.Asked()[0].target == _T("The text"));
    CHECK(shell.Asked()[1].target == _T("the target"));
}

TEST_CASE(
    "a plain label and a link without text open nothing; the parent is repainted all the same")
{
    const ShellSpy shell;
    Label plain(_T("Text"));
    plain.host.Show();
    plain.Press();
    CHECK(plain.host.GetUpdateRect(nullptr));

    Label empty(_T(""));
    empty.control.SetLink(TRUE);
    empty.host.Show();
    empty.Press();
    CHECK(empty.host.GetUpdateRect(nullptr));
    CHECK(shell.Asked().empty());
}

// Kept: links of this class fall back to this type's program, web addresses included.
TEST_CASE("what the shell cannot open goes to the toolkit's own document type, web addresses too")
{
    const RegisteredClass extension(_T(".QVXLog"), _T("umbra.log"));
    const RegisteredClass command(_T("umbra.log\\shell\\open\\command"),
                                  _T("viewer.exe \"%1\" /x"));
    const ShellSpy shell(32);
    Label label(_T("http://example.invalid/"));
    label.control.SetLink(TRUE);
    label.Press();
    REQUIRE(shell.Run().size() == 1);
    CHECK(shell.Run()[0].target == _T("viewer.exe  http://example.invalid/"));
    CHECK(shell.Run()[0].show == SW_SHOWNORMAL);
}

TEST_CASE("a control without SS_NOTIFY is transparent to the real pointer")
{
    const ShellSpy shell;
    Label label(_T("Text"), 0);
    label.control.SetLink(TRUE);
    label.host.Show();
    Click(label.host.m_hWnd, {labelPlace.left + 5, labelPlace.top + 5});
    CHECK(shell.Asked().empty());
}

TEST_CASE("the hand shows over a link with text; elsewhere the handler leaves the cursor alone")
{
    REQUIRE(help.IsInstalled());
    const HCURSOR cross = ::LoadCursor(nullptr, IDC_CROSS);
    Label plain(_T("Text"));
    CHECK(plain.AskCursor() == FALSE);
    CHECK(::GetCursor() == cross);

    Label empty(_T(""));
    empty.control.SetLink(TRUE);
    empty.control.SetLinkTarget(_T("somewhere"));
    CHECK(empty.AskCursor() == FALSE);
    CHECK(::GetCursor() == cross);

    Label link(_T("Text"));
    link.control.SetLink(TRUE);
    CHECK(link.AskCursor() == TRUE);
    REQUIRE(LoadHandCursor() != nullptr);
    CHECK(::GetCursor() == LoadHandCursor());
}

TEST_CASE("10,000 pointer moves over a link leave nothing behind")
{
    Label link(_T("Text"));
    link.control.SetLink(TRUE);
    CheckMovesLeaveNothing(link);
}

TEST_CASE("a label made through its class lies on the dialog-unit grid")
{
    LabelHost host;
    CStaticTS label;
    REQUIRE(label.Create(_T("Text"), WS_VISIBLE, CRect(103, 59, 314, 156), &host, 7));
    int x, y, cx, cy;
    PixelsToDialogUnits(103, 59, 211, 97, &x, &y, &cx, &cy);
    DialogUnitsToPixels(x, y, cx, cy, &x, &y, &cx, &cy);
    CRect place;
    label.GetWindowRect(&place);
    host.ScreenToClient(&place);
    CHECK(place == CRect(x, y, x + cx, y + cy));
    CHECK(host.GetTopWindow() == &label);
}

TEST_CASE("a label over a control of a template keeps its place")
{
    Label label(_T("Text"), SS_NOTIFY, CRect(103, 59, 314, 156));
    CRect place;
    label.control.GetWindowRect(&place);
    label.host.ScreenToClient(&place);
    CHECK(place == CRect(103, 59, 314, 156));
}

TEST_CASE("long texts and odd targets do no harm")
{
    const ShellSpy shell(2);
    Label label(_T(""));
    label.control.SetLink(TRUE);
    for (const TString& text :
         {TString(65536, 'w'), TString(_T("a\x01\x02\r\n\tb")), TString(_T("\x83\x25\x83")),
          TString(300, '%'), TString(_T("   "))}) {
        label.control.SetWindowText(text.c_str());
        label.host.Show();
        label.Press();
    }
    CHECK(shell.Asked().size() == 5);
    CHECK(shell.Asked()[0].target.size() == 65536);
    CHECK(shell.Asked()[4].target.empty());
    CHECK(shell.Run().empty());
}

TEST_CASE("a control without a font can be made a link and painted")
{
    LabelHost host;
    CStaticTS label;
    REQUIRE(label.SubclassWindow(host.AddStatic(labelPlace, _T("Text"))));
    label.SendMessage(WM_SETFONT, 0, FALSE);
    label.SetLink(TRUE);
    CHECK(host.Show().Contains(blue));
}

TEST_CASE("a label whose creation the system refuses is not there, and is not moved")
{
    class RefusedLabel : public CStaticTS
    {
    public:
        int m_moves = 0;
        CPoint m_asked;

    protected:
        LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_WINDOWPOSCHANGING)
                ++m_moves;
            if (message != WM_CREATE)
                return CStaticTS::DefWindowProc(message, wParam, lParam);
            const CREATESTRUCT& creation = *reinterpret_cast<CREATESTRUCT*>(lParam);
            m_asked = CPoint(creation.x, creation.y);
            return -1;
        }
    };

    LabelHost host;
    RefusedLabel label;
    CHECK_FALSE(label.Create(_T("Text"), WS_CHILD | WS_VISIBLE, CRect(11, 20, 111, 120), &host));
    CHECK(label.GetSafeHwnd() == nullptr);
    CHECK(label.m_moves == 0);
    int x, y, cx, cy;
    PixelsToDialogUnits(11, 20, 100, 100, &x, &y, &cx, &cy);
    DialogUnitsToPixels(x, y, cx, cy, &x, &y, &cx, &cy);
    CHECK(label.m_asked == CPoint(x, y)); // Snapped before the system was asked.
}
