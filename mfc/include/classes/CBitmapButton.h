// A push button drawn from bitmaps.
#pragma once

#include <classes/CBitmap.h>
#include <classes/CButton.h>

/// An owner-drawn push button with a bitmap for each of its states. Only the normal one is
/// needed; a missing one falls back on it.
class AFX_EXPORTED CBitmapButton : public CButton
{
    DECLARE_DYNAMIC(CBitmapButton)

public:
    CBitmapButton();

    /// Loads the bitmaps of the normal, pressed, focused and disabled button. FALSE when one that
    /// was named is missing.
    BOOL LoadBitmaps(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel = NULL,
                     LPCTSTR lpszBitmapResourceFocus = NULL,
                     LPCTSTR lpszBitmapResourceDisabled = NULL);
    BOOL LoadBitmaps(UINT nIDBitmapResource, UINT nIDBitmapResourceSel = 0,
                     UINT nIDBitmapResourceFocus = 0, UINT nIDBitmapResourceDisabled = 0);
    /// Takes over the dialog's button of this id: loads the bitmaps named after its caption with
    /// U, D, F and X appended, and gives the button the size of the normal one.
    BOOL AutoLoad(UINT nID, CWnd* pParent);
    /// Gives the button the size of its normal bitmap.
    void SizeToContent();

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

private:
    CBitmap& BitmapOfState(UINT state);

    CBitmap normal_;
    CBitmap pressed_;
    CBitmap focused_;
    CBitmap disabled_;
};
