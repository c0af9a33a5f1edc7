#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/MessageLog.h"

#include "tests/mfc/ControlHost.h"
#include "tests/mfc/controls/SentMessage.h"

using namespace umbra::testing;

namespace {

struct Bands
{
    ControlHost host;
    CReBarCtrl bar;
    CEdit first, second;

    Bands()
    {
        REQUIRE(bar.Create(shownChild | RBS_VARHEIGHT, CRect(0, 0, 0, 0), &host, 50));
        Insert(first, 7, 24);
        Insert(second, 8, 30);
    }
    void Insert(CEdit& edit, UINT id, int height)
    {
        REQUIRE(edit.Create(shownChild, CRect(0, 0, 50, 20), &bar, id));
        REBARBANDINFO info = Info(RBBIM_CHILD | RBBIM_CHILDSIZE | RBBIM_ID | RBBIM_SIZE);
        info.hwndChild = edit;
        info.cxMinChild = 40;
        info.cyMinChild = height;
        info.cx = 150;
        info.wID = id;
        REQUIRE(bar.InsertBand((UINT)-1, &info));
    }
    static REBARBANDINFO Info(UINT mask)
    {
        REBARBANDINFO info = {};
        info.cbSize = REBARBANDINFO_V3_SIZE;
        info.fMask = mask;
        return info;
    }
};

} // namespace

TEST_CASE("bands are inserted, read, changed, moved and deleted")
{
    Bands bands;
    CHECK(bands.bar.GetBandCount() == 2);
    CHECK(bands.bar.IDToIndex(8) == 1);
    CHECK(bands.bar.IDToIndex(99) == -1);
    REBARBANDINFO info = Bands::Info(RBBIM_ID | RBBIM_CHILD);
    CHECK(bands.bar.GetBandInfo(1, &info));
    CHECK(info.wID == 8);
    CHECK(info.hwndChild == bands.second.m_hWnd);
    info = Bands::Info(RBBIM_ID);
    info.wID = 9;
    CHECK(bands.bar.SetBandInfo(1, &info));
    CHECK(bands.bar.MoveBand(1, 0));
    CHECK(bands.bar.IDToIndex(9) == 0);
    CHECK(bands.bar.ShowBand(0, FALSE));
    CHECK_FALSE(bands.second.IsWindowVisible());
    CHECK(bands.bar.ShowBand(0));
    CHECK(bands.second.IsWindowVisible());
    CHECK(bands.bar.DeleteBand(0));
    CHECK(bands.bar.GetBandCount() == 1);
}

TEST_CASE("bands lie in rows")
{
    Bands bands;
    CHECK(bands.bar.GetRowCount() == 1);
    CHECK(bands.bar.GetRowHeight(0) >= 30);
    CHECK(bands.bar.GetBarHeight() >= 30);
    CRect area, border;
    CHECK(bands.bar.GetRect(1, area));
    CHECK(area.Width() > 40);
    bands.bar.GetBandBorders(1, border);
    CHECK(border.left > 0);
    RBHITTESTINFO hit = {};
    hit.pt = area.CenterPoint();
    CHECK(bands.bar.HitTest(&hit) == 1);
    bands.bar.MaximizeBand(0);
    CRect large;
    bands.bar.GetRect(0, large);
    bands.bar.MinimizeBand(0);
    CRect small;
    bands.bar.GetRect(0, small);
    CHECK(small.Width() < large.Width());
    CRect room(0, 0, 300, 60);
    CHECK(bands.bar.SizeToRect(room));
}

TEST_CASE("a bar of bands has colours, images, tips and an owner")
{
    Bands bands;
    bands.bar.SetBkColor(RGB(1, 2, 3));
    CHECK(bands.bar.SetBkColor(RGB(2, 2, 2)) == RGB(1, 2, 3));
    CHECK(bands.bar.GetBkColor() == RGB(2, 2, 2));
    bands.bar.SetTextColor(RGB(3, 2, 3));
    CHECK(bands.bar.SetTextColor(RGB(4, 4, 4)) == RGB(3, 2, 3));
    CHECK(bands.bar.GetTextColor() == RGB(4, 4, 4));

    CHECK(bands.bar.GetImageList() == NULL);
    CImageList images;
    REQUIRE(images.Create(16, 16, ILC_COLOR, 2, 1));
    CHECK(bands.bar.SetImageList(&images));
    CHECK(bands.bar.GetImageList()->GetSafeHandle() == images.GetSafeHandle());
    REBARINFO info = {sizeof(info), RBIM_IMAGELIST, NULL};
    CHECK(bands.bar.GetBarInfo(&info));
    CHECK(info.himl == images.GetSafeHandle());
    info.himl = NULL;
    CHECK(bands.bar.SetBarInfo(&info));
    CHECK(bands.bar.GetImageList() == NULL);

    bands.bar.SetOwner(&bands.first);
    CHECK(bands.bar.SetOwner(&bands.host) == &bands.first);
}

TEST_CASE("a bar of bands is asked for what not every system has")
{
    Bands bands;
    const MessageLog log(bands.bar);
    CToolTipCtrl tip;
    REQUIRE(tip.Create(&bands.host));
    bands.bar.SetToolTips(&tip);
    CheckSent(log, RB_SETTOOLTIPS, (WPARAM)tip.m_hWnd, 0);
    bands.bar.GetToolTips();
    CheckSent(log, RB_GETTOOLTIPS, 0, 0);
    bands.bar.SetExtendedStyle(3, 2);
    CheckSent(log, RB_SETEXTENDEDSTYLE, 3, 2);
    bands.bar.GetExtendedStyle();
    CheckSent(log, RB_GETEXTENDEDSTYLE, 0, 0);
    COLORSCHEME scheme = {sizeof(scheme), RGB(1, 1, 1), RGB(2, 2, 2)};
    bands.bar.SetColorScheme(&scheme);
    CheckSent(log, RB_SETCOLORSCHEME, 0, (LPARAM)&scheme);
    bands.bar.GetColorScheme(&scheme);
    CheckSent(log, RB_GETCOLORSCHEME, 0, (LPARAM)&scheme);
    MARGINS margins = {};
    bands.bar.GetBandMargins(&margins);
    CheckSent(log, RB_GETBANDMARGINS, 0, (LPARAM)&margins);
    bands.bar.SetBandWidth(1, 80);
    CheckSent(log, WM_USER + 44, 1, 80);
    bands.bar.SetPalette(NULL);
    CheckSent(log, RB_SETPALETTE, 0, 0);
    bands.bar.GetPalette();
    CheckSent(log, RB_GETPALETTE, 0, 0);
    bands.bar.RestoreBand(0);
    CheckSent(log, RB_MAXIMIZEBAND, 0, TRUE);
    bands.bar.PushChevron(1, 4);
    CheckSent(log, RB_PUSHCHEVRON, 1, 4);
    bands.bar.BeginDrag(1);
    CheckSent(log, RB_BEGINDRAG, 1, (DWORD)-1);
    bands.bar.DragMove(MAKELONG(9, 9));
    CheckSent(log, RB_DRAGMOVE, 0, MAKELONG(9, 9));
    bands.bar.EndDrag();
    CHECK(log.Contains(RB_ENDDRAG));
    bands.bar.SetWindowTheme(L"");
    CHECK(log.Contains(RB_SETWINDOWTHEME));
    if (IDropTarget* target = bands.bar.GetDropTarget())
        target->Release();
    CHECK(log.Contains(RB_GETDROPTARGET));
}

TEST_CASE("CreateEx gives a bar of bands an extended style")
{
    ControlHost host;
    CReBarCtrl bar;
    REQUIRE(bar.CreateEx(WS_EX_TOOLWINDOW, shownChild, CRect(0, 0, 0, 0), &host, 51));
    CHECK((bar.GetExStyle() & WS_EX_TOOLWINDOW) != 0);
}
