#include "testing/DialogTemplate.h"
#include "testing/DoModal.h"
#include "testing/MessageBoxAnswer.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

namespace {

int Ask(LPCTSTR text, UINT kind)
{
    return ::MessageBox(nullptr, text, _T("Question"), kind);
}

} // namespace

TEST_CASE("a message box gets the button that was chosen, and its text is kept")
{
    const MessageBoxAnswer answer(IDNO);
    CHECK_FALSE(answer.HasAnswered());
    CHECK(answer.Text() == _T(""));
    CHECK(Ask(_T("Go on?"), MB_YESNO | MB_ICONQUESTION) == IDNO);
    CHECK(answer.HasAnswered());
    CHECK(answer.Text() == _T("Go on?"));
    CHECK(answer.Title() == _T("Question"));
}

TEST_CASE("several answers take one box each, in their order")
{
    const MessageBoxAnswer first(IDYES);
    const MessageBoxAnswer second(IDNO);
    const MessageBoxAnswer third(IDCANCEL);
    CHECK(Ask(_T("One?"), MB_YESNOCANCEL) == IDYES);
    CHECK(Ask(_T("Two?"), MB_YESNOCANCEL) == IDNO);
    CHECK(Ask(_T("Three?"), MB_YESNOCANCEL) == IDCANCEL);
    CHECK(first.Text() == _T("One?"));
    CHECK(second.Text() == _T("Two?"));
    CHECK(third.Text() == _T("Three?"));
}

TEST_CASE("a box without the button is closed and not counted as answered")
{
    const MessageBoxAnswer answer(IDYES);
    CHECK(Ask(_T("Well."), MB_OKCANCEL) == IDABORT);
    CHECK_FALSE(answer.HasAnswered());
    CHECK(answer.Text() == _T("Well."));
}

TEST_CASE("a page is no message box: an answer made before it waits for the box")
{
    class QuestionPage : public CDialog
    {
    protected:
        void OnOK() override { EndDialog(Ask(_T("Sure?"), MB_YESNO)); }
    };
    DialogTemplate source(10, 10, 100, 50);
    source.Button(IDOK, _T("OK"), 10, 10, 40, 14).Button(IDYES, _T("Yes"), 60, 10, 30, 14);
    QuestionPage page;
    page.InitModalIndirect(source.Get());
    const MessageBoxAnswer answer(IDYES);
    const ModalOutcome outcome = DoModal(page, {[](Page& shown) { CHECK(shown.Click(IDOK)); }});
    CHECK(outcome.failure == "");
    CHECK(outcome.result == IDYES);
    CHECK(answer.Text() == _T("Sure?"));
}
