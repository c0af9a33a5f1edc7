// CGridPage: the dialog-unit grid; what becomes of a rectangle when a window is created with it.
#pragma once

#include "gallery/GalleryPage.h"
#include "gallery/GridView.h"

class CGridPage : public CGalleryPage
{
public:
    explicit CGridPage(CWnd* parent);

    BOOL OnInitDialog() override;

protected:
    CSpinButtonCtrl m_spins[4];
    CGridView m_requestView;
    CGridView m_snappedView;

    void DoDataExchange(CDataExchange* pDX) override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnRequest(UINT editId);

private:
    bool m_ready = false; ///< The controls are filled: changes come from the user.

    void ShowBaseUnits();
    void ShowResult();
};
