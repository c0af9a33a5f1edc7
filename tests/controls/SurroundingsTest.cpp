// Keyed pictures and captions in surroundings that hosts make: pages that answer colour requests in
// their own way, system colours of any kind, contexts that keep what was set before, right-to-left
// pages. What shows is compared pixel by pixel.
#include "controls/HyperLink.h"
#include "controls/KeyedPicture.h"
#include "controls/ShadeButton.h"
#include "controls/StaticTS.h"
#include "dialogs/DialogTS.h"
#include "shell/PictureLoader.h"

#include "tests/BitmapFile.h"
#include "tests/Folders.h"

#include "testing/Canvas.h"
#include "testing/Picture.h"
#include "testing/Pump.h"
#include "testing/Text.h"

#include <doctest/doctest.h>

#include <vector>

using namespace umbra::testing;

namespace {

const COLORREF key = RGB(0, 0, 0);
const COLORREF left = RGB(200, 30, 40);
const COLORREF right = RGB(250, 240, 10);
const COLORREF tint = RGB(180, 200, 230);
const COLORREF behind = RGB(20, 160, 60);
const COLORREF oddText = RGB(90, 10, 170);
const COLORREF oddBack = RGB(180, 200, 230);
const int extent = 19;
const CRect buttonPlace(20, 20, 140, 60);
const CRect labelPlace(20, 80, 140, 120);
const CRect linkPlace(20, 140, 140, 180);

/// Two bars on the key colour: nothing in it is symmetric.
COLORREF BarsAt(int x, int y)
{
    if (y < 4 || y >= 12)
        return key;
    return x >= 2 && x < 7 ? left : x >= 9 && x < 12 ? right : key;
}

TString BarsFile()
{
    const TString path = TemporaryPath(_T("umbra-bars.bmp"));
    REQUIRE(WriteBytes(
        path, MakeBitmapFile(
                  extent, extent, [](int x, int y) { return BarsAt(x, extent - 1 - y); }, extent)));
    return path;
}

/// The bars as an icon, transparent where the key colour is.
HICON BarsIcon()
{
    const HBITMAP bars = LoadPictureBitmap(BarsFile().c_str());
    CBitmap image, mask;
    image.Attach(bars);
    BuildKeyMask(image, mask, key);
    ICONINFO parts = {TRUE, 0, 0, static_cast<HBITMAP>(mask.GetSafeHandle()),
                      static_cast<HBITMAP>(image.GetSafeHandle())};
    return ::CreateIconIndirect(&parts);
}

/// The bars on a ground of one colour.
Picture BarsOn(COLORREF ground)
{
    Picture bars(extent, extent, ground);
    for (int y = 0; y < extent; ++y) {
        for (int x = 0; x < extent; ++x) {
            if (BarsAt(x, y) != key)
                bars.Set(x, y, BarsAt(x, y));
        }
    }
    return bars;
}

enum class Surroundings {
    plain,
    oddColorRequests, ///< WM_CTLCOLOR... sets a text and a background colour.
    filledSolid,      ///< The erasing fills by FillSolidRect, which leaves its background colour.
    ownContexts       ///< The controls' contexts keep what was set in them.
};

/// A page with a button and two labels, each with the same keyed picture.
class OddPage : public CWnd
{
public:
    explicit OddPage(Surroundings surroundings, DWORD extendedStyle = 0)
        : m_surroundings(surroundings)
    {
        m_brush.CreateSolidBrush(behind);
        CreateEx(WS_EX_TOPMOST | extendedStyle,
                 AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW), m_brush), _T(""),
                 WS_POPUP | WS_VISIBLE, 40, 40, 200, 220, nullptr, nullptr);
        const bool own = surroundings == Surroundings::ownContexts;
        m_button.SubclassWindow(
            Add(own ? OwnContextClass(_T("Button")) : _T("Button"), buttonPlace, WS_TABSTOP));
        m_label.SubclassWindow(
            Add(own ? OwnContextClass(_T("Static")) : _T("Static"), labelPlace, 0));
        m_link.SubclassWindow(
            Add(own ? OwnContextClass(_T("Static")) : _T("Static"), linkPlace, 0));
        if (own) {
            for (CWnd* control : {static_cast<CWnd*>(&m_button), static_cast<CWnd*>(&m_label),
                                  static_cast<CWnd*>(&m_link)}) {
                CClientDC dc(control);
                dc.SetTextColor(oddText);
                dc.SetBkColor(oddBack);
            }
        }
        const CString bars = BarsFile().c_str();
        m_button.SetShade(SHADE_DIAGONAL, 0, 0, 100, tint);
        m_button.SetPicture(bars, CxShadeButton::alignLeft, extent, extent, key);
        m_label.SetTransparentColor(key);
        m_label.LoadPicture(bars);
        m_link.SetTransparentColor(key);
        m_link.SetBitmapFile(bars);
    }
    ~OddPage() override { DestroyWindow(); }

    Picture Show()
    {
        RedrawWindow(nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        PumpMessages();
        return Picture::OfWindow(m_hWnd);
    }

    CxShadeButton m_button;
    CStaticTS m_label;
    CHyperLink m_link;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const HDC dc = reinterpret_cast<HDC>(wParam);
        if (m_surroundings == Surroundings::oddColorRequests &&
            (message == WM_CTLCOLORBTN || message == WM_CTLCOLORSTATIC)) {
            ::SetTextColor(dc, oddText);
            ::SetBkColor(dc, oddBack);
            return reinterpret_cast<LRESULT>(m_brush.GetSafeHandle());
        }
        if (m_surroundings == Surroundings::filledSolid && message == WM_ERASEBKGND) {
            CRect client;
            GetClientRect(&client);
            CDC::FromHandle(dc)->FillSolidRect(&client, behind);
            return TRUE;
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    /// The name of a class like the system's, whose windows have a context of their own.
    static LPCTSTR OwnContextClass(LPCTSTR system)
    {
        static TCHAR name[64];
        WNDCLASS description = {};
        ::GetClassInfo(nullptr, system, &description);
        wsprintf(name, _T("UmbraOwn%s"), system);
        description.style = (description.style & ~CS_PARENTDC & ~CS_GLOBALCLASS) | CS_OWNDC;
        description.lpszClassName = name;
        description.hInstance = ::GetModuleHandle(nullptr);
        ::RegisterClass(&description);
        return name;
    }

    HWND Add(LPCTSTR className, const CRect& place, DWORD style)
    {
        return ::CreateWindow(className, _T(""), WS_CHILD | WS_VISIBLE | style, place.left,
                              place.top, place.Width(), place.Height(), m_hWnd, nullptr, nullptr,
                              nullptr);
    }

    const Surroundings m_surroundings;
    CBrush m_brush;
};

CRect PictureAt(const CPoint& corner)
{
    return CRect(corner, CSize(extent, extent));
}

void CheckPictures(OddPage& page)
{
    for (int paint = 1; paint <= 2; ++paint) { // A second paint finds what the first one left.
        CAPTURE(paint);
        const Picture shown = page.Show();
        // Four pixels from the edge, in the middle of the height.
        CHECK(shown.Crop(PictureAt(buttonPlace.TopLeft() + CSize(4, 11))).Compare(BarsOn(tint)) ==
              "the same");
        CHECK(shown.Crop(PictureAt(labelPlace.TopLeft())).Compare(BarsOn(behind)) == "the same");
        CHECK(shown.Crop(PictureAt(linkPlace.TopLeft())).Compare(BarsOn(behind)) == "the same");
    }
}

/// Changes system colours, and back at its end.
class SystemColors
{
public:
    explicit SystemColors(const std::vector<std::pair<int, COLORREF>>& colors)
    {
        for (const auto& [index, color] : colors) {
            m_indices.push_back(index);
            m_former.push_back(::GetSysColor(index));
            ::SetSysColors(1, &index, &color);
        }
    }
    ~SystemColors()
    {
        ::SetSysColors(static_cast<int>(m_indices.size()), m_indices.data(), m_former.data());
    }

private:
    std::vector<int> m_indices;
    std::vector<COLORREF> m_former;
};

} // namespace

TEST_CASE("keyed pictures are the same whatever a page answers and a context keeps")
{
    for (const Surroundings surroundings : {Surroundings::plain, Surroundings::oddColorRequests,
                                            Surroundings::filledSolid, Surroundings::ownContexts}) {
        const int number = static_cast<int>(surroundings);
        CAPTURE(number);
        OddPage page(surroundings);
        CheckPictures(page);
    }
}

TEST_CASE("keyed pictures are the same with dark and with odd system colours")
{
    const std::vector<std::pair<int, COLORREF>> dark = {
        {COLOR_WINDOW, RGB(0, 0, 0)},     {COLOR_WINDOWTEXT, RGB(255, 255, 255)},
        {COLOR_BTNFACE, RGB(32, 32, 32)}, {COLOR_BTNTEXT, RGB(240, 240, 240)},
        {COLOR_BTNSHADOW, RGB(8, 8, 8)},  {COLOR_BTNHIGHLIGHT, RGB(90, 90, 90)}};
    const std::vector<std::pair<int, COLORREF>> odd = {{COLOR_WINDOW, RGB(250, 130, 10)},
                                                       {COLOR_WINDOWTEXT, RGB(10, 20, 200)},
                                                       {COLOR_BTNFACE, RGB(10, 220, 120)},
                                                       {COLOR_BTNTEXT, RGB(200, 0, 90)}};
    for (const auto& colors : {dark, odd}) {
        const SystemColors changed(colors);
        for (const Surroundings surroundings :
             {Surroundings::plain, Surroundings::oddColorRequests, Surroundings::filledSolid}) {
            OddPage page(surroundings);
            CheckPictures(page);
        }
    }
}

TEST_CASE("a shaped background shows its image in any colours of the target, and leaves them")
{
    CBitmap image, mask;
    image.Attach(LoadPictureBitmap(BarsFile().c_str()));
    BuildKeyMask(image, mask, key);

    CDialogTS dialog(1);
    dialog.m_bmpBack.Attach(image.Detach());
    dialog.m_bmpMask.Attach(mask.Detach());

    const Canvas canvas(extent, extent, behind);
    CDC* target = CDC::FromHandle(canvas.Dc());
    target->SetTextColor(oddText);
    target->SetBkColor(oddBack);
    dialog.DrawShaped(target, extent, extent);
    CHECK(canvas.ToPicture().Compare(BarsOn(behind)) == "the same");
    CHECK(target->GetTextColor() == oddText);
    CHECK(target->GetBkColor() == oddBack);
}

TEST_CASE("on a right-to-left page pictures stand at the right and are not mirrored")
{
    OddPage page(Surroundings::plain, WS_EX_LAYOUTRTL);
    const Picture shown = page.Show();
    const int width = shown.Width();
    const auto mirrored = [width](const CPoint& corner) {
        return PictureAt(CPoint(width - corner.x - extent, corner.y));
    };
    CHECK(shown.Crop(mirrored(buttonPlace.TopLeft() + CSize(4, 11))).Compare(BarsOn(tint)) ==
          "the same");
    CHECK(shown.Crop(mirrored(labelPlace.TopLeft())).Compare(BarsOn(behind)) == "the same");
    CHECK(shown.Crop(mirrored(linkPlace.TopLeft())).Compare(BarsOn(behind)) == "the same");
}

TEST_CASE("on a right-to-left page a button's caption reads as on any other")
{
    OddPage page(Surroundings::plain);
    OddPage mirrored(Surroundings::plain, WS_EX_LAYOUTRTL);
    Picture captions[2];
    OddPage* pages[] = {&page, &mirrored};
    for (int i = 0; i < 2; ++i) {
        CxShadeButton& button = pages[i]->m_button;
        button.SetTextColor(left);
        button.SetWindowText(_T("FL7"));
        const Picture shown = pages[i]->Show();
        CRect place;
        button.GetWindowRect(&place);
        ::MapWindowPoints(nullptr, pages[i]->m_hWnd, reinterpret_cast<POINT*>(&place), 2);
        if (i == 1)
            place.SetRect(shown.Width() - place.right, place.top, shown.Width() - place.left,
                          place.bottom);
        place.NormalizeRect();
        // Beside the picture, whose bar has the same colour.
        Picture face = shown.Crop(place);
        for (int y = 0; y < face.Height(); ++y) {
            for (int x = 0; x < 30; ++x)
                face.Set(i == 0 ? x : face.Width() - 1 - x, y, tint);
        }
        for (int y = 0; y < face.Height(); ++y) {
            for (int x = 0; x < face.Width(); ++x)
                face.Set(x, y, face.At(x, y) == left ? left : tint);
        }
        const RECT bounds = face.BoundsOfOthers(tint);
        CHECK(bounds.right - bounds.left > 10);
        captions[i] = face.Crop(bounds);
    }
    CHECK(captions[1].Compare(captions[0]) == "the same");
}

TEST_CASE("on a right-to-left page icons and opaque pictures are not mirrored either")
{
    OddPage page(Surroundings::plain, WS_EX_LAYOUTRTL);
    page.m_button.SetIcons(BarsIcon(), CxShadeButton::alignLeft, extent, extent);
    page.m_label.SetTransparentColor(CLR_NONE);
    page.m_label.LoadPicture(BarsFile().c_str());
    const Picture shown = page.Show();
    const int width = shown.Width();
    const auto mirrored = [width](const CPoint& corner) {
        return PictureAt(CPoint(width - corner.x - extent, corner.y));
    };
    CHECK(shown.Crop(mirrored(labelPlace.TopLeft())).Compare(BarsOn(key)) == "the same");
    CHECK(shown.Crop(mirrored(buttonPlace.TopLeft() + CSize(4, 11))).Compare(BarsOn(tint)) ==
          "the same");

    page.m_button.SetPicture(BarsFile().c_str(), CxShadeButton::alignLeft, extent, extent,
                             CLR_NONE);
    CHECK(page.Show().Crop(mirrored(buttonPlace.TopLeft() + CSize(4, 11))).Compare(BarsOn(key)) ==
          "the same");
}

TEST_CASE("on a right-to-left page the faces and focus lines fill the same places as on any other")
{
    OddPage page(Surroundings::plain, WS_EX_LAYOUTRTL);
    page.m_button.SetPicture(_T(""), CxShadeButton::alignLeft, 0, 0, key);
    page.m_button.SetBorder(4);
    page.m_button.SetShade(SHADE_DIAGONAL, 0, 0, 100, tint);
    page.m_button.SetFocus();
    const Picture shown = page.Show();
    const CRect place(shown.Width() - buttonPlace.right, buttonPlace.top,
                      shown.Width() - buttonPlace.left, buttonPlace.bottom);
    const Picture button = shown.Crop(place);
    CHECK(button.CountOf(behind) == 0);

    OddPage other(Surroundings::plain);
    other.m_button.SetPicture(_T(""), CxShadeButton::alignLeft, 0, 0, key);
    other.m_button.SetFocus();
    const Picture plain = other.Show().Crop(buttonPlace);
    for (const int y : {4, 20, 35, 36}) {
        int lines = 0, plainLines = 0;
        for (int x = 3; x < button.Width() - 3; ++x) {
            lines += button.At(x, y) != tint;
            plainLines += plain.At(x, y) != tint;
        }
        CAPTURE(y);
        CHECK(lines == plainLines);
    }
}
