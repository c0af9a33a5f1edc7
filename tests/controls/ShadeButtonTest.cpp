#include "controls/ShadeButton.h"
#include "faces/ShadeGenerator.h"
#include "shell/PictureLoader.h"

#include "tests/ForeignFolder.h"
#include "tests/LibraryFiles.h"
#include "tests/controls/LabelHost.h"
#include "tests/controls/RelayLog.h"

#include "testing/CallFault.h"
#include "testing/Canvas.h"
#include "testing/GdiObjects.h"
#include "testing/ImportHook.h"
#include "testing/Input.h"
#include "testing/MessageLog.h"
#include "testing/Picture.h"
#include "testing/Pump.h"
#include "testing/Text.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

using namespace umbra::testing;

namespace {

const COLORREF red = RGB(200, 30, 40);
const COLORREF tint = RGB(180, 200, 230);
const CRect buttonPlace(50, 60, 170, 100);
const int width = 120;
const int height = 40;

/// A button that shows its members, and what it hands on to the system.
class TestButton : public CxShadeButton
{
public:
    using CxShadeButton::LoadPictureBitmap;
    using CxShadeButton::m_3dBorder;
    using CxShadeButton::m_bmpImage;
    using CxShadeButton::m_bmpMask;
    using CxShadeButton::m_border;
    using CxShadeButton::m_buttonKind;
    using CxShadeButton::m_checked;
    using CxShadeButton::m_dibDisabled;
    using CxShadeButton::m_dibDown;
    using CxShadeButton::m_dibFocusH;
    using CxShadeButton::m_dibFocusV;
    using CxShadeButton::m_dibNormal;
    using CxShadeButton::m_dibOver;
    using CxShadeButton::m_flat;
    using CxShadeButton::m_font;
    using CxShadeButton::m_hBitmap;
    using CxShadeButton::m_hIcon;
    using CxShadeButton::m_hIconDown;
    using CxShadeButton::m_hIconOver;
    using CxShadeButton::m_hover;
    using CxShadeButton::m_iconAlign;
    using CxShadeButton::m_maskColor;
    using CxShadeButton::m_pictureData;
    using CxShadeButton::m_pictureOwned;
    using CxShadeButton::m_pressing;
    using CxShadeButton::m_pushLike;
    using CxShadeButton::m_rcIcon;
    using CxShadeButton::m_textColor;
    using CxShadeButton::m_textFormat;
    using CxShadeButton::m_toolTip;

    /// A message that went on to the system's own handling.
    struct PassedOn
    {
        UINT message;
        bool wasPressing; ///< m_pressing at that moment.
    };
    std::vector<PassedOn> m_passedOn;

    const PassedOn* Find(UINT message) const
    {
        for (const PassedOn& passed : m_passedOn) {
            if (passed.message == message)
                return &passed;
        }
        return nullptr;
    }

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        m_passedOn.push_back({message, m_pressing != FALSE});
        return CxShadeButton::DefWindowProc(message, wParam, lParam);
    }
};

/// A host that counts the notifications and paint requests of its buttons.
class ButtonHost : public LabelHost
{
public:
    int m_clicks = 0;
    int m_doubleClicks = 0;
    std::vector<UINT> m_drawn; ///< The item states that were asked for.
    std::function<void()> m_onClick;

    HWND AddButton(DWORD style = BS_PUSHBUTTON, const CRect& place = buttonPlace, int id = 100,
                   LPCTSTR text = _T("Text"))
    {
        return ::CreateWindow(_T("Button"), text, WS_CHILD | WS_VISIBLE | WS_TABSTOP | style,
                              place.left, place.top, place.Width(), place.Height(), m_hWnd,
                              reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    }

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        m_clicks += HIWORD(wParam) == BN_CLICKED;
        m_doubleClicks += HIWORD(wParam) == BN_DOUBLECLICKED;
        if (HIWORD(wParam) == BN_CLICKED && m_onClick)
            m_onClick();
        return LabelHost::OnCommand(wParam, lParam);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_DRAWITEM)
            m_drawn.push_back(reinterpret_cast<DRAWITEMSTRUCT*>(lParam)->itemState);
        return LabelHost::WindowProc(message, wParam, lParam);
    }
};

/// A button on its host, with the pointer somewhere else.
struct Button
{
    explicit Button(DWORD style = BS_PUSHBUTTON)
    {
        control.SubclassWindow(host.AddButton(style));
        MovePointerAway();
    }

    /// One-coloured faces, so that what lies on them can be told by its colour.
    void Shade(COLORREF color = tint) { control.SetShade(SHADE_DIAGONAL, 0, 0, 100, color); }

    Picture Draw(UINT state = 0) { return DrawOwnerDrawnButton(control.m_hWnd, state); }

    ButtonHost host;
    TestButton control;
};

/// Paints by hand, with the plain functions of the system, what a button is expected to show.
class Expected
{
public:
    explicit Expected(COLORREF face, int shift = 0) : m_canvas(width, height, RGB(0, 0, 0))
    {
        const HBRUSH brush = ::CreateSolidBrush(face);
        const RECT area = {shift, shift, width, height};
        ::FillRect(m_canvas.Dc(), &area, brush);
        ::DeleteObject(brush);
        ::SelectObject(m_canvas.Dc(), ::GetStockObject(DEFAULT_GUI_FONT));
        ::SetBkMode(m_canvas.Dc(), TRANSPARENT);
    }

    Expected& Edge(UINT edge, int inset = 0)
    {
        RECT area = {inset, inset, width - inset, height - inset};
        ::DrawEdge(m_canvas.Dc(), &area, edge, BF_RECT);
        return *this;
    }

    Expected& FlatEdge(int topLeft, int bottomRight)
    {
        CDC::FromHandle(m_canvas.Dc())
            ->Draw3dRect(0, 0, width, height, ::GetSysColor(topLeft), ::GetSysColor(bottomRight));
        return *this;
    }

    Expected& Focus(int inset)
    {
        const COLORREF shadow = ::GetSysColor(COLOR_BTNSHADOW);
        const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT);
        for (int i = 0; i < width - 2 * 4 - 1; ++i) {
            ::SetPixel(m_canvas.Dc(), inset + 1 + i, inset, i % 2 ? light : shadow);
            ::SetPixel(m_canvas.Dc(), inset + 1 + i, height - inset, i % 2 ? light : shadow);
        }
        // Rows are counted from the bottom of the line.
        const int length = height - 2 * 4 - 1;
        for (int i = 0; i < length; ++i) {
            const COLORREF color = i % 2 ? light : shadow;
            ::SetPixel(m_canvas.Dc(), inset, inset + 1 + length - 1 - i, color);
            ::SetPixel(m_canvas.Dc(), width - inset, inset + 1 + length - 1 - i, color);
        }
        return *this;
    }

    Expected& Caption(COLORREF color, int shift = 0, LPCTSTR text = _T("Text"),
                      UINT format = DT_CENTER | DT_VCENTER | DT_SINGLELINE)
    {
        RECT area = {6 + shift, shift, width - 6 + shift, height + shift};
        ::SetTextColor(m_canvas.Dc(), color);
        ::DrawText(m_canvas.Dc(), text, -1, &area, format);
        return *this;
    }

    Picture ToPicture() const { return m_canvas.ToPicture(); }

private:
    Canvas m_canvas;
};

/// A colour of the system.
COLORREF Sys(int index)
{
    return ::GetSysColor(index);
}

/// Whether the system sees the button as held down.
bool IsPushed(CWnd& button)
{
    return (button.SendMessage(BM_GETSTATE) & BST_PUSHED) != 0;
}

/// Radio-kind buttons in a row; each of `starts` begins a dialog group.
struct RadioRow
{
    RadioRow(int count, std::vector<int> starts)
    {
        for (int i = 0; i < count; ++i) {
            DWORD style = BS_AUTORADIOBUTTON;
            for (const int start : starts)
                style |= start == i ? WS_GROUP : 0;
            buttons.push_back(std::make_unique<TestButton>());
            buttons.back()->SubclassWindow(
                host.AddButton(style, CRect(10 + 60 * i, 10, 60 + 60 * i, 40), 200 + i));
        }
    }

    std::vector<int> Checked()
    {
        std::vector<int> checked;
        for (const auto& button : buttons)
            checked.push_back(static_cast<int>(button->SendMessage(BM_GETCHECK)));
        return checked;
    }

    ButtonHost host;
    std::vector<std::unique_ptr<TestButton>> buttons;
};

/// An icon of 16 by 16 pixels in one colour, opaque.
HICON MakeIcon(COLORREF color)
{
    HDC screen = ::GetDC(nullptr);
    HDC memory = ::CreateCompatibleDC(screen);
    ICONINFO info = {};
    info.fIcon = TRUE;
    info.hbmColor = ::CreateCompatibleBitmap(screen, 16, 16);
    info.hbmMask = ::CreateBitmap(16, 16, 1, 1, nullptr);
    const RECT all = {0, 0, 16, 16};
    const HBRUSH brush = ::CreateSolidBrush(color);
    HGDIOBJ former = ::SelectObject(memory, info.hbmColor);
    ::FillRect(memory, &all, brush);
    ::SelectObject(memory, info.hbmMask);
    ::FillRect(memory, &all, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
    ::SelectObject(memory, former);
    ::DeleteObject(brush);
    ::DeleteDC(memory);
    ::ReleaseDC(nullptr, screen);
    const HICON icon = ::CreateIconIndirect(&info);
    ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    return icon;
}

/// Whether the handle is that of an icon which is still there.
bool IsIcon(HICON icon)
{
    ICONINFO info = {};
    if (!::GetIconInfo(icon, &info))
        return false;
    ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    return true;
}

/// Stands in for the watch on the pointer's leaving: there is none.
BOOL WINAPI RefuseTracking(LPTRACKMOUSEEVENT)
{
    return FALSE;
}

/// The areas in which the button has texts drawn.
std::vector<CRect> textAreas;

/// Draws the text as it was asked for, and notes where.
int WINAPI NoteTextArea(HDC dc, LPCTSTR text, int length, LPRECT area, UINT format)
{
    textAreas.push_back(*area);
    return ::DrawText(dc, text, length, area, format);
}

/// The bitmap as the toolkit loads it from one of its images.
Picture LoadImagePicture(LPCTSTR name)
{
    const HBITMAP file = LoadPictureBitmap(ImagePath(name).c_str());
    const Picture image = Picture::OfBitmap(file);
    ::DeleteObject(file);
    return image;
}

/// The face with the image over it, black pixels transparent.
Picture Overlay(Picture face, const Picture& image, CPoint at)
{
    for (int y = 0; y < image.Height(); ++y) {
        for (int x = 0; x < image.Width(); ++x) {
            if (image.At(x, y) != 0)
                face.Set(at.x + x, at.y + y, image.At(x, y));
        }
    }
    return face;
}

} // namespace

TEST_CASE("a new button has its defaults")
{
    const TestButton button;
    CHECK_FALSE(button.m_pictureOwned);
    CHECK(button.m_maskColor == 0xFFFFFFFF);
    CHECK(button.m_pictureData == nullptr);
    CHECK_FALSE(button.m_checked);
    CHECK(button.m_buttonKind == 0);
    CHECK_FALSE(button.m_hover);
    CHECK_FALSE(button.m_pressing);
    CHECK(button.m_toolTip.m_hWnd == nullptr);
    CHECK(button.m_border == 4);
    CHECK(button.m_textColor == Sys(COLOR_BTNTEXT));
    CHECK(button.m_3dBorder == 1);
    CHECK(button.m_hIcon == nullptr);
    CHECK(button.m_hBitmap == nullptr);
    CHECK(button.m_rcIcon.IsRectEmpty());
    CHECK(button.m_textFormat == DT_CENTER);
    CHECK(button.m_iconAlign == 0x300);
    CHECK_FALSE(button.m_dibNormal.IsValid());
    CHECK(WM_SHADE_UNCHECK == 0x500);
}

// Kept: the style is taken bit by bit, not as a type of button.
TEST_CASE("kind, look and text format follow from the style, bit by bit")
{
    struct Case
    {
        DWORD style;
        UINT kind;
        bool pushLike;
        int border;
        UINT format;
    };
    const UINT line = DT_VCENTER | DT_SINGLELINE;
    for (const Case& expected :
         {Case{BS_PUSHBUTTON, 0, true, 1, DT_CENTER | line},
          Case{BS_DEFPUSHBUTTON, 0, true, 1, DT_CENTER | line},
          Case{BS_AUTOCHECKBOX, 2, false, 0, DT_CENTER | line},
          Case{BS_AUTOCHECKBOX | BS_PUSHLIKE, 2, true, 1, DT_CENTER | line},
          Case{BS_AUTORADIOBUTTON, 4, false, 0, DT_CENTER | line},
          Case{BS_AUTORADIOBUTTON | BS_PUSHLIKE, 4, true, 1, DT_CENTER | line},
          // Plain check and radio styles are push buttons; group boxes and owner-drawn buttons are
          // check boxes.
          Case{BS_CHECKBOX, 0, true, 1, DT_CENTER | line},
          Case{BS_RADIOBUTTON, 0, true, 1, DT_CENTER | line},
          Case{BS_GROUPBOX, 2, false, 0, DT_CENTER | line},
          Case{BS_OWNERDRAW, 2, false, 0, DT_CENTER | line},
          Case{BS_LEFT, 0, true, 1, DT_LEFT | line}, Case{BS_RIGHT, 0, true, 1, DT_RIGHT | line},
          Case{BS_CENTER, 0, true, 1, DT_CENTER | line}}) {
        CAPTURE(expected.style);
        Button button(expected.style);
        CHECK(button.control.m_buttonKind == expected.kind);
        CHECK((button.control.m_pushLike != 0) == expected.pushLike);
        CHECK(button.control.m_3dBorder == expected.border);
        CHECK(button.control.m_textFormat == expected.format);
        CHECK_FALSE(button.control.m_flat);
        CHECK((button.control.GetStyle() & BS_OWNERDRAW) == BS_OWNERDRAW);
    }
    Button flat(BS_FLAT);
    CHECK(flat.control.m_flat);
}

TEST_CASE("without faces a raised button is the system's face with a raised edge and its caption")
{
    Button button;
    CHECK(button.Draw().Compare(Expected(Sys(COLOR_BTNFACE))
                                    .Edge(EDGE_RAISED)
                                    .Caption(Sys(COLOR_BTNTEXT))
                                    .ToPicture()) == "the same");
}

TEST_CASE("with faces, each state is drawn step by step as planned")
{
    Button button;
    button.Shade();
    const COLORREF text = Sys(COLOR_BTNTEXT);
    CHECK(button.Draw().Compare(Expected(tint).Edge(EDGE_RAISED).Caption(text).ToPicture()) ==
          "the same");
    CHECK(button.Draw(ODS_FOCUS).Compare(
              Expected(tint).Edge(EDGE_RAISED).Focus(4).Caption(text).ToPicture()) == "the same");
    // The default edge moves the focus lines in by one; they keep their length.
    CHECK(button.Draw(ODS_DEFAULT | ODS_FOCUS)
              .Compare(Expected(tint)
                           .Edge(EDGE_SUNKEN)
                           .Edge(EDGE_RAISED, 1)
                           .Focus(5)
                           .Caption(text)
                           .ToPicture()) == "the same");
    CHECK(button.Draw(ODS_SELECTED)
              .Compare(Expected(tint, 1).Edge(EDGE_SUNKEN).Caption(text, 1).ToPicture()) ==
          "the same");
    CHECK(button.Draw(ODS_DISABLED | ODS_FOCUS)
              .Compare(Expected(tint)
                           .Edge(EDGE_RAISED)
                           .Caption(Sys(COLOR_BTNHIGHLIGHT))
                           .Caption(Sys(COLOR_GRAYTEXT), -1)
                           .ToPicture()) == "the same");
}

TEST_CASE("a hot button shows its hot face, which a pressed one shows too")
{
    Button button;
    button.control.SetShade(SHADE_NOISE, 0, 100, 100, tint);
    const COLORREF hot = Sys(COLOR_BTNHIGHLIGHT);
    const COLORREF text = Sys(COLOR_BTNTEXT);
    CHECK(button.Draw().Compare(Expected(tint).Edge(EDGE_RAISED).Caption(text).ToPicture()) ==
          "the same");
    button.control.m_hover = TRUE;
    CHECK(button.Draw().Compare(Expected(hot).Edge(EDGE_RAISED).Caption(text).ToPicture()) ==
          "the same");
    CHECK(button.Draw(ODS_SELECTED)
              .Compare(Expected(hot, 1).Edge(EDGE_SUNKEN).Caption(text, 1).ToPicture()) ==
          "the same");
}

TEST_CASE("without edges the normal and the hot face fill the button from its first pixel on")
{
    Button button;
    button.control.SetShade(SHADE_NOISE, 0, 100, 100, tint);
    button.control.Set3dBorder(FALSE);
    const COLORREF text = Sys(COLOR_BTNTEXT);
    CHECK(button.Draw().Compare(Expected(tint).Caption(text).ToPicture()) == "the same");
    button.control.m_hover = TRUE;
    CHECK(button.Draw().Compare(Expected(Sys(COLOR_BTNHIGHLIGHT)).Caption(text).ToPicture()) ==
          "the same");
}

TEST_CASE("a flat button shows no edge until the mouse is over it, and a sunken line when pressed")
{
    Button button(BS_FLAT);
    button.Shade();
    const COLORREF text = Sys(COLOR_BTNTEXT);
    CHECK(button.Draw().Compare(Expected(tint).Caption(text).ToPicture()) == "the same");
    button.control.m_hover = TRUE;
    CHECK(button.Draw().Compare(Expected(tint)
                                    .FlatEdge(COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW)
                                    .Caption(text)
                                    .ToPicture()) == "the same");
    CHECK(button.Draw(ODS_SELECTED)
              .Compare(Expected(tint, 1)
                           .FlatEdge(COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT)
                           .Caption(text, 1)
                           .ToPicture()) == "the same");
    button.control.m_hover = FALSE;
    CHECK(button.Draw(ODS_DISABLED)
              .Compare(Expected(tint)
                           .Caption(Sys(COLOR_BTNHIGHLIGHT))
                           .Caption(Sys(COLOR_GRAYTEXT), -1)
                           .ToPicture()) == "the same");
}

TEST_CASE("a checked check box is drawn pressed, without edges or shift")
{
    Button button(BS_AUTOCHECKBOX);
    button.control.SetShade(SHADE_NOISE, 0, 100, 100, tint);
    button.control.SendMessage(BM_SETCHECK, BST_CHECKED);
    CHECK(button.Draw().Compare(
              Expected(Sys(COLOR_BTNHIGHLIGHT)).Caption(Sys(COLOR_BTNTEXT)).ToPicture()) ==
          "the same");
}

TEST_CASE("setters of colour, font, border and edges show")
{
    Button button;
    button.Shade();
    button.control.SetTextColor(red);
    CHECK(button.Draw().Compare(Expected(tint).Edge(EDGE_RAISED).Caption(red).ToPicture()) ==
          "the same");
    button.control.Set3dBorder(FALSE);
    CHECK(button.Draw().Compare(Expected(tint).Caption(red).ToPicture()) == "the same");
    button.control.SetBorder(0);
    CHECK(button.Draw(ODS_FOCUS).CountOf(Sys(COLOR_BTNSHADOW)) == 0);
    button.control.SetFlat(TRUE);
    CHECK(button.control.m_flat);

    const int before = button.Draw().CountOf(red);
    LOGFONT font = {};
    font.lfHeight = -24;
    font.lfWeight = FW_BOLD;
    _tcscpy(font.lfFaceName, _T("Arial"));
    CHECK(button.control.SetTextFont(font));
    CHECK(button.Draw().CountOf(red) > before);
}

TEST_CASE("the caption keeps clear of a picture")
{
    Button button;
    const CString path = ImagePath(_T("Next.gif")).c_str();
    struct Case
    {
        UINT align;
        CRect place;
    };
    for (const Case& expected : {Case{0x100, CRect(CPoint(4, 20 - 9), CSize(19, 19))},
                                 Case{0x200, CRect(CPoint(width - 4 - 19, 20 - 9), CSize(19, 19))},
                                 Case{0x300, CRect(CPoint(60 - 9, 1), CSize(19, 19))},
                                 Case{7, CRect(CPoint(60 - 9, 1), CSize(19, 19))}}) {
        CHECK(button.control.SetPicture(path, expected.align, 19, 19, 0) == TRUE);
        CHECK(button.control.m_rcIcon == expected.place);
        CHECK(button.control.m_iconAlign == (expected.align == 7 ? 0x300 : expected.align));
    }
}

TEST_CASE("a picture larger than the button starts at its edge")
{
    Button button;
    const CString path = ImagePath(_T("Next.gif")).c_str();
    button.control.SetPicture(path, 0x100, 300, 300, 0);
    CHECK(button.control.m_rcIcon == CRect(CPoint(4, 0), CSize(300, 300)));
    button.control.SetPicture(path, 0x300, 300, 300, 0);
    CHECK(button.control.m_rcIcon == CRect(CPoint(0, 0), CSize(300, 300)));
}

TEST_CASE("a keyed picture shows the face through its key colour, shifted when pressed")
{
    Button button;
    button.control.SetWindowText(_T(""));
    button.Shade();
    const Picture bare = button.Draw();
    const Picture barePressed = button.Draw(ODS_SELECTED);
    button.control.SetPicture(ImagePath(_T("Next.gif")).c_str(), 0x100, 19, 19, 0);
    const Picture image = LoadImagePicture(_T("Next.gif"));

    CHECK(button.Draw().Compare(Overlay(bare, image, CPoint(4, 11))) == "the same");
    CHECK(button.Draw(ODS_SELECTED).Compare(Overlay(barePressed, image, CPoint(5, 12))) ==
          "the same");
    CHECK(button.Draw(ODS_DISABLED)
              .Compare(Overlay(button.Draw(ODS_DISABLED), image, CPoint(4, 11))) == "the same");
}

TEST_CASE("a keyed picture of a checked button keeps its place until the button is pressed")
{
    Button button(BS_AUTOCHECKBOX | BS_PUSHLIKE);
    button.control.SetWindowText(_T(""));
    button.Shade();
    button.control.SendMessage(BM_SETCHECK, BST_CHECKED);
    const Picture bare = button.Draw();
    button.control.SetPicture(ImagePath(_T("Next.gif")).c_str(), 0x100, 19, 19, 0);
    const Picture image = LoadImagePicture(_T("Next.gif"));
    CHECK(button.Draw().Compare(Overlay(bare, image, CPoint(4, 11))) == "the same");
    CHECK(button.Draw(ODS_SELECTED).Compare(Overlay(bare, image, CPoint(5, 12))) == "the same");
}

TEST_CASE("the caption's area gives way to a picture, to the pixel")
{
    Button button;
    button.Shade();
    const ImportHook texts(FindModule(UMBRA_MFC_DLL), "user32", TEXT_FUNCTION("DrawText"),
                           NoteTextArea);
    REQUIRE(texts.IsInstalled());
    const auto areaOf = [&button](UINT state) {
        textAreas.clear();
        button.Draw(state);
        REQUIRE(textAreas.size() == 1);
        return textAreas[0];
    };
    CHECK(areaOf(0) == CRect(6, 0, width - 6, height));
    const CString path = ImagePath(_T("Next.gif")).c_str();
    button.control.SetPicture(path, 0x100, 19, 19, 0);
    CHECK(areaOf(0) == CRect(6 + 19, 0, width - 6, height));
    button.control.SetPicture(path, 0x200, 19, 19, 0);
    CHECK(areaOf(0) == CRect(6, 0, width - 6 - 19, height));
    button.control.SetPicture(path, 0x300, 19, 19, 0);
    CHECK(areaOf(0) == CRect(6, 1 + 19, width - 6, height - 5));
    CHECK(areaOf(ODS_SELECTED) == CRect(7, 2 + 19, width - 5, height - 4));
}

TEST_CASE("a picture is found under a path beyond ASCII")
{
    const ForeignFolder folder;
    REQUIRE(folder.IsThere());
    Button button;
    button.control.SetWindowText(_T(""));
    button.Shade();
    const Picture bare = button.Draw();
    button.control.SetPicture(folder.ImagePath(_T("Next.gif")).c_str(), 0x100, 19, 19, 0);
    CHECK(button.Draw().Compare(Overlay(bare, LoadImagePicture(_T("Next.gif")), CPoint(4, 11))) ==
          "the same");
}

TEST_CASE("a picture without a mask colour is drawn whole")
{
    Button button;
    button.control.SetWindowText(_T(""));
    button.Shade();
    button.control.SetPicture(ImagePath(_T("Next.gif")).c_str(), 0x100, 19, 19, CLR_NONE);
    CHECK(button.control.m_maskColor == CLR_NONE);
    const Picture shown = button.Draw().Crop(CRect(CPoint(4, 11), CSize(19, 19)));
    CHECK(shown.At(0, 0) == RGB(0, 0, 0));
    CHECK_FALSE(shown.Contains(tint));
}

TEST_CASE("a picture replaces an icon, and one that does not load leaves neither")
{
    Button button;
    button.control.SetIcons(MakeIcon(red), 0x100, 16, 16);
    CHECK(button.Draw().CountOf(red) == 16 * 16);
    button.control.SetPicture(ImagePath(_T("Next.gif")).c_str(), 0x100, 19, 19, 0);
    CHECK(button.control.m_hIcon == nullptr);
    CHECK(button.control.m_hBitmap != nullptr);
    CHECK(button.control.m_bmpImage.GetSafeHandle() == button.control.m_hBitmap);

    button.control.SetIcons(MakeIcon(red), 0x100, 16, 16);
    CHECK(button.control.SetPicture(_T("no such file.gif"), 0x100, 19, 19, 0) == TRUE);
    CHECK(button.control.m_hIcon == nullptr);
    CHECK(button.control.m_hBitmap == nullptr);
}

TEST_CASE("icons of the three states show in theirs")
{
    Button button;
    button.control.SetWindowText(_T(""));
    button.Shade();
    const COLORREF green = RGB(0, 150, 0), blue = RGB(0, 0, 200);
    button.control.SetIcons(MakeIcon(red), 0x100, 16, 16, MakeIcon(green), MakeIcon(blue));
    CHECK(button.Draw().CountOf(red) == 16 * 16);
    CHECK(button.Draw(ODS_SELECTED).CountOf(green) == 16 * 16);
    button.control.m_hover = TRUE;
    CHECK(button.Draw().CountOf(blue) == 16 * 16);
    button.control.m_hover = FALSE;
    const Picture disabled = button.Draw(ODS_DISABLED);
    CHECK_FALSE(disabled.Contains(red));
    CHECK_FALSE(disabled == Picture(width, height, tint));
}

TEST_CASE("one icon serves all states, shifted when pressed")
{
    Button button;
    button.control.SetWindowText(_T(""));
    button.Shade();
    button.control.SetIcons(MakeIcon(red), 0x100, 16, 16);
    CHECK(button.Draw().At(4, 12) == red);
    CHECK(button.Draw(ODS_SELECTED).At(4, 12) != red);
    CHECK(button.Draw(ODS_SELECTED).At(5, 13) == red);
}

TEST_CASE("a button ends its icons, its picture and its font, and each shared handle once")
{
    HICON icon, down, over;
    HGDIOBJ picture, mask;
    WarmUpGdi();
    {
        Button button;
        icon = MakeIcon(red);
        down = MakeIcon(red);
        over = MakeIcon(red);
        button.control.SetIcons(icon, 0x100, 16, 16, down, over);
    }
    CHECK_FALSE(IsIcon(icon));
    CHECK_FALSE(IsIcon(down));
    CHECK_FALSE(IsIcon(over));
    {
        Button button;
        button.control.SetPicture(ImagePath(_T("Next.gif")).c_str(), 0x100, 19, 19, 0);
        picture = button.control.m_hBitmap;
        mask = button.control.m_bmpMask.GetSafeHandle();
    }
    CHECK(::GetObjectType(picture) != OBJ_BITMAP);
    CHECK(::GetObjectType(mask) != OBJ_BITMAP);
}

TEST_CASE("an icon that serves two or three looks is destroyed once")
{
    struct Case
    {
        HICON down;
        HICON over;
        int destroyed;
    };
    const HICON second = MakeIcon(red), third = MakeIcon(red), fourth = MakeIcon(red);
    // Beside the normal icon: one for both other looks, two, the pressed or the hot look alone.
    for (const Case& icons : {Case{second, second, 2}, Case{nullptr, nullptr, 1},
                              Case{third, nullptr, 2}, Case{nullptr, fourth, 2}}) {
        auto button = std::make_unique<Button>();
        button->control.SetIcons(MakeIcon(red), 0x100, 16, 16, icons.down, icons.over);
        const CountCalls ends(FindModule(UMBRA_DLL), "user32", "DestroyIcon");
        REQUIRE(ends.IsInstalled());
        button.reset();
        CHECK(ends.Calls() == icons.destroyed);
    }
}

// Kept: the former picture is not deleted.
TEST_CASE("a replaced picture is left, not deleted")
{
    Button button;
    button.control.SetPicture(ImagePath(_T("Next.gif")).c_str(), 0x100, 19, 19, 0);
    const HBITMAP first = button.control.m_hBitmap;
    button.control.SetPicture(ImagePath(_T("Back.gif")).c_str(), 0x100, 19, 19, 0);
    CHECK(button.control.m_hBitmap != first);
    CHECK(::GetObjectType(first) == OBJ_BITMAP);
    ::DeleteObject(first);
}

TEST_CASE("the real pointer makes a button hot, and cold again when it leaves")
{
    Button button;
    button.host.Show();
    REQUIRE(MovePointer(button.control.m_hWnd));
    CHECK(button.control.m_hover);
    MovePointerAway();
    CHECK(WaitUntil([&] { return !button.control.m_hover; }));
}

TEST_CASE("a refused tracking leaves the button as it is")
{
    Button button;
    {
        const ImportHook tracking(FindModule(UMBRA_DLL), "comctl32", "_TrackMouseEvent",
                                  RefuseTracking);
        REQUIRE(tracking.IsInstalled());
        button.control.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
        CHECK_FALSE(button.control.m_hover);
    }
    MovePointer(button.control.m_hWnd);
    REQUIRE(button.control.m_hover);
    const ImportHook tracking(FindModule(UMBRA_DLL), "comctl32", "_TrackMouseEvent",
                              RefuseTracking);
    PressLeft();
    CHECK(button.control.m_hover); // The cancelling was refused.
    CHECK(button.control.m_pressing);
    ReleaseLeft();
}

TEST_CASE("pressing takes the heat, pushes and captures; releasing clicks")
{
    Button button;
    button.host.Show();
    REQUIRE(MovePointer(button.control.m_hWnd));
    REQUIRE(button.control.m_hover);
    PressLeft();
    CHECK_FALSE(button.control.m_hover);
    CHECK(button.control.m_pressing);
    CHECK(IsPushed(button.control));
    CHECK(::GetCapture() == button.control.m_hWnd);
    ReleaseLeft();
    CHECK_FALSE(button.control.m_pressing);
    CHECK_FALSE(IsPushed(button.control));
    CHECK(::GetCapture() == nullptr);
    CHECK(button.host.m_clicks == 1);
    // The next move arms the tracking again.
    MovePointer(button.control.m_hWnd, {20, 20});
    CHECK(button.control.m_hover);
}

TEST_CASE("dragging out of a pressed button raises it, dragging back pushes it, capture held")
{
    Button button;
    button.host.Show();
    MovePointer(button.control.m_hWnd);
    PressLeft();
    REQUIRE(IsPushed(button.control));
    MovePointer(button.host.m_hWnd, {300, 300});
    CHECK_FALSE(IsPushed(button.control));
    CHECK(::GetCapture() == button.control.m_hWnd);
    MovePointer(button.control.m_hWnd);
    CHECK(IsPushed(button.control));
    CHECK(::GetCapture() == button.control.m_hWnd);
    MovePointer(button.host.m_hWnd, {300, 300});
    ReleaseLeft();
    CHECK(button.host.m_clicks == 0);
    CHECK_FALSE(button.control.m_pressing);
}

TEST_CASE("a paint that finds the pointer elsewhere than the pushed state says corrects it first")
{
    Button button;
    button.host.Show();
    REQUIRE(MovePointer(button.control.m_hWnd));
    PressLeft();
    REQUIRE(IsPushed(button.control));
    CPoint inside;
    ::GetCursorPos(&inside);
    const CRect host = [&] {
        CRect place;
        button.host.GetWindowRect(&place);
        return place;
    }();

    // The pointer is off the button; the message that says so has not been taken yet.
    ::SetCursorPos(host.right - 10, host.bottom - 10);
    const Picture background(width, height, RGB(255, 255, 255));
    CHECK(button.Draw(ODS_SELECTED).Compare(background) == "the same"); // This paint is void.
    CHECK_FALSE(IsPushed(button.control));
    CHECK_FALSE(button.Draw() == background);
    ::SetCursorPos(inside.x, inside.y);
    CHECK(button.Draw().Compare(background) == "the same");
    CHECK(IsPushed(button.control));
    ReleaseLeft();
}

TEST_CASE("without a press of its own a held or a captured button corrects nothing")
{
    Button button;
    button.host.Show();
    MovePointerAway();
    button.control.SendMessage(BM_SETSTATE, TRUE);
    button.Draw();
    CHECK(IsPushed(button.control)); // Not pressed by the mouse.
    button.control.m_pressing = TRUE;
    button.Draw();
    CHECK(IsPushed(button.control)); // Without the capture.
    ::SetCapture(button.control.m_hWnd);
    button.control.m_pressing = FALSE;
    button.Draw();
    CHECK(IsPushed(button.control));
    ::ReleaseCapture();
}

TEST_CASE("a press counts from the end of the system's own handling on")
{
    Button button;
    button.host.Show();
    MovePointer(button.control.m_hWnd);
    button.control.m_passedOn.clear();
    PressLeft();
    REQUIRE(button.control.Find(WM_LBUTTONDOWN) != nullptr);
    CHECK_FALSE(button.control.Find(WM_LBUTTONDOWN)->wasPressing);
    CHECK(button.control.m_pressing);
    ReleaseLeft();
    REQUIRE(button.control.Find(WM_LBUTTONUP) != nullptr);
    CHECK_FALSE(button.control.Find(WM_LBUTTONUP)->wasPressing);
}

TEST_CASE("the button's own procedure gets every mouse and key message that the button handles")
{
    static std::vector<UINT> got;
    static WNDPROC former;
    got.clear();
    ButtonHost host;
    const HWND window = host.AddButton();
    former = reinterpret_cast<WNDPROC>(::SetWindowLongPtr(
        window, GWLP_WNDPROC,
        reinterpret_cast<LONG_PTR>(static_cast<WNDPROC>(
            [](HWND button, UINT message, WPARAM wParam, LPARAM lParam) CALLBACK -> LRESULT {
                got.push_back(message);
                return ::CallWindowProc(former, button, message, wParam, lParam);
            }))));
    TestButton button;
    button.SubclassWindow(window);
    for (const UINT message :
         {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_KEYDOWN, WM_KILLFOCUS}) {
        CAPTURE(message);
        for (const BOOL pressing : {FALSE, TRUE}) {
            button.m_pressing = static_cast<BYTE>(pressing);
            got.clear();
            ::SendMessage(window, message, 0, MAKELPARAM(5, 5));
            CHECK(std::count(got.begin(), got.end(), message) == 1);
        }
    }
    button.UnsubclassWindow();
    ::SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(former));
}

TEST_CASE("losing the focus while pressed releases the capture and ends the press")
{
    Button button;
    button.host.Show();
    MovePointer(button.control.m_hWnd);
    PressLeft();
    REQUIRE(::GetCapture() == button.control.m_hWnd);
    button.control.SendMessage(WM_KILLFOCUS, 0, 0);
    CHECK(::GetCapture() == nullptr);
    CHECK_FALSE(button.control.m_pressing);
    ReleaseLeft();
    CHECK(button.host.m_clicks == 0);
}

TEST_CASE("a double click gives two presses, never a double-click notification")
{
    Button button;
    button.host.Show();
    REQUIRE(DoubleClick(button.control.m_hWnd));
    CHECK(button.host.m_clicks == 2);
    CHECK(button.host.m_doubleClicks == 0);
}

TEST_CASE("the second press of a double click has happened when its message is done")
{
    Button button;
    button.host.Show();
    MovePointer(button.control.m_hWnd);
    button.control.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(10, 10));
    CHECK(button.control.m_pressing);
    CHECK(IsPushed(button.control));
    CHECK(::GetCapture() == button.control.m_hWnd);
    CHECK(button.control.Find(WM_LBUTTONDBLCLK) == nullptr);
    button.control.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(10, 10));
    CHECK(button.host.m_clicks == 1);
}

TEST_CASE("a click toggles a check box, a click released elsewhere does not")
{
    Button button(BS_AUTOCHECKBOX);
    button.host.Show();
    Click(button.control.m_hWnd);
    CHECK(button.control.SendMessage(BM_GETCHECK) == 1);
    Click(button.control.m_hWnd);
    CHECK(button.control.SendMessage(BM_GETCHECK) == 0);
    MovePointer(button.control.m_hWnd);
    PressLeft();
    MovePointer(button.host.m_hWnd, {300, 300});
    ReleaseLeft();
    CHECK(button.control.SendMessage(BM_GETCHECK) == 0);
    CHECK(button.host.m_clicks == 2);
}

TEST_CASE("a release over a check box or radio button that was not pressed there checks nothing")
{
    for (const DWORD style : {BS_AUTOCHECKBOX, BS_AUTORADIOBUTTON}) {
        Button button(style);
        button.host.Show();
        MovePointer(button.control.m_hWnd);
        button.control.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(10, 10));
        CHECK(button.control.SendMessage(BM_GETCHECK) == 0);
        // With a press before, the same release checks.
        button.control.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 10));
        button.control.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(10, 10));
        CHECK(button.control.SendMessage(BM_GETCHECK) == 1);
    }
}

TEST_CASE("the space bar toggles a check box and checks a radio button")
{
    Button check(BS_AUTOCHECKBOX);
    check.control.SendMessage(WM_KEYDOWN, VK_SPACE, 1);
    CHECK(check.control.m_checked);
    check.control.SendMessage(WM_KEYUP, VK_SPACE, 0xC0000001);
    check.control.SendMessage(WM_KEYDOWN, VK_SPACE, 1);
    CHECK_FALSE(check.control.m_checked);

    Button radio(BS_AUTORADIOBUTTON);
    radio.control.SendMessage(WM_KEYDOWN, VK_SPACE, 1);
    CHECK(radio.control.m_checked);
    radio.control.SendMessage(WM_KEYDOWN, VK_SPACE, 1);
    CHECK(radio.control.m_checked);

    Button push;
    push.control.SendMessage(WM_KEYDOWN, VK_SPACE, 1);
    CHECK_FALSE(push.control.m_checked);
    Button other(BS_AUTOCHECKBOX);
    other.control.SendMessage(WM_KEYDOWN, VK_RETURN, 1);
    CHECK_FALSE(other.control.m_checked);
}

TEST_CASE("setting the check leaves a push button unchecked, and takes any number as checked")
{
    Button push;
    CHECK(push.control.SendMessage(BM_SETCHECK, 1) == 0);
    CHECK(push.control.SendMessage(BM_GETCHECK) == 0);
    Button check(BS_AUTOCHECKBOX);
    check.control.SendMessage(BM_SETCHECK, 77);
    CHECK(check.control.SendMessage(BM_GETCHECK) == 1);
    check.control.SendMessage(WM_SHADE_UNCHECK);
    CHECK(check.control.SendMessage(BM_GETCHECK) == 0);
}

TEST_CASE("a check that is set and a face that is made anew are painted")
{
    Button check(BS_AUTOCHECKBOX);
    CHECK(check.control.SetShade(SHADE_DIAGONAL, 0, 0, 100, tint) == TRUE);
    check.host.Show();
    const MessageLog log(check.control.m_hWnd);
    check.control.SendMessage(BM_SETCHECK, 1);
    PumpMessages();
    CHECK(log.Count(WM_PAINT) == 1);
    CHECK(check.control.UpdateShade() == TRUE);
    PumpMessages();
    CHECK(log.Count(WM_PAINT) == 2);
}

TEST_CASE("a radio button that is checked unchecks its group by posting, and no other group")
{
    RadioRow row(6, {0, 3});
    row.buttons[1]->SendMessage(BM_SETCHECK, 1);
    row.buttons[4]->SendMessage(BM_SETCHECK, 1);
    PumpMessages();
    REQUIRE(row.Checked() == std::vector<int>{0, 1, 0, 0, 1, 0});
    row.buttons[2]->SendMessage(BM_SETCHECK, 1);
    // The others follow once the current message is done.
    CHECK(row.Checked() == std::vector<int>{0, 1, 1, 0, 1, 0});
    PumpMessages();
    CHECK(row.Checked() == std::vector<int>{0, 0, 1, 0, 1, 0});
    row.buttons[3]->SendMessage(BM_SETCHECK, 1);
    PumpMessages();
    CHECK(row.Checked() == std::vector<int>{0, 0, 1, 1, 0, 0});
}

TEST_CASE("real clicks move the mark within a radio group")
{
    RadioRow row(3, {0});
    row.host.Show();
    for (int i = 0; i < 3; ++i) {
        Click(row.buttons[i]->m_hWnd);
        PumpMessages();
        std::vector<int> expected(3, 0);
        expected[i] = 1;
        CHECK(row.Checked() == expected);
    }
}

TEST_CASE("checking a hidden or disabled radio button ends, and unchecks the others")
{
    RadioRow row(3, {0});
    row.buttons[0]->SendMessage(BM_SETCHECK, 1);
    PumpMessages();
    row.buttons[2]->EnableWindow(FALSE);
    const MessageLog first(row.buttons[0]->m_hWnd), second(row.buttons[1]->m_hWnd);
    row.buttons[2]->SendMessage(BM_SETCHECK, 1);
    PumpMessages();
    CHECK(first.Count(WM_SHADE_UNCHECK) == 1); // Once around, although the walk cannot come back.
    CHECK(second.Count(WM_SHADE_UNCHECK) == 1);
    CHECK(row.Checked() == std::vector<int>{0, 0, 1});
    row.buttons[1]->ShowWindow(SW_HIDE);
    row.buttons[1]->SendMessage(BM_SETCHECK, 1);
    PumpMessages();
    CHECK(row.buttons[1]->m_checked);
}

TEST_CASE("owner-draw item data and the state reach the host's request, one a change")
{
    Button button;
    button.host.Show();
    button.host.m_drawn.clear();
    button.control.EnableWindow(FALSE);
    button.control.UpdateWindow();
    REQUIRE(button.host.m_drawn.size() == 1);
    CHECK((button.host.m_drawn[0] & ODS_DISABLED) != 0);
    button.control.EnableWindow(TRUE);
    button.control.UpdateWindow();
    button.host.m_drawn.clear();
    PumpMessages();
    CHECK(button.host.m_drawn.empty()); // Nothing changes, nothing is painted.
}

TEST_CASE("nothing is erased: a repaint is one copy to the screen")
{
    Button button;
    button.Shade();
    CClientDC dc(&button.host);
    CHECK(button.control.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.GetSafeHdc())) !=
          0);
    const CountCalls copies(FindModule(UMBRA_MFC_DLL), "gdi32", "BitBlt");
    REQUIRE(copies.IsInstalled());
    button.control.Invalidate(FALSE);
    button.control.UpdateWindow();
    CHECK(copies.Calls() == 1);
}

TEST_CASE("a paint leaves the target's font and the system's objects as they were")
{
    Button button;
    button.Shade();
    button.control.SetPicture(ImagePath(_T("Next.gif")).c_str(), 0x100, 19, 19, 0);
    button.Draw();
    const BalancedGdi objects;
    for (int i = 0; i < 20; ++i) {
        for (const UINT state : {0, ODS_FOCUS, ODS_SELECTED, ODS_DISABLED, ODS_DEFAULT})
            button.Draw(state);
    }
    CHECK_MESSAGE(objects.IsBalanced(), objects.Describe());
}

TEST_CASE("a shade makes all six bitmaps for the button's size, a further one for its new size")
{
    Button button;
    button.Shade();
    CHECK(button.control.m_dibNormal.GetWidth() == width);
    CHECK(button.control.m_dibNormal.GetHeight() == height);
    CHECK(button.control.m_dibFocusH.GetWidth() == width - 9);
    CHECK(button.control.m_dibFocusV.GetHeight() == height - 9);
    CHECK(button.control.m_dibDown.IsValid());
    CHECK(button.control.m_dibOver.IsValid());
    CHECK(button.control.m_dibDisabled.IsValid());
    button.control.SetWindowPos(nullptr, 0, 0, 9, 200, SWP_NOMOVE | SWP_NOZORDER);
    button.Shade();
    CHECK(button.control.m_dibNormal.GetWidth() == 9);
    CHECK(button.control.m_dibFocusH.GetWidth() == 1);
    CHECK(button.control.m_dibFocusV.GetHeight() == 191);
}

TEST_CASE("a tool tip gets its text, and another one while checked")
{
    Button button(BS_AUTOCHECKBOX);
    REQUIRE(button.control.SetToolTipText(_T("off"), _T("on")));
    REQUIRE(button.control.m_toolTip.m_hWnd != nullptr);
    const auto text = [&] {
        CString tip;
        button.control.m_toolTip.GetText(tip, &button.control);
        return TString(tip);
    };
    CHECK(text() == _T("off"));
    button.control.SendMessage(BM_SETCHECK, 1);
    CHECK(text() == _T("on"));
    button.control.SendMessage(WM_SHADE_UNCHECK);
    CHECK(text() == _T("off"));

    button.control.SetToolTipText(_T("only"));
    button.control.SendMessage(BM_SETCHECK, 1);
    CHECK(text() == _T("only"));
    CHECK(button.control.m_toolTip.GetToolCount() == 1);
}

TEST_CASE("the tool tip comes up under the real pointer")
{
    Button button;
    button.control.SetToolTipText(_T("tip"));
    button.control.m_toolTip.SetDelayTime(TTDT_INITIAL, 10);
    button.host.Show();
    MovePointer(button.control.m_hWnd);
    CHECK(WaitUntil([&] {
        MovePointer(button.control.m_hWnd, {10, 10});
        return button.control.m_toolTip.IsWindowVisible() != FALSE;
    }));
}

TEST_CASE("presses, releases and moves are relayed to the tool tip, others are not")
{
    Button button;
    button.control.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(7, 8)); // No tool tip, no harm.
    button.control.SetToolTipText(_T("tip"));
    const RelayLog relays(button.control.m_toolTip.m_hWnd);
    const UINT messages[] = {WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_LBUTTONUP};
    for (const UINT message : messages)
        button.control.SendMessage(message, MK_SHIFT, MAKELPARAM(7, 8));
    button.control.SendMessage(WM_RBUTTONDOWN, 0, MAKELPARAM(7, 8));
    REQUIRE(relays.Relayed().size() == 3);
    for (size_t i = 0; i < 3; ++i) {
        CHECK(relays.Relayed()[i].message == messages[i]);
        CHECK(relays.Relayed()[i].hwnd == button.control.m_hWnd);
        CHECK(relays.Relayed()[i].wParam == MK_SHIFT);
        CHECK(relays.Relayed()[i].lParam == MAKELPARAM(7, 8));
    }
}

TEST_CASE("a host may end the button in a relay, and the message goes no further then")
{
    for (const UINT message : {WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_LBUTTONUP}) {
        CAPTURE(message);
        Button button;
        button.control.SetToolTipText(_T("tip"));
        const RelayLog relays(button.control.m_toolTip.m_hWnd,
                              [&button] { button.control.DestroyWindow(); });
        button.control.m_passedOn.clear();
        button.control.SendMessage(message, 0, MAKELPARAM(7, 8));
        CHECK(button.control.m_hWnd == nullptr);
        CHECK(button.control.Find(message) == nullptr);
        CHECK_FALSE(button.control.m_hover);
        CHECK_FALSE(button.control.m_pressing);
    }
}

TEST_CASE("a host may end the button in its click")
{
    Button button;
    button.host.Show();
    button.host.m_onClick = [&] { button.control.DestroyWindow(); };
    MovePointer(button.control.m_hWnd);
    PressLeft();
    ReleaseLeft();
    CHECK(button.control.m_hWnd == nullptr);
    CHECK(button.host.m_clicks == 1);
}

TEST_CASE("a button without a window takes its settings without harm")
{
    TestButton button;
    LOGFONT font = {};
    button.SetTextFont(font);
    button.m_pictureData = malloc(10);
    button.m_pictureOwned = TRUE;
}
