// Controls that are asked for a picture of themselves (WM_PRINTCLIENT) paint as on the screen.
#include "controls/HyperLink.h"
#include "controls/NoteStatic.h"
#include "controls/ShadeButton.h"

#include "tests/Folders.h"
#include "tests/controls/LabelHost.h"

#include "testing/Canvas.h"
#include "testing/Picture.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

namespace {

const COLORREF green = RGB(20, 160, 60);
const COLORREF odd = RGB(7, 250, 99);
const CRect place(30, 40, 170, 90);

/// What the control draws into a context that has the host's colour already. The context has odd
/// settings, which stay.
Picture Print(CWnd& control)
{
    const Canvas canvas(place.Width(), place.Height(), green);
    ::SetTextColor(canvas.Dc(), odd);
    ::SetBkMode(canvas.Dc(), OPAQUE);
    const HGDIOBJ font = ::GetCurrentObject(canvas.Dc(), OBJ_FONT);
    ::SendMessage(control, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.Dc()), PRF_CLIENT);
    CHECK(::GetTextColor(canvas.Dc()) == odd);
    CHECK(::GetBkMode(canvas.Dc()) == OPAQUE);
    CHECK(::GetCurrentObject(canvas.Dc(), OBJ_FONT) == font);
    return canvas.ToPicture();
}

} // namespace

TEST_CASE("labels print as they show")
{
    LabelHost host(green);
    CStaticTS label;
    label.SubclassWindow(host.AddStatic(place, _T("A label"), SS_NOTIFY | SS_LEFT));
    SUBCASE("text")
    {
    }
    SUBCASE("etched text")
    {
        label.SetEmbossed(TRUE);
    }
    SUBCASE("a link")
    {
        label.SetLink(TRUE);
    }
    SUBCASE("a font of its own")
    {
        label.SetLabelFont(static_cast<HFONT>(::GetStockObject(ANSI_FIXED_FONT)));
    }
    SUBCASE("an opaque picture")
    {
        label.LoadPicture(ImagePath(_T("Next.gif")).c_str());
    }
    SUBCASE("a keyed picture")
    {
        label.SetTransparentColor(0);
        label.LoadPicture(ImagePath(_T("Next.gif")).c_str());
    }
    const Picture printed = Print(label);
    CHECK(printed.CountOf(green) < place.Width() * place.Height());
    CHECK(printed.Compare(host.Show().Crop(place)) == "the same");
}

TEST_CASE("notes print as they show")
{
    LabelHost host(green);
    CNoteStatic note;
    note.SubclassWindow(host.AddStatic(place, _T("A note")));
    note.CopyWindowFont();
    note.SetLabelTextColor(RGB(0, 0, 255));
    CHECK(Print(note).Compare(host.Show().Crop(place)) == "the same");
}

TEST_CASE("hyperlink labels print as they show")
{
    LabelHost host(green);
    CHyperLink link;
    link.SubclassWindow(host.AddStatic(place, _T("A link")));
    link.SetTextColor(RGB(0, 0, 255));
    link.SetURL(_T("target"));
    SUBCASE("text")
    {
    }
    SUBCASE("a keyed picture")
    {
        link.SetTransparentColor(0);
        link.SetBitmapFile(ImagePath(_T("Next.gif")).c_str());
    }
    CHECK(Print(link).Compare(host.Show().Crop(place)) == "the same");
}

TEST_CASE("shaded buttons print as they show")
{
    LabelHost host(green);
    CxShadeButton button;
    button.SubclassWindow(::CreateWindow(_T("Button"), _T("Text"), WS_CHILD | WS_VISIBLE,
                                         place.left, place.top, place.Width(), place.Height(), host,
                                         nullptr, nullptr, nullptr));
    button.SetShade(SHADE_ROWS, 0, 0, 50, RGB(180, 200, 230));
    button.SetPicture(ImagePath(_T("Next.gif")).c_str(), CxShadeButton::alignLeft, 19, 19, 0);
    const Picture shown = host.Show().Crop(place);
    const Canvas canvas(place.Width(), place.Height(), green);
    ::SendMessage(button, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.Dc()), PRF_CLIENT);
    CHECK(canvas.ToPicture().Compare(shown) == "the same");
}

TEST_CASE("without a context nothing is printed and nothing breaks")
{
    LabelHost host(green);
    CStaticTS label;
    label.SubclassWindow(host.AddStatic(place, _T("A label")));
    CHECK(::SendMessage(label, WM_PRINTCLIENT, 0, PRF_CLIENT) == 0);
}
