#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/Input.h"
#include "testing/MessageLog.h"

#include "tests/mfc/ControlHost.h"
#include "tests/mfc/controls/SentMessage.h"

#include <string>

using namespace umbra::testing;

namespace {

struct RichEdit
{
    ControlHost host;
    CRichEditCtrl edit;

    explicit RichEdit(LPCTSTR text = _T("one two three"))
    {
        const DWORD style = ES_MULTILINE | ES_AUTOVSCROLL | WS_TABSTOP;
        REQUIRE(edit.Create(shownChild | style, CRect(10, 10, 310, 210), &host, 40));
        edit.SendMessage(WM_SETFONT, (WPARAM)::GetStockObject(DEFAULT_GUI_FONT)); // Not bold.
        edit.SetWindowText(text);
    }
    CString Text()
    {
        CString text;
        edit.GetWindowText(text);
        return text;
    }
    bool IsBold(long first, long last)
    {
        edit.SetSel(first, last);
        CHARFORMAT format = {};
        edit.GetSelectionCharFormat(format);
        return (format.dwMask & CFM_BOLD) != 0 && (format.dwEffects & CFE_BOLD) != 0;
    }
    void MakeBold(long first, long last)
    {
        edit.SetSel(first, last);
        CHARFORMAT format = {};
        format.dwMask = CFM_BOLD;
        format.dwEffects = CFE_BOLD;
        CHECK(edit.SetSelectionCharFormat(format));
    }
};

DWORD CALLBACK Write(DWORD_PTR cookie, LPBYTE bytes, LONG count, LONG* done)
{
    reinterpret_cast<std::string*>(cookie)->append(reinterpret_cast<char*>(bytes), count);
    *done = count;
    return 0;
}

DWORD CALLBACK Read(DWORD_PTR cookie, LPBYTE bytes, LONG count, LONG* done)
{
    std::string& source = *reinterpret_cast<std::string*>(cookie);
    *done = static_cast<LONG>(source.copy(reinterpret_cast<char*>(bytes), count));
    source.erase(0, *done);
    return 0;
}

DWORD CALLBACK FailToWrite(DWORD_PTR, LPBYTE, LONG, LONG*)
{
    return 29;
}

EDITSTREAM StreamOf(std::string& text, EDITSTREAMCALLBACK callback)
{
    return {reinterpret_cast<DWORD_PTR>(&text), 0, callback};
}

} // namespace

TEST_CASE("what is typed into a rich edit control arrives, and the parent hears of it")
{
    RichEdit rich(_T(""));
    rich.edit.SetEventMask(ENM_CHANGE);
    CHECK(rich.edit.GetEventMask() == ENM_CHANGE);
    rich.edit.SetFocus();
    REQUIRE(TypeText(_T("Hello")));
    CHECK(rich.Text() == _T("Hello"));
    CHECK(rich.edit.GetTextLength() == 5);
    CHECK(rich.edit.GetModify());
    CHECK(rich.host.Heard(EN_CHANGE));
    rich.edit.SetModify(FALSE);
    CHECK_FALSE(rich.edit.GetModify());
}

TEST_CASE("a rich edit control is of the class that its function registers")
{
    CHECK(AfxInitRichEdit());
    CHECK(AfxInitRichEdit2());
    WNDCLASS known;
    CHECK(::GetClassInfo(AfxGetInstanceHandle(), _T("RICHEDIT"), &known));
    CHECK(::GetClassInfo(AfxGetInstanceHandle(), RICHEDIT_CLASS, &known));
    RichEdit rich;
    TCHAR name[40] = {};
    ::GetClassName(rich.edit, name, _countof(name));
    CHECK(CString(name).CompareNoCase(RICHEDIT_CLASS) == 0);
}

TEST_CASE("the selection of a rich edit control is set, read and replaced")
{
    RichEdit rich;
    rich.edit.SetSel(4, 7);
    CHECK(rich.edit.GetSelText() == _T("two"));
    CHARRANGE range = {};
    rich.edit.GetSel(range);
    CHECK(range.cpMin == 4);
    CHECK(range.cpMax == 7);
    CHECK((rich.edit.GetSelectionType() & SEL_TEXT) != 0);
    TCHAR buffer[20] = {};
    CHECK(rich.edit.GetSelText((LPSTR)buffer) == 3);
    CHECK(CString(buffer) == _T("two"));

    rich.edit.ReplaceSel(_T("2"), TRUE);
    CHECK(rich.Text() == _T("one 2 three"));
    range = {0, 3};
    rich.edit.SetSel(range);
    long first = -1, last = -1;
    rich.edit.GetSel(first, last);
    CHECK(first == 0);
    CHECK(last == 3);
    rich.edit.Clear();
    CHECK(rich.Text() == _T(" 2 three"));
    rich.edit.SetSel(2, 2);
    CHECK(rich.edit.GetSelText() == _T(""));
    rich.edit.HideSelection(TRUE, FALSE);
}

TEST_CASE("ranges of a text are read, also without any")
{
    RichEdit rich;
    CString text;
    CHECK(rich.edit.GetTextRange(4, 7, text) == 3);
    CHECK(text == _T("two"));
    CHECK(rich.edit.GetTextRange(8, -1, text) == 5);
    CHECK(text == _T("three"));
    CHECK(rich.edit.GetTextRange(5, 5, text) == 0);
    CHECK(text == _T(""));
    CHECK(rich.edit.GetTextLengthEx(GTL_DEFAULT) == 13);
}

TEST_CASE("text is found in a rich edit control")
{
    RichEdit rich(_T("one Two two"));
    FINDTEXTEX find = {};
    find.chrg = {0, -1};
    find.lpstrText = const_cast<LPTSTR>(_T("two"));
    CHECK(rich.edit.FindText(FR_DOWN, &find) == 4);
    CHECK(find.chrgText.cpMin == 4);
    CHECK(find.chrgText.cpMax == 7);
    CHECK(rich.edit.FindText(FR_DOWN | FR_MATCHCASE, &find) == 8);
    find.lpstrText = const_cast<LPTSTR>(_T("four"));
    CHECK(rich.edit.FindText(FR_DOWN, &find) == -1);
    const MessageLog log(rich.edit);
    rich.edit.FindWordBreak(WB_RIGHT, 5);
    CheckSent(log, EM_FINDWORDBREAK, WB_RIGHT, 5);
}

TEST_CASE("characters of a selection have a format of their own")
{
    RichEdit rich;
    rich.MakeBold(4, 7);
    CHECK(rich.IsBold(4, 7));
    CHECK_FALSE(rich.IsBold(0, 3));
    CHECK_FALSE(rich.IsBold(0, 7)); // Mixed: the mask leaves it out.

    CHARFORMAT2 large = {};
    large.dwMask = CFM_SIZE | CFM_COLOR | CFM_BACKCOLOR;
    large.yHeight = 20 * 20;
    large.crTextColor = RGB(200, 0, 0);
    large.crBackColor = RGB(0, 0, 90);
    CHECK(rich.edit.SetSelectionCharFormat(large));
    CHARFORMAT2 read = {};
    CHECK((rich.edit.GetSelectionCharFormat(read) & CFM_SIZE) != 0);
    CHECK(read.yHeight == 400);
    CHECK(read.crTextColor == RGB(200, 0, 0));
    CHECK(read.crBackColor == RGB(0, 0, 90));
}

TEST_CASE("a rich edit control has a default format")
{
    RichEdit rich;
    CHARFORMAT format = {};
    format.dwMask = CFM_SIZE;
    format.yHeight = 300;
    CHECK(rich.edit.SetDefaultCharFormat(format));
    format = {};
    rich.edit.GetDefaultCharFormat(format);
    CHECK(format.yHeight == 300);
    CHARFORMAT2 wide = {};
    rich.edit.GetDefaultCharFormat(wide);
    CHECK(wide.yHeight == 300);
    wide.dwMask = CFM_SIZE;
    wide.yHeight = 240;
    CHECK(rich.edit.SetDefaultCharFormat(wide));
    rich.edit.GetDefaultCharFormat(wide);
    CHECK(wide.yHeight == 240);
}

TEST_CASE("a word takes a format, and a paragraph its own")
{
    RichEdit rich;
    rich.edit.SetSel(5, 5); // In "two".
    CHARFORMAT format = {};
    format.dwMask = CFM_ITALIC;
    format.dwEffects = CFE_ITALIC;
    const MessageLog log(rich.edit);
    rich.edit.SetWordCharFormat(format);
    CheckSent(log, EM_SETCHARFORMAT, SCF_SELECTION | SCF_WORD, (LPARAM)&format);
    CHECK(format.cbSize == sizeof(CHARFORMAT));
    CHARFORMAT2 second = {};
    rich.edit.SetWordCharFormat(second);
    CHECK(second.cbSize == sizeof(CHARFORMAT2));

    PARAFORMAT centred = {};
    centred.dwMask = PFM_ALIGNMENT;
    centred.wAlignment = PFA_CENTER;
    CHECK(rich.edit.SetParaFormat(centred));
    PARAFORMAT2 read = {};
    CHECK((rich.edit.GetParaFormat(read) & PFM_ALIGNMENT) != 0);
    CHECK(read.wAlignment == PFA_CENTER);
    read.dwMask = PFM_ALIGNMENT;
    read.wAlignment = PFA_RIGHT;
    CHECK(rich.edit.SetParaFormat(read));
    rich.edit.GetParaFormat(centred);
    CHECK(centred.wAlignment == PFA_RIGHT);
}

TEST_CASE("formatted text goes out of one rich edit control and into another")
{
    RichEdit source, target(_T(""));
    source.MakeBold(4, 7);
    std::string file;
    EDITSTREAM out = StreamOf(file, &Write);
    CHECK(source.edit.StreamOut(SF_RTF, out) > 0);
    CHECK(out.dwError == 0);
    CHECK(file.rfind("{\\rtf", 0) == 0);

    EDITSTREAM in = StreamOf(file, &Read);
    target.edit.StreamIn(SF_RTF, in);
    CHECK(in.dwError == 0);
    CHECK(target.Text().Left(13) == _T("one two three"));
    CHECK(target.IsBold(4, 7));
    CHECK_FALSE(target.IsBold(0, 3));

    source.edit.SetSel(8, 13);
    std::string part;
    EDITSTREAM selected = StreamOf(part, &Write);
    CHECK(source.edit.StreamOut(SF_TEXT | SFF_SELECTION, selected) > 0);
    CHECK(part.find("three") == 0);
}

TEST_CASE("a stream that fails tells its error")
{
    RichEdit rich;
    std::string nothing;
    EDITSTREAM stream = StreamOf(nothing, &FailToWrite);
    rich.edit.StreamOut(SF_TEXT, stream);
    CHECK(stream.dwError == 29);
}

TEST_CASE("a rich edit control has lines and places of characters")
{
    RichEdit rich(_T("first\r\nsecond line\r\nthird"));
    CHECK(rich.edit.GetLineCount() == 3);
    CHECK(rich.edit.LineIndex(1) == 6); // A line ends with one character.
    CHECK(rich.edit.LineFromChar(8) == 1);
    CHECK(rich.edit.LineLength(8) == 11);
    CHECK(rich.edit.GetFirstVisibleLine() == 0);
    TCHAR line[40] = {};
    const int length = rich.edit.GetLine(1, line, _countof(line));
    CHECK(length >= 11);
    CHECK(CString(line).Left(11) == _T("second line"));
    const CPoint start = rich.edit.GetCharPos(0), below = rich.edit.PosFromChar(6);
    CHECK(below.y > start.y);
    CHECK(below.x == start.x);
    CHECK(rich.edit.CharFromPos(CPoint(below.x + 1, below.y + 3)) == 6);
    rich.edit.LineScroll(1);
    CRect area;
    rich.edit.GetRect(area);
    CHECK(area.Width() > 200);
    area.left += 20;
    rich.edit.SetRect(area);
    CRect moved;
    rich.edit.GetRect(moved);
    CHECK(moved.left >= 20);
}

TEST_CASE("what was done in a rich edit control can be undone and done again")
{
    RichEdit rich(_T(""));
    rich.edit.EmptyUndoBuffer();
    CHECK_FALSE(rich.edit.CanUndo());
    rich.edit.SetFocus();
    REQUIRE(TypeText(_T("abc")));
    CHECK(rich.edit.CanUndo());
    CHECK(rich.edit.Undo());
    CHECK(rich.Text() == _T(""));
    CHECK(rich.edit.CanRedo());
    CHECK(rich.edit.Redo());
    CHECK(rich.Text() == _T("abc"));
    rich.edit.StopGroupTyping();
    CHECK(rich.edit.SetUndoLimit(5) == 5);
    const MessageLog log(rich.edit);
    rich.edit.GetUndoName();
    CheckSent(log, EM_GETUNDONAME, 0, 0);
    rich.edit.GetRedoName();
    CheckSent(log, EM_GETREDONAME, 0, 0);
}

TEST_CASE("text goes by the clipboard")
{
    RichEdit rich;
    rich.edit.SetSel(0, 4);
    rich.edit.Copy();
    CHECK(rich.edit.CanPaste());
    rich.edit.SetSel(13, 13);
    rich.edit.Paste();
    CHECK(rich.Text() == _T("one two threeone "));
    rich.edit.SetSel(4, 8);
    rich.edit.Cut();
    CHECK(rich.Text() == _T("one threeone "));
    rich.edit.SetSel(0, 0);
    rich.edit.PasteSpecial(CF_UNICODETEXT);
    CHECK(rich.Text() == _T("two one threeone "));
}

TEST_CASE("a rich edit control has limits, options and modes")
{
    RichEdit rich(_T(""));
    rich.edit.LimitText(100000);
    CHECK(rich.edit.GetLimitText() == 100000);
    rich.edit.SetOptions(ECOOP_OR, ECO_NOHIDESEL);
    CHECK((rich.edit.GetOptions() & ECO_NOHIDESEL) != 0);
    CHECK(rich.edit.SetReadOnly());
    CHECK((rich.edit.GetStyle() & ES_READONLY) != 0);
    CHECK(rich.edit.SetReadOnly(FALSE));
    CHECK(rich.edit.SetTextMode(TM_PLAINTEXT | TM_MULTILEVELUNDO | TM_MULTICODEPAGE));
    CHECK((rich.edit.GetTextMode() & TM_PLAINTEXT) != 0);
    CHECK(rich.edit.SetAutoURLDetect());
    rich.edit.SetBackgroundColor(FALSE, RGB(1, 2, 3));
    CHECK(rich.edit.SetBackgroundColor(TRUE, 0) == RGB(1, 2, 3));
    rich.edit.SetEventMask(ENM_REQUESTRESIZE);
    rich.edit.RequestResize();
    CHECK(rich.host.Heard(EN_REQUESTRESIZE));
}

TEST_CASE("a rich edit control formats its text for a device")
{
    RichEdit rich;
    CClientDC dc(&rich.edit);
    FORMATRANGE range = {};
    range.hdc = range.hdcTarget = dc;
    range.rc = range.rcPage = {0, 0, 6000, 6000}; // Twips.
    range.chrg = {0, -1};
    const MessageLog log(rich.edit);
    rich.edit.FormatRange(&range, FALSE);
    CheckSent(log, EM_FORMATRANGE, FALSE, (LPARAM)&range);
    rich.edit.FormatRange(NULL);
    CheckSent(log, EM_FORMATRANGE, TRUE, 0);
    rich.edit.DisplayBand(&range.rc);
    CheckSent(log, EM_DISPLAYBAND, 0, (LPARAM)&range.rc);
    rich.edit.SetTargetDevice(dc, 5000);
    CheckSent(log, EM_SETTARGETDEVICE, (WPARAM)dc.m_hDC, 5000);
}

TEST_CASE("a rich edit control is asked for what only some systems have")
{
    RichEdit rich;
    const MessageLog log(rich.edit);
    rich.edit.GetPunctuation(PC_LEADING, NULL);
    CheckSent(log, EM_GETPUNCTUATION, PC_LEADING, 0);
    rich.edit.SetPunctuation(PC_LEADING, NULL);
    CheckSent(log, EM_SETPUNCTUATION, PC_LEADING, 0);
    rich.edit.SetWordWrapMode(WBF_WORDWRAP);
    CheckSent(log, EM_SETWORDWRAPMODE, WBF_WORDWRAP, 0);
    rich.edit.GetWordWrapMode();
    CheckSent(log, EM_GETWORDWRAPMODE, 0, 0);
    CHECK(rich.edit.GetIRichEditOle() != NULL);
    rich.edit.SetOLECallback(NULL);
    CheckSent(log, EM_SETOLECALLBACK, 0, 0);
}
