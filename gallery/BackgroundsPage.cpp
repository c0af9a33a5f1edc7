#include "gallery/BackgroundsPage.h"

BEGIN_MESSAGE_MAP(CBackgroundsPage, CGalleryPage)
    ON_CONTROL_RANGE(BN_CLICKED, IDC_SAMPLE_FIRST, IDC_SAMPLE_LAST, &CBackgroundsPage::OnSample)
    ON_BN_CLICKED(IDC_DRAG, &CBackgroundsPage::OnDrag)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

namespace {

// Pixels from the page to its first sample window, right of the buttons, and from one to the next.
const CSize firstOffset(240, 40);
const CSize nextOffset(40, 56);

} // namespace

CBackgroundsPage::CBackgroundsPage(CWnd* parent)
    : CGalleryPage(IDD_BACKGROUNDS, parent), m_samples{CSampleDialog(CSampleDialog::plain),
                                                       CSampleDialog(CSampleDialog::solidFill),
                                                       CSampleDialog(CSampleDialog::bitmap),
                                                       CSampleDialog(CSampleDialog::shaped)}
{
}

BOOL CBackgroundsPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    for (CxShadeButton& button : m_buttons)
        ApplyButtonShade(button);
    m_btnDrag.SetShade(SHADE_DIAGONAL, 0, 30, 100, g_crShade);
    m_dragState.SetLabelTextColor(palette::text);
    OnDrag();
    return TRUE;
}

void CBackgroundsPage::DoDataExchange(CDataExchange* pDX)
{
    CGalleryPage::DoDataExchange(pDX);
    for (int i = 0; i < static_cast<int>(_countof(m_buttons)); ++i)
        DDX_Control(pDX, IDC_SAMPLE_FIRST + i, m_buttons[i]);
    DDX_Control(pDX, IDC_DRAG, m_btnDrag);
    DDX_Control(pDX, IDC_DRAG_STATE, m_dragState);
}

void CBackgroundsPage::OnSample(UINT buttonId)
{
    const int index = static_cast<int>(buttonId) - IDC_SAMPLE_FIRST;
    CRect page;
    GetWindowRect(&page);
    const CSize offset(firstOffset.cx + index * nextOffset.cx,
                       firstOffset.cy + index * nextOffset.cy);
    m_samples[index].Open(this, page.TopLeft() + offset);
}

void CBackgroundsPage::OnDrag()
{
    const BOOL allow = m_btnDrag.GetCheck() == BST_CHECKED;
    m_bDragAnywhere = allow;
    for (CSampleDialog& sample : m_samples)
        sample.AllowDrag(allow);
    SetLabelText(
        m_dragState,
        allow ? _T("On.\nPress anywhere in this page or in one of its windows, and move it.")
              : _T("Off.\nWindows move by their title bars, and those without one stay put."));
}

void CBackgroundsPage::OnDestroy()
{
    for (CSampleDialog& sample : m_samples) {
        if (sample.GetSafeHwnd() != nullptr)
            sample.DestroyWindow();
    }
    CGalleryPage::OnDestroy();
}
