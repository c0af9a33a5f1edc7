// Backgrounds that are set, changed and taken away by CDialogTS::SetBackground, and how pages look
// on right-to-left windows and in print.
#include "controls/KeyedPicture.h"
#include "dialogs/BaseDialog.h"
#include "shell/PictureLoader.h"

#include "tests/BitmapFile.h"
#include "tests/Folders.h"
#include "tests/dialogs/PageTemplate.h"

#include "testing/Canvas.h"
#include "testing/GdiObjects.h"
#include "testing/Page.h"
#include "testing/Picture.h"
#include "testing/Pump.h"
#include "testing/Text.h"

#include <doctest/doctest.h>

#include <mbctype.h>

using namespace umbra::testing;

namespace {

const COLORREF red = RGB(200, 30, 40);
const COLORREF blue = RGB(10, 20, 220);
const COLORREF black = RGB(0, 0, 0);
const int width = 200;
const int height = 120;

DialogTemplate BareTemplate(DWORD extendedStyle = 0)
{
    return DialogTemplate(0, 0, 100, 50, WS_POPUP, _T(""), extendedStyle);
}

/// A bitmap of the client area's size: the left half in one colour, the right half in another.
HBITMAP MakeHalves(COLORREF leftColor, COLORREF rightColor)
{
    const TString path = TemporaryPath(_T("umbra-halves.bmp"));
    REQUIRE(WriteBytes(path, MakeBitmapFile(
                                 width, height,
                                 [=](int x, int) { return x < width / 2 ? leftColor : rightColor; },
                                 height)));
    return LoadPictureBitmap(path.c_str());
}

class BackgroundDialog : public CDialogTS
{
public:
    explicit BackgroundDialog(DWORD extendedStyle = 0) : CDialogTS(1)
    {
        CreateIndirect(const_cast<DLGTEMPLATE*>(BareTemplate(extendedStyle).Get()), nullptr);
        SetWindowPos(&wndTopMost, 30, 30, width, height, SWP_SHOWWINDOW);
    }
    ~BackgroundDialog() override { DestroyWindow(); }

    Picture Show()
    {
        UpdateWindow();
        PumpMessages();
        return Picture::OfWindow(m_hWnd);
    }
};

bool IsAlive(HBITMAP bitmap)
{
    return ::GetObjectType(bitmap) == OBJ_BITMAP;
}

} // namespace

TEST_CASE("a background shows at once, and another one in its place")
{
    const HBITMAP first = MakeHalves(red, blue);
    const HBITMAP second = MakeHalves(blue, red);
    {
        BackgroundDialog dialog;
        dialog.SetBackground(first);
        CHECK(dialog.Show().At(10, 10) == red);
        dialog.SetBackground(second);
        CHECK(dialog.Show().At(10, 10) == blue);
        dialog.SetBackground(second);
        CHECK(dialog.Show().At(10, 10) == blue);
        dialog.SetBackground(nullptr);
        CHECK(dialog.Show().At(10, 10) == ::GetSysColor(COLOR_BTNFACE));
        CHECK_FALSE(dialog.m_bHasBitmap);
        dialog.SetBackground(first);
    }
    // They stay their owner's.
    CHECK(IsAlive(first));
    CHECK(IsAlive(second));
    ::DeleteObject(first);
    ::DeleteObject(second);
}

TEST_CASE("a shape shows its image through the mask, and a bitmap or nothing afterwards")
{
    CBitmap image, mask;
    image.Attach(MakeHalves(black, red));
    BuildKeyMask(image, mask, black);
    const HBITMAP plain = MakeHalves(blue, blue);
    {
        BackgroundDialog dialog;
        dialog.SetBackground(plain);
        dialog.Show();
        dialog.SetBackground(image, mask);
        CHECK(dialog.m_bShaped);
        const Picture shaped = dialog.Show();
        CHECK(shaped.At(10, 10) == blue); // What was behind.
        CHECK(shaped.At(width - 10, 10) == red);
        dialog.SetBackground(plain);
        CHECK_FALSE(dialog.m_bShaped);
        CHECK(dialog.Show().CountOf(blue) == width * height);
        dialog.SetBackground(nullptr, mask);
        CHECK_FALSE(dialog.m_bShaped);
    }
    CHECK(IsAlive(image));
    CHECK(IsAlive(mask));
    ::DeleteObject(plain);
}

TEST_CASE(
    "a background that a dialog was given before its window shows with it, any number of times")
{
    const HBITMAP image = MakeHalves(red, blue);
    {
        CDialogTS dialog(1);
        for (int life = 0; life < 3; ++life) {
            dialog.SetBackground(image);
            dialog.CreateIndirect(const_cast<DLGTEMPLATE*>(BareTemplate().Get()), nullptr);
            dialog.SetWindowPos(&CWnd::wndTopMost, 30, 30, width, height, SWP_SHOWWINDOW);
            dialog.UpdateWindow();
            CHECK(Picture::OfWindow(dialog).At(10, 10) == red);
            dialog.DestroyWindow();
        }
    }
    CHECK(IsAlive(image));
    ::DeleteObject(image);
}

TEST_CASE("bitmaps that a host put into the members itself end when others are set")
{
    WarmUpGdi();
    const HBITMAP image = MakeHalves(red, blue);
    const HBITMAP own = MakeHalves(blue, red);
    {
        CDialogTS dialog(1);
        dialog.m_bmpBack.Attach(own); // Without m_bHasBitmap it is the dialog's.
        dialog.SetBackground(image);
        CHECK_FALSE(IsAlive(own));
    }
    ::DeleteObject(image);
}

TEST_CASE("on a right-to-left dialog the background begins at the right and is not mirrored")
{
    const HBITMAP image = MakeHalves(red, blue);
    BackgroundDialog dialog(WS_EX_LAYOUTRTL);
    dialog.SetWindowPos(nullptr, 0, 0, width + 50, height, SWP_NOMOVE | SWP_NOZORDER);
    dialog.SetBackground(image);
    const Picture shown = dialog.Show();
    CHECK(shown.At(50 + 10, 10) == red);
    CHECK(shown.At(width + 50 - 10, 10) == blue);
    CHECK(shown.At(10, 10) != red);
    dialog.SetBackground(nullptr);
    ::DeleteObject(image);
}

TEST_CASE("on a right-to-left page the strip stands at the right and is not mirrored")
{
    g_strImageDir = ProgramFolder().c_str();
    const auto show = [](DWORD extendedStyle) {
        DialogTemplate source(10, 10, 300, 230, WS_POPUP, _T(""), extendedStyle);
        source.Button(IDCANCEL, _T(""), 200, 145, 60, 18);
        CBaseDialog dialog(1, nullptr, false, false, true, false, false, false, false, false);
        dialog.CreateIndirect(const_cast<DLGTEMPLATE*>(source.Get()), nullptr);
        dialog.SetWindowPos(&CWnd::wndTopMost, 30, 30, 0, 0, SWP_NOSIZE | SWP_SHOWWINDOW);
        dialog.UpdateWindow();
        PumpMessages();
        const Picture shown = Picture::OfWindow(dialog);
        dialog.DestroyWindow();
        return shown;
    };
    const Picture plain = show(0);
    const Picture mirrored = show(WS_EX_LAYOUTRTL);
    const CRect strip(0, 0, 72, 367);
    CRect place = strip;
    place.OffsetRect(mirrored.Width() - strip.Width(), 0);
    CHECK(mirrored.Crop(place).Compare(plain.Crop(strip)) == "the same");
}

TEST_CASE("a page prints as it shows: its background and its strip")
{
    g_strImageDir = ProgramFolder().c_str();
    const DialogTemplate source(10, 10, 300, 230, WS_POPUP, _T(""));
    DialogTemplate page = source;
    page.Button(IDCANCEL, _T(""), 200, 145, 60, 18);
    CBaseDialog dialog(1, nullptr, false, false, true, false, false, false, false, false);
    dialog.m_bSolidFill = TRUE;
    dialog.m_crFill = RGB(7, 99, 250);
    dialog.CreateIndirect(const_cast<DLGTEMPLATE*>(page.Get()), nullptr);
    dialog.GetDlgItem(IDCANCEL)->ShowWindow(SW_HIDE);
    dialog.SetWindowPos(&CWnd::wndTopMost, 30, 30, 0, 0, SWP_NOSIZE | SWP_SHOWWINDOW);
    dialog.UpdateWindow();
    PumpMessages();
    const Picture shown = Picture::OfWindow(dialog);
    const Canvas canvas(shown.Width(), shown.Height(), black);
    ::SendMessage(dialog, WM_PRINT, reinterpret_cast<WPARAM>(canvas.Dc()),
                  PRF_ERASEBKGND | PRF_CLIENT);
    CHECK(canvas.ToPicture().Compare(shown) == "the same");
    dialog.DestroyWindow();
}

#ifndef UNICODE
TEST_CASE("an image folder whose last character ends in the byte of a backslash gets its backslash")
{
    class Page : public CBaseDialog
    {
    public:
        Page() : CBaseDialog(1, nullptr, false, false, true, false, false, false, false, false) {}
        using CBaseDialog::m_strImageDir;
    };
    const int codePage = _getmbcp();
    _setmbcp(932);
    const CString folder(_T("C:\\\x95\x5C")); // One character of two bytes.
    g_strImageDir = folder;
    DialogTemplate source = MakePageTemplate(false, false);
    Page page;
    page.CreateIndirect(const_cast<DLGTEMPLATE*>(source.Get()), nullptr);
    CHECK(page.m_strImageDir == folder + _T("\\"));
    page.DestroyWindow();

    g_strImageDir = folder + _T("\\");
    page.CreateIndirect(const_cast<DLGTEMPLATE*>(source.Get()), nullptr);
    CHECK(page.m_strImageDir == folder + _T("\\"));
    page.DestroyWindow();
    _setmbcp(codePage);
    g_strImageDir = ProgramFolder().c_str();
}
#endif
