// CSampleDialog: a window that shows one of the backgrounds of CDialogTS.
#pragma once

#include "gallery/resource.h"

#include <umbra.h>

class CSampleDialog : public CDialogTS
{
public:
    enum Kind { plain, solidFill, bitmap, shaped };

    explicit CSampleDialog(Kind kind);
    ~CSampleDialog() override;

    /// Opens the window, or brings it to the front when it is open.
    void Open(CWnd* parent, CPoint screen);
    /// Switches dragging by any point.
    void AllowDrag(BOOL allow) { m_bDragAnywhere = allow; }

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    void OnOK() override;
    void OnCancel() override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnNextColour();

private:
    const Kind m_kind;
    CStaticTS m_text;
    CxShadeButton m_btnClose;
    CxShadeButton m_btnColour;
    HBITMAP m_image = NULL; ///< Handed to the dialog for display, and still this object's.
    HBITMAP m_mask = NULL;
    size_t m_colour = 0;

    void PrepareBitmap();
    void PrepareShape();
    void SetClientSize(CSize size);
    void CutOutShape();
};
