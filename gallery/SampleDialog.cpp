#include "gallery/SampleDialog.h"

#include "gallery/GalleryPage.h"
#include "gallery/Images.h"

#include <vector>

BEGIN_MESSAGE_MAP(CSampleDialog, CDialogTS)
    ON_BN_CLICKED(IDC_SAMPLE_COLOUR, &CSampleDialog::OnNextColor)
END_MESSAGE_MAP()

namespace {

const LPCTSTR titles[] = {_T("Plain dialog"), _T("Solid fill"), _T("Bitmap with a caption line"),
                          _T("Shape")};
const LPCTSTR texts[] = {
    _T("A dialog with every mode off: the system erases it."),
    _T("The client area is filled with one colour, and with another one at a press of the button."),
    (_T("A bitmap is the background, and the window text is its caption line. It is neither ")
     _T("stretched nor tiled.")),
    _T("An image seen through a mask."),
};

const COLORREF fills[] = {RGB(214, 226, 242), RGB(246, 236, 214), RGB(220, 236, 222),
                          RGB(236, 224, 238)};

// Places on the two pictures, in pixels.
const RECT textOnBitmap = {24, 48, 300, 120};
const RECT closeOnBitmap = {24, 206, 124, 234};
const RECT textOnShape = {244, 68, 336, 112};
const RECT closeOnShape = {244, 136, 324, 162};

CSize SizeOf(HBITMAP bitmap)
{
    BITMAP record = {};
    ::GetObject(bitmap, sizeof record, &record);
    return CSize(record.bmWidth, record.bmHeight);
}

// The pixels of a bitmap, rows from the top, without the fourth byte.
std::vector<DWORD> PixelsOf(HBITMAP bitmap, CSize size)
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = -size.cy;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    std::vector<DWORD> pixels(static_cast<size_t>(size.cx) * size.cy);
    CClientDC screen(nullptr);
    ::GetDIBits(screen, bitmap, 0, size.cy, pixels.data(), &info, DIB_RGB_COLORS);
    for (DWORD& pixel : pixels)
        pixel &= 0xFFFFFF;
    return pixels;
}

} // namespace

CSampleDialog::CSampleDialog(Kind kind)
    : CDialogTS(kind == bitmap || kind == shaped ? IDD_SAMPLE_BARE : IDD_SAMPLE_FRAMED),
      m_kind(kind)
{
}

CSampleDialog::~CSampleDialog()
{
    SetBackground(nullptr); // They are ours: the dialog only lets go of them.
    if (m_image != nullptr)
        ::DeleteObject(m_image);
    if (m_mask != nullptr)
        ::DeleteObject(m_mask);
}

void CSampleDialog::Open(CWnd* parent, CPoint screen)
{
    if (GetSafeHwnd() == nullptr) {
        const bool bare = m_kind == bitmap || m_kind == shaped;
        if (!Create(bare ? IDD_SAMPLE_BARE : IDD_SAMPLE_FRAMED, parent))
            return;
        SetWindowPos(nullptr, screen.x, screen.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    }
    ShowWindow(SW_SHOW);
    SetActiveWindow();
}

BOOL CSampleDialog::OnInitDialog()
{
    CDialogTS::OnInitDialog();
    SetWindowText(titles[m_kind]);
    m_text.SetWindowText(texts[m_kind]);
    m_text.SetLabelTextColor(palette::text);
    m_btnColor.ShowWindow(m_kind == solidFill ? SW_SHOW : SW_HIDE);

    if (m_kind == solidFill) {
        m_bSolidFill = TRUE;
        m_crFill = fills[m_color];
    } else if (m_kind == bitmap) {
        PrepareBitmap();
    } else if (m_kind == shaped) {
        PrepareShape();
    }
    for (CxShadeButton* button : {&m_btnClose, &m_btnColor})
        button->SetShade(SHADE_DIAGONAL, 0, 0, 100, g_crShade);
    return TRUE;
}

void CSampleDialog::DoDataExchange(CDataExchange* pDX)
{
    CDialogTS::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_SAMPLE_TEXT, m_text);
    DDX_Control(pDX, IDC_SAMPLE_COLOUR, m_btnColor);
    DDX_Control(pDX, IDCANCEL, m_btnClose);
}

void CSampleDialog::OnOK()
{
}

void CSampleDialog::OnCancel()
{
    DestroyWindow();
}

void CSampleDialog::OnNextColor()
{
    m_color = (m_color + 1) % _countof(fills);
    m_crFill = fills[m_color];
    Invalidate();
}

void CSampleDialog::PrepareBitmap()
{
    if (m_image == nullptr)
        m_image = LoadPictureBitmap(PictureFile(_T("panel.bmp")));
    if (m_image == nullptr)
        return;
    SetClientSize(SizeOf(m_image));
    SetBackground(m_image);
    m_bCaptionText = TRUE;
    m_text.MoveWindow(&textOnBitmap);
    m_btnClose.MoveWindow(&closeOnBitmap);
}

void CSampleDialog::PrepareShape()
{
    if (m_image == nullptr) {
        m_image = LoadPictureBitmap(PictureFile(_T("shape.bmp")));
        m_mask = LoadPictureBitmap(PictureFile(_T("shape-mask.bmp")));
    }
    if (m_image == nullptr || m_mask == nullptr)
        return;
    SetClientSize(SizeOf(m_image));
    CutOutShape();
    SetBackground(m_image, m_mask);
    m_text.MoveWindow(&textOnShape);
    m_btnClose.MoveWindow(&closeOnShape);
}

void CSampleDialog::SetClientSize(CSize size)
{
    CRect window(CPoint(0, 0), size);
    ::AdjustWindowRectEx(&window, GetStyle(), FALSE, GetExStyle());
    SetWindowPos(nullptr, 0, 0, window.Width(), window.Height(), SWP_NOMOVE | SWP_NOZORDER);
}

// Without it the window would keep what was on the screen when it was opened.
void CSampleDialog::CutOutShape()
{
    const CSize size = SizeOf(m_mask);
    const std::vector<DWORD> pixels = PixelsOf(m_mask, size);
    CRgn shape;
    shape.CreateRectRgn(0, 0, 0, 0);
    for (int y = 0; y < size.cy; ++y) {
        const DWORD* row = &pixels[static_cast<size_t>(y) * size.cx];
        for (int x = 0; x < size.cx;) {
            const int start = x;
            while (x < size.cx && row[x] == 0)
                ++x;
            if (x > start) {
                CRgn run;
                run.CreateRectRgn(start, y, x, y + 1);
                shape.CombineRgn(&shape, &run, RGN_OR);
            }
            while (x < size.cx && row[x] != 0)
                ++x;
        }
    }
    if (SetWindowRgn(static_cast<HRGN>(shape.GetSafeHandle()), TRUE) != 0)
        shape.Detach(); // The window owns it from here on.
}
