#include "gallery/StartPage.h"

#include "gallery/BackgroundsPage.h"
#include "gallery/ButtonsPage.h"
#include "gallery/GridPage.h"
#include "gallery/LabelsPage.h"
#include "gallery/LanguagesPage.h"
#include "gallery/ShadeLabPage.h"
#include "gallery/Wizard.h"
#include "gallery/WorkingPage.h"

BEGIN_MESSAGE_MAP(CStartPage, CGalleryPage)
    ON_CONTROL_RANGE(BN_CLICKED, IDC_ROOM_FIRST, IDC_ROOM_LAST, &CStartPage::OnRoom)
END_MESSAGE_MAP()

namespace {

template <class Page>
void ShowRoom(CWnd* parent)
{
    Page page(parent);
    page.DoModal();
}

// In the order of the buttons.
void (*const rooms[])(CWnd* parent) = {
    ShowRoom<CBackgroundsPage>, ShowRoom<CGridPage>,      ShowRoom<CButtonsPage>,
    ShowRoom<CShadeLabPage>,    ShowRoom<CLabelsPage>,    RunWizard,
    ShowRoom<CWorkingPage>,     ShowRoom<CLanguagesPage>,
};

} // namespace

CStartPage::CStartPage(CWnd* parent) : CGalleryPage(IDD_START, parent)
{
}

BOOL CStartPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    for (CxShadeButton& room : m_rooms)
        ApplyButtonShade(room);
    return TRUE;
}

void CStartPage::DoDataExchange(CDataExchange* pDX)
{
    CGalleryPage::DoDataExchange(pDX);
    for (int i = 0; i < static_cast<int>(_countof(m_rooms)); ++i)
        DDX_Control(pDX, IDC_ROOM_FIRST + i, m_rooms[i]);
}

void CStartPage::OnRoom(UINT buttonId)
{
    static_assert(_countof(rooms) == _countof(m_rooms));
    rooms[buttonId - IDC_ROOM_FIRST](this);
}
