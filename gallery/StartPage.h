// CStartPage: the way into the gallery, a list of its rooms.
#pragma once

#include "gallery/GalleryPage.h"

class CStartPage : public CGalleryPage
{
public:
    explicit CStartPage(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;

protected:
    CxShadeButton m_rooms[IDC_ROOM_LAST - IDC_ROOM_FIRST + 1];

    void DoDataExchange(CDataExchange* pDX) override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnRoom(UINT buttonId);
};
