#include "gallery/GridPage.h"

BEGIN_MESSAGE_MAP(CGridPage, CGalleryPage)
    ON_CONTROL_RANGE(EN_CHANGE, IDC_REQUEST_FIRST, IDC_REQUEST_LAST, &CGridPage::OnRequest)
END_MESSAGE_MAP()

namespace {

const UINT firstRequest[] = {11, 5, 34, 17}; // Off the grid.
const UINT largestRequest = 999;
const int margin = 3; // Pixels around the rectangles.

} // namespace

CGridPage::CGridPage(CWnd* parent) : CGalleryPage(IDD_GRID, parent)
{
}

BOOL CGridPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    ShowBaseUnits();
    for (int i = 0; i < 4; ++i) {
        m_spins[i].SetRange(0, largestRequest);
        SetDlgItemInt(IDC_REQUEST_FIRST + i, firstRequest[i]);
    }
    m_ready = true;
    ShowResult();
    return TRUE;
}

void CGridPage::DoDataExchange(CDataExchange* pDX)
{
    CGalleryPage::DoDataExchange(pDX);
    for (int i = 0; i < 4; ++i)
        DDX_Control(pDX, IDC_SPIN_FIRST + i, m_spins[i]);
    DDX_Control(pDX, IDC_REQUEST_VIEW, m_requestView);
    DDX_Control(pDX, IDC_SNAPPED_VIEW, m_snappedView);
}

void CGridPage::OnRequest(UINT controlId)
{
    if (!m_ready)
        return;
    if (GetDlgItemInt(controlId) > largestRequest)
        SetDlgItemInt(controlId, largestRequest); // Which comes here again.
    else
        ShowResult();
}

void CGridPage::ShowBaseUnits()
{
    UINT horizontal = 0;
    UINT vertical = 0;
    GetFontBaseUnits(&horizontal, &vertical);
    CString text;
    text.Format(_T("%u x %u pixels"), horizontal, vertical);
    SetDlgItemText(IDC_BASE_UNITS, text);

    const LONG system = ::GetDialogBaseUnits();
    text.Format(_T("The system's own: %d x %d"), LOWORD(system), HIWORD(system));
    SetDlgItemText(IDC_BASE_SOURCE, text);
}

void CGridPage::ShowResult()
{
    int request[4];
    for (int i = 0; i < 4; ++i)
        request[i] = static_cast<int>(GetDlgItemInt(IDC_REQUEST_FIRST + i));
    int units[4];
    PixelsToDialogUnits(request[0], request[1], request[2], request[3], &units[0], &units[1],
                        &units[2], &units[3]);
    int snapped[4];
    DialogUnitsToPixels(units[0], units[1], units[2], units[3], &snapped[0], &snapped[1],
                        &snapped[2], &snapped[3]);
    for (int i = 0; i < 4; ++i) {
        SetDlgItemInt(IDC_UNITS_FIRST + i, units[i]);
        SetDlgItemInt(IDC_SNAPPED_FIRST + i, snapped[i]);
    }

    const CRect wanted(CPoint(request[0], request[1]), CSize(request[2], request[3]));
    const CRect given(CPoint(snapped[0], snapped[1]), CSize(snapped[2], snapped[3]));
    const CSize extent(max(wanted.right, given.right) + margin,
                       max(wanted.bottom, given.bottom) + margin);
    m_requestView.Show(wanted, CRect(), palette::ember, extent);
    m_snappedView.Show(given, wanted, palette::accent, extent);
}
