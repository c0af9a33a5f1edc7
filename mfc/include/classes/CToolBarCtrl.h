// A row of buttons.
#pragma once

#include <atltypes.h>
#include <classes/CString.h>
#include <classes/CWnd.h>

class CBitmap;
class CImageList;
class CToolTipCtrl;
struct IDropTarget;

/// The common control "ToolbarWindow32". Buttons have an index, from zero, and the identifier of
/// their command; a parameter says which of the two it takes.
class AFX_EXPORTED CToolBarCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolBarCtrl)

public:
    CToolBarCtrl();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    // Buttons by their command.
    BOOL IsButtonEnabled(int nID) const;
    BOOL IsButtonChecked(int nID) const;
    BOOL IsButtonPressed(int nID) const;
    BOOL IsButtonHidden(int nID) const;
    BOOL IsButtonIndeterminate(int nID) const;
    BOOL IsButtonHighlighted(int nID) const;
    BOOL EnableButton(int nID, BOOL bEnable = TRUE);
    BOOL CheckButton(int nID, BOOL bCheck = TRUE);
    BOOL PressButton(int nID, BOOL bPress = TRUE);
    BOOL HideButton(int nID, BOOL bHide = TRUE);
    BOOL Indeterminate(int nID, BOOL bIndeterminate = TRUE);
    BOOL MarkButton(int nID, BOOL fHighlight = TRUE);
    /// TBSTATE_ values; -1 when there is no such button.
    int GetState(int nID) const;
    BOOL SetState(int nID, UINT nState);
    /// The mask in the structure says which members; returns the index, or -1.
    int GetButtonInfo(int nID, TBBUTTONINFO* ptbbi) const;
    BOOL SetButtonInfo(int nID, TBBUTTONINFO* ptbbi);
    BOOL GetRect(int nID, LPRECT lpRect) const;
    CString GetButtonText(int idButton) const;
    int GetBitmap(int nID) const;
    BOOL ChangeBitmap(int idButton, int iBitmap);
    UINT CommandToIndex(UINT nID) const;

    // Buttons by their index.
    int GetButtonCount() const;
    BOOL GetButton(int nIndex, LPTBBUTTON lpButton) const;
    BOOL AddButtons(int nNumButtons, LPTBBUTTON lpButtons);
    BOOL InsertButton(int nIndex, LPTBBUTTON lpButton);
    BOOL DeleteButton(int nIndex);
    BOOL MoveButton(UINT nOldPos, UINT nNewPos);
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const;
    BOOL SetCmdID(int nIndex, UINT nID);
    /// The index; below zero for a separator, or the nearest when it lies outside.
    int HitTest(LPPOINT ppt) const;
    int GetHotItem() const;
    int SetHotItem(int nHot);
    BOOL MapAccelerator(TCHAR chAccel, UINT* pIDBtn);

    // Images and texts that the buttons name by number. Each returns the number of the first that
    // came new, or -1.
    int AddBitmap(int nNumButtons, UINT nBitmapID);
    int AddBitmap(int nNumButtons, CBitmap* pBitmap);
    int AddString(UINT nStringID);
    /// One after the other, each with its terminator, and one more terminator.
    int AddStrings(LPCTSTR lpszStrings);
    /// The length, or -1 when there is no such string.
    int GetString(int nString, LPTSTR lpstrString, int cchMaxLen) const;
    int GetString(int nString, CString& str) const;
    BOOL ReplaceBitmap(LPTBREPLACEBITMAP pReplaceBitmap);
    UINT GetBitmapFlags() const;
    /// The images of the common controls (IDB_ values) or of a module.
    void LoadImages(int iBitmapID, HINSTANCE hinst);
    // Setters return the former list; the new one stays the caller's.
    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* pImageList);
    CImageList* GetHotImageList() const;
    CImageList* SetHotImageList(CImageList* pImageList);
    CImageList* GetDisabledImageList() const;
    CImageList* SetDisabledImageList(CImageList* pImageList);
    /// These two need a newer system than the common controls of version 6.
    CImageList* GetPressedImageList();
    CImageList* SetPressedImageList(int iImageID, CImageList* pImageList);

    // Sizes are pixels.
    BOOL SetBitmapSize(CSize size);
    BOOL SetButtonSize(CSize size);
    /// Width in the low word, height in the high word.
    DWORD GetButtonSize() const;
    BOOL SetButtonWidth(int cxMin, int cxMax);
    /// Done when the control is created; a control of a template needs it before buttons are added.
    void SetButtonStructSize(int nSize);
    BOOL SetIndent(int iIndent);
    BOOL GetMaxSize(LPSIZE pSize) const;
    int GetMaxTextRows() const;
    BOOL SetMaxTextRows(int iMaxRows);
    int GetRows() const;
    /// Sizes the bar for so many rows, or for more when bLarger; lpRect gets what it is then.
    void SetRows(int nRows, BOOL bLarger, LPRECT lpRect);
    BOOL GetPadding(int* pnHorzPadding, int* pnVertPadding) const;
    DWORD SetPadding(int nHorzPadding, int nVertPadding);
    void GetMetrics(LPTBMETRICS ptbm) const;
    void SetMetrics(LPTBMETRICS ptbm);
    /// To what the buttons and the parent need.
    void AutoSize();

    // Looks.
    DWORD GetStyle() const;
    void SetStyle(DWORD dwStyle);
    DWORD GetExtendedStyle() const;
    DWORD SetExtendedStyle(DWORD dwExStyle);
    DWORD SetDrawTextFlags(DWORD dwMask, DWORD dwDTFlags);
    BOOL GetAnchorHighlight() const;
    BOOL SetAnchorHighlight(BOOL fAnchor = TRUE);
    BOOL GetColorScheme(COLORSCHEME* lpColorScheme) const;
    void SetColorScheme(const COLORSCHEME* lpColorScheme);
    void GetInsertMark(TBINSERTMARK* ptbim) const;
    void SetInsertMark(TBINSERTMARK* ptbim);
    COLORREF GetInsertMarkColor() const;
    COLORREF SetInsertMarkColor(COLORREF clrNew);
    BOOL InsertMarkHitTest(LPPOINT ppt, LPTBINSERTMARK ptbim) const;
    HRESULT SetWindowTheme(LPCWSTR pszSubAppName);

    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pTip);
    /// The window that the notifications go to.
    void SetOwner(CWnd* pWnd);
    /// The caller releases it.
    HRESULT GetDropTarget(IDropTarget** ppDropTarget) const;
    /// Shows the dialog to change the bar with, and keeps its state in the registry.
    void Customize();
    void SaveState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName);
    void RestoreState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName);
};
