// A calendar to pick a day or a span of days in.
#pragma once

#include <classes/CTime.h>
#include <classes/CWnd.h>

struct tagMCGRIDINFO;

/// The common control "SysMonthCal32". Getters answer FALSE for a date that CTime cannot hold, and
/// leave the time alone then.
class AFX_EXPORTED CMonthCalCtrl : public CWnd
{
    DECLARE_DYNAMIC(CMonthCalCtrl)

public:
    CMonthCalCtrl();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    /// As large as one month needs, its upper left corner at the point.
    virtual BOOL Create(DWORD dwStyle, const POINT& pt, CWnd* pParentWnd, UINT nID);

    /// The size that one month needs; no place.
    BOOL GetMinReqRect(RECT* pRect) const;
    /// How many months the arrows go; 0 is as many as are shown. The setter gives the former
    /// number back.
    int GetMonthDelta() const;
    int SetMonthDelta(int iDelta);
    /// 0 is Monday; whether it was set with SetFirstDayOfWeek, in place of the locale's. The setter
    /// gives the former day back, and whether that was one that had been set.
    int GetFirstDayOfWeek(BOOL* pbLocal = NULL) const;
    BOOL SetFirstDayOfWeek(int iDay, int* lpnOld = NULL);
    /// nRegion is an MCSC_ value. The setter gives the former colour back.
    COLORREF GetColor(int nRegion) const;
    COLORREF SetColor(int nRegion, COLORREF ref);

    BOOL GetToday(SYSTEMTIME* pDateTime) const;
    /// NULL is the day that it is.
    void SetToday(const CTime* pDateTime);
    void SetToday(SYSTEMTIME* pDateTime);

    // A calendar with one day selected.
    BOOL GetCurSel(CTime& refDateTime) const;
    BOOL GetCurSel(LPSYSTEMTIME pDateTime) const;
    BOOL SetCurSel(const CTime& refDateTime);
    BOOL SetCurSel(LPSYSTEMTIME pDateTime);

    // A calendar of style MCS_MULTISELECT. The days go to the getters in their order.
    int GetMaxSelCount() const;
    BOOL SetMaxSelCount(int nMax);
    BOOL GetSelRange(CTime& refMinRange, CTime& refMaxRange) const;
    BOOL GetSelRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const;
    BOOL SetSelRange(const CTime& pMinRange, const CTime& pMaxRange);
    BOOL SetSelRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange);

    /// First and last day that is shown (GMR_DAYSTATE), or of the months that are shown whole
    /// (GMR_VISIBLE); returns the number of months.
    int GetMonthRange(CTime& refMinRange, CTime& refMaxRange, DWORD dwFlags) const;
    int GetMonthRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange, DWORD dwFlags) const;
    /// Which limits there are: GDTR_MIN and GDTR_MAX. A limit that is not there becomes zero.
    DWORD GetRange(CTime* pMinRange, CTime* pMaxRange) const;
    DWORD GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const;
    /// A limit of NULL is none.
    BOOL SetRange(const CTime* pMinRange, const CTime* pMaxRange);
    BOOL SetRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange);
    /// Which days are bold, a bit a day, of as many months as GetMonthRange counts.
    BOOL SetDayState(int nMonths, LPMONTHDAYSTATE pStates);
    DWORD HitTest(PMCHITTESTINFO pMCHitTest);
    /// Makes the control as large as one month needs, also so that "today" is not cut.
    BOOL SizeMinReq(BOOL bRepaint = TRUE);

    // These need a system newer than the common controls of version 6 and fail without.
    DWORD GetCurrentView() const;
    BOOL SetCurrentView(DWORD dwNewView);
    BOOL IsMonthView() const;
    BOOL IsYearView() const;
    BOOL IsDecadeView() const;
    BOOL IsCenturyView() const;
    BOOL SetMonthView();
    BOOL SetYearView();
    BOOL SetDecadeView();
    BOOL SetCenturyView();
    int GetCalendarCount() const;
    BOOL GetCalendarGridInfo(tagMCGRIDINFO* pmcGridInfo) const;
    CALID GetCalID() const;
    BOOL SetCalID(CALID calid);
    int GetCalendarBorder() const;
    void SetCalendarBorder(int cxyBorder);
    void SetCalendarBorderDefault();
    DWORD GetMaxTodayWidth() const;
    LPRECT SizeRectToMin(LPRECT lpRect);
};
