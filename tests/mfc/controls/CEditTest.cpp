#include <afxwin.h>

#include <doctest/doctest.h>

#include "testing/Input.h"
#include "testing/MessageLog.h"
#include "testing/Pump.h"

#include "tests/mfc/ControlHost.h"
#include "tests/mfc/controls/SentMessage.h"

using namespace umbra::testing;

namespace {

const CRect place(10, 10, 210, 130);

struct Field
{
    ControlHost host;
    CEdit edit;

    explicit Field(DWORD style = 0)
    {
        REQUIRE(edit.Create(shownChild | WS_BORDER | style, place, &host, 9));
    }
    CString Text()
    {
        CString text;
        edit.GetWindowText(text);
        return text;
    }
};

struct Lines : Field
{
    Lines() : Field(ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL)
    {
        edit.SetWindowText(_T("first\r\nsecond line\r\nthird"));
    }
};

/// Answers as the field of a newer system, which not every system has.
class CNewEdit : public CEdit
{
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        switch (message) {
        case EM_GETCUEBANNER:
            lstrcpynW((LPWSTR)wParam, L"Search", (int)lParam);
            return TRUE;
        case ECM_FIRST + 6:
            return MAKELONG(2, 5);
        default:
            return CEdit::WindowProc(message, wParam, lParam);
        }
    }
};

} // namespace

TEST_CASE("typing changes the text, and the parent hears of it")
{
    Field field;
    field.edit.SetFocus();
    REQUIRE(TypeText(_T("abc")));
    CHECK(field.Text() == "abc");
    CHECK(field.edit.GetModify());
    CHECK(field.host.Heard(EN_CHANGE));
    field.edit.SetModify(FALSE);
    CHECK_FALSE(field.edit.GetModify());
}

TEST_CASE("a selection is set and told in both forms")
{
    Field field;
    field.edit.SetWindowText(_T("0123456789"));
    field.edit.SetSel(2, 5);
    int start = -1, end = -1;
    field.edit.GetSel(start, end);
    CHECK(start == 2);
    CHECK(end == 5);
    CHECK(field.edit.GetSel() == MAKELONG(2, 5));

    field.edit.SetSel(MAKELONG(4, 6));
    CHECK(field.edit.GetSel() == MAKELONG(4, 6));
    field.edit.SetSel(MAKELONG(0, -1));
    CHECK(field.edit.GetSel() == MAKELONG(0, 10));
    field.edit.SetSel((DWORD)-1);
    field.edit.GetSel(start, end);
    CHECK(start == end);
}

TEST_CASE("ReplaceSel replaces the selection and can be undone")
{
    Field field;
    field.edit.SetWindowText(_T("one two"));
    field.edit.SetSel(0, 3);
    field.edit.ReplaceSel(_T("three"), TRUE);
    CHECK(field.Text() == "three two");
    CHECK(field.edit.CanUndo());
    CHECK(field.edit.Undo());
    CHECK(field.Text() == "one two");
    field.edit.EmptyUndoBuffer();
    CHECK_FALSE(field.edit.CanUndo());
}

TEST_CASE("cut, copy, paste and clear go through the clipboard")
{
    Field field;
    field.edit.SetWindowText(_T("one two"));
    field.edit.SetSel(0, 4);
    field.edit.Cut();
    CHECK(field.Text() == "two");
    field.edit.SetSel(3, 3);
    field.edit.Paste();
    CHECK(field.Text() == "twoone ");
    field.edit.SetSel(0, 3);
    field.edit.Copy();
    field.edit.Clear();
    CHECK(field.Text() == "one ");
    field.edit.SetSel(0, -1);
    field.edit.Paste();
    CHECK(field.Text() == "two");
}

TEST_CASE("the limit holds for typing")
{
    Field field;
    field.edit.SetLimitText(3);
    CHECK(field.edit.GetLimitText() == 3);
    field.edit.SetFocus();
    REQUIRE(TypeText(_T("abcdef")));
    CHECK(field.Text() == "abc");
    field.edit.LimitText(20);
    CHECK(field.edit.GetLimitText() == 20);
}

TEST_CASE("a read-only field refuses typing")
{
    Field field;
    CHECK(field.edit.SetReadOnly());
    CHECK((field.edit.GetStyle() & ES_READONLY) != 0);
    field.edit.SetFocus();
    TypeText(_T("abc"));
    CHECK(field.Text() == "");
    CHECK(field.edit.SetReadOnly(FALSE));
    CHECK((field.edit.GetStyle() & ES_READONLY) == 0);
}

TEST_CASE("a password field hides its text behind a character")
{
    Field field(ES_PASSWORD);
    field.edit.SetPasswordChar('#');
    CHECK(field.edit.GetPasswordChar() == '#');
    field.edit.SetPasswordChar(0);
    CHECK(field.edit.GetPasswordChar() == 0);
}

TEST_CASE("lines are counted, found and copied")
{
    Lines field;
    CHECK(field.edit.GetLineCount() == 3);
    CHECK(field.edit.LineIndex(1) == 7);
    CHECK(field.edit.LineIndex(2) == 20);
    CHECK(field.edit.LineFromChar(8) == 1);
    CHECK(field.edit.LineLength(7) == 11);
    CHECK(field.edit.GetFirstVisibleLine() == 0);

    TCHAR line[40] = {};
    CHECK(field.edit.GetLine(1, line, _countof(line)) == 11);
    CHECK(CString(line, 11) == "second line");
    TCHAR few[40] = {};
    CHECK(field.edit.GetLine(1, few, 4) == 4);
    CHECK(CString(few, 4) == "seco");

    field.edit.SetSel(8, 8);
    CHECK(field.edit.LineFromChar() == 1);
    CHECK(field.edit.LineIndex() == 7);
    CHECK(field.edit.LineLength() == 11);
}

TEST_CASE("a field scrolls by lines")
{
    Field field(ES_MULTILINE | ES_AUTOVSCROLL);
    CString text;
    for (int line = 0; line < 60; ++line)
        text += "line\r\n";
    field.edit.SetWindowText(text);
    field.edit.LineScroll(10);
    CHECK(field.edit.GetFirstVisibleLine() == 10);
    field.edit.LineScroll(-4);
    CHECK(field.edit.GetFirstVisibleLine() == 6);
}

TEST_CASE("characters have places, and places characters")
{
    Lines field;
    const CPoint start = field.edit.PosFromChar(7);
    CHECK(start.y > field.edit.PosFromChar(0).y);
    const int nearest = field.edit.CharFromPos(start + CPoint(1, 2));
    CHECK(LOWORD(nearest) == 7);
    CHECK(HIWORD(nearest) == 1);
}

TEST_CASE("margins and the formatting rectangle are kept")
{
    Lines field;
    field.edit.SetMargins(7, 11);
    CHECK(field.edit.GetMargins() == MAKELONG(7, 11));
    CRect first, second; // The system may take borders and margins off each.
    field.edit.SetRect(CRect(20, 10, 150, 90));
    field.edit.GetRect(first);
    field.edit.SetRectNP(CRect(30, 15, 140, 90));
    field.edit.GetRect(second);
    CHECK(first.left >= 20);
    CHECK(second.left - first.left == 10);
    CHECK(second.top - first.top == 5);
    CHECK(second.right - first.right == -10);
}

TEST_CASE("tab stops move the text behind a tab")
{
    Field field(ES_MULTILINE);
    field.edit.SetWindowText(_T("a\tb"));
    CHECK(field.edit.SetTabStops(20));
    const int near20 = field.edit.PosFromChar(2).x;
    CHECK(field.edit.SetTabStops(60));
    const int near60 = field.edit.PosFromChar(2).x;
    CHECK(near60 > near20);
    int stops[] = {40, 90};
    CHECK(field.edit.SetTabStops(2, stops));
    CHECK(field.edit.PosFromChar(2).x > near20);
    CHECK(field.edit.PosFromChar(2).x < near60);
    field.edit.SetTabStops();
}

TEST_CASE("a field of several lines shows its memory")
{
    Lines field;
    CHECK(field.edit.GetHandle() != NULL);
    CHECK(field.edit.FmtLines(TRUE));
}

TEST_CASE("an edit control is asked for its cue and its mark")
{
    ControlHost host;
    CNewEdit edit;
    REQUIRE(edit.Create(shownChild, CRect(10, 10, 110, 30), &host, 50));
    CHECK(edit.GetCueBanner() == _T("Search"));
    int first = -1, last = -1;
    CHECK(edit.GetHighlight(&first, &last));
    CHECK(first == 2);
    CHECK(last == 5);
    const MessageLog log(edit);
    edit.SetHighlight(1, 4);
    CheckSent(log, ECM_FIRST + 5, 1, 4);
    CEdit plain;
    REQUIRE(plain.Create(shownChild, CRect(10, 40, 110, 60), &host, 51));
    CHECK_FALSE(plain.GetHighlight(&first, &last));
    CHECK(first == 0);
}
