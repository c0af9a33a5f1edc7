#include <afxdd_.h>

#include <afxres.h>
#include <classes/Application.h>
#include <classes/CWnd.h>

#include "dialogs/DialogExchange.h"

#include <errno.h>
#include <float.h>

#include <limits>
#include <optional>

namespace afxint {

CString ReadText(HWND control)
{
    CString text;
    const int length = ::GetWindowTextLength(control);
    ::GetWindowText(control, text.GetBuffer(length), length + 1);
    text.ReleaseBuffer();
    return text;
}

void Refuse(CDataExchange* exchange, LPCTSTR message, UINT id)
{
    AfxMessageBox(message, MB_ICONEXCLAMATION, id);
    exchange->Fail();
}

void Refuse(CDataExchange* exchange, UINT id)
{
    CString message;
    message.LoadString(id);
    Refuse(exchange, message, id);
}

} // namespace afxint

using afxint::ReadText;
using afxint::Refuse;

namespace {

/// Sets the text only when it changes, which spares the control its flicker and notifications.
void WriteText(HWND control, LPCTSTR text)
{
    if (ReadText(control) != text)
        ::SetWindowText(control, text);
}

bool OnlyBlanksFollow(LPCTSTR text)
{
    while (_istspace(static_cast<_TUCHAR>(*text)))
        ++text;
    return *text == '\0';
}

/// The whole text as a decimal number within the limits of the type; nothing when it is not.
template <class T>
std::optional<T> ParseInteger(LPCTSTR text)
{
    using Limits = std::numeric_limits<T>;
    LPTSTR end = NULL;
    errno = 0;
    const long long value = _tcstoi64(text, &end, 10);
    if (end == text || errno == ERANGE || !OnlyBlanksFollow(end))
        return std::nullopt;
    if (value < static_cast<long long>(Limits::min()) ||
        value > static_cast<long long>(Limits::max()))
        return std::nullopt;
    return static_cast<T>(value);
}

template <class T>
void ExchangeInteger(CDataExchange* exchange, int id, T& value, UINT message)
{
    const HWND control = exchange->PrepareEditCtrl(id);
    if (!exchange->m_bSaveAndValidate) {
        CString text;
        text.Format(_T("%I64d"), static_cast<long long>(value));
        WriteText(control, text);
        return;
    }
    const auto parsed = ParseInteger<T>(ReadText(control));
    if (!parsed)
        Refuse(exchange, message);
    value = *parsed;
}

template <class T>
void ExchangeReal(CDataExchange* exchange, int id, T& value)
{
    const HWND control = exchange->PrepareEditCtrl(id);
    if (!exchange->m_bSaveAndValidate) {
        CString text;
        text.Format(_T("%.*g"), std::numeric_limits<T>::digits10, static_cast<double>(value));
        WriteText(control, text);
        return;
    }
    const CString text = ReadText(control);
    LPTSTR end = NULL;
    const double parsed = _tcstod(text, &end);
    if (end == static_cast<LPCTSTR>(text) || !OnlyBlanksFollow(end))
        Refuse(exchange, AFX_IDP_PARSE_REAL);
    value = static_cast<T>(parsed);
}

/// The entry of a list box or of a combo box's list; empty for none.
CString ReadEntry(HWND control, UINT lengthMessage, UINT textMessage, LRESULT index)
{
    CString text;
    if (index < 0)
        return text;
    const LRESULT length = ::SendMessage(control, lengthMessage, index, 0);
    if (length < 0)
        return text;
    ::SendMessage(control, textMessage, index,
                  reinterpret_cast<LPARAM>(text.GetBufferSetLength(static_cast<int>(length))));
    text.ReleaseBuffer();
    return text;
}

void ExchangeListBoxText(CDataExchange* exchange, int id, CString& value, bool exact)
{
    const HWND list = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate) {
        const LRESULT selected = ::SendMessage(list, LB_GETCURSEL, 0, 0);
        value = ReadEntry(list, LB_GETTEXTLEN, LB_GETTEXT, selected);
        return;
    }
    const UINT find = exact ? LB_FINDSTRINGEXACT : LB_FINDSTRING;
    const LRESULT found = ::SendMessage(list, find, static_cast<WPARAM>(-1),
                                        reinterpret_cast<LPARAM>(static_cast<LPCTSTR>(value)));
    if (found != LB_ERR)
        ::SendMessage(list, LB_SETCURSEL, found, 0);
}

void ExchangeComboBoxText(CDataExchange* exchange, int id, CString& value, bool exact)
{
    const HWND combo = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate) {
        value = ReadText(combo);
        return;
    }
    const UINT find = exact ? CB_FINDSTRINGEXACT : CB_FINDSTRING;
    const LRESULT found = ::SendMessage(combo, find, static_cast<WPARAM>(-1),
                                        reinterpret_cast<LPARAM>(static_cast<LPCTSTR>(value)));
    if (found != CB_ERR)
        ::SendMessage(combo, CB_SETCURSEL, found, 0);
    else
        WriteText(combo, value); // What is typed need not be in the list.
}

void ExchangeIndex(CDataExchange* exchange, int id, int& index, UINT get, UINT set)
{
    const HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        index = static_cast<int>(::SendMessage(control, get, 0, 0));
    else
        ::SendMessage(control, set, static_cast<WPARAM>(index), 0);
}

/// Refuses a value out of the limits. Values that the program itself shows are not checked.
template <class T>
void CheckLimits(CDataExchange* exchange, T value, T lowest, T highest, LPCTSTR format,
                 UINT message)
{
    if (value >= lowest && value <= highest)
        return;
    if (!exchange->m_bSaveAndValidate) {
        TRACE(_T("A dialog starts with a value out of its limits.\n"));
        return;
    }
    CString low;
    CString high;
    low.Format(format, lowest);
    high.Format(format, highest);
    CString text;
    AfxFormatString2(text, message, low, high);
    Refuse(exchange, text, message);
}

void CheckSigned(CDataExchange* exchange, LONGLONG value, LONGLONG lowest, LONGLONG highest)
{
    CheckLimits(exchange, value, lowest, highest, _T("%I64d"), AFX_IDP_PARSE_INT_RANGE);
}

void CheckUnsigned(CDataExchange* exchange, ULONGLONG value, ULONGLONG lowest, ULONGLONG highest)
{
    CheckLimits(exchange, value, lowest, highest, _T("%I64u"), AFX_IDP_PARSE_INT_RANGE);
}

} // namespace

void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl)
{
    if (rControl.m_hWnd != NULL)
        return;
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (!rControl.SubclassWindow(control))
        AfxThrowNotSupportedException();
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value)
{
    ExchangeInteger(pDX, nIDC, value, AFX_IDP_PARSE_BYTE);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, short& value)
{
    ExchangeInteger(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value)
{
    ExchangeInteger(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value)
{
    ExchangeInteger(pDX, nIDC, value, AFX_IDP_PARSE_UINT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value)
{
    ExchangeInteger(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value)
{
    ExchangeInteger(pDX, nIDC, value, AFX_IDP_PARSE_UINT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value)
{
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = ReadText(control);
    else
        WriteText(control, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value)
{
    ExchangeReal(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value)
{
    ExchangeReal(pDX, nIDC, value);
}

void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value)
{
    const HWND button = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = static_cast<int>(::SendMessage(button, BM_GETCHECK, 0, 0));
        return;
    }
    if (value < BST_UNCHECKED || value > BST_INDETERMINATE)
        value = BST_UNCHECKED;
    ::SendMessage(button, BM_SETCHECK, static_cast<WPARAM>(value), 0);
}

void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value)
{
    HWND button = pDX->PrepareCtrl(nIDC);
    ASSERT((::GetWindowLong(button, GWL_STYLE) & WS_GROUP) != 0);
    if (pDX->m_bSaveAndValidate)
        value = -1;
    int number = 0;
    do {
        // Labels may stand between the buttons of a group.
        if ((::SendMessage(button, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0) {
            if (!pDX->m_bSaveAndValidate)
                ::SendMessage(button, BM_SETCHECK, number == value, 0);
            else if (::SendMessage(button, BM_GETCHECK, 0, 0) != BST_UNCHECKED)
                value = number;
            ++number;
        }
        button = ::GetWindow(button, GW_HWNDNEXT);
    } while (button != NULL && (::GetWindowLong(button, GWL_STYLE) & WS_GROUP) == 0);
}

void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index)
{
    ExchangeIndex(pDX, nIDC, index, LB_GETCURSEL, LB_SETCURSEL);
}

void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value)
{
    ExchangeListBoxText(pDX, nIDC, value, false);
}

void AFXAPI DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value)
{
    ExchangeListBoxText(pDX, nIDC, value, true);
}

void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index)
{
    ExchangeIndex(pDX, nIDC, index, CB_GETCURSEL, CB_SETCURSEL);
}

void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value)
{
    ExchangeComboBoxText(pDX, nIDC, value, false);
}

void AFXAPI DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value)
{
    ExchangeComboBoxText(pDX, nIDC, value, true);
}

void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value)
{
    const HWND bar = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = ::GetScrollPos(bar, SB_CTL);
    else
        ::SetScrollPos(bar, SB_CTL, value, TRUE);
}

void AFXAPI DDX_Slider(CDataExchange* pDX, int nIDC, int& value)
{
    const HWND slider = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = static_cast<int>(::SendMessage(slider, TBM_GETPOS, 0, 0));
    else
        ::SendMessage(slider, TBM_SETPOS, TRUE, value);
}

void AFXAPI DDX_IPAddress(CDataExchange* pDX, int nIDC, DWORD& value)
{
    const HWND address = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        ::SendMessage(address, IPM_GETADDRESS, 0, reinterpret_cast<LPARAM>(&value));
    else
        ::SendMessage(address, IPM_SETADDRESS, 0, static_cast<LPARAM>(value));
}

void AFXAPI DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal)
{
    CheckUnsigned(pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal)
{
    CheckSigned(pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal)
{
    CheckSigned(pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal)
{
    CheckSigned(pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal)
{
    CheckUnsigned(pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxUnsigned(CDataExchange* pDX, unsigned value, unsigned minVal, unsigned maxVal)
{
    CheckUnsigned(pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxDWord(CDataExchange* pDX, const DWORD& value, DWORD minVal, DWORD maxVal)
{
    CheckUnsigned(pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxLongLong(CDataExchange* pDX, LONGLONG value, LONGLONG minVal, LONGLONG maxVal)
{
    CheckSigned(pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxULongLong(CDataExchange* pDX, ULONGLONG value, ULONGLONG minVal,
                                ULONGLONG maxVal)
{
    CheckUnsigned(pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxFloat(CDataExchange* pDX, const float& value, float minVal, float maxVal)
{
    CheckLimits<double>(pDX, value, minVal, maxVal, _T("%.6g"), AFX_IDP_PARSE_REAL_RANGE);
}

void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, const double& value, double minVal, double maxVal)
{
    CheckLimits(pDX, value, minVal, maxVal, _T("%.15g"), AFX_IDP_PARSE_REAL_RANGE);
}

void AFXAPI DDV_MinMaxSlider(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal)
{
    if (pDX->m_bSaveAndValidate) {
        CheckUnsigned(pDX, value, minVal, maxVal);
        return;
    }
    const HWND slider = afxint::ExchangeAccess::LastControl(*pDX);
    ::SendMessage(slider, TBM_SETRANGEMIN, FALSE, static_cast<LPARAM>(minVal));
    ::SendMessage(slider, TBM_SETRANGEMAX, TRUE, static_cast<LPARAM>(maxVal));
    // The exchange before this check was cut to the range the slider had until now.
    ::SendMessage(slider, TBM_SETPOS, TRUE, static_cast<LPARAM>(value));
}

void AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars)
{
    if (!pDX->m_bSaveAndValidate) {
        const HWND control = afxint::ExchangeAccess::LastControl(*pDX);
        // Edit controls and combo boxes have different messages for it.
        TCHAR className[16];
        ::GetClassName(control, className, _countof(className));
        const bool combo = _tcsicmp(className, WC_COMBOBOX) == 0;
        ::SendMessage(control, combo ? CB_LIMITTEXT : EM_LIMITTEXT, static_cast<WPARAM>(nChars), 0);
        return;
    }
    if (value.GetLength() <= nChars)
        return;
    CString limit;
    limit.Format(_T("%d"), nChars);
    CString text;
    AfxFormatString1(text, AFX_IDP_PARSE_STRING_SIZE, limit);
    Refuse(pDX, text, AFX_IDP_PARSE_STRING_SIZE);
}
