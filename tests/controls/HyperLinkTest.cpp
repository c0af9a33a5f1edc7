#include "controls/HyperLink.h"

#include "tests/controls/LabelChecks.h"
#include "tests/controls/RelayLog.h"

#include "shell/HandCursor.h"

#include "testing/Pump.h"
#include "testing/Text.h"

#include <vector>

using namespace umbra::testing;

namespace {

/// A link that shows its members.
class TestLink : public CHyperLink
{
public:
    using CHyperLink::m_bBitmapLoaded;
    using CHyperLink::m_bIsLink;
    using CHyperLink::m_bmpMask;
    using CHyperLink::m_bmpPicture;
    using CHyperLink::m_bToolTip;
    using CHyperLink::m_crText;
    using CHyperLink::m_crTransparent;
    using CHyperLink::m_nBitmapHeight;
    using CHyperLink::m_nBitmapWidth;
    using CHyperLink::m_strURL;
    using CHyperLink::m_ToolTip;
};

using Link = LabelOver<TestLink>;

/// The text of the link's tool tip.
TString TipText(TestLink& link)
{
    TCHAR text[256] = _T("");
    TOOLINFO tool = {};
    tool.cbSize = TTTOOLINFOA_V1_SIZE;
    tool.hwnd = link.m_hWnd;
    tool.uId = 1;
    tool.lpszText = text;
    link.m_ToolTip.SendMessage(TTM_GETTEXT, 0, reinterpret_cast<LPARAM>(&tool));
    return text;
}

/// The messages that are sent to tool tips of this thread while it lives, those of their creation
/// included.
class ToolTipMessages
{
public:
    ToolTipMessages()
    {
        All().clear();
        m_hook = ::SetWindowsHookEx(WH_CALLWNDPROC, Note, nullptr, ::GetCurrentThreadId());
    }
    ~ToolTipMessages() { ::UnhookWindowsHookEx(m_hook); }
    ToolTipMessages(const ToolTipMessages&) = delete;
    ToolTipMessages& operator=(const ToolTipMessages&) = delete;

    /// Those with this number, in the order in which they were sent.
    std::vector<CWPSTRUCT> Find(UINT message) const
    {
        std::vector<CWPSTRUCT> found;
        for (const CWPSTRUCT& sent : All()) {
            if (sent.message == message)
                found.push_back(sent);
        }
        return found;
    }

private:
    static std::vector<CWPSTRUCT>& All()
    {
        static std::vector<CWPSTRUCT> all;
        return all;
    }
    static LRESULT CALLBACK Note(int code, WPARAM wParam, LPARAM lParam)
    {
        const CWPSTRUCT& sent = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        TCHAR name[32] = _T("");
        ::GetClassName(sent.hwnd, name, _countof(name));
        if (code == HC_ACTION && _tcscmp(name, TOOLTIPS_CLASS) == 0)
            All().push_back(sent);
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    HHOOK m_hook;
};

} // namespace

TEST_CASE("a new label is no link, has black text, no picture and no tool tip")
{
    const TestLink link;
    CHECK_FALSE(link.m_bIsLink);
    CHECK_FALSE(link.m_bToolTip);
    CHECK_FALSE(link.m_bBitmapLoaded);
    CHECK(link.m_crText == RGB(0, 0, 0));
    CHECK(link.m_crTransparent == 0xFFFFFFFF);
    CHECK(link.m_strURL.IsEmpty());
    CHECK(link.m_ToolTip.m_hWnd == nullptr);
}

TEST_CASE("text is centred and wrapped in its colour over what is beneath")
{
    Link link(_T("Some words that need more than a single line of this label, surely"));
    link.control.SetTextColor(red);
    const Picture shown = link.host.Show();
    const CRect text = shown.BoundsOfOthers(green);
    CHECK(shown.Contains(red));
    CHECK(text.Height() > 20); // Two lines at least.
    CHECK(labelPlace.left <= text.left);
    CHECK(text.right <= labelPlace.right);
    CHECK(abs((text.left + text.right) - (labelPlace.left + labelPlace.right)) < 16);
    CHECK(shown.Crop(labelPlace).CountOf(green) > labelPlace.Width() * labelPlace.Height() / 3);
}

TEST_CASE("the text keeps to the window's rectangle, which a border makes larger than the client's")
{
    for (const DWORD style : {SS_NOTIFY, SS_NOTIFY | WS_BORDER, SS_NOTIFY | WS_DLGFRAME}) {
        CAPTURE(style);
        Link link(_T("Some text"), style);
        link.control.SetTextColor(red);
        CheckTextIsDrawnAs(link, FontOf(link.control), red, CSize(0, 0), DT_CENTER | DT_WORDBREAK);
    }
}

TEST_CASE("setting the text colour repaints nothing by itself")
{
    Link link(_T("Text"));
    link.host.Show();
    link.control.SetTextColor(red);
    CHECK_FALSE(link.control.GetUpdateRect(nullptr));
    CHECK_FALSE(link.host.GetUpdateRect(nullptr));
}

TEST_CASE("a target makes the label an underlined link and changes nothing else of its font")
{
    Link link(_T("Text"));
    const LOGFONT before = DescribeFont(link.control);
    link.control.SetURL(_T("http://example.invalid/"));
    CHECK(link.control.m_bIsLink);
    CHECK(link.control.m_strURL == _T("http://example.invalid/"));
    CheckOnlyUnderlineDiffers(before, DescribeFont(link.control));
}

TEST_CASE("the link font of a label that is no link is semibold")
{
    Link link(_T("Text"));
    link.control.ApplyLinkFont();
    CHECK(DescribeFont(link.control).lfWeight == 600);
    CHECK(DescribeFont(link.control).lfUnderline == 0);
    // A link made of it keeps the weight of the first call.
    link.control.SetURL(_T("x"));
    CHECK(DescribeFont(link.control).lfWeight == 600);
    CHECK(DescribeFont(link.control).lfUnderline != 0);
}

TEST_CASE("a control without a font takes the default GUI font for its link font")
{
    Link link(_T("Text"));
    link.control.SendMessage(WM_SETFONT, 0, FALSE);
    link.control.ApplyLinkFont();
    LOGFONT gui = {};
    ::GetObject(::GetStockObject(DEFAULT_GUI_FONT), sizeof(gui), &gui);
    const LOGFONT own = DescribeFont(link.control);
    CHECK(own.lfHeight == gui.lfHeight);
    CHECK(own.lfWeight == 600);
}

// Kept: the font stays the control's for good; nobody deletes it.
TEST_CASE("each link font leaves one font behind")
{
    Link link(_T("Text"));
    link.control.ApplyLinkFont();
    const BalancedGdi objects;
    for (int i = 0; i < 5; ++i)
        link.control.ApplyLinkFont();
    CHECK(objects.Describe() == "fonts +5");
}

TEST_CASE("a press on a link opens its target, trimmed, shown normally")
{
    const ShellSpy shell;
    REQUIRE(shell.IsInstalled());
    Link link(_T("The text"));
    link.control.SetURL(_T(" \thttp://example.invalid/ "));
    link.host.Show();
    REQUIRE(MovePointer(link.control.m_hWnd));
    PressLeft();
    CHECK(shell.Asked().size() == 1); // The press opens, not the release.
    ReleaseLeft();
    REQUIRE(shell.Asked().size() == 1);
    CHECK(shell.Asked()[0].target == _T("http://example.invalid/"));
    CHECK(shell.Asked()[0].show == SW_SHOWNORMAL);
}

TEST_CASE("a link without a target opens its text")
{
    const ShellSpy shell;
    Link link(_T("  file.txt  "));
    link.control.SetURL(_T(""));
    link.Press();
    REQUIRE(shell.Asked().size() == 1);
    CHECK(shell.Asked()[0].target == _T("file.txt"));
}

// Kept: the test comes before the trimming, so a target of blanks opens an empty string.
TEST_CASE("a target of blanks passes as an empty string; no target and no text open nothing")
{
    const ShellSpy shell;
    Link link(_T(""));
    link.control.SetURL(_T(""));
    link.Press();
    CHECK(shell.Asked().empty());
    link.control.SetURL(_T("   "));
    link.Press();
    REQUIRE(shell.Asked().size() == 1);
    CHECK(shell.Asked()[0].target.empty());
}

TEST_CASE("a label that is no link ignores a press")
{
    const ShellSpy shell;
    Link link(_T("http://example.invalid/"));
    link.Press();
    CHECK(shell.Asked().empty());
}

TEST_CASE("what the shell cannot open goes to the program for web pages")
{
    const RegisteredClass extension(_T(".htm"), _T("umbra.page"));
    const RegisteredClass command(_T("umbra.page\\shell\\open\\command"),
                                  _T("browser.exe \"%1\" -tab"));
    const ShellSpy shell(31);
    Link link(_T("Text"));
    link.control.SetURL(_T("http://example.invalid/a b"));
    link.Press();
    REQUIRE(shell.Run().size() == 1);
    CHECK(shell.Run()[0].target == _T("browser.exe  http://example.invalid/a b"));
    CHECK(shell.Run()[0].show == SW_SHOWNORMAL);
}

TEST_CASE("the hand shows over a link with text")
{
    REQUIRE(help.IsInstalled());
    Link link(_T("Text"));
    link.control.SetURL(_T("x"));
    CHECK(link.AskCursor() == TRUE);
    REQUIRE(LoadHandCursor() != nullptr);
    CHECK(::GetCursor() == LoadHandCursor());
}

TEST_CASE("the real pointer becomes a hand over a link and an arrow beside it")
{
    Link link(_T("Text"));
    link.control.SetURL(_T("x"));
    link.host.Show();
    REQUIRE(MovePointer(link.control.m_hWnd));
    CHECK(::GetCursor() == LoadHandCursor());
    REQUIRE(MovePointer(link.host.m_hWnd, {5, 5}));
    CHECK(::GetCursor() == ::LoadCursor(nullptr, IDC_ARROW));
}

// Kept: the window text decides, not the target.
TEST_CASE("no link, or a link without text, has the default cursor; the latter still opens")
{
    const ShellSpy shell;
    Link plain(_T("Text"));
    plain.AskCursor();
    CHECK(::GetCursor() == ::LoadCursor(nullptr, IDC_ARROW));

    Link empty(_T(""));
    empty.control.SetURL(_T("target"));
    empty.AskCursor();
    CHECK(::GetCursor() == ::LoadCursor(nullptr, IDC_ARROW));
    empty.Press();
    CHECK(shell.Asked().size() == 1);
}

TEST_CASE("a keyed picture shows at the corner, under the text")
{
    Link link(_T(""));
    link.control.SetTransparentColor(black);
    CHECK(link.control.SetBitmapFile(ImagePath(_T("Next.gif")).c_str()) == TRUE);
    CHECK(link.control.m_bBitmapLoaded);
    CHECK(link.control.m_nBitmapWidth == 19);
    CHECK(link.control.m_nBitmapHeight == 19);
    CHECK(link.control.m_bmpMask.GetSafeHandle() != nullptr);
    CheckShowsKeyedNext(link);
}

TEST_CASE("a picture is found under a path beyond ASCII")
{
    CheckPictureBeyondAscii<TestLink>(&TestLink::SetBitmapFile);
}

TEST_CASE("without a key colour no picture is drawn, even if one was loaded")
{
    Link link(_T(""));
    link.control.SetBitmapFile(ImagePath(_T("Next.gif")).c_str());
    CHECK(link.control.m_bBitmapLoaded);
    const Picture shown = link.host.Show();
    CHECK(shown.CountOf(green) == shown.Width() * shown.Height());
}

TEST_CASE("a key colour without a picture draws the text only")
{
    Link link(_T(""));
    link.control.SetTransparentColor(black);
    const Picture shown = link.host.Show();
    CHECK(shown.CountOf(green) == shown.Width() * shown.Height());
}

TEST_CASE("a key colour set after the picture builds no mask, it waits for the next one")
{
    CheckLaterKeyWaits<TestLink>(&TestLink::SetBitmapFile);
}

TEST_CASE("a picture that does not load changes nothing and still answers TRUE")
{
    CheckMissingPictureChangesNothing<TestLink>(&TestLink::SetBitmapFile);
}

TEST_CASE("a replaced picture and the bitmaps of a label that is gone are left")
{
    CheckBitmapsOutlive<TestLink>(&TestLink::SetBitmapFile);
}

TEST_CASE("a tool tip is one tool, whose text is renewed")
{
    Link link(_T("Text"));
    CHECK(link.control.SetToolTipText(_T("first")) == TRUE);
    CHECK(link.control.m_bToolTip);
    REQUIRE(link.control.m_ToolTip.m_hWnd != nullptr);
    const HWND window = link.control.m_ToolTip.m_hWnd;
    CHECK(TipText(link.control) == _T("first"));
    link.control.SetToolTipText(_T("second"));
    CHECK(link.control.m_ToolTip.m_hWnd == window);
    CHECK(link.control.m_ToolTip.GetToolCount() == 1);
    CHECK(TipText(link.control) == _T("second"));
    CHECK(link.control.m_ToolTip.GetMaxTipWidth() == 100);
}

TEST_CASE("a new tool tip is off until it has its tool, and 100 pixels wide")
{
    Link link(_T("Text"));
    const ToolTipMessages sent;
    link.control.SetToolTipText(_T("first"));
    const std::vector<CWPSTRUCT> activations = sent.Find(TTM_ACTIVATE);
    REQUIRE(activations.size() == 2);
    CHECK(activations[0].wParam == FALSE);
    CHECK(activations[1].wParam == TRUE);
    const std::vector<CWPSTRUCT> widths = sent.Find(TTM_SETMAXTIPWIDTH);
    REQUIRE(widths.size() == 1);
    // Kept: the message takes its width from the second number; the first one means nothing.
    CHECK(widths[0].wParam == 400);
    CHECK(widths[0].lParam == 100);

    link.control.SetToolTipText(_T("second"));
    REQUIRE(sent.Find(TTM_ACTIVATE).size() == 3);
    CHECK(sent.Find(TTM_ACTIVATE)[2].wParam == TRUE);
    CHECK(sent.Find(TTM_SETMAXTIPWIDTH).size() == 1);
}

TEST_CASE("mouse moves are relayed to the tool tip once it has a text")
{
    Link link(_T("Text"));
    link.control.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(7, 8)); // No tool tip, no harm.
    link.control.SetToolTipText(_T("tip"));
    const RelayLog relays(link.control.m_ToolTip.m_hWnd);
    link.control.SendMessage(WM_MOUSEMOVE, MK_SHIFT, MAKELPARAM(7, -8));
    REQUIRE(relays.Relayed().size() == 1);
    CHECK(relays.Relayed()[0].hwnd == link.control.m_hWnd);
    CHECK(relays.Relayed()[0].message == WM_MOUSEMOVE);
    CHECK(relays.Relayed()[0].wParam == MK_SHIFT);
    CHECK(relays.Relayed()[0].lParam == MAKELPARAM(7, -8));
    CHECK(relays.Relayed()[0].pt.y == 65528);
}

TEST_CASE("the tool tip comes up under the real pointer")
{
    Link link(_T("Text"));
    link.control.SetToolTipText(_T("tip"));
    link.control.m_ToolTip.SetDelayTime(TTDT_INITIAL, 10);
    link.host.Show();
    REQUIRE(MovePointer(link.control.m_hWnd));
    CHECK(WaitUntil([&] {
        POINT at = {10, 10};
        MovePointer(link.control.m_hWnd, at);
        return link.control.m_ToolTip.IsWindowVisible() != FALSE;
    }));
}

TEST_CASE("10,000 pointer moves over a link leave nothing behind")
{
    Link link(_T("Text"));
    link.control.SetURL(_T("x"));
    link.control.SetToolTipText(_T("tip"));
    CheckMovesLeaveNothing(link);
}

TEST_CASE("painting leaves the control's font in place and nothing behind")
{
    Link link(_T("Text"));
    link.control.SetTransparentColor(black);
    link.control.SetBitmapFile(ImagePath(_T("Next.gif")).c_str());
    CheckPaintsLeaveNothing(link);
}

TEST_CASE("long texts and odd targets do no harm")
{
    const ShellSpy shell(2);
    Link link(_T(""));
    link.control.SetWindowText(TString(65536, 'w').c_str());
    link.control.SetURL(_T(""));
    link.host.Show();
    link.Press();
    link.control.SetURL(_T("a\x01\x02\r\nb"));
    link.Press();
    link.control.SetURL(CString('x', 10000));
    link.Press();
    REQUIRE(shell.Asked().size() == 3);
    CHECK(shell.Asked()[0].target.size() == 65536);
    CHECK(shell.Asked()[2].target.size() == 10000);
}
