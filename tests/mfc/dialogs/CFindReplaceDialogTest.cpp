#include <afxdlgs.h>

#include <doctest/doctest.h>

#include "testing/Input.h"
#include "testing/Page.h"
#include "testing/Pump.h"

#include "tests/mfc/ControlHost.h"

#include <string>
#include <vector>

using namespace umbra::testing;

namespace {

const UINT findMessage = ::RegisterWindowMessage(FINDMSGSTRING);

// Controls of the system's dialogs.
constexpr int findBox = 0x480, replaceBox = 0x481, caseBox = 0x411, wordBox = 0x410;
constexpr int replaceButton = 0x400, replaceAllButton = 0x401, upButton = 0x420;

class CWatchedFind : public CFindReplaceDialog
{
public:
    explicit CWatchedFind(int& deleted) : deleted_(deleted) {}
    ~CWatchedFind() override { ++deleted_; }

private:
    int& deleted_;
};

/// A window that writes down what a dialog for finding asks of it.
class CTextHost : public ControlHost
{
public:
    struct Request
    {
        CString find, replace;
        std::string flags; ///< f next, r replace, a all, c case, w word, d down, t terminating.
    };
    std::vector<Request> requests;
    CFindReplaceDialog* notifier = NULL;

protected:
    afx_msg LRESULT OnFind(WPARAM, LPARAM lParam)
    {
        notifier = CFindReplaceDialog::GetNotifier(lParam);
        Request request{notifier->GetFindString(), notifier->GetReplaceString(), ""};
        const std::pair<BOOL, char> flags[] = {
            {notifier->FindNext(), 'f'},       {notifier->ReplaceCurrent(), 'r'},
            {notifier->ReplaceAll(), 'a'},     {notifier->MatchCase(), 'c'},
            {notifier->MatchWholeWord(), 'w'}, {notifier->SearchDown(), 'd'},
            {notifier->IsTerminating(), 't'}};
        for (const auto& [set, letter] : flags) {
            if (set)
                request.flags += letter;
        }
        requests.push_back(request);
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CTextHost, ControlHost)
    ON_REGISTERED_MESSAGE(findMessage, &CTextHost::OnFind)
END_MESSAGE_MAP()

} // namespace

TEST_CASE("the owner is told what to find, and that the dialog closes, which is then gone")
{
    CTextHost host;
    int deleted = 0;
    auto* dialog = new CWatchedFind(deleted);
    REQUIRE(dialog->Create(TRUE, _T("needle"), NULL, FR_DOWN, &host));
    Page page(dialog->m_hWnd);
    CHECK(::GetWindow(*dialog, GW_OWNER) == host.m_hWnd);
    CHECK(::IsWindowEnabled(host));
    CHECK(page.Text(findBox) == _T("needle"));
    CHECK(CWnd::FromHandlePermanent(page.Handle()) == dialog);

    REQUIRE(page.Click(caseBox));
    REQUIRE(page.Click(IDOK));
    REQUIRE(host.requests.size() == 1);
    CHECK(host.notifier == dialog);
    CHECK(host.requests[0].find == _T("needle"));
    CHECK(host.requests[0].flags == "fcd");

    REQUIRE(page.Click(IDCANCEL));
    REQUIRE(host.requests.size() == 2);
    CHECK(host.requests[1].flags.find('t') != std::string::npos);
    CHECK(host.requests[1].flags.find('f') == std::string::npos);
    CHECK(deleted == 1);
    CHECK_FALSE(::IsWindow(page.Handle()));
}

TEST_CASE("the dialog for replacing asks for one, for all, and for whole words")
{
    CTextHost host;
    int deleted = 0;
    auto* dialog = new CWatchedFind(deleted);
    REQUIRE(dialog->Create(FALSE, _T("old"), _T("new"), FR_DOWN | FR_WHOLEWORD, &host));
    Page page(dialog->m_hWnd);
    CHECK(page.Text(replaceBox) == _T("new"));
    REQUIRE(page.Click(replaceButton));
    REQUIRE(page.Click(replaceAllButton));
    REQUIRE(host.requests.size() == 2);
    CHECK(host.requests[0].find == _T("old"));
    CHECK(host.requests[0].replace == _T("new"));
    CHECK(host.requests[0].flags == "rwd");
    CHECK(host.requests[1].flags == "awd");
    dialog->DestroyWindow();
    CHECK(deleted == 1);
}

TEST_CASE("keys reach the dialog through the loop of the program")
{
    CTextHost host;
    int deleted = 0;
    auto* dialog = new CWatchedFind(deleted);
    REQUIRE(dialog->Create(TRUE, _T(""), NULL, FR_DOWN, &host));
    Page page(dialog->m_hWnd);
    REQUIRE(page.Type(findBox, _T("hay")));
    CHECK(page.PressKey(VK_RETURN) == keyTaken);
    REQUIRE(host.requests.size() == 1);
    CHECK(host.requests[0].find == _T("hay"));
    CHECK(page.PressKey(VK_ESCAPE) == keyClosedWindow);
    CHECK(deleted == 1);
}

TEST_CASE("a dialog that cannot be made deletes itself, too")
{
    CTextHost host;
    int deleted = 0;
    auto* dialog = new CWatchedFind(deleted);
    dialog->m_fr.Flags |= FR_ENABLETEMPLATE;
    dialog->m_fr.lpTemplateName = _T("no such template");
    CHECK_FALSE(dialog->Create(TRUE, _T("x"), NULL, FR_DOWN, &host));
    CHECK(deleted == 1);
}

TEST_CASE("a text longer than the dialog's is cut")
{
    CTextHost host;
    int deleted = 0;
    auto* dialog = new CWatchedFind(deleted);
    const CString text('x', 500);
    REQUIRE(dialog->Create(TRUE, text, NULL, FR_DOWN, &host));
    CHECK(dialog->GetFindString() == text.Left(127));
    dialog->DestroyWindow();
    CHECK(deleted == 1);
}
