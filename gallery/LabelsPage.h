// CLabelsPage: labels that draw themselves, pictures over a pattern, and links that open.
#pragma once

#include "gallery/GalleryPage.h"

class CLabelsPage : public CGalleryPage
{
public:
    explicit CLabelsPage(CWnd* parent);

    BOOL OnInitDialog() override;

protected:
    CStaticTS m_plain;
    CStaticTS m_etched;
    CStaticTS m_colored;
    CStaticTS m_left;
    CStaticTS m_centre;
    CStaticTS m_right;
    CNoteStatic m_note;
    CStaticTS m_opaque;
    CStaticTS m_keyed;
    CStaticTS m_large;
    CStaticTS m_pictureNames[IDC_LARGE_NAME - IDC_OPAQUE_NAME + 1];
    CHyperLink m_webLink;
    CStaticTS m_fileLink;
    CStaticTS m_targetLink;
    CHyperLink m_tipLink;

    void DoDataExchange(CDataExchange* pDX) override;
    void DrawBackdrop(CDC& dc) override;

    DECLARE_MESSAGE_MAP()

private:
    CBrush m_pattern; ///< Empty when its picture cannot be had.

    void PrepareTexts();
    void PreparePictures();
    void PrepareLinks();
    void DrawBox(CDC& dc, int controlId, COLORREF fill);
};
