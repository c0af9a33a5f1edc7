#include "gallery/ButtonsPage.h"

#include "gallery/Images.h"
#include "gallery/ShadeStyles.h"

BEGIN_MESSAGE_MAP(CButtonsPage, CGalleryPage)
END_MESSAGE_MAP()

namespace {

// The matrix, in dialog units; the captions of its columns stand in the template.
const int stateLeft = 128;
const int statePitch = 46;
const int stateWidth = 43;
const int matrixTop = 65;
const int rowPitch = 16;
const int rowHeight = 14;

const BYTE highlight = 35; // Percent; makes the hot face plain to see.
const BYTE coloring = 55;  // Percent; leaves the shades to be seen under the tint.
const BYTE grain = 10;
const int pictureSize = 19; // Pixels.
const COLORREF pictureKey = RGB(0, 0, 0);

const LPCTSTR stateCaptions[CButtonsPage::stateCount] = {_T("Try me"), _T("Hot"), _T("Pressed"),
                                                         _T("Disabled")};

} // namespace

CButtonsPage::CButtonsPage(CWnd* parent) : CGalleryPage(IDD_BUTTONS, parent)
{
}

BOOL CButtonsPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    CreateMatrix();
    ShadeOthers();
    m_pictureLeft.SetPicture(PictureFile(_T("Ok.gif")), CxShadeButton::alignLeft, pictureSize,
                             pictureSize, pictureKey);
    m_pictureRight.SetPicture(PictureFile(_T("Next.gif")), CxShadeButton::alignRight, pictureSize,
                              pictureSize, pictureKey);
    m_pictureAbove.SetPicture(PictureFile(_T("Info.gif")), CxShadeButton::alignTop, pictureSize,
                              pictureSize, pictureKey);
    m_checkPush.SetToolTipText(_T("Press to switch on"), _T("Press to switch off"));
    m_tip.SetToolTipText(_T("A tool tip"));
    m_checkPush.SetCheck(BST_CHECKED);
    m_radios[1].SetCheck(BST_CHECKED);
    return TRUE;
}

void CButtonsPage::DoDataExchange(CDataExchange* pDX)
{
    CGalleryPage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_FLAT, m_flat);
    DDX_Control(pDX, IDC_DEFAULT, m_default);
    DDX_Control(pDX, IDC_PICTURE_LEFT, m_pictureLeft);
    DDX_Control(pDX, IDC_PICTURE_RIGHT, m_pictureRight);
    DDX_Control(pDX, IDC_PICTURE_ABOVE, m_pictureAbove);
    DDX_Control(pDX, IDC_CHECK_PLAIN, m_checkPlain);
    DDX_Control(pDX, IDC_CHECK_PUSH, m_checkPush);
    for (int i = 0; i < static_cast<int>(_countof(m_radios)); ++i)
        DDX_Control(pDX, IDC_RADIO_FIRST + i, m_radios[i]);
    DDX_Control(pDX, IDC_TIP, m_tip);
}

void CButtonsPage::CreateMatrix()
{
    static_assert(_countof(shadeStyles) == styleCount);
    for (int row = 0; row < styleCount; ++row) {
        const int y = matrixTop + row * rowPitch;
        for (int column = 0; column < stateCount; ++column) {
            CSampleButton& button = m_matrix[row][column];
            const CRect place = Pixels(stateLeft + column * statePitch, y, stateWidth, rowHeight);
            button.Create(stateCaptions[column], WS_CHILD | WS_VISIBLE | WS_TABSTOP, place, this,
                          IDC_MATRIX_FIRST + row * stateCount + column);
            button.SetShade(shadeStyles[row].style, grain, highlight, coloring, g_crShade);
        }
        m_matrix[row][1].HoldHot();
        m_matrix[row][1].ModifyStyle(WS_TABSTOP, 0);
        m_matrix[row][2].HoldPressed();
        m_matrix[row][2].ModifyStyle(WS_TABSTOP, 0);
        m_matrix[row][3].EnableWindow(FALSE);
        SetDlgItemText(IDC_STYLE_NAME_FIRST + row, shadeStyles[row].text);
    }
}

void CButtonsPage::ShadeOthers()
{
    for (CxShadeButton* button :
         {&m_flat, &m_default, &m_pictureLeft, &m_pictureRight, &m_pictureAbove, &m_checkPlain,
          &m_checkPush, &m_radios[0], &m_radios[1], &m_radios[2], &m_tip})
        button->SetShade(SHADE_DIAGONAL, 0, highlight, coloring, g_crShade);
}
