// Icons and pictures of the shaded button that replace each other, and faces that are made anew.
#include "controls/ShadeButton.h"

#include "tests/Folders.h"
#include "tests/controls/LabelHost.h"

#include "testing/GdiObjects.h"
#include "testing/Picture.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

namespace {

const COLORREF red = RGB(200, 30, 40);
const COLORREF blue = RGB(10, 20, 220);
const COLORREF tint = RGB(180, 200, 230);
const CRect place(50, 60, 170, 100);

class IconButton : public CxShadeButton
{
public:
    using CxShadeButton::m_dibNormal;
    using CxShadeButton::m_hIcon;
    using CxShadeButton::m_hIconDown;
    using CxShadeButton::m_hIconOver;
    using CxShadeButton::m_hover;

    explicit IconButton(LabelHost& host)
    {
        SubclassWindow(::CreateWindow(_T("Button"), _T(""), WS_CHILD | WS_VISIBLE, place.left,
                                      place.top, place.Width(), place.Height(), host, nullptr,
                                      nullptr, nullptr));
        SetShade(SHADE_DIAGONAL, 0, 0, 100, tint);
    }
};

/// An icon of one colour, 16 by 16 pixels.
HICON MakeIcon(COLORREF color)
{
    CClientDC screen(nullptr);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    CBitmap image, mask;
    image.CreateCompatibleBitmap(&screen, 16, 16);
    CBitmap* former = memory.SelectObject(&image);
    memory.FillSolidRect(0, 0, 16, 16, color);
    memory.SelectObject(former);
    const std::vector<BYTE> opaque(16 * 2, 0);
    mask.CreateBitmap(16, 16, 1, 1, opaque.data());
    ICONINFO parts = {TRUE, 0, 0, mask, image};
    return ::CreateIconIndirect(&parts);
}

bool IsAlive(HICON icon)
{
    ICONINFO parts = {};
    if (!::GetIconInfo(icon, &parts))
        return false;
    ::DeleteObject(parts.hbmColor);
    ::DeleteObject(parts.hbmMask);
    return true;
}

} // namespace

TEST_CASE("an icon that is given again stays alive and goes on showing")
{
    LabelHost host;
    IconButton button(host);
    const HICON icon = MakeIcon(red);
    button.SetIcons(icon, CxShadeButton::alignLeft, 16, 16);
    button.SetIcons(icon, CxShadeButton::alignRight, 16, 16);
    CHECK(IsAlive(icon));
    CHECK(host.Show().Crop(place).CountOf(red) == 16 * 16);

    // As one of several, too, and the others end.
    const HICON other = MakeIcon(blue);
    button.SetIcons(other, CxShadeButton::alignLeft, 16, 16, icon);
    CHECK(IsAlive(icon));
    button.SetIcons(icon, CxShadeButton::alignLeft, 16, 16);
    CHECK(IsAlive(icon));
    CHECK_FALSE(IsAlive(other));
    CHECK(button.m_hIconDown == icon);
    CHECK(button.m_hIconOver == icon);
}

TEST_CASE("a picture replaces the icons of all states, and ends them")
{
    LabelHost host;
    IconButton button(host);
    const HICON normal = MakeIcon(red), down = MakeIcon(blue), over = MakeIcon(blue);
    button.SetIcons(normal, CxShadeButton::alignLeft, 16, 16, down, over);
    SUBCASE("a picture that loads")
    {
        button.SetPicture(ImagePath(_T("Next.gif")).c_str(), CxShadeButton::alignLeft, 19, 19, 0);
    }
    SUBCASE("one that does not")
    {
        button.SetPicture(_T("no such file.gif"), CxShadeButton::alignLeft, 19, 19, 0);
    }
    CHECK(button.m_hIcon == nullptr);
    CHECK(button.m_hIconDown == nullptr);
    CHECK(button.m_hIconOver == nullptr);
    for (const HICON icon : {normal, down, over})
        CHECK_FALSE(IsAlive(icon));
    button.m_hover = TRUE;
    const Picture hot = host.Show().Crop(place);
    CHECK(hot.CountOf(blue) == 0);
    CHECK(hot.CountOf(red) == 0);
}

TEST_CASE("an icon replaces a picture")
{
    LabelHost host;
    IconButton button(host);
    const Picture bare = host.Show().Crop(place);
    button.SetPicture(ImagePath(_T("Next.gif")).c_str(), CxShadeButton::alignLeft, 19, 19, 0);
    button.SetIcons(MakeIcon(red), CxShadeButton::alignLeft, 16, 16);
    Picture expected = bare;
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x)
            expected.Set(4 + x, 12 + y, red);
    }
    CHECK(host.Show().Crop(place).Compare(expected) == "the same");
    button.SetIcons(nullptr, CxShadeButton::alignLeft, 16, 16);
    CHECK(host.Show().Crop(place).Compare(bare) == "the same");
}

TEST_CASE("icons and pictures in turns leave nothing behind but what is let go on purpose")
{
    LabelHost host;
    {
        IconButton warm(host);
        warm.SetPicture(ImagePath(_T("Next.gif")).c_str(), CxShadeButton::alignLeft, 19, 19, 0);
        host.Show();
    }
    const BalancedGdi objects;
    {
        IconButton button(host);
        for (int turn = 0; turn < 5; ++turn) {
            button.SetPicture(ImagePath(_T("Next.gif")).c_str(), CxShadeButton::alignLeft, 19, 19,
                              0);
            button.SetIcons(MakeIcon(red), CxShadeButton::alignLeft, 16, 16, MakeIcon(blue));
        }
        host.Show();
    }
    CHECK(objects.IsBalanced());
}

TEST_CASE("faces are made anew for a new size and new system colours when asked for, not before")
{
    LabelHost host;
    IconButton button(host);
    button.SetShade(SHADE_ROWS, 0, 0, 0, tint);
    button.SetWindowPos(nullptr, 0, 0, 90, 30, SWP_NOMOVE | SWP_NOZORDER);
    CHECK(button.m_dibNormal.GetWidth() == place.Width());
    CHECK(button.UpdateShade());
    CHECK(button.m_dibNormal.GetWidth() == 90);
    CHECK(button.m_dibNormal.GetHeight() == 30);

    const COLORREF former = ::GetSysColor(COLOR_BTNSHADOW);
    const int shadow = COLOR_BTNSHADOW;
    const COLORREF odd = RGB(1, 2, 250);
    ::SetSysColors(1, &shadow, &odd);
    const RGBQUAD before = button.m_dibNormal.GetPalette()[0];
    CHECK(RGB(before.rgbRed, before.rgbGreen, before.rgbBlue) == former);
    CHECK(button.UpdateShade());
    const RGBQUAD after = button.m_dibNormal.GetPalette()[0];
    CHECK(RGB(after.rgbRed, after.rgbGreen, after.rgbBlue) == odd);
    ::SetSysColors(1, &shadow, &former);
}

TEST_CASE("a button that was never shaded has no faces to make anew")
{
    LabelHost host;
    CxShadeButton button;
    button.SubclassWindow(::CreateWindow(_T("Button"), _T(""), WS_CHILD, 0, 0, 10, 10, host,
                                         nullptr, nullptr, nullptr));
    CHECK_FALSE(button.UpdateShade());
}
