#include "testing/DialogTemplate.h"
#include "testing/Page.h"
#include "testing/ThreadWindows.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

namespace {

/// A window without a frame, all of one colour.
class PlainWindow : public CDialog
{
public:
    PlainWindow(LPCTSTR title, COLORREF color, RECT place)
    {
        m_brush.CreateSolidBrush(color);
        DialogTemplate source(0, 0, 10, 10, WS_POPUP, title);
        source.Label(7, _T("a label"), 0, 0, 5, 5, WS_CHILD | WS_DISABLED);
        CreateIndirect(source.Get());
        MoveWindow(&place);
        ShowWindow(SW_SHOWNOACTIVATE);
        BringWindowToTop();
        UpdateWindow();
    }
    ~PlainWindow() override { DestroyWindow(); }

protected:
    LRESULT WindowProc(UINT message, WPARAM first, LPARAM second) override
    {
        if (message == WM_CTLCOLORDLG)
            return reinterpret_cast<LRESULT>(static_cast<HBRUSH>(m_brush));
        return CDialog::WindowProc(message, first, second);
    }

private:
    CBrush m_brush;
};

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);

} // namespace

TEST_CASE("the list has each window and each control, with what can be told of it")
{
    PlainWindow window(_T("Listed"), red, {20, 30, 120, 80});
    const std::string list = ListWindows();
    CHECK(list.find("#32770 \"Listed\" at (20, 30), 100 x 50\n") != std::string::npos);
    CHECK(list.find("\n  7 Static \"a label\" at (20, 30), ") != std::string::npos);
    CHECK(list.find(", hidden, disabled\n") != std::string::npos);

    window.ShowWindow(SW_HIDE);
    CHECK(ListWindows().find("Listed") == std::string::npos);
}

TEST_CASE("the picture has all windows at their places, and the one in front covers the others")
{
    const PlainWindow behind(_T("Behind"), red, {20, 30, 60, 70});
    const PlainWindow front(_T("Front"), blue, {40, 50, 100, 90});
    const Picture picture = ShowWindows();
    CHECK(picture.Width() == 80);
    CHECK(picture.Height() == 60);
    CHECK(picture.At(2, 2) == red);
    CHECK(picture.At(30, 30) == blue);
    CHECK(picture.At(70, 50) == blue);
    CHECK(picture.At(70, 2) == RGB(0, 0, 0));
}
