#include <afxwin.h>
#include <afxcmn.h>
#include <afxres.h>

#include <doctest/doctest.h>

#include "testing/DialogTemplate.h"
#include "testing/MessageLog.h"
#include "testing/NextDialog.h"

#include "tests/mfc/MessageBoxText.h"

#include <functional>

using namespace umbra::testing;

namespace {

enum {
    nameEdit = 100,
    numberEdit,
    checkBox,
    firstRadio,
    labelBetween,
    secondRadio,
    thirdRadio,
    listBox,
    dropList,
    comboEdit,
    scrollBar,
    slider,
    nothingThere
};

/// A page of all kinds of controls, whose exchange is what the test says.
class CExchangeDialog : public CDialog
{
public:
    std::function<void(CDataExchange*)> m_exchange = [](CDataExchange*) {};
    int m_nChanges = 0;

    BOOL Open()
    {
        DialogTemplate page(0, 0, 200, 200, DialogTemplate::popup | WS_VISIBLE);
        page.Edit(nameEdit, _T(""), 5, 5, 80, 12)
            .Edit(numberEdit, _T(""), 5, 20, 80, 12)
            .Button(checkBox, _T("Check"), 5, 35, 80, 12, DialogTemplate::tabStop | BS_AUTO3STATE)
            .Button(firstRadio, _T("One"), 5, 50, 80, 12,
                    DialogTemplate::tabStop | WS_GROUP | BS_AUTORADIOBUTTON)
            .Label(labelBetween, _T("between"), 5, 62, 80, 10)
            .Button(secondRadio, _T("Two"), 5, 74, 80, 12,
                    DialogTemplate::visibleChild | BS_AUTORADIOBUTTON)
            .Button(thirdRadio, _T("Three"), 5, 86, 80, 12,
                    DialogTemplate::visibleChild | BS_AUTORADIOBUTTON)
            .ListBox(listBox, 100, 5, 80, 40, DialogTemplate::tabStop | WS_GROUP | LBS_NOTIFY)
            .ComboBox(dropList, 100, 50, 80, 60)
            .ComboBox(comboEdit, 100, 70, 80, 60, DialogTemplate::tabStop | CBS_DROPDOWN)
            .Add(_T("ScrollBar"), scrollBar, _T(""), 5, 110, 80, 10)
            .Add(TRACKBAR_CLASS, slider, _T(""), 5, 125, 80, 20);
        if (!CreateIndirect(page.Get()))
            return FALSE;
        for (LPCTSTR text : {_T("alpha"), _T("alphabet"), _T("beta")}) {
            SendDlgItemMessage(listBox, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
            SendDlgItemMessage(dropList, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
            SendDlgItemMessage(comboEdit, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
        }
        GetDlgItem(scrollBar)->SetScrollRange(SB_CTL, 0, 50);
        return TRUE;
    }
    ~CExchangeDialog() override { DestroyWindow(); }

    BOOL Save(std::function<void(CDataExchange*)> exchange)
    {
        m_exchange = std::move(exchange);
        return UpdateData(TRUE);
    }
    BOOL Load(std::function<void(CDataExchange*)> exchange)
    {
        m_exchange = std::move(exchange);
        return UpdateData(FALSE);
    }
    CString Text(int id) const
    {
        CString text;
        GetDlgItemText(id, text);
        return text;
    }
    LRESULT Ask(int id, UINT message) { return SendDlgItemMessage(id, message, 0, 0); }

protected:
    void DoDataExchange(CDataExchange* pDX) override { m_exchange(pDX); }
    afx_msg void OnChange() { ++m_nChanges; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CExchangeDialog, CDialog)
    ON_EN_CHANGE(nameEdit, &CExchangeDialog::OnChange)
END_MESSAGE_MAP()

/// Saves, and answers the complaint that has to come. Gives its text.
CString Complaint(CExchangeDialog& dialog, std::function<void(CDataExchange*)> exchange)
{
    CString text;
    NextDialog answer([&](HWND box) {
        text = MessageBoxText(box);
        ::PostMessage(box, WM_COMMAND, IDOK, 0);
    });
    CHECK_FALSE(dialog.Save(std::move(exchange)));
    CHECK(answer.HasRun());
    return text;
}

CString LibraryString(UINT id)
{
    CString text;
    text.LoadString(id);
    CHECK_FALSE(text.IsEmpty());
    return text;
}

/// Puts a value into the edit control and takes another text out of it.
template <class T>
struct NumberTrip
{
    CExchangeDialog dialog;
    T value{};
    NumberTrip() { REQUIRE(dialog.Open()); }
    CString Show(T shown)
    {
        value = shown;
        CHECK(dialog.Load([this](CDataExchange* dx) { DDX_Text(dx, numberEdit, value); }));
        return dialog.Text(numberEdit);
    }
    bool Take(LPCTSTR text)
    {
        dialog.SetDlgItemText(numberEdit, text);
        return dialog.Save([this](CDataExchange* dx) { DDX_Text(dx, numberEdit, value); });
    }
    CString Refuse(LPCTSTR text)
    {
        dialog.SetDlgItemText(numberEdit, text);
        return Complaint(dialog, [this](CDataExchange* dx) { DDX_Text(dx, numberEdit, value); });
    }
};

} // namespace

TEST_CASE("text goes to the control and back")
{
    CExchangeDialog dialog;
    REQUIRE(dialog.Open());
    CString name = "from the member";
    const auto exchange = [&](CDataExchange* dx) { DDX_Text(dx, nameEdit, name); };
    CHECK(dialog.Load(exchange));
    CHECK(dialog.Text(nameEdit) == "from the member");
    dialog.SetDlgItemText(nameEdit, _T("from the control"));
    CHECK(dialog.Save(exchange));
    CHECK(name == "from the control");
}

TEST_CASE("a text that is there already is not set again")
{
    CExchangeDialog dialog;
    REQUIRE(dialog.Open());
    CString name = "same";
    const auto exchange = [&](CDataExchange* dx) { DDX_Text(dx, nameEdit, name); };
    const MessageLog log(dialog.GetDlgItem(nameEdit)->m_hWnd);
    dialog.Load(exchange);
    CHECK(log.Count(WM_SETTEXT) == 1);
    dialog.Load(exchange);
    CHECK(log.Count(WM_SETTEXT) == 1);
}

TEST_CASE("changes that the exchange itself makes are not notified")
{
    CExchangeDialog dialog;
    REQUIRE(dialog.Open());
    CString name = "new";
    dialog.Load([&](CDataExchange* dx) { DDX_Text(dx, nameEdit, name); });
    CHECK(dialog.m_nChanges == 0);
    dialog.SetDlgItemText(nameEdit, _T("newer"));
    CHECK(dialog.m_nChanges == 1);
}

TEST_CASE("whole numbers of every size are shown and read")
{
    NumberTrip<int> number;
    CHECK(number.Show(-12) == "-12");
    CHECK(number.Take(_T(" 34 ")));
    CHECK(number.value == 34);

    NumberTrip<short> small;
    CHECK(small.Show(-32768) == "-32768");
    CHECK(small.Take(_T("32767")));
    CHECK(small.value == 32767);

    NumberTrip<long> large;
    CHECK(large.Take(_T("-2147483648")));
    CHECK(large.value == LONG_MIN);

    NumberTrip<UINT> positive;
    CHECK(positive.Show(4000000000u) == "4000000000");
    CHECK(positive.Take(_T("4294967295")));
    CHECK(positive.value == UINT_MAX);

    NumberTrip<DWORD> word;
    CHECK(word.Take(_T("4294967295")));
    CHECK(word.value == MAXDWORD);

    NumberTrip<BYTE> byte;
    CHECK(byte.Show(200) == "200");
    CHECK(byte.Take(_T("255")));
    CHECK(byte.value == 255);
}

TEST_CASE("what is no number of the kind is refused with the standard message")
{
    NumberTrip<int> number;
    number.value = 5;
    CHECK(number.Refuse(_T("abc")) == LibraryString(AFX_IDP_PARSE_INT));
    CHECK(number.Refuse(_T("")) == LibraryString(AFX_IDP_PARSE_INT));
    CHECK(number.Refuse(_T("12x")) == LibraryString(AFX_IDP_PARSE_INT));
    CHECK(number.Refuse(_T("2147483648")) == LibraryString(AFX_IDP_PARSE_INT));
    CHECK(number.value == 5);

    NumberTrip<short> small;
    CHECK(small.Refuse(_T("32768")) == LibraryString(AFX_IDP_PARSE_INT));
    NumberTrip<UINT> positive;
    CHECK_FALSE(positive.Refuse(_T("-1")).IsEmpty());
    NumberTrip<BYTE> byte;
    CHECK(byte.Refuse(_T("256")) == LibraryString(AFX_IDP_PARSE_BYTE));
    NumberTrip<double> real;
    CHECK(real.Refuse(_T("1.5 apples")) == LibraryString(AFX_IDP_PARSE_REAL));
}

TEST_CASE("numbers with a fraction are shown and read")
{
    NumberTrip<double> real;
    CHECK(real.Show(0.1) == "0.1");
    CHECK(real.Show(-2.5e10) == "-25000000000");
    CHECK(real.Take(_T("1e3")));
    CHECK(real.value == 1000.0);
    NumberTrip<float> single;
    CHECK(single.Show(0.1f) == "0.1");
    CHECK(single.Take(_T("2.25")));
    CHECK(single.value == 2.25f);
}

TEST_CASE("a refused control has the focus and its text selected")
{
    CExchangeDialog dialog;
    REQUIRE(dialog.Open());
    int number = 0;
    dialog.SetDlgItemText(numberEdit, _T("abcdef"));
    dialog.GetDlgItem(nameEdit)->SetFocus();
    Complaint(dialog, [&](CDataExchange* dx) { DDX_Text(dx, numberEdit, number); });
    CHECK(CWnd::GetFocus() == dialog.GetDlgItem(numberEdit));
    CHECK(dialog.Ask(numberEdit, EM_GETSEL) == MAKELRESULT(0, 6));
}

TEST_CASE("an exchange ends where it fails")
{
    CExchangeDialog dialog;
    REQUIRE(dialog.Open());
    CString name = "before";
    int number = 0;
    dialog.SetDlgItemText(nameEdit, _T("after"));
    dialog.SetDlgItemText(numberEdit, _T("abc"));
    Complaint(dialog, [&](CDataExchange* dx) {
        DDX_Text(dx, numberEdit, number);
        DDX_Text(dx, nameEdit, name);
    });
    CHECK(name == "before");
}

TEST_CASE("a value out of its limits is refused when it is saved, not when it is shown")
{
    CExchangeDialog dialog;
    REQUIRE(dialog.Open());
    int number = 99;
    const auto exchange = [&](CDataExchange* dx) {
        DDX_Text(dx, numberEdit, number);
        DDV_MinMaxInt(dx, number, -5, 10);
    };
    CHECK(dialog.Load(exchange));
    CHECK(dialog.Text(numberEdit) == "99");
    CString expected;
    AfxFormatString2(expected, AFX_IDP_PARSE_INT_RANGE, _T("-5"), _T("10"));
    CHECK(Complaint(dialog, exchange) == expected.GetString());
    dialog.SetDlgItemText(numberEdit, _T("-5"));
    CHECK(dialog.Save(exchange));
    dialog.SetDlgItemText(numberEdit, _T("10"));
    CHECK(dialog.Save(exchange));
}

TEST_CASE("the limits of every kind hold")
{
    CExchangeDialog dialog;
    REQUIRE(dialog.Open());
    CHECK_FALSE(Complaint(dialog, [](auto* dx) { DDV_MinMaxByte(dx, 9, 1, 8); }).IsEmpty());
    CHECK_FALSE(Complaint(dialog, [](auto* dx) { DDV_MinMaxShort(dx, -9, -8, 8); }).IsEmpty());
    CHECK_FALSE(Complaint(dialog, [](auto* dx) { DDV_MinMaxLong(dx, 9, -8, 8); }).IsEmpty());
    CHECK_FALSE(Complaint(dialog, [](auto* dx) { DDV_MinMaxUInt(dx, 0, 1, 8); }).IsEmpty());
    CHECK_FALSE(Complaint(dialog, [](auto* dx) { DDV_MinMaxUnsigned(dx, 9, 1, 8); }).IsEmpty());
    CHECK_FALSE(Complaint(dialog, [](auto* dx) { DDV_MinMaxDWord(dx, MAXDWORD, 0, 8); }).IsEmpty());
    CHECK_FALSE(
        Complaint(dialog, [](auto* dx) { DDV_MinMaxLongLong(dx, 1LL << 40, 0, 8); }).IsEmpty());
    CHECK_FALSE(
        Complaint(dialog, [](auto* dx) { DDV_MinMaxULongLong(dx, 1ULL << 63, 0, 8); }).IsEmpty());
    CHECK(Complaint(dialog, [](auto* dx) { DDV_MinMaxFloat(dx, 0.5f, 1.5f, 2); }).Find(_T("1.5")) >=
          0);
    CHECK(Complaint(dialog, [](auto* dx) { DDV_MinMaxDouble(dx, 3, 0, 2.25); }).Find(_T("2.25")) >=
          0);
    CHECK(dialog.Save([](auto* dx) {
        DDV_MinMaxByte(dx, 8, 1, 8);
        DDV_MinMaxULongLong(dx, 1ULL << 63, 0, ULLONG_MAX);
        DDV_MinMaxDouble(dx, 2.25, 0, 2.25);
    }));
}

TEST_CASE("a text is limited while it is typed and checked when it is saved")
{
    CExchangeDialog dialog;
    REQUIRE(dialog.Open());
    CString name;
    CString choice;
    const auto exchange = [&](CDataExchange* dx) {
        DDX_Text(dx, nameEdit, name);
        DDV_MaxChars(dx, name, 4);
    };
    CHECK(dialog.Load(exchange));
    CHECK(dialog.Ask(nameEdit, EM_GETLIMITTEXT) == 4);
    dialog.SetDlgItemText(nameEdit, _T("12345")); // A program may still set more.
    CString expected;
    AfxFormatString1(expected, AFX_IDP_PARSE_STRING_SIZE, _T("4"));
    CHECK(Complaint(dialog, exchange) == expected.GetString());
    dialog.SetDlgItemText(nameEdit, _T("1234"));
    CHECK(dialog.Save(exchange));

    CHECK(dialog.Load([&](CDataExchange* dx) {
        DDX_CBString(dx, comboEdit, choice);
        DDV_MaxChars(dx, choice, 6);
    }));
    const HWND edit = ::GetWindow(dialog.GetDlgItem(comboEdit)->m_hWnd, GW_CHILD);
    CHECK(::SendMessage(edit, EM_GETLIMITTEXT, 0, 0) == 6);
}

TEST_CASE("a check box has three states, and nonsense counts as unchecked")
{
    CExchangeDialog dialog;
    REQUIRE(dialog.Open());
    int state = 2;
    const auto exchange = [&](CDataExchange* dx) { DDX_Check(dx, checkBox, state); };
    dialog.Load(exchange);
    CHECK(dialog.IsDlgButtonChecked(checkBox) == 2);
    dialog.CheckDlgButton(checkBox, 1);
    CHECK(dialog.Save(exchange));
    CHECK(state == 1);
    state = 7;
    dialog.Load(exchange);
    CHECK(dialog.IsDlgButtonChecked(checkBox) == 0);
}

TEST_CASE("radio buttons are counted through the group, over labels, with -1 for none")
{
    CExchangeDialog dialog;
    REQUIRE(dialog.Open());
    int choice = 5;
    const auto exchange = [&](CDataExchange* dx) { DDX_Radio(dx, firstRadio, choice); };
    CHECK(dialog.Save(exchange));
    CHECK(choice == -1);
    choice = 1;
    dialog.Load(exchange);
    CHECK(dialog.IsDlgButtonChecked(secondRadio) == 1);
    CHECK(dialog.IsDlgButtonChecked(firstRadio) == 0);
    dialog.CheckRadioButton(firstRadio, thirdRadio, thirdRadio);
    CHECK(dialog.Save(exchange));
    CHECK(choice == 2);
    choice = -1;
    dialog.Load(exchange);
    CHECK(dialog.IsDlgButtonChecked(thirdRadio) == 0);
}

TEST_CASE("list boxes exchange an index or a text")
{
    CExchangeDialog dialog;
    REQUIRE(dialog.Open());
    int index = 2;
    CString text = "ALPHAB";
    const auto byIndex = [&](CDataExchange* dx) { DDX_LBIndex(dx, listBox, index); };
    const auto byText = [&](CDataExchange* dx) { DDX_LBString(dx, listBox, text); };
    const auto byExactText = [&](CDataExchange* dx) { DDX_LBStringExact(dx, listBox, text); };
    dialog.Load(byIndex);
    CHECK(dialog.Ask(listBox, LB_GETCURSEL) == 2);
    dialog.Load(byText);
    CHECK(dialog.Ask(listBox, LB_GETCURSEL) == 1);
    CHECK(dialog.Save(byText));
    CHECK(text == "alphabet");
    text = "alpha";
    dialog.Load(byExactText);
    CHECK(dialog.Ask(listBox, LB_GETCURSEL) == 0);
    text = "alp";
    dialog.SendDlgItemMessage(listBox, LB_SETCURSEL, 2, 0);
    dialog.Load(byExactText);
    CHECK(dialog.Ask(listBox, LB_GETCURSEL) == 2);
    index = -1;
    dialog.Load(byIndex);
    CHECK(dialog.Save(byText));
    CHECK(text == "");
    index = 1;
    CHECK(dialog.Save(byIndex));
    CHECK(index == -1);
}

TEST_CASE("combo boxes exchange an index or a text, which need not be in the list")
{
    CExchangeDialog dialog;
    REQUIRE(dialog.Open());
    int index = 2;
    CString text = "alphab";
    dialog.Load([&](CDataExchange* dx) { DDX_CBIndex(dx, dropList, index); });
    CHECK(dialog.Text(dropList) == "beta");
    dialog.Load([&](CDataExchange* dx) { DDX_CBString(dx, dropList, text); });
    CHECK(dialog.Ask(dropList, CB_GETCURSEL) == 1);
    CHECK(dialog.Save([&](CDataExchange* dx) { DDX_CBString(dx, dropList, text); }));
    CHECK(text == "alphabet");

    text = "alp";
    dialog.Load([&](CDataExchange* dx) { DDX_CBStringExact(dx, comboEdit, text); });
    CHECK(dialog.Text(comboEdit) == "alp");
    CHECK(dialog.Ask(comboEdit, CB_GETCURSEL) == -1);
    dialog.SetDlgItemText(comboEdit, _T("typed"));
    CHECK(dialog.Save([&](CDataExchange* dx) { DDX_CBStringExact(dx, comboEdit, text); }));
    CHECK(text == "typed");
    index = -1;
    dialog.Load([&](CDataExchange* dx) { DDX_CBIndex(dx, dropList, index); });
    CHECK(dialog.Ask(dropList, CB_GETCURSEL) == -1);
}

TEST_CASE("scroll bars and sliders exchange their positions")
{
    CExchangeDialog dialog;
    REQUIRE(dialog.Open());
    int position = 20;
    dialog.Load([&](CDataExchange* dx) { DDX_Scroll(dx, scrollBar, position); });
    CHECK(dialog.GetDlgItem(scrollBar)->GetScrollPos(SB_CTL) == 20);
    dialog.GetDlgItem(scrollBar)->SetScrollPos(SB_CTL, 30);
    CHECK(dialog.Save([&](CDataExchange* dx) { DDX_Scroll(dx, scrollBar, position); }));
    CHECK(position == 30);

    position = 150;
    const auto slide = [&](CDataExchange* dx) {
        DDX_Slider(dx, slider, position);
        DDV_MinMaxSlider(dx, static_cast<DWORD>(position), 10, 200);
    };
    dialog.Load(slide);
    CHECK(dialog.Ask(slider, TBM_GETPOS) == 150);
    CHECK(dialog.Ask(slider, TBM_GETRANGEMAX) == 200);
    dialog.SendDlgItemMessage(slider, TBM_SETPOS, TRUE, 60);
    CHECK(dialog.Save(slide));
    CHECK(position == 60);
}

TEST_CASE("a control is attached to its object once")
{
    CExchangeDialog dialog;
    REQUIRE(dialog.Open());
    struct CCountedEdit : CEdit
    {
        int m_nSubclassed = 0;
        void PreSubclassWindow() override { ++m_nSubclassed; }
    } edit;
    const auto exchange = [&](CDataExchange* dx) { DDX_Control(dx, nameEdit, edit); };
    CHECK(dialog.Load(exchange));
    CHECK(edit.m_hWnd == ::GetDlgItem(dialog.m_hWnd, nameEdit));
    CHECK(dialog.GetDlgItem(nameEdit) == &edit);
    CHECK(dialog.Load(exchange));
    CHECK(dialog.Save(exchange));
    CHECK(edit.m_nSubclassed == 1);
}

TEST_CASE("a missing control fails the exchange")
{
    CExchangeDialog dialog;
    REQUIRE(dialog.Open());
    CDataExchange exchange(&dialog, TRUE);
    CRuntimeClass* thrown = nullptr;
    try {
        exchange.PrepareCtrl(nothingThere);
    } catch (CException* e) {
        thrown = e->GetRuntimeClass();
        e->Delete();
    }
    CHECK(thrown == RUNTIME_CLASS(CNotSupportedException));
}

TEST_CASE("Fail throws a user exception")
{
    CExchangeDialog dialog;
    REQUIRE(dialog.Open());
    dialog.GetDlgItem(nameEdit)->SetFocus();
    CDataExchange exchange(&dialog, TRUE);
    CHECK(exchange.PrepareCtrl(checkBox) == ::GetDlgItem(dialog.m_hWnd, checkBox));
    bool caught = false;
    try {
        exchange.Fail();
    } catch (CUserException* e) {
        caught = true;
        e->Delete();
    }
    CHECK(caught);
    CHECK(::GetFocus() == ::GetDlgItem(dialog.m_hWnd, checkBox));
}
