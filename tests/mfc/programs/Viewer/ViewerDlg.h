// ViewerDlg.h : header file
//

#pragma once

class CViewerDlg : public CDialogEx
{
public:
    CViewerDlg(CWnd* pParent = nullptr);    // standard constructor

#ifdef AFX_DESIGN_TIME
    enum { IDD = IDD_VIEWER_DIALOG };
#endif

protected:
    virtual void DoDataExchange(CDataExchange* pDX);    // DDX/DDV support

    HICON m_hIcon;
    CImage m_image;
    CString m_strInfo;

    CRect GetPictureRect() const;

    virtual BOOL OnInitDialog();
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    afx_msg void OnPaint();
    afx_msg HCURSOR OnQueryDragIcon();
    afx_msg void OnBnClickedOpen();
    afx_msg void OnBnClickedSave();
    DECLARE_MESSAGE_MAP()
};
