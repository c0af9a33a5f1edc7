#include <afxwin.h>

#include <doctest/doctest.h>

#include "testing/Picture.h"
#include "testing/Pump.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

namespace {

const CRect place(10, 10, 90, 50);
const COLORREF ownColor = RGB(200, 30, 90);

class CPaintedStatic : public CStatic
{
public:
    int draws = 0;

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override
    {
        ++draws;
        CDC::FromHandle(lpDrawItemStruct->hDC)->FillSolidRect(&lpDrawItemStruct->rcItem, ownColor);
    }
};

/// A label that chooses its own background.
class CColoredStatic : public CStatic
{
public:
    CBrush brush{ownColor};

protected:
    afx_msg HBRUSH CtlColor(CDC* pDC, UINT)
    {
        pDC->SetBkColor(ownColor);
        return brush;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CColoredStatic, CStatic)
    ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

/// A label that watches its own creation.
class CWatchedStatic : public CStatic
{
public:
    int creations = 0;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct)
    {
        ++creations;
        return CStatic::OnCreate(lpCreateStruct);
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CWatchedStatic, CStatic)
    ON_WM_CREATE()
END_MESSAGE_MAP()

} // namespace

TEST_CASE("a label is made with the id of all labels unless another is given")
{
    ControlHost host;
    CStatic label, named;
    REQUIRE(label.Create(_T("Text"), shownChild, place, &host));
    REQUIRE(named.Create(_T("Text"), shownChild, place, &host, 77));
    CHECK((label.GetDlgCtrlID() & 0xffff) == 0xffff);
    CHECK(named.GetDlgCtrlID() == 77);
    CString text;
    label.GetWindowText(text);
    CHECK(text == "Text");
    CHECK(label.IsKindOf(RUNTIME_CLASS(CStatic)));
}

TEST_CASE("a label made in code sees its own WM_CREATE")
{
    ControlHost host;
    CWatchedStatic label;
    REQUIRE(label.Create(_T("Text"), shownChild, place, &host));
    CHECK(label.creations == 1);
}

TEST_CASE("a label keeps the picture of its kind and gives the former one back")
{
    ControlHost host;

    CStatic iconLabel;
    REQUIRE(iconLabel.Create(_T(""), shownChild | SS_ICON, place, &host));
    const HICON icon = ::LoadIcon(NULL, IDI_WARNING);
    CHECK(iconLabel.SetIcon(icon) == NULL);
    CHECK(iconLabel.GetIcon() == icon);
    const HCURSOR cursor = ::LoadCursor(NULL, IDC_ARROW);
    CHECK((HICON)iconLabel.SetCursor(cursor) == icon);
    CHECK(iconLabel.GetCursor() == cursor);

    CStatic bitmapLabel;
    REQUIRE(bitmapLabel.Create(_T(""), shownChild | SS_BITMAP, place, &host));
    CBitmap bitmap;
    REQUIRE(bitmap.CreateBitmap(8, 8, 1, 1, NULL));
    CHECK(bitmapLabel.SetBitmap(bitmap) == NULL);
    CHECK(bitmapLabel.GetBitmap() == (HBITMAP)bitmap);

    CStatic fileLabel;
    REQUIRE(fileLabel.Create(_T(""), shownChild | SS_ENHMETAFILE, place, &host));
    const HENHMETAFILE metafile = ::CloseEnhMetaFile(::CreateEnhMetaFile(NULL, NULL, NULL, NULL));
    REQUIRE(metafile != NULL);
    CHECK(fileLabel.SetEnhMetaFile(metafile) == NULL);
    CHECK(fileLabel.GetEnhMetaFile() == metafile);
    fileLabel.DestroyWindow();
    ::DeleteEnhMetaFile(metafile);
}

TEST_CASE("an owner-drawn label draws itself through its virtual DrawItem")
{
    ControlHost host;
    CPaintedStatic label;
    REQUIRE(label.Create(_T(""), shownChild | SS_OWNERDRAW, place, &host, 5));
    label.UpdateWindow();
    CHECK(label.draws > 0);
    CHECK(Picture::OfWindow(label.m_hWnd).CountOf(ownColor) == place.Width() * place.Height());
}

TEST_CASE("a label may choose its own colours")
{
    ControlHost host;
    CColoredStatic label;
    REQUIRE(label.Create(_T(""), shownChild, place, &host));
    label.UpdateWindow();
    CHECK(Picture::OfWindow(label.m_hWnd).CountOf(ownColor) == place.Width() * place.Height());
}
