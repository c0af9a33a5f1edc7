// CBaseDialog: the base of every dialog page. It paints the background strip, binds up to three
// shaded standard buttons to fixed control ids, gives them captions, faces and icons as eight flags
// say, and can show one picture.
//
// A page calls the base versions of DoDataExchange and OnInitDialog first from its own. Its
// template has the control IDCANCEL, with a confirm or next flag also IDOK, and with the back flag
// IDC_BACK (3046); a missing one fails the exchange, as with any control.
#pragma once

#include "umbra_api.h"

#include "dialogs/DialogTS.h"

#include "controls/ShadeButton.h"
#include "controls/StaticTS.h"

#include <memory>

namespace umbra {
class BufferedPaint;
}

/// The folder of the image files, with or without its last backslash; never empty. Set by the host
/// before its first dialog is created.
extern UMBRA_API CString g_strImageDir;

/// The tint of all standard buttons. Set by the host.
extern UMBRA_API COLORREF g_crShade;

class UMBRA_API CBaseDialog : public CDialogTS
{
public:
    /// The flags: the IDOK button reads "Confirm" (confirm) or "Next" (next), or "Proceed" with
    /// proceedCaption; the IDCANCEL button reads "OK" (ok) or "Cancel" (cancel), or "Close" with
    /// closeCaption, and gets an icon with cancelIcon; there is a "Back" button (back). Of two
    /// flags for one button, cancel wins over ok and next over confirm.
    CBaseDialog(UINT templateId, CWnd* parent, bool confirm, bool ok, bool cancel, bool next,
                bool back, bool closeCaption, bool proceedCaption, bool cancelIcon);
    ~CBaseDialog() override;

    BOOL OnInitDialog() override;

    /// Gives a shaded button the face of the standard buttons.
    void ApplyButtonShade(CxShadeButton& button);

    /// Shows the image that the string resource names in m_picture, near client pixel (540, 15), 80
    /// by 100 pixels. At most once for each dialog window. A missing image shows nothing.
    void ShowPicture(UINT stringId);

    /// From then on the page, its labels, links and shaded buttons are painted into a buffer, which
    /// is copied to the screen once: nothing flickers, and less work is asked of the system. They
    /// show the same. Controls of other kinds paint themselves as ever, and so do all on a shaped
    /// page or one with WS_CLIPCHILDREN. A page or control that draws more in an OnPaint of its own
    /// handles WM_PRINTCLIENT, too, which is what it gets instead. Off at first.
    void SetBufferedPainting(bool on);

protected:
    CxShadeButton m_btnCancel; ///< IDCANCEL.
    CxShadeButton m_btnOk;     ///< IDOK.
    CxShadeButton m_btnBack;   ///< IDC_BACK.
    CString m_strImageDir;     ///< Ends with a backslash once OnInitDialog has run.
    CStaticTS m_picture;       ///< Has a window after ShowPicture.
    // Kept: this order differs from the order of the constructor's arguments.
    bool m_bBack;
    bool m_bNext;
    bool m_bCancel;
    bool m_bOk;
    bool m_bConfirm;
    bool m_bCloseCaption;
    bool m_bProceedCaption;
    bool m_bCancelIcon;

    void DoDataExchange(CDataExchange* pDX) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    DECLARE_MESSAGE_MAP()
    /// Paints the background strip. A page's own version is the one that runs.
    afx_msg virtual void OnPaint();
    /// Paints the strip where a picture of the page is asked for; a page that paints more in its
    /// own OnPaint handles WM_PRINTCLIENT, too.
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);

private:
    void DrawStrip(CDC& dc);
    CString PathOfStringImage(UINT stringId) const;
    void SetButton(CxShadeButton& button, LPCTSTR caption);
    void SetButtonIcon(CxShadeButton& button, UINT stringId);

    std::unique_ptr<umbra::BufferedPaint> m_bufferedPaint; ///< While it is switched on.
};
