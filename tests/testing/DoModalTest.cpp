#include "testing/DialogTemplate.h"
#include "testing/DoModal.h"
#include "testing/Input.h"
#include "testing/MessageBoxAnswer.h"
#include "testing/OpenDialogs.h"

#include <doctest/doctest.h>

#include <fstream>
#include <stdexcept>

using namespace umbra::testing;

namespace {

constexpr int editId = 100;
constexpr int askId = 101;
constexpr int pageResult = 42;
constexpr std::chrono::milliseconds shortLimit{1500};

/// A page whose Ask button asks before it closes; it can be made to refuse all closing.
class AskingPage : public CDialog
{
public:
    explicit AskingPage(LPCTSTR title = _T("Asking"))
        : m_template(10, 10, 160, 80, DialogTemplate::popup, title)
    {
        m_template.Edit(editId, _T(""), 10, 10, 80, 14)
            .Button(askId, _T("Ask"), 10, 40, 40, 14)
            .Button(IDOK, _T("OK"), 60, 40, 40, 14)
            .Button(IDCANCEL, _T("Cancel"), 110, 40, 40, 14);
    }

    INT_PTR DoModal() override
    {
        InitModalIndirect(m_template.Get());
        return CDialog::DoModal();
    }

    bool isStubborn = false;
    bool hidesItself = false;
    CString text;

protected:
    void DoDataExchange(CDataExchange* exchange) override { DDX_Text(exchange, editId, text); }
    void OnOK() override
    {
        if (hidesItself)
            ShowWindow(SW_HIDE);
        else if (!isStubborn)
            CDialog::OnOK();
    }
    void OnCancel() override
    {
        if (!isStubborn)
            CDialog::OnCancel();
    }
    BOOL OnCommand(WPARAM parameter, LPARAM source) override
    {
        if (LOWORD(parameter) != askId)
            return CDialog::OnCommand(parameter, source);
        if (::MessageBox(m_hWnd, _T("Really?"), _T("Closing"), MB_YESNO) == IDYES)
            EndDialog(pageResult);
        return TRUE;
    }

private:
    DialogTemplate m_template;
};

void DoNothing(Page&)
{
}

void PressOk(Page& page)
{
    CHECK(page.Click(IDOK));
}

/// The first bytes of a file.
std::string HeadOf(const TString& path)
{
    std::ifstream file(path.c_str(), std::ios::binary);
    char head[8] = "";
    file.read(head, sizeof head);
    return std::string(head, static_cast<size_t>(file.gcount()));
}

} // namespace

TEST_CASE("a modal page is driven to its end, step by step, and its result comes back")
{
    AskingPage dialog;
    std::string order;
    const ModalOutcome outcome =
        DoModal(dialog, {[&](Page& page) {
                             order += "a";
                             CHECK(page.Title() == _T("Asking"));
                             CHECK(page.Type(editId, _T("Ada")));
                         },
                         [&](Page& page) {
                             order += "b";
                             CHECK(page.Text(editId) == _T("Ada"));
                             CHECK(page.Show(editId).Contains(::GetSysColor(COLOR_WINDOWTEXT)));
                         },
                         [&](Page& page) {
                             order += "c";
                             CHECK(page.Click(IDOK));
                             CHECK_FALSE(page.IsOpen());
                         }});
    CHECK(outcome.failure == "");
    CHECK(outcome.pictureFile == _T(""));
    CHECK(outcome.result == IDOK);
    CHECK_FALSE(outcome.hasQuit);
    CHECK(order == "abc");
    CHECK(dialog.text == "Ada");
}

TEST_CASE("a message box that a step brings up is answered within it")
{
    AskingPage dialog;
    const ModalOutcome outcome = DoModal(dialog, {[](Page& page) {
                                                      const MessageBoxAnswer no(IDNO);
                                                      CHECK(page.Click(askId));
                                                      CHECK(no.HasAnswered());
                                                      CHECK(no.Text() == _T("Really?"));
                                                      CHECK(page.IsOpen());
                                                  },
                                                  [](Page& page) {
                                                      const MessageBoxAnswer yes(IDYES);
                                                      CHECK(page.Click(askId));
                                                      CHECK(yes.Title() == _T("Closing"));
                                                  }});
    CHECK(outcome.failure == "");
    CHECK(outcome.result == pageResult);
}

TEST_CASE("a key that brings up a message box has arrived, though the box has taken other input")
{
    AskingPage dialog;
    KeyResult space = keyNotTaken;
    const ModalOutcome outcome = DoModal(dialog, {[&](Page& page) {
                                                      const MessageBoxAnswer no(IDNO);
                                                      ::SetFocus(page.Control(askId));
                                                      space = page.PressKey(VK_SPACE);
                                                  },
                                                  PressOk});
    CHECK(outcome.failure == "");
    CHECK(space == keyTaken);
}

TEST_CASE("several pages come one after another, and each gets its own steps")
{
    TString titles;
    const auto take = [&](Page& page) { titles += page.Title() + _T(" "); };
    const ModalOutcome outcome = DriveDialogs(
        [] {
            INT_PTR sum = 0;
            for (const LPCTSTR title : {_T("First"), _T("Second"), _T("Third")})
                sum = sum * 10 + AskingPage(title).DoModal();
            return sum;
        },
        {{take, PressOk},
         {take, [](Page& page) { CHECK(page.Click(IDCANCEL)); }},
         {take, PressOk}});
    CHECK(outcome.failure == "");
    CHECK(titles == _T("First Second Third "));
    CHECK(outcome.result == IDOK * 100 + IDCANCEL * 10 + IDOK);
}

TEST_CASE("a key that closes a page, one that it takes, and one that nobody takes differ")
{
    AskingPage dialog;
    KeyResult tab = keyNotTaken;
    KeyResult escape = keyNotTaken;
    const ModalOutcome outcome =
        DoModal(dialog, {[&](Page& page) { tab = page.PressKey(VK_TAB); },
                         [&](Page& page) { escape = page.PressKey(VK_ESCAPE); }});
    CHECK(outcome.failure == "");
    CHECK(outcome.result == IDCANCEL);
    CHECK(tab == keyTaken);
    CHECK(escape == keyClosedWindow);

    dialog.isStubborn = true;
    DoModal(dialog, {[&](Page& page) { escape = page.PressKey(VK_ESCAPE); },
                     [&](Page&) { dialog.EndDialog(IDABORT); }});
    CHECK(escape == keyTaken);
}

TEST_CASE("a page that never closes fails, with its windows and a picture, and the test goes on")
{
    AskingPage dialog(_T("Stubborn"));
    dialog.isStubborn = true;
    const ModalOutcome outcome = DoModal(dialog, {PressOk}, shortLimit);
    CHECK(outcome.result == IDABORT);
    CHECK(dialog.GetSafeHwnd() == nullptr);
    CHECK(outcome.failure.find("never closed") != std::string::npos);
    CHECK(outcome.failure.find("#32770 \"Stubborn\"") != std::string::npos);
    CHECK(outcome.failure.find("101 Button \"Ask\"") != std::string::npos);
    REQUIRE(outcome.pictureFile != _T(""));
    CHECK(HeadOf(outcome.pictureFile) == "\x89PNG\r\n\x1a\n");
    CHECK(::DeleteFile(outcome.pictureFile.c_str()));

    AskingPage next; // The loops are all right.
    CHECK(DoModal(next, {PressOk}).result == IDOK);
}

TEST_CASE("a message box that nobody answers fails as its page does, and both are ended")
{
    AskingPage dialog;
    bool hasReturned = false;
    const ModalOutcome outcome = DoModal(dialog,
                                         {[&](Page& page) {
                                              page.Click(askId);
                                              hasReturned = true;
                                          },
                                          PressOk},
                                         shortLimit);
    CHECK(outcome.result == IDABORT);
    CHECK(hasReturned);
    CHECK(outcome.failure.find("Step 1 of 2 of dialog 1 never ended") != std::string::npos);
    CHECK(outcome.failure.find("#32770 \"Closing\"") != std::string::npos);
    CHECK(outcome.failure.find("\"Really?\"") != std::string::npos);
    CHECK(FindDialogs().empty());
    ::DeleteFile(outcome.pictureFile.c_str());
}

TEST_CASE("a menu or a move that nobody ends keeps no page open")
{
    AskingPage dialog;
    Step step;
    SUBCASE("a menu")
    {
        step = [](Page& page) {
            CMenu menu;
            menu.CreatePopupMenu();
            menu.AppendMenu(MF_STRING, 1, _T("Item"));
            menu.TrackPopupMenu(TPM_LEFTALIGN, 30, 30, CWnd::FromHandle(page.Handle()));
        };
    }
    SUBCASE("a move")
    {
        step = [](Page& page) {
            MovePointer(page.Handle());
            ::SendMessage(page.Handle(), WM_SYSCOMMAND, SC_MOVE | HTCAPTION, 0);
        };
    }
    const ModalOutcome outcome = DoModal(dialog, {step}, shortLimit);
    CHECK(outcome.result == IDABORT);
    CHECK(outcome.failure.find("Step 1 of 1 of dialog 1 never ended") != std::string::npos);
    ::DeleteFile(outcome.pictureFile.c_str());
}

TEST_CASE("a page that hides and goes on is ended, too")
{
    AskingPage dialog;
    dialog.hidesItself = true;
    const ModalOutcome outcome = DoModal(dialog, {PressOk}, shortLimit);
    CHECK(outcome.result == IDABORT);
    CHECK(outcome.failure.find("never closed") != std::string::npos);
    ::DeleteFile(outcome.pictureFile.c_str());
}

TEST_CASE("a dialog outside the class library is ended like the others")
{
    const ModalOutcome outcome = DriveDialogs(
        [] { return ::MessageBox(nullptr, _T("Text"), _T("Alone"), MB_YESNO); }, {{}}, shortLimit);
    CHECK(outcome.result == IDABORT);
    CHECK(outcome.failure.find("#32770 \"Alone\"") != std::string::npos);
    ::DeleteFile(outcome.pictureFile.c_str());
}

TEST_CASE("steps that were still to come are told, and pages that never came")
{
    AskingPage dialog;
    const ModalOutcome early = DoModal(dialog, {PressOk, DoNothing});
    CHECK(early.result == IDOK);
    CHECK(early.failure == "Step 2 of 2 of dialog 1 was still to come when the dialog closed.\n");

    const ModalOutcome two =
        DriveDialogs([] { return AskingPage().DoModal(); }, {{PressOk}, {PressOk}});
    CHECK(two.result == IDOK);
    CHECK(two.failure == "Dialog 2 never came.\n");

    CDialog without(65000u);
    const ModalOutcome none = DoModal(without, {PressOk});
    CHECK(none.result == -1);
    CHECK(none.failure == "Dialog 1 never came.\n");
}

TEST_CASE("what a step throws ends the pages and comes out of the call")
{
    AskingPage dialog;
    bool hasRun = false;
    CHECK_THROWS_WITH_AS(DoModal(dialog, {[](Page&) { throw std::runtime_error("in a step"); },
                                          [&](Page&) { hasRun = true; }}),
                         "in a step", std::runtime_error);
    CHECK_FALSE(hasRun);
    CHECK(dialog.GetSafeHwnd() == nullptr);
}

TEST_CASE("a message loop that was told to quit is reported and mended")
{
    AskingPage first;
    AskingPage second;
    const ModalOutcome outcome = DriveDialogs(
        [&] {
            first.DoModal();
            ::PostQuitMessage(0);
            return second.DoModal();
        },
        {{PressOk}, {PressOk}});
    CHECK(outcome.hasQuit);
    CHECK(outcome.failure == "Dialog 2 never came.\n");
    CHECK(DoModal(second, {PressOk}).result == IDOK);
}

TEST_CASE("dialogs that were open before stay open and get no step")
{
    CDialog open;
    const DialogTemplate source(0, 0, 100, 50);
    const Page before(open, source);
    AskingPage dialog;
    dialog.isStubborn = true;
    HWND met = nullptr;
    const ModalOutcome outcome =
        DoModal(dialog, {[&](Page& page) { met = page.Handle(); }}, shortLimit);
    CHECK(outcome.result == IDABORT);
    CHECK(met != before.Handle());
    CHECK(before.IsOpen());
    ::DeleteFile(outcome.pictureFile.c_str());
}
