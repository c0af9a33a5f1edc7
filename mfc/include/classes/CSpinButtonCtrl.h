// A pair of arrows that change the number in a field beside them.
#pragma once

#include <classes/CWnd.h>

/// The common control "msctls_updown32".
class AFX_EXPORTED CSpinButtonCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSpinButtonCtrl)

public:
    CSpinButtonCtrl();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    BOOL SetAccel(int nAccel, UDACCEL* pAccel);
    UINT GetAccel(int nAccel, UDACCEL* pAccel) const;
    int SetBase(int nBase);
    UINT GetBase() const;
    CWnd* SetBuddy(CWnd* pWndBuddy);
    CWnd* GetBuddy() const;
    /// Returns the former position.
    int SetPos(int nPos);
    /// The position in the low word; the high word is not zero when the buddy shows no number.
    int GetPos() const;
    void SetRange(short nLower, short nUpper);
    void SetRange32(int nLower, int nUpper);
    /// Upper limit in the low word, lower limit in the high word.
    DWORD GetRange() const;
    void GetRange(int& lower, int& upper) const;
    void GetRange32(int& lower, int& upper) const;
};
