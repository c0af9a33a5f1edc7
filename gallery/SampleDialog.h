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
    afx_msg void OnNextColor();

private:
    const Kind m_kind;
    CStaticTS m_text;
    CxShadeButton m_btnClose;
    CxShadeButton m_btnColor;
    HBITMAP m_image = nullptr; ///< Handed to the dialog for display, and still this object's.
    HBITMAP m_mask = nullptr;
    size_t m_color = 0;

    void PrepareBitmap();
    void PrepareShape();
    void SetClientSize(CSize size);
    void CutOutShape();
};
