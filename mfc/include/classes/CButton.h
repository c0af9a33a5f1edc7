// A push button, check box, radio button or group box.
#pragma once

#include <classes/CString.h>
#include <classes/CWnd.h>

class CImageList;

struct tagBUTTON_SPLITINFO;

/// The system's "Button" control. Setters of pictures give back the former picture and take no
/// ownership of the new one.
class AFX_EXPORTED CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)

public:
    CButton();

    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID);

    UINT GetState() const;
    void SetState(BOOL bHighlight);
    int GetCheck() const;
    void SetCheck(int nCheck);
    UINT GetButtonStyle() const;
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE);

    HICON SetIcon(HICON hIcon);
    HICON GetIcon() const;
    HBITMAP SetBitmap(HBITMAP hBitmap);
    HBITMAP GetBitmap() const;
    HCURSOR SetCursor(HCURSOR hCursor);
    HCURSOR GetCursor();

    // These five need the common controls of version 6 and fail without.
    BOOL GetIdealSize(LPSIZE psize);
    BOOL SetImageList(PBUTTON_IMAGELIST pbuttonImagelist);
    BOOL GetImageList(PBUTTON_IMAGELIST pbuttonImagelist);
    BOOL SetTextMargin(LPRECT pmargin);
    BOOL GetTextMargin(LPRECT pmargin);

    // These need a newer system than the common controls of version 6, and a button of style
    // BS_SPLITBUTTON or BS_COMMANDLINK, and fail without.
    TCHAR GetSplitGlyph() const;
    BOOL SetSplitGlyph(TCHAR chGlyph);
    CImageList* GetSplitImageList() const;
    BOOL SetSplitImageList(CImageList* pSplitImageList);
    BOOL GetSplitInfo(tagBUTTON_SPLITINFO* pInfo) const;
    BOOL SetSplitInfo(tagBUTTON_SPLITINFO* pInfo);
    BOOL GetSplitSize(LPSIZE pSize) const;
    BOOL SetSplitSize(LPSIZE pSize);
    /// BCSS_ values.
    UINT GetSplitStyle() const;
    BOOL SetSplitStyle(UINT uSplitStyle);
    /// Whether the part with the arrow looks pressed.
    BOOL SetDropDownState(BOOL fDropDown);
    /// The text under the caption of a command link.
    CString GetNote() const;
    /// pcchNote is the room in the buffer, and becomes what the note needs; FALSE when that is
    /// more.
    BOOL GetNote(LPTSTR lpszNote, UINT* pcchNote) const;
    BOOL SetNote(LPCTSTR lpszNote);
    UINT GetNoteLength() const;
    /// Shows the shield of what needs an administrator.
    BOOL SetElevationRequired(BOOL fElevationRequired);

    /// Draws a button of style BS_OWNERDRAW; the base draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
};
