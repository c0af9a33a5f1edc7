#include "assist/Keyboard.h"

#include "controls/HyperLink.h"
#include "dialogs/BaseDialog.h"

#include "testing/GdiObjects.h"
#include "testing/Input.h"
#include "testing/MessageLog.h"
#include "testing/Page.h"
#include "testing/Pump.h"

#include "tests/dialogs/PageTemplate.h"

#include <doctest/doctest.h>

#include <vector>

using namespace umbra::testing;

namespace {

enum { editId = 101, firstRadio, secondRadio, thirdRadio, linkId, otherLinkId, labelId, checkId };

constexpr DWORD labelStyle = WS_CHILD | WS_VISIBLE | SS_NOTIFY;
constexpr DWORD radioStyle = DialogTemplate::visibleChild | BS_AUTORADIOBUTTON | BS_PUSHLIKE;

/// A page with an edit, a group of radio buttons and labels that writes down its commands.
class KeyPage : public CBaseDialog
{
public:
    KeyPage() : CBaseDialog(0, nullptr, true, false, true, false, true, true, false, false)
    {
        g_strImageDir = ProgramFolder().c_str();
        g_crShade = RGB(180, 200, 230);
        m_template.Edit(editId, _T("text"), 60, 10, 60, 14)
            .Button(firstRadio, _T("One"), 60, 30, 60, 14, radioStyle | WS_TABSTOP | WS_GROUP)
            .Button(secondRadio, _T("Two"), 60, 46, 60, 14, radioStyle | WS_TABSTOP)
            .Button(thirdRadio, _T("Three"), 60, 62, 60, 14, radioStyle | WS_TABSTOP)
            .Label(linkId, _T("first link"), 150, 10, 90, 14, labelStyle | WS_GROUP)
            .Label(otherLinkId, _T("other link"), 150, 30, 90, 14, labelStyle)
            .Label(labelId, _T("no link"), 150, 50, 90, 14, labelStyle)
            .Button(checkId, _T("Check"), 150, 70, 60, 14,
                    DialogTemplate::tabStop | WS_GROUP | BS_AUTOCHECKBOX | BS_PUSHLIKE);
    }

    DialogTemplate m_template = MakePageTemplate();
    CHyperLink m_link, m_label;
    CStaticTS m_otherLink;
    CxShadeButton m_radios[3], m_check;
    std::vector<int> m_pressed; ///< The buttons whose commands came.
    std::vector<int> m_clicked; ///< The labels that told of a press.

    BOOL OnInitDialog() override
    {
        CBaseDialog::OnInitDialog();
        m_otherLink.SetLink(TRUE);
        m_otherLink.SetLinkTarget(CString()); // A press opens nothing.
        for (CxShadeButton& radio : m_radios)
            ApplyButtonShade(radio);
        return TRUE;
    }
    void BecomeLink() { m_link.SetURL(_T("umbra-test:nothing")); }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CBaseDialog::DoDataExchange(pDX);
        DDX_Control(pDX, linkId, m_link);
        DDX_Control(pDX, otherLinkId, m_otherLink);
        DDX_Control(pDX, labelId, m_label);
        DDX_Control(pDX, checkId, m_check);
        for (int i = 0; i < 3; ++i)
            DDX_Control(pDX, firstRadio + i, m_radios[i]);
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        const int id = LOWORD(wParam);
        if (id >= linkId && id <= labelId)
            m_clicked.push_back(id);
        else if (HIWORD(wParam) == BN_CLICKED && id != editId)
            m_pressed.push_back(id);
        return TRUE | (lParam != 0);
    }
};

/// The page on the screen, with the keyboard assisted.
struct AssistedPage
{
    KeyPage page;
    Page shown{page, page.m_template};

    AssistedPage() { CHECK(AssistKeyboard(page)); }

    void Focus(int id)
    {
        ::SetFocus(shown.Control(id));
        PumpMessages();
    }
    int Focused() const { return ::GetDlgCtrlID(::GetFocus()); }
    void Press(WORD key, WORD modifier = 0)
    {
        CHECK(shown.PressKey(key, modifier) == keyTaken);
        PumpMessages();
    }
    /// Whether the button shows the frame of the default button.
    bool IsMarked(int id)
    {
        const Picture face = shown.Show(id);
        return face.At(0, 0) == ::GetSysColor(COLOR_3DDKSHADOW) ||
               face.At(0, 0) == ::GetSysColor(COLOR_BTNSHADOW);
    }
};

using Ids = std::vector<int>;

} // namespace

TEST_CASE("Enter presses the shaded button that has the focus")
{
    AssistedPage assisted;
    assisted.Focus(IDCANCEL);
    assisted.Press(VK_RETURN);
    CHECK(assisted.page.m_pressed == Ids{IDCANCEL});
    assisted.Focus(IDC_BACK);
    assisted.Press(VK_RETURN);
    CHECK(assisted.page.m_pressed == Ids{IDCANCEL, IDC_BACK});
}

TEST_CASE("without the assistance Enter means the default button, as ever")
{
    KeyPage page;
    Page shown(page, page.m_template);
    ::SetFocus(shown.Control(IDCANCEL));
    CHECK(shown.PressKey(VK_RETURN) == keyTaken);
    CHECK(page.m_pressed == Ids{IDOK});
    CHECK(shown.Text(IDOK) == _T("Confirm"));
    ::SetFocus(shown.Control(firstRadio));
    CHECK(shown.PressKey(VK_TAB) == keyTaken);
    CHECK(::GetFocus() == shown.Control(secondRadio));
}

TEST_CASE("elsewhere Enter presses the default button, which another can be made")
{
    AssistedPage assisted;
    assisted.Focus(editId);
    assisted.Press(VK_RETURN);
    CHECK(assisted.page.m_pressed == Ids{IDOK});
    assisted.page.SetDefID(IDC_BACK);
    CHECK(::IsWindow(assisted.shown.Control(IDC_BACK)));
    assisted.Press(VK_RETURN);
    CHECK(assisted.page.m_pressed == Ids{IDOK, IDC_BACK});
    // A check box has no press of its own for Enter.
    assisted.Focus(checkId);
    assisted.Press(VK_RETURN);
    CHECK(assisted.page.m_pressed == Ids{IDOK, IDC_BACK, IDC_BACK});
}

TEST_CASE("the button that Enter would press is marked, and only that one")
{
    AssistedPage assisted;
    const auto marked = [&] {
        Ids ids;
        for (const int id : {IDOK, IDC_BACK, IDCANCEL}) {
            if (assisted.IsMarked(id))
                ids.push_back(id);
        }
        return ids;
    };
    assisted.Focus(editId);
    CHECK(marked() == Ids{IDOK});
    assisted.Focus(IDCANCEL);
    CHECK(marked() == Ids{IDCANCEL});
    assisted.Focus(IDC_BACK);
    CHECK(marked() == Ids{IDC_BACK});
    assisted.Focus(firstRadio);
    CHECK(marked() == Ids{IDOK});
    assisted.page.SetDefID(IDCANCEL);
    PumpMessages();
    CHECK(marked() == Ids{IDCANCEL});
    assisted.page.SetBufferedPainting(true);
    assisted.page.RedrawWindow();
    CHECK(marked() == Ids{IDCANCEL});
}

TEST_CASE("the buttons stay shaded when the dialog makes another one the default")
{
    AssistedPage assisted;
    for (int i = 0; i < 12; ++i)
        assisted.Press(VK_TAB);
    for (const int id : {IDOK, IDC_BACK, IDCANCEL}) {
        const LONG_PTR style = ::GetWindowLongPtr(assisted.shown.Control(id), GWL_STYLE);
        CHECK((style & BS_TYPEMASK) == BS_OWNERDRAW);
    }
}

TEST_CASE("a press with the mouse leaves focus and default with the button")
{
    AssistedPage assisted;
    assisted.Focus(editId);
    CHECK(assisted.shown.Click(IDC_BACK));
    CHECK(assisted.page.m_pressed == Ids{IDC_BACK});
    CHECK(assisted.Focused() == IDC_BACK);
    CHECK(MovePointerAway());
    PumpMessages();
    CHECK(assisted.IsMarked(IDC_BACK));
    CHECK_FALSE(assisted.IsMarked(IDOK));
}

TEST_CASE("arrow keys select in a group of radio buttons, round and round")
{
    AssistedPage assisted;
    assisted.Focus(firstRadio);
    assisted.Press(VK_SPACE);
    CHECK(assisted.shown.IsChecked(firstRadio));
    assisted.Press(VK_DOWN);
    CHECK(assisted.Focused() == secondRadio);
    CHECK(assisted.shown.IsChecked(secondRadio));
    CHECK_FALSE(assisted.shown.IsChecked(firstRadio));
    assisted.Press(VK_RIGHT);
    assisted.Press(VK_DOWN);
    CHECK(assisted.Focused() == firstRadio);
    CHECK(assisted.shown.IsChecked(firstRadio));
    assisted.Press(VK_LEFT);
    CHECK(assisted.Focused() == thirdRadio);
    assisted.Press(VK_UP);
    CHECK(assisted.shown.IsChecked(secondRadio));
    CHECK(assisted.page.m_pressed ==
          Ids{firstRadio, secondRadio, thirdRadio, firstRadio, thirdRadio, secondRadio});
}

TEST_CASE("arrow keys leave out what is disabled, and stay where there is nothing else")
{
    AssistedPage assisted;
    ::EnableWindow(assisted.shown.Control(secondRadio), FALSE);
    assisted.Focus(firstRadio);
    assisted.Press(VK_DOWN);
    CHECK(assisted.Focused() == thirdRadio);
    ::EnableWindow(assisted.shown.Control(firstRadio), FALSE);
    assisted.Press(VK_DOWN);
    CHECK(assisted.Focused() == thirdRadio);
}

TEST_CASE("a group of radio buttons is one tab stop, where it is checked")
{
    AssistedPage assisted;
    assisted.Focus(editId);
    assisted.Press(VK_TAB);
    CHECK(assisted.Focused() == firstRadio);
    assisted.Press(VK_TAB);
    CHECK(assisted.Focused() == otherLinkId);
    ::SendMessage(assisted.shown.Control(thirdRadio), BM_SETCHECK, BST_CHECKED, 0);
    PumpMessages();
    assisted.Press(VK_TAB, VK_SHIFT);
    CHECK(assisted.Focused() == thirdRadio);
    assisted.Press(VK_UP);
    assisted.Press(VK_TAB);
    CHECK(assisted.Focused() == otherLinkId);
    assisted.Press(VK_TAB, VK_SHIFT);
    CHECK(assisted.Focused() == secondRadio);
}

TEST_CASE("links are reached by Tab and pressed by Enter and Space, labels are not")
{
    AssistedPage assisted;
    assisted.Focus(secondRadio);
    assisted.Focus(editId);
    assisted.Press(VK_TAB);
    assisted.Press(VK_TAB);
    CHECK(assisted.Focused() == otherLinkId);
    const MessageLog label(assisted.shown.Control(otherLinkId));
    assisted.Press(VK_RETURN);
    CHECK(label.Count(WM_LBUTTONDOWN) == 1);
    CHECK(assisted.page.m_clicked == Ids{otherLinkId});
    assisted.Press(VK_SPACE);
    CHECK(label.Count(WM_LBUTTONDOWN) == 2);
    CHECK(assisted.page.m_pressed.empty());
    assisted.Press(VK_TAB);
    CHECK(assisted.Focused() == checkId);
}

TEST_CASE("a label that becomes a link later is served like one")
{
    AssistedPage assisted;
    assisted.page.BecomeLink();
    assisted.Focus(firstRadio);
    assisted.Press(VK_TAB);
    CHECK(assisted.Focused() == linkId);
}

TEST_CASE("a control that is made later is served, too")
{
    AssistedPage assisted;
    CxShadeButton later;
    REQUIRE(later.Create(_T("Later"), DialogTemplate::tabStop, CRect(5, 5, 80, 30), &assisted.page,
                         200));
    assisted.Focus(200);
    assisted.Press(VK_RETURN);
    CHECK(assisted.page.m_pressed == Ids{200});
    later.DestroyWindow();
}

TEST_CASE("a link with the focus shows a rectangle, which goes with it")
{
    AssistedPage assisted;
    bool buffered = false;
    SUBCASE("painted by the link itself")
    {
    }
    SUBCASE("painted by the page")
    {
        buffered = true;
    }
    assisted.page.SetBufferedPainting(buffered);
    assisted.Focus(editId);
    const Picture before = assisted.shown.Show(otherLinkId);
    assisted.Focus(otherLinkId);
    const Picture focused = assisted.shown.Show(otherLinkId);
    CHECK(focused.CountDifferences(before) > 20);
    // Painted again, as a whole or in part, it stays as it is.
    assisted.page.RedrawWindow();
    CHECK(assisted.shown.Show(otherLinkId).Compare(focused) == "the same");
    CRect part;
    assisted.page.m_otherLink.GetWindowRect(part);
    assisted.page.ScreenToClient(part);
    part.right -= part.Width() / 2;
    assisted.page.InvalidateRect(part);
    PumpMessages();
    CHECK(assisted.shown.Show(otherLinkId).Compare(focused) == "the same");
    assisted.Focus(editId);
    CHECK(assisted.shown.Show(otherLinkId).Compare(before) == "the same");
}

TEST_CASE("standard captions have a mnemonic that presses their button")
{
    AssistedPage assisted;
    CHECK(assisted.shown.Text(IDOK) == _T("&Confirm"));
    CHECK(assisted.shown.Text(IDCANCEL) == _T("C&lose"));
    CHECK(assisted.shown.Text(IDC_BACK) == _T("&Back"));
    assisted.Focus(checkId);
    assisted.Press('B', VK_MENU);
    assisted.Press('L', VK_MENU);
    CHECK(assisted.page.m_pressed == Ids{IDC_BACK, IDCANCEL});
}

TEST_CASE("a host's own caption stays as it is")
{
    KeyPage page;
    Page shown(page, page.m_template);
    ::SetDlgItemText(page, IDOK, _T("Nextdoor"));
    CHECK(AssistKeyboard(page));
    CHECK(shown.Text(IDOK) == _T("Nextdoor"));
}

TEST_CASE("the assistance may be asked for again, and needs a window")
{
    AssistedPage assisted;
    CHECK(AssistKeyboard(assisted.page));
    assisted.Focus(IDCANCEL);
    assisted.Press(VK_RETURN);
    CHECK(assisted.page.m_pressed == Ids{IDCANCEL});
    KeyPage none;
    CHECK_FALSE(AssistKeyboard(none));
}

TEST_CASE("an assisted page leaves nothing behind")
{
    const auto live = [] {
        AssistedPage assisted;
        assisted.Focus(otherLinkId);
        assisted.Focus(IDOK);
        assisted.shown.Show(IDOK);
    };
    live();
    const BalancedGdi objects;
    live();
    live();
    // Each link leaves the font that it made for itself.
    CHECK_MESSAGE(objects.Growth() == 2, objects.Describe());
}
