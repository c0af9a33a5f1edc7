// A frame of bands that can be moved and sized.
#pragma once

#include <atltypes.h>
#include <classes/CWnd.h>
#include <uxtheme.h>

class CImageList;
class CPalette;
class CToolTipCtrl;
struct IDropTarget;

/// The common control "ReBarWindow32". Bands count from zero; -1 is none.
class AFX_EXPORTED CReBarCtrl : public CWnd
{
    DECLARE_DYNAMIC(CReBarCtrl)

public:
    CReBarCtrl();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    UINT GetBandCount() const;
    BOOL GetBandInfo(UINT uBand, REBARBANDINFO* prbbi) const;
    BOOL SetBandInfo(UINT uBand, REBARBANDINFO* prbbi);
    UINT GetBarHeight() const;
    BOOL GetBarInfo(REBARINFO* prbi) const;
    BOOL SetBarInfo(REBARINFO* prbi);
    /// Setters of colours give the former one back.
    COLORREF GetBkColor() const;
    COLORREF SetBkColor(COLORREF clr);
    COLORREF GetTextColor() const;
    COLORREF SetTextColor(COLORREF clr);
    BOOL GetColorScheme(COLORSCHEME* lpcs);
    void SetColorScheme(const COLORSCHEME* lpcs);
    /// RBS_EX_ values, of the new style those in the mask. Returns the former style.
    DWORD GetExtendedStyle() const;
    DWORD SetExtendedStyle(DWORD dwMask, DWORD dwStyleEx);
    UINT GetRowCount() const;
    UINT GetRowHeight(UINT uRow) const;
    BOOL GetRect(UINT uBand, LPRECT prc) const;
    void GetBandBorders(UINT uBand, LPRECT prc) const;
    void GetBandMargins(PMARGINS pMargins);
    CImageList* GetImageList() const;
    /// The list stays the caller's.
    BOOL SetImageList(CImageList* pImageList);
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pToolTip);
    CPalette* GetPalette() const;
    /// Returns the former palette.
    CPalette* SetPalette(HPALETTE hPal);
    /// The window that the notifications go to. Returns the former one.
    CWnd* SetOwner(CWnd* pWnd);
    /// The caller releases it; NULL when the control has none.
    IDropTarget* GetDropTarget() const;
    HRESULT SetWindowTheme(LPCWSTR pszSubAppName);
    /// Needs the common controls of version 6 of a newer system and fails without.
    BOOL SetBandWidth(UINT uBand, int cxWidth);

    BOOL InsertBand(UINT uIndex, REBARBANDINFO* prbbi);
    BOOL DeleteBand(UINT uBand);
    BOOL MoveBand(UINT uFrom, UINT uTo);
    BOOL ShowBand(UINT uBand, BOOL fShow = TRUE);
    void MinimizeBand(UINT uBand);
    void MaximizeBand(UINT uBand);
    /// To its ideal width.
    void RestoreBand(UINT uBand);
    int IDToIndex(UINT uBandID) const;
    int HitTest(RBHITTESTINFO* prbht);
    BOOL SizeToRect(CRect& rect);
    /// The position of the pointer, or -1 for where it was at the last message.
    void BeginDrag(UINT uBand, DWORD dwPos = static_cast<DWORD>(-1));
    void DragMove(DWORD dwPos = static_cast<DWORD>(-1));
    void EndDrag();
    /// As if the user had clicked on the band's chevron.
    void PushChevron(UINT uBand, LPARAM lAppValue);
};
