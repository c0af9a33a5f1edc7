// A field to pick a date or a time in.
#pragma once

#include <classes/CTime.h>
#include <classes/CWnd.h>

class CFont;
class CMonthCalCtrl;

struct tagDATETIMEPICKERINFO;

/// The common control "SysDateTimePick32". A time is local; that of a day lies in the control with
/// its date, and the other way round.
class AFX_EXPORTED CDateTimeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CDateTimeCtrl)

public:
    CDateTimeCtrl();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// Colours of the calendar that drops down; nIndex is an MCSC_ value. The setter gives the
    /// former colour back.
    COLORREF GetMonthCalColor(int iColor) const;
    COLORREF SetMonthCalColor(int iColor, COLORREF ref);
    /// As the locale's format; NULL is the one of the style. FALSE when it is refused.
    BOOL SetFormat(LPCTSTR pstrFormat);
    /// The calendar while it is dropped down, else NULL.
    CMonthCalCtrl* GetMonthCalCtrl() const;
    /// The font of that calendar. It stays the caller's and must outlive its use.
    CFont* GetMonthCalFont() const;
    void SetMonthCalFont(HFONT hFont, BOOL bRedraw = TRUE);
    /// Which limits there are: GDTR_MIN and GDTR_MAX. A limit that is not there becomes zero.
    DWORD GetRange(CTime* pMinRange, CTime* pMaxRange) const;
    /// A limit of NULL is none.
    BOOL SetRange(const CTime* pMinRange, const CTime* pMaxRange);
    /// GDT_VALID; GDT_NONE when the box before the date is not checked; GDT_ERROR, also for a date
    /// that CTime cannot hold. The time is left alone unless it is valid.
    DWORD GetTime(CTime& timeDest) const;
    DWORD GetTime(LPSYSTEMTIME pTimeDest) const;
    /// NULL unchecks the box before the date, which style DTS_SHOWNONE brings.
    BOOL SetTime(const CTime* pTimeNew);
    BOOL SetTime(LPSYSTEMTIME pTimeNew = NULL);

    // These need a system newer than the common controls of version 6 and fail without.
    DWORD GetMonthCalStyle() const;
    DWORD SetMonthCalStyle(DWORD dwStyle);
    BOOL GetDateTimePickerInfo(tagDATETIMEPICKERINFO* pDateTimePickerInfo) const;
    BOOL GetIdealSize(LPSIZE pSize) const;
    void CloseMonthCal() const;
};
