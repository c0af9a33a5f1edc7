// A bar that shows how far a long task has come.
#pragma once

#include <classes/CWnd.h>

/// The common control "msctls_progress32".
class AFX_EXPORTED CProgressCtrl : public CWnd
{
    DECLARE_DYNAMIC(CProgressCtrl)

public:
    CProgressCtrl();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    void SetRange(short nLower, short nUpper);
    void SetRange32(int nLower, int nUpper);
    void GetRange(int& nLower, int& nUpper);
    int GetPos();
    /// Returns the former position; so do OffsetPos and StepIt.
    int SetPos(int nPos);
    int OffsetPos(int nPos);
    int StepIt();
    /// Returns the former step.
    int SetStep(int nStep);
    int GetStep() const;
    COLORREF SetBkColor(COLORREF clrNew);
    COLORREF GetBkColor() const;
    COLORREF SetBarColor(COLORREF clrBar);
    COLORREF GetBarColor() const;
    /// Runs or stops the bar of style PBS_MARQUEE; the interval is in milliseconds.
    BOOL SetMarquee(BOOL fMarqueeMode, int nInterval);
    int SetState(int iState);
    int GetState() const;
};
