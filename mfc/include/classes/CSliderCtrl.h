// A slider, with or without tick marks.
#pragma once

#include <classes/CWnd.h>

class CToolTipCtrl;

/// The common control "msctls_trackbar32".
class AFX_EXPORTED CSliderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSliderCtrl)

public:
    CSliderCtrl();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    int GetLineSize() const;
    /// Returns the former size; so does SetPageSize.
    int SetLineSize(int nSize);
    int GetPageSize() const;
    int SetPageSize(int nSize);
    int GetRangeMax() const;
    int GetRangeMin() const;
    void GetRange(int& nMin, int& nMax) const;
    void SetRange(int nMin, int nMax, BOOL bRedraw = FALSE);
    void SetRangeMin(int nMin, BOOL bRedraw = FALSE);
    void SetRangeMax(int nMax, BOOL bRedraw = FALSE);
    void GetSelection(int& nMin, int& nMax) const;
    void SetSelection(int nMin, int nMax);
    void GetChannelRect(LPRECT lprc) const;
    void GetThumbRect(LPRECT lprc) const;
    int GetPos() const;
    void SetPos(int nPos);
    UINT GetNumTics() const;
    /// The positions of the ticks, owned by the control.
    DWORD* GetTicArray() const;
    int GetTic(int nTic) const;
    /// The tick's place in the client area, in pixels; -1 when there is none.
    int GetTicPos(int nTic) const;
    BOOL SetTic(int nTic);
    void SetTicFreq(int nFreq);
    /// The control beside the slider's left or upper end (TRUE), or the other end.
    CWnd* GetBuddy(BOOL fLocation = TRUE) const;
    CWnd* SetBuddy(CWnd* pWndBuddy, BOOL fLocation = TRUE);
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pWndTip);
    int SetTipSide(int nLocation);
    int GetThumbLength() const;
    void SetThumbLength(int nLength);

    void ClearSel(BOOL bRedraw = FALSE);
    void ClearTics(BOOL bRedraw = FALSE);
};
