// Exchange and validation of dialog data. A DDX_ function moves a value between a control and a
// member; a DDV_ function, called right after it, checks the value. Whatever is wrong is told to
// the user and ends the exchange.
#pragma once

#include <classes/CDataExchange.h>
#include <classes/CString.h>

class CTime;
class CWnd;

/// Attaches the object to its control, the first time it is called.
AFX_EXPORTED void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);

AFX_EXPORTED void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value);
AFX_EXPORTED void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, short& value);
AFX_EXPORTED void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value);
AFX_EXPORTED void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
AFX_EXPORTED void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value);
AFX_EXPORTED void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value);
AFX_EXPORTED void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
AFX_EXPORTED void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value);
AFX_EXPORTED void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value);

/// 0 unchecked, 1 checked, 2 in between.
AFX_EXPORTED void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value);
/// The number, from 0, of the checked button in the group that starts at nIDC; -1 for none.
AFX_EXPORTED void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
AFX_EXPORTED void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
AFX_EXPORTED void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value);
AFX_EXPORTED void AFXAPI DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value);
AFX_EXPORTED void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
AFX_EXPORTED void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value);
AFX_EXPORTED void AFXAPI DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value);
AFX_EXPORTED void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value);
AFX_EXPORTED void AFXAPI DDX_Slider(CDataExchange* pDX, int nIDC, int& value);
AFX_EXPORTED void AFXAPI DDX_IPAddress(CDataExchange* pDX, int nIDC, DWORD& value);
/// Leaves the value alone while the control has no date, or one that CTime cannot hold.
AFX_EXPORTED void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CTime& value);
/// The date as the control shows it. One that the system does not understand is no date.
AFX_EXPORTED void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CString& value);
AFX_EXPORTED void AFXAPI DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, CTime& value);

AFX_EXPORTED void AFXAPI DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal);
AFX_EXPORTED void AFXAPI DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal,
                                         short maxVal);
AFX_EXPORTED void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);
AFX_EXPORTED void AFXAPI DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal);
AFX_EXPORTED void AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal);
AFX_EXPORTED void AFXAPI DDV_MinMaxUnsigned(CDataExchange* pDX, unsigned value, unsigned minVal,
                                            unsigned maxVal);
AFX_EXPORTED void AFXAPI DDV_MinMaxDWord(CDataExchange* pDX, const DWORD& value, DWORD minVal,
                                         DWORD maxVal);
AFX_EXPORTED void AFXAPI DDV_MinMaxLongLong(CDataExchange* pDX, LONGLONG value, LONGLONG minVal,
                                            LONGLONG maxVal);
AFX_EXPORTED void AFXAPI DDV_MinMaxULongLong(CDataExchange* pDX, ULONGLONG value, ULONGLONG minVal,
                                             ULONGLONG maxVal);
AFX_EXPORTED void AFXAPI DDV_MinMaxFloat(CDataExchange* pDX, const float& value, float minVal,
                                         float maxVal);
AFX_EXPORTED void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, const double& value, double minVal,
                                          double maxVal);
AFX_EXPORTED void AFXAPI DDV_MinMaxSlider(CDataExchange* pDX, DWORD value, DWORD minVal,
                                          DWORD maxVal);
/// Gives the control its range when loading. A limit of NULL is none.
AFX_EXPORTED void AFXAPI DDV_MinMaxDateTime(CDataExchange* pDX, CTime& refValue,
                                            const CTime* pMinRange, const CTime* pMaxRange);
AFX_EXPORTED void AFXAPI DDV_MinMaxMonth(CDataExchange* pDX, CTime& refValue,
                                         const CTime* pMinRange, const CTime* pMaxRange);
/// Limits what can be typed, and checks the length.
AFX_EXPORTED void AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars);
