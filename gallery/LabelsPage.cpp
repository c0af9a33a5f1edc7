#include "gallery/LabelsPage.h"

#include "gallery/Images.h"

#include <shlwapi.h>

BEGIN_MESSAGE_MAP(CLabelsPage, CGalleryPage)
END_MESSAGE_MAP()

namespace {

const COLORREF noteFill = RGB(253, 246, 224);
const COLORREF noteText = RGB(112, 74, 20);
const COLORREF pictureKey = RGB(0, 0, 0);
const int boxMargin = 3; // Pixels between a label and the box around it.

// Places of the pictures on the panel, in pixels.
const int panelMargin = 12;
const int badgeSize = 48;
const int nameHeight = 16;
const int largeExtent = 200; // What a keyed picture is cut to.

/// Whether the system knows what to open a .txt file with.
bool HasTextProgram()
{
    TCHAR command[MAX_PATH] = _T("");
    DWORD length = MAX_PATH;
    return SUCCEEDED(::AssocQueryString(ASSOCF_NOTRUNCATE, ASSOCSTR_COMMAND, _T(".txt"), _T("open"),
                                        command, &length)) &&
           command[0] != _T('\0');
}

} // namespace

CLabelsPage::CLabelsPage(CWnd* parent) : CGalleryPage(IDD_LABELS, parent)
{
}

BOOL CLabelsPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    PrepareTexts();
    PreparePictures();
    PrepareLinks();
    return TRUE;
}

void CLabelsPage::DoDataExchange(CDataExchange* pDX)
{
    CGalleryPage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_PLAIN, m_plain);
    DDX_Control(pDX, IDC_ETCHED, m_etched);
    DDX_Control(pDX, IDC_COLORED, m_colored);
    DDX_Control(pDX, IDC_LEFT, m_left);
    DDX_Control(pDX, IDC_CENTRE, m_centre);
    DDX_Control(pDX, IDC_RIGHT, m_right);
    DDX_Control(pDX, IDC_NOTE, m_note);
    DDX_Control(pDX, IDC_OPAQUE, m_opaque);
    DDX_Control(pDX, IDC_KEYED, m_keyed);
    DDX_Control(pDX, IDC_LARGE, m_large);
    for (int i = 0; i < static_cast<int>(_countof(m_pictureNames)); ++i)
        DDX_Control(pDX, IDC_OPAQUE_NAME + i, m_pictureNames[i]);
    DDX_Control(pDX, IDC_WEB_LINK, m_webLink);
    DDX_Control(pDX, IDC_FILE_LINK, m_fileLink);
    DDX_Control(pDX, IDC_TARGET_LINK, m_targetLink);
    DDX_Control(pDX, IDC_TIP_LINK, m_tipLink);
}

void CLabelsPage::DrawBackdrop(CDC& dc)
{
    CGalleryPage::DrawBackdrop(dc);
    for (int id : {IDC_LEFT, IDC_CENTRE, IDC_RIGHT})
        DrawBox(dc, id, palette::paper);
    DrawBox(dc, IDC_NOTE, noteFill);

    CRect panel = PlaceOf(IDC_PANEL);
    dc.FillSolidRect(&panel, palette::line);
    panel.DeflateRect(1, 1);
    if (m_pattern.GetSafeHandle() != nullptr) {
        dc.SetBrushOrg(panel.left, panel.top);
        dc.FillRect(&panel, &m_pattern);
    } else {
        dc.FillSolidRect(&panel, palette::paper);
    }
}

void CLabelsPage::PrepareTexts()
{
    m_etched.SetEmbossed(TRUE);
    m_colored.SetLabelTextColor(palette::ember);
    for (CStaticTS* label : {&m_plain, &m_left, &m_centre, &m_right})
        label->SetLabelTextColor(palette::text);
    for (CStaticTS& name : m_pictureNames)
        name.SetLabelTextColor(palette::text);
    m_note.CopyWindowFont();
    m_note.SetLabelTextColor(noteText);
}

void CLabelsPage::PreparePictures()
{
    CBitmap tile;
    if (const HBITMAP pattern = LoadPictureBitmap(PictureFile(_T("pattern.gif")))) {
        tile.Attach(pattern);
        m_pattern.CreatePatternBrush(&tile);
    }
    m_opaque.LoadPicture(PictureFile(_T("badge.gif")));
    m_keyed.SetTransparentColor(pictureKey);
    m_keyed.LoadPicture(PictureFile(_T("badge.gif")));
    m_large.SetTransparentColor(pictureKey);
    m_large.LoadPicture(PictureFile(_T("large.gif")));

    const CRect panel = PlaceOf(IDC_PANEL);
    CStaticTS* const badges[] = {&m_opaque, &m_keyed};
    CPoint at = panel.TopLeft() + CSize(panelMargin, panelMargin);
    for (int i = 0; i < 2; ++i) {
        badges[i]->MoveWindow(at.x, at.y, badgeSize, badgeSize);
        at.y += badgeSize;
        m_pictureNames[i].MoveWindow(at.x, at.y, badgeSize, nameHeight);
        at.y += nameHeight + panelMargin;
    }
    const int besideBadges = panel.left + 2 * panelMargin + badgeSize;
    const int left = (besideBadges + panel.right - largeExtent) / 2;
    m_large.MoveWindow(left, panel.top + panelMargin, largeExtent, largeExtent);
    m_pictureNames[2].MoveWindow(left, panel.top + panelMargin + largeExtent, largeExtent,
                                 nameHeight);
}

void CLabelsPage::PrepareLinks()
{
    m_webLink.SetTextColor(palette::accent);
    m_webLink.SetURL(_T("")); // Opens its text.
    FitToText(m_webLink);

    m_fileLink.SetWindowText(PictureFile(_T("about.txt")));
    m_fileLink.SetLink(TRUE);
    m_fileLink.SetLabelTextColor(palette::accent);
    FitToText(m_fileLink);
    if (!HasTextProgram()) {
        CString intro;
        m_intro.GetWindowText(intro);
        intro.TrimRight(_T('.'));
        SetLabelText(m_intro, intro + _T("; for text files it has none."));
    }

    m_targetLink.SetLink(TRUE);
    m_targetLink.SetLabelTextColor(palette::accent);
    m_targetLink.SetLinkTarget(ImageFolder());
    FitToText(m_targetLink);

    m_tipLink.SetTextColor(palette::accent);
    m_tipLink.SetURL(_T("https://www.gnu.org/licenses/license-list.html"));
    FitToText(m_tipLink);
    m_tipLink.SetToolTipText(_T("Opens gnu.org in the web browser"));
}

void CLabelsPage::DrawBox(CDC& dc, int controlId, COLORREF fill)
{
    CRect box = PlaceOf(controlId);
    box.InflateRect(boxMargin, boxMargin);
    dc.FillSolidRect(&box, palette::line);
    box.DeflateRect(1, 1);
    dc.FillSolidRect(&box, fill);
}
